#include "tests/cells.h"
#include "tests/trade/line_cases.h"

using namespace Qt::StringLiterals;

namespace {

/** The rules joined as the form joins them; the helpers play the operator's hand. */
struct SalePosting : tests::OpenSale {
  SpreadModel& cells() { return posting.grid(); }
  QString cell(int row, int col) { return cells().text(row, col); }
  /** Number, price, discount, amount, income, credit. */
  QString figures(int row) {
    return tests::cellsOf(cells(), row, LineCol::Number, LineCol::Trust).join(u'|');
  }
  QString line(int key) {
    return rows(
        u"Select SaleDate, SaleGubun, SaleName, SaleThing, SaleNum, SaleUnit, DC, Income, Trust From Sale Where SaleID = %1"_s
            .arg(key));
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
struct SaleTyping : SalePosting {};

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

TEST_F(SalePosting, EachKindAsksForItsItemsAndAPaymentForNone) {
  item(ofKind("실병"), "LPG", "20", 40000);
  EXPECT_EQ(pickers.asked.last(), "item 3");
  const int collection = ofKind("수금");
  EXPECT_TRUE(cells().locked(collection, LineCol::Number));
  const QStringList asked = pickers.asked;
  EXPECT_EQ(entry.enterKey(collection, LineCol::Item, "가스수금").col, LineCol::Paid);
  entry.search(collection, LineCol::Item, {});
  EXPECT_EQ(pickers.asked, asked) << "a payment has no item to look for";
  change(collection, LineCol::Paid, "10000");
  posting.refill();
  EXPECT_TRUE(cells().locked(collection, LineCol::Number));
  EXPECT_EQ(entry.missingField(collection), 0);
  posting.FillSaleGrid(SaleSheet::Material, true);
  item(ofKind("자판"), "밸브", "15A", 30000);
  EXPECT_EQ(pickers.asked.last(), "item 4");
}

TEST_F(SalePosting, AMeterCustomerFoundOnTheGeneralSheetMovesOver) {
  const int row = newRow(Metered, "별빛 3동");
  EXPECT_EQ(posting.sheet(), SaleSheet::Volume);
  EXPECT_EQ(entry.enterKey(row, LineCol::Unit, {}).row, 0) << "Enter stays on the volume sheet";
  newRow(Metered, "별빛");
  EXPECT_EQ(pickers.asked.last(), "client 별빛 1 0") << "there only they are looked for";
  posting.FillSaleGrid(SaleSheet::Material, true);
  newRow(Metered, "별빛");
  EXPECT_EQ(pickers.asked.last(), "client 별빛 2 0");
  EXPECT_EQ(posting.sheet(), SaleSheet::Material) << "whom the meter bills buys fittings too";
}

TEST_F(SalePosting, TheDayViewTakesTheWorkingYear) {
  gasLine();
  run("Update Sale Set SaleDate = '2025-03-05'");
  pc.session.WorkYear = "2025";
  posting.FillSaleGrid(SaleSheet::General, true);
  EXPECT_EQ(cell(1, LineCol::Item), "LPG / 20");
}

TEST_F(SalePosting, AStoredLineAsksBeforeItChangesAndKeepsItsKind) {
  const int row = gasLine();
  pc.prompts.expect("구분은 변경할 수 없습니다.");
  EXPECT_EQ(entry.finishCell(row, LineCol::Kind, "수금").end, LineStep::PutBack);
  pc.prompts.expect("자료수정", false);
  EXPECT_EQ(entry.finishCell(row, LineCol::Number, "9").end, LineStep::PutBack);
  EXPECT_EQ(line(1), "2026-03-05|1|LPG|20|1|40000|0|40000|0");
  EXPECT_EQ(cell(row, LineCol::Kind) + cell(row, LineCol::Number), "가스1");
}

TEST_F(SalePosting, DaysAreThisYearsAndMayTakeTheLastDateBack) {
  const int row = gasLine();
  EXPECT_EQ(change(row, LineCol::Date, "02-10").col, LineCol::Partner);
  EXPECT_EQ(rows("Select SaleDate From Sale"), "2026-02-10");
  EXPECT_EQ(rows("Select LastDate From Client Where Code = 1"), "2026-02-10");
  EXPECT_EQ(posting.date(), "02-10");

  pc.prompts.expect("선택된 자료를");
  pc.prompts.expect("날짜 입력이 올바르지 않습니다!\n입력예) 03.05");
  EXPECT_EQ(entry.finishCell(row, LineCol::Date, "02-30").col, LineCol::Date);
  EXPECT_EQ(cell(row, LineCol::Date) + posting.date(), "");
  EXPECT_EQ(rows("Select SaleDate From Sale"), "2026-02-10") << "a wrong day is never written";
  for (int time = 0; time < 5; ++time) pc.prompts.expect("날짜를 입력하세요");
  EXPECT_EQ(entry.finishCell(row, LineCol::Number, "3").col, LineCol::Date) << "nor a cell without one";
  for (const char* const typed : {"LPG / 20", "50"})  // the list, and a size that is found without it
    EXPECT_EQ(entry.enterKey(row, LineCol::Item, typed).col, LineCol::Date);
  cells().setOffer(row, LineCol::Item, "LPG / 50");
  EXPECT_EQ(entry.enterKey(row, LineCol::Item, "LPG / 20").col, LineCol::Date) << "nor what is offered";
  EXPECT_EQ(entry.missingField(row), LineCol::Date);
  EXPECT_TRUE(posting.setDate("3.5"));
  EXPECT_EQ(posting.date(), "03-05");
}

TEST_F(SalePosting, ALineOfLastYearThatIsCorrectedStaysInItsYear) {
  sold("'2025-12-30', 1, 1, False, 'LPG', '20', 1, 40000, 0, 40000, 0");
  posting.setClient(1);
  posting.FillSaleGrid(SaleSheet::General, false);
  ASSERT_EQ(cell(1, LineCol::Date), "12-30");
  change(1, LineCol::Number, "2");
  EXPECT_EQ(line(1), "2025-12-30|1|LPG|20|2|40000|0|80000|0");
  change(1, LineCol::Date, "01-02");
  EXPECT_EQ(rows("Select SaleDate From Sale"), "2026-01-02") << "a day that is typed is one of this year";
}

TEST_F(SalePosting, AFailedStepLeavesThoseBeforeItAndTheRowAsItWas) {
  const int row = gasLine();
  change(row, LineCol::Paid, "30000");
  pc.prompts.expect("선택된 자료를");
  EXPECT_THROW(entry.finishCell(row, LineCol::Person, "박'기사"), jet::Error);
  EXPECT_EQ(cell(row, LineCol::Person), "");
  pc.session.StockEnabled = false;
  cells().setText(row, LineCol::Item, "L'PG / 20");
  cells().setText(row, LineCol::Trust, "15000");
  EXPECT_THROW(posting.postRow(row), jet::Error);
  EXPECT_EQ(balance(), "115000|5000") << "10,000 of the line, then 5,000 more before the update failed";
  EXPECT_EQ(rows("Select SaleName, Trust From Sale"), "LPG|10000");
}

TEST_F(SalePosting, WithoutAnItemOnlyTheBalanceMoves) {
  const int row = newRow(Plain, "산골식당");
  entry.enterKey(row, LineCol::Kind, "가스");
  cells().setText(row, LineCol::Trust, "700");
  posting.postRow(row);
  EXPECT_EQ(balance(), "100700|5000");
  EXPECT_EQ(line(1), "2026-03-05|1||0|0|0|0|0|0");
  pc.prompts.expect("품명을 검색하세요");
  EXPECT_EQ(entry.missingField(row), LineCol::Item);
}

TEST_F(SalePosting, SheetsShowTheirLinesOfADayOrOfACustomer) {
  for (const char* const line : {"'2026-03-05', 2, 1, False, 'LPG', '20', 2, 40000, 1000, 50000, 29000",
                                 "'2026-03-04', 2, 9, False, 'LPG', '20', 1, 1, 0, 0, 0",
                                 "'2026-03-05', 3, 1, True, 'LPG', '50', 1, 90000, 0, 0, 0",
                                 "'2026-03-05', 1, 8, False, '자재수금', '0', 0, 0, 0, 3000, 2000",
                                 "'2024-12-31', 2, 1, False, 'LPG', '20', 1, 1, 0, 0, 0",
                                 "'2026-03-05', 3, 7, True, '밸브', '15A', 1, 100, 0, 100, 0",
                                 "'2026-03-05', 3, 8, True, '자재수금', '0', 0, 0, 0, 100, 0"})
    sold(line);

  posting.FillSaleGrid(SaleSheet::General, true);
  ASSERT_EQ(cells().MaxRows(), 2) << "one line and the spare row";
  EXPECT_EQ(cell(1, LineCol::Partner), "한빛 101동 202호");
  EXPECT_EQ(cell(1, LineCol::Item), "LPG / 20");
  EXPECT_EQ(figures(1), "2|40000|1000|79000|50000|29000");
  posting.setClient(2);
  posting.FillSaleGrid(SaleSheet::General, false);
  ASSERT_EQ(cells().MaxRows(), 3) << "this year's and last year's lines";
  EXPECT_EQ(cell(1, LineCol::Kind), "실병") << "a kind outside the table stands at the last position";
  posting.FillSaleGrid(SaleSheet::Volume, true);
  EXPECT_EQ(tests::columnOf(cells(), LineCol::Partner), QStringList({"별빛 3동", ""}))
      << "fittings stand on their own sheet alone";
  posting.FillSaleGrid(SaleSheet::Material, true);
  EXPECT_EQ(cell(1, LineCol::Item) + figures(1), "자재수금|||5000|3000|2000");

  const SaleClientPanel panel = posting.panel(1);
  EXPECT_EQ(panel.address + panel.gasTrust + panel.utilTrust, "(706-010) 대구 수성구 1100,0005,000");
  EXPECT_EQ(panel.map, "약도없슴");
  EXPECT_EQ(posting.panel(4).address, "");
}

TEST_F(SaleTyping, ChoosingACustomerOnAStoredLineOpensTheBottomRow) {
  gasLine();
  posting.refill();
  ASSERT_EQ(cells().MaxRows(), 2);
  pickers.clients = {ClientChoice{2, "한빛 101동 202호"}, ClientChoice{2, "한빛 101동 202호"}};
  pc.prompts.expect("선택된 고객을 수정하시겠습니까?", false);
  EXPECT_EQ(entry.search(1, LineCol::Partner, {}).end, LineStep::PutBack);
  pc.prompts.expect("고객수정");
  const LineStep step = entry.search(1, LineCol::Partner, {});
  EXPECT_EQ(step.row, 1);
  EXPECT_EQ(cell(1, LineCol::Partner) + cell(1, LineCol::Code) + cell(1, LineCol::Date),
            "한빛 101동 202호203-05");
  EXPECT_EQ(rows("Select ClientCode From Sale"), "1");
  posting.FillSaleGrid(SaleSheet::General, true);
  pickers.asked.clear();
  EXPECT_EQ(entry.enterKey(1, LineCol::Partner, {}).col, LineCol::Kind) << "Enter only passes it";
  EXPECT_TRUE(pickers.asked.isEmpty());
}

TEST_F(SaleTyping, CreditAsksUnlessTheLineWasBegunHereAndNotYetLeft) {
  const int row = gasLine();
  EXPECT_EQ(entry.onCredit(row).col, LineCol::Person);
  EXPECT_EQ(balance(), "140000|5000");
  entry.makeRoomBelow(row);
  entry.enteredRow(row + 1);
  change(row, LineCol::Paid, "40000");
  for (const bool yes : {false, true}) {
    pc.prompts.expect("선택된 자료를 변경하시겠습니까?", yes);
    entry.onCredit(row);
    EXPECT_EQ(balance(), yes ? "140000|5000" : "100000|5000");
  }
  EXPECT_EQ(entry.onCredit(row).col, LineCol::Person) << "what is all on credit is not asked about again";
  const int begun = newRow(Plain, "산골식당");
  entry.enterKey(begun, LineCol::Kind, "가스");
  EXPECT_EQ(entry.onCredit(begun).row, 0) << "without an item the cursor stays";
}

TEST_F(SaleTyping, TheLastCellOpensTheNextRowOnlyWhenNothingIsMissing) {
  const int row = gasLine();
  pickers.persons = {u"홍길동"_s};
  LineStep step = entry.enterKey(row, LineCol::Person, {});
  EXPECT_EQ(step.row, row + 1);
  EXPECT_EQ(step.col, LineCol::Partner);
  EXPECT_EQ(rows("Select Response From Sale"), "홍길동");
  EXPECT_EQ(entry.missingField(row + 1), 0) << "an empty row may be left";
  pc.prompts.expect("선택된 자료를");
  EXPECT_EQ(entry.finishCell(row, LineCol::Partner, "다른 이름").col, LineCol::Partner);
  EXPECT_EQ(cell(row, LineCol::Partner), "") << "a name only comes from the search";
  pickers.persons = {u"홍길동"_s};
  pc.prompts.expect("고객명을 검색하세요");
  EXPECT_EQ(entry.enterKey(row, LineCol::Person, {}).col, LineCol::Partner);
}

TEST_F(SaleTyping, NobodyChosenLeavesTheCustomerCellEmpty) {
  LineStep step = entry.enterKey(1, LineCol::Partner, "산골");
  EXPECT_EQ(step.end, LineStep::PutBack) << "nothing is open any more";
  EXPECT_EQ(cell(1, LineCol::Partner), "");
  const int row = newRow(Plain, "산골식당");
  entry.enterKey(row, LineCol::Partner, "한빛");
  EXPECT_EQ(cell(row, LineCol::Partner) + cell(row, LineCol::Code), "산골식당1") << "chosen before";
  entry.finishCell(row, LineCol::Partner, "한빛");
  EXPECT_EQ(cell(row, LineCol::Partner) + cell(row, LineCol::Code), "");
  entry.enterKey(row, LineCol::Kind, "가스");
  EXPECT_EQ(rows("Select Count(*) From Sale"), "0") << "no line for a customer whom nobody sees";
}

TEST_F(SaleTyping, TheWholeNumberOfACallerComesFirstOverAllCustomers) {
  pickers.during = [&] { EXPECT_FALSE(entry.canTakeCaller(LineCol::Partner, {})); };
  ASSERT_TRUE(entry.canTakeCaller(LineCol::Partner, {}));
  EXPECT_FALSE(entry.canTakeCaller(LineCol::Partner, "김"));
  EXPECT_FALSE(entry.canTakeCaller(LineCol::Date, {}));
  // A meter customer of another area, found first by the end of the number.
  run("Update Client Set Tel2 = '02-123-4567' Where Code = 3");
  run("Update Client Set UName = '9999 4567' Where Code = 2");
  const auto landed = entry.TakeCallerNumber("0531234567");
  ASSERT_TRUE(landed);
  EXPECT_EQ(landed->end, LineStep::Done);
  EXPECT_EQ(landed->col, LineCol::Kind);
  EXPECT_EQ(cell(landed->row, LineCol::Partner), "산골식당");
  EXPECT_EQ(entry.TakeCallerNumber("99994567")->end, LineStep::Done) << "the search name, other dashes";
  EXPECT_EQ(cell(1, LineCol::Partner), "한빛 101동 202호");
  posting.FillSaleGrid(SaleSheet::Material, true);
  EXPECT_EQ(entry.TakeCallerNumber("021234567")->end, LineStep::Done);
  EXPECT_EQ(posting.sheet(), SaleSheet::Volume);
  EXPECT_TRUE(pickers.asked.isEmpty()) << "nobody had to be looked for";
  run("Update Client Set Tel2 = '053-123-4567' Where Code = 2");
  pickers.clients = {ClientChoice{2, "한빛 101동 202호"}};
  entry.TakeCallerNumber("0531234567");
  EXPECT_EQ(pickers.asked.value(0), "client 053-123-4567 2 1") << "two of one number: the list";
}

TEST_F(SaleTyping, TheEndOfACallersNumberOnlyMakesAList) {
  int closed = 0;
  posting.grid().setObserver(
      [&](SpreadModel::What what, int, int) { closed += what == SpreadModel::What::Dropped; });
  entry.TakeCallerNumber("0212345678");
  EXPECT_EQ(closed, 1) << "an editor open on the sheet goes, though it is not read anew";
  posting.grid().setObserver(nullptr);
  entry.TakeCallerNumber("0533456789");
  EXPECT_EQ(posting.sheet(), SaleSheet::Volume) << "whoever is chosen, the number is a meter customer's";
  posting.FillSaleGrid(SaleSheet::General, true);
  pickers.asked.clear();
  pickers.clients = {ClientChoice{3, "별빛 3동"}, ClientChoice{2, "한빛 101동 202호"}};
  const auto landed = entry.TakeCallerNumber("0533456789");
  ASSERT_TRUE(landed);
  EXPECT_EQ(pickers.asked.value(0), "client 053-345-6789 2 1") << "over all customers, as a list";
  EXPECT_EQ(posting.sheet(), SaleSheet::Volume);
  EXPECT_EQ(landed->col, LineCol::Kind);
  EXPECT_EQ(entry.TakeCallerNumber("0533456789")->end, LineStep::Done);
  EXPECT_EQ(posting.sheet(), SaleSheet::General) << "the one chosen decides the sheet";

  posting.FillSaleGrid(SaleSheet::Material, true);
  EXPECT_FALSE(entry.TakeCallerNumber({})) << "nobody waits";
  calls.numbers = {"0212345678", "0533456789"};
  EXPECT_EQ(entry.TakeCallerNumber({})->end, LineStep::PutBack) << "nobody chosen";
  EXPECT_EQ(posting.sheet(), SaleSheet::Material) << "an unknown number leaves the sheet";
  EXPECT_EQ(cell(1, LineCol::Partner), "");
  EXPECT_EQ(calls.numbers, QStringList{"0533456789"}) << "fetched";
  posting.grid().setObserver([&](auto, auto, auto) { pc.session.dbYear.Close(); });
  calls.numbers = {"0531234567"};
  pc.prompts.expect("Select Sale.*");
  EXPECT_EQ(entry.TakeCallerNumber({})->end, LineStep::PutBack);
  EXPECT_EQ(calls.numbers, QStringList{"0531234567"}) << "told, and no call is lost";
  calls.numbers = {"0533456789"};
  EXPECT_THROW(entry.TakeCallerNumber({}), jet::Error);
  EXPECT_EQ(calls.numbers, QStringList{"0533456789"}) << "a failure loses no call";
}

TEST_F(SaleTyping, AnItemTypedInItsCellIsOneOfTheCatalogueOrNothing) {
  run("Update LPG Set LPGSelling = 27000 Where Size = '50'");
  run("Insert Into LPG(LPGName, Size, LPGSelling) Values('50', '13', 1)");  // a size goes before a name
  const int row = newRow(Plain, "산골식당");
  entry.enterKey(row, LineCol::Kind, "가스");
  EXPECT_EQ(entry.enterKey(row, LineCol::Item, "50").col, LineCol::Amount) << "a size is enough";
  EXPECT_EQ(line(1), "2026-03-05|1|LPG|50|1|27000|0|27000|0");
  EXPECT_TRUE(pickers.asked.filter("item").isEmpty());
  for (const char* const nothing : {"45", "lpg", "LPG / 45", "밸브 / 15A", ""}) {
    pc.prompts.expect("등록된 품명이 아닙니다!");
    EXPECT_EQ(entry.finishCell(row, LineCol::Item, nothing).end, LineStep::Refused) << nothing;
  }
  entry.enterKey(row, LineCol::Item, "lpg");
  EXPECT_EQ(pickers.asked.last(), "item 1") << "two sizes of that name: the list";
  change(row, LineCol::Number, "3");
  change(row, LineCol::Item, "lpg / 20");
  EXPECT_EQ(line(1), "2026-03-05|1|LPG|20|3|27000|0|81000|0") << "another whole name keeps the figures";
  const int first = ofKind("가스");
  change(first, LineCol::Item, "LPG / 50");
  EXPECT_EQ(line(2), "2026-03-05|1|LPG|50|1|27000|0|27000|0") << "a line's first item is one piece, paid";
}

TEST_F(SaleTyping, AnOfferFollowsTheKindAndGoesWhenItIsTakenOrItsRowLeft) {
  sold("'2026-03-01', 1, 1, False, 'LPG', '20', 1, 40000, 0, 40000, 0");
  sold("'2026-03-02', 1, 5, False, 'LPG', '50', 1, 0, 0, 0, 0");
  int row = newRow(Plain, "산골식당");
  const auto offered = [&] { return cells().offer(row, LineCol::Item) + cells().offer(row, LineCol::Unit); };
  EXPECT_EQ(offered(), "LPG / 2040000");
  entry.finishCell(row, LineCol::Kind, "용대");
  EXPECT_EQ(offered(), "LPG / 500");
  entry.enterKey(row, LineCol::Item, {});
  EXPECT_EQ(cell(row, LineCol::Item) + offered(), "LPG / 50");
  row = newRow(Plain, "산골식당");
  EXPECT_EQ(offered(), "LPG / 2040000");
  entry.enteredRow(1);
  EXPECT_EQ(offered(), "");
}

TEST_F(SaleTyping, APersonTypedGoesBeforeTheOneOffered) {
  pc.session.dbBasic.Execute(u"Insert Into Response(Name) Values('홍길동')");
  sold("'2026-03-01', 1, 1, False, 'LPG', '20', 1, 40000, 0, 40000, 0, '홍길동'");
  const int row = gasLine();
  ASSERT_EQ(cells().offer(row, LineCol::Person), "홍길동");
  EXPECT_EQ(entry.enterKey(row, LineCol::Person, "김").col, LineCol::Person);
  EXPECT_EQ(pickers.asked.last(), "person");
  EXPECT_EQ(entry.enterKey(row, LineCol::Person, {}).row, row + 1);
  EXPECT_EQ(rows("Select Response From Sale Where SaleID = 2"), "홍길동");
  EXPECT_EQ(cells().offer(row, LineCol::Person), "") << "it is taken";
}

TEST_F(SalePosting, ANewKindClearsFiguresAndPerson) {
  const int row = cells().MaxRows();
  cells().setText(row, LineCol::Code, "1");
  for (int col = LineCol::Number; col <= LineCol::Person; ++col) cells().setText(row, col, "7");
  cells().setComboPosition(row, LineCol::Kind, positionOf(posting.kinds(), SaleLoan));
  posting.resetRow(row);
  EXPECT_EQ(figures(row) + cell(row, LineCol::Person), "0|0|0|0|0|0");
}

TEST_F(SaleTyping, ABalanceBeyondALinesLimitIsCollectedAllTheSame) {
  run("Update Client Set GasInit = 2000000000 Where Code = 1");
  const int row = ofKind("수금");
  change(row, LineCol::Paid, "1000");
  EXPECT_EQ(figures(row), "0|0|0|2000000000|1000|1999999000");
  EXPECT_EQ(balance(), "1999999000|5000");
}

TEST_F(SaleTyping, AFigureIsAWholeNumberOfNineDigitsAtMost) {
  const std::pair<const char*, bool> texts[] = {{"999,999,999", true}, {"-999000000", true},
                                                {"1000000000", false}, {"-1000000000", false},
                                                {"27000.5", false},    {"천원", false}};
  const int row = gasLine();
  for (const auto& [typed, taken] : texts) {
    pc.prompts.expect(taken ? "선택된 자료를" : "999,999,999 이하의 정수로 입력하세요!");
    EXPECT_EQ(entry.finishCell(row, LineCol::Unit, typed).end, taken ? LineStep::Done : LineStep::Refused)
        << typed;
  }
}

TEST_F(SaleTyping, ALineTooLargeForTheBookIsToldBeforeAnythingIsWritten) {
  const int row = gasLine();
  const QString before = figures(row) + line(1) + stock() + balance();
  for (const auto& [col, typed] : {std::pair(LineCol::Number, "25000"), std::pair(LineCol::Number, "-25000"),
                                   std::pair(LineCol::Discount, "-999970000")}) {
    pc.prompts.expect("선택된 자료를");
    pc.prompts.expect("한 줄의 금액은 999,999,999원을 넘을 수 없습니다!");
    EXPECT_EQ(entry.finishCell(row, col, typed).end, LineStep::Refused);
    EXPECT_EQ(figures(row) + line(1) + stock() + balance(), before);
  }
  change(row, LineCol::Number, "24999");
  EXPECT_EQ(cell(row, LineCol::Amount), "999960000");
}

}  // namespace
