#include "app/move_in_start.h"

#include "moving/move_in.h"
#include "store/data_files.h"

using namespace Qt::StringLiterals;

namespace {

bool startImporter(Session& session, const QStringList& folder) {
  const QString importer = session.pc.paths.programFolder() + u"\\haeon-import"_s;
  if (session.pc.process.start(importer, QStringList{u"--window"_s} + folder)) return true;
  session.prompts.MsgWarn(importer + u"\n이전 자료를 가져오는 프로그램을 시작할 수 없습니다."_s);
  return false;
}

}  // namespace

bool startMoveIn(Session& session, const std::function<bool()>& closeForms) {
  if (!session.prompts.MsgAsk(u"이전 형식의 자료를 가져오기 위하여 현재 사용중인 "_s + session.AppTitle +
                                  u" 프로그램을 종료합니다."_s + u'\n' + u"계속하시겠습니까?"_s,
                              u"이전 자료 가져오기"_s))
    return false;
  if (!closeForms() || !startImporter(session, {})) return false;
  session.ClosingForBackup = true;
  return true;
}

bool offeredMoveIn(Session& session) {
  const QString folder = dataFolder(session);
  if (!moving::holdsOldBooks(session.pc.paths.native(folder))) return false;
  if (!session.prompts.MsgAsk(folder + u" 에 이전 형식의 자료가 있습니다.\n"_s +
                                  u"지금 가져오시겠습니까? 이전 파일은 그대로 보관합니다."_s,
                              u"이전 자료 가져오기"_s))
    return false;
  return startImporter(session, {session.pc.paths.native(folder)});
}
