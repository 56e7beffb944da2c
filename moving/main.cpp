// Brings the books of the older format in: a program of its own, because the data folder must be closed meanwhile.
#include <QApplication>
#include <QTextStream>

#include <cstdio>
#include <cstring>

#include "moving/FrmMoveIn.h"
#include "moving/move_in.h"
#include "pc/program_line.h"
#include "store/data_files.h"
#include "ui/forms/korean.h"
#include "ui/forms/message_boxes.h"
#include "ui/forms/style.h"

using namespace Qt::StringLiterals;

namespace {

constexpr pc::ProgramLine programLine{
    "haeon-import", "[--window] [FOLDER]",
    "Brings the books of the older format (Jet 3 and Jet 4) into the data folder of 해온판매.\n"
    "  FOLDER      where the old files are; they are only read\n"
    "  --window    asks and shows in a window, also when no folder is named\n"
    "What was in the data folder stays beside it under a dated name. A report of everything goes to standard "
    "output.\n"
    "Exit status 0 when the books are in their place, 1 with the reason when nothing was changed.\n"
    "  HAEON_PC    the folder that stands for the drives and settings of the PC (~/.local/share/haeon)"};

/** Where nobody sits before a window: what would be said goes to the console. */
class ConsolePrompts : public Prompts {
 public:
  void MsgInfo(const QString& text, const QString&) override { say(text); }
  void MsgWarn(const QString& text, const QString&) override { say(text); }
  bool MsgAsk(const QString& text, const QString&, bool yesFirst) override {
    say(text);
    return yesFirst;
  }
  void ErrorBox(const QString& text, int number, const QString& description) override {
    say(text + u' ' + QString::number(number) + u' ' + description);
  }
  std::optional<QString> InputBox(const QString&, const QString&, const QString&) override { return {}; }

 private:
  void say(const QString& text) { QTextStream(stderr) << text << '\n'; }
};

void begin(Session& session) {
  session.AppTitle = u"해온판매"_s;
  session.DbPath = dataFolder(session);
}

int workOnConsole(const QString& folder) {
  pc::Pc pc(pc::Paths::defaultRoot());
  ConsolePrompts prompts;
  Session session(pc, prompts);
  begin(session);
  try {
    const moving::MoveReport report =
        moving::moveIn(session, pc.paths.native(folder), [](const QString& what, qint64 done, qint64 total) {
          if (total > 0) QTextStream(stderr) << what << " (" << done * 100 / total << "%)\n";
          return true;
        });
    QTextStream(stdout) << report.text();
    return 0;
  } catch (const jet::Error& error) {
    QTextStream(stderr) << error.description() << "\n가져오지 않았습니다. 두 폴더 모두 그대로 있습니다.\n";
    return 1;
  }
}

int workInWindow(QApplication& application, const QString& folder) {
  speakKorean(application);
  look::apply(application);
  pc::Pc pc(pc::Paths::defaultRoot());
  MessageBoxes boxes([] { return u"이전 자료 가져오기"_s; });
  Session session(pc, boxes);
  begin(session);
  moving::FrmMoveIn window(session, folder);
  window.exec();
  if (window.moved() && boxes.MsgAsk(u"해온판매를 시작하시겠습니까?"_s))
    pc.process.start(u"C:\\RWGas\\haeon"_s);
  return window.moved() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (pc::saidOfItself(programLine, argc, argv)) return 0;
  const bool inWindow = argc == 1 || std::strcmp(argv[1], "--window") == 0;
  if (argc > (inWindow ? 3 : 2)) return pc::wrongUse(programLine);
  if (!inWindow) {
    QCoreApplication application(argc, argv);
    return workOnConsole(application.arguments().at(1));
  }
  QApplication application(argc, argv);
  return workInWindow(application, application.arguments().value(2));
}
