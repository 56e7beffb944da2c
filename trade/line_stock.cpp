#include "trade/line_stock.h"

#include "store/data_access.h"

using namespace Qt::StringLiterals;

namespace {

double stockMoved(const StockEffect& effect, const StoredPieces& stored, const StoredPieces& shown,
                  StockMode mode, bool deletesShown) {
  const auto counted = [&effect](const StoredPieces& of) {
    return effect.kilograms ? of.number * of.size : of.number;
  };
  if (mode == StockMode::Change) return effect.sign * (counted(shown) - counted(stored));
  return -effect.sign * (deletesShown && !effect.kilograms ? shown.number : counted(stored));
}

QString stockSetter(const StockEffect& effect, StockMode mode) {
  if (effect.setter && effect.setterMode == mode) return QString::fromUtf16(effect.setter);
  const QString column = QString::fromUtf16(effect.column);
  return column + u" = "_s + column + u" + "_s;
}

}  // namespace

bool movesStock(const Session& session, const TradeLine& line) {
  return session.StockEnabled && !line.item.isEmpty() && line.kind->stock;
}

void ApplyLineStock(Session& session, const TradeLine& line, const StoredPieces& stored, StockMode mode) {
  const LineKind& kind = *line.kind;
  const StoredPieces shown{double(line.number), lineFigure(line.item.size)};
  QStringList setters;
  for (const StockEffect& effect : kind.effects)
    setters << stockSetter(effect, mode) +
                   figureText(stockMoved(effect, stored, shown, mode, kind.deletesShown));
  session.dbYear.Execute(u"Update "_s + QString::fromUtf16(kind.stock->table) + u" Set "_s +
                         setters.join(u", "_s) + u" Where Size = '"_s + plainText(line.item.size) +
                         u"' And "_s + QString::fromUtf16(kind.stock->nameColumn) + u" = '"_s +
                         plainText(line.item.name) + u"'"_s);
}
