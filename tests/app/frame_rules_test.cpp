#include "app/frame_rules.h"

#include "tests/idle_context.h"
#include "tests/support.h"

namespace {

struct FrameRulesTest : testing::Test, tests::TestPc {
  tests::IdlePickers pickers;
  FrameRulesTest() {
    openBooks();
    session.dbBasic.Execute("Insert Into LPG(LPGName, Size, LPGStock, CANFull) Values('프로판', '20', 7, 3)");
    session.dbBasic.Execute("Insert Into Util(Name, Size, UtilStock) Values('호스', '1', 5)");
    for (const char* metered : {"True", "False", "True"})
      session.dbBasic.Execute("Insert Into Client(Name, VolumeYesNo) Values('고객', " +
                              QString::fromUtf8(metered) + ")");
  }
  qint64 number(const jet::Database& db, const QString& sql) { return db.OpenRecordset(sql)[0].toLong(); }
  qint64 bookRows(int code) {
    return number(session.dbYear,
                  "Select Count(*) From Evaporation Where ClientCode = " + QString::number(code));
  }
  static void atOnce(const std::function<void()>& work) { work(); }
};

TEST_F(FrameRulesTest, StockResetNeedsThePasswordAndTwoYesAndTouchesLPGAlone) {
  pickers.password = false;
  initStock(session, pickers);
  pickers.password = true;
  prompts.expect("재고를 모두 초기화 하시겠습니까?");
  prompts.expect("한번 초기화된 재고는 다시 복구할 수 없습니다!", false);
  initStock(session, pickers);
  EXPECT_EQ(number(session.dbBasic, "Select LPGStock From LPG"), 7);
  prompts.expect("재고를 모두 초기화 하시겠습니까?");
  prompts.expect("재고 초기화를 진행하겠습니까?");
  prompts.expect("가스/용기/시설/자재의 재고가 모두 초기화 되었습니다!");
  initStock(session, pickers);
  EXPECT_EQ(number(session.dbBasic, "Select LPGStock + CANFull From LPG"), 0);
  EXPECT_EQ(number(session.dbBasic, "Select UtilStock From Util"), 5);
}

TEST_F(FrameRulesTest, RebuildWritesThirteenMonthsOfEachMeteredCustomerAndStumblesOverExistingRows) {
  rebuildBookRows(session);
  EXPECT_EQ(bookRows(1), 13);
  EXPECT_EQ(bookRows(2), 0);
  EXPECT_EQ(bookRows(3), 13);
  EXPECT_THROW(rebuildBookRows(session), jet::Error);
}

TEST_F(FrameRulesTest, HiddenClearingStartsAtTheGivenCode) {
  rebuildBookRows(session);
  session.dbYear.Execute("Update Evaporation Set Total = 500");
  prompts.expect("체적데이터가 클리어됩니다. 클리어된 데이터는 복구 불가능합니다. 계속하시겠습니까?");
  prompts.expectInput("암호확인", "1357");
  prompts.expect("암호가 틀립니다.");
  clearBook(session, atOnce);
  prompts.expect("클리어된 데이터는 복구 불가능합니다.");
  prompts.expectInput("체적자료 클리어", "13579");
  prompts.expectInput("시작할 고객코드를 입력하세요.(전체:0)", "");
  clearBook(session, atOnce);
  prompts.expect("클리어된 데이터는 복구 불가능합니다.");
  prompts.expectInput("암호확인", "13579");
  prompts.expectInput("체적자료 새로 생성", "9 Or 1=1");
  EXPECT_THROW(clearBook(session, atOnce), jet::Error);
  EXPECT_EQ(number(session.dbYear, "Select Sum(Total) From Evaporation"), 13000) << "nothing has run so far";

  prompts.expect("클리어된 데이터는 복구 불가능합니다.");
  prompts.expectInput("암호확인", "13579");
  prompts.expectInput("체적자료 새로 생성", "2");
  prompts.expect("처리완료");
  clearBook(session, atOnce);
  EXPECT_EQ(bookRows(1), 13);
  EXPECT_EQ(bookRows(3), 13);
  EXPECT_EQ(number(session.dbYear, "Select Sum(Total) From Evaporation"), 6500);
}

TEST_F(FrameRulesTest, DateAndTimeStandAsOnAKoreanPc) {
  EXPECT_EQ(longDate(QDate(2026, 11, 4)), "2026년 11월 4일 수요일");
  EXPECT_EQ(clockTime(QTime(0, 5, 9)), "오전 12:05:09");
  EXPECT_EQ(clockTime(QTime(18, 40, 12)), "오후 6:40:12");
  EXPECT_TRUE(mainWindowTitle().startsWith("LP가스 판매관리 - 해온판매!  Ver.1.0.0 "));
}

}  // namespace
