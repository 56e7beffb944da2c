// The ways to the program that brings old books in.
#include "app/move_in_start.h"

#include "tests/companion.h"
#include "tests/moving/jet_writer.h"

namespace {

using namespace tests;

struct MoveInStart : testing::Test, StartingPc {
  void SetUp() override {
    ASSERT_TRUE(pc.paths.makeFolder(installedDataFolder()));
    install("haeon-import");
  }
};

TEST_F(MoveInStart, OldFilesInTheDataFolderAreOfferedBeforeTheStart) {
  EXPECT_FALSE(offeredMoveIn(session)) << "an empty folder asks nothing";
  const QString folder = pc.paths.native(installedDataFolder());
  JetWriter(3).write(folder + "/BASIC.MDB", {{"Client", {{"Name"}}, {}}});
  prompts.expect("이전 형식의 자료가 있습니다.", false);
  EXPECT_FALSE(offeredMoveIn(session));
  EXPECT_TRUE(started.isEmpty());
  prompts.expect(
      "C:\\RWGas\\Dbs\\ 에 이전 형식의 자료가 있습니다.\n지금 가져오시겠습니까? 이전 파일은 그대로 "
      "보관합니다.");
  EXPECT_TRUE(offeredMoveIn(session));
  EXPECT_EQ(started, (QStringList{"haeon-import", "--window", folder}));
}

TEST_F(MoveInStart, TheMenuAsksClosesTheFormsAndEndsTheProgram) {
  bool closes = false;
  const auto closeForms = [&] { return closes; };
  prompts.expect("이전 자료 가져오기", false);
  EXPECT_FALSE(startMoveIn(session, closeForms));
  prompts.expect("이전 자료 가져오기");
  EXPECT_FALSE(startMoveIn(session, closeForms)) << "a form stays";
  EXPECT_TRUE(started.isEmpty());
  closes = true;
  prompts.expect("이전 자료 가져오기");
  EXPECT_TRUE(startMoveIn(session, closeForms));
  EXPECT_EQ(started, (QStringList{"haeon-import", "--window"}));
  EXPECT_TRUE(session.ClosingForBackup);
}

}  // namespace
