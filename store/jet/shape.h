#pragma once
// A statement's text cut into its shape and its literals. Forms join their statements as texts; the prepared statement
// is found by the shape, and the literals become its parameters.
#include <QVarLengthArray>

#include "store/jet/lexer.h"

namespace jet {

/** Points into the text that it was cut from. Literals that decide the statement's form (Top n, order by position)
 *  stay in the key. */
struct Shape {
  QStringView key() const { return QStringView(text.data(), text.size()); }

  QVarLengthArray<char16_t, 1024> text;  ///< the statement with "?w", "?f", "?t" for its literals
  QVarLengthArray<Token, 24> literals;   ///< in order; ?1 ?2 ... of the compiled statement
};

/** Throws 3075 with the place for a text that no token fits. */
Shape shapeOf(QStringView sql);

}  // namespace jet
