// Which rows a book shows, in which order, with which previous readings.
#include "billing/reading_load.h"

#include "billing/reading_months.h"
#include "billing/reading_panel.h"
#include "tests/billing/meter_desk.h"
#include "tests/cells.h"

namespace {

struct ReadingLoad : testing::Test, tests::MeterDesk {
  /** Column 1 of every row. */
  QString names() { return tests::columnOf(sheet.grid, EvaCol::Name).join(' '); }
  void setting(const char* key, const char* value) {
    pc.pc.settings.SaveSetting(session.AppTitle, "Config", key, value);
  }
  /** Two apartment buildings and two households of another kind. */
  void estate() {
    customer("가", 1000, 1, "한빛", "101", "101");
    customer("나", 1000, 1, "한빛", "101", "9");
    customer("다", 1000, 1, "한빛", "101", "관리실");
    customer("라", 1000, 1, "한빛", "102", "101");
    customer("마", 1000, 1, "별빛", "3", "7");
    customer("바", 1000, 1, "별빛", "3");
    customer("사", 1000, 0);
    customer("아", 1000, 2, "달빛", "1", "1");
  }
};
struct ReadingMonths : ReadingLoad {};
struct ReadingPanels : ReadingLoad {};

TEST_F(ReadingLoad, BooksBuildingsAndBlocks) {
  estate();
  show(HouseStyle::Individual, 3);
  EXPECT_EQ(names(), "사") << "a customer of no room is one of the individual book";
  EXPECT_EQ(sheet.buildings, QStringList());
  show(HouseStyle::MultiHousehold, 3);
  EXPECT_EQ(sheet.buildings, QStringList({"다가구 전체", "달빛"}));
  EXPECT_EQ(names(), "1동 1호");

  show(HouseStyle::Apartment, 3);
  EXPECT_EQ(sheet.buildings, QStringList({"아파트 전체", "별빛", "한빛"}));
  EXPECT_EQ(names(), "101동 101호 101동 9호 101동 관리실호 102동 101호 3동 7호")
      << "a household without a room is listed nowhere";
  show(HouseStyle::Apartment, 3, 2);
  EXPECT_EQ(names(), "101동 101호 101동 9호 101동 관리실호 102동 101호");

  setting("체적검침동별보기", "1");
  show(HouseStyle::Apartment, 3, 2);
  EXPECT_EQ(sheet.buildings, QStringList({"아파트 전체", "별빛 3", "한빛 101", "한빛 102"}));
  EXPECT_EQ(names(), "101동 101호 101동 9호 101동 관리실호");
  show(HouseStyle::Apartment, 3, 1);
  EXPECT_EQ(names(), "") << "only a block of three characters finds its households";
}

TEST_F(ReadingLoad, RoomsInOrderWhenTheyAreToBe) {
  estate();
  setting("체적검침정렬방식", "1");
  show(HouseStyle::Apartment, 3);
  EXPECT_EQ(names(), "3동 7호 101동 관리실호 101동 9호 101동 101호 102동 101호")
      << "by building and block, rooms as numbers, a room of no number as 0";
  customer("하늘", 1000);
  customer("가람", 1000);
  show(HouseStyle::Individual, 3);
  EXPECT_EQ(names(), "가람 사 하늘");
}

TEST_F(ReadingLoad, EveryColumnIsFilled) {
  const int code = customer("가", 1500, 1, "한빛", "101", "203");
  basic("Update Client Set PayWay = 3, Tel = Null");
  set(code, 3,
      "UseGage = 110.5, UseMuch = 0, UsePay = 20, Trust = 30, Delay = 40, Manage = 50, Total = 1234.9, Pay = "
      "60, Prnt = -1, PrntDay = '03/01', TrustDay = '03/02', paydelayed = True");
  set(code, 2, "UseGage = 100");
  sheet.readingDay = "02/02";
  show(HouseStyle::Apartment, 3);
  EXPECT_EQ(sheet.readingDay, "03/05") << "today again";
  const QString row = cells(1, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20});
  EXPECT_EQ(row, "101동 203호|100|110.5|0|20|30|40|50|1230|60|1|03/02|1|1500|대구||가|3|1|한빛");
}

TEST_F(ReadingLoad, ThePreviousReadingFitsAUseSetByHand) {
  const int a = customer("가", 1000), b = customer("나", 1000), c = customer("다", 1000);
  for (const int code : {a, b, c}) set(code, 2, "UseGage = " + QString::number(900 + code));
  set(a, 3, "UseGage = 12.3, UseMuch = 5.1");
  set(b, 3, "UseGage = 0, UseMuch = 5");
  show(HouseStyle::Individual, 3);
  const auto previous = [&] { return cell(1, 2) + ' ' + cell(2, 2) + ' ' + cell(3, 2); };
  EXPECT_EQ(previous(), "7.2 902 903") << "the meter was changed; not read yet; nothing used";
  run("Delete * From Evaporation Where ClientCode = 2 And Mon = 2");
  show(HouseStyle::Individual, 3);
  EXPECT_EQ(previous(), "7.2 903 ") << "rows are paired by their places";
  show(HouseStyle::Individual, 0);
  EXPECT_EQ(previous(), "  ");
}

