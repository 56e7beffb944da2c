#include "bench/plain_drawing.h"

#include <QFontMetricsF>
#include <QHash>
#include <QPainter>
#include <QPrinter>

#include "ui/paper/print_fonts.h"

namespace bench {

void drawPlainly(const tests::RecordedJob& job, const QString& file, QPageLayout::Orientation orientation) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(file);
  printer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), orientation, QMarginsF()));
  printer.setFullPage(true);
  QPainter painter(&printer);
  const double dot = printer.logicalDpiX();
  QHash<QString, std::pair<QFont, double>> fonts;
  int page = 1;
  QString current;
  double ascent = 0;
  for (const tests::PrintedItem& item : job.items) {
    for (; page < item.page; ++page) printer.newPage();
    if (item.kind == tests::PrintedItem::Fill) continue;
    const QColor ink(item.ink.red, item.ink.green, item.ink.blue);
    if (item.kind == tests::PrintedItem::Line) {
      painter.setPen(QPen(ink, item.weight / 72 * dot, item.dashed ? Qt::DashLine : Qt::SolidLine));
      painter.drawLine(QPointF(item.x * dot, item.y * dot), QPointF(item.x2 * dot, item.y2 * dot));
      continue;
    }
    painter.setPen(ink);
    const QString wanted = item.font.family + QString::number(item.font.points);
    if (wanted != current) {
      auto& [font, itsAscent] = fonts[wanted];
      if (itsAscent == 0) {
        font = printFont(item.font);
        font.setPixelSize(int(font.pointSizeF() / 72 * dot));
        itsAscent = QFontMetricsF(font).ascent();
      }
      painter.setFont(font);
      current = wanted;
      ascent = itsAscent;
    }
    painter.drawText(QPointF(item.x * dot, item.y * dot + ascent), item.text);
  }
}

}  // namespace bench
