#pragma once
// A report ready to be shown: layout, rows, pages and the values that stand in its texts.
#include <QHash>

#include <functional>
#include <memory>

#include "pc/pages.h"
#include "pc/report_pages.h"

namespace pc {

/** Writes a number by a picture: "#,##0". */
using ReportPicture = std::function<QString(const QString& number, const QString& picture)>;

class Report;
/** Draws one page (from 0) on the job's current page. */
void drawReportPage(PrintJob& job, const Report& report, int page);

class Report : public Pages {
 public:
  /** Throws ReportError when there is no row or the paper takes none. */
  Report(ReportLayout layout, ReportTable table, const QStringList& formulas, const QString& today,
         ReportPicture picture, QByteArray chart = {});
  Report(const Report&) = delete;
  Report& operator=(const Report&) = delete;

  const ReportLayout& layout() const { return layout_; }
  const ReportTable& table() const { return table_; }
  const ReportPages& pages() const { return *pages_; }
  /** A picture's file that stands below the rows; empty for none. */
  const QByteArray& chart() const { return chart_; }

  int count() const override { return pages_->count(); }
  PaperSize paper() const override { return layout_.paper; }
  void draw(PrintJob& job, int page) const override { drawReportPage(job, *this, page); }

  /** A cell as it is printed. */
  QString cell(int row, const ReportColumn& column) const;
  /** A number of a column by the column's picture. */
  QString figure(const QString& number, const ReportColumn& column) const;
  /** A band's text with its values. {이름}: the formula field, '' for one that was not given. {today}, {page},
   *  {pages}, {count} (rows), {sum Lng01} (the whole report's), {Str01} (of the band's row). */
  QString filled(const QString& text, int page, int row = -1) const;

 private:
  QString valueOf(const QString& name, int page, int row) const;

  ReportLayout layout_;
  ReportTable table_;
  std::unique_ptr<ReportPages> pages_;
  QHash<QString, QString> formulas_;
  QString today_;
  ReportPicture picture_;
  QByteArray chart_;
};

/** "월= '03월)'" as name and value: what stands between the first and the last apostrophe. */
std::pair<QString, QString> readFormula(const QString& formula);

/** Pages from 0; -1 is the last one. */
struct ReportRange {
  int first = 0, last = -1;
};

/** The range's pages, the job ended behind the last. tell: after each page with those done; False abandons the job. */
bool printReport(PrintJob& job, const Report& report, ReportRange range = {},
                 const std::function<bool(int done)>& tell = {});

}  // namespace pc
