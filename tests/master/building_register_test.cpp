// Blocks and their households: numbers, what a save makes of them, what changes and goes with a block.
#include "master/buildings/building_register.h"

#include "store/jet/error.h"
#include "tests/answers.h"
#include "tests/cpu_clock.h"
#include "tests/support.h"

using namespace Qt::StringLiterals;

namespace {

using Floors = std::vector<std::vector<int>>;

TEST(BuildingUnits, FloorTimesHundredAndPositionWithAndWithoutFours) {
  EXPECT_EQ(unitNumbers({.floors = 2, .width = 5}),
            (Floors{{101, 102, 103, 104, 105}, {201, 202, 203, 204, 205}}));
  for (const bool staircase : {true, false}) {
    // Five floors are five floors: the numbers go past 400.
    EXPECT_EQ(unitNumbers({.floors = 5, .width = 2, .staircase = staircase, .floor4 = false}),
              (Floors{{101, 102}, {201, 202}, {301, 302}, {501, 502}, {601, 602}}));
    EXPECT_EQ(unitNumbers({.floors = 1, .width = 13, .staircase = staircase, .unit4 = false}),
              (Floors{{101, 102, 103, 105, 106, 107, 108, 109, 110, 111, 112, 113, 115}}));
  }
}

TEST(BuildingUnits, TheTestForFloor4LooksAtThreeDigitsAndSparesItsBounds) {
  // Kept. Floors 4, 14, 24, 34 and 44 go, 40 to 43 stay.
  const Floors high = unitNumbers({.floors = 43, .width = 1, .floor4 = false});
  QList<int> floors;
  for (const auto& floor : high) floors << floor[0] / 100;
  for (const int gone : {4, 14, 24, 34, 44}) EXPECT_FALSE(floors.contains(gone)) << gone;
  for (const int stays : {40, 41, 43}) EXPECT_TRUE(floors.contains(stays)) << stays;
  EXPECT_EQ(floors.last(), 48);
  // Kept. Upwards from 399 comes 499, which the test spares, while its neighbour 498 is stepped over.
  const Floors wide = unitNumbers({.floors = 4, .width = 99, .floor4 = false});
  EXPECT_EQ(wide[3][97], 598);
  EXPECT_EQ(wide[3][98], 499);
  // Along the corridor the floor has been stepped over as a whole.
  EXPECT_EQ(unitNumbers({.floors = 4, .width = 99, .staircase = false, .floor4 = false})[3][98], 599);
}

TEST(BuildingUnits, TheGridShowsTheTopFloorFirstAndGivesTheOrderOfMaking) {
  SpreadModel grid;
  showUnits(grid, {{u"101"_s, u"102"_s}, {u"201"_s, u"202"_s}}, false);
  EXPECT_EQ(grid.text(1, 1), u"2층"_s);
  EXPECT_EQ(grid.text(1, 2), u"201"_s);
  EXPECT_EQ(unitsAsShown(grid, true), (QStringList{u"101"_s, u"201"_s, u"102"_s, u"202"_s}));
  EXPECT_EQ(unitsAsShown(grid, false), (QStringList{u"101"_s, u"102"_s, u"201"_s, u"202"_s}));
  grid.setText(2, 2, u"B01"_s);
  grid.setText(1, 3, u""_s);
  EXPECT_EQ(unitsAsShown(grid, true), (QStringList{u"B01"_s, u"201"_s, u"102"_s}));
  grid.setText(2, 2, u"201"_s);
  markTwins(grid);
  EXPECT_NE(grid.background(1, 2), -1);
  EXPECT_EQ(grid.background(1, 2), grid.background(2, 2));
  EXPECT_EQ(grid.background(2, 3), -1);
}

struct BuildingRegisterTest : testing::Test {
  void SetUp() override {
    pc.openBooks({2026, 3, 16});
    buildings.load();
  }
  QString rows(const QString& sql) { return tests::rowsOf(pc.session.dbYear, sql); }
  QString blocks() {
    return tests::rowsOf(pc.session.dbBasic, u"Select Name & ' ' & Dong As Block From APT Order By Code"_s);
  }
  void save(const RegisterFields& boxes) {
    buildings.beginNew();
    pc.prompts.expect(u"건물등록을 마쳤습니다"_s);
    ASSERT_TRUE(buildings.save(boxes).done);
  }

