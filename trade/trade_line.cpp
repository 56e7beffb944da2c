#include "trade/trade_line.h"

#include "store/jet/value.h"

using namespace Qt::StringLiterals;

double lineFigure(const QString& cell) {
  return jet::Value(QString(cell).remove(u',')).toDouble();
}

qint64 lineWhole(const QString& cell) {
  return jet::Value(lineFigure(cell)).toLong();
}

QString figureText(double figure) {
  return jet::Value(figure).toText();
}

TradeLine readLine(const SpreadModel& grid, int row, const LineKinds& kinds, int year) {
  const auto cell = [&grid, row](int col) { return grid.text(row, col); };
  TradeLine line;
  line.date = QString::number(year) + u'-' + cell(LineCol::Date);
  line.kind = &kindAt(kinds, grid.comboPosition(row, LineCol::Kind));
  const QString item = cell(LineCol::Item);
  if (line.kind->isPayment() && item == line.kind->paymentText)
    line.item = {item, u"0"_s};
  else
    line.item = splitItem(item);
  line.number = lineWhole(cell(LineCol::Number));
  line.unit = lineFigure(cell(LineCol::Unit));
  line.discount = lineFigure(cell(LineCol::Discount));
  line.paid = lineFigure(cell(LineCol::Paid));
  line.trust = lineFigure(cell(LineCol::Trust));
  line.person = cell(LineCol::Person);
  line.key = cell(LineCol::Key).trimmed();
  line.partner = cell(LineCol::Code).trimmed();
  return line;
}
