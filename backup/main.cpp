// The data compressor: a program of its own, because the books must be closed while they are packed or put back. The
// main program starts it and ends.
#include <QApplication>

#include "backup/FrmArchive.h"
#include "pc/pc.h"
#include "pc/program_line.h"
#include "ui/forms/korean.h"
#include "ui/forms/message_boxes.h"
#include "ui/forms/style.h"

using namespace Qt::StringLiterals;

namespace {

constexpr pc::ProgramLine programLine{
    "데이터압축.EXE", "[SERVERUP | AS | HDDAUTO | UNZIP]",
    "Packs the data folder of 해온판매 and puts it back.\n"
    "  without a word  the window: a backup on this PC, what was kept, settings\n"
    "  SERVERUP        a backup on this PC and its copy on the server\n"
    "  AS              a backup for support, damaged files too\n"
    "  HDDAUTO         a backup on this PC that tells failures alone\n"
    "  UNZIP           the window, on the newest backup, to put it back\n"
    "Exit status 0 when the work was done.\n"
    "  HAEON_PC      the folder that stands for the drives and settings of the PC (~/.local/share/haeon)"};

int workInWindow(pc::Pc& pc, Prompts& boxes, bool toRestore) {
  backup::FrmArchive window(pc, boxes);
  if (toRestore) window.beginWithRestore();
  window.exec();
  if (window.restored() && boxes.MsgAsk(u"해온판매를 다시 시작하시겠습니까?"_s))
    pc.process.start(u"C:\\RWGas\\haeon"_s);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (pc::saidOfItself(programLine, argc, argv)) return 0;
  QApplication application(argc, argv);
  speakKorean(application);
  look::apply(application);
  pc::Pc pc(pc::Paths::defaultRoot());
  MessageBoxes boxes([] { return u"데이터 압축"_s; });
  backup::Compressor compressor(pc, boxes);
  using backup::Series;
  const QString word = application.arguments().mid(1).join(u' ');
  if (word.isEmpty() || word == "UNZIP"_L1) return workInWindow(pc, boxes, !word.isEmpty());
  if (word == "SERVERUP"_L1 && !backup::readSettings(pc).hasServer()) {
    compressor.backUp(Series::Books, true,
                      false);  // tells what is missing; the window then shows where it is set
    return workInWindow(pc, boxes, false);
  }
  if (word == "SERVERUP"_L1) return compressor.backUp(Series::Books, true, false) ? 0 : 1;
  if (word == "AS"_L1) return compressor.backUp(Series::Support, false, false) ? 0 : 1;
  if (word == "HDDAUTO"_L1) return compressor.backUp(Series::Books, false, true) ? 0 : 1;
  return pc::wrongUse(programLine);
}
