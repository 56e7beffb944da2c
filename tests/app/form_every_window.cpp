// What stands on every window and on the first page of every report, opened on the sample retailer's books: titles,
// columns, limits, figures, the order of Tab and where the hand begins, against the words that are kept.
#include <QApplication>
#include <QProcess>

#include "samples/sample_books.h"
#include "tests/support.h"

using namespace Qt::StringLiterals;

namespace {

QStringList linesIn(const QString& file) {
  QFile of(file);
  return of.open(QIODevice::ReadOnly) ? QString::fromUtf8(of.readAll()).split(u'\n') : QStringList();
}

TEST(FormEveryWindow, SaysWhatItSaid) {
  QTemporaryDir root;
  {
    pc::Pc pc(root.path());
    tests::ScriptedPrompts prompts;
    pc.clock.set(QDateTime(QDate(2026, 3, 16), QTime(9, 0)));
    samples::makeBooks(pc, prompts);
  }
  QProcess opener;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("HAEON_CLOCK", "2026-03-14 18:00:00");
  opener.setProcessEnvironment(environment);
  const QString found = root.path() + "/found";
  opener.start(QApplication::applicationDirPath() + "/../take_pictures", {"--words", root.path(), found});
  ASSERT_TRUE(opener.waitForFinished(240000)) << opener.errorString().toStdString();
  ASSERT_EQ(opener.exitCode(), 0) << opener.readAllStandardError().toStdString();

  const QStringList now = linesIn(found + "/words.txt"),
                    kept = linesIn(HAEON_TEST_DATA "/app/every_window.txt");
  QString window;
  qsizetype at = 0;
  while (at < now.size() && at < kept.size() && now[at] == kept[at]) {
    if (now[at].startsWith("= ")) window = now[at];
    ++at;
  }
  if (at == now.size() && at == kept.size()) return;
  QFile::remove("build/every_window.txt");
  QFile::copy(found + "/words.txt", "build/every_window.txt");
  ADD_FAILURE() << window.toStdString() << "\n  was: " << kept.value(at).toStdString()
                << "\n  now: " << now.value(at).toStdString()
                << "\nWhere the new words are right: build/every_window.txt is the file to keep.";
}

}  // namespace
