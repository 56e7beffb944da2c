#include "ui/paper/painted_job.h"

#include <cmath>

#include "ui/paper/print_fonts.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double fineDotsPerInch = 1200;

}  // namespace

bool PaintedJob::begin(QPaintDevice& device, double dotsPerInch) {
  if (!painter_.begin(&device)) return false;
  dotsPerInch_ = dotsPerInch;
  setFont({u"굴림체"_s, 10, false});
  return true;
}

void PaintedJob::setFont(const pc::PrintFont& font) {
  if (face_ && font.family == font_.family && font.points == font_.points && font.bold == font_.bold) return;
  font_ = font;
  auto& face = faces_[font.family + u'/' + QString::number(font.points) + (font.bold ? u'b' : u' ')];
  if (!face) {
    QFont made = printFont(font);
    made.setPixelSize(std::max(1, int(std::lround(dots(made.pointSizeF() / 72)))));
    const QFontMetricsF metrics(made);
    face = std::make_shared<Face>(Face{made, metrics, metrics.ascent(), metrics.horizontalAdvance(u' '), {}});
  }
  face_ = face;
  painter_.setFont(face_->font);
}

double PaintedJob::textWidth(const QString& text) const {
  return face_->metrics.horizontalAdvance(text) / dotsPerInch_;
}

double PaintedJob::lineHeight() const {
  return face_->metrics.height() / dotsPerInch_;
}

double PaintedJob::advanceOf(const QString& word) {
  constexpr qsizetype keptAtMost = 4096;
  QHash<QString, double>& known = face_->advances;
  if (const auto at = known.constFind(word); at != known.constEnd()) return *at;
  if (known.size() >= keptAtMost) known.clear();
  return *known.insert(word, face_->metrics.horizontalAdvance(word));
}

void PaintedJob::text(double x, double y, const QString& text) {
  // Word by word, each at its place: the blank of some fonts comes out of a PDF as a control sign.
  const double baseline = dots(y) + face_->ascent;
  double at = dots(x);
  for (qsizetype from = 0; from < text.size();) {
    if (text[from] == u' ') {
      at += face_->blank;
      ++from;
      continue;
    }
    const qsizetype blank = text.indexOf(u' ', from);
    const QString word = blank < 0 ? text.mid(from) : text.mid(from, blank - from);
    painter_.drawText(QPointF(at, baseline), word);
    if (blank < 0) return;
    at += advanceOf(word);
    from = blank;
  }
}

void PaintedJob::setInk(const pc::PrintInk& ink) {
  ink_ = QColor(ink.red, ink.green, ink.blue);
  painter_.setPen(ink_);
}

void PaintedJob::line(double x1, double y1, double x2, double y2, double width, bool dashed) {
  painter_.setPen(QPen(ink_, dots(width / 72), dashed ? Qt::DashLine : Qt::SolidLine, Qt::FlatCap));
  painter_.drawLine(QPointF(dots(x1), dots(y1)), QPointF(dots(x2), dots(y2)));
  painter_.setPen(ink_);
}

void PaintedJob::fill(double x, double y, double width, double height, double grey) {
  painter_.fillRect(QRectF(dots(x), dots(y), dots(width), dots(height)), QColor::fromRgbF(grey, grey, grey));
}

void PaintedJob::picture(double x, double y, double width, double height, const QByteArray& file) {
  const QImage image = QImage::fromData(file);
  if (image.isNull()) return;
  const QSizeF size = QSizeF(image.size()).scaled({dots(width), dots(height)}, Qt::KeepAspectRatio);
  const QPointF middle{dots(x + width / 2), dots(y + height / 2)};
  const QRectF place{middle - QPointF(size.width() / 2, size.height() / 2), size};
  painter_.setRenderHint(QPainter::SmoothPixmapTransform);
  painter_.drawImage(place, image);
}

ScreenPage::ScreenPage(QPaintDevice& picture, const pc::PaperSize& paper, double dotsPerInch)
    : PaintedJob(paper) {
  if (!begin(picture, fineDotsPerInch)) throw pc::PrintError{u"화면에 그릴 수 없습니다."_s};
  painter().setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter().scale(dotsPerInch / fineDotsPerInch, dotsPerInch / fineDotsPerInch);
}
