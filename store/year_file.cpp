#include "store/year_file.h"

#include <algorithm>

#include "store/data_access.h"
#include "store/data_files.h"
#include "store/jet/file_system.h"
#include "store/jet/presence.h"
#include "store/session.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int yearDigits = 4;
}

QString yearTemplate() {
  return yearFileName(u"2002"_s);
}

QString yearFileName(const QString& year) {
  return year + u"Foundation.mdb"_s;
}

QString yearFile(const Session& session, const QString& year) {
  return session.DbPath + yearFileName(year);
}

QString yearFile(const Session& session, int year) {
  return yearFile(session, QString::number(year));
}

int openedYear(const Session& session) {
  if (!session.dbYear.isOpen()) return session.WorkYear.toInt();
  return session.dbYear.path().right(yearTemplate().size()).left(yearDigits).toInt();
}

LineDays lineDays(const Session& session, int year) {
  const bool passed = year == openedYear(session) && year < session.pc.clock.today().year();
  return {u"%1-01-01"_s.arg(year), u"%1-12-31"_s.arg(passed ? 9999 : year)};
}

QString daysAre(const QString& field, const LineDays& days) {
  return plainPath(field) + u" >= '"_s + plainText(days.first) + u"' And "_s + plainPath(field) + u" <= '"_s +
         plainText(days.last) + u"'"_s;
}

jet::Database openYear(const Session& session, const QString& year) {
  jet::Database db;
  OpenDB(session.wsMain, db, yearFile(session, year));
  return db;
}

jet::Database openYear(const Session& session, int year) {
  return openYear(session, QString::number(year));
}

void walkYears(const Session& session, const std::function<void(const QString& file)>& work) {
  for (int year = session.pc.clock.today().year();; --year) {
    const QString file = yearFile(session, year);
    if (!isThere(session.pc.paths, file)) return;
    work(file);
  }
}

QStringList yearFileNames(const Session& session, const QString& folder) {
  return filesIn(session.pc.paths, folder, yearFileName(u"*"_s));
}

std::set<int> yearsThere(const Session& session) {
  std::set<int> years;
  for (const QString& file : yearFileNames(session, session.DbPath))
    if (const int year = file.left(yearDigits).toInt(); year > 0 && file != yearTemplate())
      years.insert(year);
  return years;
}

QStringList yearFiles(const Session& session, const jet::Workspace& workspace, const QString& folder) {
  QStringList files;
  for (const QString& name : yearFileNames(session, folder)) {
    jet::Database db;
    if (openWhereThere(session, workspace, db, folder + name) && db.hasTable(u"Buy"_s))
      files << folder + name;
  }
  return files;
}

namespace {

/** A sound file with a year's tables. Throws jet::Error when that cannot be told. */
bool isYearFile(const QString& nativePath) {
  try {
    const jet::Workspace workspace{jet::Workspace::Options{}};
    const jet::Database file = workspace.OpenDatabase(nativePath);
    const auto tables = schema::tablesOf(schema::File::Year);
    return file.isSound() && std::all_of(tables.begin(), tables.end(), [&](const jet::TableDef& table) {
             return table.isLink() || file.hasTable(table.name);
           });
  } catch (const jet::Error& error) {
    if (error.number() == 3049 || error.number() == 3343) return false;
    throw;
  }
}

}  // namespace

void makeYearFile(Session& session, const QString& year) {
  const pc::Paths& paths = session.pc.paths;
  const QString path = yearFile(session, year);
  if (isThere(paths, path)) return;
  const jet::AloneWith alone(paths.native(path), makersPatience);
  if (isThere(paths, path)) return;
  jet::requireNothing(paths.native(path));
  const QString empty = session.DbPath + yearTemplate();
  if (isThere(paths, empty) && !isYearFile(paths.native(empty))) {
    throw jet::Error(3049, empty + u" 견본 파일이 손상되어 "_s + year +
                               u"년 자료 파일을 만들지 않았습니다. "_s +
                               u"그 파일을 지우고 다시 시작하면 견본을 새로 만듭니다."_s);
  }
  if (!paths.copy(empty, path)) throw jet::Error(75, path + u" 파일을 만들 수 없습니다."_s);
}
