#include "billing/eva_total.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "billing/reading_name.h"
#include "pc/reports.h"
#include "store/data_access.h"
#include "store/date_text.h"
#include "store/report_staging.h"
#include "store/rounding.h"
#include "store/session.h"
#include "store/vb.h"

using namespace Qt::StringLiterals;

namespace {

const QString totalManager = u"검침 관리자"_s;
const QString everyBuilding = u"전체"_s;

SpreadColumn totalText(const QString& header, double width, CellAlign align = CellAlign::Left) {
  return {.header = header, .width = width, .align = align, .locked = true};
}

SpreadColumn totalWon(const QString& header) {
  return {.header = header, .width = 12, .kind = CellKind::Money, .align = CellAlign::Right, .locked = true};
}

QString twoDigitMonth(int month) {
  return QString::number(month).rightJustified(2, u'0');
}

QString wonText(qint64 won) {
  return vb::Format(double(won), u"#,##0"_s);
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

}  // namespace

EvaTotal::EvaTotal(Session& session) : session_(session) {
  grid_.setColumns({totalText(u"고객명"_s, 20), totalText(u"건물"_s, 16),
                    totalText(u"월"_s, 6, CellAlign::Center), totalWon(u"미수금"_s), totalWon(u"사용금액"_s),
                    totalWon(u"연체료"_s), totalWon(u"안전관리비"_s), totalWon(u"수금액"_s),
                    totalText(u"수금일"_s, 8, CellAlign::Center), totalWon(u"잔액"_s)});
}

QStringList EvaTotal::buildings(MeterBook book) const {
  if (book == MeterBook::Individual) return {};
  QStringList entries{everyBuilding};
  jet::Recordset rs;
  if (!OpenSnapshot(session_.prompts, session_.dbYear, rs,
                    "Select Distinct BDName From Client Where VolumeYesNo = True And HouseStyle = " +
                        QString::number(int(book))))
    return entries;
  for (; !rs.atEnd(); rs.MoveNext())
    if (const QString name = rs[u"BDName"_s].toText(); !name.isEmpty()) entries << name;
  return entries;
}

bool EvaTotal::byCollection() const {
  return session_.pc.settings.GetSetting(u"해온판매"_s, u"Config"_s, u"수금액조회"_s, u"0"_s) == "1"_L1;
}

void EvaTotal::rememberByCollection(bool on) {
  session_.pc.settings.SaveSetting(u"해온판매"_s, u"Config"_s, u"수금액조회"_s, on ? u"1"_s : u"0"_s);
}

void EvaTotal::clear() {
  grid_.clear();
  period_.clear();
  lines_ = 0;
  prev_ = income_ = remain_ = 0;
}

bool EvaTotal::refresh(const EvaTotalAsk& ask) {
  clear();
  shown_ = ask;
  if (!readPeriod(ask) || !readLines(ask)) return false;
  if (lines_ == 0) {
    session_.prompts.MsgInfo(
        ask.byCollection ? u"기간내의 수금자료가 없습니다!"_s : u"기간내의 검침자료가 없습니다!"_s,
        totalManager);
    return false;
  }
  if (!readPrev(ask)) return false;
  InsertSubTotal(grid_, lines_ + 1, SubTotal::Whole, TotalCol::Name,
                 {TotalCol::UsePay, TotalCol::Delay, TotalCol::Manage, TotalCol::Pay});
  return true;
}

bool EvaTotal::readPeriod(const EvaTotalAsk& ask) {
  if (!ask.byCollection) {
    const QString from = twoDigitMonth(ask.fromMonth) + u'월', to = twoDigitMonth(ask.toMonth) + u'월';
    period_ = from == to ? from : from + u" ~ "_s + to;
    return true;
  }
  const auto stored = [&](const QString& typed) {
    return checkedMonthDay(typed, session_.WorkYear, session_.pc.clock).mid(5).replace(u'-', u'/');
  };
  fromDay_ = stored(ask.fromDay);
  toDay_ = stored(ask.toDay);
  if (fromDay_.isEmpty() || toDay_.isEmpty()) {
    session_.prompts.MsgWarn(u"날짜입력이 잘못되었습니다!"_s, totalManager);
    return false;
  }
  period_ = fromDay_ + u" ~ "_s + toDay_;
  return true;
}

QString EvaTotal::periodWhere(const EvaTotalAsk& ask) const {
  if (ask.byCollection) return collectedBetween(fromDay_, toDay_) + " AND Evaporation.Pay > 0 ";
  return "Evaporation.Mon >= " + QString::number(ask.fromMonth) + ' ' +
         "And Evaporation.Mon <= " + QString::number(ask.toMonth);
}

bool EvaTotal::readLines(const EvaTotalAsk& ask) {
  QString sql =
      "SELECT Client.Name, Client.BDName, Client.Dong, Client.Ho, Evaporation.Mon, Evaporation.TrustDay, "
      "Sum(Evaporation.Trust) As Trust, "
      "Sum(Evaporation.UsePay) AS UsePay, Sum(Evaporation.Pay) AS Pay, "
      "Sum(Evaporation.Delay) As Delay, Sum(Evaporation.Manage) As Manage "
      "FROM Evaporation LEFT JOIN Client ON Evaporation.ClientCode = Client.Code " +
      bookCondition(ask) + periodWhere(ask);
  if (!ask.dong.isEmpty()) sql += " And Client.Dong ='" + plainText(ask.dong) + "'";
  if (!ask.ho.isEmpty()) sql += " And Client.Ho = '" + plainText(ask.ho) + "'";
  sql += buildingCondition(ask) +
         " GROUP BY Client.Name, Client.BDName, Client.Dong, Client.Ho, Client.Code, Evaporation.Mon, "
         "Evaporation.TrustDay "
         " ORDER BY Client.Code";
  jet::Recordset rs;
  if (!OpenSnapshot(session_.prompts, session_.dbYear, rs, sql)) return false;

  const std::optional<int> rule = companyPayState(session_);
  std::vector<std::vector<QString>> rows;
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
    rows.push_back({name, text(u"BDName"_s), twoDigitMonth(month), won(u"Trust"_s), won(u"UsePay"_s),
                    won(u"Delay"_s), won(u"Manage"_s), won(u"Pay"_s), text(u"TrustDay"_s).replace(u'-', u'/'),
                    QString::number(remain)});
    lines.push_back({text(u"Name"_s) + u'\n' + text(u"BDName"_s) + u'\n' + name, month, remain});
    income_ += fieldWon(rs, u"Pay"_s);
  }
  lines_ = int(rows.size());
  grid_.setRows(std::move(rows));
  grid_.setColumnHidden(TotalCol::Building, ask.book == MeterBook::Individual);
  sumUp(lines);
  return true;
}

