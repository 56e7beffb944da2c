#include "master/registers/row_change.h"

#include <QLocale>

#include "store/jet/text_rules.h"

using namespace Qt::StringLiterals;

namespace {

double figureOf(const QString& text) {
  return typedNumber(text).toDouble();
}

QString wonText(double figure) {
  return QLocale(QLocale::Korean).toString(figure, 'f', figure == qint64(figure) ? 0 : 2);
}

std::optional<RegisterFields> readStored(const Session& session, const RowSource& source) {
  const jet::Recordset row = session.dbBasic.OpenRecordset(source.select);
  if (row.atEnd()) return {};
  return source.read(row);
}

QString labelOf(const RowChange& change, const QString& column) {
  return change.labels.value(column, column);
}

bool mayWriteOver(const Session& session, const QString& title, const RowChange& change,
                  const RegisterFields& stored, const QStringList& columns) {
  QString text = u"다른 PC나 화면에서 같은 칸을 먼저 바꾸었습니다!\n"_s;
  for (const QString& column : columns)
    text += u"\n"_s + labelOf(change, column) + u"\n    저장된 내용 : "_s + stored[column] +
            u"\n    입력한 내용 : "_s + change.typed[column] + u'\n';
  return session.prompts.MsgAsk(text + u"\n입력한 내용으로 저장하시겠습니까?"_s, title, false);
}

void tellMerged(const Session& session, const QString& title, const RowChange& change,
                const RegisterFields& stored, const QStringList& others) {
  QString text;
  if (!others.isEmpty()) {
    QStringList labels;
    for (const QString& column : others) labels << labelOf(change, column);
    text = u"다른 PC나 화면에서 바꾼 칸은 바뀐 대로 두고 저장했습니다.\n"_s + labels.join(u", "_s) + u'\n';
  }
  for (const QString& column : change.running) {
    const double moved = movedBy(change, column), was = figureOf(change.read[column]),
                 is = figureOf(stored[column]);
    if (moved == 0 || was == is) continue;
    text += labelOf(change, column) + u" : 다른 PC나 화면에서 "_s + wonText(was) + u"에서 "_s + wonText(is) +
            u"(으)로 바뀌었으므로, 고친 차이 "_s + (moved > 0 ? u"+"_s : QString()) + wonText(moved) +
            u"만 더하여 "_s + wonText(is + moved) + u"(으)로 저장했습니다.\n"_s;
  }
  if (!text.isEmpty()) session.prompts.MsgInfo(text.trimmed(), title);
}

}  // namespace

MergedRow mergeRow(const RowChange& change, const RegisterFields& stored) {
  MergedRow merged{.row = stored};
  for (auto typed = change.typed.begin(); typed != change.typed.end(); ++typed) {
    const QString& column = typed.key();
    if (change.running.contains(column)) continue;
    const bool changedHere = typed.value() != change.shown[column];
    const bool changedThere = change.read.contains(column) && stored[column] != change.read[column];
    if (changedHere) merged.row[column] = typed.value();
    if (!changedThere) continue;
    if (!changedHere)
      merged.others << column;
    else if (stored[column] != typed.value())
      merged.both << column;
  }
  merged.others.sort();
  merged.both.sort();
  return merged;
}

double movedBy(const RowChange& change, const QString& column) {
  const auto typed = change.typed.constFind(column);
  return typed == change.typed.constEnd() ? 0 : figureOf(*typed) - figureOf(change.shown[column]);
}

QString movedFigures(const RowChange& change, const RegisterFields& stored) {
  QString sql;
  for (const QString& column : change.running) {
    const double moved = movedBy(change, column);
    if (moved == 0) continue;
    const QString amount = jet::textOf(qAbs(moved));
    sql += u", "_s + column + u" = "_s + (stored[column].isEmpty() ? u"0"_s : column) +
           (moved < 0 ? u" - "_s : u" + "_s) + amount;
  }
  return sql;
}

RowOutcome changeRow(
    const Session& session, const RowSource& source, const QString& title, const RowChange& change,
    const std::function<void(const RegisterFields& row, const RegisterFields& stored)>& write) {
  std::optional<RegisterFields> stored = readStored(session, source);
  for (;;) {
    if (!stored) {
      session.prompts.MsgWarn(
          u"다른 PC나 화면에서 이미 삭제된 자료입니다!\n"
          u"입력한 내용은 칸에 남아 있습니다. 새로 등록하려면 다시 저장하고, 버리려면 취소를 누르십시오."_s,
          title);
      return {RowEnd::Gone};
    }
    const MergedRow merged = mergeRow(change, *stored);
    if (!merged.both.isEmpty() && !mayWriteOver(session, title, change, *stored, merged.both))
      return {RowEnd::Refused, merged.both.front()};
    // No lock is held while the operator thinks, so the row is read once more together with the writing.
    bool written = false;
    session.wsMain.Together([&] {
      const std::optional<RegisterFields> now = readStored(session, source);
      written = now == stored;
      if (written)
        write(merged.row, *stored);
      else
        stored = now;
    });
    if (!written) continue;
    tellMerged(session, title, change, *stored, merged.others);
    return {RowEnd::Done};
  }
}

RowEnd deleteRow(const Session& session, const RowSource& source, const QString& title,
                 const RegisterFields& read, const std::function<void()>& work) {
  RowEnd end = RowEnd::Done;
  session.wsMain.Together([&] {
    const std::optional<RegisterFields> stored = readStored(session, source);
    if (!stored) {
      end = RowEnd::Gone;
      return;
    }
    for (auto was = read.begin(); was != read.end(); ++was)
      if ((*stored)[was.key()] != was.value()) end = RowEnd::Changed;
    if (end == RowEnd::Done) work();
  });
  if (end == RowEnd::Gone) session.prompts.MsgWarn(u"다른 PC나 화면에서 이미 삭제된 자료입니다!"_s, title);
  if (end == RowEnd::Changed)
    session.prompts.MsgWarn(
        u"다른 PC나 화면에서 바뀐 자료이므로 삭제하지 않았습니다!\n바뀐 내용을 확인한 후 다시 삭제하십시오."_s,
        title);
  return end;
}

RegisterFields fieldsOf(const jet::Recordset& row) {
  RegisterFields fields;
  const QStringList names = row.fieldNames();
  for (int at = 0; at < names.size(); ++at) fields.insert(names[at], row[at].toText());
  return fields;
}

std::optional<QString> textTooLong(const Session& session, const QString& table, const RegisterFields& texts,
                                   const RegisterFields& labels, const QString& title) {
  for (const jet::Field& field : session.dbBasic.tableDef(table).fields) {
    const auto text = texts.constFind(field.name);
    if (text == texts.constEnd() || field.type != jet::Type::Text || field.size <= 0 ||
        text->size() <= field.size || hasApostrophe(*text))
      continue;
    session.prompts.MsgWarn(labels.value(field.name, field.name) + u" 칸에는 "_s +
                                QString::number(field.size) + u"자까지 입력할 수 있습니다! (지금 "_s +
                                QString::number(text->size()) + u"자)"_s,
                            title);
    return field.name;
  }
  return {};
}

bool hasApostrophe(const QString& text) {
  constexpr char16_t apostrophe = 0x27;
  return text.contains(QChar(apostrophe));
}

QString typedNumber(const QString& typed) {
  return jet::textOf(jet::val(QString(typed).remove(u',')));
}
