#pragma once
// A print job painted on a QPrinter. What happens to the finished pages is told by whoever opened it.
#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QPainter>
#include <QPrinter>
#include <functional>
#include <memory>

#include "pc/print_job.h"

class PageJob : public pc::PrintJob {
 public:
  /** deliver runs once all pages are painted and may throw PrintError; discard takes away what was begun. Throws
   *  PrintError when the printer does not take the job. */
  PageJob(std::unique_ptr<QPrinter> printer, const QString& title, const pc::PaperSize& paper,
          std::function<void()> deliver, std::function<void()> discard);
  ~PageJob() override;

  pc::PaperSize paper() const override { return paper_; }
  void setFont(const pc::PrintFont& font) override;
  pc::PrintFont font() const override { return font_; }
  double textWidth(const QString& text) const override;
  double lineHeight() const override;
  void text(double x, double y, const QString& text) override;
  void line(double x1, double y1, double x2, double y2, double width) override;
  void fill(double x, double y, double width, double height, double grey) override;
  void newPage() override;
  void end() override;
  void abandon() override;

 private:
  struct Face {
    QFont font;
    QFontMetricsF metrics;
    double ascent;  ///< dots
  };
  double dots(double inches) const { return inches * dotsPerInch_; }

  std::unique_ptr<QPrinter> printer_;
  QPainter painter_;
  const pc::PaperSize paper_;
  const std::function<void()> deliver_, discard_;
  double dotsPerInch_ = 72;
  pc::PrintFont font_;
  QHash<QString, std::shared_ptr<const Face>> faces_;  ///< each font is measured once a job
  std::shared_ptr<const Face> face_;
  bool open_ = true;
};
