#include "papers/month_range.h"

std::vector<MonthPart> monthsOf(const QDate& from, const QDate& to) {
  std::vector<MonthPart> parts;
  if (!from.isValid() || !to.isValid()) return parts;
  for (QDate first = from; first <= to;) {
    const QDate next = QDate(first.year(), first.month(), 1).addMonths(1);
    parts.push_back({first.toString(Qt::ISODate), std::min(to, next.addDays(-1)).toString(Qt::ISODate)});
    first = next;
  }
  return parts;
}
