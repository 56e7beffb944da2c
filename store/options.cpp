#include "store/options.h"

#include "store/data_access.h"
#include "store/session.h"

using namespace Qt::StringLiterals;

namespace {

const char* const optionFailure = "프로그램 수행도중 오류가 발생했습니다.";

}  // namespace

QString GetOption(Session& session, const QString& name, const QString& fallback) {
  if (!session.dbCommon.isOpen()) return fallback;
  jet::Recordset rs;
  try {
    const QString sql = u"SELECT OPTValue FROM Options WHERE OPTName = '"_s + plainText(name) + u'\'';
    if (!OpenSnapshot(session.prompts, session.dbCommon, rs, sql)) return fallback;
    if (rs.RecordCount() > 0) return rs["OPTValue"].toText();
    session.dbCommon.Execute(u"INSERT INTO Options (OPTName, OPTValue) VALUES ('"_s + plainText(name) +
                             u"','"_s + plainText(fallback) + u"')"_s);
  } catch (const jet::Error& error) {
    session.prompts.tellError(QString::fromUtf8(optionFailure), error);
  }
  return fallback;
}

void SetOption(Session& session, const QString& name, const QString& value) {
  jet::Recordset rs;
  try {
    const QString sql = u"SELECT * FROM Options WHERE OPTName = '"_s + plainText(name) + u'\'';
    if (!OpenDynaset(session.prompts, session.dbCommon, rs, sql)) return;
    if (rs.RecordCount() > 0) {
      rs.Edit();
    } else {
      rs.AddNew();
      rs.set(u"OPTName"_s, name);
    }
    rs.set(u"OPTValue"_s, value);
    rs.Update();
  } catch (const jet::Error& error) {
    if (rs.isOpen()) rs.CancelUpdate();
    session.prompts.tellError(QString::fromUtf8(optionFailure), error);
  }
}
