#include "giro/giro_paper.h"

namespace {

namespace micr {
using enum SlipText;
using pc::at, pc::PaperItem;

constexpr pc::PaperFont fonts[] = {{u"굴림체"}};

// The clearing house's A4 sheet, standing, one slip: the bill above, the slip with receipt and bank's part in the lower
// third; the line of the bank's machine below row 87 stays free.
constexpr PaperItem places[] = {
    // bill
    {10, 16, MonthTitle},
    {10, 60, UsePeriod},
    {13, 16, Code},
    {13, 30, Name, 60},
    {15, 16, AddressLine, 90},
    {19, 44, PrevReading},
    {21, 44, Reading},
    {23, 44, Use},
    {25, 44, Amount},
    {27, 44, Manage},
    {29, 44, Arrears},
    {31, 44, Late},
    {33, 44, Total},
    {35, 44, AfterDueCharge},
    {37, 44, AfterDueAmount},
    {41, 16, DueDate},
    {43, 16, Bank, 40},
    {43, 66, Account, 40},
    {45, 16, Holder, 80},
    // receipt
    {64, 8, MonthTitle},
    {65.5, 8, Code},
    {65.5, 18, Name, 36},
    {67, 8, AddressLine, 46},
    {70, 26, AmountToPay},
    {72, 26, AfterDueAmount},
    {75, 8, DueDate},
    {77, 8, Bank, 46},
    {78.5, 8, Account, 46},
    {80, 8, Holder, 46},
    // bank
    {64, 64, MonthTitle},
    {65.5, 64, Code},
    {65.5, 74, Name, 44},
    {67, 64, Address, 54},
    {70, 96, AmountToPay},
    {72, 96, AfterDueAmount},
    {75, 64, DueDate},
    {77, 64, Bank, 54},
    {78.5, 64, Account, 54},
    {80, 64, Holder, 54},
};

constexpr pc::PaperForm form{
    .paper = {8.27, 11.69}, .rowsPerInch = 8, .columnsPerInch = 15, .fonts = fonts, .items = places};

}  // namespace micr

}  // namespace

const pc::PaperForm& micrA4Form() {
  return micr::form;
}
