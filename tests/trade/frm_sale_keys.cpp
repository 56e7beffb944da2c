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
struct FrmSaleKeys : tests::KeyScreen<tests::SaleDesk, frmSale> {
  int keys = 0;

  FrmSaleKeys() {
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
  void customer() {
    type("4567");
    enter(1);
  }
  QString offer(int col) { return grid()->model().offer(grid()->activeRow(), col); }
  /** Item, price and person. */
  QString offered() { return offer(LineCol::Item) + offer(LineCol::Unit) + offer(LineCol::Person); }
  QString line() {
    return rows(
        "Select Top 1 SaleName, SaleThing, SaleNum, SaleUnit, Income, Trust, Response From Sale Order By "
        "SaleID Desc");
  }
  void expectNextLine() {
    EXPECT_EQ(grid()->activeRow(), grid()->model().MaxRows());
    EXPECT_EQ(grid()->activeCol(), LineCol::Partner);
    EXPECT_EQ(grid()->model().text(grid()->activeRow(), LineCol::Partner), "");
  }
};

TEST_F(FrmSaleKeys, ARepeatedDeliveryInCashTakesEightKeys) {
  customer();
  EXPECT_EQ(offered(), "LPG / 2027000홍길동");
  tests::grab(*form, "frmSale-offer");
  enter(3);
  EXPECT_EQ(keys, 8);
  EXPECT_EQ(line(), "LPG|20|1|27000|27000|0|홍길동");
  EXPECT_EQ(balance(), "100000|5000");
  EXPECT_EQ(stock(), "980|100|10|41|49");
  expectNextLine();
}

TEST_F(FrmSaleKeys, OnCreditItTakesNine) {
  customer();
  enter(2);
  press(Qt::Key_F8);
  EXPECT_EQ(form->findChild<QLabel*>("LblGasTrust")->text(), "127,000");
  enter(1);
  EXPECT_EQ(keys, 9);
  EXPECT_EQ(line(), "LPG|20|1|27000|0|27000|홍길동");
  EXPECT_EQ(balance(), "127000|5000");
  expectNextLine();
  // On a line left, the key asks as every change does.
  tests::key(Qt::Key_Up);
  tests::key(Qt::Key_Up);
  pc.prompts.expect("선택된 자료를 변경하시겠습니까?", false);
  tests::key(Qt::Key_F8);
  EXPECT_EQ(balance(), "127000|5000");
}

TEST_F(FrmSaleKeys, ACallTakesThreeInCashAndFourOnCredit) {
  ASSERT_TRUE(form->TakeCallerNumber("0531234567"));
  enter(3);
  EXPECT_EQ(keys, 3);
  EXPECT_EQ(line(), "LPG|20|1|27000|27000|0|홍길동");
  expectNextLine();
  ASSERT_TRUE(form->TakeCallerNumber("0531234567"));
  enter(2);
  press(Qt::Key_F8);
  enter(1);
  EXPECT_EQ(keys, 7);
  EXPECT_EQ(line(), "LPG|20|1|27000|0|27000|홍길동");
}

TEST_F(FrmSaleKeys, AnOfferIsNotStoredUnlessTakenAndTypingReplacesIt) {
  customer();
  enter(1);
  EXPECT_EQ(line(), "|0|0|0|0|0|") << "begun, nothing taken";
  EXPECT_EQ(stock(), "1000|100|10|40|50");
  type("50");
  enter(1);
  EXPECT_EQ(line(), "LPG|50|1|28000|28000|0|") << "a size finds its item, at today's price";
  EXPECT_EQ(offer(LineCol::Item) + offer(LineCol::Unit), "");
  EXPECT_EQ(offer(LineCol::Person), "홍길동");
  const int row = grid()->activeRow();
  press(Qt::Key_Down);
  EXPECT_EQ(grid()->model().offer(row, LineCol::Person), "") << "a line left offers nothing";
  EXPECT_EQ(line(), "LPG|50|1|28000|28000|0|");
}

TEST_F(FrmSaleKeys, OfferedIsOnlyWhatStillStandsInTheRegisters) {
  pc.session.dbBasic.Execute(u"Delete * From Response"_s);
  run("Delete * From LPG Where Size = '20'");
  customer();
  EXPECT_EQ(offered(), "");
}

TEST_F(FrmSaleKeys, EveryKindIsOfferedItsOwnLastLine) {
  sold("'2026-02-10', 1, 5, False, 'LPG', '50', 1, 0");
  customer();
  press(Qt::Key_Down);
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}) press(key);
  EXPECT_EQ(offer(LineCol::Item) + offer(LineCol::Unit), "LPG / 500") << "a loan costs nothing";
  EXPECT_EQ(offer(LineCol::Person), "홍길동") << "of any line";
  enter(2);
  EXPECT_EQ(line(), "LPG|50|1|0|0|0|홍길동");
  customer();
  press(Qt::Key_Down);
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return}) press(key);
  EXPECT_EQ(offer(LineCol::Item), "") << "a collection has no item";
  EXPECT_EQ(grid()->activeCol(), LineCol::Paid);
}

TEST_F(FrmSaleKeys, InJanuaryTheYearBeforeIsAskedToo) {
  makeYearFile(pc.session, "2025");
  sold("'2025-12-30', 1, 1, False, 'LPG', '50', 1, 60000, 0, 60000, 0, '홍길동'",
       openYear(pc.session, "2025"));
  run("Delete * From Sale");
  customer();
  EXPECT_EQ(offered(), "LPG / 5060000홍길동");
  enter(3);
  EXPECT_EQ(line(), "LPG|50|1|60000|60000|0|홍길동");
  EXPECT_EQ(keys, 8);
}

TEST_F(FrmSaleKeys, TheLastFiveLinesAndTheBalanceStandBeside) {
  for (int day = 1; day <= 4; ++day)
    sold(u"'2026-03-0%1', 1, %2, False, '%3', '20', %1, 27000, 0, %4, %5"_s.arg(
        QString::number(day), day == 2 ? "4" : "1", day == 2 ? "가스수금" : "LPG",
        QString::number(day * 10000), QString::number(day * 1000)));
  sold("'2026-03-05', 2, 1, False");
  sold("'2026-02-18', 1, 1, False");
  customer();
  QStringList shown;
  for (const QLabel* const cell : form->findChild<QWidget*>("PnlLast")->findChildren<QLabel*>())
    if (cell->property("role") != "faint") shown << cell->text();
  ASSERT_EQ(shown.size(), 5 * 6);
  QMap<QString, QStringList> lines;  // a column's cells stand together
  for (int row = 0; row < 5; ++row)
    for (int col = 1; col < 6; ++col) lines[shown[row]] << shown[col * 5 + row];
  EXPECT_EQ(lines.keys(), QStringList({"02-19", "03-01", "03-02", "03-03", "03-04"}));
  EXPECT_EQ(lines["03-04"], QStringList({"가스", "LPG / 20", "4", "44,000", "4,000"}));
  EXPECT_EQ(lines["03-02"], QStringList({"수금", "가스수금", "", "20,000", "2,000"}))
      << "what was paid and left";
  EXPECT_EQ(form->findChild<QLabel*>("LblGasTrust")->text(), "100,000");
  tests::grab(*form, "frmSale-last");
}

}  // namespace
