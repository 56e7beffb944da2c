// A data folder that cannot be reached: named for what it is, left alone, and tried again.
#include "app/folder_trouble.h"

#include "app/data_folder.h"
#include "app/start_up.h"
#include "tests/support.h"

namespace {

using namespace tests;
using Kind = FolderTrouble::Kind;

struct FolderTroubleTest : testing::Test {
  TestPc here;
  Session& session = here.session;
  StartUp startUp{session};

  void choose(const QString& folder) {
    here.pc.settings.SaveSetting("해온판매", "환경설정", "db경로", folder);
  }
  bool start() {
    return startUp.SubMain([this] { startUp.load(); });
  }
  Kind why() { return whyNotStarted(session).kind; }
  QString headline() { return whyNotStarted(session).headline; }
  QString advice() { return whyNotStarted(session).advice; }
  QString root(const QString& name) { return here.folder.filePath(name); }
};

TEST_F(FolderTroubleTest, TheDriveTheShareOrTheFolderIsNamedAndNothingIsMade) {
  choose("D:\\가게\\DBS\\");
  EXPECT_FALSE(start()) << "no such drive, and no question about a new one";
  EXPECT_EQ(why(), Kind::NoDrive);
  EXPECT_EQ(headline(), "D: 드라이브가 없습니다.");
  EXPECT_TRUE(advice().endsWith("외장 디스크라면 꽂은 뒤 [다시 시도]를 누르십시오."));
  EXPECT_FALSE(QFileInfo::exists(root("d")));

  ASSERT_TRUE(QDir().mkpath(root("pc1/RWGas")));
  ASSERT_EQ(here.pc.paths.mapNetworkDrive(root("pc1/RWGas"), "Z:"), "");
  ASSERT_TRUE(QDir().rename(root("pc1"), root("pc1 is off")));
  choose("Z:\\DBS\\");
  EXPECT_FALSE(start());
  EXPECT_EQ(why(), Kind::Network);
  EXPECT_EQ(headline(), "네트워크 드라이브 Z: (" + root("pc1/RWGas") + ")에 연결할 수 없습니다.");
  EXPECT_FALSE(QFileInfo::exists(root("pc1")));

  ASSERT_TRUE(QDir().rename(root("pc1 is off"), root("pc1")));
  here.prompts.expect("자료 파일을 새로 만드시겠습니까?", false);
  EXPECT_FALSE(start()) << "the share is back, its folder is not";
  EXPECT_EQ(why(), Kind::NoFolder);
  EXPECT_EQ(headline(), "자료 폴더가 없습니다.");
  ASSERT_TRUE(QDir().mkpath(root("pc1/RWGas/DBS")));
  here.prompts.expect("자료 파일을 새로 만드시겠습니까?", false);
  EXPECT_FALSE(start());
  EXPECT_EQ(why(), Kind::NoData);
  EXPECT_EQ(headline(), "자료 폴더에 자료 파일이 없습니다.");
  EXPECT_EQ(advice(),
            "자료가 있는 폴더를 [다른 폴더]에서 고르거나, 백업에서 되살린 뒤 [다시 시도]를 누르십시오.");
  here.prompts.expect("자료 파일을 새로 만드시겠습니까?");
  EXPECT_TRUE(start()) << "the same program goes on";
  EXPECT_TRUE(startUp.ready());
  EXPECT_EQ(session.dbBasic.path().left(2), "Z:");

  startUp.shutDown();
  choose("z:\\DBS\\");
  EXPECT_TRUE(start()) << "a drive is one however it is written";
  startUp.shutDown();
  ASSERT_TRUE(QDir(root("pc1/RWGas/DBS")).removeRecursively());
  writeFile(root("pc1/RWGas/DBS"));
  EXPECT_FALSE(start());
  EXPECT_EQ(why(), Kind::NoAccess);
  EXPECT_EQ(headline(), "자료 폴더의 자리에 폴더가 아닌 파일이 있습니다.");
  EXPECT_EQ(advice(), "폴더의 공유와 이 PC의 사용 권한을 확인한 뒤 [다시 시도]를 누르십시오.");
}

TEST_F(FolderTroubleTest, AStepThatFailsIsToldAndTheStartMayBeTriedAgain) {
  ASSERT_TRUE(start());
  startUp.shutDown();
  const QString basic = here.pc.paths.native("C:\\RWGas\\Dbs\\Basic.mdb");
  ASSERT_TRUE(QFile::rename(basic, basic + ".away"));
  ASSERT_TRUE(QDir().mkdir(basic));
  here.prompts.expect("프로그램 시작 중 오류가 발생하여 종료합니다.");
  EXPECT_FALSE(start());
  EXPECT_EQ(why(), Kind::Told);
  EXPECT_EQ(headline(), "자료 폴더에서 시작하지 못했습니다.");
  EXPECT_EQ(advice(), "앞에서 알린 까닭을 바로잡은 뒤 [다시 시도]를 누르거나, [다른 폴더]를 고르십시오.");
  ASSERT_TRUE(QDir().rmdir(basic));
  ASSERT_TRUE(QFile::rename(basic + ".away", basic));
  EXPECT_TRUE(start());
  EXPECT_TRUE(startUp.ready());
}

TEST_F(FolderTroubleTest, AFolderIsChosenByWhatItHolds) {
  session.AppTitle = "해온판매";
  DataFolder folders(session);
  here.pc.paths.makeFolder("C:\\가게\\DBS");
  EXPECT_EQ(folders.dataIn("C:\\가게"), "C:\\가게\\DBS\\");
  EXPECT_FALSE(folders.holdsData("C:\\가게"));
  writeFile(here.pc.paths.native("C:\\가게\\DBS") + "/basic.MDB");
  EXPECT_TRUE(folders.holdsData("C:\\가게"));
  EXPECT_EQ(folders.dataIn("C:\\가게\\DBS "), "C:\\가게\\DBS\\") << "the folder of the files itself";
  folders.use("C:\\가게\\DBS");
  const auto saved = [&](const char* key) {
    return here.pc.settings.GetSetting("해온판매", "환경설정", QString::fromUtf8(key));
  };
  EXPECT_EQ(saved("db경로") + ' ' + saved("rpt경로"), "C:\\가게\\DBS\\ C:\\가게\\RPT\\");
}

TEST_F(FolderTroubleTest, ALetterWhoseShareIsGoneMayBeMappedAnew) {
  ASSERT_TRUE(QDir().mkpath(root("old")) && QDir().mkpath(root("new")));
  ASSERT_EQ(here.pc.paths.mapNetworkDrive(root("old"), "Z:"), "");
  EXPECT_EQ(here.pc.paths.mapNetworkDrive(root("new"), "Z:"), "이미 연결되어 있는 경로입니다.");
  ASSERT_TRUE(QDir().rmdir(root("old")));
  EXPECT_EQ(here.pc.paths.mapNetworkDrive(root("new"), "Z:"), "");
  EXPECT_EQ(here.pc.paths.shareOf("z:"), root("new"));
}

}  // namespace
