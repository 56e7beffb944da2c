#pragma once
// A paper as a table: what stands where. Texts, labels, rules and boxes at a row and column of the paper's grid or at
// inches, the lines of a list, several copies on a sheet. A slip, a statement, an invoice and a label differ in their
// tables and in the texts that are handed in; all of them are drawn here.
#include <QStringList>
#include <QStringView>

#include <span>
#include <type_traits>
#include <vector>

#include "pc/print_job.h"

namespace pc {

/** A paper's typefaces; its items name them by their place in the paper's list, the first unless told otherwise. */
struct PaperFont {
  QStringView family;
  double points = 0;  ///< 0: the size the job has when the paper is begun
  bool bold = false;
};

/** One entry of a table, written as {row, column, what} or by one of the makers below, then fitted by the modifiers:
 *      {9, 10, Amount}   at(7, 118, ScanLine).in(scanned)   inches(0.68, 0.51, u"날 짜 :")
 *  or, in a PaperRow, without its row: {17, Name, 38}, squeezed into so much room. what: a member of the enumeration of
 *  the paper's texts, or a label. A text that is empty is not put. */
struct PaperItem {
  enum class Kind : quint8 { Text, Rule, DashedRule, Box };
  enum class Fit : quint8 { AsItIs, Padded, Right, Centred, Cells, Squeezed };

  template <class What>
  requires std::is_enum_v<What>
  constexpr PaperItem(double row, double column, What what, int cut = 0)
      : y(row), x(column), text(int(what)), width(cut) {}
  constexpr PaperItem(double row, double column, QStringView label) : y(row), x(column), label(label) {}
  template <class What>
  requires std::is_enum_v<What>
  constexpr PaperItem(double column, What what, int room = 0) : PaperItem(0, column, what, room) {
    if (room > 0) fit = Fit::Squeezed;
  }
  constexpr PaperItem() = default;

  /** In another of the paper's fonts. */
  template <class Font>
  constexpr PaperItem in(Font place) const {
    PaperItem made = *this;
    made.font = quint8(place);
    return made;
  }
  /** No more than so many half-width characters. */
  constexpr PaperItem cut(int characters) const { return fitted(Fit::AsItIs, characters); }
  /** The same for what must not lose its end: a longer one is written smaller, down to two thirds, before it is cut. */
  constexpr PaperItem squeezed(int characters) const { return fitted(Fit::Squeezed, characters); }
  /** Blanks in front fill it up to so many half-width characters; for fonts of one width. */
  constexpr PaperItem padded(int characters) const { return fitted(Fit::Padded, characters); }
  /** Its right edge stands so many half-width characters of its font behind the place, whatever the font. */
  constexpr PaperItem right(int characters) const { return fitted(Fit::Right, characters); }
  /** In the middle of so many half-width characters. */
  constexpr PaperItem centred(int characters) const { return fitted(Fit::Centred, characters); }
  /** A character a cell, the last one in the last; the first cell at the place, each pitch columns (or inches) on. What
   *  has more characters than cells stands in as many as it needs, to the left. */
  constexpr PaperItem cells(int number, double pitch) const {
    PaperItem made = fitted(Fit::Cells, number);
    made.pitch = pitch;
    return made;
  }

  double y = 0, x = 0;    ///< row and column, or inches
  double y2 = 0, x2 = 0;  ///< a rule's end, a box's right lower corner
  double pitch = 0;       ///< from cell to cell
  QStringView label;      ///< what stands there when text is -1
  int text = -1;          ///< place among the paper's texts
  int width = 0;          ///< half-width characters, or cells; 0 as long as it is
  float points = 0;       ///< a rule's or box's line
  Kind kind = Kind::Text;
  Fit fit = Fit::AsItIs;
  quint8 font = 0;
  bool inInches = false;

