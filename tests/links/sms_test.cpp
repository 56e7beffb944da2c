// The list file byte for byte, the tool that is started with it, and whom a search finds.
#include <gtest/gtest.h>

#include <QFile>

#include "links/sms_search.h"
#include "tests/support.h"

using namespace Qt::StringLiterals;

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
    pc.paths.makeFolder(u"C:\\SMS"_s);
  }
  void put(const QString& written, const QByteArray& bytes = "x") {
    QFile file(pc.paths.native(written));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
  }
  QByteArray read(const QString& written) {
    QFile file(pc.paths.native(written));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
  }
  void install(const char* program) {
    put(u"C:\\SMS\\"_s + QString::fromLatin1(program));
    pc.settings.SaveSetting(u"라온SMS"_s, u"환경설정"_s, u"AppPath"_s, u"C:\\SMS"_s);
  }
  bool send(int tool = TextTool) { return TransFromSpread(session, grid, 1, 2, 3, tool); }
};

TEST_F(SmsTest, TheListFileIsCodePage949LineByLine) {
  grid.setRows({{u"1"_s, u"가;나:다, 라"_s, u"010-1234-5678"_s},
                {u"0"_s, u"안보냄"_s, u"010-0000-0000"_s},
                {u"1"_s, u"똠상회"_s, u" 02-111-2222 , 010-3333-4444"_s},
                {u"1"_s, u"번호없음"_s, u""_s}});
  put(u"C:\\SMS\\ExternTelNo.txt"_s,
      "an older and much longer list than the one to come, of another day\r\n");
  ASSERT_TRUE(CreateTelListFile(session, grid, u"C:\\SMS\\ExternTelNo.txt"_s, 1, 2, 3));
  // 가나다 B0A1 B3AA B4D9, 라 B6F3, 똠 8C63, 상회 BBF3 C8B8
  EXPECT_EQ(read(u"C:\\SMS\\ExternTelNo.txt"_s),
            QByteArray("010-1234-5678,\xB0\xA1\xB3\xAA\xB4\xD9, \xB6\xF3\r\n"
                       "02-111-2222,\x8C\x63\xBB\xF3\xC8\xB8\r\n"
                       "010-3333-4444,\x8C\x63\xBB\xF3\xC8\xB8\r\n"));
}

TEST_F(SmsTest, TheToolStartsWithItsListInItsOwnFolder) {
  install("RWSMS.exe");
  grid.setRows({{u"0"_s, u"가"_s, u"1"_s}, {u"1"_s, u"나"_s, u"2"_s}});
  EXPECT_TRUE(send());
  const QString folder = pc.paths.native(u"C:\\SMS"_s);
  EXPECT_EQ(started, (QStringList{folder + u"/RWSMS.exe"_s, folder + u"/ExternTelNo.txt"_s, folder}));
  EXPECT_EQ(read(u"C:\\SMS\\ExternTelNo.txt"_s), QByteArray("2,\xB3\xAA\r\n"));

  put(u"C:\\RWGas\\RWSMS.exe"_s);
  started.clear();
  EXPECT_TRUE(send());
  EXPECT_EQ(started.at(2), pc.paths.native(u"C:\\RWGas"_s)) << "the program's own folder wins";

  starts = false;
  prompts.expect(u"문자전송 프로그램을 시작할 수 없습니다."_s);
  EXPECT_FALSE(send());
}

TEST_F(SmsTest, WithoutATickTheToolStartsBareAfterAYes) {
  install("RWSMS.exe");
  grid.setRows({{u"0"_s, u"가"_s, u"1"_s}});
  prompts.expect(u"전송할 자료를 선택하지 않았습니다.\n그래도, 문자전송 프로그램을 실행할까요?"_s, false);
  EXPECT_FALSE(send());
  EXPECT_TRUE(started.isEmpty());
  prompts.expect(u"SMS"_s);
  EXPECT_TRUE(send());
  EXPECT_EQ(started.at(1), u"0"_s);
  EXPECT_EQ(read(u"C:\\SMS\\ExternTelNo.txt"_s), "missing");
}

TEST_F(SmsTest, AListThatCannotBeWrittenStartsTheToolBare) {
  install("RWSMS.exe");
  ASSERT_TRUE(pc.paths.makeFolder(u"C:\\SMS\\ExternTelNo.txt"_s));
  ASSERT_TRUE(pc.paths.makeFolder(u"C:\\SMS\\ExternTelNo.txt\\held"_s));
  grid.setRows({{u"1"_s, u"가"_s, u"1"_s}});
  EXPECT_TRUE(send());
  EXPECT_EQ(started.at(1), u"0"_s);
}

TEST_F(SmsTest, AMissingToolIsTold) {
  grid.setRows({{u"1"_s, u"가"_s, u"1"_s}});
  prompts.expect(u"문자전송 실행파일을 찾을 수 없습니다."_s);
  EXPECT_FALSE(send(RelayTool)) << "the text names 문자전송 for the other tool too";
  pc.settings.SaveSetting(u"라온릴레이"_s, u"환경설정"_s, u"AppPath"_s, u"C:\\SMS\\"_s);
  prompts.expect(
      u"문자전송 프로그램을 찾을 수 없습니다.\n파일명:\nC:\\SMS\\RWRelay.exe\n라온웨어 홈페이지에서"_s);
  EXPECT_FALSE(send(RelayTool));
  put(u"C:\\SMS\\RWRelay.exe"_s);
  EXPECT_TRUE(send(RelayTool));
  EXPECT_TRUE(started.at(0).endsWith(u"/RWRelay.exe"_s));
}

TEST_F(SmsTest, CustomersAreFoundByNameOrByWhatTheyOwe) {
  for (const QString& client :
       {u"'나래상회', '02-1', 50000"_s, u"'가람식당', '02-2', 49999"_s, u"'나루', '', -100"_s})
    session.dbBasic.Execute(u"Insert Into Client(Name, Tel, GasInit) Values("_s + client + u")"_s);
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
  EXPECT_EQ(found(), u"가람식당/ 나래상회/ 나루/"_s) << "by name nothing is told of what they owe";
  EXPECT_EQ(told, 3);
  EXPECT_EQ(of, 3);
  sms.tickAll(true);
  EXPECT_EQ(sms.ticked(), 3);
  ASSERT_TRUE(sms.search(SmsFilter::Name, u"나"_s, 0));
  EXPECT_EQ(found(), u"나래상회/ 나루/"_s);
  EXPECT_EQ(sms.ticked(), 0);
  ASSERT_TRUE(sms.search(SmsFilter::Balance, u"가"_s, 50000));
  EXPECT_EQ(found(), u"나래상회/50,000"_s) << "the name counts under its own filter alone";
  EXPECT_EQ(sms.list().column(SmsCol::Balance).header, u"미수금"_s);
  ASSERT_TRUE(sms.search(SmsFilter::Balance, {}, 0));
  EXPECT_EQ(found(), u"가람식당/49,999 나래상회/50,000"_s);

  prompts.expect(u"나'"_s);
  EXPECT_FALSE(sms.search(SmsFilter::Name, u"나'"_s, 0));
  EXPECT_EQ(sms.list().MaxRows(), 0);
}

}  // namespace
