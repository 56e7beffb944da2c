// Whole roads by keys on the real windows: each file of tests/roads tells what an operator presses on the sample
// retailer's books, and below each line what that changes on the window, in the boxes, in the data files and on paper.
#include <QApplication>
#include <QProcess>

#include "samples/sample_books.h"
#include "tests/support.h"

using namespace Qt::StringLiterals;

namespace {

/** Plays the road on a copy of the books; the script with what came of each line. */
QString played(const QString& books, const QString& road) {
  QTemporaryDir copy;
  const QMap<QString, QByteArray> files = tests::contentsOf(books);
  for (auto file = files.cbegin(); file != files.cend(); ++file)
    tests::writeFile(copy.filePath(file.key()), *file);
  QProcess player;
  player.start(QApplication::applicationDirPath() + "/../play_keys", {copy.path(), road});
  EXPECT_TRUE(player.waitForFinished(120000)) << player.errorString().toStdString();
  EXPECT_EQ(player.exitCode(), 0) << player.readAllStandardError().toStdString();
  return QString::fromUtf8(player.readAllStandardOutput());
}

/** In parts, so that none of them takes long. */
constexpr int roadParts = 12;
struct FormRoads : testing::TestWithParam<int> {};

TEST_P(FormRoads, LeadWhereTheyLed) {
  QTemporaryDir books;
  {
    pc::Pc pc(books.path());
    tests::ScriptedPrompts prompts;
    pc.clock.set(QDateTime(QDate(2026, 3, 16), QTime(9, 0)));
    samples::makeBooks(pc, prompts);
  }
  const QDir folder(HAEON_TEST_DATA "/roads");
  const QStringList roads = folder.entryList({"*.txt"}, QDir::Files, QDir::Name);
  ASSERT_GE(roads.size(), roadParts);
  for (qsizetype road = GetParam(); road < roads.size(); road += roadParts) {
    const QString text = played(books.path(), folder.filePath(roads[road]));
    const QStringList now = text.split(u'\n'),
                      kept = tests::textOf(folder.filePath(roads[road])).split(u'\n');
    const auto [is, was] = std::ranges::mismatch(now, kept);
    if (is == now.end() && was == kept.end()) continue;
    tests::writeFile("build/roads/" + roads[road], text.toUtf8());
    ADD_FAILURE() << roads[road].toStdString() << ", line " << was - kept.begin() + 1
                  << "\n  was: " << (was == kept.end() ? "" : was->toStdString())
                  << "\n  now: " << (is == now.end() ? "" : is->toStdString())
                  << "\nWhere the new is right: tools/roads " << roads[road].chopped(4).toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Parts, FormRoads, testing::Range(0, roadParts));

}  // namespace
