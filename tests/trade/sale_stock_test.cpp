#include "tests/trade/sale_desk.h"

namespace {

using tests::SaleDesk;

/** A stored line of two pieces, changed to three, then deleted. Stock: kilograms|held|lent|empty|full. */
struct StockCase {
  SaleKind kind;
  const char* ofTwo;
  const char* ofThree;
};

class SaleStockOf : public testing::TestWithParam<StockCase> {};

TEST_P(SaleStockOf, FollowsNewChangedAndDeletedLine) {
  const StockCase& of = GetParam();
  SaleDesk desk;
  desk.run(
      "Insert Into Sale(SaleDate, ClientCode, SaleGubun, Gubun, SaleThing) Values('2026-03-05', 1, 1, False, "
      "'0')");
  TradeLine line;
  line.kind = &saleKind(of.kind);
  line.item = {"LPG", "20"};
  line.key = "1";

  line.number = 2;
  SaleBook(desk.pc.session).applyStock(line, StockMode::Change);
  EXPECT_EQ(desk.stock(), of.ofTwo);
  desk.run("Update Sale Set SaleNum = 2, SaleThing = '20'");
  line.number = 3;
  SaleBook(desk.pc.session).applyStock(line, StockMode::Change);
  EXPECT_EQ(desk.stock(), of.ofThree);
  desk.run("Update Sale Set SaleNum = 3");
  SaleBook(desk.pc.session).applyStock(line, StockMode::Delete);
  EXPECT_EQ(desk.stock(), "1000|100|10|40|50");
  EXPECT_EQ(desk.stock("50"), "1000|100|10|40|50");
}

INSTANTIATE_TEST_SUITE_P(Kinds, SaleStockOf,
                         testing::Values(StockCase{SaleGas, "960|100|10|42|48", "940|100|10|43|47"},
                                         StockCase{SaleCylinder, "1000|98|10|38|50", "1000|97|10|37|50"},
                                         StockCase{SaleFullCylinder, "960|98|10|40|48", "940|97|10|40|47"},
                                         StockCase{SaleCollection, "1000|100|10|40|50", "1000|100|10|40|50"},
                                         StockCase{SaleLoan, "1000|100|12|38|50", "1000|100|13|37|50"},
                                         StockCase{SaleReturn, "1000|100|8|42|50", "1000|100|7|43|50"}));

TEST(SaleStock, MaterialMovesByNameAndSpecification) {
  SaleDesk desk;
  desk.run(
      "Insert Into Sale(SaleDate, ClientCode, SaleGubun, Gubun, SaleThing, SaleNum) "
      "Values('2026-03-05', 1, 7, False, '15A', 4)");
  TradeLine line;
  line.kind = &saleKind(SaleMaterial);
  line.item = {"밸브", "15A"};
  line.key = "1";
  line.number = 6;
  SaleBook(desk.pc.session).applyStock(line, StockMode::Change);
  EXPECT_EQ(desk.rows("Select UtilStock From Util"), "28");
  SaleBook(desk.pc.session).applyStock(line, StockMode::Delete);
  EXPECT_EQ(desk.rows("Select UtilStock From Util"), "32") << "a deletion gives back what is stored";
}

TEST(SaleStock, ADeletionGivesBackStoredKilogramsAndOfGasAndLoansTheShownPieces) {
  const std::pair<SaleKind, const char*> ofFiveStoredThreeShown[] = {{SaleGas, "1100|100|10|37|53"},
                                                                     {SaleLoan, "1000|100|7|43|50"},
                                                                     {SaleReturn, "1000|100|15|35|50"},
                                                                     {SaleCylinder, "1000|105|10|45|50"},
                                                                     {SaleFullCylinder, "1100|105|10|40|55"}};
  for (const auto& [kind, stock] : ofFiveStoredThreeShown) {
    SaleDesk desk;
    desk.run(
        "Insert Into Sale(SaleDate, ClientCode, SaleGubun, Gubun, SaleThing, SaleNum) "
        "Values('2026-03-05', 1, 1, False, '20', 5)");
    TradeLine line;
    line.kind = &saleKind(kind);
    line.item = {"LPG", "20"};
    line.key = "1";
    line.number = 3;
    SaleBook(desk.pc.session).applyStock(line, StockMode::Delete);
    EXPECT_EQ(desk.stock(), stock) << kind;
  }
}

TEST(SaleStock, AChangedItemIsNotGivenItsStockBack) {
  SaleDesk desk;
  desk.run(
      "Insert Into Sale(SaleDate, ClientCode, SaleGubun, Gubun, SaleThing, SaleNum) "
      "Values('2026-03-05', 1, 1, False, '20', 2)");
  TradeLine line;
  line.kind = &saleKind(SaleGas);
  line.item = {"LPG", "50"};
  line.key = "1";
  line.number = 2;
  SaleBook(desk.pc.session).applyStock(line, StockMode::Change);
  EXPECT_EQ(desk.stock("20"), "1000|100|10|40|50");
  EXPECT_EQ(desk.stock("50"), "940|100|10|40|50") << "20 x 2 back and 50 x 2 out, both on the item named now";
}

TEST(SaleStock, NothingMovesWithoutManagementOrItem) {
  SaleDesk desk;
  desk.run(
      "Insert Into Sale(SaleDate, ClientCode, SaleGubun, Gubun, SaleThing) Values('2026-03-05', 1, 1, False, "
      "'0')");
  TradeLine line;
  line.kind = &saleKind(SaleGas);
  line.key = "1";
  line.number = 2;
  SaleBook(desk.pc.session).applyStock(line, StockMode::Change);
  desk.pc.session.StockEnabled = false;
  line.item = {"LPG", "20"};
  SaleBook(desk.pc.session).applyStock(line, StockMode::Change);
  EXPECT_EQ(desk.stock(), "1000|100|10|40|50");
}

}  // namespace
