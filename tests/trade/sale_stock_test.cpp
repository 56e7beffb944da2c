// The stock by a row that shows other pieces than its line holds; new and changed lines stand in sale_cases.txt.
#include "tests/trade/sale_desk.h"

namespace {

/** Five pieces of size 20 are stored, the row shows three: stock of 20, of 50, of fittings. */
QString stockBy(SaleKind kind, StockMode mode, const ItemText& item = {"LPG", "20"}) {
  tests::SaleDesk desk;
  desk.sold("'2026-03-05', 1, 1, False, 'LPG', '20', 5");
  TradeLine line;
  line.kind = &saleKind(kind);
  line.item = item;
  line.key = "1";
  line.number = 3;
  SaleBook(desk.pc.session).applyStock(line, mode);
  return desk.stock("20") + ' ' + desk.stock("50") + ' ' + desk.rows("Select UtilStock From Util");
}

TEST(SaleStock, ADeletionGivesBackStoredKilogramsAndOfGasAndLoansTheShownPieces) {
  const std::pair<SaleKind, QString> kinds[] = {
      {SaleGas, "1100|100|10|37|53"},          {SaleCylinder, "1000|105|10|45|50"},
      {SaleFullCylinder, "1100|105|10|40|55"}, {SaleCollection, "1000|100|10|40|50"},
      {SaleLoan, "1000|100|7|43|50"},          {SaleReturn, "1000|100|15|35|50"}};
  for (const auto& [kind, givenBack] : kinds)
    EXPECT_EQ(stockBy(kind, StockMode::Delete), givenBack + " 1000|100|10|40|50 30") << int(kind);
  EXPECT_EQ(stockBy(SaleMaterial, StockMode::Delete, {"밸브", "15A"}),
            "1000|100|10|40|50 1000|100|10|40|50 35");
}

TEST(SaleStock, AChangedItemIsNotGivenItsStockBack) {
  EXPECT_EQ(stockBy(SaleGas, StockMode::Change, {"LPG", "50"}), "1000|100|10|40|50 950|100|10|38|52 30")
      << "20 x 5 back and 50 x 3 out, both on the item named now";
  EXPECT_EQ(stockBy(SaleGas, StockMode::Change, {}), "1000|100|10|40|50 1000|100|10|40|50 30") << "no item";
}

}  // namespace
