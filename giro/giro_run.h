#pragma once
// What every giro form does around its own layout: the checks before a run, which rows get a slip, in the screen's
// order.
#include <optional>
#include <vector>

#include "papers/document_run.h"

class ReadingScreen;
struct Session;

/** The four options of the forms. */
enum class GiroSelection { Active = 1, Ticked, Unticked, All };

/** Rows of the reading grid that get a slip, in its order. */
std::vector<int> rowsToPrint(const ReadingScreen& screen, GiroSelection selection);

/** The printer of the slips, '' after telling that none is set. */
QString giroPrinter(Session& session);

/** The rows a run goes over; none after telling what stands in the way: no reading screen (screen is null), no company
 *  row, nobody to print for. */
std::vector<int> giroRows(Session& session, const ReadingScreen* screen, GiroSelection selection);
