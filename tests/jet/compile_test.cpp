// What each statement of the dialect becomes, read from tests/jet/cases.txt, and what a compiled statement tells.
#include "store/jet/compile.h"

#include <gtest/gtest.h>

#include <QFile>

#include "tests/jet/sample_catalogue.h"

using namespace jet;
using namespace Qt::StringLiterals;

namespace {

tests::SampleCatalogue catalogue;

int errorOf(const QString& sql) {
  try {
    compile(sql, catalogue);
  } catch (const Error& error) {
    return error.number();
  }
  return 0;
}

QString textOf(const QString& sql) {
  return QString::fromUtf8(compile(sql, catalogue).sql);
}

/** What the case's second field holds: the SQLite text, or "! number" for a refusal. */
QString outcomeOf(const QString& sql) {
  try {
    return textOf(sql);
  } catch (const Error& error) {
    return u"! %1"_s.arg(error.number());
  }
}

TEST(Compile, Cases) {
  QFile file(QStringLiteral(HAEON_TEST_DATA "/jet/cases.txt"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  int count = 0;
  for (int number = 1; !file.atEnd(); ++number) {
    const QString line = QString::fromUtf8(file.readLine()).trimmed();
    if (line.isEmpty() || line.startsWith(u'#')) continue;
    const QStringList parts = line.split(u'\t');
    ASSERT_GE(parts.size(), 2) << "line " << number;
    EXPECT_EQ(outcomeOf(parts[0]).toStdString(), parts[1].toStdString())
        << "line " << number << ": " << parts[0].toStdString();
    ++count;
  }
  EXPECT_GT(count, 10);
}

TEST(Compile, EverySecondStatementIsRefused) {
  EXPECT_EQ(errorOf(u"Select * From User; Delete * From User"_s), 3142);
  EXPECT_EQ(errorOf(u"Select * From User;"_s), 0);
}

}  // namespace
