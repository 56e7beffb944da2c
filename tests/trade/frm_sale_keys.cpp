// How many keys a repeated delivery takes, with the real search, and what an offer is until it is taken.
#include <QLabel>
#include <QMap>
#include <QTabWidget>
#include <QTest>

#include "store/year_file.h"
#include "tests/trade/key_screen.h"
#include "trade/frmSale.h"

using namespace Qt::StringLiterals;

namespace {

/** A customer who got LPG / 20 from 홍길동 at 27,000 won two weeks ago, and a size of 50 beside it. */
struct RepeatDesk : tests::KeyScreen<tests::SaleDesk, frmSale> {
  int keys = 0;

  RepeatDesk() {
    run("Update LPG Set LPGSelling = 28000");
    sold("'2026-02-19', 1, 1, False, 'LPG', '20', 1, 27000, 0, 27000, 0, '홍길동'");
    open();
    grid()->setFocus();
  }
  Spread* grid() { return static_cast<Spread*>(form->findChild<QTabWidget*>("TabSale")->currentWidget()); }
  void press(Qt::Key key) {
    tests::key(key);
    ++keys;
  }
  void type(const QString& text) {
    tests::type(text);
    keys += int(text.size());
  }
  void enter(int times) {
    while (times-- > 0) press(Qt::Key_Return);
  }
  QString offer(int col) { return grid()->model().offer(grid()->activeRow(), col); }
  QString line() {
    return rows(
        "Select Top 1 SaleName, SaleThing, SaleNum, SaleUnit, Income, Trust, Response From Sale "
        "Order By SaleID Desc");
  }
  void expectNextLine() {
    EXPECT_EQ(grid()->activeRow(), grid()->model().MaxRows());
    EXPECT_EQ(grid()->activeCol(), LineCol::Partner);
    EXPECT_EQ(grid()->model().text(grid()->activeRow(), LineCol::Partner), "");
  }
};

TEST(FrmSaleKeys, ARepeatedDeliveryInCashTakesEightKeys) {
  RepeatDesk desk;
  desk.type("4567");
  desk.enter(1);
  EXPECT_EQ(desk.offer(LineCol::Item) + desk.offer(LineCol::Unit) + desk.offer(LineCol::Person),
            "LPG / 2027000홍길동");
  tests::grab(*desk.form, "frmSale-offer");
  desk.enter(3);
  EXPECT_EQ(desk.keys, 8);
  EXPECT_EQ(desk.line(), "LPG|20|1|27000|27000|0|홍길동");
  EXPECT_EQ(desk.balance(), "100000|5000");
  EXPECT_EQ(desk.stock(), "980|100|10|41|49");
  desk.expectNextLine();
}

TEST(FrmSaleKeys, OnCreditItTakesNine) {
  RepeatDesk desk;
  desk.type("4567");
  desk.enter(3);
  desk.press(Qt::Key_F8);
  EXPECT_EQ(desk.form->findChild<QLabel*>("LblGasTrust")->text(), "127,000");
  desk.enter(1);
  EXPECT_EQ(desk.keys, 9);
  EXPECT_EQ(desk.line(), "LPG|20|1|27000|0|27000|홍길동");
  EXPECT_EQ(desk.balance(), "127000|5000");
  desk.expectNextLine();
  // On a line left, the key asks as every change does.
  tests::key(Qt::Key_Up);
  tests::key(Qt::Key_Up);
  desk.pc.prompts.expect("선택된 자료를 변경하시겠습니까?", false);
  tests::key(Qt::Key_F8);
  EXPECT_EQ(desk.balance(), "127000|5000");
}

TEST(FrmSaleKeys, ACallTakesThreeInCashAndFourOnCredit) {
  RepeatDesk desk;
  ASSERT_TRUE(desk.form->TakeCallerNumber("0531234567"));
  desk.enter(3);
  EXPECT_EQ(desk.keys, 3);
  EXPECT_EQ(desk.line(), "LPG|20|1|27000|27000|0|홍길동");
  desk.expectNextLine();
  ASSERT_TRUE(desk.form->TakeCallerNumber("0531234567"));
  desk.enter(2);
  desk.press(Qt::Key_F8);
  desk.enter(1);
  EXPECT_EQ(desk.keys, 7);
  EXPECT_EQ(desk.line(), "LPG|20|1|27000|0|27000|홍길동");
}

TEST(FrmSaleKeys, AnOfferIsNotStoredUnlessTakenAndTypingReplacesIt) {
  RepeatDesk desk;
  desk.type("4567");
  desk.enter(2);
  EXPECT_EQ(desk.line(), "|0|0|0|0|0|") << "begun, nothing taken";
  EXPECT_EQ(desk.stock(), "1000|100|10|40|50");
  desk.type("50");
  desk.enter(1);
  EXPECT_EQ(desk.line(), "LPG|50|1|28000|28000|0|") << "a size finds its item, at today's price";
  EXPECT_EQ(desk.offer(LineCol::Item) + desk.offer(LineCol::Unit), "");
  EXPECT_EQ(desk.offer(LineCol::Person), "홍길동");
  const int row = desk.grid()->activeRow();
  desk.press(Qt::Key_Down);
  EXPECT_EQ(desk.grid()->model().offer(row, LineCol::Person), "") << "a line left offers nothing";
  EXPECT_EQ(desk.line(), "LPG|50|1|28000|28000|0|");
}

TEST(FrmSaleKeys, OfferedIsOnlyWhatStillStandsInTheRegisters) {
  RepeatDesk desk;
  desk.pc.session.dbBasic.Execute(u"Delete * From Response"_s);
  desk.run("Delete * From LPG Where Size = '20'");
  desk.type("4567");
  desk.enter(1);
  EXPECT_EQ(desk.offer(LineCol::Item) + desk.offer(LineCol::Unit) + desk.offer(LineCol::Person), "");
}

TEST(FrmSaleKeys, EveryKindIsOfferedItsOwnLastLine) {
  RepeatDesk desk;
  desk.sold("'2026-02-10', 1, 5, False, 'LPG', '50', 1, 0");
  desk.type("4567");
  desk.enter(1);
  desk.press(Qt::Key_Down);
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}) desk.press(key);
  EXPECT_EQ(desk.offer(LineCol::Item) + desk.offer(LineCol::Unit), "LPG / 500") << "a loan costs nothing";
  EXPECT_EQ(desk.offer(LineCol::Person), "홍길동") << "of any line";
  desk.enter(2);
  EXPECT_EQ(desk.line(), "LPG|50|1|0|0|0|홍길동");
  desk.type("4567");
  desk.enter(1);
  desk.press(Qt::Key_Down);
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return}) desk.press(key);
  EXPECT_EQ(desk.offer(LineCol::Item), "") << "a collection has no item";
  EXPECT_EQ(desk.grid()->activeCol(), LineCol::Paid);
}

