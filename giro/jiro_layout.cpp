#include "giro/giro_paper.h"

namespace {

namespace jiro {
using enum SlipText;
using pc::at, pc::PaperItem;

constexpr pc::PaperFont fonts[] = {{u"굴림체"}};

// The plain paper, one slip a page: the customer's receipt up to column 58, the notice up to column 112, the bank's part
// behind it.
constexpr PaperItem plainPlaces[] = {
    // receipt
    {1.8, 30, MonthTitle},
    {3.0, 22, UsePeriod},
    {4.2, 34, AfterDueCharge},
    {5.4, 34, AfterDueAmount},
    {5.4, 9, Total},
    {6.6, 6, DueYear},
    {6.6, 13, DueMonth},
    {6.6, 18, DueDay},
    {8.1, 10, Reading},
    {9.3, 10, PrevReading},
    {10.5, 10, Use},
    {11.7, 10, Amount},
    {12.9, 10, Manage},
    {14.1, 10, Arrears},
    {15.3, 10, Late},
    {16.5, 10, Total},
    {8.1, 28, Bank, 28},
    {9.3, 28, Account, 28},
    {10.5, 28, Holder, 28},
    {18.5, 6, Code},
    {18.5, 17, Name, 38},
    {19.8, 6, AddressLine, 50},
    // notice
    {3.0, 66, MonthTitle},
    {5.4, 76, AmountToPay},
    {6.6, 76, DueYear},
    {6.6, 83, DueMonth},
    {6.6, 88, DueDay},
    {8.1, 76, Code},
    {9.3, 66, Name, 42},
    {11.7, 66, Bank, 42},
    {12.9, 66, Account, 42},
    {14.1, 66, Holder, 42},
    // bank
    {3.0, 126, MonthTitle},
    {3.0, 174, AmountToPay},
    {4.2, 174, AfterDueAmount},
    {5.4, 126, Bank, 42},
    {6.6, 126, Account, 42},
    {7.8, 126, Holder, 42},
    {11.1, 126, Code},
    {11.1, 164, Name, 38},
    {13.1, 127, Address, 72},
    {16.1, 126, DueYear},
    {16.1, 136, DueMonth},
    {16.1, 146, DueDay},
};

// The MICR paper: receipt up to column 66, the bank's part behind it; the line of the bank's machine below row 20 stays
// free.
constexpr PaperItem micrPlaces[] = {
    // receipt
    {1.6, 8, MonthTitle},
    {1.6, 24, UsePeriod},
    {2.8, 24, DueDate},
    {4.3, 8, Code},
    {4.3, 20, Name, 42},
    {5.5, 8, AddressLine, 54},
    {7.3, 12, PrevReading},
    {8.5, 12, Reading},
    {9.7, 12, Use},
    {7.3, 44, Amount},
    {8.5, 44, Manage},
    {9.7, 44, Arrears},
    {10.9, 44, Late},
    {12.7, 12, Total},
    {12.7, 44, AmountToPay},
    {13.9, 12, AfterDueCharge},
    {13.9, 44, AfterDueAmount},
    {15.9, 8, Bank, 28},
    {15.9, 40, Account, 24},
    {17.1, 8, Holder, 54},
    // bank
    {1.6, 76, MonthTitle},
    {1.6, 92, UsePeriod},
    {2.8, 92, DueDate},
    {4.3, 76, Code},
    {4.3, 90, Name, 46},
    {5.5, 76, Address, 60},
    {7.3, 108, AmountToPay},
    {8.5, 108, AfterDueAmount},
    {10.9, 76, Bank, 28},
    {10.9, 108, Account, 28},
    {12.1, 76, Holder, 60},
};

constexpr pc::PaperForm plain{
    .paper = {14, 3.5}, .rowsPerInch = 8, .columnsPerInch = 15, .fonts = fonts, .items = plainPlaces};
constexpr pc::PaperForm micr{
    .paper = {9.5, 3.5}, .rowsPerInch = 8, .columnsPerInch = 15, .fonts = fonts, .items = micrPlaces};

}  // namespace jiro

}  // namespace

const pc::PaperForm& jiroForm() {
  return jiro::plain;
}

const pc::PaperForm& jiroMicrForm() {
  return jiro::micr;
}
