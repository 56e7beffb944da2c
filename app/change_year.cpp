#include "app/change_year.h"

#include "store/year_file.h"

using namespace Qt::StringLiterals;

QStringList changeableYears(const Session& session) {
  constexpr int around = 5;
  const int now = session.pc.clock.today().year();
  QStringList years;
  for (int year = now - around; year <= now + around; ++year) years << u"%1"_s.arg(year, 4, 10, QChar(u'0'));
  return years;
}

void changeYear(Session& session, const QString& year) {
  session.dbYear = session.wsMain.OpenDatabase(yearFile(session, year));
  const QDateTime now = session.pc.clock.now();
  session.pc.clock.set(now.addYears(year.toInt() - now.date().year()));
  session.prompts.MsgInfo(u"작업년도가 변경되었습니다."_s);
}
