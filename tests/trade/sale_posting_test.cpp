#include "tests/cells.h"
#include "tests/trade/line_cases.h"

using namespace Qt::StringLiterals;

namespace {

using tests::SaleDesk;

/** The rules joined as the form joins them; the helpers play the operator's hand. */
struct Sale : SaleDesk {
  SaleBook posting{pc.session};
  SaleEntry entry{posting, pickers, calls};

  Sale() { posting.FillSaleGrid(SaleSheet::General, true); }

  SpreadModel& cells() { return posting.grid(); }
  QString cell(int row, int col) { return cells().text(row, col); }
  /** Number, price, discount, amount, income, credit. */
  QString figures(int row) {
    return tests::cellsOf(cells(), row, LineCol::Number, LineCol::Trust).join(u'|');
  }
  QString line(int key) {
    return rows(
        "Select SaleDate, SaleGubun, SaleName, SaleThing, SaleNum, SaleUnit, DC, Income, Trust From Sale "
        "Where SaleID = " +
        QString::number(key));
  }
  int newRow(int client, const QString& name) {
    pickers.clients.push_back(ClientChoice{client, name});
    const LineStep step = entry.enterKey(cells().MaxRows(), LineCol::Partner, name);
    EXPECT_EQ(step.col, LineCol::Kind);
    return step.row;
  }
  void item(int row, const QString& name, const QString& size, double price) {
    pickers.items.push_back(ItemChoice{name, size, price, 0});
    EXPECT_EQ(entry.enterKey(row, LineCol::Item, {}).col, LineCol::Amount);
  }
  LineStep change(int row, int col, const QString& typed) {
    pc.prompts.expect("선택된 자료를 변경하시겠습니까?");
    return entry.finishCell(row, col, typed);
  }
  /** A gas line of one piece of size 20 at 40,000 won, paid. */
  int gasLine() {
    const int row = newRow(Plain, "산골식당");
    EXPECT_EQ(entry.enterKey(row, LineCol::Kind, "가스").col, LineCol::Item);
    item(row, "LPG", "20", 40000);
    return row;
  }
  int ofKind(const QString& label) {
    const int row = newRow(Plain, "산골식당");
    entry.finishCell(row, LineCol::Kind, label);
    return row;
  }
};

TEST(SaleKinds, PositionsAndCodes) {
  const LineKinds& general = saleKinds(SaleSheet::General);
  const int gas[] = {1, 4, 5, 6, 2, 3};
  for (int at = 0; at < 6; ++at) {
    EXPECT_EQ(kindAt(general, at).code, gas[at]);
    EXPECT_EQ(positionOf(saleKinds(SaleSheet::Volume), gas[at]), at);
  }
  EXPECT_EQ(kindAt(saleKinds(SaleSheet::Material), 1).code, 8);
  EXPECT_EQ(positionOf(general, 9), 5) << "an unknown kind stands at the last position";
  EXPECT_EQ(kindAt(general, -1).code, SaleGas) << "an untouched cell";
  QStringList kinds;
  for (int code = 1; code <= 9; ++code) kinds << saleKind(code).label + saleKind(code).searchCode;
  EXPECT_EQ(kinds, QStringList({"가스1", "용판2", "실병3", "수금", "용대5", "용회6", "자판4", "자수", ""}));
  EXPECT_EQ(saleKindIs("K", LineBalance::Material), "(K = 7 Or K = 8)");
  EXPECT_EQ(saleKindIs("K", LineBalance::Gas, KindPart::Sold), "(K = 1 Or K = 5 Or K = 6 Or K = 2 Or K = 3)");
  EXPECT_EQ(saleIsGasGoods("K"), "Not ((K = 4) Or (K = 7 Or K = 8))");
  EXPECT_EQ(buyKindIs("K", LineBalance::Material, KindPart::Sold), "(K = 4)");
  EXPECT_EQ(buyIsGasGoods("K"), "Not ((K = 7) Or (K = 4 Or K = 8))");
}

TEST(TradeLine, FiguresOfACellAreWholeAsTheStoreRounds) {
  const std::pair<const char*, qint64> cells[] = {
      {"1,234", 1234}, {"2.5", 2}, {"3.5", 4}, {"-2.6", -3}, {"", 0}};
  for (const auto& [text, whole] : cells) EXPECT_EQ(lineWhole(text), whole) << text;
}

TEST(SalePosting, EachKindAsksForItsItemsAndAPaymentForNone) {
  Sale sale;
  sale.item(sale.ofKind("실병"), "LPG", "20", 40000);
  EXPECT_EQ(sale.pickers.asked.last(), "item 3");
  const int collection = sale.ofKind("수금");
  EXPECT_TRUE(sale.cells().locked(collection, LineCol::Number));
  const QStringList asked = sale.pickers.asked;
  EXPECT_EQ(sale.entry.enterKey(collection, LineCol::Item, "가스수금").col, LineCol::Paid);
  sale.entry.search(collection, LineCol::Item, {});
  EXPECT_EQ(sale.pickers.asked, asked) << "a payment has no item to look for";
  sale.change(collection, LineCol::Paid, "10000");
  sale.posting.refill();
  EXPECT_TRUE(sale.cells().locked(collection, LineCol::Number));
  EXPECT_EQ(sale.entry.missingField(collection), 0);
  sale.posting.FillSaleGrid(SaleSheet::Material, true);
  sale.item(sale.ofKind("자판"), "밸브", "15A", 30000);
  EXPECT_EQ(sale.pickers.asked.last(), "item 4");
}

TEST(SalePosting, AMeterCustomerFoundOnTheGeneralSheetMovesOver) {
  Sale sale;
  const int row = sale.newRow(Sale::Metered, "별빛 3동");
  EXPECT_EQ(sale.posting.sheet(), SaleSheet::Volume);
  EXPECT_EQ(sale.entry.enterKey(row, LineCol::Unit, {}).row, 0) << "Enter stays on the volume sheet";
  sale.newRow(Sale::Metered, "별빛");
  EXPECT_EQ(sale.pickers.asked.last(), "client 별빛 1 0") << "there only they are looked for";
  sale.posting.FillSaleGrid(SaleSheet::Material, true);
  sale.newRow(Sale::Metered, "별빛");
  EXPECT_EQ(sale.pickers.asked.last(), "client 별빛 2 0");
  EXPECT_EQ(sale.posting.sheet(), SaleSheet::Material) << "whom the meter bills buys fittings too";
}

TEST(SalePosting, TheDeletionNamesItsLine) {
  Sale sale;
  const int row = sale.gasLine();
  sale.pc.prompts.expect("산골식당   LPG / 20   1개   40,000원\n선택한 자료를 삭제하시겠습니까?", false);
  EXPECT_FALSE(sale.posting.deleteRow(row));
  EXPECT_EQ(sale.rows("Select Count(*) From Sale"), "1");
}

TEST(SalePosting, TheDayViewTakesTheWorkingYear) {
  Sale sale;
  sale.gasLine();
  sale.run("Update Sale Set SaleDate = '2025-03-05'");
  sale.pc.session.WorkYear = "2025";
  sale.posting.FillSaleGrid(SaleSheet::General, true);
  EXPECT_EQ(sale.cell(1, LineCol::Item), "LPG / 20");
}

TEST(SalePosting, MoreThanTheAmountIsToldInWords) {
  Sale sale;
  const int row = sale.gasLine();
  sale.pc.prompts.expect("선택된 자료를");
  sale.pc.prompts.expect("실제금액보다 크게 입력할 수 없습니다!");
  EXPECT_EQ(sale.entry.finishCell(row, LineCol::Amount, "40001").end, LineStep::PutBack);
}

TEST(SalePosting, AStoredLineAsksBeforeItChangesAndKeepsItsKind) {
  Sale sale;
  const int row = sale.gasLine();
  sale.pc.prompts.expect("구분은 변경할 수 없습니다.");
  EXPECT_EQ(sale.entry.finishCell(row, LineCol::Kind, "수금").end, LineStep::PutBack);
  sale.pc.prompts.expect("자료수정", false);
  EXPECT_EQ(sale.entry.finishCell(row, LineCol::Number, "9").end, LineStep::PutBack);
  EXPECT_EQ(sale.line(1), "2026-03-05|1|LPG|20|1|40000|0|40000|0");
  EXPECT_EQ(sale.cell(row, LineCol::Kind) + sale.cell(row, LineCol::Number), "가스1");
}

TEST(SalePosting, DaysAreThisYearsAndMayTakeTheLastDateBack) {
  Sale sale;
  const int row = sale.gasLine();
  EXPECT_EQ(sale.change(row, LineCol::Date, "02-10").col, LineCol::Partner);
  EXPECT_EQ(sale.rows("Select SaleDate From Sale"), "2026-02-10");
  EXPECT_EQ(sale.rows("Select LastDate From Client Where Code = 1"), "2026-02-10");
  EXPECT_EQ(sale.posting.date(), "02-10");

  sale.pc.prompts.expect("선택된 자료를");
  sale.pc.prompts.expect("날짜 입력이 올바르지 않습니다!\n입력예) 03.05");
  EXPECT_EQ(sale.entry.finishCell(row, LineCol::Date, "02-30").col, LineCol::Date);
  EXPECT_EQ(sale.cell(row, LineCol::Date) + sale.posting.date(), "");
  EXPECT_EQ(sale.rows("Select SaleDate From Sale"), "2026-02-10") << "a wrong day is never written";
  sale.pc.prompts.expect("날짜를 입력하세요");
  EXPECT_EQ(sale.entry.finishCell(row, LineCol::Number, "3").col, LineCol::Date) << "nor a cell without one";
  for (const char* const typed : {"LPG / 20", "50"}) {  // the list, and a size that is found without it
    sale.pc.prompts.expect("날짜를 입력하세요");
    EXPECT_EQ(sale.entry.enterKey(row, LineCol::Item, typed).col, LineCol::Date);
  }
  sale.pc.prompts.expect("날짜를 입력하세요");
  EXPECT_EQ(sale.entry.missingField(row), LineCol::Date);
  EXPECT_TRUE(sale.posting.setDate("3.5"));
  EXPECT_EQ(sale.posting.date(), "03-05");
}

TEST(SalePosting, AFailedStepLeavesThoseBeforeItAndTheRowAsItWas) {
  Sale sale;
  const int row = sale.gasLine();
  sale.change(row, LineCol::Paid, "30000");
  sale.pc.prompts.expect("선택된 자료를");
  EXPECT_THROW(sale.entry.finishCell(row, LineCol::Person, "박'기사"), jet::Error);
  EXPECT_EQ(sale.cell(row, LineCol::Person), "");
  sale.pc.session.StockEnabled = false;
  sale.cells().setText(row, LineCol::Item, "L'PG / 20");
  sale.cells().setText(row, LineCol::Trust, "15000");
  EXPECT_THROW(sale.posting.postRow(row), jet::Error);
  EXPECT_EQ(sale.balance(), "115000|5000") << "10,000 of the line, then 5,000 more before the update failed";
  EXPECT_EQ(sale.rows("Select SaleName, Trust From Sale"), "LPG|10000");
}

TEST(SalePosting, WithoutAnItemOnlyTheBalanceMoves) {
  Sale sale;
  const int row = sale.newRow(Sale::Plain, "산골식당");
  sale.entry.enterKey(row, LineCol::Kind, "가스");
  sale.cells().setText(row, LineCol::Trust, "700");
  sale.posting.postRow(row);
  EXPECT_EQ(sale.balance(), "100700|5000");
  EXPECT_EQ(sale.line(1), "2026-03-05|1||0|0|0|0|0|0");
  sale.pc.prompts.expect("품명을 검색하세요");
  EXPECT_EQ(sale.entry.missingField(row), LineCol::Item);
}

TEST(SalePosting, SheetsShowTheirLinesOfADayOrOfACustomer) {
  Sale sale;
  for (const char* const line : {"'2026-03-05', 2, 1, False, 'LPG', '20', 2, 40000, 1000, 50000, 29000",
                                 "'2026-03-04', 2, 9, False, 'LPG', '20', 1, 1, 0, 0, 0",
                                 "'2026-03-05', 3, 1, True, 'LPG', '50', 1, 90000, 0, 0, 0",
                                 "'2026-03-05', 1, 8, False, '자재수금', '0', 0, 0, 0, 3000, 2000",
                                 "'2024-12-31', 2, 1, False, 'LPG', '20', 1, 1, 0, 0, 0",
                                 "'2026-03-05', 3, 7, True, '밸브', '15A', 1, 100, 0, 100, 0",
                                 "'2026-03-05', 3, 8, True, '자재수금', '0', 0, 0, 0, 100, 0"})
    sale.sold(line);

  sale.posting.FillSaleGrid(SaleSheet::General, true);
  ASSERT_EQ(sale.cells().MaxRows(), 2) << "one line and the spare row";
  EXPECT_EQ(sale.cell(1, LineCol::Partner), "한빛 101동 202호");
  EXPECT_EQ(sale.cell(1, LineCol::Item), "LPG / 20");
  EXPECT_EQ(sale.figures(1), "2|40000|1000|79000|50000|29000");
  sale.posting.setClient(2);
  sale.posting.FillSaleGrid(SaleSheet::General, false);
  ASSERT_EQ(sale.cells().MaxRows(), 3) << "this year's and last year's lines";
  EXPECT_EQ(sale.cell(1, LineCol::Kind), "실병") << "a kind outside the table stands at the last position";
  sale.posting.FillSaleGrid(SaleSheet::Volume, true);
  EXPECT_EQ(tests::columnOf(sale.cells(), LineCol::Partner), QStringList({"별빛 3동", ""}))
      << "fittings stand on their own sheet alone";
  sale.posting.FillSaleGrid(SaleSheet::Material, true);
  EXPECT_EQ(sale.cell(1, LineCol::Item) + sale.figures(1), "자재수금|||5000|3000|2000");

  const SaleClientPanel panel = sale.posting.panel(1);
  EXPECT_EQ(panel.address + panel.gasTrust + panel.utilTrust, "(706-010) 대구 수성구 1100,0005,000");
  EXPECT_EQ(panel.map, "약도없슴");
  EXPECT_EQ(sale.posting.panel(4).address, "");
}

TEST(SaleEntry, ChoosingACustomerOnAStoredLineOpensTheBottomRow) {
  Sale sale;
  sale.gasLine();
  sale.posting.refill();
  ASSERT_EQ(sale.cells().MaxRows(), 2);
  sale.pickers.clients = {ClientChoice{2, "한빛 101동 202호"}, ClientChoice{2, "한빛 101동 202호"}};
  sale.pc.prompts.expect("선택된 고객을 수정하시겠습니까?", false);
  EXPECT_EQ(sale.entry.search(1, LineCol::Partner, {}).end, LineStep::PutBack);
  sale.pc.prompts.expect("고객수정");
  const LineStep step = sale.entry.search(1, LineCol::Partner, {});
  EXPECT_EQ(step.row, 1);
  EXPECT_EQ(sale.cell(1, LineCol::Partner) + sale.cell(1, LineCol::Code) + sale.cell(1, LineCol::Date),
            "한빛 101동 202호203-05");
  EXPECT_EQ(sale.rows("Select ClientCode From Sale"), "1");
  sale.posting.FillSaleGrid(SaleSheet::General, true);
  sale.pickers.asked.clear();
  EXPECT_EQ(sale.entry.enterKey(1, LineCol::Partner, {}).col, LineCol::Kind) << "Enter only passes it";
  EXPECT_TRUE(sale.pickers.asked.isEmpty());
}

TEST(SaleEntry, CreditAsksUnlessTheLineWasBegunHereAndNotYetLeft) {
  Sale sale;
  const int row = sale.gasLine();
  EXPECT_EQ(sale.entry.onCredit(row).col, LineCol::Person);
  EXPECT_EQ(sale.balance(), "140000|5000");
  sale.entry.makeRoomBelow(row);
  sale.entry.enteredRow(row + 1);
  sale.change(row, LineCol::Paid, "40000");
  for (const bool yes : {false, true}) {
    sale.pc.prompts.expect("선택된 자료를 변경하시겠습니까?", yes);
    sale.entry.onCredit(row);
    EXPECT_EQ(sale.balance(), yes ? "140000|5000" : "100000|5000");
  }
}

TEST(SaleEntry, TheLastCellOpensTheNextRowOnlyWhenNothingIsMissing) {
  Sale sale;
  const int row = sale.gasLine();
  sale.pickers.persons = {u"홍길동"_s};
  LineStep step = sale.entry.enterKey(row, LineCol::Person, {});
  EXPECT_EQ(step.row, row + 1);
  EXPECT_EQ(step.col, LineCol::Partner);
  EXPECT_EQ(sale.rows("Select Response From Sale"), "홍길동");
  EXPECT_EQ(sale.entry.missingField(row + 1), 0) << "an empty row may be left";
  sale.pc.prompts.expect("선택된 자료를");
  EXPECT_EQ(sale.entry.finishCell(row, LineCol::Partner, "다른 이름").col, LineCol::Partner);
  EXPECT_EQ(sale.cell(row, LineCol::Partner), "") << "a name only comes from the search";
  sale.pickers.persons = {u"홍길동"_s};
  sale.pc.prompts.expect("고객명을 검색하세요");
  EXPECT_EQ(sale.entry.enterKey(row, LineCol::Person, {}).col, LineCol::Partner);
}

TEST(SaleEntry, NobodyChosenLeavesTheCustomerCellEmpty) {
  Sale sale;
  LineStep step = sale.entry.enterKey(1, LineCol::Partner, "산골");
  EXPECT_EQ(step.end, LineStep::PutBack) << "nothing is open any more";
  EXPECT_EQ(sale.cell(1, LineCol::Partner), "");
  const int row = sale.newRow(Sale::Plain, "산골식당");
  sale.entry.enterKey(row, LineCol::Partner, "한빛");
  EXPECT_EQ(sale.cell(row, LineCol::Partner) + sale.cell(row, LineCol::Code), "산골식당1") << "chosen before";
  sale.entry.finishCell(row, LineCol::Partner, "한빛");
  EXPECT_EQ(sale.cell(row, LineCol::Partner) + sale.cell(row, LineCol::Code), "");
  sale.entry.enterKey(row, LineCol::Kind, "가스");
  EXPECT_EQ(sale.rows("Select Count(*) From Sale"), "0") << "no line for a customer whom nobody sees";
}

TEST(SaleEntry, TheWholeNumberOfACallerComesFirstOverAllCustomers) {
  Sale sale;
  sale.pickers.during = [&] { EXPECT_FALSE(sale.entry.canTakeCaller(LineCol::Partner, {})); };
  ASSERT_TRUE(sale.entry.canTakeCaller(LineCol::Partner, {}));
  EXPECT_FALSE(sale.entry.canTakeCaller(LineCol::Partner, "김"));
  EXPECT_FALSE(sale.entry.canTakeCaller(LineCol::Date, {}));
  // A meter customer of another area, found first by the end of the number.
  sale.run("Update Client Set Tel2 = '02-123-4567' Where Code = 3");
  sale.run("Update Client Set UName = '9999 4567' Where Code = 2");
  const auto landed = sale.entry.TakeCallerNumber("0531234567");
  ASSERT_TRUE(landed);
  EXPECT_EQ(landed->end, LineStep::Done);
  EXPECT_EQ(landed->col, LineCol::Kind);
  EXPECT_EQ(sale.cell(landed->row, LineCol::Partner), "산골식당");
  EXPECT_EQ(sale.entry.TakeCallerNumber("99994567")->end, LineStep::Done) << "the search name, other dashes";
  EXPECT_EQ(sale.cell(1, LineCol::Partner), "한빛 101동 202호");
  sale.posting.FillSaleGrid(SaleSheet::Material, true);
  EXPECT_EQ(sale.entry.TakeCallerNumber("021234567")->end, LineStep::Done);
  EXPECT_EQ(sale.posting.sheet(), SaleSheet::Volume);
  EXPECT_TRUE(sale.pickers.asked.isEmpty()) << "nobody had to be looked for";
  sale.run("Update Client Set Tel2 = '053-123-4567' Where Code = 2");
  sale.pickers.clients = {ClientChoice{2, "한빛 101동 202호"}};
  sale.entry.TakeCallerNumber("0531234567");
  EXPECT_EQ(sale.pickers.asked.value(0), "client 053-123-4567 2 1") << "two of one number: the list";
}

TEST(SaleEntry, TheEndOfACallersNumberOnlyMakesAList) {
  Sale sale;
  int closed = 0;
  sale.posting.grid().setObserver(
      [&](SpreadModel::What what, int, int) { closed += what == SpreadModel::What::Dropped; });
  sale.entry.TakeCallerNumber("0212345678");
  EXPECT_EQ(closed, 1) << "an editor open on the sheet goes, though it is not read anew";
  sale.posting.grid().setObserver(nullptr);
  sale.entry.TakeCallerNumber("0533456789");
  EXPECT_EQ(sale.posting.sheet(), SaleSheet::Volume) << "whoever is chosen, the number is a meter customer's";
  sale.posting.FillSaleGrid(SaleSheet::General, true);
  sale.pickers.asked.clear();
  sale.pickers.clients = {ClientChoice{3, "별빛 3동"}, ClientChoice{2, "한빛 101동 202호"}};
  const auto landed = sale.entry.TakeCallerNumber("0533456789");
  ASSERT_TRUE(landed);
  EXPECT_EQ(sale.pickers.asked.value(0), "client 053-345-6789 2 1") << "over all customers, as a list";
  EXPECT_EQ(sale.posting.sheet(), SaleSheet::Volume);
  EXPECT_EQ(landed->col, LineCol::Kind);
  EXPECT_EQ(sale.entry.TakeCallerNumber("0533456789")->end, LineStep::Done);
  EXPECT_EQ(sale.posting.sheet(), SaleSheet::General) << "the one chosen decides the sheet";

  sale.posting.FillSaleGrid(SaleSheet::Material, true);
  EXPECT_FALSE(sale.entry.TakeCallerNumber({})) << "nobody waits";
  sale.calls.numbers = {"0212345678", "0533456789"};
  EXPECT_EQ(sale.entry.TakeCallerNumber({})->end, LineStep::PutBack) << "nobody chosen";
  EXPECT_EQ(sale.posting.sheet(), SaleSheet::Material) << "an unknown number leaves the sheet";
  EXPECT_EQ(sale.cell(1, LineCol::Partner), "");
  EXPECT_EQ(sale.calls.numbers, QStringList{"0533456789"}) << "fetched";
  sale.posting.grid().setObserver([&](auto, auto, auto) { sale.pc.session.dbYear.Close(); });
  sale.calls.numbers = {"0531234567"};
  sale.pc.prompts.expect("Select Sale.*");
  EXPECT_EQ(sale.entry.TakeCallerNumber({})->end, LineStep::PutBack);
  EXPECT_EQ(sale.calls.numbers, QStringList{"0531234567"}) << "told, and no call is lost";
  sale.calls.numbers = {"0533456789"};
  EXPECT_THROW(sale.entry.TakeCallerNumber({}), jet::Error);
  EXPECT_EQ(sale.calls.numbers, QStringList{"0533456789"}) << "a failure loses no call";
}

TEST(SaleEntry, AnItemTypedInItsCellIsOneOfTheCatalogueOrNothing) {
  Sale sale;
  sale.run("Update LPG Set LPGSelling = 27000 Where Size = '50'");
  sale.run("Insert Into LPG(LPGName, Size, LPGSelling) Values('50', '13', 1)");  // a size goes before a name
  const int row = sale.newRow(Sale::Plain, "산골식당");
  sale.entry.enterKey(row, LineCol::Kind, "가스");
  EXPECT_EQ(sale.entry.enterKey(row, LineCol::Item, "50").col, LineCol::Amount) << "a size is enough";
  EXPECT_EQ(sale.line(1), "2026-03-05|1|LPG|50|1|27000|0|27000|0");
  EXPECT_TRUE(sale.pickers.asked.filter("item").isEmpty());
  for (const char* const nothing : {"45", "lpg", "LPG / 45", "밸브 / 15A", ""}) {
    sale.pc.prompts.expect("등록된 품명이 아닙니다!");
    EXPECT_EQ(sale.entry.finishCell(row, LineCol::Item, nothing).end, LineStep::Refused) << nothing;
  }
  sale.entry.enterKey(row, LineCol::Item, "lpg");
  EXPECT_EQ(sale.pickers.asked.last(), "item 1") << "two sizes of that name: the list";
  sale.change(row, LineCol::Number, "3");
  sale.change(row, LineCol::Item, "lpg / 20");
  EXPECT_EQ(sale.line(1), "2026-03-05|1|LPG|20|3|27000|0|81000|0") << "another whole name keeps the figures";
  const int first = sale.ofKind("가스");
  sale.change(first, LineCol::Item, "LPG / 50");
  EXPECT_EQ(sale.line(2), "2026-03-05|1|LPG|50|1|27000|0|27000|0")
      << "a line's first item is one piece, paid";
}

TEST(SaleEntry, AnOfferFollowsTheKindAndGoesWhenItIsTakenOrItsRowLeft) {
  Sale sale;
  sale.sold("'2026-03-01', 1, 1, False, 'LPG', '20', 1, 40000, 0, 40000, 0");
  sale.sold("'2026-03-02', 1, 5, False, 'LPG', '50', 1, 0, 0, 0, 0");
  int row = sale.newRow(Sale::Plain, "산골식당");
  const auto offered = [&] {
    return sale.cells().offer(row, LineCol::Item) + sale.cells().offer(row, LineCol::Unit);
  };
  EXPECT_EQ(offered(), "LPG / 2040000");
  sale.entry.finishCell(row, LineCol::Kind, "용대");
  EXPECT_EQ(offered(), "LPG / 500");
  sale.entry.enterKey(row, LineCol::Item, {});
  EXPECT_EQ(sale.cell(row, LineCol::Item) + offered(), "LPG / 50");
  row = sale.newRow(Sale::Plain, "산골식당");
  EXPECT_EQ(offered(), "LPG / 2040000");
  sale.entry.enteredRow(1);
  EXPECT_EQ(offered(), "");
}

TEST(SaleEntry, APersonTypedGoesBeforeTheOneOffered) {
  Sale sale;
  sale.pc.session.dbBasic.Execute(u"Insert Into Response(Name) Values('홍길동')");
  sale.sold("'2026-03-01', 1, 1, False, 'LPG', '20', 1, 40000, 0, 40000, 0, '홍길동'");
  const int row = sale.gasLine();
  ASSERT_EQ(sale.cells().offer(row, LineCol::Person), "홍길동");
  EXPECT_EQ(sale.entry.enterKey(row, LineCol::Person, "김").col, LineCol::Person);
  EXPECT_EQ(sale.pickers.asked.last(), "person");
  EXPECT_EQ(sale.entry.enterKey(row, LineCol::Person, {}).row, row + 1);
  EXPECT_EQ(sale.rows("Select Response From Sale Where SaleID = 2"), "홍길동");
  EXPECT_EQ(sale.cells().offer(row, LineCol::Person), "") << "it is taken";
}

TEST(SalePosting, ANewKindClearsFiguresAndPerson) {
  SaleDesk desk;
  SaleBook book(desk.pc.session);
  book.FillSaleGrid(SaleSheet::General, true);
  SpreadModel& cells = book.grid();
  const int row = cells.MaxRows();
  cells.setText(row, LineCol::Code, "1");
  for (int col = LineCol::Number; col <= LineCol::Person; ++col) cells.setText(row, col, "7");
  cells.setComboPosition(row, LineCol::Kind, positionOf(book.kinds(), SaleLoan));
  book.resetRow(row);
  EXPECT_EQ(tests::cellsOf(cells, row, LineCol::Number, LineCol::Person).join(u'|'), "0|0|0|0|0|0|");
}

TEST(SaleEntry, ABalanceBeyondALinesLimitIsCollectedAllTheSame) {
  SaleDesk desk;
  desk.run("Update Client Set GasInit = 2000000000 Where Code = 1");
  SaleBook book(desk.pc.session);
  SaleEntry entry(book, desk.pickers, desk.calls);
  book.FillSaleGrid(SaleSheet::General, true);
  desk.pickers.clients.push_back(ClientChoice{SaleDesk::Plain, "산골식당"});
  tests::CaseHand hand(desk, book, entry);
  hand.begin("수금");
  hand.play({"9=1000"});
  EXPECT_EQ(hand.figures(), "0|0|0|2000000000|1000|1999999000");
  EXPECT_EQ(desk.balance(), "1999999000|5000");
}

TEST(SaleEntry, AFigureIsAWholeNumberOfNineDigitsAtMost) {
  const std::pair<const char*, bool> texts[] = {{"999,999,999", true}, {"-999000000", true},
                                                {"1000000000", false}, {"-1000000000", false},
                                                {"27000.5", false},    {"천원", false}};
  Sale sale;
  const int row = sale.gasLine();
  for (const auto& [typed, taken] : texts) {
    sale.pc.prompts.expect(taken ? "선택된 자료를" : "999,999,999 이하의 정수로 입력하세요!");
    EXPECT_EQ(sale.entry.finishCell(row, LineCol::Unit, typed).end,
              taken ? LineStep::Done : LineStep::Refused)
        << typed;
  }
}

TEST(SaleEntry, ALineTooLargeForTheBookIsToldBeforeAnythingIsWritten) {
  Sale sale;
  const int row = sale.gasLine();
  const QString before = sale.figures(row) + sale.line(1) + sale.stock() + sale.balance();
  for (const auto& [col, typed] : {std::pair(LineCol::Number, "25000"), std::pair(LineCol::Number, "-25000"),
                                   std::pair(LineCol::Discount, "-999970000")}) {
    sale.pc.prompts.expect("선택된 자료를");
    sale.pc.prompts.expect("한 줄의 금액은 999,999,999원을 넘을 수 없습니다!");
    EXPECT_EQ(sale.entry.finishCell(row, col, typed).end, LineStep::Refused);
    EXPECT_EQ(sale.figures(row) + sale.line(1) + sale.stock() + sale.balance(), before);
  }
  sale.change(row, LineCol::Number, "24999");
  EXPECT_EQ(sale.cell(row, LineCol::Amount), "999960000");
}

}  // namespace
