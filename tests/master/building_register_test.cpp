// Blocks and their households: numbers, what a save makes of them, what changes and goes with a block.
#include "master/buildings/building_register.h"

#include "store/jet/error.h"
#include "tests/answers.h"
#include "tests/cpu_clock.h"
#include "tests/master/refusal.h"

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
  showUnits(grid, {{"101", "102"}, {"201", "202"}}, false);
  EXPECT_EQ(grid.text(1, 1), "2층");
  EXPECT_EQ(grid.text(1, 2), "201");
  EXPECT_EQ(unitsAsShown(grid, true), (QStringList{"101", "201", "102", "202"}));
  EXPECT_EQ(unitsAsShown(grid, false), (QStringList{"101", "102", "201", "202"}));
  grid.setText(2, 2, "B01");
  grid.setText(1, 3, "");
  EXPECT_EQ(unitsAsShown(grid, true), (QStringList{"B01", "201", "102"}));
  grid.setText(2, 2, "201");
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
    return tests::rowsOf(pc.session.dbBasic, "Select Name & ' ' & Dong As Block From APT Order By Code");
  }
  QString refused(const RegisterFields& boxes, const QString& told) {
    return tests::refusedAt(pc.prompts, buildings, boxes, told);
  }
  void save(const RegisterFields& boxes) {
    buildings.beginNew();
    pc.prompts.expect("건물등록을 마쳤습니다");
    ASSERT_TRUE(buildings.save(boxes).done);
  }

  tests::TestPc pc;
  BuildingRegister buildings{pc.session, HouseStyle::Apartment};
  RegisterFields block{{"Name", "달빛"},        {"Dong", "101"},       {"Structure", "-1"},
                       {"Height", "2"},         {"Width", "2"},        {"PostCode", "712-010"},
                       {"Address", "장터동 7"}, {"Evaporation", "-1"}, {"Pressure", "4"},
                       {"Eva", "2,450"},        {"delaypay", "1.5"},   {"Chk4", "-1"},
                       {"Chk4Ho", "-1"}};
};

TEST_F(BuildingRegisterTest, WhatIsMissingIsAskedForInOrder) {
  refused({}, "수정할 건물/동을 선택하십시오!");
  refused(block, "신규등록은 신규버튼을 누른 후 입력하십시오");
  buildings.beginNew();
  RegisterFields boxes{{"Evaporation", "-1"}, {"Height", "0"}};
  const std::pair<QString, QString> missing[] = {{"Name", "건물명은"},       {"Dong", "동명은"},
                                                 {"Height", "층수는"},       {"Width", "층당 세대수는"},
                                                 {"PostCode", "우편번호는"}, {"Address", "주소는"}};
  for (const auto& [column, text] : missing) {
    EXPECT_EQ(refused(boxes, text + " 필수입력사항입니다!"), column);
    boxes[column] = block[column];
  }
  for (const auto& [column, text] : {std::pair{"Pressure", "압력조정기"}, {"Eva", "체적단가"}}) {
    EXPECT_EQ(refused(boxes, QString(text) + " 입력은 필수사항입니다!"), column);
    boxes[column] = block[column];
  }
  boxes["Height"] = "100";
  EXPECT_EQ(refused(boxes, "층수와 층당 세대수는 99까지 입력할 수 있습니다!"), "Height");
  save(block);
  buildings.beginNew();
  EXPECT_EQ(refused(block, "달빛 101동은 이미 등록되어 있습니다!"), "Dong");
  EXPECT_EQ(blocks(), "달빛 101");
}

