// The retailer itself: company, staff, suppliers, banks, the town's postcodes, what is sold.
#include "samples/sample_books.h"
#include "samples/sample_town.h"

namespace samples {
namespace {

void company(Town& town) {
  town.basic.Execute(
      "Insert Into User(Company, User, BusCode, PostCode, Fax, Address, Tel, BusStyle, BusKind, PayState, "
      "Rate, "
      "Security, AptRate, AptSecurity, ManyRate, ManySecurity, [Password], Post1, Post2, Stock) "
      "Values('달빛가스', "
      "'문달수', '515-00-00000', '712-010', '053-000-1001', '경북 달빛시 장터동 7', '053-000-1000', "
      "'소매', "
      "'LPG/용기', 1, 2, 1000, 2, 800, 2, 900, '" +
      text(password) + "', 712, 713, True)");
  for (const char* name : staff)
    town.basic.Execute(
        "Insert Into Response(Name, Tel, AppDate, IdentyNo, HP, PostCode, Address, Memo)  Values(" +
        quoted(name) + ", '" + town.telephone() + "', '2001-03-02', '', '010-0000-" + town.tail() +
        "', '712-010', '경북 달빛시 장터동', '')");
  int code = 1;
  for (const char* name : stations)
    town.basic.Execute(
        "Insert into RefillState(Code, Company, User, BusCode, Tel, Fax, Address, PostCode, GasInit, "
        "UtilInit) Values('" +
        QString::number(code++).rightJustified(4, u'0') + "', " + quoted(name) +
        ", '소장', '515-00-00001', '053-000-2" + town.tail().left(3) +
        "', '', '경북 달빛시 새터읍', '712-901', 0, 0)");
  town.basic.Execute(
      "Insert Into Bank(BName, BNumber, BUser) Values('달빛농협', '352-00-0000-01', '문달수')");
  town.basic.Execute("Insert Into Bank(BName, BNumber, BUser) Values('우체국', '700-00-0000-02', '문달수')");
}

void vehicles(Town& town) {
  const char* const numbers[] = {"1204", "3371", "8025"};
  for (size_t at = 0; at < std::size(numbers); ++at)
    town.basic.Execute("Insert Into CaRes(CarNo, ResName) Values(" + quoted(numbers[at]) + ", " +
                       quoted(staff[at % staff.size()]) + ")");
  const std::pair<const char*, int> repairs[] = {{"엔진오일 교환", 65000},
                                                 {"타이어 교체", 240000},
                                                 {"브레이크 패드", 120000},
                                                 {"배터리 교체", 110000},
                                                 {"정기검사", 45000}};
  for (const auto& [name, cost] : repairs)
    town.basic.Execute("Insert Into CaRepair(CarRepair) Values(" + quoted(name) + ")");
  for (int at = 0; at < 14; ++at) {
    const auto& [name, cost] = repairs[size_t(at) % std::size(repairs)];
    const size_t car = size_t(at) % std::size(numbers);
    town.basic.Execute("Insert Into Car(RDate, RContent, RCarNo, RResName, RMoney) Values('2026-0" +
                       number(at / 6 + 1) + "-" + number(at * 2 + 1).rightJustified(2, u'0') + "', " +
                       quoted(name) + ", " + quoted(numbers[car]) + ", " + quoted(staff[car % staff.size()]) +
                       ", " + number(cost) + ")");
  }
}

void postcodes(Town& town) {
  for (const Village& village : villages)
    for (int lot = 0; lot < 12; ++lot) {
      const QString zip = text(village.zipCode).left(4) +
                          number(text(village.zipCode).mid(4).toInt() + lot).rightJustified(3, u'0');
      town.post.Execute("Insert Into Post(ZIPCODE, SIDO, GUGUN, DONG, BUNJI) Values('" + zip + "', " +
                        quoted(province) + ", " + quoted(city) + ", " + quoted(village.dong) + ", '" +
                        number(lot * 100 + 1) + "~" + number(lot * 100 + 100) + "')");
    }
}

void catalogue(Town& town) {
  for (size_t at = 0; at < gases.size(); ++at) {
    GasStock& stock = town.stocks[at];
    stock.full = openingFull;
    stock.empty = openingEmpty;
    stock.total = stock.full + stock.empty;
    stock.kilograms = stock.full * gases[at].size;
  }
  for (const Gas& gas : gases)
    town.basic.Execute(
        "Insert Into LPG(LPGName, Size, LPGPurchase, LPGSelling, CANPurchase, CANSelling, LPGStock, "
        "CANTotalHold, CANLoan, CANFull, CANEmpty) Values(" +
        quoted(gas.name) + ", '" + number(gas.size) + "', " + number(gas.purchase) + ", " +
        number(gas.selling) + ", " + number(gas.canPurchase) + ", " + number(gas.canSelling) +
        ", 0, 0, 0, 0, 0)");
  town.basic.Execute("Update Volume Set Unit = 2450");
  for (const Material& material : materials)
    town.basic.Execute(
        "Insert into Util(Name,  Size, SizeSize, UtilPurchase, UtilSelling, UtilStock) Values(" +
        quoted(material.name) + ", " + quoted(material.size) + ", " + quoted(material.unit) + ", " +
        number(material.purchase) + ", " + number(material.selling) + ", 0)");
  town.materialStock.fill(openingFittings);
  int full = 4;
  for (const char* const name : staff)
    for (const Gas& gas : {gases[0], gases[1]}) {
      town.basic.Execute(
          "Insert Into ResCAN(ResName, LPGName, CANSize, CANFull, CANEmpty, CANTotal) Values(" +
          quoted(name) + ", " + quoted(gas.name) + ", " + number(gas.size) + ", " + number(full) + ", 2, " +
          number(full + 2) + ")");
      full = full % 7 + 2;
    }
}

}  // namespace

void writeShop(Town& town) {
  company(town);
  vehicles(town);
  postcodes(town);
  catalogue(town);
}

}  // namespace samples
