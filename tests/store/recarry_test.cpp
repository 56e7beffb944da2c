#include "tests/store/closing_desk.h"

using namespace Qt::StringLiterals;

namespace {

struct Recarry : testing::Test, tests::ClosingDesk {
  /** The next year's file as a closing leaves it, the clock in that year. */
  void turnTheYear() {
    closeWell();
    pc.pc.clock.set(QDateTime(QDate(2027, 1, 8), QTime(9, 0)));
  }
  void again() {
    pc.prompts.expect("2026년도의 체적검침 자료를 올해 기초로 다시 이월하시겠습니까?");
    pc.prompts.expect("체적검침 재이월이 완료되었습니다.");
    recarry(session, screen().progress);
  }
  QString opening(int code, int month) {
    return rowsIn(2027,
                  u"Select Trust, UseGage, UseMuch, Total, paydelayed From Evaporation Where "
                  "ClientCode = %1 And Mon = %2"_s.arg(code)
                      .arg(month));
  }
};

TEST_F(Recarry, BringsUseAndMarkAndLeavesOtherMonthsAlone) {
  turnTheYear();
  year(2027).Execute("Update Evaporation Set Trust = 1, Total = 7, Pay = 3 Where Mon = 1");
  year(2027).Execute("Update Evaporation Set Trust = 5 Where Mon = 2");
  set(owes, 12, "Total = 30500");  // paid in part after the closing
  again();
  EXPECT_EQ(opening(owes, 0), "30500|1234|12|30500|0");
  EXPECT_EQ(opening(owes, 1), "30500|0|0|7|0") << "of January the arrears alone";
  EXPECT_EQ(opening(owes, 2), "5|0|0|0|0");
  EXPECT_EQ(opening(paid, 0), "0|640.5|4|0|-1");
  EXPECT_EQ(opening(over, 1), "-3000|0|0|7|0");
  EXPECT_EQ(progressed.last(), "전년도의 체적검침 자료 재이월 중... 4/4");
}

TEST_F(Recarry, AfterTheDueDateTheLateChargeStaysBehindUnlessTheBillIsTheMonthsGas) {
  turnTheYear();
  session.AfterDueMethod = 1;
  again();
  EXPECT_EQ(opening(owes, 1), "35400|0|0|0|0") << "35,500 less its late charge of 100";
  EXPECT_EQ(opening(owes, 0), "35400|1234|12|35500|0");
  EXPECT_EQ(opening(paid, 1), "0|0|0|0|0");
  EXPECT_EQ(opening(late, 1), "9800|0|0|0|0") << "nothing but gas goes over whole";
  // 4 m3 at 2,451.5 won are 9,806, cut to 9,800 by rule 1: still nothing but gas. By rule 2 it is not.
  set(late, 12, "UsePay = 9806, Delay = 50");
  again();
  EXPECT_EQ(opening(late, 1), "9800|0|0|0|0");
  payState(2);
  again();
  EXPECT_EQ(opening(late, 1), "9750|0|0|0|0");
}

TEST_F(Recarry, ACustomerWithoutOpeningRowsStaysWithoutThem) {
  turnTheYear();
  year(2027).Execute("Delete * From Evaporation Where ClientCode = " + QString::number(owes));
  again();
  EXPECT_EQ(rowsIn(2027, "Select Count(Mon) From Evaporation Where ClientCode = " + QString::number(owes)),
            "0");
}

TEST_F(Recarry, MissingYearsAndANoEndIt) {
  const QString question = "다시 이월하시겠습니까?";
  pc.prompts.expect(question, false);
  recarry(session, screen().progress);
  pc.pc.clock.set(QDateTime(QDate(2027, 1, 8), QTime(9, 0)));
  pc.prompts.expect(question);
  pc.prompts.expect("2027년도 자료를 찾을 수 없습니다. 먼저 이월을 해 주세요.");
  recarry(session, screen().progress);
  pc.pc.clock.set(QDateTime(QDate(2026, 1, 8), QTime(9, 0)));
  pc.prompts.expect(question);
  pc.prompts.expect("전년도 자료를 찾을 수 없습니다.");
  recarry(session, screen().progress);
  EXPECT_TRUE(progressed.isEmpty());
}

TEST_F(Recarry, AFailingDiskTakesAllOfItBack) {
  turnTheYear();
  set(owes, 12, "Total = 30500");
  const jet::Database held = year(2027);
  jet::Workspace other({.mainFile = session.DbPath + "Basic.mdb",
                        .resolvePath = [&](const QString& path) { return pc.pc.paths.native(path); }});
  const jet::Database theirs = other.OpenDatabase(yearFile(session, "2027"));
  other.Together({theirs}, [&] {
    theirs.Execute("Update Evaporation Set Trust = 9 Where Mon = 3");
    pc.prompts.expect("다시 이월하시겠습니까?");
    EXPECT_THROW(recarry(session, screen().progress), jet::Error);
  });
  EXPECT_EQ(opening(owes, 1), "35500|0|0|0|0");
}

}  // namespace
