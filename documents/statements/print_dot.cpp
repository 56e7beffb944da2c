// PrintDot: continuous paper without a form, two copies a sheet, each with the customer's balance at its end.
#include "documents/statements/deal_layouts.h"

namespace dot {

using namespace layout;
using enum DealText;
using Line = DealLineText;

constexpr double top = 2;
constexpr int wide = 104;  // columns that are printed

constexpr auto places =
    joined(std::array{at(top, 0, QStringView(u"거 래 명 세 표")).centred(wide), at(top + 2, 1, IssueDate)},
           numbers(top + 2, 18, 66), names(top + 4, {{12, 24}, {37, 29}, {67, 28}, {96, 20}}),
           addresses(top + 6, {{12, 54}, {67, 50}}),
           std::array{at(top + 8, 87, QStringView(u"===비======고===")), at(top + 24, 35, Supply),
                      at(top + 24, 88, PageTotal), at(top + 24, 92, Total), at(top + 25, 60, BeforeLabelled),
                      at(top + 25, 80, AfterLabelled)});

constexpr std::array line{at(top + 9, 1, Line::DatedItem).squeezed(38),
                          at(top + 9, 40, Line::Quantity).padded(9), at(top + 9, 50, Line::Price).padded(14),
                          at(top + 9, 65, Line::Supply).padded(13), at(top + 9, 79, Line::Tax).padded(10)};

}  // namespace dot

const pc::PaperForm printDot = layout::paper(dot::places, 33, {dot::line, dealLinesOnSheet}, {9.5, 11});
