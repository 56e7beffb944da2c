// The ledger's classes over tables that are there, and over a data folder that has none of them.
#include "documents/ledger/clsTrade.h"
#include "documents/ledger/clsTrader.h"
#include "documents/pickers/new_trader.h"
#include "documents/pickers/post_list.h"
#include "documents/pickers/trader_search.h"
#include "store/schema.h"
#include "tests/answers.h"
#include "tests/cells.h"
#include "tests/support.h"

using namespace Qt::StringLiterals;

namespace {

struct Ledger : testing::Test {
  Ledger() { pc.openBooks(QDate(2026, 3, 16)); }
  void makeLedger() {
    for (const char* name : {"Trader", "Product"})
      session.dbBasic.createTable(schema::table(schema::File::Ledger, name));
    for (const char* name : {"SaleBook", "PurchBook", "Purchase"})
      session.dbYear.createTable(schema::table(schema::File::Ledger, name));
  }
  void book(const QString& code, const QString& day, qint64 trade, qint64 sum, qint64 paid) {
    session.dbYear.Execute(
        u"Insert Into SaleBook(CCode, CName, DealDate, TradeKum, SumKum, InOutKum) Values('%1', 'a', '%2', %3, %4, %5)"_s
            .arg(code, day)
            .arg(trade)
            .arg(sum)
            .arg(paid));
  }
  void client(const QString& name, const QString& tel = {}, const QString& address = {},
              const QString& building = {}, const QString& dong = {}, const QString& ho = {}) {
    session.dbBasic.Execute(
        u"Insert Into Client(Name, Tel, Address, BDName, Dong, Ho) Values('%1', '%2', '%3', '%4', '%5', '%6')"_s
            .arg(name, tel, address, building, dong, ho));
  }
  tests::TestPc pc;
  Session& session = pc.session;
};

TEST_F(Ledger, WithoutItsTablesEveryOperationFailsAndShowsNothing) {
  clsTrader trader(session.dbBasic);
  trader.fields.Code = "000001";
  EXPECT_FALSE(trader.List());
  EXPECT_FALSE(trader.UndeletedList());
  EXPECT_FALSE(trader.Insert());
  EXPECT_FALSE(trader.Update());
  EXPECT_FALSE(trader.Delete());
  EXPECT_FALSE(trader.VatOf("000001"));
  EXPECT_FALSE(trader.NextCode());
  EXPECT_FALSE(trader.TotNoPayOf("000001"));
  EXPECT_FALSE(trader.FindByName("a"));
  EXPECT_FALSE(clsTrader::SetCharge(session.dbYear, "000001", "01"));
  clsTradeBook book(session.dbYear, LedgerSide::Sale);
  EXPECT_FALSE(book.Add());
  EXPECT_FALSE(book.Read("000001"));
  EXPECT_FALSE(book.Adjust({1, 2, 3, 4}));
  EXPECT_FALSE(book.Delete());
  EXPECT_FALSE(book.PeriodBalance("000001", "2026-03-16"));
  EXPECT_FALSE(book.OpeningRows("2026"));
  clsTrade line(session.dbYear, LedgerSide::Purchase);
  EXPECT_FALSE(line.Read());
  EXPECT_FALSE(line.Delete());
  EXPECT_FALSE(clsTrade(session.dbYear, LedgerSide::Sale).Delete()) << "this system's Sale has no Code";
}

TEST_F(Ledger, TheMisspeltSearchFindsNobodyAndShowsNoBox) {
  client("한라식당", "123-4567");
  const clsTrader trader(session.dbBasic);
  EXPECT_FALSE(trader.FindClient({}, "한라식당"));
  const auto found = trader.FindClient("1");
  ASSERT_TRUE(found);
  EXPECT_EQ((*found)["Name"].toText(), "한라식당");
  EXPECT_TRUE(trader.FindClient("77")->atEnd());
}

TEST_F(Ledger, TraderRowsGoRoundAllTheirColumns) {
  makeLedger();
  clsTrader trader(session.dbBasic);
  EXPECT_EQ(*trader.NextCode(), "000001");
  trader.fields = {.Code = "000041",
                   .C_Name = "한라식당",
                   .U_Name = "김",
                   .Serial = "123-45-67891",
                   .Phone = "1",
                   .VAT = 2,
                   .Addr1 = "서울",
                   .Section = "1",
                   .TotNoPay = -500,
                   .HPhone = "010"};
  ASSERT_TRUE(trader.Insert());
  EXPECT_EQ(*trader.NextCode(), "000042");
  EXPECT_EQ(*trader.VatOf("000041"), 2);
  EXPECT_EQ(*trader.TotNoPayOf("000041"), -500);
  EXPECT_FALSE(trader.VatOf("000099"));
  trader.fields.bDeled = true;
  trader.fields.C_Name = "바다";
  ASSERT_TRUE(trader.Update());
  EXPECT_TRUE(trader.UndeletedList()->atEnd());
  EXPECT_FALSE(trader.List()->atEnd());
  EXPECT_FALSE(trader.FindByName("바다")->atEnd());
  EXPECT_EQ(tests::rowsOf(session.dbBasic, "Select HPhone & Addr1 & Serial From Trader"),
            "010서울123-45-67891");
  ASSERT_TRUE(trader.Delete());
  EXPECT_TRUE(trader.List()->atEnd());
}

TEST_F(Ledger, ABalanceIsTheOpeningRowAndFromFebruaryOnWhatCameBeforeTheMonth) {
  makeLedger();
  book("000001", "2026-01-00", 1'000, 7'777, 0);
  book("000001", "2026-02-00", 5'555, 9'999, 0);  // an opening row of a month enters no sum
  book("000001", "2026-01-10", 0, 300, 0);
  book("000001", "2026-02-28", 0, 200, 50);
  book("000001", "2026-03-01", 0, 100'000, 0);
  book("000002", "2026-01-10", 0, 40, 0);
  const clsTradeBook sales(session.dbYear, LedgerSide::Sale);
  EXPECT_EQ(*sales.PeriodBalance("000001", "2026-03-16"), 1'000 + 300 + 200 - 50);
  EXPECT_EQ(*sales.PeriodBalance("000001", "2026-02-01"), 1'300);
  EXPECT_EQ(*sales.PeriodBalance("000001", "2026-01-31"), 1'000) << "January reads no period rows";
  EXPECT_EQ(*sales.PeriodBalance("000002", "2026-03-01"), 40);
  EXPECT_EQ(tests::linesOf(*sales.OpeningRows("2026")).size(), 2);
  EXPECT_EQ(*clsTradeBook(session.dbYear, LedgerSide::Purchase).PeriodBalance("000001", "2026-03-16"), 0);
}

TEST_F(Ledger, ABookRowMovesByADifferenceAndOnlyThatDay) {
  makeLedger();
  book("000001", "2026-03-10", 900, 1'000, 0);
  book("000001", "2026-03-00", 5'000, 0, 0);
  clsTradeBook sales(session.dbYear, LedgerSide::Sale);
  sales.CCode = "000001";
  sales.DealDate = "2026-03-10";
  EXPECT_TRUE(sales.Adjust(LedgerAmounts{} - LedgerAmounts{900, 10, 90, 1'000}));
  EXPECT_EQ(tests::rowsOf(session.dbYear,
                          "Select TradeKum & '/' & DC & '/' & VatKum & '/' & SumKum From SaleBook Where "
                          "DealDate = '2026-03-10'"),
            "0/-10/-90/0");
  EXPECT_EQ(tests::rowsOf(session.dbYear, "Select TradeKum From SaleBook Where DealDate = '2026-03-00'"),
            "5000");
  sales.DealDate = "2026-03-11";
  EXPECT_FALSE(sales.Adjust({1, 0, 0, 1})) << "no row of that day";
  sales.DealDate = "2026-03-10";
  EXPECT_TRUE(sales.Delete());
  EXPECT_EQ(tests::rowsOf(session.dbYear, "Select Count(*) From SaleBook"), "1");
}

TEST_F(Ledger, ANewTraderBringsHisBookRowAndAsksAboutADouble) {
  pc.prompts.expect("상호명, 전화번호, 주소 중 하나는 필수입력입니다.");
  EXPECT_EQ(saveNewTrader(session, {}), TraderSaved::BackToName);
  const TraderFields fields{.C_Name = "한라식당", .VAT = 1, .Section = "1", .TotNoPay = 12'000};
  pc.prompts.expect("거래처를 등록하는 중 오류가 발생했습니다.");  // once, though no table is there
  EXPECT_EQ(saveNewTrader(session, fields), TraderSaved::BackToName);
  session.dbBasic.createTable(schema::table(schema::File::Ledger, "Trader"));
  pc.prompts.expect("거래처를 등록하는 중 오류가 발생했습니다.");
  EXPECT_EQ(saveNewTrader(session, fields), TraderSaved::BackToName);
  EXPECT_EQ(tests::rowsOf(session.dbBasic, "Select Count(*) From Trader"), "0") << "no trader without a book";
  session.dbYear.createTable(schema::table(schema::File::Ledger, "SaleBook"));
  EXPECT_EQ(saveNewTrader(session, fields), TraderSaved::Stored);
  EXPECT_EQ(tests::rowsOf(session.dbYear, "Select CCode & CName & DealDate & TradeKum From SaleBook"),
            "000001한라식당2026-03-0012000");
  pc.prompts.expect(
      "한라식당는 이미 등록된 거래처입니다.\n등록하시겠습니까?\n[예] - 등록함.\n[아니오] - 등록하지 않고 "
      "종료\n[취소] - 다시 입력함.",
      false);
  EXPECT_EQ(saveNewTrader(session, fields), TraderSaved::Left);
  pc.prompts.expectInput("상호명 중복", "취소");
  EXPECT_EQ(saveNewTrader(session, fields), TraderSaved::BackToName);
  pc.prompts.expect("상호명 중복", true);
  EXPECT_EQ(saveNewTrader(session, fields), TraderSaved::Stored);
  EXPECT_EQ(tests::rowsOf(session.dbBasic, "Select Max(Code) From Trader"), "000002");
}

TEST_F(Ledger, TheFirstCharacterDecidesWhatIsSearched) {
  client("한라식당", "02-555-1234", "서울 중구");
  client("Bada Food", "031-777-8888", "부산");
  client("세라믹", "02-555-9999", "한강로 1");
  client("입주자", "", "", "한빛아파트", "101", "201");
  TraderSearch search(session);
  EXPECT_EQ(search.search("555"), 2);
  EXPECT_EQ(tests::columnOf(search.list(), TraderCol::Name), QStringList({"세라믹", "한라식당"}));
  EXPECT_EQ(search.search("Bad"), 1);
  EXPECT_EQ(search.search("Food"), 0) << "a capital letter looks at beginnings";
  EXPECT_EQ(search.search("food"), 1) << "a small one anywhere";
  EXPECT_EQ(search.search("한"), 2) << "name or address";
  EXPECT_EQ(search.search("라"), 2);
  EXPECT_EQ(search.search(""), 2);
  EXPECT_EQ(search.list().MaxRows(), 4);
  EXPECT_EQ(search.search("한'라'\\식]당"), 1) << "what would break the statement is dropped";
  EXPECT_EQ(search.list().text(1, TraderCol::Room), "") << "no building, no room";
  EXPECT_EQ(search.search("한라["), 0) << "no box, no failure";
  client("가[나", "", "");
  EXPECT_EQ(search.search("[나"), 1);
  client("Mini Apple Zoo");
  EXPECT_EQ(search.search("Apple") + search.search("Zoo"), 2) << "beginnings from B to Y alone";
  EXPECT_EQ(search.search("입주"), 1);
  EXPECT_EQ(search.list().text(1, TraderCol::Room), "한빛아파트101동201호");
  EXPECT_EQ(search.list().text(1, TraderCol::Code), "4");
}

TEST_F(Ledger, FindingInTheListGoesByTheLedgerOrByTheListItself) {
  client("가나다");
  client("바다");
  TraderSearch search(session);
  search.search("");
  EXPECT_EQ(search.find("바"), 2);
  pc.prompts.expect("검색된 거래처가 없습니다.");
  EXPECT_EQ(search.find("하["), 0);
  makeLedger();
  clsTrader trader(session.dbBasic);
  trader.fields = {.Code = "000001", .C_Name = "하늘"};
  trader.Insert();
  EXPECT_EQ(search.find("하"), 1) << "the ledger's name of customer 1";
}

TEST_F(Ledger, PostcodesOfTheWholeFile) {
  session.dbBasic.Execute("Insert Into User(Company, Post1, Post2) Values('a', 100, 199)");
  tests::insertRows(session.wsMain.OpenDatabase(session.DbPath + "dbPost.mdb"),
                    "Post(ZIPCODE, SIDO, GUGUN, DONG, BUNJI)",
                    {"'135080', '서울', '강남', '역삼동', '1'", "'700-010', '대구', '중구', '동인동', Null"});
  PostList posts(session);
  ASSERT_TRUE(posts.open());
  EXPECT_TRUE(posts.search("역삼"));
  EXPECT_EQ(posts.choice(1)->zipCode, "135-080");
  EXPECT_EQ(posts.choice(1)->address, "서울 강남 역삼동");
  EXPECT_TRUE(posts.search("700"));
  EXPECT_EQ(posts.list().MaxRows(), 1);
  EXPECT_TRUE(posts.search("")) << "all, beyond the company's own area too";
  EXPECT_EQ(posts.find("동인동"), 2);
  EXPECT_EQ(posts.find("135080"), 1);
  EXPECT_EQ(posts.find("없는동"), 0);
  EXPECT_FALSE(posts.search("없는동"));
}

}  // namespace
