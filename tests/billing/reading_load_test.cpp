// Which rows a book shows, in which order, with which previous readings.
#include "billing/reading_load.h"

#include "billing/reading_months.h"
#include "billing/reading_panel.h"
#include "tests/billing/meter_desk.h"
#include "tests/cells.h"

namespace {

using tests::MeterDesk;

/** Column 1 of every row. */
QString names(const MeterDesk& desk) {
  return tests::columnOf(desk.sheet.grid, EvaCol::Name).join(' ');
}

void setting(MeterDesk& desk, const char* key, const char* value) {
  desk.pc.pc.settings.SaveSetting(desk.session.AppTitle, "Config", key, value);
}

/** Two apartment buildings and two households of another kind. */
struct Estate : MeterDesk {
  Estate() {
    customer("가", 1000, 1, "한빛", "101", "101");
    customer("나", 1000, 1, "한빛", "101", "9");
    customer("다", 1000, 1, "한빛", "101", "관리실");
    customer("라", 1000, 1, "한빛", "102", "101");
    customer("마", 1000, 1, "별빛", "3", "7");
    customer("바", 1000, 1, "별빛", "3");
    customer("사", 1000, 0);
    customer("아", 1000, 2, "달빛", "1", "1");
  }
};

TEST(ReadingLoad, BooksBuildingsAndBlocks) {
  Estate desk;
  desk.show(HouseStyle::Individual, 3);
  EXPECT_EQ(names(desk), "사") << "a customer of no room is one of the individual book";
  EXPECT_EQ(desk.sheet.buildings, QStringList());
  desk.show(HouseStyle::MultiHousehold, 3);
  EXPECT_EQ(desk.sheet.buildings, QStringList({"다가구 전체", "달빛"}));
  EXPECT_EQ(names(desk), "1동 1호");

  desk.show(HouseStyle::Apartment, 3);
  EXPECT_EQ(desk.sheet.buildings, QStringList({"아파트 전체", "별빛", "한빛"}));
  EXPECT_EQ(names(desk), "101동 101호 101동 9호 101동 관리실호 102동 101호 3동 7호")
      << "a household without a room is listed nowhere";
  desk.show(HouseStyle::Apartment, 3, 2);
  EXPECT_EQ(names(desk), "101동 101호 101동 9호 101동 관리실호 102동 101호");

  setting(desk, "체적검침동별보기", "1");
  desk.show(HouseStyle::Apartment, 3, 2);
  EXPECT_EQ(desk.sheet.buildings, QStringList({"아파트 전체", "별빛 3", "한빛 101", "한빛 102"}));
  EXPECT_EQ(names(desk), "101동 101호 101동 9호 101동 관리실호");
  desk.show(HouseStyle::Apartment, 3, 1);
  EXPECT_EQ(names(desk), "") << "only a block of three characters finds its households";
}

TEST(ReadingLoad, RoomsInOrderWhenTheyAreToBe) {
  Estate desk;
  setting(desk, "체적검침정렬방식", "1");
  desk.show(HouseStyle::Apartment, 3);
  EXPECT_EQ(names(desk), "3동 7호 101동 관리실호 101동 9호 101동 101호 102동 101호")
      << "by building and block, rooms as numbers, a room of no number as 0";
  MeterDesk individual;
  individual.customer("하늘", 1000);
  individual.customer("가람", 1000);
  setting(individual, "체적검침정렬방식", "1");
  individual.show(HouseStyle::Individual, 3);
  EXPECT_EQ(names(individual), "가람 하늘");
}

TEST(ReadingLoad, EveryColumnIsFilled) {
  MeterDesk desk;
  const int code = desk.customer("가", 1500, 1, "한빛", "101", "203");
  desk.basic("Update Client Set PayWay = 3, Tel = Null");
  desk.set(code, 3,
           "UseGage = 110.5, UseMuch = 0, UsePay = 20, Trust = 30, Delay = 40, Manage = 50, Total = 1234.9, "
           "Pay = 60, "
           "Prnt = -1, PrntDay = '03/01', TrustDay = '03/02', paydelayed = True");
  desk.set(code, 2, "UseGage = 100");
  desk.sheet.readingDay = "02/02";
  desk.show(HouseStyle::Apartment, 3);
  EXPECT_EQ(desk.sheet.readingDay, "03/05") << "today again";
  const QString row = desk.cells(1, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20});
  EXPECT_EQ(row, "101동 203호|100|110.5|0|20|30|40|50|1230|60|1|03/02|1|1500|대구||가|3|1|한빛");
}

TEST(ReadingLoad, ThePreviousReadingFitsAUseSetByHand) {
  MeterDesk desk;
  const int a = desk.customer("가", 1000), b = desk.customer("나", 1000), c = desk.customer("다", 1000);
  for (const int code : {a, b, c}) desk.set(code, 2, "UseGage = " + QString::number(900 + code));
  desk.set(a, 3, "UseGage = 12.3, UseMuch = 5.1");
  desk.set(b, 3, "UseGage = 0, UseMuch = 5");
  desk.show(HouseStyle::Individual, 3);
  const auto previous = [&] {
    return desk.cells(1, {2}) + ' ' + desk.cells(2, {2}) + ' ' + desk.cells(3, {2});
  };
  EXPECT_EQ(previous(), "7.2 902 903") << "the meter was changed; not read yet; nothing used";
  desk.run("Delete * From Evaporation Where ClientCode = 2 And Mon = 2");
  desk.show(HouseStyle::Individual, 3);
  EXPECT_EQ(previous(), "7.2 903 ") << "rows are paired by their places";
  desk.show(HouseStyle::Individual, 0);
  EXPECT_EQ(previous(), "  ");
}

