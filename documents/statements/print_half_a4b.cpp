// PrintHalfA4B: the other pre-printed A4 sheet, two copies; its sums end in what the customer owes with this one.
#include "documents/statements/deal_layouts.h"

namespace half_a4b {

using namespace layout;
using enum DealText;
using Line = DealLineText;

constexpr double top = 3, first = top + 15, sums = top + 30;

constexpr auto places =
    joined(std::array{at(top, 14, IssueDate)}, numbers(top + 5, 21, 69),
           names(top + 7, {{12, 28}, {41, 18}, {60, 28}, {89, 28}}), addresses(top + 9, {{12, 47}, {60, 57}}),
           kinds(top + 11, {{12, 18}, {31, 28}, {60, 19}, {80, 37}}),
           std::array{at(sums, 12, Supply), at(sums, 32, Tax), at(sums, 52, Total), at(sums, 71, After),
                      at(sums, 90, MoreBehind)});

constexpr std::array line{
    at(first, 6, Line::Date),
    at(first, 6, Line::ItemAlone).squeezed(48),
    at(first, 24, Line::Item).squeezed(30),
    at(first, 55, Line::Quantity).padded(11),
    at(first, 67, Line::Price).padded(12),
    at(first, 81, Line::Amount).padded(12),
};

}  // namespace half_a4b

const pc::PaperForm printHalfA4B = layout::paper(half_a4b::places, 35, {half_a4b::line, dealLinesOnSheet});
