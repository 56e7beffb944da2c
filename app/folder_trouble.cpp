#include "app/folder_trouble.h"

#include <QFileInfo>

#include "store/session.h"

using namespace Qt::StringLiterals;

namespace {

FolderTrouble noDrive(const QString& drive) {
  return {FolderTrouble::Kind::NoDrive, drive + u" 드라이브가 없습니다."_s,
          u"네트워크 드라이브라면 자료가 있는 PC가 켜져 있는지 보고 [네트워크]에서 다시 연결하십시오. "
          u"외장 디스크라면 꽂은 뒤 [다시 시도]를 누르십시오."_s};
}

FolderTrouble silentShare(const QString& drive, const QString& share) {
  return {FolderTrouble::Kind::Network,
          u"네트워크 드라이브 "_s + drive + u" ("_s + share + u")에 연결할 수 없습니다."_s,
          u"자료가 있는 PC가 켜져 있는지, 네트워크 선과 공유기가 이어져 있는지 확인한 뒤 "
          u"[다시 시도]를 누르십시오. 자료는 그 PC에 그대로 있습니다."_s};
}

FolderTrouble noAccess(const QString& what) {
  return {FolderTrouble::Kind::NoAccess, what,
          u"폴더의 공유와 이 PC의 사용 권한을 확인한 뒤 [다시 시도]를 누르십시오."_s};
}

bool canBeRead(const QString& folder) {
  const QFileInfo info(folder);
  return info.isDir() && info.isReadable() && info.isExecutable();
}

}  // namespace

FolderTrouble reachDataFolder(const Session& session) {
  const pc::Paths& paths = session.pc.paths;
  const QString folder = session.DbPath;
  if (folder.size() >= 2 && folder[1] == u':') {
    const QString drive = folder.left(2).toUpper();
    if (!paths.drives().contains(drive)) return noDrive(drive);
    const QString share = paths.shareOf(drive);
    if (!share.isEmpty() && !canBeRead(share)) return silentShare(drive, share);
  }
  const QFileInfo there(paths.native(folder));
  if (!there.exists()) return {};
  if (!there.isDir()) return noAccess(u"자료 폴더의 자리에 폴더가 아닌 파일이 있습니다."_s);
  if (!canBeRead(there.filePath())) return noAccess(u"자료 폴더를 읽을 수 없습니다."_s);
  return {};
}

FolderTrouble whyNotStarted(const Session& session) {
  FolderTrouble trouble = reachDataFolder(session);
  if (trouble.any()) return trouble;
  const pc::Paths& paths = session.pc.paths;
  if (!paths.exists(session.DbPath))
    return {FolderTrouble::Kind::NoFolder, u"자료 폴더가 없습니다."_s,
            u"폴더를 옮기거나 이름을 바꾸었으면 [다른 폴더]에서 고르십시오. "
            u"네트워크 드라이브라면 공유한 폴더가 그대로인지 확인한 뒤 [다시 시도]를 누르십시오."_s};
  if (!paths.exists(session.DbPath + u"Basic.mdb"_s))
    return {FolderTrouble::Kind::NoData, u"자료 폴더에 자료 파일이 없습니다."_s,
            u"자료가 있는 폴더를 [다른 폴더]에서 고르거나, 백업에서 되살린 뒤 [다시 시도]를 누르십시오."_s};
  return {FolderTrouble::Kind::Told, u"자료 폴더에서 시작하지 못했습니다."_s,
          u"앞에서 알린 까닭을 바로잡은 뒤 [다시 시도]를 누르거나, [다른 폴더]를 고르십시오."_s};
}
