#pragma once
// What another PC may be started for; the first argument names it, the others are its own.
#include <QStringList>

namespace storm {

constexpr unsigned anyone = 65534;  ///< the user that "post-as-anyone" becomes when it may

/** Its exit code, 1 for work that nobody knows. Throws jet::Error. */
int runPc(const QStringList& arguments);

/** How many times, pieces, inputs: the short measure, or the long one when HAEON_STORM is "long". */
int measure(int shortOne, int longOne);

}  // namespace storm
