#pragma once
// A list of stored rows as registers and pickers show it: where its rows come from and what stands in which column.
#include <functional>

#include "master/registers/row_change.h"
#include "ui/model/column.h"

struct RegisterColumn {
  QString field;  ///< of the statement's rows
  SpreadColumn look;
  std::function<QString(const RegisterFields& record)> computed = {};  ///< in place of the field
};

/** A column by the field that it shows: field::text(u"Name"_s, u"상호"_s, 18). */
namespace field {
struct Look {
  const column::Look& look;
  RegisterColumn operator()(const QString& field, const QString& header, double width) const {
    return {field, look(header, width)};
  }
  RegisterColumn operator()(const QString& field, const QString& header) const {
    return {field, look(header)};
  }
};
inline constexpr Look text{column::text}, centred{column::centred}, right{column::right},
    money{column::money}, integer{column::integer}, number{column::number};
inline RegisterColumn hidden(const QString& field, const QString& header) {
  return {field, column::hidden(header)};
}
}  // namespace field

/** A column whose text is made from the row. */
inline RegisterColumn computes(SpreadColumn look, std::function<QString(const RegisterFields& record)> text) {
  return {{}, std::move(look), std::move(text)};
}

struct RegisterList {
  QString statement;
  std::vector<RegisterColumn> columns;
  QString group = {};  ///< a heading above all columns
};

/** The columns of a list that is only looked at. */
std::vector<SpreadColumn> looksOf(const RegisterList& list);
/** One row's cells. */
std::vector<QString> cellsOf(const RegisterList& list, const RegisterFields& record);
