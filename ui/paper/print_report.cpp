#include "ui/paper/print_report.h"

#include "store/session.h"
#include "store/settings_table.h"
#include "ui/forms/FrmProgress.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int pagesWithoutBar = 20;  ///< so many are printed at once, without showing progress

std::optional<PrintChoice> ask(Session& session, int pages, QWidget* parent) {
  const QString before = session.pc.settings.read(setting::ReportPrinter);
  return askPrintChoice(session.prompts, *session.printers, before, pages, parent);
}

}  // namespace

PrintChooser& printChooser() {
  static PrintChooser chooser = ask;
  return chooser;
}

bool askAndPrint(Session& session, const pc::Report& report, const QString& title, QWidget* parent) {
  const auto choice = printChooser()(session, report.pages().count(), parent);
  if (!choice) return false;
  session.pc.settings.write(setting::ReportPrinter, choice->printer);
  return printTo(session, report, title, choice->printer, {choice->first - 1, choice->last - 1}, parent);
}

bool printTo(Session& session, const pc::Report& report, const QString& title, const QString& printer,
             pc::ReportRange range, QWidget* parent) {
  const auto job = session.printers->open(printer, title, report.layout().paper);
  const int pages = (range.last < 0 ? report.pages().count() : range.last + 1) - range.first;
  std::optional<FrmProgress> bar;
  if (pages > pagesWithoutBar) bar.emplace(u"인쇄 중입니다... 잠시만 기다려 주세요."_s, pages, true, parent);
  return pc::printReport(*job, report, range, [&](int done) { return !bar || bar->step(done); });
}
