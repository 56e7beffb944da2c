#include "giro/giro_run.h"

#include "billing/reading_screen.h"
#include "papers/paper_printer.h"
#include "store/data_access.h"
#include "store/session.h"

using namespace Qt::StringLiterals;

namespace {

const QString printManager = u"인쇄 관리자"_s;

bool isRegistered(Session& session) {
  jet::Recordset company;
  if (!OpenSnapshot(session.prompts, session.dbBasic, company, u"Select * From User"_s)) return false;
  if (!company.atEnd()) return true;
  session.prompts.MsgWarn(u"먼저 사용자 등록을 해 주십시오"_s, u"사용자 미등록"_s);
  return false;
}

}  // namespace

std::vector<int> rowsToPrint(const ReadingScreen& screen, GiroSelection selection) {
  const SpreadModel& readings = screen.readings();
  if (selection == GiroSelection::Active) {
    const int active = screen.activeReading();
    return active > 0 && active <= readings.MaxRows() ? std::vector<int>{active} : std::vector<int>{};
  }
  std::vector<int> rows;
  for (int row = 1; row <= readings.MaxRows(); ++row) {
    const bool ticked = readings.text(row, EvaCol::Prnt) == "1"_L1;
    if (selection == GiroSelection::All || ticked == (selection == GiroSelection::Ticked))
      rows.push_back(row);
  }
  return rows;
}

QString giroPrinter(Session& session) {
  QString device = slipPrinter(session).device;
  if (device.isEmpty())
    session.prompts.MsgWarn(
        u"지로출력을 위한 프린터가 설정되어 있지 않습니다\n프린터 설정을 해 주시기 바랍니다"_s, printManager);
  return device;
}

std::vector<int> giroRows(Session& session, const ReadingScreen* screen, GiroSelection selection) {
  if (!screen) {
    session.prompts.MsgWarn(u"체적검침 화면을 먼저 여십시오."_s, printManager);
    return {};
  }
  if (!isRegistered(session)) return {};
  std::vector<int> rows = rowsToPrint(*screen, selection);
  if (rows.empty()) session.prompts.MsgInfo(u"발행할 고객이 없습니다."_s, printManager);
  return rows;
}
