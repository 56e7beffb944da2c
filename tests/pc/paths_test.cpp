#include "pc/paths.h"

#include <QTemporaryDir>

#include "pc/ports.h"
#include "pc/process.h"
#include "tests/files.h"

namespace {

struct PathsTest : testing::Test {
  QTemporaryDir folder;
  pc::Paths paths{folder.path()};
  QString at(const QString& rest) const { return folder.path() + rest; }
};

TEST_F(PathsTest, FindsWhatExistsWithoutRegardToCase) {
  tests::writeFile(at("/c/RWGas/Dbs/Basic.mdb"));
  tests::writeFile(at("/c/RWGas/한글 폴더/2002Foundation.mdb"));
  EXPECT_EQ(paths.native("C:\\rwgas\\dbs\\basic.mdb"), at("/c/RWGas/Dbs/Basic.mdb"));
  EXPECT_EQ(paths.native("c:\\RWGas\\Dbs\\\\Basic.mdb"), at("/c/RWGas/Dbs/Basic.mdb")) << "doubled backslash";
  EXPECT_EQ(paths.native("C:/RWGAS/한글 폴더/"), at("/c/RWGas/한글 폴더"));
  EXPECT_EQ(paths.native("C:\\rwgas\\New\\Name.mdb"), at("/c/RWGas/New/Name.mdb"))
      << "what is new keeps its case";
  EXPECT_TRUE(paths.exists("C:\\rwgas\\DBS\\BASIC.MDB"));
  ASSERT_TRUE(QFile::rename(at("/c/RWGas/Dbs/Basic.mdb"), at("/c/RWGas/Dbs/BASIC.mdb")));
  EXPECT_EQ(paths.native("C:\\rwgas\\dbs\\basic.mdb"), at("/c/RWGas/Dbs/BASIC.mdb")) << "found anew";
  EXPECT_FALSE(paths.exists("D:\\rwgas"));
}

TEST_F(PathsTest, LeavesPathsWithoutALetterAlone) {
  EXPECT_EQ(paths.native("/tmp/x\\y"), "/tmp/x\\y");
  EXPECT_EQ(paths.native("Basic.mdb"), "Basic.mdb");
  EXPECT_EQ(paths.native(""), "");
  EXPECT_EQ(paths.native("가:\\x"), "가:\\x") << "a drive has a Latin letter";
}

TEST_F(PathsTest, ListsByPatternInAnyCaseAndCopiesToFreeNamesOnly) {
  for (const char* name : {"2026Foundation.mdb", "2025foundation.MDB", "Basic.mdb"}) {
    tests::writeFile(at("/c/RWGas/Dbs/" + QString::fromLatin1(name)));
  }
  EXPECT_EQ(paths.list("C:\\RWGas\\Dbs\\", "*Foundation.mdb"),
            (QStringList{"2025foundation.MDB", "2026Foundation.mdb"}));
  EXPECT_TRUE(paths.list("C:\\nowhere", "*").isEmpty());
  EXPECT_TRUE(paths.copy("C:\\RWGas\\Dbs\\basic.mdb", "C:\\RWGas\\Dbs\\copy.mdb"));
  EXPECT_FALSE(paths.copy("C:\\RWGas\\Dbs\\basic.mdb", "C:\\RWGas\\Dbs\\COPY.MDB"));
  EXPECT_TRUE(paths.makeFolder("D:\\자료\\하나"));
  EXPECT_EQ(paths.folders("d:\\자료"), QStringList{"하나"});
}

TEST_F(PathsTest, MapsAShareToALetterAndSaysWhyNot) {
  tests::writeFile(at("/c/x"));
  QTemporaryDir share;
  tests::writeFile(share.path() + "/Dbs/Basic.mdb");
  EXPECT_EQ(paths.mapNetworkDrive(" " + share.path() + " ", "z:"), "");
  EXPECT_EQ(paths.native("Z:\\dbs\\BASIC.mdb"), share.path() + "/Dbs/Basic.mdb");
  EXPECT_EQ(paths.drives(), (QStringList{"C:", "Z:"}));
  EXPECT_EQ(pc::Paths(folder.path()).native("Z:\\dbs"), share.path() + "/Dbs")
      << "another program of this PC";

  EXPECT_EQ(paths.mapNetworkDrive(share.path(), "Z:"), "이미 연결되어 있는 경로입니다.");
  EXPECT_EQ(paths.mapNetworkDrive(share.path(), "C:"), "이미 연결되어 있는 경로입니다.");
  EXPECT_EQ(paths.mapNetworkDrive(share.path() + "/none", "Y:"),
            "선택하신 경로가 유효하지 않거나 존재하지 않습니다.");
  EXPECT_EQ(paths.mapNetworkDrive("서버", "Y:"), "선택하신 경로가 유효하지 않습니다.");
  EXPECT_EQ(paths.mapNetworkDrive("\\\\server\\share", "Y:"),
            "네트워크 상의 컴퓨터가 작동중이지 않거나 사용할 수 없습니다.");
  for (const char* server : {"\\\\server", "\\\\"})
    EXPECT_EQ(paths.mapNetworkDrive(server, "Y:"), "선택하신 경로가 유효하지 않거나 존재하지 않습니다.");
  for (const char* letter : {"Y", "", "1:"})
    EXPECT_EQ(paths.mapNetworkDrive(share.path(), letter), "장치 유형과 자원 유형이 일치하지 않습니다.");
  EXPECT_EQ(paths.mapNetworkDrive(share.path(), "?"), "장치 유형과 자원 유형이 일치하지 않습니다.");
}

TEST_F(PathsTest, ALetterWhoseFolderIsGoneIsMappedAnew) {
  tests::writeFile(at("/e/x"));
  QTemporaryDir other;
  tests::writeFile(other.path() + "/Basic.mdb");
  EXPECT_EQ(paths.mapNetworkDrive(QTemporaryDir().path() + "/..", "Z:"), "");
  EXPECT_EQ(paths.mapNetworkDrive(other.path(), "D:"), "");
  {
    QTemporaryDir share;
    EXPECT_EQ(paths.mapNetworkDrive(share.path(), "G:"), "");
    EXPECT_EQ(paths.mapNetworkDrive(other.path(), "g:"), "이미 연결되어 있는 경로입니다.");
  }
  EXPECT_EQ(paths.mapNetworkDrive(other.path(), "g:\\x"), "");
  EXPECT_TRUE(paths.exists("G:\\basic.mdb"));
  EXPECT_EQ(paths.drives(), (QStringList{"C:", "D:", "E:", "G:", "Z:"}));
}

TEST_F(PathsTest, FindsAWindowsShareWhereTheDesktopMountsIt) {
  QTemporaryDir runtime;
  tests::writeFile(runtime.path() + "/gvfs/smb-share:server=office,share=gas/Dbs/Basic.mdb");
  const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
  qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
  EXPECT_EQ(paths.mapNetworkDrive("\\\\OFFICE\\Gas\\Dbs", "G:"), "");
  qputenv("XDG_RUNTIME_DIR", before);
  EXPECT_TRUE(paths.exists("G:\\basic.mdb"));
}

TEST_F(PathsTest, NoWrittenPathLeavesItsDrive) {
  tests::writeFile(at("/c/RWGas/Dbs/Basic.mdb"));
  tests::writeFile(at("/settings/secret.ini"));
  EXPECT_EQ(paths.native("C:\\RWGas\\Dbs\\..\\.\\dbs\\basic.mdb"), at("/c/RWGas/Dbs/Basic.mdb"));
  for (const char* up :
       {"C:\\..\\settings\\secret.ini", "C:..\\settings\\secret.ini", "C:/RWGas/../../settings/secret.ini",
        "C:\\RWGas\\Dbs\\..\\..\\..\\..\\settings\\secret.ini"}) {
    EXPECT_EQ(paths.native(up), at("/c/settings/secret.ini")) << up;
    EXPECT_FALSE(paths.exists(up)) << up;
  }
}

TEST_F(PathsTest, StartsCompanionToolsThatAreThere) {
  tests::writeFile(at("/c/RWGas/MapEdit.exe"));
  pc::Process process(paths);
  QStringList started;
  process.setStarter([&](const QString& program, const QStringList& arguments, const QString& inFolder) {
    started << program << arguments << inFolder;
    return true;
  });
  EXPECT_TRUE(process.start("C:\\RWGAS\\mapedit.EXE", {"1"}));
  EXPECT_EQ(started, (QStringList{at("/c/RWGas/MapEdit.exe"), "1", at("/c/RWGas")}));
  started.clear();
  tests::writeFile(at("/c/RWGas/수납 목록.txt"));
  EXPECT_TRUE(process.shell("notepad C:\\RWGas\\수납 목록.txt"));
  EXPECT_EQ(started, (QStringList{"xdg-open", at("/c/RWGas/수납 목록.txt"), at("/c/RWGas")}));
  EXPECT_FALSE(process.shell("notepad C:\\RWGas\\none.txt"));
  EXPECT_FALSE(process.start("C:\\RWGAS\\RWSMS.exe"));
  EXPECT_FALSE(process.start("C:\\RWGAS")) << "a folder is no program";
  EXPECT_FALSE(process.open("C:\\none.txt"));
  process.setStarter({});
  EXPECT_FALSE(process.start("C:\\RWGAS\\MapEdit.exe")) << "there, but nothing that runs";
}

TEST_F(PathsTest, APortIsTheDevicesOwnUnlessSomebodyNamedAnother) {
  EXPECT_EQ(pc::serialDevice(paths, "COM1"), "/dev/ttyS0");
  EXPECT_EQ(pc::serialDevice(paths, "COM12"), "/dev/ttyS11");
  tests::writeFile(at("/ports.ini"), "COM2=/dev/ttyUSB0\n");
  EXPECT_EQ(pc::serialDevice(paths, "COM2"), "/dev/ttyUSB0");
  EXPECT_EQ(pc::serialDevice(paths, "COM3"), "/dev/ttyS2");
  qputenv("HAEON_COM2", "/dev/pts/7");
  EXPECT_EQ(pc::serialDevice(paths, "COM2"), "/dev/pts/7");
  EXPECT_EQ(pc::serialDevice(paths, "COM1"), "/dev/ttyS0");
  qunsetenv("HAEON_COM2");
}

TEST_F(PathsTest, AFileWithoutAProgramForItIsNotOpened) {
  tests::writeFile(at("/c/list.xlsx"));
  const auto script = [this](const char* name, const QByteArray& lines) {
    tests::writeFile(at("/bin/") + name, "#!/bin/sh\n" + lines + "\n");
    QFile::setPermissions(at("/bin/") + name, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  };
  const QByteArray before = qgetenv("PATH");
  qputenv("PATH", at("/bin").toUtf8());
  const pc::Process process(paths);
  EXPECT_FALSE(process.open("C:\\list.xlsx")) << "no desktop";
  script("xdg-open", "exit 0");
  EXPECT_TRUE(process.open("C:\\list.xlsx")) << "nobody to ask";
  script("xdg-mime", "exit 0");
  EXPECT_FALSE(process.open("C:\\list.xlsx")) << "a desktop that knows no program for it";
  script("xdg-mime", "case $3 in *spreadsheetml*) echo calc.desktop;; esac");
  EXPECT_TRUE(process.open("C:\\list.xlsx"));
  qputenv("PATH", before);
}

}  // namespace
