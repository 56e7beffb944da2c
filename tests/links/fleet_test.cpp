// The vehicles' repair log and the lists it picks from.
#include "links/fleet_log.h"
#include "links/short_list.h"
#include "tests/answers.h"
#include "tests/cells.h"
#include "tests/support.h"

using namespace Qt::StringLiterals;

namespace {

struct FleetTest : testing::Test, tests::TestPc {
  FleetTest() { openBooks(QDate(2026, 3, 16)); }
  int run(const QString& sql) { return session.dbBasic.Execute(sql); }
  void addRepair(const char* day, const char* car, const char* what, int money, const char* person) {
    run(u"Insert Into Car(RDate, RContent, RCarNo, RResName, RMoney) Values('%1', '%2', '%3', '%4', %5)"_s
            .arg(QString::fromUtf8(day), QString::fromUtf8(what), QString::fromUtf8(car),
                 QString::fromUtf8(person), QString::number(money)));
  }
  static QString line(const SpreadModel& grid, int row) { return tests::cellsOf(grid, row).join(u'|'); }
  /** The table's rows in the order they were stored. */
  QString table(
      const QString& of = "Select RDate, RCarNo, RContent, RMoney, RResName From Car Order By RCode") {
    return tests::linesOf(session.dbBasic, of).join(u'\n');
  }
};

TEST_F(FleetTest, ANewLineBringsTheDriverAndIsStoredWithItsOwnCode) {
  run("Insert Into CaRes(CarNo, ResName) Values('1234','김배달')");
  addRepair("2026-03-20", "9999", "타이어", 80000, "박기사");
  FleetLog log(session);
  ASSERT_TRUE(log.showAll());
  ASSERT_EQ(log.grid().MaxRows(), 2);
  EXPECT_EQ(line(log.grid(), 2), "2026-03-16|||||");
  EXPECT_FALSE(log.isBegun(2)) << "the day alone is no line";

  EXPECT_EQ(log.finishCell(2, CarCol::CarNo, " 1234 "), CarCell::Taken);
  EXPECT_EQ(log.grid().text(2, CarCol::Person), "김배달");
  EXPECT_TRUE(log.isBegun(2));
  prompts.expect("정비내역/부품을 입력하십시오");
  EXPECT_FALSE(log.store(2));
  EXPECT_EQ(log.missing(2), CarCol::Content);
  prompts.expect("날짜 입력이 잘못되었습니다");
  EXPECT_EQ(log.finishCell(2, CarCol::Day, "2026-02-30"), CarCell::Refused);
  EXPECT_EQ(log.finishCell(2, CarCol::Day, "3.2"), CarCell::Taken);
  EXPECT_EQ(log.finishCell(2, CarCol::Content, "엔진오일"), CarCell::Taken);
  EXPECT_EQ(log.finishCell(2, CarCol::Money, "55000"), CarCell::Taken);
  EXPECT_EQ(table(), "2026-03-20|9999|타이어|80000|박기사") << "nothing is written before the line is whole";
  ASSERT_TRUE(log.store(2));
  EXPECT_EQ(table(), "2026-03-20|9999|타이어|80000|박기사\n2026-03-02|1234|엔진오일|55000|김배달");
  EXPECT_EQ(line(log.grid(), 2), "2026-03-02|1234|엔진오일|55000|김배달|2");
  EXPECT_EQ(line(log.grid(), 3), "2026-03-16|||||");
  EXPECT_EQ(log.summary(), "건수  2건     금액  135,000원");
}

TEST_F(FleetTest, DaysAndVehicleNarrowTheLinesAndTheirSum) {
  addRepair("2026-02-28", "1234", "a", 1000, "");
  addRepair("2026-03-01", "1234", "b", 20000, "");
  addRepair("2026-03-05", "5678", "c", 300000, "");
  addRepair("2026-03-02", "1234", "d", 4000000, "");
  FleetLog log(session);
  const auto asked = [&](const CarAsk& ask) {
    EXPECT_TRUE(log.showAsked(ask));
    return tests::columnOf(log.grid(), CarCol::Content).join(QString()) + u' ' +
           log.summary().section(u' ', -1);
  };
  EXPECT_EQ(asked({"2026-03-01", {}, {}}), "bdc 4,320,000원") << "a first day alone: from that day on";
  EXPECT_EQ(asked({"2026-02-28", "2026-03-02", {}}), "abd 4,021,000원") << "both ends count";
  EXPECT_EQ(asked({"3.1", {}, " 1234 "}), "bd 4,020,000원");
  EXPECT_EQ(asked({{}, {}, {}}), "abdc 4,321,000원");
  EXPECT_EQ(asked({"2027-01-01", {}, {}}), " 0원");
  EXPECT_TRUE(log.asks());
  prompts.expect("날짜입력이 잘못되었습니다");
  EXPECT_FALSE(log.showAsked({"2026-13-01", {}, {}}));
}

TEST_F(FleetTest, AChangeIsAskedAboutAndMeetsWhatAnotherPcWrote) {
  addRepair("2026-03-01", "1234", "타이어", 80000, "김배달");
  FleetLog log(session);
  ASSERT_TRUE(log.showAll());
  const QString change = "선택된 자료의 변경사항을 저장하시겠습니까?";
  prompts.expect(change, false);
  EXPECT_EQ(log.finishCell(1, CarCol::Money, "90000"), CarCell::PutBack);
  EXPECT_EQ(table(), "2026-03-01|1234|타이어|80000|김배달");
  prompts.expect(change);
  EXPECT_EQ(log.finishCell(1, CarCol::Money, "90000"), CarCell::Taken);
  EXPECT_EQ(table(), "2026-03-01|1234|타이어|90000|김배달");

  run("Update Car Set RContent = '타이어 4개'");
  prompts.expect(change);
  EXPECT_EQ(log.finishCell(1, CarCol::Person, "박기사"), CarCell::Taken);
  EXPECT_EQ(table(), "2026-03-01|1234|타이어 4개|90000|박기사");
  EXPECT_EQ(line(log.grid(), 1), "2026-03-01|1234|타이어 4개|90000|박기사|1");

  log.finishCell(2, CarCol::CarNo, "777");
  log.finishCell(2, CarCol::Person, "최기사");
  run("Delete * From Car");
  prompts.expect(change);
  prompts.expect("다른 PC나 화면에서 이미 삭제된 자료입니다!");
  EXPECT_EQ(log.finishCell(1, CarCol::Money, "1"), CarCell::Reread);
  ASSERT_EQ(log.grid().MaxRows(), 1);
  EXPECT_EQ(line(log.grid(), 1), log.grid().text(1, CarCol::Day) + "|777|||최기사|")
      << "the line that was begun is still there";
}

TEST_F(FleetTest, ADeletionAsksAndSparesWhatMoved) {
  addRepair("2026-03-01", "1234", "타이어", 80000, "");
  addRepair("2026-03-02", "1234", "오일", 50000, "");
  FleetLog log(session);
  ASSERT_TRUE(log.showAll());
  const QString question = "선택된 자료를 삭제하시겠습니까?";
  EXPECT_FALSE(log.remove(3)) << "an empty line holds nothing";
  prompts.expect(question, false);
  EXPECT_FALSE(log.remove(1));
  prompts.expect(question);
  EXPECT_TRUE(log.remove(1));
  EXPECT_EQ(table(), "2026-03-02|1234|오일|50000|");
  run("Update Car Set RMoney = 60000");
  prompts.expect(question);
  prompts.expect("삭제하지 않았습니다");
  EXPECT_TRUE(log.remove(1));
  EXPECT_EQ(log.grid().text(1, CarCol::Money), "60000") << "read anew, to be looked at";
  log.finishCell(2, CarCol::Day, "2026-01-02");
  log.finishCell(2, CarCol::Content, "세차");
  prompts.expect(question);
  EXPECT_TRUE(log.remove(2));
  EXPECT_FALSE(log.isBegun(2));
  EXPECT_EQ(log.grid().text(2, CarCol::Day), pc.clock.dateText()) << "the next line begins on today again";
}

TEST_F(FleetTest, AnApostropheLosesNoLine) {
  FleetLog log(session);
  ASSERT_TRUE(log.showAll());
  log.finishCell(1, CarCol::CarNo, "1");
  log.finishCell(1, CarCol::Content, "'94 타이어");
  EXPECT_THROW(log.store(1), jet::Error);
  EXPECT_EQ(log.grid().text(1, CarCol::Content), "'94 타이어");
  EXPECT_EQ(table(), QString());
}

// --- the pick lists -----------------------------------------------------------------------------------------

struct ShortListTest : FleetTest {
  QString vehicles() { return table("Select CarNo, ResName From CaRes"); }
};

TEST_F(ShortListTest, IsRewrittenWholeAndMayBecomeEmpty) {
  run("Insert Into Response(Name) Values('김배달')");
  run("Insert Into CaRes(CarNo, ResName) Values('1234','김배달')");
  ShortList list(session, vehicleList());
  ASSERT_TRUE(list.load());
  EXPECT_EQ(list.grid().column(2).combo, QStringList{"김배달"});
  ASSERT_EQ(list.grid().MaxRows(), 2);
  EXPECT_FALSE(list.changed());
  prompts.expect("숫자 네자리만");
  EXPECT_FALSE(list.finishCell(2, 1, "12a"));
  prompts.expect("숫자 네자리만");
  EXPECT_FALSE(list.finishCell(2, 1, "12345"));
  EXPECT_TRUE(list.finishCell(2, 1, "0042"));
  EXPECT_TRUE(list.finishCell(2, 2, "김배달"));
  EXPECT_EQ(list.grid().MaxRows(), 3) << "an empty row for the next";
  EXPECT_TRUE(list.changed());
  list.save();
  EXPECT_EQ(vehicles(), "1234|김배달\n0042|김배달");
  EXPECT_FALSE(list.changed());

  prompts.expect("선택된 사항을 지우시겠습니까?", false);
  EXPECT_FALSE(list.remove(1));
  EXPECT_FALSE(list.remove(3)) << "the empty row";
  for (int rows = 2; rows > 0; --rows) {
    prompts.expect("선택된 사항을 지우시겠습니까?");
    EXPECT_TRUE(list.remove(1));
  }
  list.save();
  EXPECT_EQ(vehicles(), QString());
}

TEST_F(ShortListTest, WhatAnotherPcAddedStaysAndWhatItTookOutGoes) {
  for (const char* part : {"오일", "타이어", "벨트"})
    run(u"Insert Into CaRepair(CarRepair) Values('%1')"_s.arg(QString::fromUtf8(part)));
  ShortList list(session, repairList());
  ASSERT_TRUE(list.load());
  run("Delete * From CaRepair Where CarRepair = '타이어'");
  run("Insert Into CaRepair(CarRepair) Values('전구')");
  list.finishCell(1, 1, "엔진오일");
  list.finishCell(4, 1, "세차");
  prompts.expect("다른 PC에서 추가한 1줄");
  list.save();
  EXPECT_EQ(table("Select CarRepair From CaRepair"), "엔진오일\n벨트\n세차\n전구");
}

TEST_F(ShortListTest, ATextThatCannotBeStoredLeavesTheTableAndTheScreen) {
  run("Insert Into CaRepair(CarRepair) Values('오일')");
  ShortList list(session, repairList());
  ASSERT_TRUE(list.load());
  list.finishCell(2, 1, "'94 타이어");
  EXPECT_THROW(list.save(), jet::Error);
  EXPECT_EQ(table("Select CarRepair From CaRepair"), "오일");
  EXPECT_EQ(list.grid().text(2, 1), "'94 타이어");
}

TEST_F(ShortListTest, WhatWasSavedIsShownWithoutAskingTheFileAgain) {
  ShortList list(session, vehicleList());
  ASSERT_TRUE(list.load());
  list.finishCell(1, 1, "1234");
  run("Drop Table Response");
  list.save();
  EXPECT_EQ(vehicles(), "1234|");
  EXPECT_EQ(list.grid().text(1, 1), "1234");
  EXPECT_FALSE(list.changed()) << "a yes to the next question would write the rows of before";
}

}  // namespace
