// bench [--quick] [part of a row's name]
#include <benchmark/benchmark.h>

#include <QApplication>

namespace bench {
void runAll(const QString& filter, bool quick);
}

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QStringList arguments = QApplication::arguments().sliced(1);
  const bool quick = arguments.removeAll(QStringLiteral("--quick")) > 0;
  char program[] = "bench";
  char* flags[] = {program, nullptr};
  int count = 1;
  benchmark::Initialize(&count, flags);
  bench::runAll(arguments.value(0), quick);
  return 0;
}
