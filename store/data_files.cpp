#include "store/data_files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <filesystem>

#include "store/data_access.h"
#include "store/folder_swap.h"
#include "store/jet/error_texts.h"
#include "store/jet/file_system.h"
#include "store/jet/presence.h"
#include "store/session.h"
#include "store/settings_table.h"
#include "store/year_file.h"

using namespace Qt::StringLiterals;

namespace {

const QString journalEnding = u"-journal"_s;

/** A file that was taken away while it was written is never made anew: its journal would be played into the new one. */
void checkJournals(const Session& session) {
  const pc::Paths& paths = session.pc.paths;
  for (const QString& journal : filesIn(paths, session.DbPath, u"*.mdb"_s + journalEnding)) {
    const QString file = session.DbPath + journal.chopped(journalEnding.size());
    if (!isThere(paths, file)) jet::requireFile(paths.native(file));
  }
}

/** The regulators every retailer knows, whose rows can be priced but not deleted. */
void fillFixedRegulators(const jet::Database& basic) {
  for (const QString& size : {u"4"_s, u"5"_s, u"7"_s, u"10"_s, u"20"_s, u"30"_s, u"50"_s}) {
    basic.Execute(u"Insert Into Volume(Size, Name, Unit) Values('"_s + plainText(size) + u"', '조정기 "_s +
                  plainText(size) + u"kg/h', 0)"_s);
  }
}

bool holdsYears(const Session& session) {
  QStringList files = yearFileNames(session, session.DbPath);
  files.removeAll(yearTemplate());
  return !files.isEmpty();
}

bool mayBegin(Session& session) {
  // Asked once more behind the years: a program started at the same instant may just have made both.
  if (holdsYears(session) && !isThere(session.pc.paths, session.DbPath + u"Basic.mdb"_s)) {
    session.prompts.MsgWarn(session.DbPath + u"Basic.mdb 파일을 찾을 수 없습니다."_s + u'\n' +
                            u"년도별 자료가 있으므로 새로 만들지 않습니다. 백업에서 복구하십시오."_s);
    return false;
  }
  if (session.DbPath.compare(installedDataFolder(), Qt::CaseInsensitive) == 0) return true;
  return session.prompts.MsgAsk(
      session.DbPath + u" 에 자료 파일이 없습니다."_s + u'\n' + u"자료 파일을 새로 만드시겠습니까?"_s, {},
      false);
}

}  // namespace

bool isThere(const pc::Paths& paths, const QString& written) {
  // Names are found without regard to case by reading folders; one that was not read would hide the file.
  return jet::isThere(paths.native(written)) || jet::isThere(paths.native(written));
}

QStringList filesIn(const pc::Paths& paths, const QString& folder, const QString& pattern) {
  namespace fs = std::filesystem;
  QStringList names;
  if (!isThere(paths, folder)) return names;
  std::error_code failure;
  for (fs::directory_iterator at(paths.native(folder).toStdU16String(), failure), end; !failure && at != end;
       at.increment(failure)) {
    const QString name = QString::fromStdU16String(at->path().filename().u16string());
    if (QDir::match(pattern, name)) names << name;
  }
  if (failure) throw jet::errorOf(3043, folder);
  names.sort(Qt::CaseInsensitive);
  return names;
}

bool openWhereThere(const Session& session, const jet::Workspace& workspace, jet::Database& db,
                    const QString& path) {
  db.Close();
  try {
    db = workspace.OpenDatabase(path);
    return true;
  } catch (const jet::Error& error) {
    const bool missing = error.number() == 3024 || error.number() == 3044;
    if (error.number() == 3043) throw;
    if (missing && isThere(session.pc.paths, path)) throw jet::errorOf(3043, path);
    return false;
  }
}

QString installedDataFolder() {
  return u"C:\\RWGas\\Dbs\\"_s;
}

QString dataFolder(const Session& session) {
  const QString chosen = session.pc.settings.read(setting::DataFolder).trimmed();
  if (chosen.isEmpty()) return installedDataFolder();
  return chosen.endsWith(u'\\') ? chosen : chosen + u'\\';
}

jet::Workspace openWorkspace(const Session& session, const QString& folder) {
  const pc::Paths& paths = session.pc.paths;
  return jet::Workspace({.mainFile = folder + u"Basic.mdb"_s,
                         .resolvePath = [&paths](const QString& written) { return paths.native(written); }});
}

bool makeDataFolder(const pc::Paths& paths, const QString& folder) {
  const QFileInfo made(paths.native(folder));
  if (made.exists()) return made.isDir();
  const QString path = QDir::cleanPath(made.filePath());
  QDir().mkpath(QFileInfo(path).path());
  return QDir().mkdir(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner) ||
         QFileInfo(path).isDir();
}

bool makeDataFile(const Session& session, const QString& path, schema::File kind) {
  const QString made = session.pc.paths.native(path), unfinished = made + u".new"_s;
  const jet::AloneWith alone(made, makersPatience);
  if (isThere(session.pc.paths, path)) return false;
  jet::requireNothing(made);
  for (const QString& left : {unfinished, unfinished + journalEnding})
    QFile::remove(left);  // of a start that failed
  {
    const jet::Workspace workspace{jet::Workspace::Options{}};
    const jet::Database file = workspace.CreateDatabase(unfinished);
    workspace.Together([&] {
      for (const jet::TableDef& table : schema::tablesOf(kind)) file.createTable(table);
      if (kind == schema::File::Basic) {
        fillFixedRegulators(file);
        file.Execute(u"INSERT INTO Options (OPTName, OPTValue) VALUES ('MICR용지','0')"_s);
      }
    });
  }
  if (!QFile::rename(unfinished, made)) throw jet::Error(75, path + u" 파일을 만들 수 없습니다."_s);
  return true;
}

bool prepareDataFolder(Session& session) {
  const pc::Paths& paths = session.pc.paths;
  const auto makeMissing = [&](const QString& name, schema::File kind) {
    return !isThere(paths, session.DbPath + name) && makeDataFile(session, session.DbPath + name, kind);
  };
  try {
    finishSwap(paths, session.DbPath);
    checkJournals(session);
    const bool first = !isThere(paths, session.DbPath + u"Basic.mdb"_s);
    if (first && !mayBegin(session)) return false;
    if (!makeDataFolder(paths, session.DbPath)) {
      throw jet::Error(75, u"폴더를 만들 수 없습니다. 경로와 쓰기 권한을 확인하십시오."_s);
    }
    makeMissing(yearTemplate(), schema::File::Year);
    makeMissing(u"Print.mdb"_s, schema::File::Print);
    if (makeMissing(u"dbTax.mdb"_s, schema::File::Tax) && !first) {
      session.prompts.MsgWarn(session.DbPath + u"dbTax.mdb 파일이 없어 빈 파일을 새로 만들었습니다."_s);
    }
    // A postcode file that is gone later is missed where postcodes are looked up; an empty one would hide the loss.
    if (first) makeMissing(u"dbPost.mdb"_s, schema::File::Post);
    // Last: from now on the folder counts as begun.
    if (first) makeMissing(u"Basic.mdb"_s, schema::File::Basic);
  } catch (const jet::Error& error) {
    session.prompts.tellError(session.DbPath + u" 의 자료 파일을 쓸 수 없습니다."_s, error);
    return false;
  }
  return true;
}
