#pragma once
// The call that takes a value into a column: converted as the column's type wants it, or refused.
#include <QByteArray>
#include <functional>
#include <vector>

#include "store/jet/database.h"

namespace jet {

/** SQLite text before and behind the value. */
struct PutCall {
  QByteArray before, behind;
};
PutCall putCall(const Field& field);

/** 3314 for a new row that leaves a required field without any value. */
void requireGiven(const std::vector<Field>& fields, const std::function<bool(const Field&)>& given);

}  // namespace jet
