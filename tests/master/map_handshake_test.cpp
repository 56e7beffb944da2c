#include "master/customers/map_handshake.h"

#include "tests/support.h"

namespace {

/** The editor's side of the settings store. */
class MapEditing : public ::testing::Test {
 protected:
  void SetUp() override {
    pc.openBooks();
    pc.session.dbBasic.Execute(
        "Insert into Client(Name, Tel, Address, Position, HouseStyle) Values('김철수', '053-123-4567', "
        "'중앙로 12', 'C:\\RWGAS\\MAP\\old.map', 0)");
    pc.pc.process.setStarter([this](const QString& program, const QStringList&, const QString&) {
      started << program;
      return true;
    });
    put("C:\\RWGAS\\MapEdit.exe");
  }
  void put(const QString& written) { tests::writeFile(pc.pc.paths.native(written)); }
  QString setting(const QString& section, const QString& key) {
    return pc.pc.settings.GetSetting("약도", section, key);
  }
  void answer(const QString& section, const QString& key, const QString& value) {
    pc.pc.settings.SaveSetting("약도", section, key, value);
  }
  QString position() {
    return pc.session.dbBasic.OpenRecordset("Select Position From Client")["Position"].toText();
  }

  tests::TestPc pc;
  QStringList started;
  MapHandshake map{pc.session};
};

TEST_F(MapEditing, handsTheCustomerOverAndTakesTheMapBack) {
  answer("환경설정", "MapEdit", "1");  // left over from a run that broke off
  ASSERT_TRUE(map.start(1));
  EXPECT_EQ(started.size(), 1);
  EXPECT_EQ(setting("사용자", "MapVal"), "C:\\RWGAS\\MAP\\old.map");
  EXPECT_EQ(setting("사용자", "Code"), "1");
  EXPECT_EQ(setting("인쇄", "Cust") + '|' + setting("인쇄", "Addr") + '|' + setting("인쇄", "Phone"),
            "김철수|중앙로 12|053-123-4567");
  EXPECT_EQ(map.look(), MapHandshake::State::Waiting);

  put("C:\\RWGAS\\MAP\\new.map");
  answer("사용자", "MapVal", "C:\\RWGAS\\MAP\\new.map");
  answer("환경설정", "MapEdit", "1");
  EXPECT_EQ(map.look(), MapHandshake::State::Done);
  EXPECT_EQ(position(), "C:\\RWGAS\\MAP\\new.map");
  EXPECT_EQ(setting("환경설정", "MapEdit"), "0");
}

TEST_F(MapEditing, keepsTheOldMapOnAnErrorOrAMissingFile) {
  ASSERT_TRUE(map.start(1));
  answer("사용자", "MapVal", "C:\\RWGAS\\MAP\\nowhere.map");
  answer("환경설정", "MapEdit", "1");
  EXPECT_EQ(map.look(), MapHandshake::State::Done);

  ASSERT_TRUE(map.start(1));
  answer("환경설정", "OccurErr", "1");
  EXPECT_EQ(map.look(), MapHandshake::State::Done);
  EXPECT_EQ(setting("환경설정", "OccurErr"), "0");
  EXPECT_EQ(position(), "C:\\RWGAS\\MAP\\old.map");
}

TEST_F(MapEditing, tellsWhatIsMissing) {
  pc.prompts.expect("약도를 출력할 고객을 먼저 선택하십시오");
  EXPECT_FALSE(map.start(0));
  QFile::remove(pc.pc.paths.native("C:\\RWGAS\\MapEdit.exe"));
  pc.prompts.expect("약도 편집기를 시작할 수 없습니다!");
  EXPECT_FALSE(map.start(1));
}

}  // namespace
