#include "giro/slip_layout.h"

// The clearing house's A4 sheet, standing, one slip: the bill above, the slip in the lower third with the receipt up to
// column 54 and the bank's part behind it; the line of the bank's machine below row 87 stays free.
const pc::PaperForm& micrA4Form() {
  using namespace slip_layout;
  static constexpr PaperRow rows[] = {
      {10, {{16, MonthTitle}, {60, UsePeriod}}},
      {13, {{16, Code}, {30, Name, 60}}},
      {15, {{16, Address, 90}}},
      {19, {{44, PrevReading}}},
      {21, {{44, Reading}}},
      {23, {{44, Use}}},
      {25, {{44, Amount}}},
      {27, {{44, Manage}}},
      {29, {{44, Arrears}}},
      {31, {{44, Late}}},
      {33, {{44, Total}}},
      {35, {{44, AfterDueCharge}}},
      {37, {{44, AfterDueAmount}}},
      {41, {{16, DueDate}}},
      {43, {{16, Bank, 40}, {66, Account, 40}}},
      {45, {{16, Holder, 80}}},
      {64, {{8, MonthTitle}, {64, MonthTitle}}},
      {65.5, {{8, Code}, {18, Name, 36}, {64, Code}, {74, Name, 44}}},
      {67, {{8, Address, 46}, {64, Address, 54}}},
      {70, {{26, AmountToPay}, {96, AmountToPay}}},
      {72, {{26, AfterDueAmount}, {96, AfterDueAmount}}},
      {75, {{8, DueDate}, {64, DueDate}}},
      {77, {{8, Bank, 46}, {64, Bank, 54}}},
      {78.5, {{8, Account, 46}, {64, Account, 54}}},
      {80, {{8, Holder, 46}, {64, Holder, 54}}},
  };
  static constexpr pc::PaperForm form = onePage({8.27, 11.69}, rows);
  return form;
}
