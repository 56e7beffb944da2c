// Regulators: the seven fixed ones, and how far a new price goes.
#include "master/catalogue/volume_register.h"

#include "tests/answers.h"
#include "tests/master/refusal.h"

namespace {

struct VolumeRegisterTest : testing::Test {
  void SetUp() override {
    pc.openBooks();
    volume.load();
  }
  void client(const QString& name, const QString& size, int unit) {
    pc.session.dbBasic.Execute("Insert Into Client(Name, VolumeYesNo, Volume, VolumeUnit) Values('" + name +
                               "', True, '" + size + "', " + QString::number(unit) + ")");
  }
  QString units() { return tests::rowsOf(pc.session.dbBasic, "Select VolumeUnit From Client Order By Code"); }

  tests::TestPc pc;
  VolumeRegister volume{pc.session};
};

TEST_F(VolumeRegisterTest, SevenFixedRowsKeepTheirSizeAndStay) {
  ASSERT_EQ(volume.list().MaxRows(), 7);
  volume.beginNew();
  ASSERT_TRUE(volume.save({{"Size", "새규격"}, {"Unit", "1,500"}}).done);
  ASSERT_EQ(volume.list().MaxRows(), 8);
  EXPECT_EQ(volume.list().background(7, 1), VolumeRegister::fixedColour);
  EXPECT_EQ(volume.list().background(8, 1), -1);

  volume.select(7);
  EXPECT_TRUE(volume.chosenIsFixed());
  pc.prompts.expect("하늘색 부분의 7개의 등록사항은 삭제할 수 없습니다!");
  EXPECT_FALSE(volume.remove().done);

  RegisterFields boxes = volume.select(7);
  const QString size = boxes["Size"];
  boxes["Size"] = "바꾼규격";
  boxes["Name"] = "이름";
  EXPECT_TRUE(volume.save(boxes).done);  // no question: the price is the same
  EXPECT_EQ(volume.list().text(7, 1), size);
  EXPECT_EQ(volume.list().text(7, 2), "이름");

  volume.select(8);
  EXPECT_FALSE(volume.chosenIsFixed());
  pc.prompts.expect("선택된 자료를 삭제하시겠습니까?");
  EXPECT_TRUE(volume.remove().done);
  EXPECT_EQ(volume.list().MaxRows(), 7);
}

TEST_F(VolumeRegisterTest, NewRowNeedsNewButtonSizeAndPrice) {
  const auto refused = [this](const RegisterFields& boxes, const QString& told) {
    return tests::refusedAt(pc.prompts, volume, boxes, told);
  };
  refused({{"Size", "A"}, {"Unit", "1"}}, "신규등록은 신규버튼을 누른후 입력하십시오");
  volume.beginNew();
  EXPECT_EQ(refused({{"Unit", "1"}}, "압력조정기 규격은 필수입력사항입니다!"), "Size");
  EXPECT_EQ(refused({{"Size", "A"}}, "KG당 단가는 필수입력사항입니다!"), "Unit");
  const QString known = volume.list().text(1, 1);
  refused({{"Size", known}, {"Unit", "1"}}, "규격 : " + known + " 은 이미 등록되어 있습니다!");
}

TEST_F(VolumeRegisterTest, PriceGoesToCustomersOnTheOldPriceOrToAllOfThem) {
  volume.beginNew();
  ASSERT_TRUE(volume.save({{"Size", "R8"}, {"Unit", "1500"}}).done);
  client("보통", "R8", 1500);
  client("특별", "R8", 1300);
  client("다른조정기", "R9", 1500);

  const auto changed = [this](const RegisterFields& typed, const QString& question, bool answer,
                              const QString& told) {
    RegisterFields boxes = volume.select(8);
    boxes.insert(typed);
    pc.prompts.expect(question, answer);
    pc.prompts.expect(told);
    return volume.save(boxes).done;
  };
  ASSERT_TRUE(changed({{"Unit", "1,600"}}, "동일한 조정기를 사용 하지만, 단가가 다른 고객도 같이 변경할까요?",
                      false, "고객 1 명의 체적단가가 변경되었습니다!"));
  EXPECT_EQ(units(), "1600;1300;1500") << "the usual, the special, the one on another regulator";

  // With a new size too, customers are found by the size they carry.
  ASSERT_TRUE(changed({{"Size", "R8B"}, {"Unit", "1700"}},
                      "[아니오]선택시 동일한 단가를 사용하는 고객만 변경합니다.", true,
                      "고객 2 명의 체적단가가 변경되었습니다!"));
  EXPECT_EQ(units(), "1700;1700;1500");
}

}  // namespace
