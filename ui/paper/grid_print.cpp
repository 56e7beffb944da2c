#include "ui/paper/grid_print.h"

#include "store/session.h"
#include "ui/paper/grid_report.h"
#include "ui/paper/print_report.h"

using namespace Qt::StringLiterals;

bool PrintGrid(Session& session, const SpreadModel& grid, const QString& title, QWidget* parent) {
  try {
    return askAndPrint(session, *gridReport(grid, title, session.pc.clock.dateText()), title, parent);
  } catch (const pc::ReportError& error) {
    session.prompts.MsgInfo(error.text, title);
  } catch (const pc::PrintError& error) {
    if (!error.text.isEmpty()) session.prompts.MsgWarn(u"인쇄를 시작할 수 없습니다!\n"_s + error.text, title);
  }
  return false;
}
