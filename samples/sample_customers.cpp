// Who buys: households of five blocks, plain customers and shops, and the one who calls.
#include "samples/sample_books.h"
#include "samples/sample_town.h"

namespace samples {
namespace {

/** Two apartment blocks billed by meter, one not, and two multi-household houses: 110 households. */
void buildings(Town& town) {
  struct Building {
    const char *name, *dong;
    int houseStyle, floors, width;
    bool metered;
  };
  const Building list[] = {{"달빛아파트", "101", 1, 5, 6, true},
                           {"달빛아파트", "102", 1, 5, 6, true},
                           {"솔밭아파트", "1", 1, 5, 4, false},
                           {"은행빌라", "가", 2, 3, 6, true},
                           {"새터주택", "나", 2, 2, 6, false}};
  for (const Building& building : list) {
    const Village& village = town.dice.pick(villages);
    const QString address = town.address(village);
    town.basic.Execute(
        "Insert Into APT(Name, PostCode, Address, Dong, Structure, Height, Width, Evaporation, Gubun, "
        "Pressure, Eva, delaypay) Values(" +
        quoted(building.name) + ", " + quoted(village.zipCode) + ", " + quoted(address) + ", " +
        quoted(building.dong) + ", True, " + number(building.floors) + ", " + number(building.width) + ", " +
        yesNo(building.metered) + ", " + yesNo(building.houseStyle == 1) + ", " +
        quoted(building.metered ? "4" : "") + ", " + number(building.metered ? 2450 : 0) + ", 2)");
    for (int floor = 1; floor <= building.floors; ++floor)
      for (int unit = 1; unit <= building.width; ++unit) {
        Customer household;
        household.houseStyle = building.houseStyle;
        household.building = text(building.name);
        household.dong = text(building.dong);
        household.ho = number(floor * 100 + unit);
        household.name = household.building + u' ' + household.dong + text("동 ") + household.ho + text("호");
        household.address = address;
        household.zipCode = text(village.zipCode);
        household.tel = town.telephone();
        household.volumetric = building.metered;
        household.payWay = 2;
        town.customers.push_back(household);
      }
  }
}

void plainCustomers(Town& town) {
  for (int at = 0; at < 190; ++at) {
    Customer customer;
    const bool shop = town.dice.chance(35);
    const Village& village = town.dice.pick(villages);
    customer.name = shop ? text(town.dice.pick(shopNames)) + text(town.dice.pick(shopKinds))
                         : text(town.dice.pick(surnames)) + text(town.dice.pick(givenNames));
    customer.uname = shop ? customer.name.left(10) : QString();
    customer.address = town.address(village);
    customer.zipCode = text(village.zipCode);
    customer.tel = town.telephone();
    if (town.dice.chance(30)) customer.tel1 = text("010-0000-") + town.tail();
    if (town.dice.chance(15))
      customer.memo = shop ? text("뒷문으로 배달, 영수증 필요") : text("개 조심, 전화 후 방문");
    customer.volumetric = shop && town.dice.chance(20);
    town.customers.push_back(customer);
  }
}

/** The customer who calls on the sample day: one credit sale of last year, and no dice touch it. */
void caller(Town& town) {
  Customer customer;
  customer.name = text(callerName);
  customer.address = text("경북 달빛시 장터동 100-1");
  customer.zipCode = text("712-010");
  customer.tel = text(callerTel);
  customer.memo = text("점심 전에 배달");
  town.customers.push_back(customer);
}

}  // namespace

void makeCustomers(Town& town) {
  buildings(town);
  plainCustomers(town);
  caller(town);
}

void writeCustomers(Town& town) {
  int code = 0;
  for (const Customer& c : town.customers) {
    const QString joined = QDate(2001, 1, 2).addDays(town.dice.roll(5000)).toString(u"yyyy-MM-dd");
    town.basic.Execute(
        "Insert into Client(Name, Tel, Tel1, Tel2, PostCode, Address, Birth, Memo, HouseStyle, GasInit, "
        "UtilInit, "
        "AppDate, PayWay, VolumeYesNo, Volume, VolumeUnit, BDName, Dong, Ho, Serial, Status, Item, Uname) "
        "Values('" +
        c.name + "', '" + c.tel + "', '" + c.tel1 + "', '', '" + c.zipCode + "', '" + c.address + "', '', '" +
        c.memo + "', " + number(c.houseStyle) + ", 0, 0, '" + joined + "', " + number(c.payWay) + ", " +
        yesNo(c.volumetric) + ", '" + (c.volumetric ? "4" : "") + "', " + (c.volumetric ? "2450" : "0") +
        ", '" + c.building + "', '" + c.dong + "', '" + c.ho + "', '', '', '', '" + c.uname + "')");
    ++code;
    if (c.volumetric)
      for (const jet::Database& year : {town.lastYear, town.thisYear})
        for (int month = 0; month <= 12; ++month)
          year.Execute("Insert Into Evaporation(ClientCode, Mon) Values(" + number(code) + ", " +
                       number(month) + ")");
  }
}

}  // namespace samples
