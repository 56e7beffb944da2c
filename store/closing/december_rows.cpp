#include "store/closing/december_rows.h"

#include "store/data_access.h"

using namespace Qt::StringLiterals;

DecemberRows::DecemberRows(const jet::Database& book)
    : rows_(book.OpenRecordset(u"Select * From Evaporation Where Mon = 12 Order By ClientCode"_s)) {
  if (rows_.atEnd()) return;
  rows_.MoveLast();
  count_ = rows_.RecordCount();
  rows_.MoveFirst();
}

QString DecemberRows::number(const char* column) const {
  return rows_[column].isNull() ? u"0"_s : plainNumber(rows_[column].toText());
}

QString DecemberRows::whose(int month) const {
  return u" Where ClientCode = "_s + plainNumber(rows_["ClientCode"].toText()) +
         u" And Evaporation.Mon = "_s + QString::number(month) + u' ';
}
