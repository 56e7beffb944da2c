// What customers owe, and how old it is.
#include "store/data_access.h"
#include "store/session.h"
#include "trade/briefs/brief_parts.h"
#include "trade/briefs/trade_briefs.h"
#include "trade/credit_age.h"
#include "trade/line_kinds.h"

#include "briefs/brief_run.h"

namespace {

/** What was sold to one customer since the open file's year began. */
struct YearMoved {
  qint64 amount = 0, discount = 0, income = 0, collected = 0;  ///< won
};

QString firstDay(const Session& session) {
  return QString::number(openedYear(session)) + "-01-01";
}

bool readMoved(Session& session, CreditKind kind, QHash<qint64, YearMoved>& moved) {
  const bool gas = kind == CreditKind::Gas;
  const QString material = saleKindIs("SaleGubun", LineBalance::Material);
  const QString collection =
      saleKindIs("SaleGubun", gas ? LineBalance::Gas : LineBalance::Material, KindPart::Paid);
  const QString sql = "Select ClientCode, Sum(IIf(" + collection +
                      ", 0, Income + Trust)) As Amount, Sum(DC) As Discount, " + "Sum(IIf(" + collection +
                      ", 0, Income)) As Paid, Sum(IIf(" + collection + ", Income, 0)) As Collected " +
                      "From Sale Where SaleDate >= '" + plainText(firstDay(session)) + "' And " +
                      (gas ? "Not " + material : material);
  bool read = true;
  QStringList missing;
  walkBriefYears(session, openedYear(session), creditsLastYear, missing,
                 [&](const jet::Database& file, const LineDays& own) {
                   jet::Recordset rs;
                   read = OpenSnapshot(session.prompts, file, rs,
                                       sql + " And " + daysAre("SaleDate", own) + " Group By ClientCode");
                   for (; read && !rs.atEnd(); rs.MoveNext()) {
                     YearMoved& of = moved[rs[0].toLong()];
                     of.amount += rs[1].toLong();
                     of.discount += rs[2].toLong();
                     of.income += rs[3].toLong();
                     of.collected += rs[4].toLong();
                   }
                   return read;
                 });
  return read;
}

struct CreditColumns {
  size_t code, balance, before, amount, discount, income, collected, ages;
};

/** Fills in what moved and the ages. */
void completeCredit(Session& session, CreditKind kind, const CreditColumns& at, BriefRows& rows) {
  QHash<qint64, YearMoved> moved;
  QHash<qint64, std::vector<CreditDay>> days;
  rows.read = readMoved(session, kind, moved) && readCreditDays(session, kind, days);
  const QDate today = session.pc.clock.today();
  for (BriefCells& row : rows.rows) {
    const qint64 code = row[at.code].toLongLong(), balance = row[at.balance].toLongLong();
    const YearMoved of = moved.value(code);
    const auto put = [&row](size_t col, qint64 won) { row[col] = QString::number(won); };
    put(at.before, balance - (of.amount - of.income) + of.collected);
    put(at.amount, of.amount);
    put(at.income, of.income);
    put(at.collected, of.collected);
    if (at.discount) put(at.discount, of.discount);
    const CreditAges ages = ageCredit(balance, days.value(code), today);
    for (size_t age = 0; age < ages.size(); ++age) put(at.ages + age, ages[age]);
  }
}

/** The customer, the figures, how old what is owed is, and the hidden code. */
std::vector<BriefColumn> creditColumns(const std::vector<BriefColumn>& figures) {
  std::vector<BriefColumn> columns{clientColumn("Str01"), textColumn("전화번호", "Tel", {}, 14),
                                   textColumn("최근거래일", "LastDate", {}, 11)};
  columns.insert(columns.end(), figures.begin(), figures.end());
  for (const char* header : {"30일 이내", "60일", "90일", "90일 초과"}) {
    columns.push_back(wonColumn(header, {}, {}));
    columns.back().group = "미수 기간";
  }
  columns.push_back(hiddenColumn("Code"));
  return columns;
}

QString creditStatement(const QString& balance, const BriefAsk& ask) {
  static const QString kinds[] = {{}, " And VolumeYesNo = False", " And VolumeYesNo = True"};
  return "Select Code, Name, Tel, LastDate, GasInit, UtilInit, GasInit + UtilInit As Total, HouseStyle, "
         "BDName, Dong, Ho From Client Where " +
         plainPath(balance) + " <> 0 And Name Like '*" + plainText(ask.text("TxtName")) + "*'" +
         kinds[ask.place("OptGubun")] + " Order By Name, Code";
}

BriefChart creditChart(int column) {
  return {.kind = BriefChart::Kind::Bars,
          .title = "미수금이 많은 고객",
          .label = 1,
          .series = {column},
          .most = 12};
}

/** What the two forms differ in. */
struct CreditBook {
  QString form, caption;
  CreditKind kind;
  QString balance;  ///< the customer's column
  QString what, report;
  std::vector<BriefColumn> columns;
  CreditColumns at;
};

Brief creditBrief(const CreditBook& book) {
  return {
      .form = book.form,
      .caption = book.caption,
      .questions = {askName(), askSheet()},
      .pages = {
          {.key = "clients",
           .grid = "SpTrust",
           .columns = book.columns,
           .statement = [balance =
                             book.balance](const BriefAsk& ask) { return creditStatement(balance, ask); },
           .complete = [kind = book.kind, at = book.at](
                           Session& session, const BriefAsk&, const BriefTeller&,
                           BriefRows& rows) { completeCredit(session, kind, at, rows); },
           .emptyText = [what =
                             book.what](const BriefAsk&) { return what + " 미수금이 있는 고객이 없습니다!"; },
           .report = book.report,
           .formulas = [](const BriefAsk& ask,
                          const BriefRows&) { return QStringList{"판매구분= '(" + sheetName(ask) + ")'"}; },
           .chart = creditChart(int(book.at.balance) + 1),
           .behind =
               [](const BriefAsk&, const BriefCells& cells) {
                 return linesOfClient(cells.back().toLongLong(), {}, {});
               }}}};
}

}  // namespace

