#include "trade/sale_line.h"

#include "store/jet/value.h"

using namespace Qt::StringLiterals;

double saleFigure(const QString& cell) {
  return jet::Value(QString(cell).remove(u',')).toDouble();
}

qint64 saleWhole(const QString& cell) {
  return jet::Value(saleFigure(cell)).toLong();
}

QString saleText(double figure) {
  return jet::Value(figure).toText();
}

QString collectionItem(int kind) {
  if (kind == SaleCollection) return u"가스수금"_s;
  if (kind == SaleMaterialCollection) return u"자재수금"_s;
  return {};
}

SaleLine readSaleLine(const SpreadModel& grid, int row, SaleSheet sheet, int year) {
  const auto cell = [&grid, row](int col) { return grid.text(row, col); };
  SaleLine line;
  line.date = QString::number(year) + u'-' + cell(SaleCol::Date);
  line.kind = saleKindAt(sheet, grid.comboPosition(row, SaleCol::Kind));
  const QString item = cell(SaleCol::Item);
  if (item == u"가스수금" || item == u"자재수금")
    line.item = {item, u"0"_s};
  else
    line.item = splitItem(item);
  line.number = saleWhole(cell(SaleCol::Number));
  line.unit = saleFigure(cell(SaleCol::Unit));
  line.discount = saleFigure(cell(SaleCol::Discount));
  line.income = saleFigure(cell(SaleCol::Income));
  line.trust = saleFigure(cell(SaleCol::Trust));
  line.person = cell(SaleCol::Person);
  line.key = cell(SaleCol::Key).trimmed();
  line.code = cell(SaleCol::Code).trimmed();
  return line;
}
