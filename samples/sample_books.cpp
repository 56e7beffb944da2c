#include "samples/sample_books.h"

#include <QStringList>
#include <algorithm>
#include <vector>

#include "samples/sample_words.h"
#include "store/data_files.h"
#include "store/session.h"
#include "store/upgrades.h"

namespace samples {
namespace {

/** A small generator of our own, so that every platform makes the same books. */
class Dice {
 public:
  /** 0 .. below - 1 */
  int roll(int below) {
    state_ = state_ * 6364136223846793005ull + 1442695040888963407ull;
    return int((state_ >> 33) % quint64(below));
  }
  bool chance(int percent) { return roll(100) < percent; }
  template <class List>
  const auto& pick(const List& list) {
    return list[size_t(roll(int(list.size())))];
  }

 private:
  quint64 state_ = 20020101;
};

struct Customer {
  int houseStyle = 0;
  QString name, building, dong, ho, address, zipCode, tel, tel1, uname, memo;
  bool volumetric = false;
  int payWay = 1;
  qint64 gasInit = 0, utilInit = 0;  // won
  int lent = 0;                      // pieces
  QString lastDate;
};

struct GasStock {
  qint64 kilograms = 0, full = 0, empty = 0, loan = 0, total = 0;
};

QString text(const char* utf8) {
  return QString::fromUtf8(utf8);
}
QString quoted(const QString& value) {
  return u'\'' + value + u'\'';
}
QString quoted(const char* utf8) {
  return quoted(text(utf8));
}
QString number(qint64 value) {
  return QString::number(value);
}
QString yesNo(bool yes) {
  return yes ? QStringLiteral("True") : QStringLiteral("False");
}

class Maker {
 public:
  Maker(pc::Pc& pc, const jet::Workspace& workspace, const QString& folder)
      : clock_(pc.clock), workspace_(workspace), basic_(workspace.OpenDatabase(folder + "Basic.mdb")) {
    const int year = clock_.today().year();
    years_ = {workspace.OpenDatabase(folder + number(year - 1) + "Foundation.mdb"),
              workspace.OpenDatabase(folder + number(year) + "Foundation.mdb")};
    post_ = workspace.OpenDatabase(folder + "dbPost.mdb");
  }

  void make() {
    workspace_.Together([this] {
      company();
      postcodes();
      catalogue();
      buildings();
      plainCustomers();
      caller();
      writeCustomers();
    });
    workspace_.Together([this] { twoYears(); });
    workspace_.Together([this] { runningFigures(); });
  }

 private:
  void company() {
    basic_.Execute(
        "Insert Into User(Company, User, BusCode, PostCode, Fax, Address, Tel, BusStyle, BusKind, PayState, "
        "Rate, "
        "Security, AptRate, AptSecurity, ManyRate, ManySecurity, [Password], Post1, Post2, Stock) "
        "Values('달빛가스', "
        "'문달수', '515-00-00000', '712-010', '053-000-1001', '경북 달빛시 장터동 7', '053-000-1000', "
        "'소매', "
        "'LPG/용기', 1, 2, 1000, 2, 800, 2, 900, '" +
        text(password) + "', 712, 713, True)");
    for (const char* name : staff)
      basic_.Execute(
          "Insert Into Response(Name, Tel, AppDate, IdentyNo, HP, PostCode, Address, Memo)  Values(" +
          quoted(name) + ", '" + telephone() + "', '2001-03-02', '', '010-0000-" + tail() +
          "', '712-010', '경북 달빛시 장터동', '')");
    int code = 1;
    for (const char* name : stations)
      basic_.Execute(
          "Insert into RefillState(Code, Company, User, BusCode, Tel, Fax, Address, PostCode, GasInit, "
          "UtilInit) Values('" +
          QString::number(code++).rightJustified(4, u'0') + "', " + quoted(name) +
          ", '소장', '515-00-00001', '053-000-2" + tail().left(3) +
          "', '', '경북 달빛시 새터읍', '712-901', 0, 0)");
    basic_.Execute("Insert Into Bank(BName, BNumber, BUser) Values('달빛농협', '352-00-0000-01', '문달수')");
    basic_.Execute("Insert Into Bank(BName, BNumber, BUser) Values('우체국', '700-00-0000-02', '문달수')");
  }