Brief trustBrief() {
  enum { Client, Tel, Last, Before, Amount, Discount, Income, Collected, Gas, Util, Total, Age };
  constexpr size_t code = Age + 4;
  return creditBrief(
      {.form = "frmTrustBrief",
       .caption = "미수금 현황",
       .kind = CreditKind::Gas,
       .balance = "GasInit",
       .what = "가스",
       .report = "가스미수금현황.rpt",
       .columns = creditColumns({wonColumn("이월미수", {}, "Lng01"), wonColumn("판매금액", {}, "Lng02"),
                                 wonColumn("D/C", {}, "Lng03"), wonColumn("입금액", {}, "Lng04"),
                                 wonColumn("수금액", {}, "Lng05"), wonColumn("가스미수", "GasInit", "Lng06"),
                                 wonColumn("자재미수", "UtilInit", "Lng07"),
                                 wonColumn("미수합계", "Total", "Lng08")}),
       .at = {code, Gas, Before, Amount, Discount, Income, Collected, Age}});
}

Brief utilTrustBrief() {
  enum { Client, Tel, Last, Before, Amount, Income, Collected, Util, Age };
  constexpr size_t code = Age + 4;
  return creditBrief(
      {.form = "frmUtilTrustBrief",
       .caption = "자재 미수 현황",
       .kind = CreditKind::Material,
       .balance = "UtilInit",
       .what = "자재",
       .report = "자재미수현황.rpt",
       .columns = creditColumns({wonColumn("이월미수", {}, "Lng01"), wonColumn("판매금액", {}, "Lng02"),
                                 wonColumn("입금액", {}, "Lng03"), wonColumn("수금액", {}, "Lng04"),
                                 wonColumn("자재미수", "UtilInit", "Lng05")}),
       .at = {code, Util, Before, Amount, 0, Income, Collected, Age}});
}
