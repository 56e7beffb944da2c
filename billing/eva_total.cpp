#include "billing/eva_total.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "billing/household_questions.h"
#include "billing/reading_name.h"
#include "billing/reading_sheet.h"
#include "store/data_access.h"
#include "store/date_text.h"
#include "store/rounding.h"
#include "store/session.h"
#include "store/settings_table.h"
#include "store/vb.h"

using namespace Qt::StringLiterals;

namespace {

const QString totalManager = u"검침 관리자"_s;

/** What is asked for, read from the answers. */
struct EvaTotalAsk {
  HouseStyle book;
  bool byCollection;       ///< the days of collection count, not the months
  int fromMonth, toMonth;  ///< 1 to 12
  QString fromDay, toDay;  ///< "03/16"; '' is no day
  QString building;        ///< '' for all
  QString dong, ho;        ///< '' for any

  EvaTotalAsk(const Session& session, const BriefAsk& ask)
      : book(HouseStyle(ask.page)),
        byCollection(ask.on(u"chkSuKum"_s)),
        fromMonth(ask.from(u"CboMon"_s).toInt()),
        toMonth(ask.to(u"CboMon"_s).toInt()),
        fromDay(stored(session, ask.from(u"TxtDay"_s))),
        toDay(stored(session, ask.to(u"TxtDay"_s))),
        building(chosenBuilding(ask, u"CboGubun"_s)),
        dong(ask.text(u"txtDong"_s)),
        ho(ask.text(u"txtHo"_s)) {}

