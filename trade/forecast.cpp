#include "trade/forecast.h"

#include <QDate>

#include <algorithm>
#include <set>

#include "pc/reports.h"
#include "store/data_access.h"
#include "store/date_text.h"
#include "store/jet/sql.h"
#include "store/jet/text_rules.h"
#include "store/report_staging.h"
#include "store/year_file.h"
#include "ui/model/column.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int lastDeliveries = 8;
const QString forecastTitle = u"배달 관리자"_s;

// What sets a date of another year off: the red of the grid's colour number 1000.
constexpr int otherYearsInk = 0xE80300;
constexpr int deliveredPaper = 0xFFDFE2, expectedPaper = 0xFCFFD0, reservedPaper = 0xDAD9FF;

std::vector<SpreadColumn> forecastColumns() {
  const auto day = [](const QString& header, const QString& group, int paper) {
    return column::grouped(group, column::coloured(paper, column::centred(header, 7)));
  };
  const QString delivered = u"배달일자"_s, expected = u"예상"_s;
  std::vector<SpreadColumn> columns = {column::text(u"고객명/상호"_s, 22), column::text(u"전화번호"_s, 14)};
  for (int at = 1; at <= lastDeliveries; ++at)
    columns.push_back(day(QString::number(at) + u"차"_s, delivered, deliveredPaper));
  for (const QString& header : {u"최근"_s, u"예상"_s, u"평균"_s})
    columns.push_back(day(header, expected, expectedPaper));
  columns = column::shown(std::move(columns));
  columns.push_back(column::limited(10, day(u"예약"_s, {}, reservedPaper)));
  columns.push_back(column::hidden(u"코드"_s));
  return columns;
}

QString monthDay(const QDate& day) {
  return day.toString(u"MM-dd");
}

/** A day's text without its year: "03-05" of "2026-03-05". */
QString monthDayOf(const QString& day) {
  return day.mid(5);
}

}  // namespace

/** One customer with his deliveries, the newest first, and what follows from them. */
struct Forecast::Deliveries {
  QString name, tel, reserved, code;
  QStringList days;  ///< "yyyy-mm-dd"
  QDate expected;    ///< none where all fall on one day
  int average = 0;   ///< days

  /** The newest eight of both files; lines of one day count one by one. */
  void keepLast() {
    std::sort(days.begin(), days.end(), std::greater<>());
    if (days.size() > lastDeliveries) days.resize(lastDeliveries);
  }
  void expect() {
    const QDate newest = QDate::fromString(days.front(), Qt::ISODate);
    const QDate oldest = QDate::fromString(days.back(), Qt::ISODate);
    const qint64 span = oldest.isValid() && newest.isValid() ? oldest.daysTo(newest) : 0;
    if (span <= 0) return;
    average = int(jet::roundHalfEven(double(span) / double(days.size() - 1)));
    expected = newest.addDays(average);
  }
  /** What the reserved day outranks in the filter alone. */
  QString due() const { return !reserved.isEmpty() ? reserved : monthDay(expected); }
};

Forecast::Forecast(Session& session) : session_(session) {
  grid_.setColumns(forecastColumns());
}

bool Forecast::hasYear(const QString& year) {
  if (session_.pc.paths.exists(yearFile(session_, year))) return true;
  session_.prompts.MsgWarn(year + u"년의 배달자료가 없습니다!"_s, forecastTitle);
  return false;
}

/** Back to the first of January of the year before the one that is worked in. */
QString Forecast::period() const {
  const QString first =
      checkedMonthDay(u"01-01"_s, QString::number(openedYear(session_) - 1), session_.pc.clock);
  return u" saledate >= '"_s + plainText(first) + u"' and saledate <> ''"_s;
}

bool Forecast::ExtractForecast(ForecastOf which, const QString& shownYear, const std::optional<QString>& day,
                               const std::function<bool(int, int)>& tell) {
  shownYear_ = shownYear;
  if (which == ForecastOf::Nobody) {
    session_.prompts.MsgWarn(u"배달 예상을 추출할 고객을 구분하세요"_s, forecastTitle);
    return false;
  }
  grid_.clear();
  // The year before has a file of its own; a closing leaves a copy of it in the open one.
  const int open = openedYear(session_);
  const jet::Database before = openYear(session_, open - 1);
  std::vector<DeliveryFile> files = {{&session_.dbYear, period()}};
  if (before.isOpen()) {
    const QString newYear = QString::number(open) + u"-01-01"_s;
    files.front().period += u" and saledate >= '"_s + plainText(newYear) + u'\'';
    files.push_back({&before, period() + u" and saledate < '"_s + plainText(newYear) + u'\''});
  }

  const QString clause = which == ForecastOf::General  ? u" Where Sale.Gubun = FALSE AND "_s
                         : which == ForecastOf::Volume ? u" Where Sale.Gubun = TRUE AND "_s
                                                       : u" where "_s;
  std::set<qint64> clients;
  for (const DeliveryFile& file : files) {
    jet::Recordset rows;
    if (!OpenSnapshot(session_.prompts, *file.book, rows,
                      u"Select Distinct ClientCode From Sale"_s + clause + file.period))
      return false;
    for (; !rows.atEnd(); rows.MoveNext()) clients.insert(rows[0].toLong());
  }
  if (clients.empty()) {
    session_.prompts.MsgInfo(u"배달자료가 없습니다!"_s, forecastTitle);
    return false;
  }

  std::vector<std::vector<QString>> rows;
  std::vector<Deliveries> shown;
  int done = 0;
  for (const qint64 code : clients) {
    if (tell && !tell(done++, int(clients.size()))) break;
    Deliveries of;
    for (const DeliveryFile& file : files)
      if (!read(file, QString::number(code), which, of)) return false;
    if (of.days.isEmpty()) continue;
    of.keepLast();
    of.expect();
    // Equal, not up to: the list is one day's round.
    if (day && of.due() != *day) continue;
    rows.push_back(rowOf(of));
    shown.push_back(std::move(of));
  }
  grid_.setRows(std::move(rows));
  for (size_t at = 0; at < shown.size(); ++at) colour(int(at) + 1, shown[at]);
  return true;
}