  tests::TestPc pc;
  BuildingRegister buildings{pc.session, HouseStyle::Apartment};
  RegisterFields block{
      {u"Name"_s, u"달빛"_s},        {u"Dong"_s, u"101"_s},       {u"Structure"_s, u"-1"_s},
      {u"Height"_s, u"2"_s},         {u"Width"_s, u"2"_s},        {u"PostCode"_s, u"712-010"_s},
      {u"Address"_s, u"장터동 7"_s}, {u"Evaporation"_s, u"-1"_s}, {u"Pressure"_s, u"4"_s},
      {u"Eva"_s, u"2,450"_s},        {u"delaypay"_s, u"1.5"_s},   {u"Chk4"_s, u"-1"_s},
      {u"Chk4Ho"_s, u"-1"_s}};
};

TEST_F(BuildingRegisterTest, WhatIsMissingIsAskedForInOrder) {
  pc.prompts.expect(u"수정할 건물/동을 선택하십시오!"_s);
  EXPECT_FALSE(buildings.save({}).done);
  pc.prompts.expect(u"신규등록은 신규버튼을 누른 후 입력하십시오"_s);
  EXPECT_FALSE(buildings.save(block).done);
  buildings.beginNew();
  RegisterFields boxes{{u"Evaporation"_s, u"-1"_s}, {u"Height"_s, u"0"_s}};
  for (const auto& [column, text] :
       std::vector<std::pair<QString, QString>>{{u"Name"_s, u"건물명은 필수입력사항입니다!"_s},
                                                {u"Dong"_s, u"동명은 필수입력사항입니다!"_s},
                                                {u"Height"_s, u"층수는 필수입력사항입니다!"_s},
                                                {u"Width"_s, u"층당 세대수는 필수입력사항입니다!"_s},
                                                {u"PostCode"_s, u"우편번호는 필수입력사항입니다!"_s},
                                                {u"Address"_s, u"주소는 필수입력사항입니다!"_s},
                                                {u"Pressure"_s, u"압력조정기 입력은 필수사항입니다!"_s},
                                                {u"Eva"_s, u"체적단가 입력은 필수사항입니다!"_s}}) {
    pc.prompts.expect(text);
    EXPECT_EQ(buildings.save(boxes).focus, column);
    boxes[column] = block[column];
  }
  boxes[u"Height"_s] = u"100"_s;
  pc.prompts.expect(u"층수와 층당 세대수는 99까지 입력할 수 있습니다!"_s);
  EXPECT_EQ(buildings.save(boxes).focus, u"Height"_s);
  save(block);
  buildings.beginNew();
  pc.prompts.expect(u"달빛 101동은 이미 등록되어 있습니다!"_s);
  EXPECT_EQ(buildings.save(block).focus, u"Dong"_s);
  EXPECT_EQ(blocks(), u"달빛 101"_s);
}

TEST_F(BuildingRegisterTest, AMeteredBlockComesWithItsHouseholdsAsTheGridStands) {
  buildings.beginNew();
  buildings.showUnits(block);
  ASSERT_EQ(buildings.units().text(1, 3), u"202"_s);
  buildings.units().setText(1, 3, u"B2"_s);    // 202 is called otherwise
  buildings.units().setText(2, 3, QString());  // there is no 102
  buildings.showUnits(block);                  // nothing that numbers depend on has changed
  pc.prompts.expect(u"건물등록을 마쳤습니다"_s);
  ASSERT_TRUE(buildings.save(block).done);

  EXPECT_EQ(rows(u"Select Code, Name, HouseStyle, BDName, Dong, Ho, PostCode, Address, VolumeYesNo, Volume, "
                 u"VolumeUnit, PayWay, AppDate From Client Order By Code"_s),
            u"1|달빛 101동|1|달빛|101||712-010|장터동 7|-1|4|2450|2|2026-03-16;"
            u"2|달빛 101동 101호|1|달빛|101|101|712-010|장터동 7|-1|4|2450|2|2026-03-16;"
            u"3|달빛 101동 201호|1|달빛|101|201|712-010|장터동 7|-1|4|2450|2|2026-03-16;"
            u"4|달빛 101동 B2호|1|달빛|101|B2|712-010|장터동 7|-1|4|2450|2|2026-03-16"_s);
  EXPECT_EQ(rows(u"Select Count(Code) As C From Client Where Ho Is Null"_s), u"1"_s)
      << "the head row has no Ho";
  EXPECT_EQ(rows(u"Select ClientCode, Count(Mon) As C, Min(Mon) As A, Max(Mon) As Z From Evaporation "
                 u"Group By ClientCode Order By ClientCode"_s),
            u"2|13|0|12;3|13|0|12;4|13|0|12"_s);
  EXPECT_EQ(buildings.list().text(1, 6), u"3"_s) << "households that stand";
  EXPECT_EQ(buildings.list().text(1, 3), u"계단식"_s);
}

TEST_F(BuildingRegisterTest, ABlockWithoutMetersAndACorridorGoFloorByFloor) {
  BuildingRegister houses(pc.session, HouseStyle::MultiHousehold);
  block[u"Structure"_s] = u"0"_s;
  block[u"Evaporation"_s] = u"0"_s;  // regulator and price left over in the boxes count for nothing
  houses.beginNew();
  pc.prompts.expect(u"건물등록을 마쳤습니다"_s);
  ASSERT_TRUE(houses.save(block).done);
  EXPECT_EQ(rows(u"Select Ho, HouseStyle, VolumeYesNo, Volume, VolumeUnit From Client Where Ho Is Not Null "
                 u"Order By Code"_s),
            u"101|2|0||0;102|2|0||0;201|2|0||0;202|2|0||0"_s);
  EXPECT_EQ(rows(u"Select Count(Mon) As C From Evaporation"_s), u"0"_s);
  buildings.load();
  EXPECT_EQ(buildings.list().MaxRows(), 0) << "the apartments' list has no multi-family house";
}

TEST_F(BuildingRegisterTest, WhatFailsOnTheWayIsTakenBackAndTold) {
  pc.session.dbBasic.Execute(
      u"Insert Into Client(Name, BDName, Dong, Ho) Values('옛 고객', '달빛', '101', '999')"_s);
  buildings.beginNew();
  buildings.showUnits(block);
  buildings.units().setText(1, 3, u"2'2"_s);
  pc.prompts.expect(u"건물등록을 마치지 못하여 등록하던 자료를 모두 지웠습니다!"_s);
  EXPECT_THROW(buildings.save(block), jet::Error);
  EXPECT_EQ(blocks(), QString());
  EXPECT_EQ(rows(u"Select Name From Client"_s), u"옛 고객"_s) << "whoever stood there before stays";
  EXPECT_EQ(rows(u"Select Count(Mon) As C From Evaporation"_s), u"0"_s);
  EXPECT_TRUE(buildings.isNew()) << "the boxes stay for another try";
}

TEST_F(BuildingRegisterTest, WhatCannotBeTakenBackIsTold) {
  block[u"Height"_s] = u"50"_s;
  block[u"Width"_s] = u"80"_s;
  buildings.beginWork = [&](int) {
    return [&](int) {
      pc.session.dbYear.Close();  // the year's file is gone after the first group
      return true;
    };
  };
  buildings.beginNew();
  pc.prompts.expect(u"건물이 목록에 있으면 삭제한 후 다시 등록하십시오."_s);
  EXPECT_THROW(buildings.save(block), jet::Error);
  EXPECT_EQ(blocks(), u"달빛 101"_s) << "the block stands, so that it can be deleted";
}

TEST_F(BuildingRegisterTest, AChangeReachesEveryHouseholdButNotItsName) {
  save(block);
  block[u"Dong"_s] = u"102"_s;
  save(block);
  RegisterFields boxes = buildings.select(1);
  boxes[u"Dong"_s] = u"102"_s;
  pc.prompts.expect(u"달빛 102동은 이미 등록되어 있습니다!"_s);
  EXPECT_FALSE(buildings.save(boxes).done);
  boxes[u"Dong"_s] = u"103"_s;
  boxes[u"Structure"_s] = u"0"_s;
  boxes[u"Address"_s] = u"솔밭동 9"_s;
  boxes[u"Eva"_s] = u"2,600"_s;
  pc.prompts.expect(u"선택하신 건물의 모든 가구에 대한 내용이 수정됩니다."_s);
  ASSERT_TRUE(buildings.save(boxes).done);
  EXPECT_EQ(rows(u"Select Distinct Dong, Address, VolumeUnit From Client Order By Dong"_s),
            u"102|장터동 7|2450;103|솔밭동 9|2600"_s);
  EXPECT_EQ(rows(u"Select Name From Client Where Dong = '103' And Ho = '201'"_s), u"달빛 101동 201호"_s);
  EXPECT_EQ(buildings.list().text(1, 3), u"복도식"_s);

  boxes = buildings.select(1);
  boxes[u"Evaporation"_s] = u"0"_s;
  pc.prompts.expect(u"모든 가구에 대한 내용이 수정됩니다."_s);
  ASSERT_TRUE(buildings.save(boxes).done);
  EXPECT_EQ(rows(u"Select Distinct VolumeYesNo, Volume, VolumeUnit From Client Where Dong = '103'"_s),
            u"0||0"_s);
}

TEST_F(BuildingRegisterTest, ABlockThatGetsMetersGetsItsMeterRows) {
  block[u"Evaporation"_s] = u"0"_s;
  save(block);
  RegisterFields boxes = buildings.select(1);
  boxes[u"Evaporation"_s] = u"-1"_s;
  boxes[u"Pressure"_s] = u"4"_s;
  boxes[u"Eva"_s] = u"2450"_s;
  boxes[u"Dong"_s] = u"105"_s;  // renamed in the same change
  pc.session.dbYear.Execute(u"Insert Into Evaporation(ClientCode, Mon) Values(2, 5)"_s);
  pc.prompts.expect(u"모든 가구에 대한 내용이 수정됩니다."_s);
  ASSERT_TRUE(buildings.save(boxes).done);
  EXPECT_EQ(
      rows(u"Select ClientCode, Count(Mon) As C From Evaporation Group By ClientCode Order By ClientCode"_s),
      u"2|13;3|13;4|13;5|13"_s);
}

TEST_F(BuildingRegisterTest, ADeletedBlockTakesCustomersAndMeterRowsAndLeavesSales) {
  save(block);
  block[u"Dong"_s] = u"102"_s;
  save(block);
  pc.session.dbYear.Execute(u"Insert Into Sale(SaleDate, ClientCode) Values('2026-03-02', 2)"_s);
  buildings.select(1);
  pc.prompts.expect(u"선택된 건물의 자료와 고객현황을 모두 지우시겠습니까?"_s);
  pc.prompts.expect(u"삭제하시겠습니까?"_s, false);
  EXPECT_FALSE(buildings.remove().done);
  EXPECT_EQ(blocks(), u"달빛 101;달빛 102"_s);
  pc.prompts.expect(u"선택된 건물의 자료와 고객현황을 모두 지우시겠습니까?"_s);
  pc.prompts.expect(u"삭제는 선택된 건물에 대한 모든 메뉴에서의 자료를 삭제합니다!\n삭제하시겠습니까?"_s);
  EXPECT_TRUE(buildings.remove().done);
  EXPECT_EQ(blocks(), u"달빛 102"_s);
  EXPECT_EQ(rows(u"Select Distinct Dong From Client"_s), u"102"_s);
  EXPECT_EQ(rows(u"Select Min(ClientCode) As A, Count(Mon) As C From Evaporation"_s), u"7|52"_s);
  EXPECT_EQ(rows(u"Select ClientCode From Sale"_s), u"2"_s);
}

TEST_F(BuildingRegisterTest, AThousandHouseholdsAreMadeWithinSeconds) {
  block[u"Height"_s] = u"20"_s;
  block[u"Width"_s] = u"50"_s;
  int told = 0, of = 0, groups = 0;
  buildings.beginWork = [&](int count) {
    of = count;
    return [&](int done) {
      EXPECT_GT(done, told);
      ++groups;
      told = done;
      return false;  // it may not be stopped half way
    };
  };
  tests::CpuClock since;
  save(block);
  EXPECT_LT(since.elapsed(), 15000);
  EXPECT_EQ(of, 1000);
  EXPECT_EQ(told, 1000);
  EXPECT_EQ(groups, 1) << "a power cut leaves all of it or nothing";
  EXPECT_EQ(rows(u"Select Count(Mon) As C From Evaporation"_s), u"13000"_s);
  since.restart();
  buildings.select(1);
  pc.prompts.expect(u"모두 지우시겠습니까?"_s);
  pc.prompts.expect(u"삭제하시겠습니까?"_s);
  EXPECT_TRUE(buildings.remove().done);
  EXPECT_LT(since.elapsed(), 4000) << "other PCs wait no longer than this";
  EXPECT_EQ(rows(u"Select Count(Code) As C From Client"_s), u"0"_s);
}

}  // namespace
