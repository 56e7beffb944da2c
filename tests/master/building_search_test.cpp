#include "master/buildings/building_search.h"

#include "tests/answers.h"
#include "tests/support.h"

namespace {

TEST(BuildingSearching, listsBuildingsOfAStyleWithTheirBlocks) {
  tests::TestPc pc;
  pc.openBooks();
  tests::insertRows(
      pc.session.dbBasic, "APT(Name, Dong, PostCode, Address, Height, Gubun)",
      {"'가온', '102', '700-020', '동성로 2', 5, True", "'한빛', '201', '700-040', '서문로 4', 3, False",
       "'한빛', '102', '700-010', '중앙로 1', 15, True", "'한빛', '101', '700-010', '중앙로 1', 12, True",
       "'가온', '1', '700-020', '동성로 2', 5, True", "'별빌라', '가', '700-030', '남산로 3', 4, False"});
  BuildingSearch apartments(pc.session, HouseStyle::Apartment);
  ASSERT_TRUE(apartments.loadBuildings());
  ASSERT_EQ(apartments.buildings().MaxRows(), 2);
  EXPECT_EQ(apartments.buildings().text(1, 1), "가온");
  EXPECT_EQ(apartments.buildings().text(2, 1) + apartments.buildings().text(2, 2), "한빛2");
  ASSERT_TRUE(apartments.loadBlocks("한빛"));
  ASSERT_EQ(apartments.blocks().MaxRows(), 2);
  EXPECT_EQ(apartments.blocks().text(1, 1) + apartments.blocks().text(2, 1), "101102");

  const auto block = apartments.choice("한빛", "102");
  ASSERT_TRUE(block);
  EXPECT_EQ(block->postCode + block->address + block->dong, "700-010중앙로 1102");
  EXPECT_FALSE(apartments.choice("한빛", "103"));

  BuildingSearch houses(pc.session, HouseStyle::MultiHousehold);
  ASSERT_TRUE(houses.loadBuildings());
  EXPECT_EQ(houses.buildings().MaxRows(), 2);
}

}  // namespace
