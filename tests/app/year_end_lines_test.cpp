// What the closing's two pages say, by the figures they are made of.
#include "app/year_end_lines.h"

#include <gtest/gtest.h>

#include "tests/cells.h"

namespace {

QString warningOf(const ClosingForecast& forecast) {
  YearEndPage page;
  fillForecast(page, forecast);
  return page.warning;
}

TEST(YearEndLines, WhatWouldBeLostIsNamedByItsKinds) {
  const QString begin = "2027년 파일에 이미 작업한 자료가 있습니다. 마감하면 모두 없어집니다!\n";
  const QString stays = "\n고객·거래처의 미수와 재고는 그 거래가 반영된 그대로 남습니다.";
  ClosingForecast forecast;
  forecast.year = 2026;
  forecast.sales = 1;
  EXPECT_EQ(warningOf(forecast), "") << "there is no file yet";
  forecast.nextStands = true;
  EXPECT_EQ(warningOf(forecast), begin + "판매 1건" + stays);
  forecast.sales = 0;
  EXPECT_EQ(warningOf(forecast), "") << "nobody has worked in it";
  forecast.readings = 3;
  forecast.collected = 12000;
  EXPECT_EQ(warningOf(forecast), begin + "검침·수금 3건 (수금 12,000원)") << "balances do not hang on them";
  forecast.purchases = 2;
  EXPECT_EQ(warningOf(forecast), begin + "구매 2건, 검침·수금 3건 (수금 12,000원)" + stays);
  forecast.nextIsRead = false;
  const QString unread = "2027년 파일이 이미 있으나 읽을 수 없습니다. 마감하면 새 파일로 바뀝니다.";
  EXPECT_EQ(warningOf(forecast), unread);
  forecast.kept = {"가.mdb", "나.mdb"};
  forecast.folder = "C:\\RWGas\\Dbs\\";
  forecast.folderMoved = true;
  EXPECT_EQ(
      warningOf(forecast),
      "자료 폴더가 옮겨져 있습니다. 마감은 C:\\RWGas\\Dbs\\ 의 파일로만 합니다.\n"
      "이 PC에서는 해가 바뀐 뒤 [년도마감에러]와 [체적검침 재이월]로 이월하십시오.\n\n" +
          unread +
          "\n\n전에 끝나지 않은 마감이 남겨 둔 파일이 있습니다. 필요 없으면 지우십시오.\n가.mdb\n나.mdb");
}

TEST(YearEndLines, ALineSaysWhatIsOddAboutIt) {
  YearEndPage page;
  ClosingForecast forecast;
  forecast.year = 2026;
  forecast.customers = 5;
  forecast.lines = {
      {1, "가", 500, 12.5, 1500}, {2, "나", 0, 3, 0}, {3, "다", 0, 4, -200}, {4, "라", 0, 5, 700, false}};
  forecast.arrears = 1300;
  forecast.owing = 1;
  fillForecast(page, forecast);
  EXPECT_EQ(page.head,
            "2026년 체적대장 고객 5명 중 12월 자료가 있는 4명의 지침과 미수를 2027년으로 넘깁니다.\n"
            "2027년 1월에 넘어갈 미수: 1명, 1,300원");
  EXPECT_EQ(tests::rowsOf(page.lines),
            QStringList({"1|가|12.5|500|1,500|", "2|나|3|0|0|", "3|다|4|0|-200|더 낸 금액",
                         "4|라|5|0|700|1월 행이 없어 넘어가지 않음"}));

  CarryCheck check;
  check.customers = 9;
  check.differing = {{1, "가", 1500, 1400}, {2, "나", 100, {}}, {3, "다", {}, 50}};
  fillDifferences(page, check, 2026, "전.mdb");
  EXPECT_EQ(page.head,
            "2026년 12월 발행금액과 2027년 1월 미수금을 고객마다 대조하였습니다.\n"
            "12월 자료가 있는 고객 9명 중 다른 고객: 3명");
  EXPECT_TRUE(page.warning.endsWith("[되돌리기]를 하면 마감하기 전으로 돌아갑니다.\n전.mdb"));
  EXPECT_EQ(tests::rowsOf(page.lines),
            QStringList({"1|가|1,500|1,400|", "2|나|100||1월 행이 없음", "3|다||50|12월 행이 없음"}));
  fillDifferences(page, check, 2026, {});
  EXPECT_EQ(page.warning, "1월에 행이 없는 고객의 미수는 넘어가지 않았습니다.");
}

}  // namespace