  void postcodes() {
    for (const Village& village : villages)
      for (int lot = 0; lot < 12; ++lot) {
        const QString zip = text(village.zipCode).left(4) +
                            number(text(village.zipCode).mid(4).toInt() + lot).rightJustified(3, u'0');
        post_.Execute("Insert Into Post(ZIPCODE, SIDO, GUGUN, DONG, BUNJI) Values('" + zip + "', " +
                      quoted(province) + ", " + quoted(city) + ", " + quoted(village.dong) + ", '" +
                      number(lot * 100 + 1) + "~" + number(lot * 100 + 100) + "')");
      }
  }

  void catalogue() {
    for (size_t at = 0; at < gases.size(); ++at) {
      GasStock& stock = stocks_[at];
      stock.full = 60;
      stock.empty = 25;
      stock.total = stock.full + stock.empty;
      stock.kilograms = stock.full * gases[at].size;
    }
    for (const Gas& gas : gases)
      basic_.Execute(
          "Insert Into LPG(LPGName, Size, LPGPurchase, LPGSelling, CANPurchase, CANSelling, LPGStock, "
          "CANTotalHold, CANLoan, CANFull, CANEmpty) Values(" +
          quoted(gas.name) + ", '" + number(gas.size) + "', " + number(gas.purchase) + ", " +
          number(gas.selling) + ", " + number(gas.canPurchase) + ", " + number(gas.canSelling) +
          ", 0, 0, 0, 0, 0)");
    basic_.Execute("Update Volume Set Unit = 2450");
    for (const Material& material : materials)
      basic_.Execute("Insert into Util(Name,  Size, SizeSize, UtilPurchase, UtilSelling, UtilStock) Values(" +
                     quoted(material.name) + ", " + quoted(material.size) + ", " + quoted(material.unit) +
                     ", " + number(material.purchase) + ", " + number(material.selling) + ", 0)");
    materialStock_.fill(2000);
  }

  /** Two apartment blocks billed by meter, one not, and two multi-household houses: 110 households. */
  void buildings() {
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
      const Village& village = dice_.pick(villages);
      const QString address = address_(village);
      basic_.Execute(
          "Insert Into APT(Name, PostCode, Address, Dong, Structure, Height, Width, Evaporation, Gubun, "
          "Pressure, Eva, delaypay) Values(" +
          quoted(building.name) + ", " + quoted(village.zipCode) + ", " + quoted(address) + ", " +
          quoted(building.dong) + ", True, " + number(building.floors) + ", " + number(building.width) +
          ", " + yesNo(building.metered) + ", " + yesNo(building.houseStyle == 1) + ", " +
          quoted(building.metered ? "4" : "") + ", " + number(building.metered ? 2450 : 0) + ", 2)");
      for (int floor = 1; floor <= building.floors; ++floor)
        for (int unit = 1; unit <= building.width; ++unit) {
          Customer household;
          household.houseStyle = building.houseStyle;
          household.building = text(building.name);
          household.dong = text(building.dong);
          household.ho = number(floor * 100 + unit);
          household.name =
              household.building + u' ' + household.dong + text("동 ") + household.ho + text("호");
          household.address = address;
          household.zipCode = text(village.zipCode);
          household.tel = telephone();
          household.volumetric = building.metered;
          household.payWay = 2;
          customers_.push_back(household);
        }
    }
  }

