// Tax invoices: gathering, numbers, issuing, the register, the papers, the tax office's sheet.
#include <QRegularExpression>

#include <random>

#include "documents/invoices/new_acount.h"
#include "documents/invoices/tax_bulk.h"
#include "documents/invoices/tax_desk.h"
#include "documents/ledger/clsTrade.h"
#include "store/business_number.h"
#include "store/schema.h"
#include "store/year_file.h"
#include "tests/answers.h"
#include "tests/documents/document_desk.h"

using namespace Qt::StringLiterals;

namespace {

using tests::column, tests::row;

struct Taxes : tests::DocumentDesk {
  Taxes() { session.dbBasic.Execute("Update User Set BusCode = '1234567891'"); }
  TaxAsk month(TaxTab tab = TaxTab::Pending, std::optional<TaxGathering> gathering = TaxGathering::Monthly) {
    return {.from = QDate(2026, 3, 1), .to = QDate(2026, 3, 31), .gathering = gathering, .tab = tab};
  }
  /** The first row's cell below a header. */
  static QString cellOf(const SpreadModel& sheet, const QString& header) {
    for (int col = 1; col <= sheet.MaxCols(); ++col)
      if (sheet.column(col).header.startsWith(header)) return sheet.text(1, col);
    return "-";
  }
  void gatherAll(const TaxAsk& ask) {
    EXPECT_TRUE(desk.gather(ask));
    desk.ticks().setAll(true);
  }
  void gatherAll() { gatherAll(month()); }
  void listAll(const TaxAsk& ask) {
    desk.list(ask);
    desk.ticks().setAll(true);
  }
  const tests::RecordedJob& issue(const TaxAsk& ask, const TaxPaperChoice& choice = {}) {
    return print(desk.issue(ask, serial, choice));
  }

