#include "trade/sale_stock.h"

#include <algorithm>
#include <vector>

#include "store/data_access.h"

using namespace Qt::StringLiterals;

namespace {

/** The stored line's figures and the row's own. */
struct StockFigures {
  double storedPieces = 0, storedSize = 0, shownPieces = 0, shownSize = 0;
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

struct KindStock {
  int kind;
  const char16_t* table;
  const char16_t* nameColumn;
  bool deletesShown;  ///< kept: a deletion takes back the pieces shown, not those stored
  std::vector<StockEffect> effects;
};

constexpr auto oddSetter = u"CANEmpty = CANEMpty + ";

const std::vector<KindStock>& stockTable() {
  static const std::vector<KindStock> table = {
      {SaleGas, u"LPG", u"LPGName", true, {{u"LPGStock", -1, true}, {u"CANFull", -1}, {u"CANEmpty", +1}}},
      {SaleCylinder, u"LPG", u"LPGName", false, {{u"CANEmpty", -1}, {u"CANTotalHold", -1}}},
      {SaleFullCylinder,
       u"LPG",
       u"LPGName",
       false,
       {{u"LPGStock", -1, true}, {u"CANTotalHold", -1}, {u"CANFull", -1}}},
      {SaleLoan,
       u"LPG",
       u"LPGName",
       true,
       {{u"CANEmpty", -1, false, oddSetter, StockMode::Delete}, {u"CANLoan", +1}}},
      {SaleReturn,
       u"LPG",
       u"LPGName",
       false,
       {{u"CANEmpty", +1, false, oddSetter, StockMode::Change}, {u"CANLoan", -1}}},
      {SaleMaterial, u"Util", u"Name", false, {{u"UtilStock", -1}}},
  };
  return table;
}

double stockMoved(const StockEffect& effect, const StockFigures& figures, StockMode mode, bool deletesShown) {
  const double stored = effect.kilograms ? figures.storedSize * figures.storedPieces : figures.storedPieces;
  if (mode == StockMode::Delete)
    return -effect.sign * (deletesShown && !effect.kilograms ? figures.shownPieces : stored);
  const double shown = effect.kilograms ? figures.shownPieces * figures.shownSize : figures.shownPieces;
  return effect.sign * (shown - stored);
}

QString stockSetter(const StockEffect& effect, StockMode mode) {
  if (effect.setter && effect.setterMode == mode) return QString::fromUtf16(effect.setter);
  const QString column = QString::fromUtf16(effect.column);
  return column + u" = "_s + column + u" + "_s;
}

}  // namespace

void ApplySaleStock(Session& session, const SaleLine& line, StockMode mode) {
  if (!session.StockEnabled || line.item.isEmpty()) return;
  const auto& table = stockTable();
  const auto kind = std::find_if(table.begin(), table.end(),
                                 [&line](const KindStock& row) { return row.kind == line.kind; });
  if (kind == table.end()) return;

  const jet::Recordset stored =
      session.dbYear.OpenRecordset(u"Select * From Sale Where SaleID = "_s + plainNumber(line.key));
  StockFigures figures;
  if (stored.RecordCount() > 0) {
    figures.storedPieces = stored[u"SaleNum"_s].toDouble();
    figures.storedSize = stored[u"SaleThing"_s].toDouble();
  }
  figures.shownPieces = double(line.number);
  figures.shownSize = saleFigure(line.item.size);

  QStringList setters;
  for (const StockEffect& effect : kind->effects)
    setters << stockSetter(effect, mode) + saleText(stockMoved(effect, figures, mode, kind->deletesShown));
  session.dbYear.Execute(u"Update "_s + QString::fromUtf16(kind->table) + u" Set "_s + setters.join(u", "_s) +
                         u" Where Size = '"_s + plainText(line.item.size) + u"' And "_s +
                         QString::fromUtf16(kind->nameColumn) + u" = '"_s + plainText(line.item.name) +
                         u"'"_s);
}
