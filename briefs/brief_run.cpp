#include "briefs/brief_run.h"

#include "pc/reports.h"
#include "store/data_access.h"
#include "store/date_text.h"
#include "store/report_staging.h"
#include "store/session.h"

using namespace Qt::StringLiterals;

namespace {

const QString briefManager = u"조회 관리자"_s;
constexpr QChar apostrophe{0x27};      ///< ends a text of a statement, so no part of a name holds one
constexpr qsizetype stagedText = 255;  ///< characters of a text column of Print

SpreadColumn gridColumn(const BriefColumn& column) {
  SpreadColumn shown{.header = column.header,
                     .group = column.group,
                     .width = column.width,
                     .align = CellAlign::Right,
                     .locked = true,
                     .hidden = column.hidden};
  switch (column.look) {
    case BriefLook::Money:
      shown.kind = CellKind::Money;
      break;
    case BriefLook::Pieces:
      shown.kind = CellKind::Integer;
      break;
    case BriefLook::Number:
      shown.kind = CellKind::Number;
      break;
    case BriefLook::Centre:
      shown.align = CellAlign::Center;
      break;
    case BriefLook::Text:
      shown.align = CellAlign::Left;
      break;
  }
  return shown;
}

/** The box to go to; nothing when the period is one. */
std::optional<QString> checkPeriod(const Session& session, const QString& name, BriefAnswer& period) {
  const auto wrong = [&](const QString& text, const QString& end) {
    session.prompts.MsgWarn(text, briefManager);
    return name + end;
  };
  if (period.text.isEmpty() && period.to.isEmpty()) return wrong(u"조회기간을 입력해 주십시오"_s, u"From"_s);
  if (period.text.isEmpty()) return wrong(u"조회기간의 시작월일을 선택해 주십시오"_s, u"From"_s);
  if (period.to.isEmpty()) return wrong(u"조회기간의 마지막월을 입력/선택해 주십시오"_s, u"To"_s);
  for (QString* const end : {&period.text, &period.to}) {
    const QString day = checkedDate(*end, session.pc.clock);
    if (day.isEmpty())
      return wrong(u"날짜 입력이 올바르지 않습니다!\n"_s + *end, end == &period.text ? u"From"_s : u"To"_s);
    *end = day;
  }
  if (period.text > period.to) return wrong(u"조회기간의 시작일이 마지막일보다 늦습니다!"_s, u"From"_s);
  return {};
}

}  // namespace

BriefRun::BriefRun(Session& session, Brief brief) : session_(session), brief_(std::move(brief)) {
  for (size_t at = 0; at < brief_.pages.size(); ++at) {
    Shown& shown = shown_.emplace_back();
    shown.grid = std::make_unique<SpreadModel>();
    shown.ask.page = int(at);
    std::vector<SpreadColumn> columns;
    for (const BriefColumn& column : brief_.pages[at].columns) columns.push_back(gridColumn(column));
    shown.grid->setColumns(std::move(columns));
  }
}

int BriefRun::pageOf(const QString& key) const {
  for (size_t at = 0; at < brief_.pages.size(); ++at)
    if (brief_.pages[at].key == key) return int(at);
  return -1;
}

BriefCells BriefRun::cells(int page, int row) const {
  const auto& rows = shown_.at(size_t(page)).rows.rows;
  return row >= 1 && row <= int(rows.size()) ? rows[size_t(row - 1)] : BriefCells();
}

bool BriefRun::isAsked(const BriefQuestion& question, const BriefAsk& ask) const {
  if (!question.pages.empty() && std::ranges::find(question.pages, ask.page) == question.pages.end())
    return false;
  if (question.when.isEmpty()) return true;
  return question.when.startsWith(u'!') ? !ask.on(question.when.mid(1)) : ask.on(question.when);
}

std::optional<QString> BriefRun::check(BriefAsk& ask) const {
  for (const BriefQuestion& question : brief_.questions) {
    if (!isAsked(question, ask)) continue;
    BriefAnswer& answer = ask.answers[question.name];
    if (question.kind == AskKind::Period) {
      if (auto box = checkPeriod(session_, question.name, answer)) return box;
    } else if (question.kind == AskKind::Text && answer.text.contains(apostrophe)) {
      session_.prompts.MsgWarn(question.label + u"에는 작은따옴표를 넣을 수 없습니다!"_s, briefManager);
      return question.name;
    }
  }
  return {};
}

