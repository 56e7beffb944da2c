// A real closing, and what the screens and reports read on both sides of New Year: a small book worked by hand.
#include "app/change_year.h"
#include "briefs/brief_run.h"
#include "master/partners/refill_register.h"
#include "store/report_source.h"
#include "tests/briefs/brief_desk.h"
#include "tests/cells.h"
#include "tests/store/closing_desk.h"
#include "trade/briefs/trade_briefs.h"
#include "trade/forecast.h"
#include "trade/sale_book.h"
#include "trade/stock_walk.h"

using namespace Qt::StringLiterals;

namespace {

using tests::asks;
using tests::days;

/** 김하나 (5) buys on credit and has cylinders lent; 한강 sells the gas. The balance and the stock as the screens leave
 *  them: 120,000 + 60,000 + 50,000 - 100,000 = 130,000 owed, 20 full and 50 empty cylinders in the yard. */
struct YearTurn : testing::Test, tests::ClosingDesk {
  tests::ShownReports reports;

  YearTurn() {
    session.reports = &reports;
    run("Delete * From Sale");
    basic(
        "Insert Into Client(Code, Name, Tel, HouseStyle, VolumeYesNo) Values(5, '김하나', '053-5', 0, "
        "False)");
    basic("Insert Into LPG(LPGName, Size, CANFull, CANEmpty) Values('LPG', '20', 20, 50)");
    basic("Insert Into RefillState(Company, Code) Values('한강', '0001')");
    tests::insertRows(
        session.dbYear, saleColumns,
        {"'2026-11-25', 5, 1, 'LPG', '20', 4, 0, 120000", "'2026-12-10', 5, 1, 'LPG', '20', 3, 90000, 0",
         "'2026-12-20', 5, 5, 'LPG', '20', 6, 0, 0", "'2026-12-30', 5, 1, 'LPG', '20', 2, 0, 60000"});
    run("Insert Into Buy(BuyDate, BuyCompany, PurchaseGubun, BuyName, BuyThing, PurchaseNum) "
        "Values('2026-11-20', '한강', 1, 'LPG', '20', 30)");
    closeWell();
    startIn(2027);
    tests::insertRows(
        session.dbYear, saleColumns,
        {"'2027-01-05', 5, 6, 'LPG', '20', 2, 0, 0", "'2027-01-12', 5, 1, 'LPG', '20', 5, 100000, 50000",
         "'2027-01-15', 5, 4, '가스수금', '0', 0, 100000, 130000"});
    run("Insert Into Buy(BuyDate, BuyCompany, PurchaseGubun, BuyName, BuyThing, PurchaseNum) "
        "Values('2027-01-08', '한강', 1, 'LPG', '20', 10)");
    basic("Update Client Set GasInit = 130000, UtilInit = 0 Where Code = 5");
  }
  void startIn(int year) {
    pc.pc.clock.set(QDateTime(QDate(year, 1, 20), QTime(9, 0)));
    session.WorkYear = QString::number(year);
    session.dbYear = this->year(year);
  }
  void changeTo(const char* year) {
    pc.prompts.expect("작업년도가 변경되었습니다.");
    changeYear(session, year);
  }

