#include "documents/statements/deal_search.h"

#include "documents/vat_split.h"
#include "papers/month_range.h"
#include "store/data_access.h"
#include "store/year_file.h"

namespace {

constexpr int dateRule = 0xC0C0C0;  ///< above the first line of a date

QString historyKey(const QString& date, const QString& client, const QString& line) {
  return date + '|' + client + '|' + line;
}

}  // namespace

DealSearch::DealSearch(Session& session, const jet::Database& history)
    : session_(session), history_(history) {
  grid_.setColumns(dealColumns());
}

QString DealSearch::sumText() const {
  return sum_ == 0 ? QString() : wonOrBlank(sum_) + ' ';
}

jet::Database DealSearch::openYear(const QString& year) {
  jet::Database file = ::openYear(session_, year);
  if (!file.isOpen() && !missingYears_.contains(year)) missingYears_ << year;
  return file;
}

bool DealSearch::search(const DealAsk& ask) {
  missingYears_.clear();
  session_.wsMain.KeepingFiles([&] {
    leaveCollectionsOut(ask.from, ask.to);
    rows_.clear();
    dateRows_.clear();
    lastDate_.clear();
    lastClient_.clear();
    sum_ = 0;
    if (ask.from > ask.to) return;
    if (ask.tab == DealTab::Pending) readHistory(ask.from, ask.to);
    for (const MonthPart& part : monthsOf(ask.from, ask.to))
      if (const auto year = openYear(part.from.left(4)); year.isOpen()) list(year, part.from, part.to, ask);
  });
  written_.clear();
  if (rows_.empty()) rows_.emplace_back();
  grid_.setRows(std::move(rows_));
  rows_.clear();
  for (const int row : dateRows_) grid_.setTopLine(row, dateRule);
  if (ask.from > ask.to) {
    session_.prompts.MsgWarn("검색일자 지정이 잘못되었습니다. 다시 입력하세요.");
    return false;
  }
  tellMissingYears();
  return true;
}

/** The statement runs only where it finds something: on a network its lock and its flush would cost every search. */
void DealSearch::leaveCollectionsOut(const QDate& from, const QDate& to) {
  for (int each = from.year(); each <= to.year(); ++each) {
    const jet::Database year = openYear(QString::number(each));
    if (!year.isOpen()) continue;
    const jet::Recordset open = year.OpenRecordset(
        "Select Top 1 SaleID From Sale Where (salename = '자재수금' or salename = '가스수금') And "
        "(deallist <> 2 Or deallist Is Null)");
    if (open.atEnd()) continue;
    year.Execute("update sale set deallist = 2 where salename = '자재수금' or salename = '가스수금'");
  }
}

void DealSearch::readHistory(const QDate& from, const QDate& to) {
  if (!history_.isOpen()) return;
  for (auto rows = history_.OpenRecordset(
           "SELECT DealDate, CCode, SaleSeq FROM DealList WHERE DealDate BETWEEN '" +
           plainText(from.toString(Qt::ISODate)) + "' AND '" + plainText(to.toString(Qt::ISODate)) + "'");
       !rows.atEnd(); rows.MoveNext())
    written_ << historyKey(rows[0].toText(), rows[1].toText(), rows[2].toText());
}

void DealSearch::list(const jet::Database& year, const QString& from, const QString& to, const DealAsk& ask) {
  const bool pending = ask.tab == DealTab::Pending;
  QString sql =
      "SELECT sale.SaleID as jucode , Sale.SaleDate AS sDate, Sale.ClientCode AS SCCode, Client.Name AS "
      "TCName, Sale.salename AS SPName, Sale.SaleThing AS SPNorm, Sale.SaleNum AS SQuant, Sale.SaleUnit AS "
      "SCost, Sale.SaleNum * Sale.SaleUnit AS SSum, Sale.DC as SDC, Sale.saleid AS SCode FROM Sale RIGHT "
      "JOIN Client ON Sale.ClientCode = Client.Code WHERE Sale.SaleDate BETWEEN '" +
      plainText(from) + "' AND '" + plainText(to) + "'";
  sql += pending ? " and deallist = 0 " : " and deallist < 2 and deallist <> 0 ";
  if (!ask.clientCode.isEmpty()) sql += "AND Sale.ClientCode = " + plainNumber(ask.clientCode);
  if (!ask.facility) sql += " AND Sale.salegubun <> 7 ";
  sql += " ORDER BY Sale.SaleDate, Sale.saleID;";

  for (auto found = year.OpenRecordset(sql); !found.atEnd(); found.MoveNext()) {
    const QString line = found[0].toText(), date = found[1].toText(), client = found[2].toText();
    if (!written_.isEmpty() && written_.contains(historyKey(date, client, line))) continue;
    const bool newDate = date != lastDate_, newClient = newDate || client != lastClient_;
    const QString name = found[3].toText();
    const qint64 amount = found[8].toLong();
    sum_ += amount;
    rows_.push_back({newDate ? date : QString(), newClient ? name : QString(), found[4].toText(),
                     found[5].toText(), found[6].toText(), found[7].toText(), QString::number(amount),
                     QString(), line, date, client, name, line, found[9].toText()});
    if (newDate) dateRows_.push_back(int(rows_.size()));
    lastDate_ = date;
    lastClient_ = client;
  }
}

void DealSearch::tellMissingYears() {
  if (missingYears_.isEmpty()) return;
  session_.prompts.MsgWarn(missingYears_.join(", ") +
                           "년의 자료 파일을 열 수 없어 그 해의 거래내역은 빠져 있습니다.");
}

QString DealSearch::newestSaleDate(const QString& year) const {
  const jet::Database file = ::openYear(session_, year);
  if (!file.isOpen()) return {};
  const jet::Recordset newest = file.OpenRecordset(
      "SELECT DISTINCT Max(sale.saleDate) AS MaxDate FROM sale WHERE NOT sale.saleDate LIKE '*-00';");
  return newest.atEnd() ? QString() : newest[0].toText();
}
