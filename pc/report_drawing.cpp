// A report's page through a print job: the same calls make the preview, the PDF and the paper.
#include <algorithm>

#include "pc/report.h"

using namespace Qt::StringLiterals;

namespace pc {
namespace {

using Kind = ReportBand::Kind;

constexpr double cellPad = 0.04;     ///< inches
constexpr double pictureGap = 0.15;  ///< inches
constexpr double hairline = 0.25, frameLine = 0.9;
constexpr double headingGrey = 0.9, sumGrey = 0.95;
constexpr double smallestPart =
    0.6;  ///< what is too wide and may not be cut is set smaller, down to this part

struct Box {
  double left, top, width, height;
};

QString elided(PrintJob& job, const QString& text, double width) {
  if (job.textWidth(text) <= width) return text;
  qsizetype fits = 0, beyond = text.size();
  while (beyond - fits > 1) {
    const qsizetype middle = (fits + beyond) / 2;
    (job.textWidth(text.left(middle) + u"…"_s) <= width ? fits : beyond) = middle;
  }
  return text.left(fits) + u"…"_s;
}

/** One page while it is drawn. */
class PageDrawing {
 public:
  PageDrawing(PrintJob& job, const Report& report, int page)
      : job_(job), report_(report), layout_(report.layout()), page_(page) {
    double shares = 0, at = layout_.left;
    for (const ReportColumn& column : layout_.columns) shares += column.width;
    for (const ReportColumn& column : layout_.columns) {
      edges_.push_back(at);
      at += layout_.width() * column.width / shares;
    }
    edges_.push_back(layout_.paper.width - layout_.right);
  }

  void draw() {
    for (const ReportBand& band : report_.pages().bands(page_)) drawBand(band);
    closeTable();
  }

 private:
  void drawBand(const ReportBand& band) {
    switch (band.kind) {
      case Kind::Title:
        return drawLines(layout_.title, band);
      case Kind::Next:
        return drawLines(layout_.next, band);
      case Kind::Foot:
        return drawLines(layout_.foot, band);
      case Kind::Summary:
        closeTable();
        return drawLines(layout_.summary, band);
      case Kind::Picture:
        closeTable();
        return job_.picture(layout_.left, band.top + pictureGap, layout_.width(), band.height - pictureGap,
                            report_.chart());
      case Kind::Group:
        closeTable();
        openTable(band.top);
        drawLines(layout_.group, band);
        tableBottom_ = band.top + band.height;
        return closeTable(false);
      case Kind::Heading:
        openTable(band.top);
        return drawHeading(band);
      case Kind::Row:
        return drawRow(band);
      case Kind::Subtotal:
        return drawSums(band, layout_.subtotal, report_.pages().subtotal(band.sums));
      case Kind::Total:
        return drawSums(band, layout_.total, report_.pages().total());
    }
  }

  // --- the frame: one line a column for as many rows as stand below each other -----------------------------
  void openTable(double top) {
    if (tableTop_ < 0) tableTop_ = tableBottom_ = top;
  }
  void closeTable(bool columns = true) {
    if (tableTop_ < 0) return;
    for (size_t at = 0; at < edges_.size(); ++at) {
      const bool outer = at == 0 || at + 1 == edges_.size();
      if (!outer && !columns) continue;
      job_.line(edges_[at], outer ? tableTop_ : columnsTop(at), edges_[at], tableBottom_,
                outer ? frameLine : hairline);
    }
    rule(tableTop_, frameLine);
    rule(tableBottom_, frameLine);
    tableTop_ = -1;
    headed_ = false;
  }
  /** Below a caption that spans several columns. */
  double columnsTop(size_t edge) const {
    const bool spanned = headed_ && std::ranges::any_of(layout_.spans, [&](const ReportSpan& span) {
                           return int(edge) > span.first && int(edge) <= span.last;
                         });
    return spanned ? tableTop_ + layout_.headingHeight() / 2 : tableTop_;
  }
  void rule(double y, double width) { job_.line(edges_.front(), y, edges_.back(), y, width); }
  void addToTable(const ReportBand& band) {
    openTable(band.top);
    if (band.top > tableTop_) rule(band.top, band.kind == Kind::Row ? hairline : frameLine);
    tableBottom_ = band.top + band.height;
  }

