// PrintHalfA4: a pre-printed A4 sheet, the supplier's copy above, the buyer's below.
#include "documents/statements/deal_layouts.h"

namespace half_a4 {

using enum DealText;
using pc::at, pc::PaperItem;
using Line = DealLineText;

constexpr double top = 3;  // row 0 of the upper copy
constexpr pc::PaperFont letters[] = {{u"굴림체", documentPoints}};

constexpr PaperItem places[] = {
    {top + 0, 16, IssueDate},
    {top + 5, 20, SupplierSerial},
    {top + 5, 63, BuyerSerial},
    at(top + 7, 16, SupplierName).cut(29),
    at(top + 7, 46, SupplierPerson).cut(17),
    at(top + 7, 64, BuyerName).cut(29),
    at(top + 7, 94, BuyerPerson).cut(24),
    at(top + 9, 16, SupplierAddress).cut(47),
    at(top + 9, 64, BuyerAddress).cut(54),
    at(top + 11, 16, SupplierStatus).cut(19),
    at(top + 11, 36, SupplierItem).cut(27),
    at(top + 11, 64, BuyerStatus).cut(20),
    at(top + 11, 85, BuyerItem).cut(33),
    at(top + 30, 14, Supply),
    at(top + 30, 32, Tax),
    at(top + 30, 49, Total),
    at(top + 30, 65, MoreBehind),
};

constexpr PaperItem line[] = {
    {top + 15, 9, Line::Date},
    at(top + 15, 23, Line::Item).cut(34),
    at(top + 15, 9, Line::ItemAlone).cut(48),
    at(top + 15, 58, Line::Quantity).padded(11),
    at(top + 15, 70, Line::Price).padded(11),
    at(top + 15, 84, Line::Supply).padded(12),
    at(top + 15, 98, Line::Tax).padded(12),
};

}  // namespace half_a4

const pc::PaperForm printHalfA4{.paper = {},
                                .rowsPerInch = documentRows,
                                .columnsPerInch = documentColumns,
                                .fonts = half_a4::letters,
                                .items = half_a4::places,
                                .copies = 2,
                                .copyRows = 35,
                                .line = half_a4::line,
                                .lines = dealLinesOnSheet};
