#include "papers/paper_printer.h"

#include "store/session.h"
#include "store/settings_table.h"
#include "store/vb.h"

using namespace Qt::StringLiterals;

SlipPrinter slipPrinter(const Session& session) {
  const pc::Settings& settings = session.pc.settings;
  const QString top = settings.read(setting::GiroTop), left = settings.read(setting::GiroLeft);
  return {settings.read(setting::GiroPrinter), {vb::Val(top), vb::Val(left)}, top, left};
}

bool saveSlipPrinter(Session& session, const QString& device, const QString& top, const QString& left) {
  if (device.isEmpty()) {
    session.prompts.MsgWarn(u"프린터를 선택해 주십시오"_s, u"인쇄 관리자"_s);
    return false;
  }
  session.pc.settings.write(setting::GiroPrinter, device);
  session.pc.settings.write(setting::GiroTop, top);
  session.pc.settings.write(setting::GiroLeft, left);
  session.prompts.MsgInfo(u"프린터가 설정되었습니다."_s);
  return true;
}

const QStringList& documentKinds() {
  static const QStringList kinds{u"거래명세표"_s, u"세금계산서"_s, u"청구서"_s, u"물품가격"_s, u"DM인쇄"_s};
  return kinds;
}

QString documentPrinter(const Session& session, const QString& kind) {
  return session.pc.settings.read(setting::printerOf(kind));
}

QString documentPrinterOrDefault(const Session& session, const QString& kind) {
  const QString chosen = documentPrinter(session, kind);
  return chosen.isEmpty() && session.printers ? session.printers->defaultName() : chosen;
}

void setDocumentPrinter(Session& session, const QString& kind, const QString& printer) {
  session.pc.settings.write(setting::printerOf(kind), printer);
}

pc::PaperShift DocumentMargins::shift() const {
  return {vb::Val(top), vb::Val(left)};
}

DocumentMargins documentMargins(const Session& session, const QString& kind) {
  return {session.pc.settings.read(setting::topMarginOf(kind)),
          session.pc.settings.read(setting::leftMarginOf(kind))};
}

void setDocumentMargins(Session& session, const QString& kind, const DocumentMargins& margins) {
  session.pc.settings.write(setting::topMarginOf(kind), margins.top);
  session.pc.settings.write(setting::leftMarginOf(kind), margins.left);
}
