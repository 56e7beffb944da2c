#pragma once
// What a line of sale or purchase can be. A kind is one row of one table, and every rule that depends on the kind reads
// that row: its label and place in the combo cell, its item search, its running figure, what it does to the stock.
#include <QString>
#include <QStringList>

#include <vector>

/** The tabs of the sale screen, by index. */
enum class SaleSheet { General = 0, Volume = 1, Material = 2 };

/** Sale.SaleGubun. */
enum SaleKind {
  SaleGas = 1,
  SaleCylinder = 2,
  SaleFullCylinder = 3,
  SaleCollection = 4,
  SaleLoan = 5,
  SaleReturn = 6,
  SaleMaterial = 7,
  SaleMaterialCollection = 8
};

/** Buy.PurchaseGubun. */
enum BuyKind {
  BuyGas = 1,
  BuyCylinder = 2,
  BuyFullCylinder = 3,
  BuyMaterial = 4,
  BuyLeft = 5,       ///< empties left with the station
  BuyTakenBack = 6,  ///< empties taken back from it
  BuyGasPayment = 7,
  BuyMaterialPayment = 8
};

/** Which running figure of the customer or the station: GasInit or UtilInit. */
enum class LineBalance { Gas, Material };

/** Change: the row as it stands now against the stored line, which may be a skeleton without figures.
 *  Delete: the stored line goes. */
enum class StockMode { Change = 2, Delete = 3 };

/** The table of the catalogue that a kind's items stand in. */
struct StockTable {
  const char16_t* table;
  const char16_t* nameColumn;
};

/** How a column of the catalogue follows one piece (or its kilograms) more on the line. */
struct StockEffect {
  const char16_t* column;
  int sign;
  bool kilograms = false;
  const char16_t* setter =
      nullptr;  ///< kept: two statements spell the column in their own way, in setterMode
  StockMode setterMode = StockMode::Change;
};

struct LineKind {
  int code;             ///< as stored
  QString label;        ///< in the combo cell; the order of the rows is the order of the cell's positions
  QString searchCode;   ///< what the item search is asked for; '' for a payment
  QString paymentText;  ///< what a payment shows in place of an item; '' for a kind with items
  LineBalance balance = LineBalance::Gas;  ///< moved by what is left on credit, of a payment by what is paid
  LineBalance givenBack = LineBalance::Gas;  ///< from which a deletion takes it off again
  const StockTable* stock = nullptr;
  std::vector<StockEffect> effects = {};
  bool deletesShown = false;  ///< kept: a deletion gives back the pieces shown, not those stored

  bool isPayment() const { return !paymentText.isEmpty(); }
};

using LineKinds = std::vector<LineKind>;

/** The kinds of a sheet, in the order of its combo cell. */
const LineKinds& saleKinds(SaleSheet sheet);
const LineKinds& buyKinds();

/** Which kinds of a balance a statement speaks of. */
enum class KindPart { All, Sold, Paid };
/** A condition on the column that holds a line's kind: "(Sale.SaleGubun = 7 Or Sale.SaleGubun = 8)". */
QString saleKindIs(const QString& column, LineBalance balance, KindPart part = KindPart::All);
QString buyKindIs(const QString& column, LineBalance balance, KindPart part = KindPart::All);
/** Neither materials nor a payment; a code outside the table is gas goods too. */
QString saleIsGasGoods(const QString& column);
QString buyIsGasGoods(const QString& column);

QStringList labelsOf(const LineKinds& kinds);
/** Position to kind; a place outside the list (an untouched cell) is the first kind. */
const LineKind& kindAt(const LineKinds& kinds, int position);
/** Code to position. Kept: a code outside the kinds stands at the last position. */
int positionOf(const LineKinds& kinds, int code);
/** Of any sheet; a code outside the table is a kind without label, search, balance of its own or stock. */
const LineKind& saleKind(int code);
const LineKind& buyKind(int code);
