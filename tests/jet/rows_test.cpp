// Statements of the dialect on a real file: the queries and rows of tests/jet/rows.txt.
#include <QFile>

#include "tests/jet/engine_fixture.h"

using namespace jet_tests;

namespace {

std::string outcome(const jet::Database& db, const QString& sql) {
  try {
    if (sql.startsWith("select"_L1, Qt::CaseInsensitive)) return rows(db, sql);
    db.Execute(sql);
    return "done";
  } catch (const jet::Error& error) {
    return u"! %1 %2"_s.arg(error.number()).arg(error.description().section(u'\r', 0, 0)).toStdString();
  }
}

TEST(Rows, OfTheDialect) {
  QFile file(HAEON_TEST_DATA "/jet/rows.txt");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  QTemporaryDir folder;
  const jet::Workspace workspace({.mainFile = folder.filePath("a.mdb"), .resolvePath = {}});
  const jet::Database db = workspace.CreateDatabase(folder.filePath("a.mdb"));
  int count = 0;
  for (int number = 1; !file.atEnd(); ++number) {
    const QString line = QString::fromUtf8(file.readLine()).remove(u'\n');
    if (line.isEmpty() || line.startsWith(u'#')) continue;
    const bool runs = line.startsWith(u'>');
    const QString sql = runs ? line.mid(1).trimmed() : line.section(u'\t', 0, 0);
    const QString expected = runs ? "done" : line.section(u'\t', 1);
    EXPECT_EQ(outcome(db, sql), expected.toStdString()) << "line " << number << ": " << sql.toStdString();
    ++count;
  }
  EXPECT_GT(count, 100);
}

}  // namespace
