#pragma once
// The repair log of the delivery vehicles: rows of Car, shown and entered in one grid.
#include "master/registers/row_change.h"
#include "ui/model/spread_model.h"

namespace CarCol {
enum { Day = 1, CarNo, Content, Money, Person, Code };
}

/** What 조회상태 asks for; days "yyyy-MM-dd", '' asks nothing. */
struct CarAsk {
  QString from, to, carNo;
};

enum class CarCell {
  Taken,
  Refused,  ///< told; the typed text stands in the open cell
  PutBack,  ///< the cell has its old text again
  Reread,   ///< the list was read anew: another PC was there first
};

class FleetLog {
 public:
  explicit FleetLog(Session& session);

  SpreadModel& grid() { return grid_; }
  bool asks() const { return asks_; }
  /** 입력상태: every line, and an empty one of today at the bottom. False after a failed query has been told. */
  bool showAll();
  /** 조회상태: the lines of the days and the vehicle. False after a day that is none, or a failed query, was told. */
  bool showAsked(const CarAsk& typed);
  /** The lines and the money of what is shown, as the table holds it. */
  QString summary() const;

  /** A stored line is asked about and changed; a new one keeps the text until store(). A vehicle brings its driver. */
  CarCell finishCell(int row, int col, const QString& typed);
  bool isStored(int row) const { return row > 0 && !grid_.text(row, CarCol::Code).isEmpty(); }
  /** Something was entered in the new line. */
  bool isBegun(int row) const;
  /** The first cell that a new line cannot do without and that is empty; 0 when it may be stored. */
  int missing(int row) const;
  /** Inserts the new line and begins the next. False: told why not. Throws jet::Error. */
  bool store(int row);
  /** Asks, standing on no; a new line is emptied. Throws jet::Error. */
  bool remove(int row);
  void emptyNewLine(int row);

 private:
  bool read(const QString& where);
  void readAgain();
  void addNewLine();
  void showRow(int row, const RegisterFields& fields);
  CarCell change(int row, const RegisterFields& typed);
  QString driverOf(const QString& carNo) const;
  RowSource source(const QString& code) const;

  Session& session_;
  SpreadModel grid_;
  QHash<QString, RegisterFields> stored_;  ///< by code, as each line was read
  QString where_;                          ///< of what is shown; '' everything
  bool asks_ = false;
};
