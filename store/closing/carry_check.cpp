#include "store/closing/carry_check.h"

#include <QMap>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QMap<qint64, CarriedBill>& read(QMap<qint64, CarriedBill>& bills, const jet::Database& book,
                                const QString& column, int month, std::optional<double> CarriedBill::*place) {
  const jet::Recordset rows = book.OpenRecordset(
      u"Select Evaporation.ClientCode, Client.Name, Evaporation."_s + column +
      u" From Evaporation Left Join Client On Evaporation.ClientCode = Client.Code Where Evaporation.Mon = "_s +
      QString::number(month));
  for (jet::Recordset row = rows; !row.atEnd(); row.MoveNext()) {
    CarriedBill& bill = bills[row[0].toLong()];
    bill.code = row[0].toLong();
    bill.name = row[1].toText();
    bill.*place = row[2].toDouble();
  }
  return bills;
}

/** A statement carries 15 digits of a fraction. */
bool isSameWon(double one, double other) {
  constexpr double slack = 0.001;
  return std::abs(one - other) < slack;
}

}  // namespace

CarryCheck checkCarry(const jet::Database& year, const jet::Database& next) {
  QMap<qint64, CarriedBill> bills;
  read(bills, year, u"Total"_s, 12, &CarriedBill::december);
  read(bills, next, u"Trust"_s, 1, &CarriedBill::january);
  CarryCheck check;
  for (const CarriedBill& bill : bills) {
    check.customers += bill.december.has_value();
    const bool carried = bill.january && isSameWon(*bill.january, bill.december.value_or(0));
    if (!carried) check.differing.push_back(bill);
  }
  return check;
}