  void plainCustomers() {
    for (int at = 0; at < 190; ++at) {
      Customer customer;
      const bool shop = dice_.chance(35);
      const Village& village = dice_.pick(villages);
      customer.name = shop ? text(dice_.pick(shopNames)) + text(dice_.pick(shopKinds))
                           : text(dice_.pick(surnames)) + text(dice_.pick(givenNames));
      customer.uname = shop ? customer.name.left(10) : QString();
      customer.address = address_(village);
      customer.zipCode = text(village.zipCode);
      customer.tel = telephone();
      if (dice_.chance(30)) customer.tel1 = text("010-0000-") + tail();
      if (dice_.chance(15))
        customer.memo = shop ? text("뒷문으로 배달, 영수증 필요") : text("개 조심, 전화 후 방문");
      customer.volumetric = shop && dice_.chance(20);
      customers_.push_back(customer);
    }
  }

  /** The customer who calls on the sample day: one credit sale of last year, and no dice touch it. */
  void caller() {
    Customer customer;
    customer.name = text(callerName);
    customer.address = text("경북 달빛시 장터동 100-1");
    customer.zipCode = text("712-010");
    customer.tel = text(callerTel);
    customer.memo = text("점심 전에 배달");
    customers_.push_back(customer);
  }

  void writeCustomers() {
    int code = 0;
    for (const Customer& c : customers_) {
      const QString joined = QDate(2001, 1, 2).addDays(dice_.roll(5000)).toString(u"yyyy-MM-dd");
      basic_.Execute(
          "Insert into Client(Name, Tel, Tel1, Tel2, PostCode, Address, Birth, Memo, HouseStyle, GasInit, "
          "UtilInit, "
          "AppDate, PayWay, VolumeYesNo, Volume, VolumeUnit, BDName, Dong, Ho, Serial, Status, Item, Uname) "
          "Values('" +
          c.name + "', '" + c.tel + "', '" + c.tel1 + "', '', '" + c.zipCode + "', '" + c.address +
          "', '', '" + c.memo + "', " + number(c.houseStyle) + ", 0, 0, '" + joined + "', " +
          number(c.payWay) + ", " + yesNo(c.volumetric) + ", '" + (c.volumetric ? "4" : "") + "', " +
          (c.volumetric ? "2450" : "0") + ", '" + c.building + "', '" + c.dong + "', '" + c.ho +
          "', '', '', '', '" + c.uname + "')");
      ++code;
      if (c.volumetric)
        for (const jet::Database& year : years_)
          for (int month = 0; month <= 12; ++month)
            year.Execute("Insert Into Evaporation(ClientCode, Mon) Values(" + number(code) + ", " +
                         number(month) + ")");
    }
  }

  void twoYears() {
    const QDate today = clock_.today();
    today_ = QDate(today.year() - 1, 12, 30).toString(u"yyyy-MM-dd");
    year_ = &years_[0];
    write(customers_.size() - 1, 1, text(gases[1].name), number(gases[1].size), 66000, 1, 16000, callerOwes);
    customers_.back().gasInit = callerOwes;
    for (QDate day(today.year() - 1, 1, 2); day < today; day = day.addDays(1)) {
      if (day.dayOfWeek() == Qt::Sunday) continue;
      today_ = day.toString(u"yyyy-MM-dd");
      year_ = &years_[day.year() == today.year() ? 1 : 0];
      restock();
      for (int lines = 8 + dice_.roll(8); lines > 0; --lines) line();
    }
  }

  /** Empty cylinders go to the station and come back filled; where too few are left, filled ones are bought. */
  void restock() {
    for (size_t at = 0; at < gases.size(); ++at) {
      GasStock& stock = stocks_[at];
      if (stock.full >= 20) continue;
      const qint64 refilled = stock.empty > 5 ? stock.empty - 5 : 0;
      buy(at, 1, gases[at].purchase, refilled);
      stock.empty -= refilled;
      const qint64 bought = stock.full < 40 ? 60 - stock.full : 0;
      buy(at, 3, gases[at].purchase + gases[at].canPurchase, bought);
      stock.total += bought;
    }
  }

