#include "pc/network_drive.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QStringList>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace pc {

namespace {

constexpr std::pair<int, QStringView> failureTexts[] = {
    {netAccessDenied, u"접근 불가"},
    {netAlreadyAssigned, u"이미 연결되어 있는 경로입니다."},
    {netBadDeviceType, u"장치 유형과 자원 유형이 일치하지 않습니다."},
    {netBadDevice, u"선택하신 경로가 유효하지 않습니다."},
    {netBadNetName, u"선택하신 경로가 유효하지 않거나 존재하지 않습니다."},
    {netBadProfile, u"사용자 프로파일을 열 수 없습니다."},
    {netCannotOpenProfile, u"사용자 프로파일을 열 수 없습니다."},
    {netAlreadyRemembered, u"선택하신 경로가 이미 다른 사용자 프로파일에서 사용중입니다."},
    {netInvalidPassword, u"사용자 암호가 유효하지 않습니다."},
    {netNoNetOrBadPath, u"네트워크 상의 컴퓨터가 작동중이지 않거나 사용할 수 없습니다."},
    {netNoNetwork, u"네트워크가 존재하지 않습니다."}};

}  // namespace

QString networkFailureText(int failure) {
  if (failure == 0) return {};
  const auto* const known = std::ranges::find(failureTexts, failure, &std::pair<int, QStringView>::first);
  return known == std::end(failureTexts) ? u"네트워크 상에 오류가 발생했습니다."_s : known->second.toString();
}

#ifdef Q_OS_WIN

Share findShare(const QString& share, const QString& letter) {
  using AddConnection = unsigned long(__stdcall*)(const wchar_t*, const wchar_t*, const wchar_t*);
  const auto add = reinterpret_cast<AddConnection>(QLibrary::resolve(u"mpr"_s, "WNetAddConnectionW"));
  if (!add) return {netNoNetwork, {}};
  // No password of its own: the share is opened as the user of the PC.
  const unsigned long result = add(share.toStdWString().c_str(), L"", letter.toStdWString().c_str());
  return {int(result), {}};
}

#else

namespace {

/** Folders under which \\server\share may already be mounted on this PC. */
QStringList mountedPlaces(const QString& server, const QString& share) {
  return {u"/mnt/%1/%2"_s.arg(server, share), u"/media/%1/%2"_s.arg(server, share),
          u"%1/gvfs/smb-share:server=%2,share=%3"_s.arg(qEnvironmentVariable("XDG_RUNTIME_DIR"),
                                                        server.toLower(), share.toLower())};
}

}  // namespace

Share findShare(const QString& share, const QString&) {
  QStringList places{share};
  int missing = netBadNetName;
  if (share.startsWith(u"\\\\"_s)) {
    QStringList names = share.split(u'\\', Qt::SkipEmptyParts);
    if (names.size() < 2) return {netBadNetName, {}};
    const QString server = names.takeFirst(), name = names.takeFirst();
    const QString below = names.isEmpty() ? QString() : u'/' + names.join(u'/');
    places = mountedPlaces(server, name);
    for (QString& place : places) place += below;
    missing = netNoNetOrBadPath;
  } else if (!share.startsWith(u'/')) {
    return {netBadDevice, {}};
  }
  for (const QString& place : places) {
    const QFileInfo folder(place);
    if (!folder.isDir()) continue;
    if (!folder.isReadable() || !folder.isExecutable()) return {netAccessDenied, {}};
    return {0, QDir::cleanPath(place)};
  }
  return {missing, {}};
}

#endif

}  // namespace pc
