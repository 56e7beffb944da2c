#pragma once
// Columns in one short expression each: heading, width in half-width characters, look.
//   list.setColumns(column::shown({column::text("상호", 18), column::money("가스미불"), column::hidden("코드")}));
#include "ui/model/spread_model.h"

namespace column {

SpreadColumn text(const QString& header, double width);
SpreadColumn centred(const QString& header, double width);
SpreadColumn right(const QString& header, double width);       ///< a text at the right
SpreadColumn money(const QString& header, double width = 12);  ///< won
SpreadColumn integer(const QString& header, double width);     ///< pieces, at the right
SpreadColumn number(const QString& header, double width);      ///< with fractions, at the right
SpreadColumn date(const QString& header, double width = 11);   ///< "yyyy-MM-dd"
SpreadColumn monthDay(const QString& header, double width = 7);
SpreadColumn tick(const QString& header, double width = 6);
SpreadColumn choice(const QString& header, double width, const QStringList& labels);
/** What the rules know of a row and the operator does not see. */
SpreadColumn hidden(const QString& header);

// What few columns have besides.
SpreadColumn locked(SpreadColumn column);
SpreadColumn grouped(const QString& group, SpreadColumn column);
/** Takes so many characters. */
SpreadColumn limited(int maxLength, SpreadColumn column);
SpreadColumn coloured(int background, SpreadColumn column);  ///< 0xRRGGBB

/** A list that is only looked at. */
std::vector<SpreadColumn> shown(std::vector<SpreadColumn> all);

}  // namespace column