  void buy(size_t item, int kind, qint64 price, qint64 count) {
    if (count == 0) return;
    const Gas& gas = gases[item];
    year_->Execute(
        "Insert Into Buy(BuyDate, BuyCompany, Response, BuyName, BuyThing, PurchaseUnit, PurchaseNum, "
        "PurchaseGubun, Pay, DC, Trust) Values('" +
        today_ + "', " + quoted(stations[item % stations.size()]) + ", " + quoted(staff[0]) + ", " +
        quoted(gas.name) + ", '" + number(gas.size) + "', " + number(price) + ", " + number(count) + ", " +
        number(kind) + ", " + number(count * price) + ", 0, 0)");
    stocks_[item].full += count;
    stocks_[item].kilograms += count * gas.size;
  }

  void line() {
    const size_t who = size_t(dice_.roll(int(customers_.size()) - 1));
    Customer& customer = customers_[who];
    const int dealt = dice_.roll(100);
    if (dealt < 16 && customer.gasInit > 0) return collect(who, customer.gasInit, 4, "가스수금");
    if (dealt < 18 && customer.utilInit > 0) return collect(who, customer.utilInit, 8, "자재수금");
    if (dealt < 24) return material(who);
    if (dealt < 60 && customer.lent > 0) return cylinder(who, 6);
    if (dealt < 36) return cylinder(who, 5);
    if (dealt < 39) return cylinder(who, 2);
    gas(who, dealt < 42 ? 3 : 1);
  }

  void gas(size_t who, int kind) {
    const size_t item = size_t(dice_.roll(10) < 6 ? 0 : dice_.roll(int(gases.size())));
    const Gas& sold = gases[item];
    GasStock& stock = stocks_[item];
    const qint64 count = std::min<qint64>(1 + dice_.roll(3), stock.full);
    if (count == 0) return;
    Customer& customer = customers_[who];
    const qint64 unit = sold.selling + (kind == 3 ? sold.canSelling : 0);
    const qint64 amount = customer.volumetric ? 0 : unit * count;
    const qint64 trust = dice_.chance(70) ? 0 : dice_.chance(60) ? amount : amount / 2000 * 1000;
    write(who, kind, text(sold.name), number(sold.size), unit, count, amount - trust, trust);
    customer.gasInit += trust;
    stock.full -= count;
    stock.kilograms -= count * sold.size;
    if (kind == 1)
      stock.empty += count;
    else
      stock.total -= count;
  }

  /** 2 sold, 5 lent, 6 taken back. */
  void cylinder(size_t who, int kind) {
    const size_t item = size_t(dice_.roll(2));
    GasStock& stock = stocks_[item];
    Customer& customer = customers_[who];
    if (kind != 6 && stock.empty < 3) return;
    if (kind == 2) {
      const qint64 price = customer.volumetric ? 0 : gases[item].canSelling;
      write(who, kind, text(gases[item].name), number(gases[item].size), gases[item].canSelling, 1, price, 0);
      stock.empty -= 1;
      stock.total -= 1;
      return;
    }
    write(who, kind, text(gases[item].name), number(gases[item].size), 0, 1, 0, 0);
    const int moved = kind == 5 ? 1 : -1;
    stock.empty -= moved;
    stock.loan += moved;
    customer.lent += moved;
  }

  void material(size_t who) {
    const size_t item = size_t(dice_.roll(int(materials.size())));
    const qint64 count = 1 + dice_.roll(2), amount = count * materials[item].selling;
    const qint64 trust = dice_.chance(75) ? 0 : amount;
    write(who, 7, text(materials[item].name), text(materials[item].size), materials[item].selling, count,
          amount - trust, trust);
    customers_[who].utilInit += trust;
    materialStock_[item] -= count;
  }

  void collect(size_t who, qint64& balance, int kind, const char* name) {
    const qint64 income = dice_.chance(70) ? balance : (balance / 2000 + 1) * 1000;
    write(who, kind, text(name), QStringLiteral("0"), 0, 0, income, balance - income);
    balance -= income;
  }

