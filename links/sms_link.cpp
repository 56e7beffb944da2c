#include "links/sms_link.h"

#include <QFile>

#include "pc/cp949.h"
#include "store/settings_table.h"

using namespace Qt::StringLiterals;

namespace {

struct Sender {
  QString program, label;
  pc::Setting folder;
};

const Sender& senderOf(int toolIndex) {
  static const Sender text{u"RWSMS.exe"_s, u"문자전송"_s, setting::SmsFolder},
      relay{u"RWRelay.exe"_s, u"팩스/음성전송"_s, setting::RelayFolder};
  return toolIndex == TextTool ? text : relay;
}

QString inFolder(const QString& folder, const QString& file) {
  return folder.endsWith(u'\\') ? folder + file : folder + u'\\' + file;
}

/** The line's own separators stay out of a name; a comma stays in. */
QString listedName(QString name) {
  return name.remove(u';').remove(u':');
}

int firstTicked(const SpreadModel& grid, int colCheck) {
  for (int row = 1; row <= grid.MaxRows(); ++row)
    if (grid.text(row, colCheck) == u'1') return row;
  return 0;
}

}  // namespace

QString senderLabel(int toolIndex) {
  return senderOf(toolIndex).label;
}

QString GetSenderPath(Session& session, int toolIndex) {
  const Sender& sender = senderOf(toolIndex);
  const pc::Paths& paths = session.pc.paths;
  if (paths.exists(inFolder(paths.programFolder(), sender.program))) return paths.programFolder();
  QString folder = session.pc.settings.read(sender.folder);
  // Both texts speak of 문자전송, whichever tool is missing; kept.
  if (folder.isEmpty()) {
    session.prompts.MsgInfo(u"문자전송 실행파일을 찾을 수 없습니다."_s);
    return {};
  }
  const QString program = inFolder(folder, sender.program);
  if (paths.exists(program)) return folder;
  session.prompts.MsgInfo(u"문자전송 프로그램을 찾을 수 없습니다.\n파일명:\n"_s + program + u'\n' +
                          u"라온웨어 홈페이지에서 문자전송 프로그램을 다운받아 설치하세요."_s);
  return {};
}

bool CreateTelListFile(const Session& session, const SpreadModel& grid, const QString& path, int colCheck,
                       int colName, int colTel) {
  QFile file(session.pc.paths.native(path));
  if (file.exists() && !file.remove()) return false;
  if (!file.open(QIODevice::WriteOnly)) return false;
  for (int row = 1; row <= grid.MaxRows(); ++row) {
    if (grid.text(row, colCheck) != u'1') continue;
    const QString name = listedName(grid.text(row, colName));
    for (const QString& part : grid.text(row, colTel).split(u',')) {
      const QString number = part.trimmed();
      if (number.isEmpty()) continue;
      const QByteArray line = pc::toCp949(number + u',' + name) + "\r\n";
      if (file.write(line) != line.size()) return false;
    }
  }
  return file.flush();
}

bool TransFromSpread(Session& session, const SpreadModel& grid, int colCheck, int colName, int colTel,
                     int toolIndex) {
  const Sender& sender = senderOf(toolIndex);
  const QString folder = GetSenderPath(session, toolIndex);
  if (folder.isEmpty()) return false;
  QString list;
  if (firstTicked(grid, colCheck) > 0) {
    list = inFolder(folder, u"ExternTelNo.txt"_s);
    if (!CreateTelListFile(session, grid, list, colCheck, colName, colTel)) list.clear();
  } else if (!session.prompts.MsgAsk(u"전송할 자료를 선택하지 않았습니다.\n그래도, "_s + sender.label +
                                         u" 프로그램을 실행할까요?"_s,
                                     u"SMS"_s)) {
    return false;
  }
  const QString program = inFolder(folder, sender.program);
  if (session.pc.process.start(program, {list.isEmpty() ? u"0"_s : session.pc.paths.native(list)}))
    return true;
  session.prompts.MsgWarn(sender.label + u" 프로그램을 시작할 수 없습니다.\n"_s + program);
  return false;
}
