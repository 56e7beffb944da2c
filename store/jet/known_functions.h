#pragma once
// The functions a statement may call: how the written text names them, how many arguments, what they yield.
#include <QString>

#include "store/jet/tree.h"

namespace jet {

struct KnownFunction {
  QLatin1StringView name;  ///< in capitals, without $
  QLatin1StringView written;
  int least, most;  ///< arguments
  Holds holds;
};

/** Null for a name that is none of them. */
const KnownFunction* knownFunction(QStringView capitals);

}  // namespace jet
