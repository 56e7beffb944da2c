// Programs that are started at the same instant on one folder.
#include <QTemporaryDir>
#include <memory>

#include "tests/storm/child.h"
#include "tests/storm/pcs.h"
#include "tests/storm/poster.h"
#include "tests/storm/swept_works.h"

namespace storm {
namespace {

/** "first-start" for an empty folder, "start" for old files without this year's. */
struct StartTogether : testing::TestWithParam<const char*> {};

TEST_P(StartTogether, AllComeUp) {
  const QString books = GetParam();
  for (int round = measure(3, 100); round > 0 && !HasFailure(); --round) {
    const QTemporaryDir folder;
    makeBooksFor(books, folder.path());
    std::vector<std::unique_ptr<Child>> children;
    for (int pc = 0; pc < 3; ++pc)
      children.push_back(std::make_unique<Child>(QStringList{"start-once", folder.path()}));
    for (const auto& child : children) {
      EXPECT_TRUE(child->finish(60000)) << child->lines().join(u'\n').toStdString();
      EXPECT_EQ(child->lines().filter(word::told), QStringList());
    }
    OpenPc here(folder.path());
    EXPECT_EQ(here.session.dbYear.OpenRecordset("Select Count(Code) As C From Client")[0].toLong(),
              books == u"start" ? 1 : 0);
    for (const QString& name : here.pc.paths.list(here.session.DbPath, "*"))
      EXPECT_TRUE(name.endsWith(".mdb") || name.endsWith(".ldb")) << name.toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Books, StartTogether, testing::Values("first-start", "start"),
                         [](const auto& of) { return std::string(of.param).substr(0, 5); });

}  // namespace
}  // namespace storm