TEST_F(ReadingLoad, TheIssuedAmountIsOpenInTheOpeningEntryAlone) {
  customer("가", 1000);
  show(HouseStyle::Individual, 0);
  EXPECT_FALSE(sheet.grid.locked(1, EvaCol::Total));
  EXPECT_TRUE(pc.prompts.seen.last().contains("1월부터 2월까지의 검침량으로"));
  EXPECT_TRUE(pc.prompts.seen.last().startsWith("체적 관리자|"));
  show(HouseStyle::Individual, 3);
  EXPECT_TRUE(sheet.grid.locked(1, EvaCol::Total));
  for (const int col : {EvaCol::Name, EvaCol::PrevUseGage, EvaCol::UseMuch, EvaCol::UsePay, EvaCol::Trust})
    EXPECT_TRUE(sheet.grid.locked(1, col)) << col;
  for (const int col : {EvaCol::UseGage, EvaCol::Delay, EvaCol::Manage, EvaCol::Pay, EvaCol::PayDelayed})
    EXPECT_FALSE(sheet.grid.locked(1, col)) << col;
}

TEST_F(ReadingLoad, NothingIsLoadedBeforeMonthAndBuildingAreChosen) {
  pc.prompts.expect("조회/입력할 월을 선택하십시오");
  EXPECT_EQ(CheckSelection(sheet), Selection::NoMonth);
  sheet.month = 3;
  EXPECT_EQ(CheckSelection(sheet), Selection::Complete);
  sheet.book = HouseStyle::Apartment;
  pc.prompts.expect("조회/입력할 건물을 선택하십시오");
  EXPECT_EQ(CheckSelection(sheet), Selection::NoBuilding);
  EXPECT_TRUE(pc.prompts.seen.last().startsWith("검침 관리자|"));
}

TEST_F(ReadingLoad, AFailedQueryLeavesTheGridAsItIs) {
  customer("가", 1000, 1, "한빛", "101", "1");
  show(HouseStyle::Apartment, 3);
  sheet.buildings << "한'빛";
  sheet.building = 2;
  pc.prompts.expect("SELECT Client.Code");
  RefreshReadingGrid(sheet);
  EXPECT_EQ(names(), "101동 1호");
}

TEST_F(ReadingMonths, ListAndLimitsGoByTheClock) {
  EXPECT_EQ(FillMonthList(pc.pc.clock), QStringList({"기초", "01", "02", "03"}));
  EXPECT_TRUE(IsEditableMonth(pc.pc.clock, "00") && IsEditableMonth(pc.pc.clock, "03"));
  EXPECT_FALSE(IsEditableMonth(pc.pc.clock, "02") || IsEditableMonth(pc.pc.clock, "3"));
  const auto refused = [&](int month) {
    sheet.month = month;
    QString columns;
    for (int col = EvaCol::UseGage; col <= EvaCol::TrustDay; ++col) {
      const qsizetype before = pc.prompts.seen.size();
      const bool limited = col == EvaCol::Delay || col == EvaCol::Manage || col == EvaCol::Pay;
      if (limited && month != 0 && month != 3 && !(col == EvaCol::Pay && month == 2))
        pc.prompts.expect("검침 관리자");
      if (!ValidateCellEdit(sheet, col)) columns += QString::number(col) + ' ';
      EXPECT_EQ(pc.prompts.seen.size() - before, columns.endsWith(QString::number(col) + ' ') ? 1 : 0);
    }
    return columns.trimmed();
  };
  EXPECT_EQ(refused(0), "");
  EXPECT_EQ(refused(3), "");
  EXPECT_EQ(refused(2), "7 8") << "collected money one month back";
  EXPECT_EQ(pc.prompts.seen.value(0), "검침 관리자|연체료에 대한 수정은 현재달만 가능합니다");
  EXPECT_EQ(refused(1), "7 8 10") << "and no further; a reading is taken in any month";
  EXPECT_EQ(pc.prompts.seen.last(), "검침 관리자|당월수금액에 대한 수정은 최근 1개월까지만 가능합니다");
}

TEST_F(ReadingPanels, TellsTheCustomerAndTakesHisReadingDay) {
  const int code = customer("가람", 1500);
  customer("나라", 2345);
  basic("Update Client Set Tel = '', Address = Null Where Name = '나라'");
  set(code, 3, "PrntDay = '03/01 ', ChkMan = '홍길동'");
  show(HouseStyle::Individual, 3);
  ReadingPanel panel = enterReadingRow(sheet, 1);
  EXPECT_EQ(panel.status, " 상호/성명:가람   전화:053-1   주소:대구");
  EXPECT_EQ(panel.man, "체적단가 : 1,500원  검침원 : 홍길동  수금원 : 미입력");
  EXPECT_EQ(sheet.readingDay, "03/01 ") << "one blank, however often it was saved with one";
  panel = enterReadingRow(sheet, 2);
  EXPECT_EQ(panel.status, " 상호/성명:나라   전화:미입력   주소:미입력");
  EXPECT_EQ(panel.man, "체적단가 : 2,345원  검침원 : 미입력  수금원 : 미입력");
  EXPECT_EQ(sheet.readingDay, "03/01 ") << "this row has no day yet";
}

}  // namespace
