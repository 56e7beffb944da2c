// Gas, cylinders and materials: what a row may be, what a change writes, what a line of each kind may pick.
#include "master/catalogue/gas_catalogue.h"

#include "master/catalogue/size_search.h"
#include "master/catalogue/util_catalogue.h"
#include "tests/answers.h"
#include "tests/master/refusal.h"

namespace {

struct GasCatalogueTest : testing::Test {
  void SetUp() override { pc.openBooks(); }
  QString rows(const QString& sql) { return tests::rowsOf(pc.session.dbBasic, sql); }
  QString refused(RegisterRules& rules, const RegisterFields& boxes, const QString& told) {
    return tests::refusedAt(pc.prompts, rules, boxes, told);
  }
  void change(RegisterRules& rules, const RegisterFields& boxes) {
    pc.prompts.expect("선택된 자료를 위와 같이 변경하시겠습니까?");
    ASSERT_TRUE(rules.save(boxes).done);
  }
  int run(const QString& sql) { return pc.session.dbBasic.Execute(sql); }

  tests::TestPc pc;
};

const RegisterFields gasOf20 = {{"LPGName", "LPG"},       {"Size", "20"},           {"LPGPurchase", "30,000"},
                                {"LPGSelling", "38,000"}, {"CANPurchase", "25000"}, {"CANSelling", "28000"},
                                {"LPGStock", "210"},      {"CANFull", "10"},        {"CANEmpty", "7"},
                                {"CANLoan", "3"}};

TEST_F(GasCatalogueTest, NewRowNeedsNewButtonNameAndSizeAndIsStoredWithItsTotal) {
  GasCatalogue gas(pc.session);
  ASSERT_TRUE(gas.load());
  refused(gas, gasOf20, "신규등록은 신규버튼을 누른 후 입력해 주십시오");
  gas.beginNew();
  RegisterFields boxes = gasOf20;
  boxes["LPGName"].clear();
  EXPECT_EQ(refused(gas, boxes, "품명은 필수입력사항입니다!"), "LPGName");
  boxes = gasOf20;
  boxes["Size"].clear();
  EXPECT_EQ(refused(gas, boxes, "LPG/용기의 용량은 필수입력사항입니다!"), "Size");
  EXPECT_TRUE(gas.isNew());

  ASSERT_TRUE(gas.save(gasOf20).done);
  EXPECT_EQ(rows("Select LPGPurchase, CANTotalHold From LPG"), "30000|20") << "10 full, 7 empty, 3 lent";
  EXPECT_EQ(gas.list().text(1, 10), "20");
  EXPECT_EQ(gas.list().text(1, 12), "315000");  // 210 kg at 30,000 won for 20 kg

  // The same size under another name is another item, the same name is not.
  gas.beginNew();
  refused(gas, gasOf20, "용량이 20KG의 LPG/용기는 이미 등록되어 있습니다!");
  boxes = gasOf20;
  boxes["LPGName"] = "부탄";
  EXPECT_TRUE(gas.save(boxes).done);
  EXPECT_EQ(gas.list().MaxRows(), 2);
}

TEST_F(GasCatalogueTest, ChangeCorrectsStockButNotTheSize) {
  GasCatalogue gas(pc.session);
  gas.beginNew();
  ASSERT_TRUE(gas.save(gasOf20).done);

  RegisterFields boxes = gas.select(1);
  EXPECT_EQ(boxes["CANLoan"], "3");
  boxes["Size"] = "50";
  boxes["CANLoan"] = "5";
  boxes["LPGStock"] = "";
  EXPECT_EQ(refused(gas, boxes, "비워 둘 수 없습니다! 없으면 0을 입력하십시오."), "LPGStock");
  boxes["LPGStock"] = "0";
  pc.prompts.expect("선택된 자료를 위와 같이 변경하시겠습니까?", false);
  EXPECT_FALSE(gas.save(boxes).done);
  EXPECT_EQ(rows("Select CANLoan From LPG"), "3");

  boxes["LPGName"].clear();
  change(gas, boxes);
  EXPECT_EQ(rows("Select Size, LPGName, CANTotalHold, LPGStock From LPG"), "20||22|0");
  EXPECT_EQ(gas.selectedRow(), 1);

  run("Update LPG Set CANTotalHold = 99, Size = '20.50'");  // as an older program may have left it
  ASSERT_TRUE(gas.load());
  boxes = gas.select(1);
  boxes["LPGSelling"] = "41000";
  change(gas, boxes);
  EXPECT_EQ(rows("Select CANTotalHold From LPG"), "99") << "no count was corrected";
  EXPECT_EQ(rows("Select Size From LPG"), "20.50") << "lines were posted under it";

  pc.prompts.expect("선택된 LPG/용기에 대한 자료를 삭제하시겠습니까?");
  EXPECT_TRUE(gas.remove().done);
  EXPECT_EQ(gas.list().MaxRows(), 0);
  EXPECT_FALSE(gas.remove().done);  // nothing chosen: no question
}

TEST_F(GasCatalogueTest, StockWorthRoundsHalfAwayFromZeroAndSurvivesASizeOfNothing) {
  const auto worth = [](const QString& size, const QString& stock) {
    return GasCatalogue::stockWorth({{"Size", size}, {"LPGStock", stock}, {"LPGPurchase", "30"}});
  };
  EXPECT_EQ(worth("20", "1"), 2);
  EXPECT_EQ(worth("20", "-1"), -2);
  EXPECT_EQ(worth("", "1"), 0);
}

TEST_F(GasCatalogueTest, MaterialsAreKnownByNameAndSizeTogether) {
  UtilCatalogue util(pc.session);
  util.beginNew();
  EXPECT_EQ(refused(util, {{"Size", "15A"}}, "시설/자재의 품명을 입력해 주십시오"), "Name");
  EXPECT_EQ(refused(util, {{"Name", "밸브"}}, "시설/자재의 규격을 입력해 주십시오"), "Size");

  const RegisterFields valve = {{"Name", "밸브"},          {"Size", "15A"},         {"SizeSize", "개"},
                                {"UtilPurchase", "1,200"}, {"UtilSelling", "2000"}, {"UtilStock", "7"}};
  ASSERT_TRUE(util.save(valve).done);
  EXPECT_EQ(util.list().text(1, 6), "8400");
  util.beginNew();
  refused(util, valve, "밸브 15A 의 시설/자재는 이미 등록되어 있습니다!");
  RegisterFields larger = valve;
  larger["Size"] = "20A";
  ASSERT_TRUE(util.save(larger).done);

  // A change and a delete touch the chosen size alone.
  RegisterFields boxes = util.select(2);
  boxes["UtilStock"] = "9";
  boxes["Size"] = "25A";
  change(util, boxes);
  EXPECT_EQ(rows("Select Size, UtilStock From Util Order By Size"), "15A|7;25A|9");
  util.select(1);
  pc.prompts.expect("선택된 자료를 삭제하시겠습니까?");
  ASSERT_TRUE(util.remove().done);
  EXPECT_EQ(rows("Select Size From Util"), "25A");
}

TEST_F(GasCatalogueTest, EachKindOfLinePicksWithItsOwnHeadingsPriceAndCount) {
  run("Insert Into LPG(LPGName, Size, LPGPurchase, LPGSelling, CANPurchase, CANSelling, LPGStock, "
      "CANTotalHold, CANLoan, CANFull, CANEmpty) Values('LPG', '20', 1, 20, 300, 4000, 99, 14, 3, 5, 6)");
  run("Insert into Util(Name, Size, SizeSize, UtilPurchase, UtilSelling, UtilStock) Values('밸브', '15A', "
      "'개', 70, 80, 9)");
  struct List {
    const char16_t* headings;
    double price, stock;
  };
  const struct {
    const char16_t* kind;
    List sale, purchase;
  } cases[] = {
      {u"1", {u"가스명|용  량|판매단가|실병재고", 20, 5}, {u"가스명|용  량|구매단가|공병재고", 1, 6}},
      {u"2", {u"용기명|용  량|용기단가|공병재고", 4000, 6}, {u"용기명|용  량|용기단가|보유용기", 300, 14}},
      {u"3", {u"품  명|용  량|판매단가|실병재고", 4020, 5}, {u"품  명|용  량|단    가|보유용기", 301, 14}},
      {u"4", {u"자재명|규  격|판매단가|현재재고", 80, 9}, {u"품  명|규  격|구매단가|현재재고", 70, 9}},
      {u"5", {u"용기명|용  량|대여단가|공병재고", 0, 6}, {u"용기명|용  량|대여단가|대여수량", 0, 3}},
      {u"6", {u"용기명|용  량|회수단가|공병재고", 0, 6}, {u"용기명|용  량|회수단가|용 기 수", 0, 3}},
  };
  const auto holds = [&](const QString& kind, TradeSide side, const List& is) {
    SpreadModel list;
    ASSERT_TRUE(SizeSearch(pc.session, kind, side).load(list));
    QStringList headings;
    for (int col = 1; col <= list.MaxCols(); ++col) headings << list.column(col).header;
    EXPECT_EQ(headings.join(u'|'), QString::fromUtf16(is.headings));
    const auto chosen = SizeSearch::choice(list, 1);
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->name + chosen->size, kind == u"4" ? "밸브15A" : "LPG20");
    EXPECT_EQ(chosen->price, is.price) << kind.toStdString();
    EXPECT_EQ(chosen->stock, is.stock) << kind.toStdString();
    EXPECT_FALSE(SizeSearch::choice(list, 2));
  };
  for (const auto& is : cases) {
    holds(QString::fromUtf16(is.kind), TradeSide::Sale, is.sale);
    holds(QString::fromUtf16(is.kind), TradeSide::Purchase, is.purchase);
  }
  SpreadModel list;
  EXPECT_TRUE(SizeSearch(pc.session, "9", TradeSide::Sale).load(list));
  EXPECT_EQ(list.MaxRows(), 0);
}

}  // namespace