  // --- texts ------------------------------------------------------------------------------------------------
  void setFont(double points, bool bold) {
    PrintFont font = layout_.font;
    font.points = points;
    font.bold = bold;
    if (font.family == now_.family && font.points == now_.points && font.bold == now_.bold) return;
    job_.setFont(font);
    now_ = font;
  }
  /** Within the box, in the middle of its height. */
  void put(const Box& box, const QString& text, ReportAlign align) {
    if (text.isEmpty()) return;
    double x = box.left;
    if (align != ReportAlign::Left) {
      const double spare = box.width - job_.textWidth(text);
      x += align == ReportAlign::Right ? spare : spare / 2;
    }
    job_.text(x, box.top + (box.height - job_.lineHeight()) / 2, text);
  }
  Box cellBox(size_t col, double top, double height, size_t last) const {
    return {edges_[col] + cellPad, top, edges_[last + 1] - edges_[col] - 2 * cellPad, height};
  }
  void putText(const Box& box, const QString& text, ReportAlign align) {
    put(box, elided(job_, text, box.width), align);
  }
  /** Figures and captions are never cut: they are set smaller, and one that still does not fit shows as `instead`. */
  void putWhole(const Box& box, const QString& text, ReportAlign align, bool bold, const QString& instead) {
    const double width = job_.textWidth(text);
    if (width <= box.width) return put(box, text, align);
    const double part = box.width / width;
    setFont(layout_.font.points * std::max(part * 0.99, smallestPart), bold);
    put(box, part < smallestPart ? instead : text, align);
    setFont(layout_.font.points, bold);
  }
  void putFigure(const Box& box, const QString& text, ReportAlign align, bool bold) {
    putWhole(box, text, align, bold, u"####"_s);
  }
  void putCaption(const Box& box, const QString& text) {
    putWhole(box, text, ReportAlign::Center, true, elided(job_, text, box.width));
  }

  void drawLines(const ReportLines& lines, const ReportBand& band) {
    double at = band.top;
    for (const ReportLine& line : lines) {
      const Box box{layout_.left + cellPad, at, layout_.width() - 2 * cellPad, line.height()};
      for (const ReportText& text : line.texts) {
        setFont(text.points, text.bold);
        put(box, report_.filled(text.text, page_, band.row), text.align);
      }
      at += line.height();
    }
  }

  void drawHeading(const ReportBand& band) {
    job_.fill(edges_.front(), band.top, edges_.back() - edges_.front(), band.height, headingGrey);
    addToTable(band);
    headed_ = true;
    setFont(layout_.font.points, true);
    const double half = band.height / 2;
    for (const ReportSpan& span : layout_.spans) {
      putCaption(cellBox(size_t(span.first), band.top, half, size_t(span.last)), span.caption);
      job_.line(edges_[size_t(span.first)], band.top + half, edges_[size_t(span.last) + 1], band.top + half,
                hairline);
    }
    for (size_t col = 0; col < layout_.columns.size(); ++col) {
      const bool spanned = std::ranges::any_of(layout_.spans, [&](const ReportSpan& span) {
        return int(col) >= span.first && int(col) <= span.last;
      });
      putCaption(cellBox(col, spanned ? band.top + half : band.top, spanned ? half : band.height, col),
                 layout_.columns[col].caption);
    }
  }

  void drawRow(const ReportBand& band) {
    addToTable(band);
    const bool bold = report_.table().boldRows.contains(band.row);
    setFont(layout_.font.points, bold);
    for (size_t col = 0; col < layout_.columns.size(); ++col) {
      const ReportColumn& column = layout_.columns[col];
      const QString text = report_.cell(band.row, column);
      if (text.isEmpty()) continue;
      const Box box = cellBox(col, band.top, band.height, col);
      if (column.isText())
        putText(box, text, column.align);
      else
        putFigure(box, text, column.align, bold);
    }
  }

  void drawSums(const ReportBand& band, const QString& label, const ReportSums& sums) {
    job_.fill(edges_.front(), band.top, edges_.back() - edges_.front(), band.height, sumGrey);
    addToTable(band);
    setFont(layout_.font.points, true);
    const QString text = report_.filled(label, page_);
    const size_t labelled = labelColumn(text);
    for (size_t col = 0; col < layout_.columns.size(); ++col) {
      const ReportColumn& column = layout_.columns[col];
      const Box box = cellBox(col, band.top, band.height, col);
      if (column.sum)
        putFigure(box, report_.figure(sums[col].text(), column), column.align, true);
      else if (col == labelled)
        putText(box, text, ReportAlign::Center);
    }
  }
  /** The first column of texts that takes the whole label, else the widest; beyond the columns where there is none. */
  size_t labelColumn(const QString& label) {
    size_t widest = layout_.columns.size();
    const auto room = [this](size_t col) { return cellBox(col, 0, 0, col).width; };
    for (size_t col = 0; col < layout_.columns.size(); ++col) {
      if (!layout_.columns[col].isText() || layout_.columns[col].sum) continue;
      if (job_.textWidth(label) <= room(col)) return col;
      if (widest == layout_.columns.size() || room(col) > room(widest)) widest = col;
    }
    return widest;
  }

  PrintJob& job_;
  const Report& report_;
  const ReportLayout& layout_;
  const int page_;
  std::vector<double> edges_;
  PrintFont now_{.family = {}};
  double tableTop_ = -1, tableBottom_ = 0;
  bool headed_ = false;
};

}  // namespace

void drawReportPage(PrintJob& job, const Report& report, int page) {
  PageDrawing(job, report, page).draw();
}

bool printReport(PrintJob& job, const Report& report, ReportRange range,
                 const std::function<bool(int done)>& tell) {
  const int count = report.pages().count();
  const int last = range.last < 0 ? count - 1 : std::min(range.last, count - 1);
  for (int page = range.first; page <= last; ++page) {
    if (page > range.first) job.newPage();
    drawReportPage(job, report, page);
    if (tell && !tell(page + 1 - range.first)) {
      job.abandon();
      return false;
    }
  }
  job.end();
  return true;
}

}  // namespace pc
