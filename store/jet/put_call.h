#pragma once
// The call that takes a value into a column: converted as the column's type wants it, or refused.
#include <QByteArray>

#include "store/jet/database.h"

namespace jet {

/** SQLite text before and behind the value. */
struct PutCall {
  QByteArray before, behind;
};
PutCall putCall(const Field& field);

}  // namespace jet
