#pragma once
// Which chapter of the operator's guide speaks of which window, and where a box's text is explained.
#include <QString>
#include <QStringList>

/** The heading for a window's name, as it stands in the guide; '' for a name that has no chapter of its own. */
QString guideChapter(const QString& window);
/** Every window that has one; for the tests. */
QStringList guideWindows();
/** The heading under which the boxes stand. */
QString guideBoxChapter();
/** The line of that chapter that explains a box: the words to look for in it; '' when no line does. A line is "| text |
 *  reason |"; several texts are parted by " / ", "…" stands for anything. */
QString guideBoxWords(const QString& guide, const QString& boxText);
/** A heading as links name it: "가스·자재" -> "가스자재", blanks become "-". */
QString guideAnchor(const QString& heading);
