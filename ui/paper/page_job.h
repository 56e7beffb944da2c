#pragma once
// A print job painted on a QPrinter. What happens to the finished pages is told by whoever opened it.
#include <QPageSize>
#include <QPrinter>
#include <functional>
#include <memory>

#include "ui/paper/painted_job.h"

/** The trade's sheet of these measures, whichever way it lies; Custom when there is none. */
QPageSize::PageSizeId sheetOf(const pc::PaperSize& paper);

class PageJob : public PaintedJob {
 public:
  /** deliver runs once all pages are painted and may throw PrintError; discard takes away what was begun. Throws
   *  PrintError when the printer does not take the job. */
  PageJob(std::unique_ptr<QPrinter> printer, const QString& title, const pc::PaperSize& paper,
          std::function<void()> deliver, std::function<void()> discard);
  ~PageJob() override;

  void newPage() override;
  void end() override;
  void abandon() override;

 private:
  std::unique_ptr<QPrinter> printer_;
  const std::function<void()> deliver_, discard_;
  bool open_ = true;
};
