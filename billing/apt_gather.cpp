#include "billing/apt_gather.h"

#include <QHash>
#include <QMap>

#include "billing/apt_arrears.h"
#include "billing/building_rate.h"
#include "billing/late_charge.h"
#include "store/data_access.h"
#include "store/rate_book.h"
#include "store/rounding.h"
#include "store/session.h"
#include "store/vb.h"
#include "store/year_file.h"

using namespace Qt::StringLiterals;

namespace {

/** A row of the meter book with its household. */
struct AptRow : AptMonth {
  QString building, dong, ho;
  double reading = 0, use = 0;  ///< cubic metres
};

/** Gas money and the late-paid tick of every month of a year, by customer and month. */
struct GasOfYear {
  struct Month {
    double usePay = 0;
    bool paidLate = false;
  };
  bool read = false;
  QHash<std::pair<qint64, int>, Month> months;
};

class Gathering {
 public:
  Gathering(Session& session, const AptAsk& ask, const jet::Database& scratch)
      : session_(session), ask_(ask), scratch_(scratch), year_(openedYear(session)) {}

  bool run(QString& note);

 private:
  bool readRows(const jet::Database& book, int year, int month, bool openings);
  const GasOfYear& gasOf(int year);
  std::optional<double> lateCharge(qint64 code, const AptRow& row, double rate);
  void write(qint64 code, const std::vector<AptRow>& rows, const LateRates& rates, const AptRules& rules);

