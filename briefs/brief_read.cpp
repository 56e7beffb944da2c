// The rows of a report page: the year files it reaches, the statement on each, the fold.
#include <QHash>

#include <algorithm>
#include <set>
#include <utility>

#include "briefs/brief_run.h"
#include "store/data_access.h"
#include "store/jet/text_rules.h"
#include "store/session.h"
#include "store/vb.h"
#include "store/year_file.h"

using namespace Qt::StringLiterals;

namespace {

/** The years from the first to the last one asked for. */
std::pair<int, int> askedYears(const BriefPage& page, const BriefAsk& ask) {
  const BriefAnswer& period = ask[page.period];
  const int first = period.text.left(4).toInt(), last = period.to.left(4).toInt();
  return {first, last > 0 ? last : first};
}

constexpr int yearsTold = 4;  ///< of those without a file, before "and others"

/** Years with a file, the open one among them. */
std::set<int> yearsRead(const Session& session) {
  std::set<int> years = yearsThere(session);
  years.insert(openedYear(session));
  return years;
}

void walkReached(Session& session, const BriefPage& page, const BriefAsk& ask, QStringList& missing,
                 const std::function<bool(const jet::Database&, const BriefAsk&)>& work) {
  if (page.reach == BriefReach::OpenYear) {
    work(session.dbYear, ask);
    return;
  }
  auto [first, last] = askedYears(page, ask);
  if (page.reach == BriefReach::Asked)
    return walkBriefYears(session, first, last, missing,
                          [&](const jet::Database& file, const LineDays& days) {
                            return work(file, askWithin(page, ask, days));
                          });
  first = std::min(first, *yearsRead(session).begin());
  QString since;  // lines of a year that has no file are in the copy that the next file is
  walkBriefYears(session, first, last, missing, [&](const jet::Database& file, const LineDays& days) {
    BriefAsk of = ask;
    of.fileFrom = std::exchange(since, QString::number(days.first.left(4).toInt() + 1) + u"-01-01"_s);
    of.fileTo = days.last;
    return work(file, of);
  });
  missing.clear();  // the years are not asked for one by one
}

QString cellOf(const BriefColumn& column, const jet::Recordset& rs, int field) {
  if (column.cell) return column.cell(rs);
  if (field < 0) return {};
  const jet::Value value = rs[field];
  switch (column.look) {
    case BriefLook::Money:
    case BriefLook::Pieces:
      return QString::number(value.toLong());
    case BriefLook::Number:
      return vb::CStr(value.toDouble());
    case BriefLook::Text:
    case BriefLook::Centre:
      break;
  }
  return value.toText();
}

/** Rows of one key become one. */
class BriefFold {
 public:
  BriefFold(const BriefPage& page, std::vector<BriefCells>& rows) : page_(page), rows_(rows) {
    for (size_t at = 0; at < page.columns.size(); ++at)
      if (page.columns[at].key) keys_.push_back(at);
    for (const QString& slot : page.slots_) {
      BriefCells row(page.columns.size());
      for (size_t at = 0; at < row.size(); ++at)
        if (isFigure(page.columns[at])) row[at] = u"0"_s;
      row[keys_.front()] = slot;
      put(std::move(row));
    }
  }

  void put(BriefCells row) {
    if (keys_.empty()) return rows_.push_back(std::move(row));
    const QString key = keyOf(row);
    const auto found = places_.constFind(key);
    if (found == places_.constEnd()) {
      places_.insert(key, rows_.size());
      return rows_.push_back(std::move(row));
    }
    BriefCells& into = rows_[*found];
    for (size_t at = 0; at < into.size(); ++at) {
      if (!isFigure(page_.columns[at]))
        into[at] = page_.columns[at].key ? into[at] : std::move(row[at]);
      else if (page_.columns[at].look == BriefLook::Number)
        into[at] = vb::CStr(into[at].toDouble() + row[at].toDouble());
      else
        into[at] = QString::number(into[at].toLongLong() + row[at].toLongLong());
    }
  }

 private:
  static bool isFigure(const BriefColumn& column) {
    return column.look != BriefLook::Text && column.look != BriefLook::Centre;
  }
  /** Texts of one key compare as the store compares them. */
  QString keyOf(const BriefCells& row) const {
    QString key;
    for (const size_t at : keys_) {
      QString text = row[at].toCaseFolded();
      while (text.endsWith(u' ')) text.chop(1);
      key += text + u'\n';
    }
    return key;
  }

  const BriefPage& page_;
  std::vector<BriefCells>& rows_;
  std::vector<size_t> keys_;
  QHash<QString, size_t> places_;
};

void orderRows(const std::vector<int>& order, std::vector<BriefCells>& rows) {
  std::ranges::stable_sort(rows, [&](const BriefCells& a, const BriefCells& b) {
    for (const int col : order)
      if (const int way = jet::compareText(a[size_t(col - 1)], b[size_t(col - 1)])) return way < 0;
    return false;
  });
}

}  // namespace

void walkBriefYears(Session& session, int first, int last, QStringList& missing,
                    const std::function<bool(const jet::Database&, const LineDays&)>& work) {
  const int open = openedYear(session);
  const std::set<int> there = yearsRead(session);
  for (int year = first; year <= last && missing.size() <= yearsTold; ++year)
    if (!there.contains(year)) missing << QString::number(year);
  for (const int year : there) {
    const LineDays days = lineDays(session, year);
    if (days.last.left(4).toInt() < first || year > last) continue;
    const jet::Database file = year == open ? session.dbYear : openYear(session, year);
    if (!file.isOpen())
      missing << QString::number(year);
    else if (!work(file, days))
      return;
  }
}

BriefAsk askWithin(const BriefPage& page, BriefAsk ask, const LineDays& days) {
  BriefAnswer& period = ask.answers[page.period];
  if (period.to.isEmpty()) return ask;  // a year, whose file it is
  period.text = std::max(period.text, days.first);
  period.to = std::min(period.to, days.last);
  return ask;
}

QString missingYearsNote(const QStringList& missing) {
  if (missing.isEmpty()) return {};
  return missing.mid(0, yearsTold).join(u", "_s) + (missing.size() > yearsTold ? u"년 등은"_s : u"년은"_s) +
         u" 자료 파일이 없어 빠졌습니다."_s;
}

BriefRows readBriefRows(Session& session, const BriefPage& page, const BriefAsk& ask) {
  BriefRows result;
  BriefFold fold(page, result.rows);
  int files = 0;
  bool any = false;
  QStringList missing;
  walkReached(session, page, ask, missing, [&](const jet::Database& file, const BriefAsk& of) {
    ++files;
    if (page.repair) page.repair(file);
    jet::Recordset rs;
    result.read = OpenSnapshot(session.prompts, file, rs, page.statement(of));
    if (!result.read) return false;
    std::vector<int> fields;
    for (const BriefColumn& column : page.columns)
      fields.push_back(column.field.isEmpty() ? -1 : rs.fieldIndex(column.field));
    for (; !rs.atEnd(); rs.MoveNext(), any = true) {
      BriefCells row;
      row.reserve(page.columns.size());
      for (size_t at = 0; at < page.columns.size(); ++at)
        row.push_back(cellOf(page.columns[at], rs, fields[at]));
      fold.put(std::move(row));
    }
    return true;
  });
  if (!result.read) return {.read = false};
  if (!any) result.rows.clear();
  if (files > 1 && page.slots_.isEmpty()) orderRows(page.order, result.rows);
  result.note = missingYearsNote(missing);
  return result;
}
