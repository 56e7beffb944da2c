#pragma once
// "검침현황 조회": the readings or the collections of one book over a period, a line for each customer and month, with
// what was open before and is open now.
#include "briefs/brief.h"

/** A page a book, "1" to "3" as the session's CheckKind. Panels: the period; what was open before it (kept: of the whole
 *  book or building, whichever dong and room are asked for); collected; still open, which is what the last month of each
 *  customer's lines leaves. Amounts in whole won. */
Brief evaTotalBrief();

/** Columns of the grid. */
namespace TotalCol {
enum : int { Name = 1, Building, Month, Trust, UsePay, Delay, Manage, Pay, TrustDay, Remain, Last = Remain };
}