  QStringList load(const Brief& brief, const BriefAsk& ask) {
    BriefRun run(session, brief);
    return tests::BriefDesk::load(run, ask);
  }
  /** Pieces, amount, discount, received, on credit: of a period's gas, collections left out. */
  QString sold(const char* from, const char* to) {
    return load(lpgSaleBrief(), asks(2, {{"TxtDay", days(from, to)}, {"TxtName", {}}}))
        .last()
        .section('|', 3);
  }
  /** Lent before, lent, returned, out. */
  QString lent(const char* from, const char* to) {
    return load(canLpgBrief(), asks(0, {{"TxtDay", days(from, to)}})).last().section('|', 3);
  }
  QString credit() { return load(trustBrief(), asks(0)).first().section('|', 3); }
  /** The days of the sale ledger's printed lines. */
  QString ledger(const char* from, const char* to) {
    BriefRun run(session, saleLedgerBrief());
    EXPECT_TRUE(run.printLive(asks(0, {{"TxtDay", days(from, to)}})));
    const pc::ReportRequest& request = reports.asked.back();
    const pc::ReportTable table = readLiveRows(session, findReportLayout(session, request.file), request);
    QStringList shown;
    for (int row = 0; row < int(table.rows.size()); ++row)
      shown << pc::plainText(table.value(row, "Sale.SaleDate")).right(5);
    return shown.join(' ');
  }
  /** Opening, bought, sold, closing; of the cylinders also lent and returned. */
  QString stock(const char* from, const char* to) {
    const auto rows = walkStock(session, StockWalkOf::Gas, from, to);
    if (!rows || rows->size() != 1) return "not one item";
    const StockInOut& of = rows->front();
    return u"%1 %2 %3 %4 | %5 %6 %7 %8 %9 %10"_s.arg(of.opening)
        .arg(of.bought)
        .arg(of.sold)
        .arg(of.closing)
        .arg(of.canOpening)
        .arg(of.canBought)
        .arg(of.canSold)
        .arg(of.canLent)
        .arg(of.canReturned)
        .arg(of.canClosing);
  }
  QString forecast(const char* year) {
    Forecast forecast(session);
    EXPECT_TRUE(forecast.ExtractForecast(ForecastOf::General, year, {}));
    EXPECT_EQ(forecast.grid().MaxRows(), 1);
    return tests::cellsOf(forecast.grid(), 1, ForecastCol::First, ForecastCol::Average).join(' ');
  }
  QString lastLines() {
    SaleBook book(session);
    book.FillSaleGrid(SaleSheet::General, true);
    const int row = book.grid().MaxRows();
    book.grid().setText(row, LineCol::Code, "5");
    QStringList shown;
    for (const LastLine& line : book.lastLines(row)) shown << line.date + line.kind;
    return shown.join(' ');
  }
  /** What does not hang on the year that is open. */
  void expectEveryLineOnce() {
    EXPECT_EQ(sold("2026-12-01", "2026-12-31"), "11|150000|0|90000|60000");
    EXPECT_EQ(sold("2026-12-25", "2027-01-31"), "9|210000|0|100000|110000");
    EXPECT_EQ(lent("2026-12-01", "2026-12-31"), "0|6|0|6");
    EXPECT_EQ(lent("2027-01-01", "2027-01-31"), "6|0|2|4");
    EXPECT_EQ(ledger("2026-12-01", "2027-01-31"), "12-10 12-20 12-30 01-05 01-12 01-15");
    EXPECT_EQ(stock("2026-12-25", "2027-01-10"), "17 10 2 25 | 68 0 0 0 2 70");
    EXPECT_EQ(stock("2026-12-01", "2026-12-31"), "20 0 5 15 | 74 0 0 6 0 68")
        << "January's lines are gone back over";
  }

  static constexpr const char* saleColumns =
      "Sale(SaleDate, ClientCode, SaleGubun, SaleName, SaleThing, SaleNum, Income, Trust)";
};

TEST_F(YearTurn, EveryLineCountsOnceOnBothSidesOfNewYear) {
  EXPECT_EQ(rows("Select Count(SaleID) From Sale"), "8")
      << "the new file holds the old year's four and a balance row";
  expectEveryLineOnce();
  // 180,000 were owed at New Year. 8 and 21 days: 110,000; of 56 days the last 20,000.
  EXPECT_EQ(credit(), "180000|150000|0|100000|100000|130000|0|130000|110000|20000|0|0");
  EXPECT_EQ(forecast("2027"), "11-25 12-10 12-20 12-30 01-05 01-12   01-12 01-22 10")
      << "48 days in five gaps";
  EXPECT_EQ(lastLines(), "01-15수금 01-12가스 01-05용회 12-30가스 12-20용대");

  show(HouseStyle::Individual, 1);
  EXPECT_EQ(cells(3, {EvaCol::PrevUseGage, EvaCol::Trust}), "1234|35500");
}

TEST_F(YearTurn, TheOldYearReadsTheSameFromItsOwnFile) {
  changeTo("2026");
  EXPECT_EQ(pc.pc.clock.today(), QDate(2026, 1, 20));
  expectEveryLineOnce();
  // Nothing was owed when 2026 began; what moved since is the lines of both years.
  EXPECT_EQ(credit(), "0|420000|0|190000|100000|130000|0|130000|130000|0|0|0");
  EXPECT_EQ(forecast("2026"), "11-25 12-10 12-20 12-30     12-30 01-11 12") << "35 days in three gaps";
  EXPECT_EQ(lastLines(), "12-30가스 12-20용대 12-10가스 11-25가스");

  show(HouseStyle::Individual, 12);
  EXPECT_EQ(cells(3, {EvaCol::UseGage, EvaCol::Total}), "1234|35500");

  RefillRegister stations(session);
  ASSERT_TRUE(stations.load());
  RegisterFields boxes = stations.select(1);
  boxes["Company"] = "새한강";
  ASSERT_TRUE(stations.save(boxes).done);
  for (const int each : {2026, 2027})
    EXPECT_EQ(rowsIn(each, "Select Distinct BuyCompany From Buy"), "새한강") << each;

  changeTo("2027");
  EXPECT_EQ(credit(), "180000|150000|0|100000|100000|130000|0|130000|110000|20000|0|0");
}

}  // namespace
