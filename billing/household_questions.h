#pragma once
// What the reports of the meter book ask alike: the building, its block, the room.
#include "briefs/brief.h"

/** The buildings of a book, "전체" before them; none of the individual book. */
QStringList buildingsOf(const Session& session, int book);
/** The building's name that was chosen; '' for all. */
QString chosenBuilding(const BriefAsk& ask, const QString& question);

/** "txtDong" and "txtHo". pages that ask them: all where none is named. anew: empty on every page. */
BriefQuestion askDong(std::vector<int> pages = {}, bool anew = false);
BriefQuestion askHo(std::vector<int> pages = {}, bool anew = false);
