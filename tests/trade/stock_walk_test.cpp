// The walk back, worked by hand: a period from 10 to 20 February with lines before, in and after it, of every kind.
#include "trade/stock_walk.h"

#include <random>

#include "store/year_file.h"
#include "tests/trade/buy_desk.h"

using namespace Qt::StringLiterals;

namespace {

const char* const figures =
    "LPGPreStock, LPGBuy, LPGSale, LPGStock, CANPreStock, CANBuy, CANSale, CANLent, CANReturn, CANStock";

struct Moved {
  bool sale;
  QString day;
  int kind, pieces;
  QString name = "LPG", size = "20";
};

struct StockWalk : testing::Test, tests::BuyDesk {
  /** Into the file of its year. */
  void write(const Moved& line) {
    const jet::Database file =
        line.day.startsWith(pc.session.WorkYear) ? pc.session.dbYear : openYear(pc.session, line.day.left(4));
    file.Execute(
        (line.sale
             ? u"Insert Into Sale(SaleDate, ClientCode, SaleName, SaleThing, SaleNum, SaleGubun) Values('%1', 1, '%2', '%3', %4, %5)"_s
             : u"Insert Into Buy(BuyDate, BuyCompany, BuyName, BuyThing, PurchaseNum, PurchaseGubun) Values('%1', '한강', '%2', '%3', %4, %5)"_s)
            .arg(line.day, line.name, line.size)
            .arg(line.pieces)
            .arg(line.kind));
  }
  void sale(const QString& day, int kind, int pieces, const QString& name = "LPG",
            const QString& size = "20") {
    write({true, day, kind, pieces, name, size});
  }
  void buy(const QString& day, int kind, int pieces, const QString& name = "LPG",
           const QString& size = "20") {
    write({false, day, kind, pieces, name, size});
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

TEST_F(StockWalk, EveryKindBeforeInAndAfterThePeriod) {
  // today 50 full and 40 empty of each size
  for (int kind = 1; kind <= 8; ++kind) {
    sale("2026-02-09", kind, 100);
    buy("2026-02-09", kind, 100);
  }
  using Moves = std::initializer_list<std::tuple<const char*, int, int>>;
  const Moves sold{{"2026-02-10", 1, 5},  {"2026-02-20", 3, 2},  // the first and the last day of the period
                   {"2026-02-12", 2, 1},  {"2026-02-13", 5, 4},  {"2026-02-14", 6, 3},
                   {"2026-02-21", 1, 10}, {"2026-03-01", 3, 20},  // after it, up to today
                   {"2026-03-01", 2, 30}, {"2026-03-01", 5, 40}, {"2026-03-01", 6, 50}};
  const Moves bought{{"2026-02-10", 1, 8},  {"2026-02-20", 3, 6},  {"2026-02-15", 2, 7},
                     {"2026-02-16", 5, 9},  {"2026-02-17", 6, 2},  {"2026-02-21", 1, 11},
                     {"2026-03-01", 3, 22}, {"2026-03-01", 2, 33}, {"2026-03-01", 5, 44},
                     {"2026-03-01", 6, 55}};
  for (const auto& [day, kind, pieces] : sold) sale(day, kind, pieces);
  for (const auto& [day, kind, pieces] : bought) buy(day, kind, pieces);
  // Collections, payments and fittings move no cylinder.
  for (const int kind : {4, 7, 8}) {
    sale("2026-02-15", kind, 1000);
    buy("2026-02-15", kind, 1000);
  }
  // Full ones: sold 5+2 and bought 8+6 within, sold 10+20 and bought 11+22 after it:
  // opening 50 + 7+30 - 14-33 = 40, closing 40 + 14 - 7 = 47.
  // Cylinders: bought 6+7=13, sold 2+1=3, away 4+9=13, back 3+2=5 within; after it bought 22+33=55, sold 20+30=50, away
  // 40+44=84, back 50+55=105: opening 90 + 3+50 - 13-55 + 13+84 - 5-105 = 62, closing 62 + 13 - 3 + 5 - 13 = 64.
  EXPECT_EQ(walked(StockWalkOf::Gas, "20"), "40 14 7 47 62 13 3 13 5 64");
  EXPECT_EQ(rows(u"Select "_s + figures + " From TmpLPGCANStock Where Size = '20'"),
            "40|14|7|47|62|13|3|13|5|64");
  EXPECT_EQ(walked(StockWalkOf::Gas, "50"), "50 0 0 50 90 0 0 0 0 90") << "an item without lines";
  EXPECT_EQ(rows("Select Gubun, Count(*) From TmpLPGCAN Group By Gubun"), "-1|10;0|10")
      << "the lines from the first day on, sales and purchases told apart";
  // To the end of all lines the walk comes back to what stands in the catalogue.
  EXPECT_EQ(walked(StockWalkOf::Gas, "20", "2026-01-01", "2026-12-31").section(' ', 3, 3), "50");
  EXPECT_EQ(walked(StockWalkOf::Gas, "20", "2026-01-01", "2026-12-31").section(' ', 9, 9), "90");
}

TEST_F(StockWalk, Materials) {
  // 30 valves today
  sale("2026-02-01", 7, 100, "밸브", "15A");
  sale("2026-02-10", 7, 4, "밸브", "15A");
  buy("2026-02-20", 4, 10, "밸브", "15A");
  sale("2026-02-21", 7, 3, "밸브", "15A");
  buy("2026-02-22", 4, 5, "밸브", "15A");
  sale("2026-02-12", 1, 50, "밸브", "15A");
  buy("2026-02-12", 7, 50, "밸브", "15A");
  // 30 + 7 - 15 = 22 at first, 22 + 10 - 4 = 28 at last.
  EXPECT_EQ(walked(StockWalkOf::Materials, "15A"), "22 10 4 28 0 0 0 0 0 0");
  EXPECT_EQ(rows("Select Name, LPGPreStock, LPGStock, CANBuy From TmpLPGCANStock"), "밸브|22|28|0");
}

TEST_F(StockWalk, NamesMeetAsTheBooksCompareThem) {
  run("Insert Into LPG(LPGName, Size, CANFull, CANEmpty) Values('Butane', '10', 7, 1)");
  sale("2026-02-11", 1, 2, "BUTANE ", "10");
  sale("2026-02-11", 1, 5, "없는 품목", "10");
  EXPECT_EQ(walked(StockWalkOf::Gas, "10").section(' ', 0, 3), "9 0 2 7");
}

TEST_F(StockWalk, APeriodThatBeganLastYearTakesThatYearsFileAlong) {
  EXPECT_EQ((pc.prompts.expect("2025년의 자료가 없습니다!"),
             walked(StockWalkOf::Gas, "20", "2025-12-01", "2026-01-31")),
            "told");
  makeYearFile(pc.session, "2025");
  sale("2025-12-30", 1, 6);
  run("Insert Into Sale(SaleDate, SaleName, SaleThing, SaleNum, SaleGubun) "
      "Values('2025-12-30', 'LPG', '20', 6, 1)");  // the copy that a closing leaves
  sale("2026-01-02", 1, 4);
  EXPECT_EQ(walked(StockWalkOf::Gas, "20", "2025-12-01", "2026-01-31").section(' ', 0, 3), "60 0 10 50");
  EXPECT_EQ(walked(StockWalkOf::Gas, "20", "2026-01-01", "2026-01-31").section(' ', 0, 3), "54 0 4 50");
}

TEST_F(StockWalk, TheStockOfTodayIsWalkedBackOverTheYearsSinceTheOpenOne) {
  pc.pc.clock.set(QDateTime(QDate(2027, 1, 10), QTime(9, 0)));
  makeYearFile(pc.session, "2027");
  sale("2027-01-04", 1, 6);
  sale("2026-02-12", 1, 4);
  EXPECT_EQ(walked(StockWalkOf::Gas, "20").section(' ', 0, 3), "60 0 4 56");
}

TEST_F(StockWalk, AFailureIsToldAndLeavesNoHalfFigures) {
  sale("2026-02-11", 1, 2);
  walked(StockWalkOf::Gas, "20");
  pc.session.dbBasic.Execute("Drop Table LPG");
  pc.prompts.expect("계산오류");
  EXPECT_EQ(walked(StockWalkOf::Gas, "20"), "told");
  EXPECT_EQ(rows("Select * From TmpLPGCANStock") + rows("Select * From TmpLPGCAN"), "");
}

/** An item's row by a loop over all lines; the item: name, size, full ones and cylinders of today. */
QString addedUp(const std::vector<Moved>& lines, bool gas, const QStringList& item, const QString& start,
                const QString& end) {
  qint64 opening = item[2].toLongLong(), bought = 0, sold = 0, canOpening = item[3].toLongLong(),
         canBought = 0, canSold = 0, lent = 0, back = 0;
  for (const auto& [sale, day, kind, pieces, name, size] : lines) {
    const bool fitting = kind == (sale ? 7 : 4), payment = kind == (sale ? 4 : 7) || kind == 8;
    if (day < start || gas == fitting || payment) continue;
    if (name.trimmed().compare(item[0], Qt::CaseInsensitive) != 0 || size != item[1]) continue;
    const bool full = fitting || kind == 1 || kind == 3, cylinder = kind == 2 || kind == 3;
    const qint64 out = sale ? pieces : -pieces;
    if (full) opening += out;
    canOpening += cylinder ? out : kind == 5 ? pieces : kind == 6 ? -pieces : 0;
    if (day > end) continue;
    if (full) (sale ? sold : bought) += pieces;
    if (cylinder) (sale ? canSold : canBought) += pieces;
    if (kind == 5) lent += pieces;
    if (kind == 6) back += pieces;
  }
  QStringList row{item[0], item[1]};
  for (const qint64 figure : {opening, bought, sold, opening + bought - sold, canOpening, canBought, canSold,
                              lent, back, canOpening + canBought - canSold + back - lent})
    row << QString::number(figure);
  return row.join('|');
}

TEST_F(StockWalk, OnePassGivesWhatTheLinesOfEachItemAddUpTo) {
  std::mt19937 random(20260305);
  const auto upTo = [&](int most) { return int(random() % unsigned(most)); };
  const char* const names[] = {"LPG", "lpg ", "부탄", "밸브", "호스", "없는 품목"};
  const char* const sizes[] = {"20", "50", "15A", "13"};
  tests::insertRows(pc.session.dbBasic, "LPG(LPGName, Size, CANFull, CANEmpty)",
                    {"'부탄', '13', 7, 2", "'부탄', '13', 9, 0"});  // entered twice
  tests::insertRows(pc.session.dbBasic, "Util(Name, Size, UtilStock)",
                    {"'호스', '15A', -4", "'밸브', '20', 0"});
  std::vector<Moved> lines;
  makeYearFile(pc.session, "2025");
  const QDate first(2025, 11, 20);
  for (int turn = 0; turn < 6; ++turn) {
    pc.session.wsMain.Together([&] {
      for (int line = 0; line < 120; ++line) {
        lines.push_back({upTo(2) == 1, first.addDays(upTo(120)).toString(Qt::ISODate), 1 + upTo(8),
                         upTo(40) - 5, names[upTo(6)], sizes[upTo(4)]});
        write(lines.back());
      }
    });
    const QDate from = first.addDays(upTo(100));
    const QString start = from.toString(Qt::ISODate), end = from.addDays(upTo(30)).toString(Qt::ISODate);
    for (const bool gas : {true, false}) {
      ASSERT_TRUE(walkStock(pc.session, gas ? StockWalkOf::Gas : StockWalkOf::Materials, start, end));
      QStringList looped;
      for (const QString& item : tests::linesOf(
               pc.session.dbBasic, gas ? "Select Distinct LPGName, Size, CANFull, CANFull + CANEmpty From LPG"
                                       : "Select Distinct Name, Size, UtilStock, 0 From Util"))
        looped << addedUp(lines, gas, item.split('|'), start, end);
      EXPECT_EQ(looped.size(), gas ? 4 : 3);
      EXPECT_EQ(rows(u"Select Name, Size, "_s + figures + " From TmpLPGCANStock"), looped.join(';'))
          << start.toStdString() << " " << end.toStdString();
    }
  }
}

TEST_F(StockWalk, RunsWithStockManagementOff) {
  pc.session.StockEnabled = false;
  sale("2026-02-11", 1, 2);
  EXPECT_EQ(walked(StockWalkOf::Gas, "20").section(' ', 0, 3), "52 0 2 50");
}

}  // namespace
