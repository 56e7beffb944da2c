// PrintHalfA4: a pre-printed A4 sheet, the supplier's copy above, the buyer's below.
#include "documents/statements/deal_layouts.h"

namespace half_a4 {

using namespace layout;
using enum DealText;
using Line = DealLineText;

constexpr double top = 3;  // row 0 of the upper copy
constexpr double sums = top + 30;

constexpr auto places = joined(
    numbers(top + 5, 20, 63), names(top + 7, {{16, 29}, {46, 17}, {64, 29}, {94, 24}}),
    addresses(top + 9, {{16, 47}, {64, 54}}), kinds(top + 11, {{16, 19}, {36, 27}, {64, 20}, {85, 33}}),
    std::array{at(top, 16, IssueDate), at(sums, 14, Supply), at(sums, 32, Tax), at(sums, 49, Total),
               at(sums, 65, MoreBehind)});

constexpr double first = top + 15;
constexpr std::array line{at(first, 9, Line::Date),
                          at(first, 23, Line::Item).squeezed(34),
                          at(first, 9, Line::ItemAlone).squeezed(48),
                          at(first, 58, Line::Quantity).padded(11),
                          at(first, 70, Line::Price).padded(11),
                          at(first, 84, Line::Supply).padded(12),
                          at(first, 98, Line::Tax).padded(12)};

}  // namespace half_a4

const pc::PaperForm printHalfA4 = layout::paper(half_a4::places, 35, {half_a4::line, dealLinesOnSheet});
