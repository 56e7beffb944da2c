#include "trade/credit_age.h"

#include <algorithm>

#include "briefs/brief_run.h"
#include "store/data_access.h"
#include "store/session.h"
#include "trade/line_kinds.h"

namespace {

constexpr int ageStep = 30, oldestStep = 90;  ///< days

size_t ageClass(const QDate& day, const QDate& today) {
  const qint64 days = day.daysTo(today);
  return days <= ageStep ? 0 : days <= 2 * ageStep ? 1 : days <= oldestStep ? 2 : 3;
}

}  // namespace

CreditAges ageCredit(qint64 balance, const std::vector<CreditDay>& days, const QDate& today) {
  CreditAges ages{};
  for (auto day = days.rbegin(); day != days.rend() && balance > 0; ++day) {
    const qint64 owed = std::min(balance, std::max<qint64>(day->trust, 0));
    ages[ageClass(day->day, today)] += owed;
    balance -= owed;
  }
  if (balance > 0) ages.back() += balance;
  return ages;
}

bool readCreditDays(Session& session, CreditKind kind, QHash<qint64, std::vector<CreditDay>>& days) {
  const QDate today = session.pc.clock.today(), first = today.addDays(-oldestStep);
  const QString lines =
      "Select ClientCode, SaleDate, Sum(Trust) As Trust From Sale Where SaleDate >= '" +
      plainText(first.toString("yyyy-MM-dd")) + "' " + "And Trust > 0 And " +
      (kind == CreditKind::Material ? saleKindIs("SaleGubun", LineBalance::Material, KindPart::Sold)
                                    : saleIsGasGoods("SaleGubun"));
  bool read = true;
  QStringList missing;
  walkBriefYears(
      session, first.year(), creditsLastYear, missing, [&](const jet::Database& file, const LineDays& own) {
        jet::Recordset rs;
        read = OpenSnapshot(session.prompts, file, rs,
                            lines + " And " + daysAre("SaleDate", own) +
                                " Group By ClientCode, SaleDate Order By ClientCode, SaleDate");
        for (; read && !rs.atEnd(); rs.MoveNext())
          days[rs[0].toLong()].push_back({QDate::fromString(rs[1].toText(), "yyyy-MM-dd"), rs[2].toLong()});
        return read;
      });
  return read;
}
