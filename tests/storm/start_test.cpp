// Programs that are started at the same instant on one folder.
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <memory>

#include "tests/storm/child.h"
#include "tests/storm/pcs.h"
#include "tests/storm/poster.h"
#include "tests/storm/swept_works.h"

namespace storm {
namespace {

using namespace Qt::StringLiterals;

/** books: "first-start" for an empty folder, "start" for old files without this year's. */
void startTogether(const QString& books, int rounds) {
  for (int round = 0; round < rounds && !testing::Test::HasFailure(); ++round) {
    const QTemporaryDir folder;
    makeBooksFor(books, folder.path());
    std::vector<std::unique_ptr<Child>> children;
    for (int pc = 0; pc < 3; ++pc)
      children.push_back(std::make_unique<Child>(QStringList{u"--pc"_s, u"start-once"_s, folder.path()}));
    for (const auto& child : children) {
      EXPECT_TRUE(child->finish(60000)) << child->lines().join(u'\n').toStdString();
      EXPECT_EQ(child->lines().filter(QLatin1String(word::told)).join(u'\n').toStdString(), "")
          << "round " << round;
    }
    Pc here(folder.path());
    here.open();
    EXPECT_EQ(here.session.dbYear.OpenRecordset(u"Select Count(Code) As C From Client"_s)[0].toLong(),
              books == u"start" ? 1 : 0);
    for (const QString& name : here.pc.paths.list(here.session.DbPath, u"*"_s))
      EXPECT_TRUE(name.endsWith(u".mdb"_s) || name.endsWith(u".ldb"_s)) << name.toStdString();
  }
}

TEST(StartTogether, OnAnEmptyFolderAllComeUp) {
  startTogether(u"first-start"_s, measure(3, 100));
}

TEST(StartTogether, OnOldFilesAllComeUp) {
  startTogether(u"start"_s, measure(3, 100));
}

}  // namespace
}  // namespace storm
