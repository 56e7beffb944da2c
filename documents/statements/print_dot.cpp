// PrintDot: continuous paper without a form, two copies a sheet, each with the customer's balance at its end.
#include "documents/statements/deal_layouts.h"

namespace dot {

using enum DealText;
using pc::at, pc::PaperItem;
using Line = DealLineText;

constexpr double top = 2;
constexpr int wide = 104;  // columns that are printed
constexpr pc::PaperFont letters[] = {{u"굴림체", documentPoints}};

constexpr PaperItem places[] = {
    at(top + 0, 0, QStringView(u"거 래 명 세 표")).centred(wide),
    {top + 2, 1, IssueDate},
    {top + 2, 18, SupplierSerial},
    {top + 2, 66, BuyerSerial},
    at(top + 4, 12, SupplierName).cut(24),
    at(top + 4, 37, SupplierPerson).cut(29),
    at(top + 4, 67, BuyerName).cut(28),
    at(top + 4, 96, BuyerPerson).cut(20),
    at(top + 6, 12, SupplierAddress).cut(54),
    at(top + 6, 67, BuyerAddress).cut(50),
    {top + 8, 87, QStringView(u"===비======고===")},
    at(top + 24, 35, Supply),
    at(top + 24, 88, PageTotal),
    at(top + 24, 92, Total),
    {top + 25, 60, BeforeLabelled},
    {top + 25, 80, AfterLabelled},
};

constexpr PaperItem line[] = {
    at(top + 9, 1, Line::DatedItem).cut(38), at(top + 9, 40, Line::Quantity).padded(9),
    at(top + 9, 50, Line::Price).padded(14), at(top + 9, 65, Line::Supply).padded(13),
    at(top + 9, 79, Line::Tax).padded(10),
};

}  // namespace dot

const pc::PaperForm printDot{.paper = {9.5, 11},
                             .rowsPerInch = documentRows,
                             .columnsPerInch = documentColumns,
                             .fonts = dot::letters,
                             .items = dot::places,
                             .copies = 2,
                             .copyRows = 33,
                             .line = dot::line,
                             .lines = dealLinesOnSheet};
