#include "ui/paper/page_view.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <iterator>

#include "pc/pages.h"
#include "ui/forms/style.h"
#include "ui/paper/painted_job.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int around = 14;  ///< pixels of desk around the page
constexpr double zoomSteps[] = {0.25, 0.33, 0.5, 0.67, 0.75, 0.9, 1, 1.1, 1.25, 1.5, 1.75, 2, 2.5, 3};

}  // namespace

PageView::PageView(const pc::Pages& pages, QWidget* parent) : QAbstractScrollArea(parent), pages_(pages) {
  setObjectName(u"PageView"_s);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  verticalScrollBar()->setSingleStep(40);
  horizontalScrollBar()->setSingleStep(40);
}

void PageView::setPage(int page) {
  page = std::clamp(page, 0, pages_.count() - 1);
  if (page == page_) return;
  page_ = page;
  verticalScrollBar()->setValue(0);
  viewport()->update();
  if (changed) changed();
}

void PageView::setFit(Fit fit) {
  fit_ = fit;
  measure();
}

void PageView::zoomIn() {
  const auto* next = std::ranges::upper_bound(zoomSteps, zoom_ + 0.005);
  if (next != std::end(zoomSteps)) setZoom(*next);
}

void PageView::zoomOut() {
  const auto* next = std::ranges::lower_bound(zoomSteps, zoom_ - 0.005);
  if (next != std::begin(zoomSteps)) setZoom(*std::prev(next));
}

void PageView::setZoom(double zoom) {
  fit_ = Fit::Free;
  zoom_ = zoom;
  measure();
}

double PageView::dotsPerInch() const {
  return logicalDpiX() * zoom_;
}

QSize PageView::pageSize() const {
  const pc::PaperSize paper = pages_.paper();
  return {int(paper.width * dotsPerInch()), int(paper.height * dotsPerInch())};
}

void PageView::measure() {
  const pc::PaperSize paper = pages_.paper();
  const QSize room = maximumViewportSize() - QSize(2 * around, 2 * around);
  const double whole = std::min(room.width() / paper.width, room.height() / paper.height);
  const double wide = (room.width() - verticalScrollBar()->sizeHint().width()) / paper.width;
  if (fit_ != Fit::Free)
    zoom_ = std::clamp((fit_ == Fit::Page ? whole : wide) / logicalDpiX(), zoomSteps[0],
                       *std::prev(std::end(zoomSteps)));
  const QSize all = pageSize() + QSize(2 * around, 2 * around);
  const QSize seen = viewport()->size();
  horizontalScrollBar()->setPageStep(seen.width());
  horizontalScrollBar()->setRange(0, std::max(0, all.width() - seen.width()));
  verticalScrollBar()->setPageStep(seen.height());
  verticalScrollBar()->setRange(0, std::max(0, all.height() - seen.height()));
  viewport()->update();
  if (changed) changed();
}

void PageView::renderPage() {
  const double ratio = devicePixelRatioF();
  const QSize pixels = pageSize() * ratio;
  if (paintedPage_ == page_ && painted_.size() == pixels) return;
  painted_ = QPixmap(pixels);
  painted_.fill(look::paper);
  ScreenPage job(painted_, pages_.paper(), dotsPerInch() * ratio);
  pages_.draw(job, page_);
  job.end();
  painted_.setDevicePixelRatio(ratio);
  paintedPage_ = page_;
}

void PageView::paintEvent(QPaintEvent*) {
  renderPage();
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), look::line);
  const QSize size = pageSize();
  const QPoint at(std::max(around, (viewport()->width() - size.width()) / 2) - horizontalScrollBar()->value(),
                  around - verticalScrollBar()->value());
  painter.fillRect(QRect(at + QPoint(3, 3), size), look::faintInk);
  painter.drawPixmap(at, painted_);
}

void PageView::resizeEvent(QResizeEvent*) {
  measure();
}

void PageView::scrollContentsBy(int, int) {
  viewport()->update();
}

/** The wheel goes on to the next page at a page's end; with Ctrl it changes the size. */
void PageView::wheelEvent(QWheelEvent* event) {
  const int turned = event->angleDelta().y();
  QScrollBar* const bar = verticalScrollBar();
  if (event->modifiers() & Qt::ControlModifier) {
    if (turned != 0) turned > 0 ? zoomIn() : zoomOut();
  } else if (turned < 0 && bar->value() == bar->maximum()) {
    setPage(page_ + 1);
  } else if (turned > 0 && bar->value() == 0 && page_ > 0) {
    setPage(page_ - 1);
    bar->setValue(bar->maximum());
  } else {
    QAbstractScrollArea::wheelEvent(event);
  }
  event->accept();
}

/** Arrows move the page; every other key is the form's. */
void PageView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
      return QAbstractScrollArea::keyPressEvent(event);
    default:
      event->ignore();
  }
}