TEST(ReadingLoad, TheIssuedAmountIsOpenInTheOpeningEntryAlone) {
  MeterDesk desk;
  desk.customer("가", 1000);
  desk.show(HouseStyle::Individual, 0);
  EXPECT_FALSE(desk.sheet.grid.locked(1, EvaCol::Total));
  EXPECT_TRUE(desk.pc.prompts.seen.last().contains("1월부터 2월까지의 검침량으로"));
  EXPECT_TRUE(desk.pc.prompts.seen.last().startsWith("체적 관리자|"));
  desk.show(HouseStyle::Individual, 3);
  EXPECT_TRUE(desk.sheet.grid.locked(1, EvaCol::Total));
  for (const int col : {EvaCol::Name, EvaCol::PrevUseGage, EvaCol::UseMuch, EvaCol::UsePay, EvaCol::Trust})
    EXPECT_TRUE(desk.sheet.grid.locked(1, col)) << col;
  for (const int col : {EvaCol::UseGage, EvaCol::Delay, EvaCol::Manage, EvaCol::Pay, EvaCol::PayDelayed})
    EXPECT_FALSE(desk.sheet.grid.locked(1, col)) << col;
}

TEST(ReadingLoad, NothingIsLoadedBeforeMonthAndBuildingAreChosen) {
  MeterDesk desk;
  desk.pc.prompts.expect("조회/입력할 월을 선택하십시오");
  EXPECT_EQ(CheckSelection(desk.sheet), Selection::NoMonth);
  desk.sheet.month = 3;
  EXPECT_EQ(CheckSelection(desk.sheet), Selection::Complete);
  desk.sheet.book = HouseStyle::Apartment;
  desk.pc.prompts.expect("조회/입력할 건물을 선택하십시오");
  EXPECT_EQ(CheckSelection(desk.sheet), Selection::NoBuilding);
  EXPECT_TRUE(desk.pc.prompts.seen.last().startsWith("검침 관리자|"));
}

TEST(ReadingLoad, AFailedQueryLeavesTheGridAsItIs) {
  MeterDesk desk;
  desk.customer("가", 1000, 1, "한빛", "101", "1");
  desk.show(HouseStyle::Apartment, 3);
  desk.sheet.buildings << "한'빛";
  desk.sheet.building = 2;
  desk.pc.prompts.expect("SELECT Client.Code");
  RefreshReadingGrid(desk.sheet);
  EXPECT_EQ(names(desk), "101동 1호");
}

TEST(ReadingMonths, ListAndLimitsGoByTheClock) {
  MeterDesk desk;
  EXPECT_EQ(FillMonthList(desk.pc.pc.clock), QStringList({"기초", "01", "02", "03"}));
  EXPECT_TRUE(IsEditableMonth(desk.pc.pc.clock, "00") && IsEditableMonth(desk.pc.pc.clock, "03"));
  EXPECT_FALSE(IsEditableMonth(desk.pc.pc.clock, "02") || IsEditableMonth(desk.pc.pc.clock, "3"));
  const auto refused = [&](int month) {
    desk.sheet.month = month;
    QString columns;
    for (int col = EvaCol::UseGage; col <= EvaCol::TrustDay; ++col) {
      const qsizetype before = desk.pc.prompts.seen.size();
      const bool limited = col == EvaCol::Delay || col == EvaCol::Manage || col == EvaCol::Pay;
      if (limited && month != 0 && month != 3 && !(col == EvaCol::Pay && month == 2))
        desk.pc.prompts.expect("검침 관리자");
      if (!ValidateCellEdit(desk.sheet, col)) columns += QString::number(col) + ' ';
      EXPECT_EQ(desk.pc.prompts.seen.size() - before, columns.endsWith(QString::number(col) + ' ') ? 1 : 0);
    }
    return columns.trimmed();
  };
  EXPECT_EQ(refused(0), "");
  EXPECT_EQ(refused(3), "");
  EXPECT_EQ(refused(2), "7 8") << "collected money one month back";
  EXPECT_EQ(desk.pc.prompts.seen.value(0), "검침 관리자|연체료에 대한 수정은 현재달만 가능합니다");
  EXPECT_EQ(refused(1), "7 8 10") << "and no further; a reading is taken in any month";
  EXPECT_EQ(desk.pc.prompts.seen.last(), "검침 관리자|당월수금액에 대한 수정은 최근 1개월까지만 가능합니다");
}

TEST(ReadingPanel, TellsTheCustomerAndTakesHisReadingDay) {
  MeterDesk desk;
  const int code = desk.customer("가람", 1500);
  desk.customer("나라", 2345);
  desk.basic("Update Client Set Tel = '', Address = Null Where Name = '나라'");
  desk.set(code, 3, "PrntDay = '03/01 ', ChkMan = '홍길동'");
  desk.show(HouseStyle::Individual, 3);
  ReadingPanel panel = enterReadingRow(desk.sheet, 1);
  EXPECT_EQ(panel.status, " 상호/성명:가람   전화:053-1   주소:대구");
  EXPECT_EQ(panel.man, "체적단가 : 1,500원  검침원 : 홍길동  수금원 : 미입력");
  EXPECT_EQ(desk.sheet.readingDay, "03/01 ") << "one blank, however often it was saved with one";
  panel = enterReadingRow(desk.sheet, 2);
  EXPECT_EQ(panel.status, " 상호/성명:나라   전화:미입력   주소:미입력");
  EXPECT_EQ(panel.man, "체적단가 : 2,345원  검침원 : 미입력  수금원 : 미입력");
  EXPECT_EQ(desk.sheet.readingDay, "03/01 ") << "this row has no day yet";
}

}  // namespace
