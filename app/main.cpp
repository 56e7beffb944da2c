// The program's entry: one PC, one session, the start window, then the main window until it closes.
#include <QApplication>
#include <QScreen>
#include <memory>

#include "app/FrmFolderTrouble.h"
#include "app/FrmInitMsg.h"
#include "app/form_desk.h"
#include "app/form_help_key.h"
#include "app/form_pickers.h"
#include "app/form_tool_icons.h"
#include "app/frmMain.h"
#include "app/frmSplash.h"
#include "app/move_in_start.h"
#include "app/start_up.h"
#include "pc/program_line.h"
#include "store/settings_table.h"
#include "ui/forms/guard.h"
#include "ui/forms/korean.h"
#include "ui/forms/style.h"
#include "ui/paper/print_fonts.h"

using namespace Qt::StringLiterals;

namespace {

constexpr pc::ProgramLine programLine{
    "haeon", "",
    "해온판매: the back office of an LPG retailer.\n"
    "  HAEON_PC      the folder that stands for the PC's drives and settings (~/.local/share/haeon)\n"
    "  HAEON_CLOCK   \"2026-03-16 09:00:00\": the program's clock starts there\n"
    "  HAEON_COM1    the device of the port COM1\n"
    "  HAEON_PDF     the file that the PDF writer fills without asking"};

// Slips go to a bank's reader: letters of another font are told before they are printed.
void tellMissingFonts(Prompts& boxes) {
  const QStringList missing = missingPrintFonts();
  if (missing.isEmpty()) return;
  boxes.MsgWarn(
      u"인쇄에 쓰는 글꼴이 설치되어 있지 않습니다: "_s + missing.join(u", "_s) +
      u"\n프로그램은 계속 쓸 수 있으나 지로용지의 글자가 어긋나거나 은행에서 읽지 못할 수 있습니다."_s);
}

}  // namespace

int main(int argc, char** argv) {
  if (pc::saidOfItself(programLine, argc, argv)) return 0;
  QApplication application(argc, argv);
  QApplication::setApplicationName(u"haeon"_s);
  QApplication::setQuitOnLastWindowClosed(false);  // between the start window and the main one there is none
  QApplication::setWindowIcon(toolIcon(u"MnuOutcome"_s));
  speakKorean(application);
  look::apply(application);

  Desk desk(pc::Paths::defaultRoot());
  auto& [pc, boxes, session, printers, reports] = desk;
  StartUp startUp(session);
  FormPickers pickers(session);
  frmSplash splash(startUp, session);
  std::unique_ptr<frmMain> mainWindow;

  HelpKey help(boxes, [&mainWindow] { return mainWindow ? mainWindow->activeForm() : nullptr; });
  application.installEventFilter(&help);

  splash.ended = [] { QApplication::exit(0); };
  splash.signedIn = [&] {
    if (pc.settings.read(setting::NoticeHidden) == "0"_L1) FrmInitMsg(session).exec();
    mainWindow = std::make_unique<frmMain>(session, pickers);
    pickers.setContext(mainWindow->context());
    mainWindow->relink = [&] { startUp.relink(); };
    mainWindow->openGuide = [&] { help.open(); };
    mainWindow->closed = [&] {
      guarded(boxes, [&] { startUp.shutDown(); });
      QApplication::exit(0);
    };
    mainWindow->resize(mainWindow->screen()->availableSize());  // also where nothing manages the windows
    mainWindow->showMaximized();
    mainWindow->activateWindow();
    mainWindow->start();
    tellMissingFonts(boxes);
  };
  const auto showStartWindow = [&] {
    splash.load();
    if (!startUp.usable()) return;
    splash.move(splash.screen()->availableGeometry().center() - splash.rect().center());
    splash.show();
    splash.activateWindow();
  };
  // Until the books stand or the operator leaves: a drive that comes back needs no new start of the program.
  const auto begin = [&] {
    for (;;) {
      bool usable = false;
      if (guarded(boxes, [&] { usable = startUp.SubMain(showStartWindow); }) && usable) return true;
      splash.hide();
      if (!FrmFolderTrouble(whyNotStarted(session), session).tryAgain()) return false;
    }
  };
  splash.stuck = [&] {
    splash.hide();
    if (!FrmFolderTrouble(whyNotStarted(session), session).tryAgain() || !begin()) QApplication::exit(0);
  };
  session.AppTitle = u"해온판매"_s;
  if (offeredMoveIn(session)) return 0;
  if (!begin()) return 1;
  support::noteRun(pc, support::Run::Begins);
  const int result = QApplication::exec();
  support::noteRun(pc, support::Run::Ends);
  return result;
}
