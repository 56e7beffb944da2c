#include "giro/slip_layout.h"

// The general giro's continuous paper, one slip a page: receipt up to column 66, the bank's part behind it. Its letters
// differ in width, so figures end at the right edge of 13 places.
const pc::PaperForm& jiroOrgForm() {
  using namespace slip_layout;
  static constexpr pc::PaperFont gulim[] = {{u"굴림"}};
  static constexpr PaperRow rows[] = {
      {2, {{10, IssueYear}, {19, IssueMonth}, {30, UsePeriod}, {78, IssueYear}, {87, IssueMonth}}},
      {3.6, {{8, Code}, {20, NameSir, 42}, {76, Code}, {90, NameSir, 46}}},
      {4.9, {{8, Address, 54}, {76, Address, 60}}},
      {7, {at(14, Reading).right(13), at(46, AfterDueCharge).right(13)}},
      {8.3,
       {at(14, PrevReading).right(13), at(46, AfterDueAmount).right(13), at(110, AmountToPay).right(13)}},
      {9.6, {at(14, Use).right(13), at(110, AfterDueAmount).right(13)}},
      {10.9, {at(14, Amount).right(13)}},
      {11.6, {{82, DueYear}, {92, DueMonth}, {100, DueDay}}},
      {12.2, {at(14, Manage).right(13)}},
      {13.5, {at(14, Arrears).right(13)}},
      {13.6, {{76, Bank, 24}, {104, Account, 30}}},
      {14.8, {at(14, Late).right(13)}},
      {14.9, {{76, Holder, 60}}},
      {16.1, {at(14, Total).right(13), at(46, AmountToPay).right(13)}},
      {18, {{14, DueYear}, {24, DueMonth}, {32, DueDay}}},
      {20, {{8, Bank, 20}, {32, Account, 30}}},
      {21.3, {{8, Holder, 54}}},
  };
  static constexpr pc::PaperForm form = onePage({9.5, 4}, rows, gulim);
  return form;
}
