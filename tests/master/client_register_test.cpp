#include "master/customers/client_register.h"

#include "store/year_file.h"
#include "tests/answers.h"
#include "tests/cells.h"
#include "tests/support.h"

namespace {

class ClientRegistering : public ::testing::Test {
 protected:
  void SetUp() override {
    pc.openBooks();
    clients.loadPage(HouseStyle::Individual);
  }
  ClientEntry plain(const QString& name, const QString& tel = {}) {
    ClientEntry boxes = clients.beginNew();
    boxes.name = name;
    boxes.tel = tel;
    return boxes;
  }
  ClientEntry household(const QString& ho, bool metered) {
    ClientEntry boxes = clients.beginNew();
    boxes.name = "한빛 101동 " + ho + "호";
    boxes.bdName = "한빛";
    boxes.dong = "101";
    boxes.ho = ho;
    boxes.volume = metered;
    if (metered) {
      boxes.pressure = "4";
      boxes.volumeUnit = "1,500";
    }
    return boxes;
  }
  qint64 count(const jet::Database& db, const QString& from) {
    return db.OpenRecordset("Select Count(*) As N From " + from)["N"].toLong();
  }
  QString stored(qint64 code, const QString& what) {
    return tests::rowsOf(pc.session.dbBasic,
                         "Select " + what + " From Client Where Code = " + QString::number(code));
  }
  ClientBox refused(const ClientEntry& boxes, const QString& told) {
    pc.prompts.expect(told);
    const ClientSaved saved = clients.save(boxes);
    EXPECT_FALSE(saved.done) << told.toStdString();
    return saved.focus;
  }