  Session& session_;
  const AptAsk& ask_;
  const jet::Database& scratch_;
  const int year_;                                ///< of the open file
  QMap<qint64, std::vector<AptRow>> households_;  ///< by customer, newest first
  QHash<int, GasOfYear> gas_;
};

bool Gathering::readRows(const jet::Database& book, int year, int month, bool openings) {
  QString sql =
      u"Select Client.code, BDName, dong, ho, Mon, UseGage, UseMuch, UsePay, Manage, Total, trust,pay, delay"_s +
      u" From evaporation Left join ["_s + plainPath(session_.dbBasic.path()) +
      u"].Client on evaporation.clientcode = client.code"_s + u" Where HouseStyle = 1"_s +
      u" and (UseMuch <> 0 OR Mon = "_s + QString::number(month) + u")"_s + u" and mon <= "_s +
      QString::number(month);
  if (!openings) sql += u" and mon <> 0"_s;
  if (!ask_.building.isEmpty()) sql += u" and bdname = '"_s + plainText(ask_.building) + u"'"_s;
  if (!ask_.dong.isEmpty()) sql += u" and dong = '"_s + plainText(ask_.dong) + u"'"_s;
  if (!ask_.ho.isEmpty()) sql += u" and ho = '"_s + plainText(ask_.ho) + u"'"_s;
  sql += u" ORDER BY code, mon desc"_s;
  jet::Recordset rs;
  if (!OpenSnapshot(session_.prompts, book, rs, sql)) return false;
  for (; !rs.atEnd(); rs.MoveNext()) {
    AptRow row;
    row.year = year;
    row.month = int(rs[u"Mon"_s].toLong());
    row.building = rs[u"BDName"_s].toText();
    row.dong = rs[u"dong"_s].toText();
    row.ho = rs[u"ho"_s].toText();
    row.reading = rs[u"UseGage"_s].toDouble();
    row.use = rs[u"UseMuch"_s].toDouble();
    row.usePay = rs[u"UsePay"_s].toDouble();
    row.manage = rs[u"Manage"_s].toDouble();
    row.total = rs[u"Total"_s].toDouble();
    row.trust = rs[u"trust"_s].toDouble();
    row.pay = rs[u"pay"_s].toDouble();
    row.delay = rs[u"delay"_s].toDouble();
    households_[rs[0].toLong()].push_back(row);
  }
  return true;
}

const GasOfYear& Gathering::gasOf(int year) {
  const auto known = gas_.constFind(year);
  if (known != gas_.constEnd()) return *known;
  GasOfYear& gas = gas_[year];
  const jet::Database book = year == year_ ? session_.dbYear : openYear(session_, year);
  jet::Recordset rs;
  if (!book.isOpen() || !OpenSnapshot(session_.prompts, book, rs,
                                      u"Select ClientCode, Mon, UsePay, paydelayed From Evaporation"_s))
    return gas;
  gas.read = true;
  for (; !rs.atEnd(); rs.MoveNext())
    gas.months[{rs[0].toLong(), int(rs[1].toLong())}] = {rs[2].toDouble(), rs[3].toBool()};
  return gas;
}

/** Nothing where the year before is needed and not there: the bill, too, keeps its late charge then. */
std::optional<double> Gathering::lateCharge(qint64 code, const AptRow& row, double rate) {
  if (row.month == 0) return 0;
  const auto gasIn = [&](int year, int month) {
    return [this, code, year, month](double otherwise) -> std::optional<double> {
      const GasOfYear& gas = gasOf(year);
      if (!gas.read) return {};
      const auto found = gas.months.constFind({code, month});
      return found == gas.months.constEnd() ? otherwise : found->usePay;
    };
  };
  const bool oneMonthOnly = session_.DelayCalcFlag == u"1"_s;
  const bool paidLate = !oneMonthOnly && gasOf(row.year).months.value({code, row.month - 1}).paidLate;
  const std::optional<double> base = lateChargeBase(
      row.trust, row.month, oneMonthOnly, paidLate,
      {.lastDecember = gasIn(row.year - 1, 12), .monthBefore = gasIn(row.year, row.month - 1)});
  if (!base) return {};
  return rate * *base / 100;
}

QString number(double value) {
  return plainNumber(jet::Value(value).toText());
}

QString quoted(const QString& text, int width) {
  return u'\'' + copiedText(text.left(width)) + u'\'';
}

void Gathering::write(qint64 code, const std::vector<AptRow>& rows, const LateRates& rates,
                      const AptRules& rules) {
  const AptSpread spread = spreadPayments({rows.begin(), rows.end()}, rules);
  for (size_t at = 0; at < rows.size(); ++at) {
    const AptRow& row = rows[at];
    const AptOpen& open = spread.months[at];
    const std::optional<double> due = lateCharge(code, row, rates.of(code));
    const double late = due ? roundToTen(*due, rules.payState) : row.delay;
    QStringList notes;
    double balance = open.open;
    if (at + 1 == rows.size() && spread.older > 0) {
      balance += spread.older;
      notes << u"이전 미수 "_s + vb::Format(spread.older, u"#,##0"_s) + u" 포함"_s;
    }
    if (balance < 0) notes << u"과납"_s;
    if (late != row.delay && row.month != 0) notes << u"청구된 연체료 "_s + vb::Format(row.delay, u"#,##0"_s);
    scratch_.Execute(
        u"INSERT INTO AptBaln(ccode, bdname, dong, ho, dealdate, use, PreMuch, UseMuch, fee, manage, total, delay, baln, bigo)"_s +
        u" VALUES ("_s + QString::number(code) + u", "_s + quoted(row.building, 20) + u", "_s +
        quoted(row.dong, 10) + u", "_s + quoted(row.ho, 4) + u", '"_s +
        u"%1-%2"_s.arg(row.year, 4, 10, QChar(u'0')).arg(row.month, 2, 10, QChar(u'0')) + u"', "_s +
        QStringList{number(row.reading), number(vb::CCur(row.reading - row.use)), number(row.use),
                    number(row.usePay), number(row.manage), number(open.billed), number(late),
                    number(balance)}
            .join(u", "_s) +
        u", "_s + quoted(notes.join(u", "_s), 50) + u")"_s);
  }
}

bool Gathering::run(QString& note) {
  if (!readRateBook(session_)) return false;
  const jet::Database before = ask_.lastYear ? openYear(session_, year_ - 1) : jet::Database();
  if (ask_.lastYear && !before.isOpen()) note = u"작년 파일을 읽을 수 없어 올해만 조회했습니다"_s;
  // An opening row holds what the year before left: beside that year's own rows it would stand twice.
  if (!readRows(session_.dbYear, year_, ask_.month, ask_.openings && !before.isOpen())) return false;
  if (before.isOpen() && !readRows(before, year_ - 1, 12, ask_.openings)) return false;
  const LateRates rates(session_, HouseStyle::Apartment, true);
  const AptRules rules{session_.AfterDueMethod, companyPayState(session_)};
  session_.wsMain.Together({scratch_}, [&] {
    scratch_.Execute(u"DELETE * FROM AptBaln"_s);
    for (auto at = households_.constBegin(); at != households_.constEnd(); ++at)
      write(at.key(), at.value(), rates, rules);
  });
  return true;
}

}  // namespace

bool gatherAptBaln(Session& session, const AptAsk& ask, const jet::Database& scratch, QString& note) {
  return Gathering(session, ask, scratch).run(note);
}