TEST_F(BuildingRegisterTest, AMeteredBlockComesWithItsHouseholdsAsTheGridStands) {
  buildings.beginNew();
  buildings.showUnits(block);
  ASSERT_EQ(buildings.units().text(1, 3), "202");
  buildings.units().setText(1, 3, "B2");       // 202 is called otherwise
  buildings.units().setText(2, 3, QString());  // there is no 102
  buildings.showUnits(block);                  // nothing that numbers depend on has changed
  pc.prompts.expect("건물등록을 마쳤습니다");
  ASSERT_TRUE(buildings.save(block).done);

  EXPECT_EQ(rows("Select Code, Name, HouseStyle, BDName, Dong, Ho, PostCode, Address, VolumeYesNo, Volume, "
                 "VolumeUnit, PayWay, AppDate From Client Order By Code"),
            u"1|달빛 101동|1|달빛|101||712-010|장터동 7|-1|4|2450|2|2026-03-16;"
            u"2|달빛 101동 101호|1|달빛|101|101|712-010|장터동 7|-1|4|2450|2|2026-03-16;"
            u"3|달빛 101동 201호|1|달빛|101|201|712-010|장터동 7|-1|4|2450|2|2026-03-16;"
            "4|달빛 101동 B2호|1|달빛|101|B2|712-010|장터동 7|-1|4|2450|2|2026-03-16");
  EXPECT_EQ(rows("Select Count(Code) As C From Client Where Ho Is Null"), "1") << "the head row has no Ho";
  EXPECT_EQ(rows("Select ClientCode, Count(Mon) As C, Min(Mon) As A, Max(Mon) As Z From Evaporation Group By "
                 "ClientCode Order By ClientCode"),
            "2|13|0|12;3|13|0|12;4|13|0|12");
  EXPECT_EQ(buildings.list().text(1, 6), "3") << "households that stand";
  EXPECT_EQ(buildings.list().text(1, 3), "계단식");
}

TEST_F(BuildingRegisterTest, ABlockWithoutMetersAndACorridorGoFloorByFloor) {
  BuildingRegister houses(pc.session, HouseStyle::MultiHousehold);
  block["Structure"] = "0";
  block["Evaporation"] = "0";  // regulator and price left over in the boxes count for nothing
  houses.beginNew();
  pc.prompts.expect("건물등록을 마쳤습니다");
  ASSERT_TRUE(houses.save(block).done);
  EXPECT_EQ(rows("Select Ho, HouseStyle, VolumeYesNo, Volume, VolumeUnit From Client Where Ho Is Not Null "
                 "Order By Code"),
            "101|2|0||0;102|2|0||0;201|2|0||0;202|2|0||0");
  EXPECT_EQ(rows("Select Count(Mon) As C From Evaporation"), "0");
  buildings.load();
  EXPECT_EQ(buildings.list().MaxRows(), 0) << "the apartments' list has no multi-family house";
}

TEST_F(BuildingRegisterTest, WhatFailsOnTheWayIsTakenBackAndTold) {
  pc.session.dbBasic.Execute(
      "Insert Into Client(Name, BDName, Dong, Ho) Values('옛 고객', '달빛', '101', '999')");
  buildings.beginNew();
  buildings.showUnits(block);
  buildings.units().setText(1, 3, "2'2");
  pc.prompts.expect("건물등록을 마치지 못하여 등록하던 자료를 모두 지웠습니다!");
  EXPECT_THROW(buildings.save(block), jet::Error);
  EXPECT_EQ(blocks(), QString());
  EXPECT_EQ(rows("Select Name From Client"), "옛 고객") << "whoever stood there before stays";
  EXPECT_EQ(rows("Select Count(Mon) As C From Evaporation"), "0");
  EXPECT_TRUE(buildings.isNew()) << "the boxes stay for another try";
}

TEST_F(BuildingRegisterTest, WhatCannotBeTakenBackIsTold) {
  block["Height"] = "50";
  block["Width"] = "80";
  buildings.beginWork = [&](int) {
    return [&](int) {
      pc.session.dbYear.Close();  // the year's file is gone after the first group
      return true;
    };
  };
  buildings.beginNew();
  pc.prompts.expect("건물이 목록에 있으면 삭제한 후 다시 등록하십시오.");
  EXPECT_THROW(buildings.save(block), jet::Error);
  EXPECT_EQ(blocks(), "달빛 101") << "the block stands, so that it can be deleted";
}

