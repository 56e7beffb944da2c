#include "giro/slip_layout.h"

// The plain paper, one slip a page: the customer's receipt up to column 58, the notice up to column 112, the bank's part
// behind it.
const pc::PaperForm& jiroForm() {
  using namespace slip_layout;
  static constexpr PaperRow rows[] = {
      {1.8, {{30, MonthTitle}}},
      {3.0, {{22, UsePeriod}, {66, MonthTitle}, {126, MonthTitle}, {174, AmountToPay}}},
      {4.2, {{34, AfterDueCharge}, {174, AfterDueAmount}}},
      {5.4, {{9, Total}, {34, AfterDueAmount}, {76, AmountToPay}, {126, Bank, 42}}},
      {6.6, {{6, DueYear}, {13, DueMonth}, {18, DueDay}, {76, DueYear}, {83, DueMonth}, {88, DueDay}}},
      {6.6, {{126, Account, 42}}},
      {7.8, {{126, Holder, 42}}},
      {8.1, {{10, Reading}, {28, Bank, 28}, {76, Code}}},
      {9.3, {{10, PrevReading}, {28, Account, 28}, {66, Name, 42}}},
      {10.5, {{10, Use}, {28, Holder, 28}}},
      {11.1, {{126, Code}, {164, Name, 38}}},
      {11.7, {{10, Amount}, {66, Bank, 42}}},
      {12.9, {{10, Manage}, {66, Account, 42}}},
      {13.1, {{126, Address, 72}}},
      {14.1, {{10, Arrears}, {66, Holder, 42}}},
      {15.3, {{10, Late}}},
      {16.1, {{126, DueYear}, {136, DueMonth}, {146, DueDay}}},
      {16.5, {{10, Total}}},
      {18.5, {{6, Code}, {17, Name, 38}}},
      {19.8, {{6, Address, 50}}},
  };
  static constexpr pc::PaperForm form = onePage({14, 3.5}, rows);
  return form;
}

// The MICR paper: receipt up to column 66, the bank's part behind it; the line of the bank's machine below row 20 stays
// free.
const pc::PaperForm& jiroMicrForm() {
  using namespace slip_layout;
  static constexpr PaperRow rows[] = {
      {1.6, {{8, MonthTitle}, {24, UsePeriod}, {76, MonthTitle}, {92, UsePeriod}}},
      {2.8, {{24, DueDate}, {92, DueDate}}},
      {4.3, {{8, Code}, {20, Name, 42}, {76, Code}, {90, Name, 46}}},
      {5.5, {{8, Address, 54}, {76, Address, 60}}},
      {7.3, {{12, PrevReading}, {44, Amount}, {108, AmountToPay}}},
      {8.5, {{12, Reading}, {44, Manage}, {108, AfterDueAmount}}},
      {9.7, {{12, Use}, {44, Arrears}}},
      {10.9, {{44, Late}, {76, Bank, 28}, {108, Account, 28}}},
      {12.1, {{76, Holder, 60}}},
      {12.7, {{12, Total}, {44, AmountToPay}}},
      {13.9, {{12, AfterDueCharge}, {44, AfterDueAmount}}},
      {15.9, {{8, Bank, 28}, {40, Account, 24}}},
      {17.1, {{8, Holder, 54}}},
  };
  static constexpr pc::PaperForm form = onePage({9.5, 3.5}, rows);
  return form;
}
