#pragma once
// The commands of the year's end as the main window runs them: the rules with their windows.
#include "store/session.h"

class QWidget;

/** "년도마감작업". No form may be open: the year's file is closed meanwhile. Throws jet::Error. */
void runYearClose(Session& session, QWidget* over);
/** "체적검침 재이월". Throws jet::Error. */
void runRecarry(Session& session, QWidget* over);
