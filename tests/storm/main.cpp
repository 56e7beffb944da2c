// The storm's program: the tests, and with a first argument "--pc" one more PC that works on the same folder.
#include <QCoreApplication>
#include <QFileInfo>
#include <csignal>
#include <cstdio>

#include "store/jet/error.h"
#include "tests/storm/pcs.h"

namespace {

/** The books lie in memory: a process that is killed loses no flush, and many more postings are caught a second.
 *  HAEON_STORM_FOLDER names another place, such as a disk. */
void chooseFolder() {
  const QByteArray named = qgetenv("HAEON_STORM_FOLDER");
  const QByteArray folder = named.isEmpty() ? QByteArray("/dev/shm") : named;
  if (QFileInfo(QString::fromLocal8Bit(folder)).isWritable()) qputenv("TMPDIR", folder);
}

}  // namespace

int main(int argc, char** argv) {
  chooseFolder();
  testing::InitGoogleTest(&argc, argv);
  QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.value(1) != QLatin1String("--pc")) return RUN_ALL_TESTS();
  try {
    return storm::runPc(arguments.mid(2));
  } catch (const jet::Error& error) {
    std::fprintf(stderr, "%d %s\n", error.number(), qPrintable(error.description()));
    return 2;
  }
}
