// The vehicles' repair log and the lists it picks from.
#include <gtest/gtest.h>

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
      const QString& of = u"Select RDate, RCarNo, RContent, RMoney, RResName From Car Order By RCode"_s) {
    return tests::linesOf(session.dbBasic, of).join(u'\n');
  }
};

TEST_F(FleetTest, ANewLineBringsTheDriverAndIsStoredWithItsOwnCode) {
  run(u"Insert Into CaRes(CarNo, ResName) Values('1234','김배달')"_s);
  addRepair("2026-03-20", "9999", "타이어", 80000, "박기사");
  FleetLog log(session);
  ASSERT_TRUE(log.showAll());
  ASSERT_EQ(log.grid().MaxRows(), 2);
  EXPECT_EQ(line(log.grid(), 2), u"2026-03-16|||||"_s);
  EXPECT_FALSE(log.isBegun(2)) << "the day alone is no line";

  EXPECT_EQ(log.finishCell(2, CarCol::CarNo, u" 1234 "_s), CarCell::Taken);
  EXPECT_EQ(log.grid().text(2, CarCol::Person), u"김배달"_s);
  EXPECT_TRUE(log.isBegun(2));
  prompts.expect(u"정비내역/부품을 입력하십시오"_s);
  EXPECT_FALSE(log.store(2));
  EXPECT_EQ(log.missing(2), CarCol::Content);
  prompts.expect(u"날짜 입력이 잘못되었습니다"_s);
  EXPECT_EQ(log.finishCell(2, CarCol::Day, u"2026-02-30"_s), CarCell::Refused);
  EXPECT_EQ(log.finishCell(2, CarCol::Day, u"3.2"_s), CarCell::Taken);
  EXPECT_EQ(log.finishCell(2, CarCol::Content, u"엔진오일"_s), CarCell::Taken);
  EXPECT_EQ(log.finishCell(2, CarCol::Money, u"55000"_s), CarCell::Taken);
  EXPECT_EQ(table(), u"2026-03-20|9999|타이어|80000|박기사"_s)
      << "nothing is written before the line is whole";
  ASSERT_TRUE(log.store(2));
  EXPECT_EQ(table(), u"2026-03-20|9999|타이어|80000|박기사\n2026-03-02|1234|엔진오일|55000|김배달"_s);
  EXPECT_EQ(line(log.grid(), 2), u"2026-03-02|1234|엔진오일|55000|김배달|2"_s);
  EXPECT_EQ(line(log.grid(), 3), u"2026-03-16|||||"_s);
  EXPECT_EQ(log.summary(), u"건수  2건     금액  135,000원"_s);
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
  EXPECT_EQ(asked({u"2026-03-01"_s, {}, {}}), u"bdc 4,320,000원"_s) << "a first day alone: from that day on";
  EXPECT_EQ(asked({u"2026-02-28"_s, u"2026-03-02"_s, {}}), u"abd 4,021,000원"_s) << "both ends count";
  EXPECT_EQ(asked({u"3.1"_s, {}, u" 1234 "_s}), u"bd 4,020,000원"_s);
  EXPECT_EQ(asked({{}, {}, {}}), u"abdc 4,321,000원"_s);
  EXPECT_EQ(asked({u"2027-01-01"_s, {}, {}}), u" 0원"_s);
  EXPECT_TRUE(log.asks());
  prompts.expect(u"날짜입력이 잘못되었습니다"_s);
  EXPECT_FALSE(log.showAsked({u"2026-13-01"_s, {}, {}}));
}

TEST_F(FleetTest, AChangeIsAskedAboutAndMeetsWhatAnotherPcWrote) {
  addRepair("2026-03-01", "1234", "타이어", 80000, "김배달");
  FleetLog log(session);
  ASSERT_TRUE(log.showAll());
  const QString change = u"선택된 자료의 변경사항을 저장하시겠습니까?"_s;
  prompts.expect(change, false);
  EXPECT_EQ(log.finishCell(1, CarCol::Money, u"90000"_s), CarCell::PutBack);
  EXPECT_EQ(table(), u"2026-03-01|1234|타이어|80000|김배달"_s);
  prompts.expect(change);
  EXPECT_EQ(log.finishCell(1, CarCol::Money, u"90000"_s), CarCell::Taken);
  EXPECT_EQ(table(), u"2026-03-01|1234|타이어|90000|김배달"_s);

  run(u"Update Car Set RContent = '타이어 4개'"_s);
  prompts.expect(change);
  EXPECT_EQ(log.finishCell(1, CarCol::Person, u"박기사"_s), CarCell::Taken);
  EXPECT_EQ(table(), u"2026-03-01|1234|타이어 4개|90000|박기사"_s);
  EXPECT_EQ(line(log.grid(), 1), u"2026-03-01|1234|타이어 4개|90000|박기사|1"_s);

  log.finishCell(2, CarCol::CarNo, u"777"_s);
  log.finishCell(2, CarCol::Person, u"최기사"_s);
  run(u"Delete * From Car"_s);
  prompts.expect(change);
  prompts.expect(u"다른 PC나 화면에서 이미 삭제된 자료입니다!"_s);
  EXPECT_EQ(log.finishCell(1, CarCol::Money, u"1"_s), CarCell::Reread);
  ASSERT_EQ(log.grid().MaxRows(), 1);
  EXPECT_EQ(line(log.grid(), 1), log.grid().text(1, CarCol::Day) + u"|777|||최기사|"_s)
      << "the line that was begun is still there";
}

