// Statements on a data file with its links, for developers and support.
#include <QCoreApplication>
#include <QFileInfo>
#include <QTextStream>
#include <cstdio>

#include "pc/paths.h"
#include "pc/program_line.h"
#include "store/jet/database.h"

using namespace Qt::StringLiterals;

namespace {

constexpr pc::ProgramLine programLine{
    "jetsql", "[-h] FILE [\"STATEMENT\"]",
    R"(Runs statements in the program's own dialect on a data file with its links.
  FILE        as the program writes it: 'C:\RWGas\Dbs\Basic.mdb'
  STATEMENT   without one, many are read from standard input, one a line, up to the first that fails
  -h          field names before the rows
Rows come out as tab-separated text, Null as nothing.
Exit status 1 and the error's number and text when a statement fails, 2 for a wrong call.
HAEON_PC names the folder that stands for the PC.)"};

/** A row stays one line: what would break it is written as \t, \n, \r and \\. */
QString escaped(QString text) {
  return text.replace(u'\\', u"\\\\"_s)
      .replace(u'\t', u"\\t"_s)
      .replace(u'\n', u"\\n"_s)
      .replace(u'\r', u"\\r"_s);
}

void printRows(QTextStream& out, jet::Recordset rows, bool names) {
  const qsizetype fields = rows.fieldNames().size();
  if (names) out << rows.fieldNames().join(u'\t') << '\n';
  for (; !rows.atEnd(); rows.MoveNext()) {
    for (int field = 0; field < fields; ++field)
      out << (field ? u"\t"_s : QString()) << escaped(rows[field].toText());
    out << '\n';
  }
}

/** Execute refuses a query with 3065 before anything runs; such a statement gives rows. */
void runStatement(QTextStream& out, const jet::Database& db, const QString& sql, bool names) {
  try {
    db.Execute(sql);
    return;
  } catch (const jet::Error& error) {
    if (error.number() != 3065) throw;
  }
  printRows(out, db.OpenRecordset(sql), names);
}

int fail(const jet::Error& error, int line = 0) {
  QTextStream err(stderr);
  if (line > 0) err << line << ": ";
  err << error.number() << ' ' << error.description() << '\n';
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (pc::saidOfItself(programLine, argc, argv)) return 0;
  QCoreApplication app(argc, argv);
  QStringList arguments = app.arguments().mid(1);
  const bool names = !arguments.isEmpty() && arguments.first() == u"-h";
  if (names) arguments.removeFirst();
  QTextStream out(stdout);
  if (arguments.isEmpty() || arguments.size() > 2) return pc::wrongUse(programLine);
  const pc::Paths paths(pc::Paths::defaultRoot());
  const auto native = [&](const QString& written) { return paths.native(written); };
  int line = 0;
  try {
    // The folder's Basic.mdb as the main file, so that its links are written as the program itself writes them.
    const QString basic = QFileInfo(native(arguments.first())).path() + u"/Basic.mdb"_s;
    const jet::Workspace workspace({.mainFile = basic, .resolvePath = native});
    const jet::Database db = workspace.OpenDatabase(arguments.first());
    if (arguments.size() == 2) {
      runStatement(out, db, arguments[1], names);
      return 0;
    }
    QTextStream in(stdin);
    for (QString sql; in.readLineInto(&sql);) {
      ++line;
      if (!sql.trimmed().isEmpty()) runStatement(out, db, sql, names);
      out.flush();
    }
  } catch (const jet::Error& error) {
    out.flush();
    return fail(error, line);
  }
  return 0;
}