  static QString stored(const Session& session, const QString& typed) {
    return checkedMonthDay(typed, session.WorkYear, session.pc.clock).mid(5).replace(u'-', u'/');
  }
};

QString wonText(const QString& won) {
  return vb::Format(won.toDouble(), u"#,##0"_s);
}

QString bookCondition(const EvaTotalAsk& ask) {
  return "Where Client.HouseStyle = " + QString::number(int(ask.book)) + " And ";
}

QString buildingCondition(const EvaTotalAsk& ask) {
  return ask.building.isEmpty() ? QString() : " And Client.BDName = '" + plainText(ask.building) + "'";
}

/** Days as "MM/DD". The grid stores them so, the bank's file as "MM-DD": each is compared in its own shape. */
QString collectedBetween(const QString& from, const QString& to) {
  const auto inShape = [](QString first, QString last, const QString& mark) {
    first.replace(u'/', mark);
    last.replace(u'/', mark);
    return "(Evaporation.TrustDay Like '*" + plainText(mark) + "*' And " + "Evaporation.TrustDay >= '" +
           plainText(first) + "' " + "And Evaporation.TrustDay <= '" + plainText(last) + "' )";
  };
  return '(' + inShape(from, to, u"/"_s) + " Or " + inShape(from, to, u"-"_s) + ')';
}

qint64 fieldWon(const jet::Recordset& rs, const QString& field) {
  return rs[field].toLong();
}

QString periodText(const EvaTotalAsk& ask) {
  if (ask.byCollection) return ask.fromDay + u" ~ "_s + ask.toDay;
  const QString from = twoDigits(ask.fromMonth) + u'월', to = twoDigits(ask.toMonth) + u'월';
  return from == to ? from : from + u" ~ "_s + to;
}

QString periodWhere(const EvaTotalAsk& ask) {
  if (ask.byCollection) return collectedBetween(ask.fromDay, ask.toDay) + " AND Evaporation.Pay > 0 ";
  return "Evaporation.Mon >= " + QString::number(ask.fromMonth) + ' ' +
         "And Evaporation.Mon <= " + QString::number(ask.toMonth);
}

struct Line {
  qint64 client = 0;
  int month = 0;
  qint64 remain = 0;
};

struct Sums {
  qint64 prev = 0, income = 0, remain = 0;
};

/** A month's rest goes into the next month's arrears: only a customer's last month counts. */
qint64 stillOpen(const std::vector<Line>& lines) {
  qint64 open = 0;
  for (size_t from = 0, to = 0; from < lines.size(); from = to) {
    int last = 0;
    for (to = from; to < lines.size() && lines[to].client == lines[from].client; ++to)
      last = std::max(last, lines[to].month);
    for (size_t at = from; at < to; ++at)
      if (lines[at].month == last) open += lines[at].remain;
  }
  return open;
}

bool readLines(Session& session, const EvaTotalAsk& ask, BriefRows& into, Sums& sums) {
  QString sql =
      "SELECT Client.Name, Client.BDName, Client.Dong, Client.Ho, Evaporation.Mon, Evaporation.TrustDay, "
      "Sum(Evaporation.Trust) As Trust, "
      "Sum(Evaporation.UsePay) AS UsePay, Sum(Evaporation.Pay) AS Pay, "
      "Sum(Evaporation.Delay) As Delay, Sum(Evaporation.Manage) As Manage "
      ", Client.Code "
      "FROM Evaporation LEFT JOIN Client ON Evaporation.ClientCode = Client.Code " +
      bookCondition(ask) + periodWhere(ask);
  if (!ask.dong.isEmpty()) sql += " And Client.Dong ='" + plainText(ask.dong) + "'";
  if (!ask.ho.isEmpty()) sql += " And Client.Ho = '" + plainText(ask.ho) + "'";
  sql += buildingCondition(ask) +
         " GROUP BY Client.Name, Client.BDName, Client.Dong, Client.Ho, Client.Code, Evaporation.Mon, "
         "Evaporation.TrustDay "
         " ORDER BY Client.Code";
  jet::Recordset rs;
  if (!OpenSnapshot(session.prompts, session.dbYear, rs, sql)) return false;

  const std::optional<int> rule = companyPayState(session);
  std::vector<Line> lines;
  for (; !rs.atEnd(); rs.MoveNext()) {
    const auto text = [&rs](const QString& field) { return rs[field].toText(); };
    const auto won = [&rs](const QString& field) { return QString::number(fieldWon(rs, field)); };
    // The bill's own sum, so that a month's rest is the amount issued for it.
    const double open = rs[u"UsePay"_s].toDouble() + rs[u"Trust"_s].toDouble() +
                        std::nearbyint(rs[u"Delay"_s].toDouble()) + rs[u"Manage"_s].toDouble() -
                        rs[u"Pay"_s].toDouble();
    const qint64 remain = jet::Value(roundToTen(open, rule)).toLong();
    const int month = int(fieldWon(rs, u"Mon"_s));
    const QString name = readingName(ask.book, text(u"Name"_s), text(u"Dong"_s), text(u"Ho"_s));
    into.rows.push_back({name, text(u"BDName"_s), twoDigits(month), won(u"Trust"_s), won(u"UsePay"_s),
                         won(u"Delay"_s), won(u"Manage"_s), won(u"Pay"_s),
                         text(u"TrustDay"_s).replace(u'-', u'/'), QString::number(remain)});
    lines.push_back({fieldWon(rs, u"Code"_s), month, remain});
    sums.income += fieldWon(rs, u"Pay"_s);
  }
  sums.remain = stillOpen(lines);
  return true;
}

bool readPrev(Session& session, const EvaTotalAsk& ask, Sums& sums) {
  QString before = "Evaporation.Mon = " + QString::number(ask.fromMonth - 1);
  if (ask.byCollection) {
    const QString month = twoDigits(ask.fromDay.left(2).toInt() - 1);
    before = collectedBetween(month + "/01", month + "/31");
  }
  jet::Recordset rs;
  if (!OpenSnapshot(session.prompts, session.dbYear, rs,
                    "Select Evaporation.Total From Evaporation LEFT JOIN Client "
                    "ON Evaporation.ClientCode = Client.Code " +
                        bookCondition(ask) + before + buildingCondition(ask)))
    return false;
  for (; !rs.atEnd(); rs.MoveNext()) sums.prev += fieldWon(rs, u"Total"_s);
  return true;
}

void readEvaTotal(Session& session, const BriefAsk& asked, const BriefTeller&, BriefRows& into) {
  const EvaTotalAsk ask(session, asked);
  into.read = false;
  if (ask.byCollection && (ask.fromDay.isEmpty() || ask.toDay.isEmpty()))
    return session.prompts.MsgWarn(u"날짜입력이 잘못되었습니다!"_s, totalManager);
  Sums sums;
  if (!readLines(session, ask, into, sums) || !readPrev(session, ask, sums)) return;
  into.read = true;
  into.figures = {periodText(ask), QString::number(sums.prev), QString::number(sums.income),
                  QString::number(sums.remain)};
}

QStringList formulas(const BriefAsk& asked, const BriefRows& rows) {
  const QString all[] = {u"일반주택/식당"_s, u"아파트 전체"_s, u"다가구 전체"_s};
  const QString building = chosenBuilding(asked, u"CboGubun"_s);
  const QString what = building.isEmpty() ? all[asked.page] : building;
  const auto won = [&](int figure) { return wonText(rows.figures.value(figure)); };
  return {u"구분= '"_s + what + u'\'',
          u"기간= '"_s + rows.figures.value(0) + u'\'',
          u"기준= '"_s + (asked.on(u"chkSuKum"_s) ? u"수금일자"_s : u"검침월"_s) + u'\'',
          u"전월이월= '"_s + won(1) + u'\'',
          u"수금= '"_s + won(2) + u'\'',
          u"잔액= '"_s + won(3) + u'\''};
}

BriefPage bookPage(HouseStyle book) {
  using enum BriefLook;
  return {.key = QString::number(int(book) + 1),
          .tab = bookCaption(book),
          .grid = u"SpEvaTotal"_s,
          .columns = {{.header = u"고객명"_s, .width = 20, .staged = u"Str01"_s},
                      {.header = u"건물"_s,
                       .width = 16,
                       .staged = u"Str02"_s,
                       .hidden = book == HouseStyle::Individual},
                      {.header = u"월"_s, .width = 6, .look = Centre, .staged = u"Str03"_s},
                      {.header = u"미수금"_s, .look = Money, .staged = u"Lng01"_s},
                      {.header = u"사용금액"_s, .look = Money, .staged = u"Lng02"_s, .sum = true},
                      {.header = u"연체료"_s, .look = Money, .staged = u"Lng03"_s, .sum = true},
                      {.header = u"안전관리비"_s, .look = Money, .staged = u"Lng04"_s, .sum = true},
                      {.header = u"수금액"_s, .look = Money, .staged = u"Lng05"_s, .sum = true},
                      {.header = u"수금일"_s, .width = 8, .look = Centre, .staged = u"Str04"_s},
                      {.header = u"잔액"_s, .look = Money, .staged = u"Lng06"_s}},
          .complete = readEvaTotal,
          .emptyText =
              [](const BriefAsk& ask) {
                return ask.on(u"chkSuKum"_s) ? u"기간내의 수금자료가 없습니다!"_s
                                             : u"기간내의 검침자료가 없습니다!"_s;
              },
          .emptyTitle = totalManager,
          .report = u"체적검침조회.rpt"_s,
          .formulas = formulas,
          .panels = {{u"PnlPeriod"_s, u"기간"_s, 15, false},
                     {u"PnlPrev"_s, u"전월이월"_s},
                     {u"PnlIncome"_s, u"수금"_s},
                     {u"PnlRemain"_s, u"잔액"_s}}};
}

}  // namespace

