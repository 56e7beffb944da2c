#pragma once
// Columns in one short expression each: heading, width in half-width characters, look.
//   list.setColumns(column::shown({column::text("상호", 18), column::money("가스미불"), column::hidden("코드")}));
#include "ui/model/spread_model.h"

namespace column {

/** A look by its heading and width; where no width is named the usual one of such figures. */
struct Look {
  CellKind kind;
  CellAlign align;
  double usual = 10;
  SpreadColumn operator()(const QString& header, double width) const;
  SpreadColumn operator()(const QString& header) const { return (*this)(header, usual); }
};

inline constexpr Look text{CellKind::Text, CellAlign::Left};
inline constexpr Look centred{CellKind::Text, CellAlign::Center};
inline constexpr Look right{CellKind::Text, CellAlign::Right};       ///< a text at the right
inline constexpr Look money{CellKind::Money, CellAlign::Right, 12};  ///< won
inline constexpr Look integer{CellKind::Integer, CellAlign::Right};  ///< pieces
inline constexpr Look number{CellKind::Number, CellAlign::Right};    ///< with fractions
inline constexpr Look date{CellKind::Date, CellAlign::Center, 11};   ///< "yyyy-MM-dd"
inline constexpr Look monthDay{CellKind::MonthDay, CellAlign::Center, 7};
inline constexpr Look tick{CellKind::CheckBox, CellAlign::Center, 6};

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