/** A month's rest goes into the next month's arrears: only a customer's last month counts. */
void EvaTotal::sumUp(const std::vector<Line>& lines) {
  for (size_t from = 0, to = 0; from < lines.size(); from = to) {
    int last = 0;
    for (to = from; to < lines.size() && lines[to].who == lines[from].who; ++to)
      last = std::max(last, lines[to].month);
    for (size_t at = from; at < to; ++at)
      if (lines[at].month == last) remain_ += lines[at].remain;
  }
}

bool EvaTotal::readPrev(const EvaTotalAsk& ask) {
  QString before = "Evaporation.Mon = " + QString::number(ask.fromMonth - 1);
  if (ask.byCollection) {
    const QString month = twoDigitMonth(fromDay_.left(2).toInt() - 1);
    before = collectedBetween(month + "/01", month + "/31");
  }
  jet::Recordset rs;
  if (!OpenSnapshot(session_.prompts, session_.dbYear, rs,
                    "Select Evaporation.Total From Evaporation LEFT JOIN Client "
                    "ON Evaporation.ClientCode = Client.Code " +
                        bookCondition(ask) + before + buildingCondition(ask)))
    return false;
  for (; !rs.atEnd(); rs.MoveNext()) prev_ += fieldWon(rs, u"Total"_s);
  return true;
}

void EvaTotal::print() {
  if (lines_ == 0) {
    stageReport(session_, 1, [](int) { return u"Insert Into Print(Str01) Values"_s + u"('')"_s; });
  } else {
    stageReport(session_, lines_, [this](int row) {
      const auto text = [&](int col) { return u'\'' + plainText(grid_.text(row, col)) + u'\''; };
      const auto won = [&](int col) { return grid_.text(row, col); };
      return u"Insert Into Print(Str01, Lng01, Lng02, Str02, Str03, Lng03, Lng04, Str04, Lng05, Lng06) Values"_s +
             u'(' +
             QStringList{text(TotalCol::Name),     won(TotalCol::Trust),     won(TotalCol::UsePay),
                         text(TotalCol::Building), text(TotalCol::Month),    won(TotalCol::Delay),
                         won(TotalCol::Manage),    text(TotalCol::TrustDay), won(TotalCol::Pay),
                         won(TotalCol::Remain)}
                 .join(u", "_s) +
             u')';
    });
  }
  const QString all[] = {u"일반주택/식당"_s, u"아파트 전체"_s, u"다가구 전체"_s};
  const QString what = shown_.building.isEmpty() ? all[int(shown_.book)] : shown_.building;
  session_.reports->show(
      {.file = u"체적검침조회.rpt"_s,
       .formulas = {u"구분= '"_s + what + u'\'', u"기간= '"_s + period_ + u'\'',
                    u"기준= '"_s + (shown_.byCollection ? u"수금일자"_s : u"검침월"_s) + u'\'',
                    u"전월이월= '"_s + wonText(prev_) + u'\'', u"수금= '"_s + wonText(income_) + u'\'',
                    u"잔액= '"_s + wonText(remain_) + u'\''},
       .dataFile = printFile()});
}
