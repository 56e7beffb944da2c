#pragma once
// The check digit of a business registration number.
#include "ui/model/prompts.h"

/** False only for ten digits (dashes and blanks between them) whose last does not fit the nine before it by the weights
 *  1 3 7 1 3 7 1 3 5. A text of any other length is none of these numbers and is not judged. */
bool mayBeBusinessNumber(const QString& typed);

/** Tells a number whose check digit does not fit; it may stand all the same. */
void tellBusinessNumber(Prompts& prompts, const QString& typed);
