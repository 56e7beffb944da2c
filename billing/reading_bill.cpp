#include "billing/reading_bill.h"

#include <cmath>
#include <optional>

#include "billing/building_rate.h"
#include "billing/late_charge.h"
#include "billing/reading_sheet.h"
#include "store/data_access.h"
#include "store/jet/sql.h"
#include "store/rounding.h"
#include "store/session.h"
#include "store/vb.h"
#include "store/year_file.h"

using namespace Qt::StringLiterals;

namespace {

/** The month before was paid after its due date without the late charge. */
bool wasPaidLate(const ReadingSheet& sheet, int row) {
  Session& session = sheet.session;
  return DAO_GetValue(
             session.prompts, session.dbYear, u"paydelayed", u"evaporation",
             jet::Sql() << u"where clientcode = " << sheet.code(row) << u" and mon = " << sheet.month - 1)
      .toBool();
}

/** The gas money of a month; otherwise when there is no such row, nothing when the statement failed. */
std::optional<double> usePayOf(Session& session, const jet::Database& year, const QString& code, int month,
                               double otherwise) {
  jet::Recordset rs;
  if (!OpenSnapshot(session.prompts, year, rs,
                    jet::Sql() << u"Select UsePay from Evaporation where ClientCode = " << code
                               << u" AND Mon = " << month))
    return {};
  return rs.atEnd() ? otherwise : rs[0].toDouble();
}

std::optional<double> baseOf(const ReadingSheet& sheet, int row) {
  Session& session = sheet.session;
  const bool oneMonthOnly = session.DelayCalcFlag == "1"_L1;
  const PastGas past{.lastDecember = [&](double otherwise) -> std::optional<double> {
                       const jet::Database december = openYear(session, session.pc.clock.today().year() - 1);
                       if (!december.isOpen()) return {};
                       return usePayOf(session, december, sheet.code(row), 12, otherwise);
                     },
                     .monthBefore =
                         [&](double otherwise) {
                           return usePayOf(session, session.dbYear, sheet.code(row), sheet.month - 1,
                                           otherwise);
                         }};
  return lateChargeBase(sheet.number(row, EvaCol::Trust), sheet.month, oneMonthOnly,
                        !oneMonthOnly && wasPaidLate(sheet, row), past);
}

void moveTotal(ReadingSheet& sheet, int row, double by) {
  sheet.setNumber(row, EvaCol::Total, sheet.number(row, EvaCol::Total) + by);
}

}  // namespace

double meterDifference(double now, double before) {
  return vb::CCur(now - before);
}

void CalcReadingRow(ReadingSheet& sheet, int row) {
  Session& session = sheet.session;
  // A meter that ran backward gives a negative use and amount; nothing refuses them.
  const double use =
      meterDifference(sheet.number(row, EvaCol::UseGage), sheet.number(row, EvaCol::PrevUseGage));
  sheet.setNumber(row, EvaCol::UseMuch, use);
  sheet.setNumber(row, EvaCol::UsePay, sheet.number(row, EvaCol::VolumeUnit) * use);

  const std::optional<double> base = baseOf(sheet, row);
  if (!base) return;
  const double rate = lateRate(session, sheet.book, sheet.code(row).toLongLong());
  sheet.setNumber(row, EvaCol::Delay, RoundByPayState(session, rate * *base / 100));

  sheet.setNumber(row, EvaCol::Manage, session.rates.of(sheet.book).security);

  if (!sheet.grid.text(row, EvaCol::TrustDay).trimmed().isEmpty() &&
      session.prompts.MsgAsk("수금일자를 수정 하시겠습니까?"))
    sheet.grid.setText(row, EvaCol::TrustDay, sheet.readingDay);

  CalcRowTotal(sheet, row);
}

void CalcRowTotal(ReadingSheet& sheet, int row) {
  const double late = std::nearbyint(sheet.number(row, EvaCol::Delay));  // a half to the even won
  sheet.setNumber(
      row, EvaCol::Total,
      RoundByPayState(sheet.session, sheet.number(row, EvaCol::UsePay) + sheet.number(row, EvaCol::Trust) +
                                         late + sheet.number(row, EvaCol::Manage) -
                                         sheet.number(row, EvaCol::Pay)));
}

void ApplyPayEdit(ReadingSheet& sheet, double before, int row) {
  moveTotal(sheet, row, before - sheet.number(row, EvaCol::Pay));
}

void ApplyDelayEdit(ReadingSheet& sheet, double before, int row) {
  moveTotal(sheet, row, sheet.number(row, EvaCol::Delay) - before);
}

void ApplyManageEdit(ReadingSheet& sheet, double before, int row) {
  moveTotal(sheet, row, sheet.number(row, EvaCol::Manage) - before);
}
