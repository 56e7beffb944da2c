#include "app/data_folder.h"

#include "pc/network_drive.h"
#include "tests/support.h"

namespace {

struct DataFolderTest : testing::Test, tests::TestPc {
  DataFolder rules{session};
  DataFolderTest() {
    session.AppTitle = "해온판매";
    session.DbPath = "C:\\RWGas\\Dbs\\";
    pc.paths.makeFolder("C:\\RWGas\\Dbs");
  }
};

TEST_F(DataFolderTest, StartsAtTheCurrentFolderAndWalksUpToTheDrive) {
  EXPECT_EQ(rules.startDrive(), "C:");
  EXPECT_EQ(rules.startFolder(), "C:\\RWGas\\Dbs");
  EXPECT_EQ(DataFolder::parentOf("C:\\RWGas\\Dbs"), "C:\\RWGas");
  EXPECT_EQ(DataFolder::parentOf("C:\\RWGas"), "C:\\");
  EXPECT_EQ(DataFolder::parentOf("C:\\"), "C:\\");
  EXPECT_EQ(rules.folders("C:\\"), QStringList{"RWGas"});
}

TEST_F(DataFolderTest, MakesAndTakesAwayFoldersButNeverOneThatHoldsSomething) {
  prompts.expectInput("새로 생성할 디렉토리명을 입력하세요.", " 새자료 ");
  prompts.expect("디렉토리를 생성하였습니다.");
  EXPECT_EQ(rules.create("C:\\RWGas"), "C:\\RWGas\\새자료");
  EXPECT_TRUE(pc.paths.exists("C:\\RWGas\\새자료"));

  prompts.expectInput("디렉토리 생성", "a\\b:c");
  prompts.expect("디렉토리를 생성할 수 없습니다.");
  EXPECT_EQ(rules.create("C:\\RWGas"), "");

  prompts.expectInput("디렉토리 생성", QString(250, 'a'));
  prompts.expect("경로명의 최대길이는 260입니다.");
  EXPECT_EQ(rules.create("C:\\RWGas\\새자료"), "");

  prompts.expect("'RWGas' 디렉토리를 삭제하시겠습니까?");
  prompts.expect("삭제하는 중 오류가 발생했습니다.");
  EXPECT_FALSE(rules.remove("C:\\RWGas"));
  prompts.expect("'새자료' 디렉토리를 삭제하시겠습니까?", false);
  EXPECT_FALSE(rules.remove("C:\\RWGas\\새자료"));
  prompts.expect("'새자료' 디렉토리를 삭제하시겠습니까?");
  EXPECT_TRUE(rules.remove("C:\\RWGas\\새자료"));
  EXPECT_FALSE(pc.paths.exists("C:\\RWGas\\새자료"));
}

TEST_F(DataFolderTest, TheChoiceIsSavedAtOnceAndTheSessionGoesOnUnlessItEnds) {
  prompts.expect("프로그램을 종료하시겠습니까?.", false);
  EXPECT_FALSE(rules.set(" D:\\가스 "));
  EXPECT_EQ(pc.settings.GetSetting("해온판매", "환경설정", "db경로"), "D:\\가스\\DBS\\");
  EXPECT_EQ(pc.settings.GetSetting("해온판매", "환경설정", "rpt경로"), "D:\\가스\\RPT\\");
  EXPECT_EQ(session.DbPath, "C:\\RWGas\\Dbs\\") << "the running session keeps its folder";
  prompts.expect("경로 설정");
  EXPECT_TRUE(rules.set("D:\\"));
  EXPECT_EQ(pc.settings.GetSetting("해온판매", "환경설정", "db경로"), "D:\\DBS\\");
}

TEST_F(DataFolderTest, AMappedShareIsADriveAndAFailureIsTold) {
  NetDrive drive(session);
  const QString share = pc.paths.native("C:\\RWGas");
  EXPECT_EQ(drive.map("  " + share + " ", "Z:"), "Z:\\ 드라이브로 네트워크 드라이브 연결이 되었습니다.");
  EXPECT_EQ(rules.folders("Z:\\"), QStringList{"Dbs"});
  prompts.expect("선택하신 경로가 유효하지 않거나 존재하지 않습니다.");
  EXPECT_EQ(drive.map(share + "/없음", "Y:"), "드라이브 연결이 실패되었습니다.");

  const std::pair<int, const char*> told[] = {
      {0, ""},
      {5, "접근 불가"},
      {85, "이미 연결되어 있는 경로입니다."},
      {66, "장치 유형과 자원 유형이 일치하지 않습니다."},
      {1200, "선택하신 경로가 유효하지 않습니다."},
      {67, "선택하신 경로가 유효하지 않거나 존재하지 않습니다."},
      {1206, "사용자 프로파일을 열 수 없습니다."},
      {1205, "사용자 프로파일을 열 수 없습니다."},
      {1202, "선택하신 경로가 이미 다른 사용자 프로파일에서 사용중입니다."},
      {86, "사용자 암호가 유효하지 않습니다."},
      {1203, "네트워크 상의 컴퓨터가 작동중이지 않거나 사용할 수 없습니다."},
      {1222, "네트워크가 존재하지 않습니다."},
      {1208, "네트워크 상에 오류가 발생했습니다."}};
  for (const auto& [failure, text] : told) EXPECT_EQ(pc::networkFailureText(failure), text) << failure;
}

}  // namespace
