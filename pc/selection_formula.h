#pragma once
// The selection formula of a report over live tables: "{Sale.SaleDate} >= '2026-01-01' And Not ({Sale.SaleGubun} = 7)".
#include <QString>

#include <vector>

namespace pc {

/** One condition, or several joined. Texts and names as they were written, without their marks. */
struct Selection {
  enum class Kind { All, Compare, And, Or, Not };
  enum class Value { Text, Number, YesNo };
  Kind kind = Kind::All;              ///< All: an empty formula, every row
  std::vector<Selection> parts = {};  ///< of And and Or two or more, of Not one
  QString table = {}, field = {};
  QString op = {};  ///< "=", "<>", "<", "<=", ">", ">="
  Value type = Value::Number;
  QString value = {};
};

/** Not binds before And, And before Or; words in any case; a doubled apostrophe in a text is one. Throws ReportError with
 *  the place for anything that is no such formula: the names are letters, digits and _, nothing else gets through. */
Selection parseSelection(const QString& formula);

}  // namespace pc
