#include "billing/reading_save.h"

#include "billing/reading_sheet.h"
#include "store/data_access.h"
#include "store/jet/sql.h"
#include "store/rounding.h"
#include "store/session.h"

namespace {

constexpr int lastMonth = 12;

jet::Sql saveStatement(const ReadingSheet& sheet, int row) {
  const auto cell = [&](int col) { return sheet.number(row, col); };
  const auto ticked = [&](int col) { return cell(col) != 0 ? -1 : 0; };
  jet::Sql sql;
  sql << u"Update Evaporation Set UseGage = " << cell(EvaCol::UseGage) << u", UseMuch = "
      << cell(EvaCol::UseMuch) << u", UsePay = " << cell(EvaCol::UsePay) << u", Trust = "
      << cell(EvaCol::Trust) << u", Delay = " << cell(EvaCol::Delay) << u", Manage = " << cell(EvaCol::Manage)
      << u", Total = " << cell(EvaCol::Total) << u", Pay = " << cell(EvaCol::Pay) << u", Prnt = "
      << ticked(EvaCol::Prnt) << u", paydelayed = " << ticked(EvaCol::PayDelayed) << u", PrntDay = '"
      << plainText(sheet.readingDay) << u"', TrustDay = '"
      << plainText(sheet.grid.text(row, EvaCol::TrustDay)) << u"' Where ClientCode = " << sheet.code(row);
  // Kept: the opening row fills the months before the calendar month, so that the first real month starts from it.
  if (sheet.isOpening())
    sql << u" And Mon < " << QStringView(sheet.today()).left(2);
  else
    sql << u" And Mon = " << sheet.month;
  return sql;
}

/** The next month's arrears: the whole total, or without this month's late charge unless the bill is nothing but
 *  this month's gas. */
double carriedArrears(const ReadingSheet& sheet, int row) {
  const double total = sheet.number(row, EvaCol::Total);
  if (sheet.session.AfterDueMethod == 0 || total == 0) return total;
  const double gasAlone = RoundByPayState(sheet.session, sheet.number(row, EvaCol::UsePay));
  return total == gasAlone ? total : total - sheet.number(row, EvaCol::Delay);
}

jet::Sql carryStatement(const ReadingSheet& sheet, int row) {
  const int next = sheet.isOpening() ? sheet.calendarMonth() : sheet.month + 1;
  jet::Sql sql;
  sql << u"Update Evaporation Set Trust = " << carriedArrears(sheet, row) << u" Where ClientCode = "
      << sheet.code(row) << u" And Mon = " << next;
  return sql;
}

}  // namespace

void SaveReadingRow(ReadingSheet& sheet, int row) {
  const jet::Sql save = saveStatement(sheet, row);
  const bool carries = sheet.month != lastMonth;
  const jet::Sql carry = carries ? carryStatement(sheet, row) : jet::Sql();
  const Session& session = sheet.session;
  session.wsMain.Together([&] {
    session.dbYear.Execute(save);
    if (carries) session.dbYear.Execute(carry);
  });
}
