#include "billing/building_rate.h"

#include "tests/support.h"

namespace {

TEST(BuildingRate, TheBuildingsOwnRateGoesBeforeTheApartments) {
  tests::TestPc pc;
  pc.openBooks({2026, 3, 5});
  const auto run = [&](const char* sql) { pc.session.dbBasic.Execute(QString::fromUtf8(sql)); };
  run("Insert Into APT(Name, Dong, delaypay) Values('한빛', '101', 3.5)");
  run("Insert Into APT(Name, Dong) Values('한빛', '102')");
  run("Insert Into APT(Name, Dong, delaypay) Values('한빛', '102', 9)");  // a block's second entry counts nowhere
  run("Insert Into Client(Name, HouseStyle, BDName, Dong) Values('가', 1, '한빛', '101')");
  run("Insert Into Client(Name, HouseStyle, BDName, Dong) Values('나', 1, '한빛', '102')");
  run("Insert Into Client(Name, HouseStyle, BDName, Dong) Values('다', 1, '별빛', '101')");
  pc.session.rates.books = {{{2.5, 0}, {1.5, 0}, {0.5, 0}}};

  EXPECT_EQ(GetBuildingDelayPay(pc.session, 1), 3.5);
  EXPECT_EQ(GetBuildingDelayPay(pc.session, 2), 0) << "0 is no rate of its own";
  EXPECT_EQ(GetBuildingDelayPay(pc.session, 3), 0) << "in no known building";
  EXPECT_EQ(GetBuildingDelayPay(pc.session, 99), 0);
  EXPECT_EQ(lateRate(pc.session, HouseStyle::Apartment, 1), 3.5);
  EXPECT_EQ(lateRate(pc.session, HouseStyle::Apartment, 2), 1.5);
  EXPECT_EQ(lateRate(pc.session, HouseStyle::Individual, 1), 2.5) << "only the apartments ask the building";
  EXPECT_EQ(lateRate(pc.session, HouseStyle::MultiHousehold, 1), 0.5);

  for (const HouseStyle book : {HouseStyle::Individual, HouseStyle::Apartment, HouseStyle::MultiHousehold}) {
    const LateRates rates(pc.session, book, true);
    for (const qint64 code : {1, 2, 3, 99})
      EXPECT_EQ(rates.of(code), lateRate(pc.session, book, code)) << code;
  }
  EXPECT_EQ(LateRates(pc.session, HouseStyle::Apartment, false).of(1), 1.5);
}

TEST(BuildingRate, BlockEntriesLoseFourCharactersWhateverTheyAre) {
  tests::TestPc pc;
  pc.session.AppTitle = "해온판매";
  EXPECT_EQ(BuildingLabelForDong(pc.session, "한빛 101"), "한빛 101");
  pc.pc.settings.SaveSetting("해온판매", "Config", "체적검침동별보기", "1");
  EXPECT_EQ(BuildingLabelForDong(pc.session, "한빛 101"), "한빛");
  EXPECT_EQ(BuildingLabelForDong(pc.session, "아파트 전체"), "아파");
  EXPECT_EQ(BuildingLabelForDong(pc.session, "가 1"), "");
}

}  // namespace
