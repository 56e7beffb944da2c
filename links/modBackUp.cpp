#include "links/modBackUp.h"

using namespace Qt::StringLiterals;

namespace {

struct BackupWork {
  const char16_t* label;
  const char16_t* backup;   ///< the compressor's argument
  const char16_t* restore;  ///< the same for putting back
};
constexpr BackupWork backupWork[] = {{u"하드", u"", u""},
                                     {u"서버", u" SERVERUP", u" UNZIP"},
                                     {u"AS", u" AS", u""},
                                     {u"하드", u" HDDAUTO", u" HDDAUTO"}};

const BackupWork& workOf(BackupKind kind) {
  return backupWork[kind >= 0 && kind <= 3 ? kind : 0];
}

/** argument with its leading blank, as it stands behind the compressor's path. */
bool startCompressor(Session& session, const QString& argument, const CloseForms& closeForms) {
  if (closeForms && !closeForms()) return false;
  const QString compressor = session.pc.paths.programFolder() + u"\\데이터압축.EXE"_s;
  if (!session.pc.process.start(compressor, argument.split(u' ', Qt::SkipEmptyParts))) {
    session.prompts.MsgWarn(compressor + argument + u"\n데이터 압축 프로그램을 시작할 수 없습니다."_s,
                            u"데이터 백업"_s);
    return false;
  }
  session.ClosingForBackup = true;
  return true;
}

}  // namespace

bool RunBackup(Session& session, BackupKind kind, bool quiet, const CloseForms& closeForms) {
  const BackupWork& work = workOf(kind);
  if (!quiet && !session.prompts.MsgAsk(u"안전한 백업을 위하여 현재 사용중인 "_s + session.AppTitle +
                                            u" 프로그램을 종료합니다."_s + u'\n' + u"계속하시겠습니까?"_s,
                                        u"데이터 백업("_s + QString::fromUtf16(work.label) + u')'))
    return false;
  return startCompressor(session, QString::fromUtf16(work.backup), closeForms);
}

bool RunRestore(Session& session, BackupKind kind, const CloseForms& closeForms) {
  if (!session.prompts.MsgAsk(u"안전한 복구를 위하여 현재 사용중인 "_s + session.AppTitle +
                                  u" 프로그램을 종료합니다."_s + u'\n' + u"계속하시겠습니까?"_s,
                              u"데이터 내려받기"_s))
    return false;
  return startCompressor(session, QString::fromUtf16(workOf(kind).restore), closeForms);
}

bool AskBackupOnExit(Session& session, const CloseForms& closeForms, const std::function<int()>& ask) {
  enum Button { Server, Disk, End, Cancel };
  switch (ask()) {
    case Server:
      return RunBackup(session, 1, true, closeForms);
    case Disk:
      return RunBackup(session, 0, true, closeForms);
    case End:
      return true;
    default:
      return false;
  }
}
