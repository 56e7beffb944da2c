// Statements: what the list holds, what issuing does to the data, what stands where on the four papers.
#include "documents/statements/deal_desk.h"
#include "store/schema.h"
#include "store/year_file.h"
#include "tests/documents/document_desk.h"

using namespace Qt::StringLiterals;

namespace {

using tests::column, tests::row;

struct Deals : tests::DocumentDesk {
  Deals() {
    session.dbBasic.Execute(
        "Update Client Set Serial = '2208162517', GasInit = 50000, UtilInit = -2000 Where Code = 1");
  }
  DealAsk range(const QString& from, const QString& to, DealTab tab = DealTab::Pending) {
    return {
        .from = QDate::fromString(from, Qt::ISODate), .to = QDate::fromString(to, Qt::ISODate), .tab = tab};
  }
  DealAsk march(DealTab tab = DealTab::Pending) { return range("2026-03-01", "2026-03-31", tab); }
  void tickAll(const DealAsk& ask) {
    EXPECT_TRUE(desk.search(ask));
    desk.ticks().setAll(true);
  }
  DealDesk desk{session};
};

TEST_F(Deals, TheListIsWhatIsPendingByDateAndCollectionsAreNeverInIt) {
  sale("2026-03-02", 1, 30'000, 2);
  sale("2026-03-02", 2, 30'000, 1);
  sale("2026-03-02", 2, 10'000, 1, {.name = "부탄"});
  sale("2026-03-05", 2, 30'000, 1);
  sale("2026-03-05", 1, 5'000, 1, {.name = "밸브", .kind = 7});
  sale("2026-03-06", 1, 0, 0, {.name = "가스수금", .kind = 4});
  sale("2026-03-06", 1, 9, 9, {.name = "자재수금", .kind = 8});
  session.dbYear.Execute("Update Sale Set DealList = 3 Where SaleName = '자재수금'");
  ASSERT_TRUE(desk.search(march()));
  EXPECT_EQ(desk.grid().MaxRows(), 4);
  using namespace DealCol;
  EXPECT_EQ(cells(desk, 1, {Date, Client, Item, Norm, Quantity, Price, Amount, Tick, Code}),
            "2026-03-02|한라식당|LPG|20|2|30000|60000||1");
  EXPECT_EQ(cells(desk, 2, {Date, Client, Day, ClientName, ClientCode, MainCode}),
            "|바다식당|2026-03-02|바다식당|2|2");
  EXPECT_EQ(cells(desk, 3, {Date, Client, ClientName}), "||바다식당");
  EXPECT_EQ(cells(desk, 4, {Date, Client}), "2026-03-05|바다식당") << "a new date names its customer again";
  EXPECT_EQ(desk.grid().topLine(4), 0xC0C0C0);
  EXPECT_EQ(desk.grid().topLine(3), -1);
  EXPECT_EQ(desk.found().sumText(), "130,000 ");
  EXPECT_EQ(inYear("Select Count(*) From Sale Where DealList = 2"), "2");

  DealAsk ask = march();
  ask.facility = true;
  ask.clientCode = "1";
  desk.search(ask);
  EXPECT_EQ(desk.found().sum(), 65'000);
  session.dbYear.Execute("Update Sale Set DealList = -1 Where SaleID = 1");
  session.dbYear.Execute("Update Sale Set DealList = 3 Where SaleID = 2");
  desk.search(march(DealTab::Issued));
  EXPECT_EQ(cells(desk, 1, {Code}), "1") << "below zero counts as issued, above two stands nowhere";
  EXPECT_EQ(desk.grid().MaxRows(), 1);
}

TEST_F(Deals, DatesThatAreNoRangeAreToldAndAnEmptyListHasOneBlankRow) {
  pc.prompts.expect("검색일자 지정이 잘못되었습니다. 다시 입력하세요.");
  EXPECT_FALSE(desk.search(range("2026-03-02", "2026-03-01")));
  EXPECT_TRUE(desk.search(range("2026-03-02", "2026-03-02")));
  EXPECT_EQ(desk.grid().MaxRows(), 1);
  EXPECT_EQ(desk.found().sumText(), "");
  desk.ticks().setAll(true);
  EXPECT_EQ(desk.grid().text(1, DealCol::Tick), "") << "a row without a sale line is never ticked";
  pc.prompts.expect("발행할 거래내역을 선택하세요.");
  EXPECT_FALSE(desk.hasPapers());
}

TEST_F(Deals, AYearsBoundaryOpensBothFilesAndEachLineIsMarkedInItsOwn) {
  makeYearFile(session, "2025");
  ASSERT_TRUE(upgrades::relink(session));
  const auto before = openYear(session, "2025");
  sale("2025-12-31", 1, 1'000, 1);
  sale("2025-11-30", 1, 100, 1);
  sale("2026-01-01", 1, 2'000, 1);
  sale("2026-02-28", 1, 3'000, 1);
  ASSERT_TRUE(desk.search(range("2025-12-01", "2026-02-28")));
  EXPECT_EQ(desk.found().sum(), 6'000);
  desk.ticks().setAll(true);
  print(desk.issue({}));
  EXPECT_EQ(first(before, "Select DealList From Sale Where SaleDate = '2025-12-31'"), "1");
  EXPECT_EQ(first(before, "Select DealList From Sale Where SaleDate = '2025-11-30'"), "0")
      << "the same SaleID 2";
  EXPECT_EQ(inYear("Select Count(*) From Sale Where DealList = 1"), "2");
  pc.prompts.expect("2024년의 자료 파일을 열 수 없어");
  EXPECT_TRUE(desk.search(range("2024-12-01", "2026-03-01")));
  EXPECT_EQ(desk.found().sum(), 100);
}

TEST_F(Deals, ALineInTheHistoryStaysHiddenAndAPrintedOneIsWrittenThere) {
  sale("2026-03-02", 1, 30'000, 2);
  desk.search(march());
  desk.ticks().toggle(1);
  print(desk.issue({}));
  const auto history = session.wsMain.OpenDatabase(session.DbPath + "dbDetail.mdb");
  EXPECT_EQ(first(history,
                  "Select DealDate & CCode & CName & PName & PNorm & Quant & UnitCost & SaleKum & SaleSeq "
                  "From DealList"),
            "2026-03-021한라식당LPG20230000600001");
  session.dbYear.Execute("Update Sale Set DealList = 0");
  desk.search(march());
  EXPECT_EQ(desk.found().sum(), 0);
  session.dbYear.Execute("Update Sale Set DealList = 1");
  desk.search(march(DealTab::Issued));
  EXPECT_EQ(desk.found().sum(), 60'000) << "the issued list does not look there";
}

TEST_F(Deals, AHistoryThatRefusesIsToldOnceAndThePaperComes) {
  sale("2026-03-02", 1, 30'000, 2);
  sale("2026-03-02", 1, 30'000, 3);
  tickAll(march());
  session.wsMain.OpenDatabase(session.DbPath + "dbDetail.mdb").Execute("drop table DealList");
  pc.prompts.expect("거래명세서 내역을 저장하는 중 오류가 발생했습니다.");
  EXPECT_FALSE(print(desk.issue({})).items.empty());
}

TEST_F(Deals, AHistoryThatIsGoneOrWasNotOpenedIsToldAndThePaperComes) {
  sale("2026-03-02", 1, 30'000, 2);
  tickAll(march());
  ASSERT_TRUE(QFile::remove(session.pc.paths.native(session.DbPath + "dbDetail.mdb")));
  pc.prompts.expect("거래명세서 내역을 저장하는 중 오류가 발생했습니다.");
  EXPECT_FALSE(print(desk.issue({})).items.empty());

  sale("2026-03-03", 1, 30'000, 1);
  const QString folder = std::exchange(session.DbPath, session.DbPath + "none/");
  DealDesk without(session);
  session.DbPath = folder;
  ASSERT_TRUE(without.search(march()));
  without.ticks().setAll(true);
  pc.prompts.expect("거래명세서 내역을 저장하는 중 오류가 발생했습니다.");
  EXPECT_FALSE(print(without.issue({})).items.empty());
}

TEST_F(Deals, WhatAnotherPcIssuedMeanwhileStandsOnNoSecondPaper) {
  sale("2026-03-02", 1, 30'000, 2);
  sale("2026-03-02", 1, 10'000, 1, {.name = "부탄"});
  DealDesk here(session), there(session);
  for (DealDesk* each : {&here, &there}) {
    each->search(march());
    each->ticks().setAll(true);
  }
  there.ticks().set(1, false);
  EXPECT_EQ(there.issue({}).documents, 1);
  pc.prompts.expect("다른 PC에서 먼저 발행하였거나 삭제한 1개의 거래내역은 발행하지 않았습니다.");
  const auto& job = print(here.issue({}));
  EXPECT_TRUE(job.texts().contains("LPG (20)"));
  EXPECT_FALSE(job.texts().contains("부탄 (20)"));
  pc.prompts.expect("2개의 거래내역은");
  EXPECT_EQ(here.issue({}).documents, 0);
}

TEST_F(Deals, TheLedgersLayoutMarksBySaleIdWhereItsOwnColumnIsMissingOrForeign) {
  sale("2026-03-02", 1, 30'000, 2);
  sale("2026-03-03", 1, 30'000, 2);
  desk.search(march());
  desk.ticks().toggle(1);
  EXPECT_EQ(desk.issue({.layout = DocumentLayout::Dot}).documents, 1);
  EXPECT_EQ(inYear("Select Count(*) From Sale Where DealList = 1"), "1");
  session.dbYear.Execute("Alter Table Sale Add Column Code Text(10)");
  desk.search(march());
  desk.ticks().toggle(1);
  EXPECT_EQ(desk.issue({.layout = DocumentLayout::Dot}).documents, 1);
  EXPECT_EQ(inYear("Select Count(*) From Sale Where DealList = 1"), "2");
}

TEST_F(Deals, WithoutALedgerQuantityAndDeletionEndInTheirOwnMessageOnce) {
  sale("2026-03-02", 1, 30'000, 2);
  sale("2026-03-02", 1, 30'000, 2);
  desk.search(march());
  pc.prompts.expect("거래내역을 수정하는 중 오류가 발생했습니다.");
  EXPECT_FALSE(desk.changeQuantity(1, "3"));
  EXPECT_EQ(desk.grid().text(1, DealCol::Quantity), "2");
  pc.prompts.expect("삭제할 내역을 선택하세요.");
  EXPECT_FALSE(desk.deleteTicked());
  desk.ticks().setAll(true);
  pc.prompts.expect("선택하신 2개의 내역을 삭제하시겠습니까?", false);
  EXPECT_FALSE(desk.deleteTicked());
  pc.prompts.expect("선택하신 2개의 내역을 삭제하시겠습니까?", true);
  pc.prompts.expect("거래명세표 내역을 삭제하는 중 오류가 발생했습니다.");
  EXPECT_TRUE(desk.deleteTicked());
  EXPECT_EQ(inYear("Select Count(*) From Sale"), "2");
}

TEST_F(Deals, WithALedgerTheLineAndItsBookMove) {
  session.dbBasic.createTable(schema::table(schema::File::Ledger, "Trader"));
  for (const char* name : {"Trader", "Product", "SaleBook"})
    session.dbYear.createTable(schema::table(schema::File::Ledger, name));
  for (const char* field : {"Code Text(10)", "CCode Text(6)", "PCode Text(10)", "Quantity Long",
                            "TradeKum Long", "VatKum Long", "SumKum Long"})
    session.dbYear.Execute(u"Alter Table Sale Add Column "_s + field);
  sale("2026-03-02", 1, 10'000, 2);
  session.dbYear.Execute(
      "Update Sale Set Code = '1', CCode = '000001', TradeKum = 20000, VatKum = 2000, SumKum = 22000, DC = "
      "500");
  session.dbYear.Execute("Insert Into Trader(Code, VAT) Values('000001', 2)");
  session.dbYear.Execute(
      "Insert Into SaleBook(CCode, DealDate, TradeKum, DC, VatKum, SumKum) Values('000001', '2026-03-02', "
      "20000, 500, 2000, 22000)");
  desk.search(march());
  ASSERT_TRUE(desk.changeQuantity(1, "3"));
  // 3 x 10,000 less 500 is 29,500; a tenth on top is 2,950
  EXPECT_EQ(desk.grid().text(1, DealCol::Amount), "32450");
  const QString figures = "Select TradeKum & '/' & DC & '/' & VatKum & '/' & SumKum From ";
  EXPECT_EQ(inYear(figures + "Sale"), "29500/500/2950/32450");
  EXPECT_EQ(inYear(figures + "SaleBook"), "29500/500/2950/32450");
  session.dbYear.Execute("Insert Into Product(Code, PTax) Values('P1', 0)");
  session.dbYear.Execute("Update Sale Set PCode = 'P1'");
  ASSERT_TRUE(desk.changeQuantity(1, "1"));
  EXPECT_EQ(inYear(figures + "Sale"), "9500/500/0/9500") << "an item free of tax stays so";
  EXPECT_EQ(inYear(figures + "SaleBook"), "9500/500/0/9500");
  desk.ticks().toggle(1);
  pc.prompts.expect("선택하신 1개의 내역을 삭제하시겠습니까?");
  EXPECT_TRUE(desk.deleteTicked());
  EXPECT_EQ(inYear("Select Count(*) From Sale"), "0");
  EXPECT_EQ(inYear(figures + "SaleBook"), "0/0/0/0") << "the next start takes such a row away";
}

// --- the papers -----------------------------------------------------------------------------------------------

TEST_F(Deals, HalfA4TextByText) {
  sale("2026-03-02", 1, 30'000, 2);
  sale("2026-03-05", 1, 55, 1, {.name = "부탄"});
  setDocumentMargins(session, "거래명세표", {"1", "3"});
  tickAll(march());
  const auto& job = print(desk.issue({}));
  EXPECT_EQ(job.pages, 1);
  EXPECT_EQ(job.paper.width, 8.27);
  for (const double base : {1 + 3.0, 1 + 38.0})
    expectTexts(job, 1, base, 3 + 2,
                R"(
0: 16=2026년 03월 31일
5: 20=123-45-67891|63=2208162517
7: 16=해온가스|46=홍길동|64=한라식당|94=김하나
9: 16=서울 중구 1|64=서울 강남 2
11: 16=소매|36=가스|64=음식|85=한식
15: 9=2026-03-02|23=LPG (20)|58=          2|70=     30,000|84=      54,545|98=       5,455
16: 84=          50|98=           5
30: 14=54,595|32=5,460|49=60,055|65=-)");
  EXPECT_EQ(job.items.front().font.family, "굴림체");
  EXPECT_EQ(job.items.front().font.points, 9.75);
}

TEST_F(Deals, FourteenLinesAreOneSheetFifteenAreTwoAndTheSumsRunOn) {
  for (int line = 0; line < 15; ++line) sale("2026-03-02", 1, 1'100, 1);
  tickAll(range("2026-03-02", "2026-03-02"));
  desk.ticks().set(15, false);
  const DealPrint onTop{.vat = Vat::OnTop};
  {
    const auto& job = print(desk.papers(onTop));
    EXPECT_EQ(job.pages, 1);
    EXPECT_EQ(job.texts().filter("뒷장").size(), 0);
    EXPECT_EQ(at(job, 1, 3 + 15 + 13, 2 + 9), "LPG (20)") << "one day: no date, the item in its place";
    EXPECT_EQ(at(job, 1, 3 + 15, 2 + 23), "-");
    EXPECT_EQ(at(job, 1, 3 + 30, 2 + 49), "16,940");  // 14 x 1,210
  }
  desk.ticks().set(15, true);
  const auto& job = print(desk.papers(onTop));
  EXPECT_EQ(job.pages, 2);
  EXPECT_EQ(at(job, 1, 3 + 30, 2 + 65), "- 뒷장있음(1)-");
  EXPECT_EQ(at(job, 1, 38 + 30, 2 + 65), "- 뒷장있음(1)-");
  EXPECT_EQ(job.texts(2).filter("뒷장").size(), 0);
  EXPECT_EQ(at(job, 2, 3 + 15, 2 + 9), "LPG (20)");
  EXPECT_EQ(at(job, 2, 3 + 16, 2 + 9), "-");
  for (const double base : {3.0, 38.0}) {
    EXPECT_EQ(at(job, 2, base + 30, 2 + 14), "16,500");
    EXPECT_EQ(at(job, 2, base + 30, 2 + 32), "1,650");
    EXPECT_EQ(at(job, 2, base + 30, 2 + 49), "18,150");
  }
}

TEST_F(Deals, EachRunOfOneCustomerIsAStatementOnItsOwnSheetAndVatIsAChoice) {
  sale("2026-03-02", 1, 100, 1);
  sale("2026-03-02", 2, 200, 1);
  sale("2026-03-03", 1, 300, 1);
  tickAll(march());
  const DocumentRun run = desk.papers({.vat = Vat::None});
  EXPECT_EQ(run.documents, 3);
  EXPECT_EQ(run.name(1), "2026-03-31 바다식당 거래명세표");
  const auto& job = print(run);
  EXPECT_EQ(job.pages, 3);
  EXPECT_EQ(at(job, 2, 3 + 7, 2 + 64), "바다식당");
  EXPECT_EQ(at(job, 3, 3 + 30, 2 + 14), "300");
  EXPECT_EQ(at(job, 3, 3 + 30, 2 + 32), "-") << "no tax, nothing printed";
  EXPECT_EQ(print(desk.papers({.vat = {}})).texts(3).filter("300").size(), 2)
      << "the price alone, on both copies";
  desk.ticks().set(2, false);
  EXPECT_EQ(desk.papers({}).documents, 1) << "an unticked line parts no run";
  session.dbBasic.Execute("Delete From Client Where Code = 1");
  EXPECT_TRUE(print(desk.papers({})).texts().contains("한라식당"))
      << "a customer deleted meanwhile keeps his name";
}

TEST_F(Deals, FullA4DrawsTheFormUnderItsTexts) {
  sale("2026-03-02", 1, 30'000, 2);
  tickAll(march());
  const auto& job = print(desk.papers({.layout = DocumentLayout::FullA4}));
  const double upper = 1 * row, lower = 36 * row;
  expectWords(job, {upper, lower},
              {{"날 짜 :|년|월|일", {0.68, 1.65, 2.16, 2.66}, {0.51}},
               {"거 래 명 세 표", {3.23}, {0.20}},
               {"검수자", {5.92}, {0.54}},
               {"공|급|자", {0.75}, {0.90, 1.38, 1.81}},
               {"상|호", {1.05}, {1.11, 1.28}},
               {"성|명", {2.66}, {1.11, 1.28}},
               {"주|소", {1.05}, {1.46, 1.62}},
               {"업|태", {1.05}, {1.82, 1.97}},
               {"종|목", {2.57}, {1.82, 1.97}},
               {"공|급|받|는|자", {3.98}, {0.90, 1.15, 1.40, 1.65, 1.90}},
               {"상|호", {4.27}, {1.11, 1.28}},
               {"성|명", {6.16}, {1.11, 1.28}},
               {"주|소", {4.27}, {1.46, 1.62}},
               {"업|태", {4.27}, {1.82, 1.97}},
               {"종|목", {5.97}, {1.82, 1.97}},
               {"총미수금:|합    계:|전미수금:", {1.23, 3.51, 5.51}, {2.26}},
               {"C O D E| 품              목|단 위| 수    량| 단    가| 금    액",
                {0.85, 1.78, 3.53, 4.06, 5.06, 6.06},
                {2.61}},
               {"비 고", {7.02}, {2.59}}});
  EXPECT_EQ(job.at(1, 3.37, upper + 0.51)->text, "  (공급자 보관용)");
  EXPECT_EQ(job.at(1, 3.37, lower + 0.51)->text, "(공급받는자 보관용)");
  for (const double edge : {upper, lower}) {
    EXPECT_TRUE(hasBox(job, edge, 0.68, 0.78, 7.5, 5.2));
    expectLines(job, edge, false, {2.12, 2.56, 2.80}, 0.68, 7.5, 1);  // parties, balance, header
    expectLines(job, edge, false, {1.06, 1.42, 1.78}, 0.98, 3.90);
    expectLines(job, edge, false, {1.06, 1.42, 1.78}, 4.20, 7.5);
    expectLines(job, edge, true, {0.98, 4.20}, 0.78, 2.12);
    expectLines(job, edge, true, {3.90}, 0.78, 2.12, 1);
    expectLines(job, edge, true, {2.60, 6.10}, 1.06, 1.42);
    expectLines(job, edge, true, {2.51, 5.91}, 1.78, 2.12);
    expectLines(job, edge, true, {3.40, 5.40}, 2.12, 2.56);
    expectLines(job, edge, true, {1.50, 3.45, 3.95, 4.90, 5.95, 6.88}, 2.56, 5.2);
    for (int item = 1; item < 14; ++item) expectLines(job, edge, false, {2.80 + item * row}, 0.68, 7.5, 0.25);
  }
  const char* const texts = R"(
2.9: 18=2026|27=03|33=31
5.1: 23=123-45-67891|69=2208162517
7: 19=해온가스|42=홍길동|65=한라식당|92=김하나
9.2: 19=서울 중구 1|65=서울 강남 2
11.3: 19=소매|41=가스|65=음식|89=한식
13.6: 26=           108,000|55=            60,000|80=            48,000
16.92: 13=03-02|24=LPG (20)|59=          2|74=     30,000|87=      60,000)";
  const auto& bare = print(desk.papers({.layout = DocumentLayout::FullA4, .drawnForm = false}));
  EXPECT_TRUE(isTextAlone(bare));
  for (const double base : {1.0, 36.0}) {
    expectTexts(job, 1, base, 2, texts);
    expectTexts(bare, 1, base, 2, texts);
  }
}

TEST_F(Deals, APageOfTheDotPrinterTellsItsOwnSum) {
  for (int line = 0; line < 29; ++line) sale("2026-03-02", 1, 1'100 + line / 14, 1);
  tickAll(march());
  const auto& job = print(desk.papers({.layout = DocumentLayout::Dot}));
  expectTexts(job, 1, 2, 0, "24: 88=15,400|92=-");
  expectTexts(job, 2, 2, 0, "24: 88=15,414|92=-");
  expectTexts(job, 3, 2, 0, "24: 88=-|92=31,916");  // and the last line's 1,102
}

TEST_F(Deals, AReprintHasNoBalanceAndASetMarginIsTheWholeOfIt) {
  sale("2026-03-02", 1, 30'000, 2);
  session.dbYear.Execute("Update Sale Set DealList = 1");
  setDocumentMargins(session, "거래명세표", {"", "0"});
  tickAll(march(DealTab::Issued));
  expectTexts(print(desk.papers({.layout = DocumentLayout::FullA4})), 1, 1, 0, R"(
7: 19=해온가스
13.6: 26=            60,000|55=            60,000|80=-)");
}

TEST_F(Deals, TheOtherHalfSheetAndTheDotPrinter) {
  for (int line = 0; line < 15; ++line) sale("2026-03-02", 1, 1'100, 1);
  tickAll(march());
  {
    const auto& job = print(desk.papers({.layout = DocumentLayout::HalfA4B}));
    for (const double base : {3.0, 38.0}) {
      expectTexts(job, 1, base, 0,
                  R"(
0: 14=2026년 03월 31일
5: 21=123-45-67891|69=2208162517
7: 12=해온가스|41=홍길동|60=한라식당|89=김하나
9: 12=서울 중구 1|60=서울 강남 2
11: 12=소매|31=가스|60=음식|80=한식
15: 6=2026-03-02|24=LPG (20)|55=          1|67=       1,100|81=       1,100
30: 90=- 뒷장있음(1)-)");
      expectTexts(job, 2, base, 0,
                  R"(
30: 12=15,000|32=1,500|52=16,500|71=64,500)");
    }
  }
  const auto& job = print(desk.papers({.layout = DocumentLayout::Dot}));
  EXPECT_EQ(job.paper.height, 11);
  EXPECT_TRUE(isTextAlone(job));
  for (const double base : {2.0, 35.0}) {
    expectTexts(job, 1, base, 0,
                R"(
2: 1=2026-03-31|18=123-45-67891|66=2208162517
4: 12=해온가스|37=홍길동|67=한라식당|96=김하나
6: 12=서울 중구 1|67=서울 강남 2
8: 87====비======고===
9: 1=03-02 LPG (20)|40=        1|50=         1,100|65=        1,000|79=       100
24: 88=15,400|92=-
25: 60=-)");
    expectTexts(job, 2, base, 0,
                R"(
24: 35=15,000|88=-|92=16,500
25: 60=전이월 : 48,000|80=잔액 : 64,500)");
  }
  const auto heading = std::ranges::find(job.items, "거 래 명 세 표", &tests::PrintedItem::text);
  ASSERT_NE(heading, job.items.end());
  EXPECT_NEAR(heading->x + 7 * column, 52 * column, 0.01) << "in the middle of 104 columns";

  session.dbYear.createTable(schema::table(schema::File::Ledger, "SaleBook"));
  session.dbYear.Execute(
      "Insert Into SaleBook(CCode, DealDate, TradeKum) Values('000001', '2026-01-00', 700)");
  session.dbYear.Execute("Insert Into SaleBook(CCode, DealDate, SumKum) Values('000001', '2026-02-10', 300)");
  expectTexts(print(desk.papers({.layout = DocumentLayout::Dot})), 2, 2, 0,
              R"(
25: 60=전이월 : 1,000)");  // the ledger knows better
}

TEST_F(Deals, NothingMovesWithoutACompanyAndARefusalLeavesTheLinesIssued) {
  sale("2026-03-02", 1, 30'000, 2);
  tickAll(march());
  EXPECT_TRUE(desk.hasPapers());
  session.dbBasic.Execute("Delete From User");
  pc.prompts.expect("사용자등록부터 하셔야 합니다");
  EXPECT_FALSE(desk.hasPapers());
  EXPECT_EQ(inYear("Select DealList From Sale"), "0");
  printers.refusal = "용지 없음";
  const DocumentRun run = desk.issue({});
  EXPECT_THROW(print(run), pc::PrintError);
  desk.search(march(DealTab::Issued));
  EXPECT_EQ(desk.found().sum(), 60'000);
  desk.ticks().setAll(true);
  printers.refusal.clear();
  const auto& again = print(desk.issue({}));
  EXPECT_EQ(at(again, 1, 3 + 15, 2 + 23), "LPG (20)");
}

}  // namespace