  tests::TestPc pc;
  ClientRegister clients{pc.session};
};

TEST_F(ClientRegistering, newPlainCustomerStandsInFileAndList) {
  ClientEntry boxes = plain("김철수", "0531234567");
  boxes.uname = "철수네";
  boxes.gasInit = "-12,500";
  boxes.payWay = PayWay::Giro;
  boxes.serial = "123-45-67890";
  boxes.birth = "1970-02-28";
  const ClientSaved saved = clients.save(boxes);
  EXPECT_TRUE(saved.done);
  EXPECT_EQ(saved.focus, ClientBox::New) << "the hand goes on to the next registration";
  EXPECT_FALSE(clients.isNew());

  EXPECT_EQ(stored(saved.code, "Tel, Name, UName, GasInit, UtilInit, PayWay, Serial, AppDate, VolumeYesNo"),
            "053-123-4567|김철수|철수네|-12500|0|2|123-45-67890|" + pc.pc.clock.dateText() + "|0");
  EXPECT_EQ(count(pc.session.dbYear, "Evaporation"), 0);
  ASSERT_EQ(clients.rowOf(saved.code), 1);
  EXPECT_EQ(clients.list(HouseStyle::Individual).text(1, 1), "김철수");
  EXPECT_EQ(clients.list(HouseStyle::Individual).text(1, 3), "-12500");
  EXPECT_TRUE(clients.bottomLine().endsWith("등록고객수 : 1명")) << clients.bottomLine().toStdString();
}

TEST_F(ClientRegistering, meterCustomersOfEveryPageGetThirteenRows) {
  ClientEntry boxes = plain("국밥집");
  boxes.volume = true;
  boxes.pressure = "10";
  boxes.volumeUnit = "2000";
  const ClientSaved first = clients.save(boxes);
  clients.loadPage(HouseStyle::MultiHousehold);
  ClientEntry owing = household("1203", true);
  owing.gasInit = "3,000";
  owing.utilInit = "700";
  const ClientSaved second = clients.save(owing);
  for (const ClientSaved& saved : {first, second}) {
    const QString code = QString::number(saved.code);
    EXPECT_EQ(count(pc.session.dbYear, "Evaporation Where ClientCode = " + code), 13);
    EXPECT_EQ(count(pc.session.dbYear, "Evaporation Where Mon = 0 And ClientCode = " + code), 1);
  }
  EXPECT_EQ(stored(first.code, "VolumeYesNo, Volume"), "-1|10");
  EXPECT_EQ(stored(second.code, "VolumeYesNo, VolumeUnit, HouseStyle"), "-1|1500|2");
  EXPECT_EQ(DisplayName(pc.session.dbBasic.OpenRecordset("Select * From Client Where Ho = '1203'")),
            "한빛 101동 1203호");
  EXPECT_EQ(tests::cellsOf(clients.list(HouseStyle::MultiHousehold), 1, 3, 5).join('|'), "1203|3000|700");
}

TEST_F(ClientRegistering, refusalsSendTheFocusAndWriteNothing) {
  ClientEntry boxes;
  boxes.name = "김철수";
  EXPECT_EQ(refused(boxes, "신규등록은 신규버튼을 누른후 입력해 주십시오"), ClientBox::New);
  EXPECT_EQ(refused(plain(""), "고객성명/전화번호/주소 중 한가지는 입력되어야 합니다!"), ClientBox::Name);
  boxes = plain("김철수");
  boxes.volume = true;
  EXPECT_EQ(refused(boxes, "압력조정기계수를 입력하십시오"), ClientBox::Pressure);
  boxes.pressure = "4";
  EXPECT_EQ(refused(boxes, "체적단가를 입력하십시오"), ClientBox::VolumeUnit);
  boxes = plain("김철수");
  boxes.birth = "1970-02-30";
  EXPECT_EQ(refused(boxes, "날짜 입력이 올바르지 않습니다!"), ClientBox::Birth);
  boxes = plain("김철수");
  for (const char* const most : {"1,000,000,000", "-1000000000", "많이"}) {
    boxes.gasInit = most;
    boxes.utilInit = "999,999,999";
    EXPECT_EQ(refused(boxes, "미수금은 -999,999,999원부터"), ClientBox::GasInit) << most;
    std::swap(boxes.gasInit, boxes.utilInit);
    EXPECT_EQ(refused(boxes, "미수금은 -999,999,999원부터"), ClientBox::UtilInit) << most;
  }
  EXPECT_EQ(count(pc.session.dbBasic, "Client"), 0);
  EXPECT_TRUE(clients.isNew()) << "the boxes stay open for mending";
}

TEST_F(ClientRegistering, aTelephoneIsGivenOutOnceANameTwice) {
  clients.save(plain("김철수", "053-123-4567"));

  ClientEntry boxes = plain("이영희", "053-999-9999");
  boxes.tel2 = "053-123-4567";
  EXPECT_EQ(refused(boxes, "전화번호 : 053-123-4567   이  름 : 김철수\n이미 등록되어 있습니다!"),
            ClientBox::Tel2);
  pc.prompts.expect("자료중복", false);
  const ClientSaved saved = clients.save(plain("김철수"));
  EXPECT_FALSE(saved.done);
  EXPECT_EQ(saved.focus, ClientBox::Tel);
  pc.prompts.expect("    이  름 : 김철수\n이미 등록되어 있습니다!\n이름을 중복(동명이인)하시겠습니까?", true);
  EXPECT_TRUE(clients.save(plain("김철수")).done);

  clients.loadPage(HouseStyle::Apartment);
  clients.save(household("101", false));
  ClientEntry neighbour = household("102", false);
  neighbour.tel = "053-123-4567";
  EXPECT_EQ(refused(neighbour, "전화번호 : 053-123-4567   이  름 : 김철수 은 이미 등록되어 있습니다!"),
            ClientBox::Tel);
  pc.prompts.expect("    이  름 : 한빛 101동 101호\n이미 등록되어", false);
  EXPECT_FALSE(clients.save(household("101", false)).done);
}

TEST_F(ClientRegistering, changeAsksAndMakesMissingMeterRowsOnly) {
  const qint64 code = clients.save(plain("김철수", "053-123-4567")).code;
  pc.session.dbYear.Execute("Insert Into Evaporation(ClientCode, Mon, UseGage) Values(1, 3, 77)");
  ClientEntry boxes = clients.select(code);
  boxes.name = "김철수2";
  boxes.memo = "계단 옆";
  boxes.status = "음식";
  boxes.volume = true;
  boxes.pressure = "4";
  boxes.volumeUnit = "1500";

  pc.prompts.expect("위와 같이 고객등록사항을 변경하시겠습니까?", false);
  EXPECT_FALSE(clients.save(boxes).done);
  EXPECT_EQ(stored(code, "Name"), "김철수");

  pc.prompts.expect("위와 같이 고객등록사항을 변경하시겠습니까?");
  EXPECT_TRUE(clients.save(boxes).done);
  EXPECT_EQ(stored(code, "Name, Status"), "김철수2|음식");
  EXPECT_EQ(count(pc.session.dbYear, "Evaporation Where ClientCode = 1"), 13);
  EXPECT_EQ(count(pc.session.dbYear, "Evaporation Where UseGage = 77"), 1);
  EXPECT_EQ(clients.list(HouseStyle::Individual).text(clients.rowOf(code), 5), "계단 옆");

  boxes.volume = false;
  pc.prompts.expect("위와 같이");
  clients.save(boxes);
  EXPECT_EQ(stored(code, "VolumeYesNo, VolumeUnit"), "0|1500") << "the old price stays behind";
}

TEST_F(ClientRegistering, aNewPriceDoesNotReachTheBlockThroughTheNullComparison) {
  pc.session.dbBasic.Execute(
      "Insert Into APT(Name, Dong, Evaporation, Gubun) Values('한빛', '101', True, True)");
  clients.loadPage(HouseStyle::Apartment);
  const qint64 first = clients.save(household("101", true)).code;
  const qint64 second = clients.save(household("102", true)).code;
  ClientEntry boxes = clients.select(first);
  boxes.volumeUnit = "1800";
  pc.prompts.expect("위와 같이");
  EXPECT_TRUE(clients.save(boxes).done);
  EXPECT_EQ(stored(first, "VolumeUnit") + ' ' + stored(second, "VolumeUnit"), "1800 1500");
}

TEST_F(ClientRegistering, theHeadRowOfABlockStaysOneWhenItIsChanged) {
  pc.session.dbBasic.Execute(
      "Insert Into Client(Name, HouseStyle, BDName, Dong, Address) Values('한빛 101동', 1, '한빛', '101', "
      "'1')");
  clients.loadPage(HouseStyle::Apartment);
  ClientEntry boxes = clients.select(1);
  boxes.tel = "053-111-2222";
  pc.prompts.expect("위와 같이");
  EXPECT_TRUE(clients.save(boxes).done);
  EXPECT_EQ(stored(1, "Tel"), "053-111-2222");
  EXPECT_TRUE(pc.session.dbBasic.OpenRecordset("Select Ho From Client Where Code = 1")["Ho"].isNull())
      << "with '' the meter book would take it for a household";
  boxes.ho = "관리실";
  pc.prompts.expect("위와 같이");
  EXPECT_TRUE(clients.save(boxes).done);
  EXPECT_EQ(stored(1, "Ho"), "관리실");
}

TEST_F(ClientRegistering, deletedCustomerTakesMeterRowsAndSalesOfEveryYearBackToAGap) {
  ClientEntry boxes = plain("국밥집", "053-111-2222");
  boxes.volume = true;
  boxes.pressure = "4";
  boxes.volumeUnit = "1500";
  const qint64 code = clients.save(boxes).code;
  const qint64 other = clients.save(plain("이영희")).code;
  const int year = pc.pc.clock.today().year();
  const auto fileBack = [&](int back) { return yearFile(pc.session, year - back); };
  for (int back : {1, 2, 4}) ASSERT_TRUE(pc.pc.paths.copy(fileBack(0), fileBack(back)));
  const auto sales = [&](int back, qint64 client) {
    jet::Database file = pc.session.wsMain.OpenDatabase(fileBack(back));
    return count(file, "Sale Where ClientCode = " + QString::number(client));
  };
  for (int back : {0, 1, 2, 4}) {
    jet::Database file = pc.session.wsMain.OpenDatabase(fileBack(back));
    for (qint64 who : {code, code, other})
      file.Execute("Insert Into Sale(SaleDate, ClientCode) Values('2020-01-01', " + QString::number(who) +
                   ")");
  }

  clients.select(code);
  pc.prompts.expect("이  름 : 국밥집    전화번호 : 053-111-2222\n선택된 고객자료를 삭제하시겠습니까?", false);
  EXPECT_FALSE(clients.removeChosen());
  EXPECT_EQ(sales(0, code), 2);

  pc.prompts.expect("선택된 고객자료를 삭제하시겠습니까?");
  EXPECT_TRUE(clients.removeChosen());
  EXPECT_EQ(stored(code, "Name"), "");
  EXPECT_EQ(count(pc.session.dbYear, "Evaporation"), 0);
  for (int back : {0, 1, 2}) EXPECT_EQ(sales(back, code), 0) << back;
  EXPECT_EQ(sales(4, code), 2) << "beyond the year without a file";
  EXPECT_EQ(sales(2, other), 1);
  EXPECT_EQ(clients.rowOf(code), 0);
  EXPECT_FALSE(clients.removeChosen()) << "nobody is chosen any more";
}

TEST_F(ClientRegistering, anApostropheDropsTheSaveAndLeavesTheBoxesOpen) {
  clients.save(plain("김철수"));
  ClientEntry boxes = plain("");
  boxes.address = "O'Neil";
  EXPECT_THROW(clients.save(boxes), jet::Error);
  EXPECT_EQ(count(pc.session.dbBasic, "Client"), 1);
  EXPECT_TRUE(clients.isNew());
}

TEST_F(ClientRegistering, listsFollowTheirOrderAndCancelGoesBack) {
  for (const char* name : {"하나", "가람", "나래"}) clients.save(plain(name));
  clients.loadPage(HouseStyle::Individual);
  SpreadModel& list = clients.list(HouseStyle::Individual);
  EXPECT_EQ(list.text(1, 1) + list.text(2, 1) + list.text(3, 1), "가람나래하나");
  EXPECT_EQ(clients.selectRow(2).name, "나래");
  EXPECT_EQ(clients.beginNew().name, "");
  EXPECT_EQ(clients.code(), 0);
  EXPECT_EQ(clients.cancel().name, "나래");
}

}  // namespace