 private:
  constexpr PaperItem fitted(Fit how, int characters) const {
    PaperItem made = *this;
    made.fit = how;
    made.width = characters;
    return made;
  }
};

/** An entry that is modified. */
template <class What>
constexpr PaperItem at(double row, double column, What what) {
  return {row, column, what};
}
/** The same in a PaperRow. */
template <class What>
constexpr PaperItem at(double column, What what) {
  return {column, what};
}
/** x and y in inches from the left upper corner; what: as in PaperItem. */
template <class What>
constexpr PaperItem inches(double x, double y, What what) {
  PaperItem made(y, x, what);
  made.inInches = true;
  return made;
}
template <size_t Size>
constexpr PaperItem inches(double x, double y, const char16_t (&label)[Size]) {
  return inches(x, y, QStringView(label));
}
/** Lines in inches, points wide. */
constexpr PaperItem rule(double x1, double y1, double x2, double y2, double points = 0.5) {
  PaperItem made = inches(x1, y1, QStringView());
  made.kind = PaperItem::Kind::Rule;
  made.x2 = x2;
  made.y2 = y2;
  made.points = float(points);
  return made;
}
constexpr PaperItem dashedRule(double x1, double y1, double x2, double y2, double points = 0.5) {
  PaperItem made = rule(x1, y1, x2, y2, points);
  made.kind = PaperItem::Kind::DashedRule;
  return made;
}
constexpr PaperItem box(double x1, double y1, double x2, double y2, double points = 0.5) {
  PaperItem made = rule(x1, y1, x2, y2, points);
  made.kind = PaperItem::Kind::Box;
  return made;
}

/** What stands in one row of a paper, from left to right: {3, {{9, Total}, {41, AfterDueAmount}}}. */
struct PaperRow {
  double row;
  PaperItem items[8] = {};
};

struct PaperForm {
  PaperSize paper;
  double rowsPerInch, columnsPerInch;  ///< the grid
  std::span<const PaperFont> fonts;
  std::span<const PaperRow> rows = {};  ///< a paper that is told row by row
  std::span<const PaperItem> items = {};
  int copies = 1;          ///< places on a sheet: two slips, two copies of a statement, labels
  double copyRows = 0;     ///< from one place to the one below it
  int across = 1;          ///< places side by side, filled before those below
  double copyColumns = 0;  ///< from one place to the one beside it
  std::span<const PaperItem> line =
      {};               ///< one line of the list, at the place of the first; texts of the line
  int lines = 0;        ///< so many have room on a sheet
  double lineRows = 1;  ///< from line to line
};

/** The operator's correction in rows and columns of the paper's grid: down and to the right. Labels, rules and boxes
 *  move with the texts. */
struct PaperShift {
  double rows = 0, columns = 0;
};

/** Puts a paper's items on the job's page. place: 0 for the sheet's first. texts by the paper's enumeration; lines: the
 *  texts of each line, by the enumeration of a line, and no more than have room. The font of before stands again
 *  afterwards. */
void drawPaper(PrintJob& job, const PaperForm& form, const PaperShift& shift, int place,
               std::span<const QString> texts, std::span<const QStringList> lines = {});

/** The lines of a list that stand on one sheet. */
struct PaperSheet {
  int number;  ///< from 1
  qsizetype first, count;
  bool last;
};
/** How a list goes over sheets of so many lines; a list without lines has one sheet. */
std::vector<PaperSheet> sheetsOf(qsizetype lines, int linesOnSheet);

/** Places of a job's sheets one behind the other, a page thrown before the first place of each further sheet: not
 *  behind the last, that would be an empty one. */
class PaperPlaces {
 public:
  PaperPlaces(PrintJob& job, int onSheet) : job_(job), onSheet_(onSheet) {}
  /** The next place on its sheet, from 0. */
  int next();
  /** The next place is the first of a new sheet. */
  void newSheet() { used_ += (onSheet_ - used_ % onSheet_) % onSheet_; }

 private:
  PrintJob& job_;
  const int onSheet_;
  int used_ = 0;
};

}  // namespace pc
