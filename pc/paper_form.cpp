#include "pc/paper_form.h"

#include <algorithm>

#include "pc/text_width.h"

namespace pc {

namespace {

/** Places go across first. */
int copiesAbove(const PaperForm& form, int place) {
  return place / form.across;
}

/** Where one paper's items land on the page, all in inches. */
class Pen {
 public:
  Pen(PrintJob& job, const PaperForm& form, const PaperShift& shift, int place)
      : job_(job),
        form_(form),
        rows_(shift.rows + copiesAbove(form, place) * form.copyRows),
        columns_(shift.columns + place % form.across * form.copyColumns) {
    const PrintFont before = job.font();
    for (const PaperFont& font : form.fonts)
      fonts_.push_back({font.family.toString(), font.points > 0 ? font.points : before.points, font.bold});
  }

  /** texts: those the item's number counts in; down: rows that it stands lower than told. */
  template <class Texts>
  void put(const PaperItem& item, const Texts& texts, double down) {
    const double left = x(item, item.x), top = y(item, item.y, down);
    if (item.kind != PaperItem::Kind::Text) return putLines(item, left, top, down);
    const QString text = item.text < 0                         ? item.label.toString()
                         : item.text < qsizetype(texts.size()) ? texts[size_t(item.text)]
                                                               : QString();
    if (text.isEmpty()) return;
    job_.setFont(fonts_[item.font]);
    putText(item, text, left, top);
  }

 private:
  double x(const PaperItem& item, double at) const {
    return item.inInches ? at + columns_ / form_.columnsPerInch : (at + columns_) / form_.columnsPerInch;
  }
  double y(const PaperItem& item, double at, double down) const {
    return item.inInches ? at + (down + rows_) / form_.rowsPerInch : (at + down + rows_) / form_.rowsPerInch;
  }

  void putLines(const PaperItem& item, double left, double top, double down) {
    const double right = x(item, item.x2), bottom = y(item, item.y2, down);
    const bool dashed = item.kind == PaperItem::Kind::DashedRule;
    const auto draw = [&](double x1, double y1, double x2, double y2) {
      job_.line(x1, y1, x2, y2, double(item.points), dashed);
    };
    if (item.kind != PaperItem::Kind::Box) return draw(left, top, right, bottom);
    draw(left, top, right, top);
    draw(left, bottom, right, bottom);
    draw(left, top, left, bottom);
    draw(right, top, right, bottom);
  }

  void putText(const PaperItem& item, const QString& text, double left, double top) {
    using enum PaperItem::Fit;
    if (item.fit == Cells) {
      const double pitch = item.inInches ? item.pitch : item.pitch / form_.columnsPerInch;
      const qsizetype first = item.width - text.size();
      for (qsizetype cell = 0; cell < text.size(); ++cell)
        if (text[cell] != u' ') job_.text(left + double(first + cell) * pitch, top, text.mid(cell, 1));
      return;
    }
    const double room = item.width * fonts_[item.font].points / 144;
    switch (item.fit) {
      case Squeezed:
        return putSqueezed(item, text, left, top);
      case Padded:
        return job_.text(left, top, QString(qMax(0, item.width - widthOf(text)), u' ') + text);
      case Right:
        return job_.text(left + room - job_.textWidth(text), top, text);
      case Centred:
        return job_.text(left + (room - job_.textWidth(text)) / 2, top, text);
      default:
        return job_.text(left, top, item.width > 0 ? CutByWidth(text, item.width) : text);
    }
  }

  void putSqueezed(const PaperItem& item, const QString& text, double left, double top) {
    constexpr double smallest = 2 / 3.0, baseline = 0.8;  // of the letters' height
    const int wide = widthOf(text);
    if (wide <= item.width) return job_.text(left, top, text);
    const double share = std::max(double(item.width) / wide, smallest);
    PrintFont font = fonts_[item.font];
    const double lost = font.points * (1 - share);
    font.points -= lost;
    job_.setFont(font);
    // The smaller letters stand on the line of the others.
    job_.text(left, top + lost / 72 * baseline, CutByWidth(text, int(item.width / share + 0.001)));
  }

  PrintJob& job_;
  const PaperForm& form_;
  const double rows_, columns_;
  std::vector<PrintFont> fonts_;
};

}  // namespace

void drawPaper(PrintJob& job, const PaperForm& form, const PaperShift& shift, int place,
               std::span<const QString> texts, std::span<const QStringList> lines) {
  const PrintFont before = job.font();
  Pen pen(job, form, shift, place);
  for (const PaperRow& row : form.rows)
    for (const PaperItem& item : row.items) pen.put(item, texts, row.row);
  for (const PaperItem& item : form.items) pen.put(item, texts, 0);
  const qsizetype shown = qMin(qsizetype(lines.size()), qsizetype(form.lines));
  for (qsizetype line = 0; line < shown; ++line)
    for (const PaperItem& item : form.line) pen.put(item, lines[size_t(line)], double(line) * form.lineRows);
  job.setFont(before);
}

std::vector<PaperSheet> sheetsOf(qsizetype lines, int linesOnSheet) {
  std::vector<PaperSheet> sheets;
  qsizetype first = 0;
  do {
    const qsizetype count = qMin(lines - first, qsizetype(qMax(1, linesOnSheet)));
    sheets.push_back({int(sheets.size()) + 1, first, count, first + count >= lines});
    first += count;
  } while (first < lines);
  return sheets;
}

int PaperPlaces::next() {
  const int place = used_++ % onSheet_;
  if (place == 0 && used_ > 1) job_.newPage();
  return place;
}

}  // namespace pc