TEST_F(FleetTest, ADeletionAsksAndSparesWhatMoved) {
  addRepair("2026-03-01", "1234", "타이어", 80000, "");
  addRepair("2026-03-02", "1234", "오일", 50000, "");
  FleetLog log(session);
  ASSERT_TRUE(log.showAll());
  const QString question = u"선택된 자료를 삭제하시겠습니까?"_s;
  EXPECT_FALSE(log.remove(3)) << "an empty line holds nothing";
  prompts.expect(question, false);
  EXPECT_FALSE(log.remove(1));
  prompts.expect(question);
  EXPECT_TRUE(log.remove(1));
  EXPECT_EQ(table(), u"2026-03-02|1234|오일|50000|"_s);
  run(u"Update Car Set RMoney = 60000"_s);
  prompts.expect(question);
  prompts.expect(u"삭제하지 않았습니다"_s);
  EXPECT_TRUE(log.remove(1));
  EXPECT_EQ(log.grid().text(1, CarCol::Money), u"60000"_s) << "read anew, to be looked at";
  log.finishCell(2, CarCol::Day, u"2026-01-02"_s);
  log.finishCell(2, CarCol::Content, u"세차"_s);
  prompts.expect(question);
  EXPECT_TRUE(log.remove(2));
  EXPECT_FALSE(log.isBegun(2));
  EXPECT_EQ(log.grid().text(2, CarCol::Day), pc.clock.dateText()) << "the next line begins on today again";
}

TEST_F(FleetTest, AnApostropheLosesNoLine) {
  FleetLog log(session);
  ASSERT_TRUE(log.showAll());
  log.finishCell(1, CarCol::CarNo, u"1"_s);
  log.finishCell(1, CarCol::Content, u"'94 타이어"_s);
  EXPECT_THROW(log.store(1), jet::Error);
  EXPECT_EQ(log.grid().text(1, CarCol::Content), u"'94 타이어"_s);
  EXPECT_EQ(table(), QString());
}

// --- the pick lists -----------------------------------------------------------------------------------------

struct ShortListTest : FleetTest {
  QString vehicles() { return table(u"Select CarNo, ResName From CaRes"_s); }
};

TEST_F(ShortListTest, IsRewrittenWholeAndMayBecomeEmpty) {
  run(u"Insert Into Response(Name) Values('김배달')"_s);
  run(u"Insert Into CaRes(CarNo, ResName) Values('1234','김배달')"_s);
  ShortList list(session, vehicleList());
  ASSERT_TRUE(list.load());
  EXPECT_EQ(list.grid().column(2).combo, QStringList{u"김배달"_s});
  ASSERT_EQ(list.grid().MaxRows(), 2);
  EXPECT_FALSE(list.changed());
  prompts.expect(u"숫자 네자리만"_s);
  EXPECT_FALSE(list.finishCell(2, 1, u"12a"_s));
  prompts.expect(u"숫자 네자리만"_s);
  EXPECT_FALSE(list.finishCell(2, 1, u"12345"_s));
  EXPECT_TRUE(list.finishCell(2, 1, u"0042"_s));
  EXPECT_TRUE(list.finishCell(2, 2, u"김배달"_s));
  EXPECT_EQ(list.grid().MaxRows(), 3) << "an empty row for the next";
  EXPECT_TRUE(list.changed());
  list.save();
  EXPECT_EQ(vehicles(), u"1234|김배달\n0042|김배달"_s);
  EXPECT_FALSE(list.changed());

  prompts.expect(u"선택된 사항을 지우시겠습니까?"_s, false);
  EXPECT_FALSE(list.remove(1));
  EXPECT_FALSE(list.remove(3)) << "the empty row";
  for (int rows = 2; rows > 0; --rows) {
    prompts.expect(u"선택된 사항을 지우시겠습니까?"_s);
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
  run(u"Delete * From CaRepair Where CarRepair = '타이어'"_s);
  run(u"Insert Into CaRepair(CarRepair) Values('전구')"_s);
  list.finishCell(1, 1, u"엔진오일"_s);
  list.finishCell(4, 1, u"세차"_s);
  prompts.expect(u"다른 PC에서 추가한 1줄"_s);
  list.save();
  EXPECT_EQ(table(u"Select CarRepair From CaRepair"_s), u"엔진오일\n벨트\n세차\n전구"_s);
}

TEST_F(ShortListTest, ATextThatCannotBeStoredLeavesTheTableAndTheScreen) {
  run(u"Insert Into CaRepair(CarRepair) Values('오일')"_s);
  ShortList list(session, repairList());
  ASSERT_TRUE(list.load());
  list.finishCell(2, 1, u"'94 타이어"_s);
  EXPECT_THROW(list.save(), jet::Error);
  EXPECT_EQ(table(u"Select CarRepair From CaRepair"_s), u"오일"_s);
  EXPECT_EQ(list.grid().text(2, 1), u"'94 타이어"_s);
}

}  // namespace
