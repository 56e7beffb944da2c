#include "ui/paper/page_job.h"

#include <QPageLayout>

using namespace Qt::StringLiterals;

QPageSize::PageSizeId sheetOf(const pc::PaperSize& paper) {
  const QSizeF upright(qMin(paper.width, paper.height), qMax(paper.width, paper.height));
  return QPageSize::id(upright, QPageSize::Inch, QPageSize::FuzzyMatch);
}

namespace {

/** A sheet of the trade lies as it is wanted; any other paper is what it is, fed by its width. */
QPageLayout layoutOf(const pc::PaperSize& paper) {
  if (const QPageSize::PageSizeId sheet = sheetOf(paper); sheet != QPageSize::Custom) {
    return {QPageSize(sheet), paper.width > paper.height ? QPageLayout::Landscape : QPageLayout::Portrait,
            QMarginsF()};
  }
  return {QPageSize(QSizeF(paper.width, paper.height), QPageSize::Inch, QString(), QPageSize::ExactMatch),
          QPageLayout::Portrait, QMarginsF()};
}

}  // namespace

PageJob::PageJob(std::unique_ptr<QPrinter> printer, const QString& title, const pc::PaperSize& paper,
                 std::function<void()> deliver, std::function<void()> discard)
    : PaintedJob(paper),
      printer_(std::move(printer)),
      deliver_(std::move(deliver)),
      discard_(std::move(discard)) {
  printer_->setDocName(title);
  printer_->setPageLayout(layoutOf(paper));
  printer_->setFullPage(true);  // places count from the paper's corner, whatever the printer's margins
  if (!begin(*printer_, printer_->logicalDpiX())) {
    open_ = false;
    throw pc::PrintError{u"인쇄를 시작할 수 없습니다. 프린터나 저장할 폴더를 확인하십시오."_s};
  }
}

PageJob::~PageJob() {
  abandon();
}

void PageJob::newPage() {
  if (!printer_->newPage()) throw pc::PrintError{u"프린터가 다음 장을 받지 않습니다."_s};
}

void PageJob::end() {
  if (!open_) return;
  open_ = false;
  const bool whole = painter().end() && printer_->printerState() != QPrinter::Error;
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
  painter().end();
  discard_();
}
