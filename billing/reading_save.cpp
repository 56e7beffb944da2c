#include "billing/reading_save.h"

#include "billing/reading_sheet.h"
#include "store/rounding.h"
#include "store/session.h"
#include "store/vb.h"

namespace {

constexpr int lastMonth = 12;

QString markOf(bool on) {
  return on ? QStringLiteral("-1") : QStringLiteral("0");
}

QString saveStatement(const ReadingSheet& sheet, int row) {
  const auto cell = [&](int col) { return vb::CStr(sheet.number(row, col)); };
  const auto ticked = [&](int col) { return markOf(sheet.number(row, col) != 0); };
  // Kept: the opening row fills the months before the calendar month, so that the first real month starts from it.
  const QString months = sheet.isOpening() ? " And Mon < " + sheet.today().left(2)
                                           : " And Mon = " + QString::number(sheet.month);
  return "Update Evaporation Set UseGage = " + cell(EvaCol::UseGage) +
         ", UseMuch = " + cell(EvaCol::UseMuch) + ", UsePay = " + cell(EvaCol::UsePay) +
         ", Trust = " + cell(EvaCol::Trust) + ", Delay = " + cell(EvaCol::Delay) +
         ", Manage = " + cell(EvaCol::Manage) + ", Total = " + cell(EvaCol::Total) +
         ", Pay = " + cell(EvaCol::Pay) + ", Prnt = " + ticked(EvaCol::Prnt) +
         ", paydelayed = " + ticked(EvaCol::PayDelayed) + ", PrntDay = '" + sheet.readingDay +
         "', TrustDay = '" + sheet.grid.text(row, EvaCol::TrustDay) +
         "' Where ClientCode = " + sheet.code(row) + months;
}

/** The next month's arrears: the whole total, or without this month's late charge unless the bill is nothing but
 *  this month's gas. */
double carriedArrears(const ReadingSheet& sheet, int row) {
  const double total = sheet.number(row, EvaCol::Total);
  if (sheet.session.AfterDueMethod == 0 || total == 0) return total;
  const double gasAlone = RoundByPayState(sheet.session, sheet.number(row, EvaCol::UsePay));
  return total == gasAlone ? total : total - sheet.number(row, EvaCol::Delay);
}

QString carryStatement(const ReadingSheet& sheet, int row) {
  const int next = sheet.isOpening() ? sheet.calendarMonth() : sheet.month + 1;
  return "Update Evaporation Set Trust = " + vb::CStr(carriedArrears(sheet, row)) +
         " Where ClientCode = " + sheet.code(row) + " And Mon = " + QString::number(next);
}

}  // namespace

void SaveReadingRow(ReadingSheet& sheet, int row) {
  const QString save = saveStatement(sheet, row);
  const QString carry = sheet.month == lastMonth ? QString() : carryStatement(sheet, row);
  const Session& session = sheet.session;
  session.wsMain.Together([&] {
    session.dbYear.Execute(save);
    if (!carry.isEmpty()) session.dbYear.Execute(carry);
  });
}