  TaxDesk desk{session};
  QString serial = "2603001";
};

using namespace TaxCol;

TEST_F(Taxes, NumbersGoOnBehind999AndNeverTwice) {
  const clsPrintTax tax(session.dbTax, "2026-03-31 a");
  EXPECT_EQ(tax.NextSerial("2603"), "2603001");
  EXPECT_EQ(tax_serial::inc("2603009"), "2603010");
  EXPECT_EQ(tax_serial::inc("2603999"), "26031000");
  EXPECT_EQ(tax_serial::inc("26031000"), "26031001");
  for (const char* serial : {"2602777", "2603998", "2603999"})
    session.dbTax.Execute(u"Insert Into TaxAcount(Serial) Values('%1')"_s.arg(serial));
  EXPECT_EQ(tax.NextSerial("2603"), "26031000");
  session.dbTax.Execute("Insert Into TaxAcount(Serial) Values('26031000')");
  EXPECT_EQ(tax.NextSerial("2603"), "26031001") << "by number: as texts 999 stands behind 1000";
  EXPECT_EQ(tax_serial::shown("2603001"), "2603-001");
  EXPECT_EQ(tax_serial::prefixOf("2026-03-31"), "2603");
}

TEST_F(Taxes, AMonthsLinesBecomeOneInvoiceACustomer) {
  sale("2026-03-02", 1, 30'000, 2);
  sale("2026-03-09", 1, 10'000, 1, {.name = "부탄", .discount = 500});
  sale("2026-03-09", 2, 55, 1);
  sale("2026-03-10", 2, 0, 9);      // without a price it never reaches an invoice
  sale("2026-02-28", 2, 7'777, 1);  // another month
  session.dbBasic.Execute("Insert Into Client(Name) Values('공제식당')");
  sale("2026-03-05", 3, 1'000, 1, {.discount = 1'000});  // what is left is nothing: no invoice, no number
  ASSERT_TRUE(desk.gather(month()));
  ASSERT_EQ(desk.grid().MaxRows(), 2);
  EXPECT_EQ(
      cells(desk, 1, {IssueDate, DealDate, Client, Supply, Tax, Total, Item, Tick, TaxCode, ClientCode}),
      "2026-03-31|2026-03|바다식당|50|5|55|LPG||2603001|2");
  EXPECT_EQ(cells(desk, 2, {Client, Supply, Tax, Total, Item, TaxCode}),
            "한라식당|63182|6318|69500|LPG 외|2603002");  // 69,500 / 1.1 is 63,181.8
  EXPECT_EQ(desk.sheet().sums(), (VatSplit{63'232, 6'323, 69'555}));
  TaxAsk ask = month();
  ask.vat = Vat::OnTop;
  desk.list(ask);
  EXPECT_EQ(cells(desk, 2, {Supply, Tax, Total}), "69500|6950|76450");
  ask.vat = Vat::None;
  desk.list(ask);
  EXPECT_EQ(cells(desk, 2, {Supply, Tax, Total}), "69500|0|69500");
  EXPECT_EQ(inTax("Select Quantity & '/' & UnitCost & '/' & TradeKum & '/' & Item & '/' & PCode & Code From "
                  "NewAcount Where CCode = '1'"),
            "3/30000/63182/2/0000002");
}

TEST_F(Taxes, SumsByCodeAreThoseOfTheLinesJoinedToTheirCustomers) {
  session.dbBasic.Execute("Insert Into Client(Name) Values('바다식당')");  // two of one name
  std::mt19937 random(20260331);
  const auto upTo = [&](int most) { return int(random() % unsigned(most)); };
  session.wsMain.Together([&] {
    for (int line = 0; line < 400; ++line)  // customers 4 and 5 are nobody's
      sale(QDate(2026, 2, 1).addDays(upTo(59)).toString(Qt::ISODate), 1 + upTo(5), upTo(4) * 11'000,
           upTo(9) - 2, {.name = upTo(2) ? "LPG" : "부탄", .discount = upTo(3) * 500});
    session.dbYear.Execute("Update Sale Set SaleList = 1 Where SaleNum = 6");
  });
  const QString to = "2026-03-30";
  for (const auto& [from, kind] : {std::pair{u"2026-03-02"_s, TaxGathering::Monthly},
                                   {"2026-02-10", TaxGathering::Monthly},
                                   {"2026-03-02", TaxGathering::Daily}}) {
    const bool daily = kind == TaxGathering::Daily;
    const QString day = daily ? "Sale.saledate" : "Left$(Sale.saleDate, 7)";
    const QStringList joined = tests::linesOf(
        session.dbYear,
        "SELECT " + day +
            ", client.Name, Sum(Sale.saleunit * sale.salenum), Count(Sale.salename), Sum(0), "
            "First(Sale.salename), Sum(Sale.salenum), First(Sale.saleunit), Sale.ClientCode, "
            "First(Sale.Salething), Sum(sale.DC) FROM Sale LEFT JOIN Client ON Sale.ClientCode = client.Code "
            "WHERE Sale.saleDate BETWEEN '" +
            from + "' AND '" + to + "' AND Sale.saleunit <> 0 and Sale.SaleList = 0 GROUP BY " + day +
            ", client.Name, Sale.ClientCode ORDER BY " + (daily ? "Sale.saleDate" : "Client.Name"));
    const QStringList found =
        tests::linesOf(clsTrade(session.dbYear, LedgerSide::Sale).TaxQuery(from, to, kind));
    EXPECT_GE(found.size(), 5);
    EXPECT_EQ(found, joined);
  }
}

TEST_F(Taxes, ByDayAndOverTwoYearsEachMonthHasItsOwnNumbers) {
  makeYearFile(session, "2025");
  ASSERT_TRUE(upgrades::relink(session));
  const auto before = openYear(session, "2025");
  sale("2025-12-31", 1, 1'100, 1);
  sale("2026-01-01", 1, 2'200, 1);
  sale("2026-01-01", 1, 3'300, 1);
  sale("2026-01-02", 1, 4'400, 1);
  session.dbTax.Execute("Insert Into TaxAcount(Serial) Values('2601041')");
  TaxAsk ask{.from = QDate(2024, 12, 31), .to = QDate(2026, 1, 2), .gathering = TaxGathering::Daily};
  ASSERT_TRUE(desk.gather(ask)) << "a year without a file is passed over";
  ASSERT_EQ(desk.grid().MaxRows(), 3);
  EXPECT_EQ(cells(desk, 1, {DealDate, Total, TaxCode}), "2025-12-31|1100|2512001");
  EXPECT_EQ(cells(desk, 2, {DealDate, Total, Item, TaxCode}), "2026-01-01|5500|LPG 외|2601042");
  EXPECT_EQ(cells(desk, 3, {DealDate, Total, Item, TaxCode}), "2026-01-02|4400|LPG|2601043");
  desk.ticks().setAll(true);
  serial = "2601042";
  const tests::RecordedJob shown = print(desk.papers(ask, serial, {}));
  for (int page = 1; page <= 3; ++page)
    EXPECT_TRUE(shown.texts(page).contains(QStringList{"2512-001", "2601-042", "2601-043"}[page - 1]))
        << "before the issue they are seen with the numbers that they will have";
  const auto& job = issue(ask);
  EXPECT_EQ(job.pages, 3);
  EXPECT_EQ(serial, "2601044");
  EXPECT_EQ(inTax("Select Serial From TaxAcount Where DealDate = '2025-12-31'"), "2512001");
  EXPECT_EQ(first(before, "Select SaleList From Sale"), "1");
  EXPECT_EQ(inYear("Select Count(*) From Sale Where SaleList = 1"), "3");
  pc.prompts.expect("검색일자 지정이 잘못되었습니다.");
  EXPECT_FALSE(desk.gather({.from = QDate(2026, 1, 2), .to = QDate(2026, 1, 1)}));
}

TEST_F(Taxes, IssuingTakesTheLinesOutAndPutsTheInvoiceInTheRegister) {
  sale("2026-03-02", 1, 30'000, 2);
  sale("2026-03-09", 1, 10'000, 1);
  sale("2026-03-09", 2, 1'100, 1);
  desk.gather(month());
  desk.ticks().toggle(2);  // 한라식당
  serial = "2603005";
  issue(month());
  EXPECT_EQ(serial, "2603006");
  EXPECT_EQ(inTax("Select Serial & CCode & DealDate & DealYY & IssueDate & TradeKum & '/' & VatKum & '/' & "
                  "Blank & List & Section From TaxAcount"),
            "260300512026-032026-032026-03-3163636/6364/6LPG 외0");
  EXPECT_EQ(inYear("Select Sum(SaleList) From Sale Where ClientCode = 1"), "2");
  EXPECT_EQ(inYear("Select SaleList From Sale Where ClientCode = 2"), "0");
  desk.list(month());
  EXPECT_EQ(desk.grid().MaxRows(), 1) << "the rest is still pending";
  EXPECT_EQ(cells(desk, 1, {Client, TaxCode}), "바다식당|2603001");
  desk.list(month(TaxTab::Issued));
  EXPECT_EQ(cells(desk, 1, {TaxCode, Client, Supply, Tax, Total, Item}),
            "2603005|한라식당|63636|6364|70000|LPG 외");
  SpreadModel sheet;
  desk.fillBulk(sheet, false);
  EXPECT_EQ(
      cellOf(sheet, "품목1") + cellOf(sheet, "수량1") + cellOf(sheet, "단가1") + cellOf(sheet, "공급가액1"),
      "LPG 외63636")
      << "several lines have no one quantity";
  EXPECT_EQ(cellOf(sheet, "영수(01)"), "02");
  desk.list(month(TaxTab::Issued, TaxGathering::Period));
  EXPECT_TRUE(desk.sheet().isEmpty()) << "each way of gathering has its own section";

  gatherAll(month(TaxTab::Pending, TaxGathering::Daily));
  const TaxAsk otherwise = month();  // chosen since
  EXPECT_FALSE(desk.isGatheredFor(otherwise));
  listAll(otherwise);
  EXPECT_EQ(cells(desk, 1, {DealDate, Client}), "2026-03-09|바다식당");
  issue(otherwise);
  desk.list(month(TaxTab::Issued, TaxGathering::Daily));
  EXPECT_EQ(cells(desk, 1, {DealDate, Client}), "2026-03-09|바다식당") << "filed as what it was gathered as";

  desk.list(month(TaxTab::Issued));
  pc.prompts.expect("지정하신 세금계산서 내역을 삭제하시겠습니까?");
  EXPECT_TRUE(desk.deleteIssued(1));
  EXPECT_EQ(inTax("Select Count(*) From TaxAcount"), "1");
  EXPECT_EQ(inYear("Select Sum(SaleList) From Sale"), "3") << "a deleted invoice frees no line";
  session.dbTax.Execute("drop table TaxAcount");
  pc.prompts.expect("지정하신 세금계산서 내역을");
  pc.prompts.expect("계산서 데이터를 삭제하는 중 오류가 발생했습니다.");
  EXPECT_FALSE(desk.deleteIssued(1));
}

TEST_F(Taxes, APeriodsInvoicesAreFoundAgainInTheRegister) {
  sale("2026-03-09", 2, 1'100, 1);
  sale("2026-03-08", 2, 2'200, 1);  // before the period
  TaxAsk ask = month(TaxTab::Pending, TaxGathering::Period);
  ask.from = QDate(2026, 3, 9);
  ask.to = QDate(2026, 3, 10);
  gatherAll(ask);
  issue(ask);
  ask.tab = TaxTab::Issued;
  desk.list(ask);
  EXPECT_EQ(cells(desk, 1, {TaxCode, DealDate, Total}), "2603001|2026-03|1100");
  EXPECT_EQ(inYear("Select SaleDate From Sale Where SaleList = 0"), "2026-03-08");
}

TEST_F(Taxes, ACustomerDeletedMeanwhileKeepsHisNameAndALineOfNobodyIsIssuedToo) {
  sale("2026-03-02", 2, 1'100, 1);
  session.dbYear.Execute(
      "Insert Into Sale(SaleDate, SaleName, SaleUnit, SaleNum, ClientCode) Values('2026-03-03', 'LPG', 2200, "
      "1, Null)");
  gatherAll();
  issue(month());
  EXPECT_EQ(serial, "2603003");
  EXPECT_EQ(inYear("Select Sum(SaleList) From Sale"), "2");
  session.dbBasic.Execute("Delete From Client Where Code = 2");
  listAll(month(TaxTab::Issued));
  EXPECT_TRUE(issue(month(TaxTab::Issued)).texts(2).contains("바다식당"));
}

TEST_F(Taxes, WhatMovedSinceItWasGatheredIsNotIssued) {
  sale("2026-03-02", 1, 30'000, 2);
  sale("2026-03-02", 2, 1'100, 1);
  TaxDesk here(session);
  here.gather(month());
  here.ticks().setAll(true);
  sale("2026-03-31", 1, 1'000, 1);  // a delivery entered meanwhile would leave the pool on no paper
  pc.prompts.expect("1건은 발행하지 않았습니다.\n다시 집계한 후 발행하세요.");
  EXPECT_EQ(here.issue(month(), serial, {}).documents, 1);
  EXPECT_EQ(inYear("Select Sum(SaleList) From Sale Where ClientCode = 1"), "0");
  here.gather(month());
  EXPECT_EQ(cells(here, 1, {Client, Total}), "한라식당|61000");
}

TEST_F(Taxes, NeitherTheCountNorTheSumOfTheLinesMayHaveChanged) {
  sale("2026-03-02", 1, 30'000, 2);
  const std::function<void()> changes[] = {[this] {  // two lines of the one's sum
                                             session.dbYear.Execute("Update Sale Set SaleNum = 1");
                                             sale("2026-03-31", 1, 30'000, 1);
                                           },
                                           [this] { session.dbYear.Execute("Update Sale Set DC = 250"); }};
  for (const auto& change : changes) {
    desk.gather(month());
    desk.ticks().setAll(true);
    change();
    pc.prompts.expect("1건은 발행하지 않았습니다.");
    EXPECT_EQ(desk.issue(month(), serial, {}).documents, 0);
    EXPECT_EQ(inYear("Select Sum(SaleList) From Sale"), "0");
  }
}

TEST_F(Taxes, OfTwoStationsOneGetsTheLinesAndNoNumberIsGivenTwice) {
  sale("2026-03-02", 1, 30'000, 2);
  sale("2026-03-02", 2, 1'100, 1);
  clsPrintTax a(session.dbTax, "2026-03-31 a"), b(session.dbTax, "2026-03-31 b");
  TaxGatherer gatherA(session, a), gatherB(session, b);
  for (TaxGatherer* each : {&gatherA, &gatherB})
    each->gather(QDate(2026, 3, 1), QDate(2026, 3, 31), TaxGathering::Monthly);
  EXPECT_EQ(inTax("Select Count(*) From NewAcount"), "4") << "neither empties the other's";
  TaxSheet sheetA, sheetB;
  sheetA.listPending(a, Vat::Included, TaxGathering::Monthly);
  sheetB.listPending(b, Vat::Included, TaxGathering::Monthly);
  EXPECT_EQ(sheetA.grid().MaxRows(), 2);
  TaxIssuer issueA(session, a, gatherA), issueB(session, b, gatherB);
  const TaxIssueAsk ask{.serial = "2603001"};
  EXPECT_EQ(issueA.issue(sheetA, {1}, ask).issued.size(), 1u);
  session.dbTax.Execute("Insert Into TaxAcount(Serial) Values('2603002')");  // of a third station
  const TaxIssue second = issueB.issue(sheetB, {1, 2}, ask);
  ASSERT_EQ(second.issued.size(), 1u);
  EXPECT_EQ(second.moved, 1);
  EXPECT_EQ(second.issued[0].serial, "2603003");
  EXPECT_EQ(second.nextSerial, "2603004");
  b.Empty();
  EXPECT_EQ(inTax("Select Count(*) From NewAcount Where Station = '2026-03-31 a'"), "1");
  clsPrintTax(session.dbTax, "2026-04-01 c").Empty();
  EXPECT_EQ(inTax("Select Count(*) From NewAcount"), "1") << "it may have run past midnight";
  clsPrintTax(session.dbTax, "2026-04-02 c").Empty();
  EXPECT_EQ(inTax("Select Count(*) From NewAcount"), "0") << "left behind the day before yesterday";
}

TEST_F(Taxes, ARefusedRegisterIsToldAndFreesNothingOnPaper) {
  sale("2026-03-02", 1, 30'000, 2);
  gatherAll();
  session.dbTax.Execute("drop table TaxItem");
  pc.prompts.expect("세금계산서 내역을 저장하는 중 오류가 발생했습니다.");
  EXPECT_EQ(desk.issue(month(), serial, {}).documents, 0);
  EXPECT_EQ(inYear("Select SaleList From Sale"), "0") << "the line is free for the next gathering";
  EXPECT_EQ(inTax("Select Count(*) From NewAcount"), "0");
  EXPECT_EQ(inTax("Select Count(*) From TaxAcount"), "0") << "half a register row is none";
}

TEST_F(Taxes, AmountsBeyondTheCellsStayPending) {
  sale("2026-03-02", 1, 1'100'000'000, 1'000);  // supply of 1,000,000,000,000: thirteen digits
  sale("2026-03-02", 2, 1'100'000, 99'999);     // supply 99,999,000,000: eleven
  desk.gather(month());
  EXPECT_EQ(cells(desk, 2, {Supply, Total}), "1000000000000|1100000000000");
  desk.ticks().setAll(true);
  pc.prompts.expect("금액의 자릿수가 계산서의 칸보다 많은 1건은");
  const auto& job = issue(month());
  EXPECT_EQ(inTax("Select TradeKum & '/' & Blank From TaxAcount"), "99999000000/0");
  EXPECT_TRUE(job.texts().contains("*109,998,900,000"));
  EXPECT_EQ(inYear("Select SaleList From Sale Where ClientCode = 1"), "0");
}

TEST_F(Taxes, IssueDatesAreChangedInTheList) {
  sale("2026-03-02", 1, 30'000, 2);
  desk.gather(month());
  EXPECT_TRUE(desk.setIssueDate(1, "20260330"));
  EXPECT_EQ(cells(desk, 1, {IssueDate}), "2026-03-30");
  EXPECT_EQ(inTax("Select IssueDate From NewAcount"), "2026-03-30");
  pc.prompts.expect("잘못된 날짜 형식입니다.\n정확한 날짜 형식을 입력하세요.");
  EXPECT_FALSE(desk.setIssueDate(1, "20261330"));
  session.dbTax.Execute("drop table NewAcount");
  pc.prompts.expect("세금계산서의 발행일자를 변경하는 중 오류가 발생했습니다.");
  EXPECT_FALSE(desk.setIssueDate(1, "20260329"));
  EXPECT_EQ(cells(desk, 1, {IssueDate}), "2026-03-30");
}

// --- typed invoices ---------------------------------------------------------------------------------------------

struct TypedTaxes : Taxes {
  TypedTaxes() { entry.setDates("2026-03-30", "2026-03-15"); }
  /** So many lines of a customer's invoice, each as the cells are typed, kept until they are issued. */
  void typeLines(int lines, const std::function<void(int)>& cells) {
    entry.setClient("1", "한라식당");
    for (int line = 1; line <= lines; ++line) {
      cells(line);
      entry.nextCell(line, AcountCol::Total);
    }
    pc.prompts.expect("[닫기]버튼을");
    entry.save();
  }

  clsPrintTax tax{session.dbTax, taxStation(QDate(2026, 3, 31))};
  NewAcountEntry entry{session, tax};
};

TEST_F(TypedTaxes, ATypedInvoiceFollowsItsCells) {
  pc.prompts.expect("거래처를 먼저 선택하여 주십시요.");
  EXPECT_FALSE(entry.mayEdit(1, AcountCol::Name));
  entry.setClient("1", "한라식당");
  SpreadModel& grid = entry.grid();
  const auto line = [&](int at) {
    return grid.text(at, AcountCol::Supply) + '|' + grid.text(at, AcountCol::Tax) + '|' +
           grid.text(at, AcountCol::Total);
  };
  EXPECT_TRUE(entry.mayEdit(1, AcountCol::Quantity));
  entry.finishCell(1, AcountCol::Name, "LPG");
  EXPECT_EQ(grid.text(1, AcountCol::TaxCode), "2603001");
  entry.finishCell(1, AcountCol::Quantity, "2.5");
  entry.finishCell(1, AcountCol::Price, "1000");
  EXPECT_EQ(line(1), "2,500|250|2,750") << "without a ledger the tax comes on top";
  EXPECT_EQ(grid.text(1, AcountCol::Quantity), "2.5");
  pc.prompts.expect("금액은 열두 자리까지");
  EXPECT_FALSE(entry.finishCell(1, AcountCol::Quantity, "1000000000"));
  EXPECT_EQ(grid.text(1, AcountCol::Quantity), "2.5") << "1,000 won each";
  entry.finishCell(1, AcountCol::Total, "55");
  EXPECT_EQ(line(1), "50|5|55");
  entry.finishCell(1, AcountCol::Supply, "25");
  EXPECT_EQ(line(1), "25|2|27");
  EXPECT_EQ(entry.nextCell(1, AcountCol::Total), (std::pair{2, int(AcountCol::Name)}));
  entry.finishCell(2, AcountCol::Kinds, "3");
  EXPECT_EQ(grid.text(2, AcountCol::TaxCode), "2603001") << "the lines share it";
  pc.prompts.expect("수량 및 단가을 입력할 수 없습니다.");
  EXPECT_FALSE(entry.mayEdit(2, AcountCol::Price));
  pc.prompts.expect("수량 및 단가를 입력할 수 없습니다.");
  EXPECT_FALSE(entry.finishCell(2, AcountCol::Quantity, "1"));
  EXPECT_EQ(entry.nextCell(2, AcountCol::Kinds).second, int(AcountCol::Supply));
  entry.finishCell(2, AcountCol::Name, "밸브");
  entry.finishCell(2, AcountCol::Total, "999999999999");
  pc.prompts.expect("금액은 열두 자리까지");
  EXPECT_FALSE(entry.finishCell(2, AcountCol::Total, "1000000000000"));
  EXPECT_EQ(entry.sums().total, 1'000'000'000'026);
  pc.prompts.expect("[닫기]버튼을 누르시면 계산서를 발행하실 수 있습니다");
  ASSERT_TRUE(entry.save());
  EXPECT_FALSE(entry.isUnsaved());
  EXPECT_EQ(inTax("Select Sum(SumKum) & '/' & Count(*) & '/' & Min(Code) & '/' & Max(Code) From NewAcount"),
            "1000000000026/2/000001/000002");
  entry.finishCell(1, AcountCol::Name, "다음");
  EXPECT_EQ(grid.text(1, AcountCol::TaxCode), "2603002") << "behind the one that waits";
  pc.prompts.expect("선택하신 내역을 삭제하시겠습니까?");
  pc.prompts.expect("내역을 삭제하였습니다");
  entry.deleteLine(1);
  EXPECT_FALSE(entry.isUnsaved());
}

TEST_F(TypedTaxes, TheCustomersOwnChoiceSplitsATypedLine) {
  session.dbBasic.createTable(schema::table(schema::File::Ledger, "Trader"));
  tests::insertRows(session.dbBasic, "Trader(Code, VAT)", {"'000001', 1", "'000002', 0"});
  const auto split = [&](const QString& client, int col, const QString& typed) {
    entry.setClient(client, "a");
    if (col == AcountCol::Price) entry.finishCell(1, AcountCol::Quantity, "1");
    entry.finishCell(1, col, typed);
    return entry.grid().text(1, AcountCol::Supply) + '|' + entry.grid().text(1, AcountCol::Tax);
  };
  EXPECT_EQ(split("1", AcountCol::Price, "1100"), "1,000|100");
  EXPECT_EQ(split("1", AcountCol::Supply, "1100"), "1,100|110") << "a typed supply is without the tax";
  EXPECT_EQ(split("2", AcountCol::Price, "1100"), "1,100|0");
  EXPECT_EQ(split("2", AcountCol::Total, "1100"), "1,000|100") << "a typed total holds it";
}

TEST_F(TypedTaxes, TheyAreIssuedWithAllTheirLinesAndComeBackWithThem) {
  typeLines(5, [this](int line) {
    entry.finishCell(line, AcountCol::Name, u"품목%1"_s.arg(line));
    entry.finishCell(line, AcountCol::Quantity, "1");
    entry.finishCell(line, AcountCol::Price, QString::number(1'000 * line));
  });
  TaxAsk ask = month(TaxTab::Pending, {});
  desk.list(ask);
  EXPECT_EQ(cells(desk, 1, {IssueDate, DealDate, Supply, Tax, Item}),
            "2026-03-30|2026-03-15|15000|1500|품목1");
  desk.ticks().setAll(true);
  const auto& job = issue(ask);
  EXPECT_EQ(job.pages, 2) << "four lines have room";
  EXPECT_EQ(inTax("Select Section & DealDate From TaxAcount"), "32026-03-15");
  EXPECT_EQ(inTax("Select Count(*) From NewAcount"), "0");
  ask.tab = TaxTab::Issued;
  listAll(ask);
  EXPECT_EQ(issue(ask).texts(2), job.texts(2)) << "printed again from the register";

  SpreadModel sheet;
  desk.fillBulk(sheet, true);
  ASSERT_EQ(sheet.MaxRows(), 1);
  const auto rowOf = [&](const QString& headers) {
    QStringList found;
    for (const QString& header : headers.split('|')) found << cellOf(sheet, header);
    return found.join('|');
  };
  EXPECT_EQ(rowOf("작성일자|공급자 등록번호|공급받는자 등록번호|공급받는자 상호|공급가액|세액|영수(01)"),
            "20260330|1234567891|2208162517|한라식당|15000|1500|01");
  EXPECT_EQ(rowOf("일자1|품목3|수량3|단가3|공급가액3"), "15|품목3|1|3000|3000");
  EXPECT_EQ(rowOf("품목4|수량4|단가4|공급가액4|세액4"), "품목4 외 1건|||9000|900") << "and the fifth in it";
  SpreadModel four;
  fillBulkSheet(four, {}, {{.lines = std::vector<TaxLine>(4, {.PName = "가스", .Quantity = 2})}}, false);
  EXPECT_EQ(cellOf(four, "품목4") + cellOf(four, "수량4"), "가스2") << "four have room";
  EXPECT_EQ(sheet.MaxCols(), 22 + 4 * 8 + 5);
  int numbers = 0;
  for (int col = 1; col <= sheet.MaxCols(); ++col) numbers += sheet.column(col).kind == CellKind::Money;
  EXPECT_EQ(numbers, 2 + 4 * 4 + 4) << "every amount, quantity and price is a number";
}

TEST_F(TypedTaxes, TheFormsChoiceOverThemIsKeptLineByLine) {
  typeLines(3, [this](int line) {
    entry.finishCell(line, AcountCol::Name, "품목");
    entry.finishCell(line, AcountCol::Supply, "14");  // 1 of tax, 15 together
  });
  const auto issuedBy = [&](Vat vat) {
    TaxAsk ask = month(TaxTab::Pending, {});
    ask.vat = vat;
    desk.list(ask);
    desk.ticks().setAll(true);
    return cells(desk, 1, {Supply, Tax, Total}) + ' ' +
           print(desk.papers(ask, "2603001", {.layout = DocumentLayout::HalfA4}))
               .texts()
               .filter(QRegularExpression("^ +[0-9]+$"))
               .join("")
               .simplified();
  };
  EXPECT_EQ(issuedBy(Vat::Included), "42|3|45 14 1 14 1 14 1 14 1 14 1 14 1") << "as typed";
  // A tenth of 45 is 4.5, to the even 4; each line's 1.5 goes to 2, and the last gives back what is too much.
  EXPECT_EQ(issuedBy(Vat::OnTop), "45|4|49 15 2 15 2 15 15 2 15 2 15");
  EXPECT_EQ(issuedBy(Vat::None), "45|0|45 15 15 15 15 15 15");
}

// --- the papers -------------------------------------------------------------------------------------------------

TEST_F(Taxes, HalfA4TextByText) {
  sale("2026-03-02", 1, 30'000, 2);
  setDocumentMargins(session, "세금계산서", {"1", "2"});
  gatherAll();
  serial = "2603007";
  const auto& job = issue(month(), {.layout = DocumentLayout::HalfA4, .receipt = true});
  EXPECT_EQ(job.pages, 1);
  for (const double top : {1 + 1.5, 1 + 1.5 + 35.07})
    expectTexts(job, 1, top, 2,
                R"(
3.9: 86=2603-007
6.3: 30=123-45-67891|67=220-81-62517
8.2: 25=해온가스|48=홍길동|72=한라식당|96=김하나
10.8: 25=서울 중구 1|72=서울 강남 2
12.9: 25=소매|42=가스|72=음식|90=한식
16.9: 11=2026|17=03|21=31|30=            5 4 5 4 5 |53=            5 4 5 5 |26=6
20.3: 12=03|15=-|20=LPG (20)|52=      2|62=   30,000|73=        54,545|88=       5,455
22.1: 22==== 이하 여백 ===
28.6: 12=*********60,000|100=영수)");
  EXPECT_TRUE(isTextAlone(job));
}

TEST_F(Taxes, TheDrawnFormHasADigitACellAndBothColours) {
  sale("2026-03-02", 1, 30'000, 2);
  TaxAsk ask = month(TaxTab::Pending, TaxGathering::Daily);
  gatherAll(ask);
  const auto& job = print(desk.papers(ask, "2603001", {}));
  EXPECT_EQ(inTax("Select Count(*) From TaxAcount"), "0") << "looked at, nothing issued";
  const double upper = 1.5 * row, lower = (1.5 + 35.07) * row;
  expectWords(job, {upper, lower},
              {{"(별지 제11호 서식)", {0.68}, {0.10}},
               {"세  금  계  산  서", {1.50}, {0.49}},
               {"권|호", {6.48, 7.21}, {0.42}},
               {"책 번 호|일련번호", {5.30}, {0.43, 0.66}},
               {"공|급|자", {0.71}, {1.02, 1.58, 2.14}},
               {"등록|번호|상호", {0.91}, {0.94, 1.14, 1.34}},
               {"(법인명)|사업장|주  소", {0.88}, {1.53, 1.71, 1.88}},
               {"업태", {0.91}, {2.14}},
               {"성|명", {2.63}, {1.32, 1.51}},
               {"종|목", {2.60}, {2.05, 2.25}},
               {"공|급|받|는|자", {3.93}, {1.02, 1.24, 1.68, 1.90, 2.12}},
               {"등록|번호|상호", {4.15}, {0.94, 1.14, 1.34}},
               {"(법인명)|사업장|주  소", {4.12}, {1.53, 1.71, 1.88}},
               {"업태", {4.15}, {2.14}},
               {"성|명", {6.07}, {1.32, 1.51}},
               {"종|목", {6.02}, {2.05, 2.25}},
               {"년|월|일", {0.86, 1.26, 1.56}, {2.60}},
               {"작    성", {0.95}, {2.42}},
               {"공란수백십억천백십만천백십일십억천백십만천백십일", {1.79}, {2.62}},
               {"공  급  가  액|세    액|비              고", {1.95, 3.38, 4.90}, {2.42}},
               {"월  일|품    목   -   규    격|수   량|단   가|공 급  가 액|세    액|비  고",
                {0.78, 1.65, 3.60, 4.28, 4.98, 6.15, 7.02},
                {3.12}},
               {"합  계   금  액", {1.05}, {4.56}},
               {"현     금|수     표|어     음|외상미수금", {2.51, 3.43, 4.33, 5.12}, {4.57}},
               {"이 금액을        함", {6.20}, {4.72}}});
  EXPECT_EQ(job.at(1, 3.94, upper + 0.53)->text, "(공급자 보관용)");
  EXPECT_EQ(job.at(1, 3.94, lower + 0.53)->text, "(공급받는자 보관용)");
  constexpr double cell = 8.0 / 72, indent = (cell - column) / 2;
  for (const double edge : {upper, lower}) {
    const auto inCell = [&](int number, double inset) {
      const auto* item = job.at(1, 1.79 + number * cell + inset, edge + 16.9 * row);
      return item ? item->text : " ";
    };
    QString digits = inCell(1, 0);  // of the empty cells
    for (int number = 3; number < 24; ++number) digits += inCell(number, indent);
    EXPECT_EQ(digits,
              "6"
              "      54545"
              "      5455");
    EXPECT_TRUE(hasBox(job, edge, 0.68, 0.85, 7.5, 5.0));
    expectLines(job, edge, false, {0.36, 0.60}, 5.25, 7.5);
    expectLines(job, edge, true, {5.25, 5.67, 7.5}, 0.36, 0.85);
    expectLines(job, edge, false, {1.28, 1.68, 2.03}, 0.86, 3.90);
    expectLines(job, edge, false, {1.28, 1.68, 2.03}, 4.09, 7.5);
    expectLines(job, edge, true, {0.86, 4.09}, 0.85, 2.38);
    expectLines(job, edge, true, {3.90}, 0.85, 2.38, 1);
    expectLines(job, edge, true, {2.57, 6.03}, 1.28, 1.68);
    expectLines(job, edge, true, {2.54, 5.97}, 2.03, 2.38);
    expectLines(job, edge, false, {2.58}, 0.68, 1.79 + 24 * cell);
    expectLines(job, edge, false, {2.77}, 0.68, 1.79 + 24 * cell, 0.25);
    expectLines(job, edge, true, {1.18, 1.47}, 2.58, 3.05, 0.25);
    expectLines(job, edge, true, {1.79}, 2.38, 3.05);
    expectLines(job, edge, false, {2.38, 3.05, 4.50}, 0.68, 7.5, 1);
    expectLines(job, edge, false, {3.30}, 0.68, 7.5);
    expectLines(job, edge, false, {3.60, 3.90, 4.20}, 0.68, 7.5, 0.25);
    expectLines(job, edge, true, {1.115}, 3.30, 4.50, 0.25);
    expectLines(job, edge, true, {1.30, 3.50, 4.15, 4.96, 6.08, 6.95}, 3.05, 4.50);
    expectLines(job, edge, false, {4.72}, 0.68, 6.10);
    expectLines(job, edge, true, {2.27, 3.20, 4.10, 5.02, 6.10}, 4.50, 5.0);
    for (int number = 3; number <= 24; ++number) {
      const bool begins = number == 14 || number == 24;
      const double x = 1.79 + number * cell;
      EXPECT_TRUE(hasLine(job, x, edge + (begins ? 2.38 : 2.58), x, edge + 3.05)) << "cell " << number;
    }
    expectTexts(job, 1, edge / row, 2,
                R"(
3.9: 82=2603-001
6.3: 30=123-45-67891|67=220-81-62517
8.2: 19=해온가스|48=홍길동|72=한라식당|96=김하나
10.8: 19=서울 중구 1
12.9: 19=소매
16.9: 11=2026|17=03|22=31
20.3: 12=03|15=02
28.6: 12=*********60,000|98=청구)");  // in the form's sentence, whatever the margin
    const auto* title = job.at(1, 1.50, edge + 0.49);
    EXPECT_EQ(title->ink.blue, edge == upper ? 200 : 0);
    EXPECT_EQ(title->ink.red, edge == upper ? 0 : 200);
    EXPECT_EQ(job.at(1, 21 * column, edge + 8.2 * row)->ink.blue, 0) << "texts are black";
  }
  const auto half = std::ranges::find_if(job.items, [](const auto& item) { return item.dashed; });
  ASSERT_NE(half, job.items.end());
  EXPECT_NEAR(half->y, 11.69 / 2, 0.001);
}

TEST_F(Taxes, WithoutTaxNothingStandsWhereItWouldAndTheDotPrinterDrawsNothing) {
  sale("2026-03-02", 1, 30'000, 2);
  sale("2026-03-03", 1, 1'000, 1);
  TaxAsk ask = month();
  ask.vat = Vat::None;
  gatherAll(ask);
  const auto& job =
      print(desk.papers(ask, "2603001", {.layout = DocumentLayout::HalfA4, .withoutTax = true}));
  EXPECT_EQ(at(job, 1, 1.5 + 16.9, 53), "-");
  EXPECT_EQ(at(job, 1, 1.5 + 20.3, 88), "-");
  EXPECT_EQ(at(job, 1, 1.5 + 20.3, 20), "LPG 외");
  EXPECT_EQ(at(job, 1, 1.5 + 20.3, 52), "-") << "several lines have no one quantity";
  for (const DocumentLayout layout : {DocumentLayout::HalfA4B, DocumentLayout::Dot}) {
    const bool dot = layout == DocumentLayout::Dot;
    const auto& other = print(desk.papers(ask, "2603001", {.layout = layout}));
    EXPECT_EQ(other.paper.height, dot ? 11 : 11.69);
    EXPECT_TRUE(isTextAlone(other));
    for (const double top : {1.5, 1.5 + (dot ? 33 : 35.07)})
      expectTexts(other, 1, top, 0,
                  R"(
3.9: 82=2603-001
6.3: 67=220-81-62517
8.2: 19=해온가스|72=한라식당
10.8: 19=서울 중구 1
12.9: 19=소매
16.9: 26=6
22.1: 22==== 이하 여백 ===
28.6: 12=*********61,000|100=청구)");
  }
  const auto& bare = print(desk.papers(ask, "2603001", {.drawnForm = false}));
  EXPECT_TRUE(isTextAlone(bare));
  EXPECT_EQ(at(bare, 1, 1.5 + 3.9, 2 + 82), "2603-001") << "the whole sheet without its form";
}

TEST_F(Taxes, NothingIsIssuedWithoutACompanyAndARefusalStandsInTheRegister) {
  sale("2026-03-02", 1, 30'000, 2);
  desk.gather(month());
  pc.prompts.expect("발행할 거래내역을 선택하세요.");
  EXPECT_FALSE(desk.hasPapers());
  desk.ticks().setAll(true);
  EXPECT_TRUE(desk.hasPapers());
  session.dbBasic.Execute("Delete From User");
  pc.prompts.expect("사용자등록부터 하셔야 합니다");
  EXPECT_FALSE(desk.hasPapers());
  printers.refusal = "용지 없음";
  const DocumentRun run = desk.issue(month(), serial, {});
  EXPECT_EQ(run.name(0), "2026-03-31 한라식당 세금계산서 2603001");
  EXPECT_THROW(print(run), pc::PrintError);
  printers.refusal.clear();
  listAll(month(TaxTab::Issued));
  EXPECT_TRUE(issue(month(TaxTab::Issued)).texts().contains("2603-001"));
}

TEST(DocumentLayouts, EveryChoiceOfTheDialogIsALayout) {
  EXPECT_EQ(layoutOf({false, 0}), DocumentLayout::HalfA4);
  EXPECT_EQ(layoutOf({false, 1}), DocumentLayout::FullA4);
  EXPECT_EQ(layoutOf({false, 2}), DocumentLayout::HalfA4B);
  for (int paper = 0; paper < 3; ++paper) EXPECT_EQ(layoutOf({true, paper}), DocumentLayout::Dot);
}

TEST(BusinessNumber, TheLastDigitFollowsFromTheNine) {
  EXPECT_TRUE(mayBeBusinessNumber("123-45-67891"));  // 169 leaves 1
  EXPECT_FALSE(mayBeBusinessNumber("123-45-67890"));
  EXPECT_FALSE(mayBeBusinessNumber("1234567892"));
  EXPECT_TRUE(mayBeBusinessNumber("220 81 62517"));
  for (const char* typed : {"220-18-62517", "220 18 62517", " 220-18 62517"})
    EXPECT_FALSE(mayBeBusinessNumber(typed)) << typed << ": two digits changed places";
  EXPECT_TRUE(mayBeBusinessNumber("123-45-67890x")) << "no number of this kind";
  EXPECT_TRUE(mayBeBusinessNumber("000-00-00000"));
  EXPECT_TRUE(mayBeBusinessNumber("")) << "none";
  EXPECT_TRUE(mayBeBusinessNumber("800101-1234567")) << "a resident's number is none of these";
  EXPECT_TRUE(mayBeBusinessNumber("12345A7890"));
}

}  // namespace
