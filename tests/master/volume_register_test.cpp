// Regulators: the seven fixed ones, and how far a new price goes.
#include "master/catalogue/volume_register.h"

#include "tests/support.h"

using namespace Qt::StringLiterals;

namespace {

struct VolumeRegisterTest : testing::Test {
  void SetUp() override {
    pc.openBooks();
    volume.load();
  }
  void client(const QString& name, const QString& size, int unit) {
    pc.session.dbBasic.Execute(u"Insert Into Client(Name, VolumeYesNo, Volume, VolumeUnit) Values('"_s +
                               name + u"', True, '"_s + size + u"', "_s + QString::number(unit) + u")"_s);
  }
  qint64 unitOf(const QString& name) {
    return pc.session.dbBasic
        .OpenRecordset(u"Select VolumeUnit From Client Where Name = '"_s + name + u"'"_s)[0]
        .toLong();
  }

  tests::TestPc pc;
  VolumeRegister volume{pc.session};
};

TEST_F(VolumeRegisterTest, SevenFixedRowsKeepTheirSizeAndStay) {
  ASSERT_EQ(volume.list().MaxRows(), 7);
  volume.beginNew();
  ASSERT_TRUE(volume.save({{u"Size"_s, u"새규격"_s}, {u"Unit"_s, u"1,500"_s}}).done);
  ASSERT_EQ(volume.list().MaxRows(), 8);
  EXPECT_EQ(volume.list().background(7, 1), VolumeRegister::fixedColour);
  EXPECT_EQ(volume.list().background(8, 1), -1);

  volume.select(7);
  EXPECT_TRUE(volume.chosenIsFixed());
  pc.prompts.expect(u"하늘색 부분의 7개의 등록사항은 삭제할 수 없습니다!"_s);
  EXPECT_FALSE(volume.remove().done);

  RegisterFields boxes = volume.select(7);
  const QString size = boxes[u"Size"_s];
  boxes[u"Size"_s] = u"바꾼규격"_s;
  boxes[u"Name"_s] = u"이름"_s;
  EXPECT_TRUE(volume.save(boxes).done);  // no question: the price is the same
  EXPECT_EQ(volume.list().text(7, 1), size);
  EXPECT_EQ(volume.list().text(7, 2), u"이름"_s);

  volume.select(8);
  EXPECT_FALSE(volume.chosenIsFixed());
  pc.prompts.expect(u"선택된 자료를 삭제하시겠습니까?"_s);
  EXPECT_TRUE(volume.remove().done);
  EXPECT_EQ(volume.list().MaxRows(), 7);
}

TEST_F(VolumeRegisterTest, NewRowNeedsNewButtonSizeAndPrice) {
  pc.prompts.expect(u"신규등록은 신규버튼을 누른후 입력하십시오"_s);
  EXPECT_FALSE(volume.save({{u"Size"_s, u"A"_s}, {u"Unit"_s, u"1"_s}}).done);
  volume.beginNew();
  pc.prompts.expect(u"압력조정기 규격은 필수입력사항입니다!"_s);
  EXPECT_EQ(volume.save({{u"Unit"_s, u"1"_s}}).focus, u"Size"_s);
  pc.prompts.expect(u"KG당 단가는 필수입력사항입니다!"_s);
  EXPECT_EQ(volume.save({{u"Size"_s, u"A"_s}}).focus, u"Unit"_s);
  const QString known = volume.list().text(1, 1);
  pc.prompts.expect(u"규격 : "_s + known + u" 은 이미 등록되어 있습니다!"_s);
  EXPECT_FALSE(volume.save({{u"Size"_s, known}, {u"Unit"_s, u"1"_s}}).done);
}

TEST_F(VolumeRegisterTest, PriceGoesToCustomersOnTheOldPriceOrToAllOfThem) {
  volume.beginNew();
  ASSERT_TRUE(volume.save({{u"Size"_s, u"R8"_s}, {u"Unit"_s, u"1500"_s}}).done);
  client(u"보통"_s, u"R8"_s, 1500);
  client(u"특별"_s, u"R8"_s, 1300);
  client(u"다른조정기"_s, u"R9"_s, 1500);

  const auto changed = [this](const RegisterFields& typed, const QString& question, bool answer,
                              const QString& told) {
    RegisterFields boxes = volume.select(8);
    boxes.insert(typed);
    pc.prompts.expect(question, answer);
    pc.prompts.expect(told);
    return volume.save(boxes).done;
  };
  ASSERT_TRUE(changed({{u"Unit"_s, u"1,600"_s}},
                      u"동일한 조정기를 사용 하지만, 단가가 다른 고객도 같이 변경할까요?"_s, false,
                      u"고객 1 명의 체적단가가 변경되었습니다!"_s));
  EXPECT_EQ(unitOf(u"보통"_s), 1600);
  EXPECT_EQ(unitOf(u"특별"_s), 1300);
  EXPECT_EQ(unitOf(u"다른조정기"_s), 1500);

  // With a new size too, customers are found by the size they carry.
  ASSERT_TRUE(changed({{u"Size"_s, u"R8B"_s}, {u"Unit"_s, u"1700"_s}},
                      u"[아니오]선택시 동일한 단가를 사용하는 고객만 변경합니다."_s, true,
                      u"고객 2 명의 체적단가가 변경되었습니다!"_s));
  EXPECT_EQ(unitOf(u"특별"_s), 1700);
  EXPECT_EQ(unitOf(u"다른조정기"_s), 1500);
}

}  // namespace
