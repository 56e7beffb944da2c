#include "giro/giro_run.h"

#include "billing/reading_screen.h"
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

QString automaticTransfer() {
  return u"(자동이체)"_s;
}

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

int runGiro(Session& session, const ReadingScreen* screen, const GiroRun& run) {
  const GiroSetup setup = readGiroSetup(session);
  if (setup.device.isEmpty()) {
    session.prompts.MsgWarn(
        u"지로출력을 위한 프린터가 설정되어 있지 않습니다\n프린터 설정을 해 주시기 바랍니다"_s, printManager);
    return 0;
  }
  if (!screen) {
    session.prompts.MsgWarn(u"체적검침 화면을 먼저 여십시오."_s, printManager);
    return 0;
  }
  if (!session.printers || !session.printers->names().contains(setup.device))
    throw pc::PrintError{u"설정된 프린터를 찾을 수 없습니다: "_s + setup.device};
  if (!isRegistered(session)) return 0;
  const std::vector<int> rows = rowsToPrint(*screen, run.selection);
  if (rows.empty()) {
    session.prompts.MsgInfo(u"발행할 고객이 없습니다."_s, printManager);
    return 0;
  }

  const auto job = session.printers->open(setup.device, run.title, run.paper);
  int done = 0;
  for (const int row : rows) {
    const int place = done % run.slipsOnPage;
    if (done > 0 && place == 0) job->newPage();  // not behind the last slip: that would be an empty sheet
    run.slip(*job, setup, row, place);
    ++done;
    if (run.tell && !run.tell(done, int(rows.size()))) break;
  }
  job->end();
  return done;
}
