#include "store/support_log.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include "pc/pc.h"
#include "store/jet/error_texts.h"
#include "store/jet/known_functions.h"
#include "store/schema.h"

using namespace Qt::StringLiterals;

namespace support {
namespace {

constexpr qint64 fullAt = 256 * 1024;
constexpr qsizetype longest = 600;
constexpr char16_t apostrophe = 39;

/** Capitals: the language's words, then every name of the schema. */
QSet<QString> speakableWords() {
  QSet<QString> words;
  for (const QString& word :
       u"ADD ALL ALTER AND AS ASC AVG BETWEEN BY COLUMN CONSTRAINT COUNT COUNTER CREATE CURRENCY DATETIME "
       u"DELETE "
       u"DESC DISTINCT DOUBLE DROP EXISTS FALSE FIRST FROM GROUP HAVING IIF IN INDEX INNER INSERT INTEGER "
       u"INTO IS "
       u"JOIN KEY LAST LEFT LIKE LONG MAX MEMO MIN MOD NOT NULL ON OR ORDER OUTER PRIMARY RIGHT SELECT SET "
       u"SHORT "
       u"SINGLE SUM TABLE TEXT TOP TRUE UNION UNIQUE UPDATE VALUES WHERE WITH XOR YESNO"_s.split(u' '))
    words << word;
  for (const schema::File file :
       {schema::File::Basic, schema::File::Year, schema::File::Tax, schema::File::Detail, schema::File::Post,
        schema::File::Print, schema::File::AptBaln, schema::File::InOutCash, schema::File::Cashbook,
        schema::File::Ledger}) {
    for (const jet::TableDef& table : schema::tablesOf(file)) {
      words << table.name.toUpper();
      for (const jet::Field& field : table.fields) words << field.name.toUpper();
    }
  }
  return words;
}

bool isSpeakable(const QString& word) {
  static const QSet<QString> words = speakableWords();
  const QString capitals = word.toUpper();
  return words.contains(capitals) || jet::knownFunction(capitals);
}

/** The name behind the last backslash or slash where it is a data file's, else "?". */
QString fileName(const QString& path) {
  static const QRegularExpression ours(
      u"(^|[\\\\/"
      u"])((Basic|Print|InOutCash|PeriodInOut|PerMonthly|LedgerList|\\d{4}Foundation|(OLD)?db[A-Za-z]{2,12})"
      u"\\.mdb)$"_s,
      QRegularExpression::CaseInsensitiveOption);
  const auto match = ours.match(path);
  return match.hasMatch() ? match.captured(2) : u"?"_s;
}

void append(const pc::Pc& pc, const QString& line) {
  try {
    const QString path = pc.paths.native(logFile(pc));
    const QFileInfo there(path);
    if (there.exists() && !there.isFile()) return;  // a pipe would be waited for
    if (!QDir().mkpath(there.path())) return;
    if (there.size() + line.size() > fullAt) {
      const QString before = there.path() + u"/errors.1.log"_s;
      QFile::remove(before);
      if (!QFile::rename(path, before)) QFile::remove(path);
    }
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append)) return;
    file.write((line + u'\n').toUtf8());
  } catch (...) {  // no room in memory: what is being told matters more
  }
}

QString stamp(const pc::Pc& pc) {
  return pc.clock.now().toString(u"yyyy-MM-dd HH:mm:ss"_s) + u" " HAEON_VERSION " "_s;
}

}  // namespace

QString logFile(const pc::Pc& pc) {
  return pc.paths.programFolder() + u"\\Log\\errors.log"_s;
}

QString statementShape(const QString& sql) {
  QString shape;
  const auto hide = [&shape] {
    if (!shape.endsWith(u'?')) shape += u'?';
  };
  const auto isWordLetter = [](QChar c) {
    return c.isLetterOrNumber() || c == u'_' || c.isSurrogate() || c.isMark();
  };
  for (qsizetype at = 0; at < sql.size() && shape.size() < longest;) {
    const QChar c = sql[at];
    qsizetype end = at + 1;
    if (c == apostrophe || c == u'"' || c == u'#') {
      const qsizetype close = sql.indexOf(c, at + 1);
      end = close < 0 ? sql.size() : close + 1;
      hide();
    } else if (c == u'[') {
      const qsizetype close = sql.indexOf(u']', at + 1);
      end = close < 0 ? sql.size() : close + 1;
      const QString inside = sql.mid(at + 1, end - at - 2);
      shape += u'[' + (isSpeakable(inside) ? inside : fileName(inside)) + u']';
    } else if (isWordLetter(c)) {
      while (end < sql.size() && isWordLetter(sql[end])) ++end;
      const QString word = sql.mid(at, end - at);
      if (isSpeakable(word))
        shape += word;
      else
        hide();
    } else if (c.isSpace()) {
      if (!shape.endsWith(u' ')) shape += u' ';
    } else if (u"=<>(),.*&+-/;!^"_s.contains(c)) {
      shape += c;
    } else {
      hide();
    }
    at = end;
  }
  return shape.trimmed();
}

void noteError(const pc::Pc& pc, const QString& window, const jet::Error& error) {
  static const QRegularExpression ours(u"^[fF]rm[A-Za-z0-9_]{1,40}$"_s);
  const QString general =
      error.number() == 482 ? u"프린터 오류"_s : jet::errorOf(error.number(), u"…"_s).description();
  append(pc, stamp(pc) + (ours.match(window).hasMatch() ? window : u"-"_s) + u' ' +
                 QString::number(error.number()) + u' ' + general.simplified() + u" | "_s +
                 (error.path().isEmpty() ? u"-"_s : fileName(error.path())) + u" | "_s +
                 (error.statement().isEmpty() ? u"-"_s : statementShape(error.statement())));
}

void noteRun(const pc::Pc& pc, Run run) {
  append(pc, stamp(pc) + (run == Run::Begins ? u"시작 "_s : u"끝 "_s) +
                 QString::number(QCoreApplication::applicationPid()));
}

}  // namespace support
