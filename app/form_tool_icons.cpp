#include "app/form_tool_icons.h"

#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

#include "ui/forms/style.h"

using namespace Qt::StringLiterals;

namespace {

using Draw = void (*)(QPainter&);

// Every picture is drawn on a field of 24 by 24 with a pen of 1.5.
void person(QPainter& p) {
  p.drawEllipse(QPointF(12, 8), 4, 4);
  QPainterPath shoulders(QPointF(4.5, 20.5));
  shoulders.cubicTo(5, 11.5, 19, 11.5, 19.5, 20.5);
  shoulders.closeSubpath();
  p.drawPath(shoulders);
}

void tray(QPainter& p) {
  p.drawPolyline(QPolygonF{{3.5, 13}, {3.5, 20.5}, {20.5, 20.5}, {20.5, 13}});
  p.drawLine(QPointF(12, 3.5), QPointF(12, 15));
  p.drawPolyline(QPolygonF{{7.5, 11}, {12, 15.5}, {16.5, 11}});
}

void cylinder(QPainter& p) {
  p.drawRoundedRect(QRectF(6.5, 8, 11, 12.5), 3.5, 3.5);
  p.drawLine(QPointF(12, 8), QPointF(12, 5.5));
  p.drawRoundedRect(QRectF(9, 3, 6, 2.5), 1, 1);
  p.drawLine(QPointF(6.5, 13), QPointF(17.5, 13));
}

void bars(QPainter& p) {
  p.drawPolyline(QPolygonF{{3.5, 3.5}, {3.5, 20.5}, {20.5, 20.5}});
  p.drawRect(QRectF(6.5, 12, 3, 6));
  p.drawRect(QRectF(11.5, 8, 3, 10));
  p.drawRect(QRectF(16.5, 5, 3, 13));
}

void gauge(QPainter& p) {
  p.drawEllipse(QPointF(12, 12), 8.5, 8.5);
  p.drawLine(QPointF(12, 12), QPointF(16, 8));
  p.drawLine(QPointF(8, 17), QPointF(16, 17));
}

void book(QPainter& p) {
  p.drawRoundedRect(QRectF(5, 3.5, 14, 17), 1.5, 1.5);
  p.drawLine(QPointF(8.5, 3.5), QPointF(8.5, 20.5));
  p.drawLine(QPointF(11.5, 8), QPointF(16, 8));
  p.drawLine(QPointF(11.5, 11.5), QPointF(16, 11.5));
}

void table(QPainter& p) {
  p.drawRect(QRectF(3.5, 4.5, 17, 15));
  p.drawLine(QPointF(3.5, 9.5), QPointF(20.5, 9.5));
  p.drawLine(QPointF(3.5, 14.5), QPointF(20.5, 14.5));
  p.drawLine(QPointF(10, 4.5), QPointF(10, 19.5));
}

void paper(QPainter& p) {
  p.drawPolygon(QPolygonF{{5, 3.5}, {14.5, 3.5}, {19, 8}, {19, 20.5}, {5, 20.5}});
  p.drawPolyline(QPolygonF{{14.5, 3.5}, {14.5, 8}, {19, 8}});
}

void statement(QPainter& p) {
  paper(p);
  for (const double y : {11.5, 14.5, 17.5}) p.drawLine(QPointF(8, y), QPointF(16, y));
}

void invoice(QPainter& p) {
  paper(p);
  p.drawPolyline(QPolygonF{{8, 12}, {9.7, 17.5}, {12, 12}, {14.3, 17.5}, {16, 12}});
  p.drawLine(QPointF(7.5, 14.5), QPointF(16.5, 14.5));
}

void disk(QPainter& p) {
  p.drawRoundedRect(QRectF(3.5, 3.5, 17, 17), 1.5, 1.5);
  p.drawRect(QRectF(7.5, 3.5, 9, 6));
  p.drawRect(QRectF(7, 13, 10, 7.5));
}

void door(QPainter& p) {
  p.drawPolyline(QPolygonF{{13, 3.5}, {4.5, 3.5}, {4.5, 20.5}, {13, 20.5}});
  p.drawLine(QPointF(9.5, 12), QPointF(20, 12));
  p.drawPolyline(QPolygonF{{16, 7.5}, {20.5, 12}, {16, 16.5}});
}

class LineEngine : public QIconEngine {
 public:
  explicit LineEngine(Draw draw) : draw_(draw) {}
  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / 24.0, rect.height() / 24.0);
    const QColor colour = mode == QIcon::Disabled ? look::disabledInk.lighter(120) : look::accent;
    painter->setPen(QPen(colour, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    draw_(*painter);
    painter->restore();
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return picture;
  }
  QIconEngine* clone() const override { return new LineEngine(draw_); }

 private:
  Draw draw_;
};

}  // namespace

QIcon toolIcon(const QString& command) {
  static const QHash<QString, Draw> pictures{
      {u"MnuClient"_s, person},
      {u"MnuIncome"_s, tray},
      {u"MnuOutcome"_s, cylinder},
      {u"MnuLPGSale"_s, bars},
      {u"MnuIndivisualCheck"_s, gauge},
      {u"MnuEvaporation"_s, book},
      {u"MnuIndivisualTotal"_s, table},
      {u"mnu거래명세표"_s, statement},
      {u"mnu세금계산서"_s, invoice},
      {u"MnuBack"_s, disk},
      {u"MnuExit"_s, door},
  };
  const Draw draw = pictures.value(command);
  return draw ? QIcon(new LineEngine(draw)) : QIcon();
}