  void write(size_t who, int kind, const QString& name, const QString& size, qint64 unit, qint64 count,
             qint64 income, qint64 trust) {
    const bool onVolumeSheet = customers_[who].volumetric && kind < 7;
    year_->Execute(
        "Insert Into Sale(salelist, deallist, SaleDate, ClientCode, Response, SaleName, SaleThing, "
        "SaleUnit, SaleNum, SaleGubun, Gubun, Income, DC, Trust) Values(0, 0, '" +
        today_ + "', " + number(qint64(who) + 1) + ", " + quoted(dice_.pick(staff)) + ", " + quoted(name) +
        ", " + quoted(size) + ", " + number(unit) + ", " + number(count) + ", " + number(kind) + ", " +
        yesNo(onVolumeSheet) + ", " + number(income) + ", 0, " + number(trust) + ")");
    customers_[who].lastDate = today_;
  }

  void runningFigures() {
    for (size_t at = 0; at < customers_.size(); ++at) {
      const Customer& customer = customers_[at];
      basic_.Execute("Update Client Set GasInit = " + number(customer.gasInit) +
                     ", UtilInit = " + number(customer.utilInit) + ", LastDate = '" + customer.lastDate +
                     "' Where Code = " + number(qint64(at) + 1));
    }
    for (size_t at = 0; at < gases.size(); ++at) {
      const GasStock& stock = stocks_[at];
      basic_.Execute("Update LPG Set LPGStock = " + number(stock.kilograms) +
                     ", CANFull = " + number(stock.full) + ", CANEmpty = " + number(stock.empty) +
                     ", CANLoan = " + number(stock.loan) + ", CANTotalHold = " + number(stock.total) +
                     " Where Code = " + number(qint64(at) + 1));
    }
    for (size_t at = 0; at < materials.size(); ++at)
      basic_.Execute("Update Util Set UtilStock = " + number(materialStock_[at]) +
                     " Where Code = " + number(qint64(at) + 1));
  }

  QString tail() { return QString::number(dice_.roll(10000)).rightJustified(4, u'0'); }

  /** A number of the town; no two customers share their last four digits. */
  QString telephone() {
    QString last;
    do last = tail();
    while (tails_.contains(last));
    tails_ << last;
    return text("053-") + number(200 + dice_.roll(700)) + u'-' + last;
  }

  QString address_(const Village& village) {
    return text(province) + u' ' + text(city) + u' ' + text(village.dong) + u' ' +
           number(1 + dice_.roll(1200)) + u'-' + number(1 + dice_.roll(30));
  }

  const pc::Clock& clock_;
  const jet::Workspace& workspace_;
  jet::Database basic_, post_;
  std::vector<jet::Database> years_;  // last year, this year
  Dice dice_;
  std::vector<Customer> customers_;
  std::array<GasStock, gases.size()> stocks_;
  std::array<qint64, materials.size()> materialStock_;
  QStringList tails_;
  QString today_;
  const jet::Database* year_ = nullptr;
};

}  // namespace

void makeBooks(pc::Pc& pc, Prompts& prompts) {
  Session session(pc, prompts);
  session.DbPath = installedDataFolder();
  if (!prepareDataFolder(session)) throw jet::Error(76, text("자료 폴더를 만들 수 없습니다."));
  const int year = pc.clock.today().year();
  for (int each : {year - 1, year}) makeYearFile(session, number(each));
  session.wsMain = openWorkspace(session, session.DbPath);
  session.dbBasic = session.wsMain.OpenDatabase(session.DbPath + "Basic.mdb");
  upgrades::relink(session);
  pc.settings.SaveSetting("해온판매", "Registration", "SeeIDUse", "1");
  pc.settings.SaveSetting("해온판매", "환경설정", "OpenSeeIDPort1", "1");
  pc.settings.SaveSetting("해온판매", "환경설정", "OpenSeeIDPort2", "0");
  Maker(pc, session.wsMain, session.DbPath).make();
}

}  // namespace samples
