#include "links/companion_tools.h"

#include "links/cash_book.h"
#include "store/data_files.h"
#include "store/settings_table.h"

using namespace Qt::StringLiterals;

namespace {

struct CompanionTool {
  const char16_t* program;  ///< with its backslash
  const char16_t* application;
  const char16_t* missing;
};
constexpr CompanionTool cashBookTool{u"\\CashPad", u"Cashbook", u"현금출납장 실행파일을 찾을 수 없습니다."};
constexpr CompanionTool scheduleTool{u"\\RWPlanner.exe", u"온누리일정",
                                     u"온누리일정 실행파일을 찾을 수 없습니다."};

/** The tool's folder without a last backslash; '' when it was missed, which has been told. */
QString folderOf(Session& session, const CompanionTool& tool) {
  const QString program = QString::fromUtf16(tool.program), missing = QString::fromUtf16(tool.missing),
                application = QString::fromUtf16(tool.application);
  const pc::Paths& paths = session.pc.paths;
  QString own = paths.programFolder();
  if (paths.exists(own + program)) return own;
  const pc::Setting place = setting::toolFolderOf(application);
  QString folder = session.pc.settings.read(place);
  if (folder.isEmpty()) {
    session.prompts.MsgWarn(missing);
    return {};
  }
  if (!paths.exists(folder)) {
    if (folder != own) session.pc.settings.write(place, own);
    folder = own;
  }
  if (folder.endsWith(u'\\')) folder.chop(1);
  if (paths.exists(folder + program)) return folder;
  session.prompts.MsgWarn(folder + program + u'\n' + missing);
  return {};
}

void startTool(Session& session, const CompanionTool& tool, const QString& folder,
               const QString& dataFolder) {
  const QString program = folder + QString::fromUtf16(tool.program);
  if (!session.pc.process.start(program, {dataFolder}))
    session.prompts.MsgWarn(program + u"\n프로그램을 시작할 수 없습니다."_s);
}

}  // namespace

void RunCashbook(Session& session, const QString& dataFolder, const QString& oldFile) {
  const QString folder = folderOf(session, cashBookTool);
  if (folder.isEmpty()) return;
  if (!oldFile.isEmpty() && !ConvCashBook(session, dataFolder, oldFile)) return;
  startTool(session, cashBookTool, folder, dataFolder);
}

void RunSchedule(Session& session, const QString& dataFolder, const QString&) {
  const QString folder = folderOf(session, scheduleTool);
  if (!folder.isEmpty()) startTool(session, scheduleTool, folder, dataFolder);
}

QString folderForTools(const Session& session) {
  if (session.DbPath.compare(installedDataFolder(), Qt::CaseInsensitive) == 0) return u"C:\\rwgas\\dbs"_s;
  return session.DbPath.endsWith(u'\\') ? session.DbPath.chopped(1) : session.DbPath;
}

QString oldCashBook() {
  return u"InOutCash.mdb"_s;
}
