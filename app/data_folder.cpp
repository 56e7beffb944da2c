#include "app/data_folder.h"

#include <QDir>

#include "pc/file_name.h"
#include "store/session.h"
#include "store/settings_table.h"

using namespace Qt::StringLiterals;

QStringList DataFolder::drives() const {
  return session_.pc.paths.drives();
}

QStringList DataFolder::folders(const QString& path) const {
  return session_.pc.paths.folders(child(path, {}));
}

QString DataFolder::startDrive() const {
  return session_.DbPath.section(u'\\', 0, 0);
}

QString DataFolder::startFolder() const {
  QString rest = session_.DbPath.section(u'\\', 1);
  while (rest.endsWith(u'\\')) rest.chop(1);
  return startDrive() + u'\\' + rest;
}

QString DataFolder::child(const QString& path, const QString& name) {
  return (path.endsWith(u'\\') ? path : path + u'\\') + name;
}

QString DataFolder::parentOf(const QString& path) {
  const qsizetype cut = path.lastIndexOf(u'\\');
  if (cut < 0 || cut == path.size() - 1) return path;  // a drive's root has no parent
  const QString parent = path.left(cut);
  return parent.endsWith(u':') ? parent + u'\\' : parent;
}

QString DataFolder::create(const QString& parent) {
  const QString title = u"디렉토리 생성"_s;
  const QString name = session_.prompts.InputBox(u"새로 생성할 디렉토리명을 입력하세요."_s, title)
                           .value_or(QString())
                           .trimmed();
  if (name.isEmpty()) return {};
  QString path = child(parent, name);
  if (path.size() > maxPath) {
    session_.prompts.MsgWarn(u"경로명의 최대길이는 "_s + QString::number(maxPath) + u"입니다."_s, title);
    return {};
  }
  if (pc::fileNameOf(name, {}) != name || session_.pc.paths.exists(path) ||
      !session_.pc.paths.makeFolder(path)) {
    session_.prompts.MsgWarn(u"디렉토리를 생성할 수 없습니다."_s, title);
    return {};
  }
  session_.prompts.MsgInfo(u"디렉토리를 생성하였습니다."_s, title);
  return path;
}

bool DataFolder::remove(const QString& folder) {
  const QString title = u"디렉토리 삭제"_s;
  const QString name = folder.section(u'\\', -1);
  if (!session_.prompts.MsgAsk(u"'%1' 디렉토리를 삭제하시겠습니까?"_s.arg(name), title, false)) return false;
  if (!name.isEmpty() && QDir().rmdir(session_.pc.paths.native(folder))) return true;
  session_.prompts.MsgWarn(u"삭제하는 중 오류가 발생했습니다."_s, title);
  return false;
}

QString DataFolder::dataIn(const QString& folder) const {
  const QString base = child(folder.trimmed(), {});
  return session_.pc.paths.exists(base + u"Basic.mdb"_s) ? base : base + u"DBS\\"_s;
}

bool DataFolder::holdsData(const QString& folder) const {
  return session_.pc.paths.exists(dataIn(folder) + u"Basic.mdb"_s);
}

void DataFolder::use(const QString& folder) {
  const QString data = dataIn(folder);
  save(data, child(parentOf(data.chopped(1)), {}) + u"RPT\\"_s);
}

void DataFolder::save(const QString& data, const QString& reports) {
  session_.pc.settings.write(setting::DataFolder, data);
  session_.pc.settings.write(setting::ReportFolder, reports);
}

bool DataFolder::set(const QString& folder) {
  const QString base = child(folder.trimmed(), {});
  save(base + u"DBS\\"_s, base + u"RPT\\"_s);
  if (!session_.prompts.MsgAsk(u"해온판매의 데이터베이스 파일의 경로를 변경하였습니다."_s + u'\n' +
                                   u"변경된 파일을 사용하기 위해서는"_s + u'\n' +
                                   u"프로그램을 다시 실행하여야 합니다."_s + u'\n' +
                                   u"프로그램을 종료하시겠습니까?."_s,
                               u"경로 설정"_s))
    return false;
  for (auto* handle : {&session_.dbBasic, &session_.dbYear, &session_.dbTax, &session_.dbCommon})
    handle->Close();
  return true;
}

QStringList NetDrive::letters() {
  QStringList letters;
  for (char16_t letter = u'D'; letter <= u'Z'; ++letter) letters << QString(QChar(letter)) + u':';
  return letters;
}

QString NetDrive::map(const QString& share, const QString& letter) {
  const QString failure = session_.pc.paths.mapNetworkDrive(share.trimmed(), letter);
  if (failure.isEmpty()) return letter + u"\\ 드라이브로 네트워크 드라이브 연결이 되었습니다."_s;
  session_.prompts.MsgWarn(failure, u"네트워크 드라이브 연결"_s);
  return u"드라이브 연결이 실패되었습니다."_s;
}
