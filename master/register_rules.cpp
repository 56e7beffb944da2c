#include "master/register_rules.h"

#include "store/data_access.h"
#include "store/jet/text_rules.h"

using namespace Qt::StringLiterals;

bool RegisterRules::load() {
  row_ = 0;
  list_.clear();
  records_.clear();
  jet::Recordset rs;
  if (!OpenSnapshot(session_.prompts, session_.dbBasic, rs, listStatement())) return false;
  const QStringList names = rs.fieldNames();
  std::vector<std::vector<QString>> rows;
  for (; !rs.atEnd(); rs.MoveNext()) {
    RegisterFields record;
    for (int at = 0; at < names.size(); ++at) record.insert(names[at], rs[at].toText());
    rows.push_back(cells(record));
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

RegisterRules::Outcome RegisterRules::save(const RegisterFields& boxes) {
  const int changed = row_;
  const Outcome outcome = new_ ? insert(boxes) : row_ ? change(boxes) : saveWithoutRow(boxes);
  if (!outcome.done) return outcome;
  new_ = false;
  load();
  select(changed);
  return outcome;
}

RegisterRules::Outcome RegisterRules::remove() {
  const Outcome outcome = erase();
  if (outcome.done) {
    new_ = false;
    load();
  }
  return outcome;
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

QString typedNumber(const QString& typed) {
  return jet::textOf(jet::val(QString(typed).remove(u',')));
}
