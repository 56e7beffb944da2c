#pragma once
// What stands out in a month's readings beside what the customer usually uses. It only marks; nothing is refused and no
// figure of the bill is touched. Uses in cubic metres.
#include <QString>

#include <array>
#include <optional>
#include <vector>

struct ReadingSheet;

enum class ReadingMark { None, Unread, Backward, Zero, High, Low };
constexpr int readingMarks = 6;

/** What a customer is expected to use in the month shown. */
struct UsualUse {
  enum class From { Nothing, LastYear, LastMonths };
  From from = From::Nothing;
  double use = 0;
};

/** The use of the same month last year, because gas for heating follows the season; where there was none, the mean of
 *  those of the three months before in which gas was used. Uses of 0 and below say nothing about a household. */
UsualUse usualUse(std::optional<double> sameMonthLastYear, const std::vector<double>& monthsBefore);

/** High and Low: more than twice or less than half the usual use, and at least 3 cubic metres away from it, so that a
 *  kitchen's 1 and 3 do not count. Without a usual use neither is told. */
ReadingMark markOf(double reading, double use, const UsualUse& usual);

/** "▲ 많음"; '' for None. The first letter is the sign, for those who see no colours. */
QString markText(ReadingMark mark);

/** What was used before the month shown. */
struct UseBefore {
  std::optional<double> lastMonth;
  UsualUse usual;
};

/** Reads what the sheet's customers used before, from the year's file and last year's, when there is one; what cannot be
 *  read is not expected of anybody. Nothing in the opening entry. */
void loadUsesBefore(ReadingSheet& sheet);
/** Marks every row anew from its reading and use; the counts by mark. */
std::array<int, readingMarks> markReadings(ReadingSheet& sheet);
/** The next row with a mark in a direction (1 or -1), over the end and on from the other; 0 when there is none. */
int nextMarked(const ReadingSheet& sheet, int row, int step);

/** "□ 미검침 3   ▲ 많음 1"; '' when nothing stands out. */
QString countsText(const std::array<int, readingMarks>& counts);
/** A row's line: last month's use, the usual one and where it comes from, this month's and its mark. typed: a reading
 *  that has not been taken yet, so that the line stands while the operator is asked about it. */
QString useText(const ReadingSheet& sheet, int row, const std::optional<QString>& typed = {});
