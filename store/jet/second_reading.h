#pragma once
// A disk or a network that fails once is no damage: what is read is read a second time before a failure counts.
#include <optional>

#include "store/jet/error_texts.h"

namespace jet {

/** Whether a number tells that a file's content is not what it should be. */
inline bool isDamage(int number) {
  return number == 3049 || number == 3343;
}

/** Does the reading, a second time where it may have been a failure of the moment. Damage that the first reading did not
 *  find is none (3043). */
template <typename Work>
void twice(const QString& about, const Work& work) {
  std::optional<Error> first;
  try {
    return work();
  } catch (const Error& error) {
    if (!isDamage(error.number()) && error.number() != 3043) throw;
    first = error;
  }
  try {
    work();
  } catch (const Error& second) {
    if (isDamage(second.number()) && !isDamage(first->number())) fail(3043, about);
    throw;
  }
}

}  // namespace jet
