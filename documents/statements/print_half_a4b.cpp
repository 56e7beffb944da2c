// PrintHalfA4B: the other pre-printed A4 sheet, two copies; its sums end in what the customer owes with this one.
#include "documents/statements/deal_layouts.h"

namespace half_a4b {

using enum DealText;
using pc::at, pc::PaperItem;
using Line = DealLineText;

constexpr double top = 3;
constexpr pc::PaperFont letters[] = {{u"굴림체", documentPoints}};

constexpr PaperItem places[] = {
    {top + 0, 14, IssueDate},
    {top + 5, 21, SupplierSerial},
    {top + 5, 69, BuyerSerial},
    at(top + 7, 12, SupplierName).cut(28),
    at(top + 7, 41, SupplierPerson).cut(18),
    at(top + 7, 60, BuyerName).cut(28),
    at(top + 7, 89, BuyerPerson).cut(28),
    at(top + 9, 12, SupplierAddress).cut(47),
    at(top + 9, 60, BuyerAddress).cut(57),
    at(top + 11, 12, SupplierStatus).cut(18),
    at(top + 11, 31, SupplierItem).cut(28),
    at(top + 11, 60, BuyerStatus).cut(19),
    at(top + 11, 80, BuyerItem).cut(37),
    at(top + 30, 12, Supply),
    at(top + 30, 32, Tax),
    at(top + 30, 52, Total),
    at(top + 30, 71, After),
    at(top + 30, 90, MoreBehind),
};

constexpr PaperItem line[] = {
    {top + 15, 6, Line::Date},
    at(top + 15, 24, Line::Item).cut(30),
    at(top + 15, 6, Line::ItemAlone).cut(48),
    at(top + 15, 55, Line::Quantity).padded(11),
    at(top + 15, 67, Line::Price).padded(12),
    at(top + 15, 81, Line::Amount).padded(12),
};

}  // namespace half_a4b

const pc::PaperForm printHalfA4B{.paper = {},
                                 .rowsPerInch = documentRows,
                                 .columnsPerInch = documentColumns,
                                 .fonts = half_a4b::letters,
                                 .items = half_a4b::places,
                                 .copies = 2,
                                 .copyRows = 35,
                                 .line = half_a4b::line,
                                 .lines = dealLinesOnSheet};