void BriefRun::clear(int page) {
  Shown& shown = shown_.at(size_t(page));
  shown.grid->clear();
  shown.rows = {};
}

bool BriefRun::load(BriefAsk ask, const BriefTeller& tell) {
  if (check(ask)) return false;
  const BriefPage& page = this->page(ask.page);
  clear(ask.page);
  Shown& shown = shown_[size_t(ask.page)];
  shown.ask = ask;
  BriefRows rows = page.statement ? readBriefRows(session_, page, ask) : BriefRows();
  if (rows.read && page.complete)
    page.complete(
        session_, ask, tell ? tell : [](int, int) {}, rows);
  if (!rows.read) return false;
  if (rows.rows.empty()) {
    session_.prompts.MsgInfo(page.emptyText(ask), page.emptyTitle.isEmpty() ? briefManager : page.emptyTitle);
    return false;
  }
  shown.rows = std::move(rows);
  shown.grid->setRows(shown.rows.rows);
  std::vector<int> sums;
  for (size_t at = 0; at < page.columns.size(); ++at)
    if (page.columns[at].sum) sums.push_back(int(at) + 1);
  if (!sums.empty()) InsertSubTotal(*shown.grid, int(shown.rows.rows.size()) + 1, SubTotal::Whole, 1, sums);
  return true;
}

bool BriefRun::printLive(BriefAsk ask) {
  if (check(ask)) return false;
  const BriefPage& page = this->page(ask.page);
  QStringList files, selections, missing;
  const BriefAnswer& period = ask[page.period];
  walkBriefYears(session_, period.text.left(4).toInt(), period.to.left(4).toInt(), missing,
                 [&](const jet::Database& file, const LineDays& days) {
                   files << file.path();
                   selections << page.selection(session_, askWithin(page, ask, days));
                   return true;
                 });
  shown_.at(size_t(ask.page)).rows.note = missingYearsNote(missing);
  session_.reports->show({.file = page.report,
                          .formulas = page.formulas ? page.formulas(ask, {}) : QStringList(),
                          .selection = page.selection(session_, ask),
                          .liveFiles = files,
                          .liveSelections = selections});
  return true;
}

void BriefRun::print(int at, const QByteArray& chart) {
  const BriefPage& page = this->page(at);
  const Shown& shown = shown_.at(size_t(at));
  printBriefRows(session_, page.columns, shown.rows.rows,
                 {.report = page.report,
                  .formulas = page.formulas ? page.formulas(shown.ask, shown.rows) : QStringList(),
                  .blankRow = page.blankRow,
                  .chart = chart});
}

// --- the paper ------------------------------------------------------------------------------------------------

namespace {

QString stagedValue(const BriefColumn& column, const QString& cell) {
  if (column.staged.startsWith("Str"_L1)) {
    const QString text = cell.isEmpty() ? column.missing : cell.left(stagedText);
    return u'\'' + copiedText(text) + u'\'';
  }
  return cell.isEmpty() ? u"Null"_s : plainNumber(cell);
}

}  // namespace

void printBriefRows(Session& session, const std::vector<BriefColumn>& columns,
                    const std::vector<BriefCells>& rows, const BriefPaper& paper) {
  QStringList fields;
  std::vector<size_t> places;
  for (size_t at = 0; at < columns.size(); ++at) {
    if (columns[at].staged.isEmpty()) continue;
    fields << columns[at].staged;
    places.push_back(at);
  }
  const QString insert = u"Insert Into Print("_s + fields.join(u", "_s) + u") "_s + u"Values("_s;
  if (rows.empty() && paper.blankRow)
    stageReport(session, 1, [](int) { return u"Insert Into Print(Str01) "_s + u"Values('')"_s; });
  else
    stageReport(session, int(rows.size()), [&](int row) {
      QStringList values;
      for (const size_t at : places) values << stagedValue(columns[at], rows[size_t(row - 1)][at]);
      return insert + values.join(u", "_s) + u')';
    });
  session.reports->show(
      {.file = paper.report, .formulas = paper.formulas, .dataFile = printFile(), .picture = paper.chart});
}
