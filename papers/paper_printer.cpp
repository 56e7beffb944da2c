#include "papers/paper_printer.h"

#include "store/session.h"
#include "store/vb.h"

using namespace Qt::StringLiterals;

namespace {

const QString slipSection = u"프린터설정"_s, driveSection = u"Drive"_s;

QString printSetting(const Session& session, const QString& section, const QString& key) {
  return session.pc.settings.GetSetting(session.AppTitle, section, key);
}

void savePrintSetting(Session& session, const QString& section, const QString& key, const QString& value) {
  session.pc.settings.SaveSetting(session.AppTitle, section, key, value);
}

}  // namespace

SlipPrinter slipPrinter(const Session& session) {
  const QString top = printSetting(session, slipSection, u"TOP"_s),
                left = printSetting(session, slipSection, u"LEFT"_s);
  return {printSetting(session, slipSection, u"DEVICENAME"_s), {vb::Val(top), vb::Val(left)}, top, left};
}

bool saveSlipPrinter(Session& session, const QString& device, const QString& top, const QString& left) {
  if (device.isEmpty()) {
    session.prompts.MsgWarn(u"프린터를 선택해 주십시오"_s, u"인쇄 관리자"_s);
    return false;
  }
  savePrintSetting(session, slipSection, u"DEVICENAME"_s, device);
  savePrintSetting(session, slipSection, u"TOP"_s, top);
  savePrintSetting(session, slipSection, u"LEFT"_s, left);
  session.prompts.MsgInfo(u"프린터가 설정되었습니다."_s);
  return true;
}

const QStringList& documentKinds() {
  static const QStringList kinds{u"거래명세표"_s, u"세금계산서"_s, u"청구서"_s, u"물품가격"_s, u"DM인쇄"_s};
  return kinds;
}

QString documentPrinter(const Session& session, const QString& kind) {
  return printSetting(session, driveSection, kind);
}

QString documentPrinterOrDefault(const Session& session, const QString& kind) {
  const QString chosen = documentPrinter(session, kind);
  return chosen.isEmpty() && session.printers ? session.printers->defaultName() : chosen;
}

void setDocumentPrinter(Session& session, const QString& kind, const QString& printer) {
  savePrintSetting(session, driveSection, kind, printer);
}

pc::PaperShift DocumentMargins::shift() const {
  return {vb::Val(top), vb::Val(left)};
}

DocumentMargins documentMargins(const Session& session, const QString& kind) {
  return {printSetting(session, kind, u"topmargin"_s), printSetting(session, kind, u"LeftMargin"_s)};
}

void setDocumentMargins(Session& session, const QString& kind, const DocumentMargins& margins) {
  savePrintSetting(session, kind, u"TopMargin"_s, margins.top);
  savePrintSetting(session, kind, u"LeftMargin"_s, margins.left);
}
