#include "giro/slip_layout.h"

// The general giro on an A4 sheet lying on its side, two slips: the customer's receipt up to column 46, the notice with
// the banks up to column 88, the bank's part behind it.
const pc::PaperForm& jiroOrgA4Form() {
  using namespace slip_layout;
  static constexpr PaperRow rows[] = {
      {2.0, {{24, IssueYear}, {32, IssueMonth}}},
      {3.2, {{18, UsePeriod}}},
      {4.4, {{31, AfterDueCharge}, {50, NameSir, 36}, {146, AmountToPay}}},
      {5.6, {{9, Total}, {31, AfterDueAmount}, {60, AmountToPay}, {146, AfterDueAmount}}},
      {6.8, {{6, DueYear}, {13, DueMonth}, {18, DueDay}, {60, DueYear}, {67, DueMonth}, {72, DueDay}}},
      {7.3, {{98, Bank, 28}, {136, Account, 30}}},
      {8.3, {{16, Reading}, {60, Code}}},
      {8.5, {{98, Holder, 60}}},
      {9.5, {{16, PrevReading}}},
      {10.7, {{16, Use}, {50, Bank, 14}, {66, Account, 20}}},
      {11.3, {{98, Code}, {136, NameSir, 34}}},
      {11.9, {{16, Amount}, {50, Holder, 36}}},
      {13.1, {{5, FeeLabel}, {16, Manage}}},
      {13.3, {{50, Bank2, 14}, {66, Account2, 20}, {98, Address, 64}}},
      {14.3, {{16, Arrears}}},
      {14.5, {{50, Holder2, 36}}},
      {15.5, {{16, Late}}},
      {15.9, {{50, Bank3, 14}, {66, Account3, 20}}},
      {16.3, {{98, DueYear}, {108, DueMonth}, {118, DueDay}}},
      {16.7, {{16, Total}}},
      {17.1, {{50, Holder3, 36}}},
      {18.7, {{6, Code}, {17, NameSir, 28}, {50, Company, 36}}},
      {20.0, {{6, Address, 40}, {50, PhoneLabel}, {62, Phone, 22}}},
  };
  static constexpr pc::PaperForm form = twoOnA4(rows);
  return form;
}
