#pragma once
// The meter book's carry once more: last year's December into the opening rows of the clock's year.
#include "store/closing/year_close.h"

/** What a December bill brings into January, in won, by the setting for bills after their due date: 0 all of it, else a
 *  bill that is more than the month's gas (usePay, rounded by the company's rule) without its late charge. */
double arrearsCarried(double total, double delay, double roundedUsePay, int afterDueMethod);

/** Asks first; tells what is missing. Writes months 0 and 1 alone, all customers or, where the disk fails, none. Throws
 *  jet::Error. */
void recarry(Session& session, const YearProgress& progress);
