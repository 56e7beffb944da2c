#include "giro/giro_paper.h"

namespace {

namespace jiro_org_a4 {
using enum SlipText;
using pc::at, pc::PaperItem;

constexpr pc::PaperFont fonts[] = {{u"굴림체"}};

// The general giro on an A4 sheet lying on its side, two slips: the customer's receipt up to column 46, the notice with
// the banks up to column 88, the bank's part behind it.
constexpr PaperItem places[] = {
    // receipt
    {2.0, 24, IssueYear},
    {2.0, 32, IssueMonth},
    {3.2, 18, UsePeriod},
    {4.4, 31, AfterDueCharge},
    {5.6, 31, AfterDueAmount},
    {5.6, 9, Total},
    {6.8, 6, DueYear},
    {6.8, 13, DueMonth},
    {6.8, 18, DueDay},
    {8.3, 16, Reading},
    {9.5, 16, PrevReading},
    {10.7, 16, Use},
    {11.9, 16, Amount},
    {13.1, 5, FeeLabel},
    {13.1, 16, Manage},
    {14.3, 16, Arrears},
    {15.5, 16, Late},
    {16.7, 16, Total},
    {18.7, 6, Code},
    {18.7, 17, NameSir, 28},
    {20.0, 6, AddressLine, 40},
    // notice
    {4.4, 50, NameSir, 36},
    {5.6, 60, AmountToPay},
    {6.8, 60, DueYear},
    {6.8, 67, DueMonth},
    {6.8, 72, DueDay},
    {8.3, 60, Code},
    {10.7, 50, Bank, 14},
    {10.7, 66, Account, 20},
    {11.9, 50, Holder, 36},
    {13.3, 50, Bank2, 14},
    {13.3, 66, Account2, 20},
    {14.5, 50, Holder2, 36},
    {15.9, 50, Bank3, 14},
    {15.9, 66, Account3, 20},
    {17.1, 50, Holder3, 36},
    {18.7, 50, Company, 36},
    {20.0, 50, PhoneLabel},
    {20.0, 62, Phone, 22},
    // bank
    {4.4, 146, AmountToPay},
    {5.6, 146, AfterDueAmount},
    {7.3, 98, Bank, 28},
    {7.3, 136, Account, 30},
    {8.5, 98, Holder, 60},
    {11.3, 98, Code},
    {11.3, 136, NameSir, 34},
    {13.3, 99, Address, 64},
    {16.3, 98, DueYear},
    {16.3, 108, DueMonth},
    {16.3, 118, DueDay},
};

constexpr pc::PaperForm form{.paper = {11.69, 8.27},
                             .rowsPerInch = 8,
                             .columnsPerInch = 15,
                             .fonts = fonts,
                             .items = places,
                             .copies = 2,
                             .copyRows = 28};

}  // namespace jiro_org_a4

}  // namespace

const pc::PaperForm& jiroOrgA4Form() {
  return jiro_org_a4::form;
}
