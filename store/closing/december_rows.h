#pragma once
// The December rows of a meter book, one after the other, as the carry joins them into its statements.
#include <QString>

#include "store/jet/database.h"

class DecemberRows {
 public:
  /** By customer. Throws jet::Error. */
  explicit DecemberRows(const jet::Database& book);

  int count() const { return count_; }
  void next() { rows_.MoveNext(); }
  /** The current row's column. A Null of an old book counts as nothing: joined as it stands it would break the statement
   *  and end every carry. */
  double value(const char* column) const { return rows_[column].toDouble(); }
  QString number(const char* column) const;
  bool yes(const char* column) const { return rows_[column].toBool(); }
  /** The condition for this customer's row of a month. */
  QString whose(int month) const;

 private:
  jet::Recordset rows_;
  int count_ = 0;
};
