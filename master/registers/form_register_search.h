#pragma once
// The window of the short lists.
#include "master/registers/register_search.h"

class QWidget;

/** Shows the list: the chosen line's cells, the first column at 0; nothing when the operator leaves or a failed query
 *  has been told. */
std::optional<QStringList> chooseFrom(const RegisterSearch& search, Session& session, QWidget* parent);
