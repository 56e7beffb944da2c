#include "billing/building_rate.h"

#include "tests/support.h"

namespace {

struct BuildingRate : testing::Test, tests::TestPc {};

TEST_F(BuildingRate, TheBuildingsOwnRateGoesBeforeTheApartments) {
  openBooks({2026, 3, 5});
  const auto run = [&](const char* sql) { session.dbBasic.Execute(sql); };
  run("Insert Into APT(Name, Dong, delaypay) Values('한빛', '101', 3.5)");
  run("Insert Into APT(Name, Dong) Values('한빛', '102')");
  run("Insert Into APT(Name, Dong, delaypay) Values('한빛', '102', 9)");  // a block's second entry counts nowhere
  run("Insert Into Client(Name, HouseStyle, BDName, Dong) Values('가', 1, '한빛', '101')");
  run("Insert Into Client(Name, HouseStyle, BDName, Dong) Values('나', 1, '한빛', '102')");
  run("Insert Into Client(Name, HouseStyle, BDName, Dong) Values('다', 1, '별빛', '101')");
  session.rates.books = {{{2.5, 0}, {1.5, 0}, {0.5, 0}}};

  EXPECT_EQ(GetBuildingDelayPay(session, 1), 3.5);
  EXPECT_EQ(GetBuildingDelayPay(session, 2), 0) << "0 is no rate of its own";
  EXPECT_EQ(GetBuildingDelayPay(session, 3), 0) << "in no known building";
  EXPECT_EQ(GetBuildingDelayPay(session, 99), 0);
  EXPECT_EQ(lateRate(session, HouseStyle::Apartment, 1), 3.5);
  EXPECT_EQ(lateRate(session, HouseStyle::Apartment, 2), 1.5);
  EXPECT_EQ(lateRate(session, HouseStyle::Individual, 1), 2.5) << "only the apartments ask the building";
  EXPECT_EQ(lateRate(session, HouseStyle::MultiHousehold, 1), 0.5);

  for (const HouseStyle book : {HouseStyle::Individual, HouseStyle::Apartment, HouseStyle::MultiHousehold}) {
    const LateRates rates(session, book, true);
    for (const qint64 code : {1, 2, 3, 99}) EXPECT_EQ(rates.of(code), lateRate(session, book, code)) << code;
  }
  EXPECT_EQ(LateRates(session, HouseStyle::Apartment, false).of(1), 1.5);
}

TEST_F(BuildingRate, BlockEntriesLoseFourCharactersWhateverTheyAre) {
  session.AppTitle = "해온판매";
  EXPECT_EQ(BuildingLabelForDong(session, "한빛 101"), "한빛 101");
  pc.settings.SaveSetting("해온판매", "Config", "체적검침동별보기", "1");
  EXPECT_EQ(BuildingLabelForDong(session, "한빛 101"), "한빛");
  EXPECT_EQ(BuildingLabelForDong(session, "아파트 전체"), "아파");
  EXPECT_EQ(BuildingLabelForDong(session, "가 1"), "");
}

}  // namespace
