// Every call to the disk fails once, or from there on: whole states remain, each failure is told, and what failed can be
// done again.
#include <QCoreApplication>
#include <QTemporaryDir>

#include "tests/storm/child.h"
#include "tests/storm/pcs.h"
#include "tests/storm/sweep.h"

namespace storm {
namespace {

struct SweepOf : testing::TestWithParam<QString> {};

TEST_P(SweepOf, LeavesWholeStatesAndTellsEachFailure) {
  const QString library = QCoreApplication::applicationDirPath() + "/libfailing_disk.so";
  const char* const names[] = {"EIO", "ENOSPC", "EACCES", "short"};
  for (int fault = 0; fault < 4; ++fault)
    for (const int lasting : {0, 1}) {
      const QTemporaryDir folder;
      // A silent disk shows most, and some of it at two or three calls in a row alone.
      const int places = measure(fault == 0 ? 50 : 3, 0);
      Child child({"sweep", folder.path() + "/pc", GetParam(), QString::number(fault),
                   QString::number(lasting), QString::number(places)},
                  library);
      EXPECT_TRUE(child.finish(3'600'000));
      const QStringList swept = child.lines().filter("swept ");
      ASSERT_EQ(swept.size(), 1) << child.lines().join(u'\n').toStdString();
      EXPECT_EQ(child.lines().filter("fault "), QStringList())
          << names[fault] << (lasting ? " lasting" : " once");
      const QStringList words = swept.first().split(u' ');
      std::printf("%s: %s %s, %d places, told %d times\n", qPrintable(GetParam()), names[fault],
                  lasting ? "lasting" : "once", words.at(1).toInt(), words.at(2).toInt());
    }
}

INSTANTIATE_TEST_SUITE_P(Works, SweepOf, testing::ValuesIn(sweptWorks()),
                         [](const auto& work) { return QString(work.param).remove(u'-').toStdString(); });

}  // namespace
}  // namespace storm
