#include "master/customers/new_client.h"

#include "tests/answers.h"
#include "tests/support.h"

namespace {

class QuickEntry : public ::testing::Test {
 protected:
  void SetUp() override { pc.openBooks(); }
  QString stored(const QString& what) {
    return tests::rowsOf(pc.session.dbBasic, "Select " + what + " From Client");
  }
  tests::TestPc pc;
};

TEST_F(QuickEntry, searchedTextBecomesTelephoneOrName) {
  EXPECT_EQ(newClientFrom("0531234567").tel, "053-123-4567");
  EXPECT_EQ(newClientFrom("053-123-4567").tel, "053-123-4567");
  EXPECT_EQ(newClientFrom(" 행복식당 ").name, "행복식당");
  EXPECT_EQ(newClientFrom("1번지 식당").name, "1번지 식당");
}

TEST_F(QuickEntry, storesAPlainCustomerCollectedOnAVisit) {
  ClientEntry boxes = newClientFrom("0531234567");
  boxes.memo = "초인종 고장";
  const ClientSaved saved = saveNewClient(pc.session, boxes);
  ASSERT_TRUE(saved.done);
  EXPECT_EQ(stored("Code, Tel, HouseStyle, PayWay, AppDate, VolumeYesNo"),
            QString::number(saved.code) + "|053-123-4567|0|1|" + pc.pc.clock.dateText() + "|0");
}

TEST_F(QuickEntry, asksForWhatAMeterCustomerNeedsAndMakesItsRows) {
  const auto refused = [this](const ClientEntry& boxes, const QString& told) {
    pc.prompts.expect(told);
    return saveNewClient(pc.session, boxes).focus;
  };
  EXPECT_EQ(refused({}, "성명/상호/전화번호/주소중 한 가지는 입력되어야 합니다!"), ClientBox::Name);
  ClientEntry boxes = newClientFrom("국밥집");
  boxes.volume = true;
  EXPECT_EQ(refused(boxes, "체적단가를 입력하십시오"), ClientBox::VolumeUnit);
  boxes.volumeUnit = "1,500";
  EXPECT_EQ(refused(boxes, "압력조정기를 입력하십시오"), ClientBox::Pressure);
  EXPECT_EQ(stored("Code"), "");
  boxes.pressure = "4";
  EXPECT_TRUE(saveNewClient(pc.session, boxes).done);
  EXPECT_EQ(stored("VolumeUnit"), "1500");
  EXPECT_EQ(tests::rowsOf(pc.session.dbYear, "Select Count(*) From Evaporation Where ClientCode = 1"), "13");
}

}  // namespace