TEST_F(BuildingRegisterTest, AChangeReachesEveryHouseholdButNotItsName) {
  save(block);
  block["Dong"] = "102";
  save(block);
  RegisterFields boxes = buildings.select(1);
  boxes["Dong"] = "102";
  refused(boxes, "달빛 102동은 이미 등록되어 있습니다!");
  boxes["Dong"] = "103";
  boxes["Structure"] = "0";
  boxes["Address"] = "솔밭동 9";
  boxes["Eva"] = "2,600";
  pc.prompts.expect("선택하신 건물의 모든 가구에 대한 내용이 수정됩니다.");
  ASSERT_TRUE(buildings.save(boxes).done);
  EXPECT_EQ(rows("Select Distinct Dong, Address, VolumeUnit From Client Order By Dong"),
            "102|장터동 7|2450;103|솔밭동 9|2600");
  EXPECT_EQ(rows("Select Name From Client Where Dong = '103' And Ho = '201'"), "달빛 101동 201호");
  EXPECT_EQ(buildings.list().text(1, 3), "복도식");

  boxes = buildings.select(1);
  boxes["Evaporation"] = "0";
  pc.prompts.expect("모든 가구에 대한 내용이 수정됩니다.");
  ASSERT_TRUE(buildings.save(boxes).done);
  EXPECT_EQ(rows("Select Distinct VolumeYesNo, Volume, VolumeUnit From Client Where Dong = '103'"), "0||0");
}

TEST_F(BuildingRegisterTest, ABlockThatGetsMetersGetsItsMeterRows) {
  block["Evaporation"] = "0";
  save(block);
  RegisterFields boxes = buildings.select(1);
  boxes["Evaporation"] = "-1";
  boxes["Pressure"] = "4";
  boxes["Eva"] = "2450";
  boxes["Dong"] = "105";  // renamed in the same change
  pc.session.dbYear.Execute("Insert Into Evaporation(ClientCode, Mon) Values(2, 5)");
  pc.prompts.expect("모든 가구에 대한 내용이 수정됩니다.");
  ASSERT_TRUE(buildings.save(boxes).done);
  EXPECT_EQ(
      rows("Select ClientCode, Count(Mon) As C From Evaporation Group By ClientCode Order By ClientCode"),
      "2|13;3|13;4|13;5|13");
}

TEST_F(BuildingRegisterTest, ADeletedBlockTakesCustomersAndMeterRowsAndLeavesSales) {
  save(block);
  block["Dong"] = "102";
  save(block);
  pc.session.dbYear.Execute("Insert Into Sale(SaleDate, ClientCode) Values('2026-03-02', 2)");
  buildings.select(1);
  pc.prompts.expect("선택된 건물의 자료와 고객현황을 모두 지우시겠습니까?");
  pc.prompts.expect("삭제하시겠습니까?", false);
  EXPECT_FALSE(buildings.remove().done);
  EXPECT_EQ(blocks(), "달빛 101;달빛 102");
  pc.prompts.expect("선택된 건물의 자료와 고객현황을 모두 지우시겠습니까?");
  pc.prompts.expect("삭제는 선택된 건물에 대한 모든 메뉴에서의 자료를 삭제합니다!\n삭제하시겠습니까?");
  EXPECT_TRUE(buildings.remove().done);
  EXPECT_EQ(blocks(), "달빛 102");
  EXPECT_EQ(rows("Select Distinct Dong From Client"), "102");
  EXPECT_EQ(rows("Select Min(ClientCode) As A, Count(Mon) As C From Evaporation"), "7|52");
  EXPECT_EQ(rows("Select ClientCode From Sale"), "2");
}

TEST_F(BuildingRegisterTest, AThousandHouseholdsAreMadeWithinSeconds) {
  block["Height"] = "20";
  block["Width"] = "50";
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
  EXPECT_EQ(rows("Select Count(Mon) As C From Evaporation"), "13000");
  since.restart();
  buildings.select(1);
  pc.prompts.expect("모두 지우시겠습니까?");
  pc.prompts.expect("삭제하시겠습니까?");
  EXPECT_TRUE(buildings.remove().done);
  EXPECT_LT(since.elapsed(), 4000) << "other PCs wait no longer than this";
  EXPECT_EQ(rows("Select Count(Code) As C From Client"), "0");
}

}  // namespace
