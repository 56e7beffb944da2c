#include "store/options.h"

#include "store/data_access.h"
#include "store/session.h"

namespace {

const char* const optionFailure = "프로그램 수행도중 오류가 발생했습니다.";

}  // namespace

QString GetOption(Session& session, const QString& name, const QString& fallback) {
  if (!session.dbCommon.isOpen()) return fallback;
  jet::Recordset rs;
  try {
    const QString sql =
        QStringLiteral("SELECT OPTValue FROM Options WHERE OPTName = '") + plainText(name) + u'\'';
    if (!OpenSnapshot(session.prompts, session.dbCommon, rs, sql)) return fallback;
    if (rs.RecordCount() > 0) return rs["OPTValue"].toText();
    session.dbCommon.Execute(QStringLiteral("INSERT INTO Options (OPTName, OPTValue) VALUES ('") +
                             plainText(name) + QStringLiteral("','") + plainText(fallback) +
                             QStringLiteral("')"));
  } catch (const jet::Error& error) {
    session.prompts.tellError(QString::fromUtf8(optionFailure), error);
  }
  return fallback;
}

void SetOption(Session& session, const QString& name, const QString& value) {
  jet::Recordset rs;
  try {
    const QString sql = QStringLiteral("SELECT * FROM Options WHERE OPTName = '") + plainText(name) + u'\'';
    if (!OpenDynaset(session.prompts, session.dbCommon, rs, sql)) return;
    if (rs.RecordCount() > 0) {
      rs.Edit();
    } else {
      rs.AddNew();
      rs.set(QStringLiteral("OPTName"), name);
    }
    rs.set(QStringLiteral("OPTValue"), value);
    rs.Update();
  } catch (const jet::Error& error) {
    if (rs.isOpen()) rs.CancelUpdate();
    session.prompts.tellError(QString::fromUtf8(optionFailure), error);
  }
}