Brief evaTotalBrief() {
  return {.form = u"frmEvaTotal"_s,
          .caption = u"검침현황 조회"_s,
          .tabs = u"TabEvaTotal"_s,
          .questions = {{.kind = AskKind::Choice,
                         .name = u"CboGubun"_s,
                         .label = u"건물구분"_s,
                         .help = u"조회할 건물을 선택합니다"_s,
                         .entries = buildingsOf,
                         .pages = {1, 2}},
                        askDong({1, 2}, true),
                        askHo({1, 2}, true),
                        {.kind = AskKind::MonthPeriod,
                         .name = u"CboMon"_s,
                         .label = u"조회기간"_s,
                         .help = u"조회할 검침월을 선택합니다"_s,
                         .when = u"!chkSuKum"_s},
                        {.kind = AskKind::MonthDayPeriod,
                         .name = u"TxtDay"_s,
                         .label = u"조회기간"_s,
                         .help = u"조회할 수금일자를 월일로 입력합니다"_s,
                         .when = u"chkSuKum"_s},
                        {.kind = AskKind::Check,
                         .name = u"chkSuKum"_s,
                         .label = u"수금일자 기준 검색"_s,
                         .help = u"선택하면 검침월이 아닌 수금일자로 조회합니다"_s,
                         .remembered = &setting::CollectionsShown}},
          .pages = {bookPage(HouseStyle::Individual), bookPage(HouseStyle::Apartment),
                    bookPage(HouseStyle::MultiHousehold)},
          .opensOn = [](const Session& session) { return pageOfBook(session.CheckKind); }};
}
