#pragma once
// The way to the program that brings old books in: from the menu, and at a start that finds them in the data folder.
#include <functional>

#include "store/session.h"

/** From the menu: asks, closes the forms and starts it. True: it was started, and the caller closes the main window. */
bool startMoveIn(Session& session, const std::function<bool()>& closeForms);
/** Before the start: files of the older format lie in the data folder; asks and starts it on them. True: this program
 *  ends. */
bool offeredMoveIn(Session& session);
