#pragma once
// The short lists that the repair log picks from: vehicles with their drivers, parts and repairs. A list is a handful of
// rows, worked on in a grid and rewritten whole by a save.
#include <functional>

#include "store/session.h"
#include "ui/model/spread_model.h"

struct ShortListField {
  QString name, header;
  double width;
  int maxLength;
  bool digits = false;
  bool staff = false;  ///< one of the delivery staff
};

struct ShortListKind {
  QString form, caption;
  QString table;
  std::vector<ShortListField> fields;
  QString title, question;  ///< of the boxes; what is asked before a changed list is left
  QStringList hints;        ///< pairs: what is spoken of, what is said
};
const ShortListKind& vehicleList();  ///< frmCarRes
const ShortListKind& repairList();   ///< frmCaRepairUnit

class ShortList {
 public:
  ShortList(Session& session, const ShortListKind& kind);

  const ShortListKind& kind() const { return kind_; }
  /** The rows and an empty one at the bottom. */
  SpreadModel& grid() { return grid_; }
  /** False after a failed query has been told. */
  bool load();
  /** False: refused, told. */
  bool finishCell(int row, int col, const QString& typed);
  bool isEmpty(int row) const;
  bool changed() const;
  /** Asks first, standing on no. False when the row stays. */
  bool remove(int row);
  /** Rewrites the table with the rows on the screen; what another PC added since the list was read stays, what it took
   *  out goes. Throws jet::Error: nothing was rewritten then, for no text that a statement cannot hold reaches the file
   *  behind its deletion. */
  void save();
  bool askToSave() const;

 private:
  using Rows = std::vector<std::vector<QString>>;
  Rows stored() const;
  void show(Rows rows);
  Rows onScreen() const;
  QString insertStatement(const std::vector<QString>& row) const;

  Session& session_;
  const ShortListKind& kind_;
  SpreadModel grid_;
  Rows read_;  ///< as the table held them when the list was read
};
