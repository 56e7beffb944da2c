#pragma once
// The meter book as it stands on the screen: one book, one month, a row a customer. Everything that is done to it
// works on this; a row of the grid is what the bill is computed from and what is saved.
#include <QHash>

#include <functional>

#include "billing/reading_screen.h"
#include "billing/reading_watch.h"

struct Session;

struct ReadingSheet {
  explicit ReadingSheet(Session& session);

  Session& session;
  SpreadModel grid;  ///< SpEva, columns as EvaCol
  HouseStyle book = HouseStyle::Individual;
  int month = -1;         ///< place in the list of months: 0 the opening entry, 1 to 12; -1 nothing chosen
  QStringList buildings;  ///< entries of CboBDName; the first stands for all
  int building = -1;      ///< place in them; -1 nothing chosen
  QString readingDay;     ///< TxtDay as it stands, "MM/DD"; saved with every row

  QHash<QString, UseBefore> before;  ///< by customer code

  /** Before a question about a row other than the current one: the screen brings the row into sight. */
  std::function<void(int row)> showRow;

  bool isOpening() const { return month == 0; }
  QString monthText() const;      ///< as the list shows it: "기초", "03"
  QString buildingEntry() const;  ///< '' where there is none
  int calendarMonth() const;      ///< of the PC's clock
  QString today() const;          ///< "MM/DD"

  /** A cell as a number; a blank one is 0. */
  double number(int row, int col) const;
  void setNumber(int row, int col, double value);
  QString code(int row) const { return grid.text(row, EvaCol::Code); }
};

/** "체적일반", "체적아파트", "체적다가구" */
QString bookCaption(HouseStyle book);
/** What PnlHelp says about a column. */
QString readingHelp(int col);

/** The row stands out while the operator is asked about it. */
class RowInQuestion {
 public:
  RowInQuestion(SpreadModel& grid, int row) : grid_(grid), row_(row) { grid_.setBold(row_, true); }
  ~RowInQuestion() { grid_.setBold(row_, false); }
  RowInQuestion(const RowInQuestion&) = delete;
  RowInQuestion& operator=(const RowInQuestion&) = delete;

 private:
  SpreadModel& grid_;
  int row_;
};
