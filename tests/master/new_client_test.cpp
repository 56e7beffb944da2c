#include "master/customers/new_client.h"

#include "tests/support.h"

namespace {

class QuickEntry : public ::testing::Test {
 protected:
  void SetUp() override { pc.openBooks(); }
  jet::Recordset only() { return pc.session.dbBasic.OpenRecordset("Select * From Client"); }
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
  const jet::Recordset row = only();
  EXPECT_EQ(row["Code"].toLong(), saved.code);
  EXPECT_EQ(row["Tel"].toText(), "053-123-4567");
  EXPECT_EQ(row["HouseStyle"].toLong(), 0);
  EXPECT_EQ(row["PayWay"].toLong(), 1);
  EXPECT_EQ(row["AppDate"].toText(), pc.pc.clock.dateText());
  EXPECT_FALSE(row["VolumeYesNo"].toBool());
}

TEST_F(QuickEntry, asksForWhatAMeterCustomerNeedsAndMakesItsRows) {
  pc.prompts.expect("성명/상호/전화번호/주소중 한 가지는 입력되어야 합니다!");
  EXPECT_EQ(saveNewClient(pc.session, {}).focus, ClientBox::Name);
  ClientEntry boxes = newClientFrom("국밥집");
  boxes.volume = true;
  pc.prompts.expect("체적단가를 입력하십시오");
  EXPECT_EQ(saveNewClient(pc.session, boxes).focus, ClientBox::VolumeUnit);
  boxes.volumeUnit = "1,500";
  pc.prompts.expect("압력조정기를 입력하십시오");
  EXPECT_EQ(saveNewClient(pc.session, boxes).focus, ClientBox::Pressure);
  EXPECT_TRUE(only().atEnd());
  boxes.pressure = "4";
  EXPECT_TRUE(saveNewClient(pc.session, boxes).done);
  EXPECT_EQ(only()["VolumeUnit"].toLong(), 1500);
  EXPECT_EQ(pc.session.dbYear.OpenRecordset("Select Count(*) As N From Evaporation Where ClientCode = 1")["N"]
                .toLong(),
            13);
}

}  // namespace
