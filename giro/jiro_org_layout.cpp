#include "giro/giro_paper.h"

namespace {

namespace jiro_org {
using enum SlipText;
using pc::at, pc::PaperItem;

constexpr pc::PaperFont fonts[] = {{u"굴림"}};

// The general giro's continuous paper, one slip a page: receipt up to column 66, the bank's part behind it. Its letters
// differ in width, so figures end at the right edge of 13 places.
constexpr PaperItem places[] = {
    // receipt
    {2, 10, IssueYear},
    {2, 19, IssueMonth},
    {2, 30, UsePeriod},
    {3.6, 8, Code},
    {3.6, 20, NameSir, 42},
    {4.9, 8, AddressLine, 54},
    at(7, 14, Reading).right(13),
    at(8.3, 14, PrevReading).right(13),
    at(9.6, 14, Use).right(13),
    at(10.9, 14, Amount).right(13),
    at(12.2, 14, Manage).right(13),
    at(13.5, 14, Arrears).right(13),
    at(14.8, 14, Late).right(13),
    at(16.1, 14, Total).right(13),
    at(7, 46, AfterDueCharge).right(13),
    at(8.3, 46, AfterDueAmount).right(13),
    at(16.1, 46, AmountToPay).right(13),
    {18, 14, DueYear},
    {18, 24, DueMonth},
    {18, 32, DueDay},
    {20, 8, Bank, 20},
    {20, 32, Account, 30},
    {21.3, 8, Holder, 54},
    // bank
    {2, 78, IssueYear},
    {2, 87, IssueMonth},
    {3.6, 76, Code},
    {3.6, 90, NameSir, 46},
    {4.9, 76, Address, 60},
    at(8.3, 110, AmountToPay).right(13),
    at(9.6, 110, AfterDueAmount).right(13),
    {11.6, 82, DueYear},
    {11.6, 92, DueMonth},
    {11.6, 100, DueDay},
    {13.6, 76, Bank, 24},
    {13.6, 104, Account, 30},
    {14.9, 76, Holder, 60},
};

constexpr pc::PaperForm form{
    .paper = {9.5, 4}, .rowsPerInch = 8, .columnsPerInch = 15, .fonts = fonts, .items = places};

}  // namespace jiro_org

}  // namespace

const pc::PaperForm& jiroOrgForm() {
  return jiro_org::form;
}
