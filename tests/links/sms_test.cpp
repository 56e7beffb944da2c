// The list file byte for byte, the tool that is started with it, and whom a search finds.
#include "links/sms_search.h"
#include "tests/answers.h"
#include "tests/support.h"

namespace {

struct SmsTest : testing::Test, tests::TestPc {
  QStringList started;  ///< program, parameter, folder of every start, as the PC's own paths
  bool starts = true;
  SpreadModel grid;

  SmsTest() {
    openBooks(QDate(2026, 3, 16));
    pc.process.setStarter(
        [this](const QString& program, const QStringList& arguments, const QString& folder) {
          started << program << arguments.join(u'|') << folder;
          return starts;
        });
    grid.setColumns(std::vector<SpreadColumn>(4));
    pc.paths.makeFolder("C:\\SMS");
  }
  void put(const QString& written, const QByteArray& bytes = "x") {
    tests::writeFile(pc.paths.native(written), bytes);
  }
  QByteArray read(const QString& written) { return tests::bytesOf(pc.paths.native(written)); }
  void install(const char* program) {
    put("C:\\SMS\\" + QString::fromLatin1(program));
    pc.settings.SaveSetting("라온SMS", "환경설정", "AppPath", "C:\\SMS");
  }
  bool send(int tool = TextTool) { return TransFromSpread(session, grid, 1, 2, 3, tool); }
};

TEST_F(SmsTest, TheListFileIsCodePage949LineByLine) {
  grid.setRows({{"1", "가;나:다, 라", "010-1234-5678"},
                {"0", "안보냄", "010-0000-0000"},
                {"1", "똠상회", " 02-111-2222 , 010-3333-4444"},
                {"1", "번호없음", ""}});
  put("C:\\SMS\\ExternTelNo.txt", "an older and much longer list than the one to come, of another day\r\n");
  ASSERT_TRUE(CreateTelListFile(session, grid, "C:\\SMS\\ExternTelNo.txt", 1, 2, 3));
  // 가나다 B0A1 B3AA B4D9, 라 B6F3, 똠 8C63, 상회 BBF3 C8B8
  EXPECT_EQ(read("C:\\SMS\\ExternTelNo.txt"),
            QByteArray("010-1234-5678,\xB0\xA1\xB3\xAA\xB4\xD9, \xB6\xF3\r\n"
                       "02-111-2222,\x8C\x63\xBB\xF3\xC8\xB8\r\n"
                       "010-3333-4444,\x8C\x63\xBB\xF3\xC8\xB8\r\n"));
}

TEST_F(SmsTest, TheToolStartsWithItsListInItsOwnFolder) {
  install("RWSMS.exe");
  grid.setRows({{"0", "가", "1"}, {"1", "나", "2"}});
  EXPECT_TRUE(send());
  const QString folder = pc.paths.native("C:\\SMS");
  EXPECT_EQ(started, (QStringList{folder + "/RWSMS.exe", folder + "/ExternTelNo.txt", folder}));
  EXPECT_EQ(read("C:\\SMS\\ExternTelNo.txt"), QByteArray("2,\xB3\xAA\r\n"));

  put("C:\\RWGas\\RWSMS.exe");
  started.clear();
  EXPECT_TRUE(send());
  EXPECT_EQ(started.at(2), pc.paths.native("C:\\RWGas")) << "the program's own folder wins";

  starts = false;
  prompts.expect("문자전송 프로그램을 시작할 수 없습니다.");
  EXPECT_FALSE(send());
}

TEST_F(SmsTest, WithoutATickTheToolStartsBareAfterAYes) {
  install("RWSMS.exe");
  grid.setRows({{"0", "가", "1"}});
  prompts.expect("전송할 자료를 선택하지 않았습니다.\n그래도, 문자전송 프로그램을 실행할까요?", false);
  EXPECT_FALSE(send());
  EXPECT_TRUE(started.isEmpty());
  prompts.expect("SMS");
  EXPECT_TRUE(send());
  EXPECT_EQ(started.at(1), "0");
  EXPECT_EQ(read("C:\\SMS\\ExternTelNo.txt"), "(missing)");
}

TEST_F(SmsTest, AListThatCannotBeWrittenStartsTheToolBare) {
  install("RWSMS.exe");
  ASSERT_TRUE(pc.paths.makeFolder("C:\\SMS\\ExternTelNo.txt"));
  ASSERT_TRUE(pc.paths.makeFolder("C:\\SMS\\ExternTelNo.txt\\held"));
  grid.setRows({{"1", "가", "1"}});
  EXPECT_TRUE(send());
  EXPECT_EQ(started.at(1), "0");
}

TEST_F(SmsTest, AMissingToolIsTold) {
  grid.setRows({{"1", "가", "1"}});
  prompts.expect("문자전송 실행파일을 찾을 수 없습니다.");
  EXPECT_FALSE(send(RelayTool)) << "the text names 문자전송 for the other tool too";
  pc.settings.SaveSetting("라온릴레이", "환경설정", "AppPath", "C:\\SMS\\");
  prompts.expect(
      "문자전송 프로그램을 찾을 수 없습니다.\n파일명:\nC:\\SMS\\RWRelay.exe\n라온웨어 홈페이지에서");
  EXPECT_FALSE(send(RelayTool));
  put("C:\\SMS\\RWRelay.exe");
  EXPECT_TRUE(send(RelayTool));
  EXPECT_TRUE(started.at(0).endsWith("/RWRelay.exe"));
}

TEST_F(SmsTest, CustomersAreFoundByNameOrByWhatTheyOwe) {
  tests::insertRows(session.dbBasic, "Client(Name, Tel, GasInit)",
                    {"'나래상회', '02-1', 50000", "'가람식당', '02-2', 49999", "'나루', '', -100"});
  SmsSearch sms(session);
  const auto found = [&] {
    QStringList rows;
    for (int row = 1; row <= sms.list().MaxRows(); ++row)
      rows << sms.list().text(row, SmsCol::Name) + u'/' + sms.list().text(row, SmsCol::Balance);
    return rows.join(u' ');
  };
  int told = 0, of = 0;
  ASSERT_TRUE(sms.search(SmsFilter::Name, {}, 0, [&](int count) {
    of = count;
    return [&](int done) { return (told = done) > 0; };
  }));
  EXPECT_EQ(found(), "가람식당/ 나래상회/ 나루/") << "by name nothing is told of what they owe";
  EXPECT_EQ(told, 3);
  EXPECT_EQ(of, 3);
  sms.tickAll(true);
  EXPECT_EQ(sms.ticked(), 3);
  ASSERT_TRUE(sms.search(SmsFilter::Name, "나", 0));
  EXPECT_EQ(found(), "나래상회/ 나루/");
  EXPECT_EQ(sms.ticked(), 0);
  ASSERT_TRUE(sms.search(SmsFilter::Balance, "가", 50000));
  EXPECT_EQ(found(), "나래상회/50,000") << "the name counts under its own filter alone";
  EXPECT_EQ(sms.list().column(SmsCol::Balance).header, "미수금");
  ASSERT_TRUE(sms.search(SmsFilter::Balance, {}, 0));
  EXPECT_EQ(found(), "가람식당/49,999 나래상회/50,000");

  prompts.expect("나'");
  EXPECT_FALSE(sms.search(SmsFilter::Name, "나'", 0));
  EXPECT_EQ(sms.list().MaxRows(), 0);
}

}  // namespace
