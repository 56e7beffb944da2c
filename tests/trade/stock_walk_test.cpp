// The walk back, worked by hand: a period from 10 to 20 February with lines before, in and after it, of every kind.
#include "trade/stock_walk.h"

#include <random>

#include "store/year_file.h"
#include "tests/trade/buy_desk.h"

using namespace Qt::StringLiterals;

namespace {

struct Walk : tests::BuyDesk {
  void sale(const QString& day, int kind, int pieces, const QString& name = "LPG",
            const QString& size = "20") {
    sold(u"'%1', 1, %2, False, '%3', '%4', %5"_s.arg(day).arg(kind).arg(name, size).arg(pieces));
  }
  void buy(const QString& day, int kind, int pieces, const QString& name = "LPG",
           const QString& size = "20") {
    run("Insert Into Buy(BuyDate, BuyCompany, BuyName, BuyThing, PurchaseNum, PurchaseGubun) Values('" + day +
        "', '한강', '" + name + "', '" + size + "', " + QString::number(pieces) + ", " +
        QString::number(kind) + ")");
  }
  /** opening bought sold closing | cylinders: opening bought sold lent returned closing */
  QString walked(StockWalkOf what, const QString& size, const QString& start = "2026-02-10",
                 const QString& end = "2026-02-20") {
    const auto rows = walkStock(pc.session, what, start, end);
    if (!rows) return "told";
    for (const StockInOut& row : *rows) {
      if (row.size != size) continue;
      QStringList texts;
      for (const qint64 figure : {row.opening, row.bought, row.sold, row.closing, row.canOpening,
                                  row.canBought, row.canSold, row.canLent, row.canReturned, row.canClosing})
        texts << QString::number(figure);
      return texts.join(' ');
    }
    return "missing";
  }
};

TEST(StockWalk, EveryKindBeforeInAndAfterThePeriod) {
  Walk walk;  // today 50 full and 40 empty of each size
  for (int kind = 1; kind <= 8; ++kind) {
    walk.sale("2026-02-09", kind, 100);
    walk.buy("2026-02-09", kind, 100);
  }
  // On the first and the last day of the period.
  walk.sale("2026-02-10", 1, 5);
  walk.sale("2026-02-20", 3, 2);
  walk.sale("2026-02-12", 2, 1);
  walk.sale("2026-02-13", 5, 4);
  walk.sale("2026-02-14", 6, 3);
  walk.buy("2026-02-10", 1, 8);
  walk.buy("2026-02-20", 3, 6);
  walk.buy("2026-02-15", 2, 7);
  walk.buy("2026-02-16", 5, 9);
  walk.buy("2026-02-17", 6, 2);
  // After it, up to today.
  walk.sale("2026-02-21", 1, 10);
  walk.sale("2026-03-01", 3, 20);
  walk.sale("2026-03-01", 2, 30);
  walk.sale("2026-03-01", 5, 40);
  walk.sale("2026-03-01", 6, 50);
  walk.buy("2026-02-21", 1, 11);
  walk.buy("2026-03-01", 3, 22);
  walk.buy("2026-03-01", 2, 33);
  walk.buy("2026-03-01", 5, 44);
  walk.buy("2026-03-01", 6, 55);
  // Collections, payments and fittings move no cylinder.
  for (const int kind : {4, 7, 8}) {
    walk.sale("2026-02-15", kind, 1000);
    walk.buy("2026-02-15", kind, 1000);
  }

  // Full ones: sold 5+2 and bought 8+6 within, sold 10+20 and bought 11+22 after it:
  // opening 50 + 7+30 - 14-33 = 40, closing 40 + 14 - 7 = 47.
  // Cylinders: bought 6+7=13, sold 2+1=3, away 4+9=13, back 3+2=5 within; after it bought 22+33=55, sold 20+30=50, away
  // 40+44=84, back 50+55=105: opening 90 + 3+50 - 13-55 + 13+84 - 5-105 = 62, closing 62 + 13 - 3 + 5 - 13 = 64.
  EXPECT_EQ(walk.walked(StockWalkOf::Gas, "20"), "40 14 7 47 62 13 3 13 5 64");
  EXPECT_EQ(walk.rows("Select LPGPreStock, LPGBuy, LPGSale, LPGStock, CANPreStock, CANBuy, CANSale, CANLent, "
                      "CANReturn, CANStock From TmpLPGCANStock Where Size = '20'"),
            "40|14|7|47|62|13|3|13|5|64");
  EXPECT_EQ(walk.walked(StockWalkOf::Gas, "50"), "50 0 0 50 90 0 0 0 0 90") << "an item without lines";
  EXPECT_EQ(walk.rows("Select Gubun, Count(*) From TmpLPGCAN Group By Gubun"), "-1|10;0|10")
      << "the lines from the first day on, sales and purchases told apart";
  // To the end of all lines the walk comes back to what stands in the catalogue.
  EXPECT_EQ(walk.walked(StockWalkOf::Gas, "20", "2026-01-01", "2026-12-31").section(' ', 3, 3), "50");
  EXPECT_EQ(walk.walked(StockWalkOf::Gas, "20", "2026-01-01", "2026-12-31").section(' ', 9, 9), "90");
}

TEST(StockWalk, Materials) {
  Walk walk;  // 30 valves today
  walk.sale("2026-02-01", 7, 100, "밸브", "15A");
  walk.sale("2026-02-10", 7, 4, "밸브", "15A");
  walk.buy("2026-02-20", 4, 10, "밸브", "15A");
  walk.sale("2026-02-21", 7, 3, "밸브", "15A");
  walk.buy("2026-02-22", 4, 5, "밸브", "15A");
  walk.sale("2026-02-12", 1, 50, "밸브", "15A");
  walk.buy("2026-02-12", 7, 50, "밸브", "15A");
  // 30 + 7 - 15 = 22 at first, 22 + 10 - 4 = 28 at last.
  EXPECT_EQ(walk.walked(StockWalkOf::Materials, "15A"), "22 10 4 28 0 0 0 0 0 0");
  EXPECT_EQ(walk.rows("Select Name, LPGPreStock, LPGStock, CANBuy From TmpLPGCANStock"), "밸브|22|28|0");
}

TEST(StockWalk, NamesMeetAsTheBooksCompareThem) {
  Walk walk;
  walk.run("Insert Into LPG(LPGName, Size, CANFull, CANEmpty) Values('Butane', '10', 7, 1)");
  walk.sale("2026-02-11", 1, 2, "BUTANE ", "10");
  walk.sale("2026-02-11", 1, 5, "없는 품목", "10");
  EXPECT_EQ(walk.walked(StockWalkOf::Gas, "10").section(' ', 0, 3), "9 0 2 7");
}

TEST(StockWalk, APeriodThatBeganLastYearTakesThatYearsFileAlong) {
  Walk walk;
  EXPECT_EQ((walk.pc.prompts.expect("2025년의 자료가 없습니다!"),
             walk.walked(StockWalkOf::Gas, "20", "2025-12-01", "2026-01-31")),
            "told");
  makeYearFile(walk.pc.session, "2025");
  Walk::sold("'2025-12-30', 1, 1, False, 'LPG', '20', 6", openYear(walk.pc.session, "2025"));
  walk.sale("2026-01-02", 1, 4);
  EXPECT_EQ(walk.walked(StockWalkOf::Gas, "20", "2025-12-01", "2026-01-31").section(' ', 0, 3), "60 0 10 50");
  EXPECT_EQ(walk.walked(StockWalkOf::Gas, "20", "2026-01-01", "2026-01-31").section(' ', 0, 3), "54 0 4 50");
}

TEST(StockWalk, TheStockOfTodayIsWalkedBackOverTheYearsSinceTheOpenOne) {
  Walk walk;
  walk.pc.pc.clock.set(QDateTime(QDate(2027, 1, 10), QTime(9, 0)));
  makeYearFile(walk.pc.session, "2027");
  Walk::sold("'2027-01-04', 1, 1, False, 'LPG', '20', 6", openYear(walk.pc.session, "2027"));
  walk.sale("2026-02-12", 1, 4);
  EXPECT_EQ(walk.walked(StockWalkOf::Gas, "20").section(' ', 0, 3), "60 0 4 56");
}

TEST(StockWalk, AFailureIsToldAndLeavesNoHalfFigures) {
  Walk walk;
  walk.sale("2026-02-11", 1, 2);
  walk.walked(StockWalkOf::Gas, "20");
  walk.pc.session.dbBasic.Execute("Drop Table LPG");
  walk.pc.prompts.expect("계산오류");
  EXPECT_EQ(walk.walked(StockWalkOf::Gas, "20"), "told");
  EXPECT_EQ(walk.rows("Select * From TmpLPGCANStock") + walk.rows("Select * From TmpLPGCAN"), "");
}

/** The same figures by a statement an item, its lines grouped by day and kind. */
QString walkedItemByItem(Walk& walk, StockWalkOf what, const QString& start, const QString& end) {
  const bool gas = what == StockWalkOf::Gas;
  walk.run("Delete * From TmpLPGCAN");
  walk.run("Delete * From TmpLPGCANStock");
  walk.run(
      "Insert Into TmpLPGCAN(SaleDate, ClientCode, Response, SaleName, SaleThing, SaleUnit, SaleNum, "
      "SaleGubun, Gubun, Income, Trust, DC) Select SaleDate, ClientCode, Response, SaleName, SaleThing, "
      "SaleUnit, SaleNum, SaleGubun, True, Income, Trust, DC From Sale Where Sale.SaleDate >= '" +
      start + (gas ? "' And Not SaleGubun In (4, 7, 8)" : "' And SaleGubun = 7"));
  walk.run(
      "Insert Into TmpLPGCAN(SaleDate, Response, SaleName, SaleThing, SaleUnit, SaleNum, SaleGubun, Gubun, "
      "Income, Trust, DC) Select BuyDate, Response, BuyName, BuyThing, PurchaseUnit, PurchaseNum, "
      "PurchaseGubun, False, Pay, Trust, DC From Buy Where Buy.BuyDate >= '" +
      start + (gas ? "' And Not PurchaseGubun In (4, 7, 8)" : "' And PurchaseGubun = 4"));
  walk.run(gas ? "Insert Into TmpLPGCANStock(Name, Size, LPGStock, CANStock) SELECT DISTINCT LPG.LPGName, "
                 "LPG.Size, LPG.CANFull, (LPG.CANFull + LPG.CANEmpty) AS CANTotal FROM TmpLPGCAN RIGHT JOIN "
                 "LPG ON (TmpLPGCAN.SaleThing = LPG.Size) AND (TmpLPGCAN.SaleName = LPG.LPGName)"
               : "Insert Into TmpLPGCANStock(Name, Size, LPGStock, CANBuy) SELECT DISTINCT Util.Name, "
                 "Util.Size, Util.UtilStock, 0 FROM TmpLPGCAN RIGHT JOIN Util ON (TmpLPGCAN.SaleThing = "
                 "Util.Size) AND (TmpLPGCAN.SaleName = Util.Name)");
  const jet::Database& year = walk.pc.session.dbYear;
  for (auto item = year.OpenRecordset("Select Name, Size From TmpLPGCANStock"); !item.atEnd();
       item.MoveNext()) {
    const QString name = item[0].toText(), size = item[1].toText();
    // Bought, sold, cylinders bought, sold, lent, returned: within the period, and since its first day.
    qint64 within[6] = {}, since[6] = {};
    auto group = year.OpenRecordset(
        "SELECT SaleDate, Sum(SaleNum) AS Pieces, SaleGubun, Gubun From TmpLPGCAN Where SaleName = '" + name +
        "' And SaleThing = '" + size + "' And SaleDate >= '" + start +
        "' GROUP BY SaleDate, SaleName, SaleThing, SaleGubun, Gubun ORDER BY SaleDate");
    for (; !group.atEnd(); group.MoveNext()) {
      static const std::map<std::pair<bool, int>, std::vector<int>> counters{
          {{true, 1}, {1}},  {{true, 3}, {1, 3}}, {{true, 2}, {3}},  {{true, 5}, {4}},
          {{true, 6}, {5}},  {{true, 7}, {1}},    {{false, 1}, {0}}, {{false, 3}, {0, 2}},
          {{false, 2}, {2}}, {{false, 5}, {4}},   {{false, 6}, {5}}, {{false, 4}, {0}}};
      for (const int at : counters.at({group["Gubun"].toBool(), int(group["SaleGubun"].toLong())})) {
        since[at] += group["Pieces"].toLong();
        if (group["SaleDate"].toText() <= end) within[at] += group["Pieces"].toLong();
      }
    }
    const QString where = " Where Name = '" + name + "' And Size = '" + size + "'";
    walk.run(
        u"Update TmpLPGCANStock Set LPGBuy = %1, LPGSale = %2, CANBuy = %3, CANSale = %4, "
        u"CANLent = %5, CANReturn = %6"_s.arg(within[0])
            .arg(within[1])
            .arg(within[2])
            .arg(within[3])
            .arg(within[4])
            .arg(within[5]) +
        where);
    walk.run(u"Update TmpLPGCANStock Set LPGPreStock = LPGStock + %1, CANPreStock = CANStock + %2"_s
                 .arg(since[1] - since[0])
                 .arg(since[3] - since[2] + since[4] - since[5]) +
             where);
  }
  walk.run(gas ? "Update TmpLPGCANStock Set LPGStock = LPGPreStock + lpgbuy - lpgsale , "
                 "CANStock = CANPreStock + canbuy - cansale + CANReturn - CANLent "
               : "Update TmpLPGCANStock Set LPGStock = LPGPreStock + lpgbuy - lpgsale ");
  return walk.rows("Select * From TmpLPGCANStock");
}

TEST(StockWalk, OnePassGivesTheRowsOfAStatementAnItem) {
  Walk walk;
  std::mt19937 random(20260305);
  const auto upTo = [&](int most) { return int(random() % unsigned(most)); };
  const char* const names[] = {"LPG", "lpg ", "부탄", "밸브", "호스", "없는 품목"};
  const char* const sizes[] = {"20", "50", "15A", "13"};
  walk.run("Insert Into LPG(LPGName, Size, CANFull, CANEmpty) Values('부탄', '13', 7, 2)");
  walk.run("Insert Into LPG(LPGName, Size, CANFull, CANEmpty) Values('부탄', '13', 9, 0)");  // entered twice
  walk.run("Insert Into Util(Name, Size, UtilStock) Values('호스', '15A', -4)");
  walk.run("Insert Into Util(Name, Size, UtilStock) Values('밸브', '20', 0)");
  const auto enter = [&] {
    for (int line = 0; line < 120; ++line) {
      const QString day = QDate(2026, 1, 1).addDays(upTo(80)).toString(Qt::ISODate);
      const char* const name = names[upTo(int(std::size(names)))];
      const char* const size = sizes[upTo(int(std::size(sizes)))];
      const int kind = 1 + upTo(8), pieces = upTo(40) - 5;
      if (upTo(2))
        walk.sale(day, kind, pieces, name, size);
      else
        walk.buy(day, kind, pieces, name, size);
    }
  };
  for (int turn = 0; turn < 6; ++turn) {
    walk.pc.session.wsMain.Together(enter);
    const QDate first = QDate(2026, 1, 1).addDays(upTo(60));
    const QString start = first.toString(Qt::ISODate), end = first.addDays(upTo(30)).toString(Qt::ISODate);
    for (const StockWalkOf what : {StockWalkOf::Gas, StockWalkOf::Materials}) {
      ASSERT_TRUE(walkStock(walk.pc.session, what, start, end));
      const QString rows = walk.rows("Select * From TmpLPGCANStock");
      EXPECT_EQ(rows.count(u';'), what == StockWalkOf::Gas ? 3 : 2);
      QString other;
      walk.pc.session.wsMain.Together([&] { other = walkedItemByItem(walk, what, start, end); });
      EXPECT_EQ(rows, other) << start.toStdString() << " " << end.toStdString();
    }
  }
}

TEST(StockWalk, RunsWithStockManagementOff) {
  Walk walk;
  walk.pc.session.StockEnabled = false;
  walk.sale("2026-02-11", 1, 2);
  EXPECT_EQ(walk.walked(StockWalkOf::Gas, "20").section(' ', 0, 3), "52 0 2 50");
}

}  // namespace
