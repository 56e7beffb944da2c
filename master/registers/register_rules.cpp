#include "master/registers/register_rules.h"

#include "store/data_access.h"

using namespace Qt::StringLiterals;

namespace {
const QString registerTitle = u"자료 확인"_s;
}

RegisterRules::RegisterRules(Session& session, Table table, QString title, RegisterList shown)
    : session_(session), table_(std::move(table)), title_(std::move(title)), shownAs_(std::move(shown)) {
  list_.setColumns(looksOf(shownAs_));
}

bool RegisterRules::load() {
  const auto keyOf = [this](const RegisterFields& record) {
    QString key = record[table_.key];
    for (const auto& [column, isText] : table_.also) key += u'\n' + record[column];
    return key;
  };
  const QString chosen = row_ ? keyOf(record()) : QString();
  row_ = 0;
  list_.clear();
  records_.clear();
  jet::Recordset rs;
  if (!OpenSnapshot(session_.prompts, session_.dbBasic, rs, shownAs_.statement)) return false;
  std::vector<std::vector<QString>> rows;
  for (; !rs.atEnd(); rs.MoveNext()) {
    RegisterFields record = fieldsOf(rs);
    rows.push_back(cellsOf(shownAs_, record));
    if (!chosen.isEmpty() && keyOf(record) == chosen) row_ = int(rows.size());
    records_.push_back(std::move(record));
  }
  list_.setRows(std::move(rows));
  dressList();
  return true;
}

RegisterFields RegisterRules::beginNew() {
  row_ = 0;
  new_ = true;
  return blank();
}

void RegisterRules::cancel() {
  row_ = 0;
  new_ = false;
}

RegisterFields RegisterRules::select(int row) {
  new_ = false;
  row_ = row >= 1 && row <= int(records_.size()) ? row : 0;
  return row_ ? record() : RegisterFields();
}

/** Texts that no row can hold and figures that the operator has emptied. */
std::optional<RegisterRules::Outcome> RegisterRules::impossible(const RegisterFields& boxes) {
  if (!new_ && row_ == 0) return {};
  if (const auto column = textTooLong(session_, table_.name, boxes, labels_, registerTitle))
    return Outcome{false, *column};
  if (new_) return {};
  for (const QString& column : runningColumns())
    if (boxes.contains(column) && boxes[column].isEmpty() && !shown_[column].isEmpty())
      return refuse(labels_.value(column, column) + u" 칸은 비워 둘 수 없습니다! 없으면 0을 입력하십시오."_s,
                    registerTitle, column);
  return {};
}

RegisterRules::Outcome RegisterRules::save(const RegisterFields& boxes, const RegisterFields& shown) {
  shown_ = row_ ? record() : RegisterFields();
  shown_.insert(shown);
  if (const auto refused = impossible(boxes)) return *refused;
  Outcome outcome = new_ ? insert(boxes) : row_ ? change(boxes) : saveWithoutRow(boxes);
  if (outcome.end == RowEnd::Gone) load();
  if (!outcome.done) return outcome;
  new_ = false;
  load();
  return outcome;
}

RegisterRules::Outcome RegisterRules::saveWithoutRow(const RegisterFields&) {
  return refuse(u"신규등록은 신규버튼을 누른 후 입력해 주십시오"_s, title_);
}

RegisterRules::Outcome RegisterRules::remove() {
  Outcome outcome = erase();
  if (outcome.done) new_ = false;
  if (outcome.done || outcome.end != RowEnd::Done) load();
  return outcome;
}

RegisterRules::Outcome RegisterRules::changeChosen(
    const RegisterFields& boxes, const QString& title,
    const std::function<void(const RowChange& change, const RegisterFields& row,
                             const RegisterFields& stored)>& write) {
  const RowChange change{
      .read = record(), .shown = shown_, .typed = boxes, .running = runningColumns(), .labels = labels_};
  const RowOutcome outcome =
      changeRow(session_, source(), title, change,
                [&](const RegisterFields& row, const RegisterFields& stored) { write(change, row, stored); });
  return {outcome.end == RowEnd::Done, outcome.column, outcome.end};
}

RegisterRules::Outcome RegisterRules::eraseChosen(const QString& name, const QString& question,
                                                  const QString& title, const std::function<void()>& work) {
  if (!session_.prompts.MsgAsk(name + u'\n' + question, title, false)) return {};
  return eraseAsShown(title, work);
}

RegisterRules::Outcome RegisterRules::eraseAsShown(const QString& title, const std::function<void()>& work) {
  const RowEnd end = deleteRow(session_, source(), title, record(), work);
  return {end == RowEnd::Done, {}, end};
}

RowSource RegisterRules::source() const {
  return {u"Select * From "_s + table_.name + u" Where "_s + keyCondition(record()), fieldsOf};
}

QString RegisterRules::keyCondition(const RegisterFields& record) const {
  const auto is = [&record](const QString& column, bool isText) {
    const QString key = record[column];
    return column + u" = "_s + (isText ? u"'"_s + plainText(key) + u"'"_s : plainNumber(key));
  };
  QString condition = is(table_.key, table_.keyIsText);
  for (const auto& [column, isText] : table_.also) condition += u" And "_s + is(column, isText);
  return condition;
}

RegisterRules::Outcome RegisterRules::refuse(const QString& text, const QString& title,
                                             const QString& focus) {
  session_.prompts.MsgWarn(text, title);
  return {false, focus};
}

RegisterRules::Found RegisterRules::lookFor(const QString& sql) {
  jet::Recordset rs;
  if (!OpenSnapshot(session_.prompts, session_.dbBasic, rs, sql)) return Found::Failed;
  return rs.RecordCount() == 0 ? Found::Nothing : Found::Something;
}
