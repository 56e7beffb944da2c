#include "tests/trade/sale_desk.h"

namespace {

const char* const untouched = "1000|100|10|40|50";

/** Line 1 as it is stored, and what a row that shows other pieces does to the stock. */
struct StoredLine : tests::SaleDesk {
  /** A skeleton, or pieces of a size. */
  explicit StoredLine(SaleKind of, int pieces = 0, const QString& size = "20") {
    kind = of;
    sold("'2026-03-05', 1, 1, False, 'LPG', '0'");
    if (pieces > 0) store(pieces, size);
  }
  void store(int pieces, const QString& size = "20") {
    run("Update Sale Set SaleNum = " + QString::number(pieces) + ", SaleThing = '" + size + "'");
  }
  void shows(int pieces, const ItemText& item = {"LPG", "20"}, StockMode mode = StockMode::Change) {
    TradeLine line;
    line.kind = &saleKind(kind);
    line.item = item;
    line.key = "1";
    line.number = pieces;
    SaleBook(pc.session).applyStock(line, mode);
  }
  void deleted(int shown, const ItemText& item = {"LPG", "20"}) { shows(shown, item, StockMode::Delete); }

  SaleKind kind;
};

/** Two pieces, changed to three, then deleted; five stored and deleted by a row that shows three. Stock:
 *  kilograms|held|lent|empty|full. */
struct StockCase {
  SaleKind kind;
  const char *ofTwo, *ofThree, *givenBack;
};

class SaleStockOf : public testing::TestWithParam<StockCase> {};

TEST_P(SaleStockOf, FollowsNewChangedAndDeletedLine) {
  const StockCase& of = GetParam();
  StoredLine line(of.kind);
  line.shows(2);
  EXPECT_EQ(line.stock(), of.ofTwo);
  line.store(2);
  line.shows(3);
  EXPECT_EQ(line.stock(), of.ofThree);
  line.store(3);
  line.deleted(3);
  EXPECT_EQ(line.stock(), untouched);
  EXPECT_EQ(line.stock("50"), untouched);
}

TEST_P(SaleStockOf, ADeletionGivesBackStoredKilogramsAndOfGasAndLoansTheShownPieces) {
  StoredLine line(GetParam().kind, 5);
  line.deleted(3);
  EXPECT_EQ(line.stock(), GetParam().givenBack);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, SaleStockOf,
    testing::Values(StockCase{SaleGas, "960|100|10|42|48", "940|100|10|43|47", "1100|100|10|37|53"},
                    StockCase{SaleCylinder, "1000|98|10|38|50", "1000|97|10|37|50", "1000|105|10|45|50"},
                    StockCase{SaleFullCylinder, "960|98|10|40|48", "940|97|10|40|47", "1100|105|10|40|55"},
                    StockCase{SaleCollection, untouched, untouched, untouched},
                    StockCase{SaleLoan, "1000|100|12|38|50", "1000|100|13|37|50", "1000|100|7|43|50"},
                    StockCase{SaleReturn, "1000|100|8|42|50", "1000|100|7|43|50", "1000|100|15|35|50"}));

TEST(SaleStock, MaterialMovesByNameAndSpecification) {
  StoredLine line(SaleMaterial, 4, "15A");
  line.shows(6, {"밸브", "15A"});
  EXPECT_EQ(line.rows("Select UtilStock From Util"), "28");
  line.deleted(6, {"밸브", "15A"});
  EXPECT_EQ(line.rows("Select UtilStock From Util"), "32") << "a deletion gives back what is stored";
}

TEST(SaleStock, AChangedItemIsNotGivenItsStockBack) {
  StoredLine line(SaleGas, 2);
  line.shows(2, {"LPG", "50"});
  EXPECT_EQ(line.stock("20"), untouched);
  EXPECT_EQ(line.stock("50"), "940|100|10|40|50") << "20 x 2 back and 50 x 2 out, both on the item named now";
}

TEST(SaleStock, NothingMovesWithoutManagementOrItem) {
  StoredLine line(SaleGas);
  line.shows(2, {});
  line.pc.session.StockEnabled = false;
  line.shows(2);
  EXPECT_EQ(line.stock(), untouched);
}

}  // namespace
