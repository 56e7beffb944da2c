#include "ui/page_job.h"

#include <QPageLayout>
#include <QPageSize>

#include "ui/print_fonts.h"

using namespace Qt::StringLiterals;

namespace {

/** A sheet of the trade lies as it is wanted; any other paper is what it is, fed by its width. */
QPageLayout layoutOf(const pc::PaperSize& paper) {
  const QSizeF upright(qMin(paper.width, paper.height), qMax(paper.width, paper.height));
  const QPageSize::PageSizeId known = QPageSize::id(upright, QPageSize::Inch, QPageSize::FuzzyMatch);
  if (known != QPageSize::Custom) {
    return {QPageSize(known), paper.width > paper.height ? QPageLayout::Landscape : QPageLayout::Portrait,
            QMarginsF()};
  }
  return {QPageSize(QSizeF(paper.width, paper.height), QPageSize::Inch, QString(), QPageSize::ExactMatch),
          QPageLayout::Portrait, QMarginsF()};
}

}  // namespace

PageJob::PageJob(std::unique_ptr<QPrinter> printer, const QString& title, const pc::PaperSize& paper,
                 std::function<void()> deliver, std::function<void()> discard)
    : printer_(std::move(printer)),
      paper_(paper),
      deliver_(std::move(deliver)),
      discard_(std::move(discard)) {
  printer_->setDocName(title);
  printer_->setPageLayout(layoutOf(paper));
  printer_->setFullPage(true);  // places count from the paper's corner, whatever the printer's margins
  if (!painter_.begin(printer_.get())) {
    open_ = false;
    throw pc::PrintError{u"인쇄를 시작할 수 없습니다. 프린터나 저장할 폴더를 확인하십시오."_s};
  }
  dotsPerInch_ = printer_->logicalDpiX();
  setFont({u"굴림체"_s, 10, false});
}

PageJob::~PageJob() {
  abandon();
}

void PageJob::setFont(const pc::PrintFont& font) {
  if (face_ && font.family == font_.family && font.points == font_.points && font.bold == font_.bold) return;
  font_ = font;
  auto& face = faces_[font.family + u'/' + QString::number(font.points) + (font.bold ? u'b' : u' ')];
  if (!face) {
    const QFont made = printFont(font);
    const QFontMetricsF metrics(made, printer_.get());
    face = std::make_shared<const Face>(Face{made, metrics, metrics.ascent()});
  }
  face_ = face;
  painter_.setFont(face_->font);
}

double PageJob::textWidth(const QString& text) const {
  return face_->metrics.horizontalAdvance(text) / dotsPerInch_;
}

double PageJob::lineHeight() const {
  return face_->metrics.height() / dotsPerInch_;
}

void PageJob::text(double x, double y, const QString& text) {
  // Word by word, each at its place: the blank of some fonts comes out of a PDF as a control sign.
  const double baseline = dots(y) + face_->ascent;
  for (qsizetype from = 0; from < text.size();) {
    if (text[from] == u' ') {
      ++from;
      continue;
    }
    const qsizetype blank = text.indexOf(u' ', from);
    const qsizetype to = blank < 0 ? text.size() : blank;
    const double before = from == 0 ? 0 : face_->metrics.horizontalAdvance(text.left(from));
    painter_.drawText(QPointF(dots(x) + before, baseline), text.mid(from, to - from));
    from = to;
  }
}

void PageJob::line(double x1, double y1, double x2, double y2, double width) {
  painter_.setPen(QPen(Qt::black, dots(width / 72), Qt::SolidLine, Qt::FlatCap));
  painter_.drawLine(QPointF(dots(x1), dots(y1)), QPointF(dots(x2), dots(y2)));
  painter_.setPen(Qt::black);
}

void PageJob::fill(double x, double y, double width, double height, double grey) {
  painter_.fillRect(QRectF(dots(x), dots(y), dots(width), dots(height)), QColor::fromRgbF(grey, grey, grey));
}

void PageJob::newPage() {
  if (!printer_->newPage()) throw pc::PrintError{u"프린터가 다음 장을 받지 않습니다."_s};
}

void PageJob::end() {
  if (!open_) return;
  open_ = false;
  const bool whole = painter_.end() && printer_->printerState() != QPrinter::Error;
  try {
    if (!whole) throw pc::PrintError{u"인쇄를 마치지 못했습니다. 프린터나 디스크를 확인하십시오."_s};
    deliver_();
  } catch (const pc::PrintError&) {
    discard_();
    throw;
  }
}

void PageJob::abandon() {
  if (!open_) return;
  open_ = false;
  printer_->abort();
  painter_.end();
  discard_();
}
