// Gas, cylinders and materials: what a row may be, what a change writes, what a line of each kind may pick.
#include "master/catalogue/gas_catalogue.h"

#include "master/catalogue/size_search.h"
#include "master/catalogue/util_catalogue.h"
#include "tests/support.h"

using namespace Qt::StringLiterals;

namespace {

struct GasCatalogueTest : testing::Test {
  void SetUp() override { pc.openBooks(); }
  jet::Recordset rows(const QString& sql) { return pc.session.dbBasic.OpenRecordset(sql); }
  int run(const QString& sql) { return pc.session.dbBasic.Execute(sql); }

  tests::TestPc pc;
};

const RegisterFields gasOf20 = {{u"LPGName"_s, u"LPG"_s},        {u"Size"_s, u"20"_s},
                                {u"LPGPurchase"_s, u"30,000"_s}, {u"LPGSelling"_s, u"38,000"_s},
                                {u"CANPurchase"_s, u"25000"_s},  {u"CANSelling"_s, u"28000"_s},
                                {u"LPGStock"_s, u"210"_s},       {u"CANFull"_s, u"10"_s},
                                {u"CANEmpty"_s, u"7"_s},         {u"CANLoan"_s, u"3"_s}};

TEST_F(GasCatalogueTest, NewRowNeedsNewButtonNameAndSizeAndIsStoredWithItsTotal) {
  GasCatalogue gas(pc.session);
  ASSERT_TRUE(gas.load());
  pc.prompts.expect(u"신규등록은 신규버튼을 누른 후 입력해 주십시오"_s);
  EXPECT_FALSE(gas.save(gasOf20).done);

  gas.beginNew();
  RegisterFields boxes = gasOf20;
  boxes[u"LPGName"_s].clear();
  pc.prompts.expect(u"품명은 필수입력사항입니다!"_s);
  EXPECT_EQ(gas.save(boxes).focus, u"LPGName"_s);
  boxes = gasOf20;
  boxes[u"Size"_s].clear();
  pc.prompts.expect(u"LPG/용기의 용량은 필수입력사항입니다!"_s);
  EXPECT_EQ(gas.save(boxes).focus, u"Size"_s);
  EXPECT_TRUE(gas.isNew());

  ASSERT_TRUE(gas.save(gasOf20).done);
  const jet::Recordset rs = rows(u"Select * From LPG"_s);
  EXPECT_EQ(rs[u"LPGPurchase"_s].toLong(), 30000);
  EXPECT_EQ(rs[u"CANTotalHold"_s].toLong(), 20);  // 10 full, 7 empty, 3 lent
  EXPECT_EQ(gas.list().text(1, 10), u"20"_s);
  EXPECT_EQ(gas.list().text(1, 12), u"315000"_s);  // 210 kg at 30,000 won for 20 kg

  // The same size under another name is another item, the same name is not.
  gas.beginNew();
  pc.prompts.expect(u"용량이 20KG의 LPG/용기는 이미 등록되어 있습니다!"_s);
  EXPECT_FALSE(gas.save(gasOf20).done);
  boxes = gasOf20;
  boxes[u"LPGName"_s] = u"부탄"_s;
  EXPECT_TRUE(gas.save(boxes).done);
  EXPECT_EQ(gas.list().MaxRows(), 2);
}

TEST_F(GasCatalogueTest, ChangeCorrectsStockButNotTheSize) {
  GasCatalogue gas(pc.session);
  gas.beginNew();
  ASSERT_TRUE(gas.save(gasOf20).done);

  RegisterFields boxes = gas.select(1);
  EXPECT_EQ(boxes[u"CANLoan"_s], u"3"_s);
  boxes[u"Size"_s] = u"50"_s;
  boxes[u"CANLoan"_s] = u"5"_s;
  boxes[u"LPGStock"_s] = u""_s;
  pc.prompts.expect(u"비워 둘 수 없습니다! 없으면 0을 입력하십시오."_s);
  EXPECT_EQ(gas.save(boxes).focus, u"LPGStock"_s);
  boxes[u"LPGStock"_s] = u"0"_s;
  pc.prompts.expect(u"선택된 자료를 위와 같이 변경하시겠습니까?"_s, false);
  EXPECT_FALSE(gas.save(boxes).done);
  EXPECT_EQ(rows(u"Select * From LPG"_s)[u"CANLoan"_s].toLong(), 3);

  boxes[u"LPGName"_s].clear();
  pc.prompts.expect(u"선택된 자료를 위와 같이 변경하시겠습니까?"_s);
  ASSERT_TRUE(gas.save(boxes).done);
  const jet::Recordset rs = rows(u"Select * From LPG"_s);
  EXPECT_EQ(rs[u"Size"_s].toText(), u"20"_s);
  EXPECT_EQ(rs[u"LPGName"_s].toText(), u""_s);
  EXPECT_EQ(rs[u"CANTotalHold"_s].toLong(), 22);
  EXPECT_EQ(rs[u"LPGStock"_s].toLong(), 0);
  EXPECT_EQ(gas.selectedRow(), 1);

  pc.session.dbBasic.Execute(
      u"Update LPG Set CANTotalHold = 99, Size = '20.50'"_s);  // as an older program may have left it
  ASSERT_TRUE(gas.load());
  boxes = gas.select(1);
  boxes[u"LPGSelling"_s] = u"41000"_s;
  pc.prompts.expect(u"선택된 자료를 위와 같이 변경하시겠습니까?"_s);
  ASSERT_TRUE(gas.save(boxes).done);
  EXPECT_EQ(rows(u"Select * From LPG"_s)[u"CANTotalHold"_s].toLong(), 99) << "no count was corrected";
  EXPECT_EQ(rows(u"Select * From LPG"_s)[u"Size"_s].toText(), u"20.50"_s) << "lines were posted under it";

  pc.prompts.expect(u"선택된 LPG/용기에 대한 자료를 삭제하시겠습니까?"_s);
  EXPECT_TRUE(gas.remove().done);
  EXPECT_EQ(gas.list().MaxRows(), 0);
  EXPECT_FALSE(gas.remove().done);  // nothing chosen: no question
}

TEST_F(GasCatalogueTest, StockWorthRoundsHalfAwayFromZeroAndSurvivesASizeOfNothing) {
  EXPECT_EQ(
      GasCatalogue::stockWorth({{u"Size"_s, u"20"_s}, {u"LPGStock"_s, u"1"_s}, {u"LPGPurchase"_s, u"30"_s}}),
      2);
  EXPECT_EQ(
      GasCatalogue::stockWorth({{u"Size"_s, u"20"_s}, {u"LPGStock"_s, u"-1"_s}, {u"LPGPurchase"_s, u"30"_s}}),
      -2);
  EXPECT_EQ(
      GasCatalogue::stockWorth({{u"Size"_s, u""_s}, {u"LPGStock"_s, u"1"_s}, {u"LPGPurchase"_s, u"30"_s}}),
      0);
}

TEST_F(GasCatalogueTest, MaterialsAreKnownByNameAndSizeTogether) {
  UtilCatalogue util(pc.session);
  util.beginNew();
  pc.prompts.expect(u"시설/자재의 품명을 입력해 주십시오"_s);
  EXPECT_EQ(util.save({{u"Size"_s, u"15A"_s}}).focus, u"Name"_s);
  pc.prompts.expect(u"시설/자재의 규격을 입력해 주십시오"_s);
  EXPECT_EQ(util.save({{u"Name"_s, u"밸브"_s}}).focus, u"Size"_s);

  const RegisterFields valve = {{u"Name"_s, u"밸브"_s},        {u"Size"_s, u"15A"_s},
                                {u"SizeSize"_s, u"개"_s},      {u"UtilPurchase"_s, u"1,200"_s},
                                {u"UtilSelling"_s, u"2000"_s}, {u"UtilStock"_s, u"7"_s}};
  ASSERT_TRUE(util.save(valve).done);
  EXPECT_EQ(util.list().text(1, 6), u"8400"_s);
  util.beginNew();
  pc.prompts.expect(u"밸브 15A 의 시설/자재는 이미 등록되어 있습니다!"_s);
  EXPECT_FALSE(util.save(valve).done);
  RegisterFields larger = valve;
  larger[u"Size"_s] = u"20A"_s;
  ASSERT_TRUE(util.save(larger).done);

  // A change and a delete touch the chosen size alone.
  RegisterFields boxes = util.select(2);
  boxes[u"UtilStock"_s] = u"9"_s;
  boxes[u"Size"_s] = u"25A"_s;
  pc.prompts.expect(u"선택된 자료를 위와 같이 변경하시겠습니까?"_s);
  ASSERT_TRUE(util.save(boxes).done);
  EXPECT_EQ(rows(u"Select * From Util Where Size = '15A'"_s)[u"UtilStock"_s].toLong(), 7);
  EXPECT_EQ(rows(u"Select * From Util Where Size = '25A'"_s)[u"UtilStock"_s].toLong(), 9);
  util.select(1);
  pc.prompts.expect(u"선택된 자료를 삭제하시겠습니까?"_s);
  ASSERT_TRUE(util.remove().done);
  EXPECT_EQ(rows(u"Select * From Util"_s)[u"Size"_s].toText(), u"25A"_s);
}

TEST_F(GasCatalogueTest, EachKindOfLinePicksWithItsOwnHeadingsPriceAndCount) {
  run(u"Insert Into LPG(LPGName, Size, LPGPurchase, LPGSelling, CANPurchase, CANSelling, LPGStock, "
      u"CANTotalHold, "
      u"CANLoan, CANFull, CANEmpty) Values('LPG', '20', 1, 20, 300, 4000, 99, 14, 3, 5, 6)"_s);
  run(u"Insert into Util(Name, Size, SizeSize, UtilPurchase, UtilSelling, UtilStock) Values('밸브', '15A', '개', 70, 80, 9)"_s);
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
    EXPECT_EQ(chosen->name + chosen->size, kind == u"4" ? u"밸브15A"_s : u"LPG20"_s);
    EXPECT_EQ(chosen->price, is.price) << kind.toStdString();
    EXPECT_EQ(chosen->stock, is.stock) << kind.toStdString();
    EXPECT_FALSE(SizeSearch::choice(list, 2));
  };
  for (const auto& is : cases) {
    holds(QString::fromUtf16(is.kind), TradeSide::Sale, is.sale);
    holds(QString::fromUtf16(is.kind), TradeSide::Purchase, is.purchase);
  }
  SpreadModel list;
  EXPECT_TRUE(SizeSearch(pc.session, u"9"_s, TradeSide::Sale).load(list));
  EXPECT_EQ(list.MaxRows(), 0);
}

}  // namespace