TEST(FrmSaleKeys, InJanuaryTheYearBeforeIsAskedToo) {
  RepeatDesk desk;
  makeYearFile(desk.pc.session, "2025");
  const QString before = "[" + yearFile(desk.pc.session, "2025") + "].Sale";
  desk.run(
      "Insert Into " + before +
      "(SaleDate, ClientCode, SaleGubun, Gubun, SaleName, SaleThing, SaleNum, SaleUnit, Income, Response) "
      "Values('2025-12-30', 1, 1, False, 'LPG', '50', 1, 60000, 60000, '홍길동')");
  desk.run("Delete * From Sale");
  desk.type("4567");
  desk.enter(1);
  EXPECT_EQ(desk.offer(LineCol::Item) + desk.offer(LineCol::Unit) + desk.offer(LineCol::Person),
            "LPG / 5060000홍길동");
  desk.enter(3);
  EXPECT_EQ(desk.line(), "LPG|50|1|60000|60000|0|홍길동");
  EXPECT_EQ(desk.keys, 8);
}

TEST(FrmSaleKeys, TheLastFiveLinesAndTheBalanceStandBeside) {
  RepeatDesk desk;
  for (int day = 1; day <= 4; ++day)
    desk.sold(u"'2026-03-0%1', 1, %2, False, '%3', '20', %1, 27000, 0, %4, %5"_s.arg(
        QString::number(day), day == 2 ? "4" : "1", day == 2 ? "가스수금" : "LPG",
        QString::number(day * 10000), QString::number(day * 1000)));
  desk.sold("'2026-03-05', 2, 1, False");
  desk.sold("'2026-02-18', 1, 1, False");
  desk.type("4567");
  desk.enter(1);
  QStringList shown;
  for (const QLabel* const cell : desk.form->findChild<QWidget*>("PnlLast")->findChildren<QLabel*>())
    if (cell->property("role") != "faint") shown << cell->text();
  ASSERT_EQ(shown.size(), 5 * 6);
  QMap<QString, QStringList> lines;  // a column's cells stand together
  for (int row = 0; row < 5; ++row)
    for (int col = 1; col < 6; ++col) lines[shown[row]] << shown[col * 5 + row];
  EXPECT_EQ(lines.keys(), QStringList({"02-19", "03-01", "03-02", "03-03", "03-04"}));
  EXPECT_EQ(lines["03-04"], QStringList({"가스", "LPG / 20", "4", "44,000", "4,000"}));
  EXPECT_EQ(lines["03-02"], QStringList({"수금", "가스수금", "", "20,000", "2,000"}))
      << "what was paid and left";
  EXPECT_EQ(desk.form->findChild<QLabel*>("LblGasTrust")->text(), "100,000");
  tests::grab(*desk.form, "frmSale-last");
}

}  // namespace