/** False after a failed query has been told. */
bool Forecast::read(const DeliveryFile& file, const QString& code, ForecastOf which, Deliveries& into) const {
  jet::Sql sql;
  sql << u"SELECT Top 8 Client.Name, Client.Tel, Client.EstimateDate, Client.Code, Sale.SaleDate, "
         u"Client.EstimateDate FROM Client LEFT JOIN Sale ON Client.Code = Sale.ClientCode "
      << (which == ForecastOf::General  ? u"WHERE Client.VolumeYesNo = FALSE And "
          : which == ForecastOf::Volume ? u"WHERE Client.VolumeYesNo=True And "
                                        : u"WHERE ")
      << u" Sale.ClientCode = " << code << u" and Sale.SaleGubun <> 4 and " << file.period
      << u" Order By Sale.SaleDate Desc";
  jet::Recordset line;
  if (!OpenSnapshot(session_.prompts, *file.book, line, sql)) return false;
  // Of days that tie at the eighth place eight are taken.
  for (int count = 0; count < lastDeliveries && !line.atEnd(); line.MoveNext(), ++count) {
    if (into.code.isEmpty()) {
      into.name = line[0].toText();
      into.tel = line[1].toText();
      into.reserved = line[2].toText();
      into.code = line[3].toText();
    }
    into.days << line[4].toText();
  }
  return true;
}

std::vector<QString> Forecast::rowOf(const Deliveries& of) const {
  std::vector<QString> cells(ForecastCol::Code);
  const auto cell = [&cells](int col) -> QString& { return cells[size_t(col - 1)]; };
  cell(ForecastCol::Name) = of.name;
  cell(ForecastCol::Tel) = of.tel;
  const int count = int(of.days.size());
  for (int at = 0; at < count; ++at) cell(ForecastCol::First + at) = monthDayOf(of.days[count - 1 - at]);
  cell(ForecastCol::Newest) = monthDayOf(of.days.front());
  if (of.expected.isValid()) {
    cell(ForecastCol::Expected) = monthDay(of.expected);
    cell(ForecastCol::Average) = QString::number(of.average);
  }
  cell(ForecastCol::Reserved) = of.reserved;
  cell(ForecastCol::Code) = of.code;
  return cells;
}

void Forecast::colour(int row, const Deliveries& of) {
  const auto set = [&](int col, QStringView year) {
    if (year != shownYear_) grid_.setInk(row, col, otherYearsInk);
  };
  const int count = int(of.days.size());
  for (int at = 0; at < count; ++at)
    set(ForecastCol::First + at, QStringView(of.days[count - 1 - at]).left(4));
  set(ForecastCol::Newest, QStringView(of.days.front()).left(4));
  if (of.expected.isValid()) set(ForecastCol::Expected, QString::number(of.expected.year()));
}

bool Forecast::setReserved(int row, const QString& typed) {
  QString text = typed.trimmed();
  if (text.size() == 4 || text.size() == 5) {
    const QString& year = shownYear_.size() == 4 ? shownYear_ : session_.WorkYear;
    const QString day = checkedMonthDay(text, year, session_.pc.clock);
    if (day.isEmpty()) {
      session_.prompts.MsgWarn(u"날짜 입력이 올바르지 않습니다!"_s, forecastTitle);
      return false;
    }
    text = monthDayOf(day);
  }
  session_.dbYear.Execute(u"Update Client Set EstimateDate = '"_s + plainText(text) + u"' Where Code = "_s +
                          plainNumber(grid_.text(row, ForecastCol::Code)));
  grid_.setText(row, ForecastCol::Reserved, text);
  return true;
}

void Forecast::print() {
  const int rows = grid_.MaxRows();
  stageReport(session_, rows + 1, [&](int row) {
    if (row > rows) return u"Insert Into Print(Str01) "_s + u"Values('')"_s;
    QStringList values;
    for (int col = ForecastCol::Name; col <= ForecastCol::Average; ++col)
      values << u'\'' + copiedText(grid_.text(row, col)) + u'\'';
    return u"Insert Into Print(Str01, Str02, Str03, Str04, Str05, Str06, Str07, Str08, Str09, Str10, Str11, "
           u"Str12, Str13, Lng01) "
           u"Values("_s +
           values.join(u", "_s) + u", "_s + QString::number(row) + u')';
  });
  session_.reports->show({.file = u"VolumeEstimate.rpt"_s, .formulas = {}, .dataFile = printFile()});
}
