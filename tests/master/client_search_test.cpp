#include "master/customers/client_search.h"

#include "tests/cells.h"
#include "tests/support.h"

namespace {

using Found = ClientSearch::Found;

class ClientSearching : public ::testing::Test {
 protected:
  void SetUp() override {
    pc.openBooks();
    add("'김철수', '053-123-1234', '', '', '중앙로 12', '', 0, False, '', '', Null");
    add("'이영희', '', '010-1234-5678', '', '동성로 3', '', 0, False, '', '', Null");
    add("'행복식당', '', '', '053-777-9999', '중앙로 77', '1112223334', 0, True, '', '', Null");
    add("'가', '02-300-4000', '', '', '', '', 1, True, '한빛', '101', '1203'");
    add("'나', '', '', '', '', '', 1, False, '한빛', '101', Null");
    add("'다', '555-1212', '', '', '', '', 0, False, '', '', Null");
  }
  void add(const QString& values) {
    pc.session.dbBasic.Execute(
        "Insert into Client(Name, Tel, Tel1, Tel2, Address, Uname, HouseStyle, VolumeYesNo, BDName, Dong, "
        "Ho) Values(" +
        values + ")");
  }
  QStringList names(const QString& text, ClientSearchMode mode, bool wholeNumber = false) {
    search.find(text, mode, wholeNumber);
    return tests::columnOf(search.list(), ClientSearch::NameCol);
  }

  tests::TestPc pc;
  ClientSearch search{pc.session};
};

TEST_F(ClientSearching, fourDigitsAreFoundInAnyTelephoneAndInTheName) {
  add("'1234 상회', '', '', '', '', '', 0, False, '', '', Null");
  add("'주소만', '', '', '', '1234번지', '', 0, False, '', '', Null");
  EXPECT_EQ(names("1234", ClientSearchMode::All), (QStringList{"김철수", "이영희", "1234 상회"}));
  EXPECT_EQ(names("9999", ClientSearchMode::All), QStringList{"행복식당"});
}

TEST_F(ClientSearching, textsAreFoundAnywhereAndBuildingsOnlyAmongMeterCustomers) {
  EXPECT_EQ(names("중앙로", ClientSearchMode::All), (QStringList{"김철수", "행복식당"}));
  EXPECT_EQ(names("행복", ClientSearchMode::All), QStringList{"행복식당"});
  EXPECT_EQ(names("한빛", ClientSearchMode::Volume), QStringList{"한빛 101동 1203호"});
  EXPECT_EQ(names("한빛", ClientSearchMode::All), QStringList{});
  EXPECT_EQ(names("3", ClientSearchMode::General).size(), 2) << "a short number is looked for as a text";
}

TEST_F(ClientSearching, theModeLeavesOutTheOtherKind) {
  EXPECT_EQ(names("중앙로", ClientSearchMode::General), QStringList{"김철수"});
  EXPECT_EQ(names("중앙로", ClientSearchMode::Volume), QStringList{"행복식당"});
  EXPECT_EQ(names("", ClientSearchMode::General), (QStringList{"김철수", "한빛 101동", "다", "이영희"}))
      << "by name (나 is the head row of a block)";
  EXPECT_EQ(names("", ClientSearchMode::Volume), (QStringList{"한빛 101동 1203호", "행복식당"}));
  EXPECT_EQ(names("", ClientSearchMode::All).size(), 6);
}

TEST_F(ClientSearching, aCallersNumberEndsTheStoredOneWithOrWithoutItsAreaCode) {
  EXPECT_EQ(names("0535551212", ClientSearchMode::All, true), QStringList{"다"})
      << "stored without an area code";
  EXPECT_EQ(names("053-123-1234", ClientSearchMode::All, true), QStringList{"김철수"});
  EXPECT_EQ(names("1231234", ClientSearchMode::All, true), QStringList{"김철수"});
  EXPECT_EQ(names("12312", ClientSearchMode::All, true), QStringList{}) << "must end it";
  EXPECT_EQ(names("22233", ClientSearchMode::All, true), QStringList{})
      << "five digits are a number, no text";
  EXPECT_EQ(names("0531231234", ClientSearchMode::All), QStringList{"김철수"}) << "typed without dashes";
  EXPECT_EQ(names("01012345678", ClientSearchMode::All), QStringList{"이영희"}) << "of a second telephone";
  EXPECT_EQ(names("0537779999", ClientSearchMode::All), QStringList{"행복식당"}) << "of a third";
  EXPECT_EQ(names("1112223334", ClientSearchMode::All), QStringList{"행복식당"}) << "a business number";
}

TEST_F(ClientSearching, tellsHowManyThereAre) {
  EXPECT_EQ(search.find("김철수", ClientSearchMode::All, false), Found::One);
  ASSERT_TRUE(search.choice(1));
  EXPECT_EQ(search.choice(1)->name, "김철수");
  EXPECT_EQ(search.choice(1)->code, 1);
  EXPECT_FALSE(search.choice(2));
  EXPECT_EQ(search.find("1234", ClientSearchMode::All, false), Found::Several);
  EXPECT_EQ(search.find("없는사람", ClientSearchMode::All, false), Found::None);
  pc.prompts.expect("찾고자 하는 고객명/상호/전화번호가 없습니다!\n신규고객등록을 하시겠습니까?", false);
  EXPECT_FALSE(search.askToRegister());
}

TEST_F(ClientSearching, anApostropheIsReportedWithTheStatement) {
  pc.prompts.expect("Select * From Client Where ( Tel Like '*O'Neil*'");
  EXPECT_EQ(search.find("O'Neil", ClientSearchMode::All, false), Found::Failed);
}

}  // namespace
