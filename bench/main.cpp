#include <benchmark/benchmark.h>

#include <QApplication>

#include "bench/pairs.h"
#include "pc/program_line.h"
#include "store/jet/error.h"

using namespace Qt::StringLiterals;

namespace bench {
void runAll(const QString& filter, bool quick);
}

int main(int argc, char** argv) {
  constexpr pc::ProgramLine programLine{
      "bench", "[--quick] [PART]",
      "Figures beside plain SQLite and plain drawing, each pair in one run.\n"
      "  --quick   the smallest size alone\n"
      "  PART      only rows with this in their name"};
  if (pc::saidOfItself(programLine, argc, argv)) return 0;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QStringList arguments = QApplication::arguments().sliced(1);
  const bool quick = arguments.removeAll(u"--quick"_s) > 0;
  char program[] = "bench";
  char* flags[] = {program, nullptr};
  int count = 1;
  benchmark::Initialize(&count, flags);
  try {
    bench::runAll(arguments.value(0), quick);
  } catch (const jet::Error& error) {
    bench::require(false, (error.description() + '\n' + error.statement()).toUtf8().constData());
  }
  return 0;
}
