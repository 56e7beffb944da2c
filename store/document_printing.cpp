#include "store/document_printing.h"

#include "store/session.h"

using namespace Qt::StringLiterals;

namespace {

const QString driveSection = u"Drive"_s;

QString printSetting(const Session& session, const QString& section, const QString& key) {
  return session.pc.settings.GetSetting(session.AppTitle, section, key);
}

}  // namespace

const QStringList& documentKinds() {
  static const QStringList kinds{u"거래명세표"_s, u"세금계산서"_s, u"청구서"_s, u"물품가격"_s, u"DM인쇄"_s};
  return kinds;
}

QString documentPrinter(const Session& session, const QString& kind) {
  return printSetting(session, driveSection, kind);
}

void setDocumentPrinter(Session& session, const QString& kind, const QString& printer) {
  session.pc.settings.SaveSetting(session.AppTitle, driveSection, kind, printer);
}

DocumentMargins documentMargins(const Session& session, const QString& kind) {
  return {printSetting(session, kind, u"topmargin"_s), printSetting(session, kind, u"LeftMargin"_s)};
}

void setDocumentMargins(Session& session, const QString& kind, const DocumentMargins& margins) {
  session.pc.settings.SaveSetting(session.AppTitle, kind, u"TopMargin"_s, margins.top);
  session.pc.settings.SaveSetting(session.AppTitle, kind, u"LeftMargin"_s, margins.left);
}
