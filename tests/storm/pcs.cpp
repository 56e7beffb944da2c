#include "tests/storm/pcs.h"

#include <QThread>

#include "tests/storm/books.h"
#include "tests/storm/poster.h"

using namespace Qt::StringLiterals;

namespace storm {
namespace {

/** ROOT MILLISECONDS: one group that writes to both files and is held open so long. */
int holdLock(const QStringList& arguments) {
  Pc here(arguments.at(0));
  here.open();
  here.session.wsMain.Together([&] {
    here.session.dbYear.Execute(u"Update Client Set Memo = 'held' Where Code = 1"_s);
    here.session.dbYear.Execute(u"Update Sale Set Response = '' Where SaleID = 0"_s);
    report(QLatin1String(word::ready));
    QThread::msleep(arguments.at(1).toULong());
  });
  return 0;
}

}  // namespace

int runPc(const QStringList& arguments) {
  const QString work = arguments.value(0);
  if (work == u"post") return runPoster(arguments.mid(1));
  if (work == u"hold") return holdLock(arguments.mid(1));
  return 1;
}

int measure(int shortOne, int longOne) {
  return qEnvironmentVariable("HAEON_STORM") == u"long" ? longOne : shortOne;
}

}  // namespace storm
