// Two years of deliveries, collections and loans, and of the purchases that make them possible.
#include <algorithm>

#include "samples/sample_books.h"
#include "samples/sample_purchases.h"
#include "samples/sample_town.h"

using namespace Qt::StringLiterals;

namespace samples {
namespace {

class Trade {
 public:
  explicit Trade(Town& of) : town(of) {}

  void twoYears() {
    const QDate today = town.session.pc.clock.today();
    today_ = QDate(today.year() - 1, 12, 30).toString(u"yyyy-MM-dd");
    year_ = &town.lastYear;
    write(town.customers.size() - 1, 1, text(gases[1].name), number(gases[1].size), 66000, 1, 16000,
          callerOwes);
    town.customers.back().gasInit = callerOwes;
    GasStock& delivered = town.stocks[1];
    delivered.full -= 1;
    delivered.empty += 1;
    delivered.kilograms -= gases[1].size;
    for (QDate day(today.year() - 1, 1, 2); day < today; day = day.addDays(1)) {
      if (day.dayOfWeek() == Qt::Sunday) continue;
      today_ = day.toString(u"yyyy-MM-dd");
      year_ = day.year() == today.year() ? &town.thisYear : &town.lastYear;
      purchases_.day(day, *year_);
      for (int lines = 8 + town.dice.roll(8); lines > 0; --lines) line();
    }
    purchases_.writeDebts();
  }

 private:
  void line() {
    const size_t who = size_t(town.dice.roll(int(town.customers.size()) - 1));
    Customer& customer = town.customers[who];
    const int dealt = town.dice.roll(100);
    if (dealt < 16 && customer.gasInit > 0) return collect(who, customer.gasInit, 4, "가스수금");
    if (dealt < 18 && customer.utilInit > 0) return collect(who, customer.utilInit, 8, "자재수금");
    if (dealt < 24) return material(who);
    if (dealt < 60 && customer.lent[0] + customer.lent[1] > 0) return cylinder(who, 6);
    if (dealt < 36) return cylinder(who, 5);
    if (dealt < 39) return cylinder(who, 2);
    gas(who, dealt < 42 ? 3 : 1);
  }

  void gas(size_t who, int kind) {
    const size_t item = size_t(town.dice.roll(10) < 6 ? 0 : town.dice.roll(int(gases.size())));
    const Gas& sold = gases[item];
    GasStock& stock = town.stocks[item];
    const qint64 count = std::min<qint64>(1 + town.dice.roll(3), stock.full);
    if (count == 0) return;
    Customer& customer = town.customers[who];
    const qint64 unit = sold.selling + (kind == 3 ? sold.canSelling : 0);
    const qint64 amount = customer.volumetric ? 0 : unit * count;
    const qint64 trust = town.dice.chance(70) ? 0 : town.dice.chance(60) ? amount : amount / 2000 * 1000;
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
    Customer& customer = town.customers[who];
    size_t item = size_t(town.dice.roll(int(customer.lent.size())));
    if (kind == 6 && customer.lent[item] == 0) item = 1 - item;  // he brings back what he has
    GasStock& stock = town.stocks[item];
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
    customer.lent[item] += moved;
  }

  void material(size_t who) {
    const size_t item = size_t(town.dice.roll(int(materials.size())));
    const qint64 count = 1 + town.dice.roll(2), amount = count * materials[item].selling;
    const qint64 trust = town.dice.chance(75) ? 0 : amount;
    write(who, 7, text(materials[item].name), text(materials[item].size), materials[item].selling, count,
          amount - trust, trust);
    town.customers[who].utilInit += trust;
    town.materialStock[item] -= count;
  }

  void collect(size_t who, qint64& balance, int kind, const char* name) {
    const qint64 income = town.dice.chance(70) ? balance : (balance / 2000 + 1) * 1000;
    write(who, kind, text(name), u"0"_s, 0, 0, income, balance - income);
    balance -= income;
  }

  void write(size_t who, int kind, const QString& name, const QString& size, qint64 unit, qint64 count,
             qint64 income, qint64 trust) {
    const bool onVolumeSheet = town.customers[who].volumetric && kind < 7;
    year_->Execute(
        "Insert Into Sale(salelist, deallist, SaleDate, ClientCode, Response, SaleName, SaleThing, "
        "SaleUnit, SaleNum, SaleGubun, Gubun, Income, DC, Trust) Values(0, 0, '" +
        today_ + "', " + number(qint64(who) + 1) + ", " + quoted(town.dice.pick(staff)) + ", " +
        quoted(name) + ", " + quoted(size) + ", " + number(unit) + ", " + number(count) + ", " +
        number(kind) + ", " + yesNo(onVolumeSheet) + ", " + number(income) + ", 0, " + number(trust) + ")");
    town.customers[who].lastDate = today_;
  }

  Town& town;
  Purchases purchases_{town};
  QString today_;
  const jet::Database* year_ = nullptr;
};

}  // namespace

void writeTrade(Town& town) {
  Trade(town).twoYears();
}

void writeRunningFigures(Town& town) {
  for (size_t at = 0; at < town.customers.size(); ++at) {
    const Customer& customer = town.customers[at];
    town.basic.Execute("Update Client Set GasInit = " + number(customer.gasInit) +
                       ", UtilInit = " + number(customer.utilInit) + ", LastDate = '" + customer.lastDate +
                       "' Where Code = " + number(qint64(at) + 1));
  }
  for (size_t at = 0; at < gases.size(); ++at) {
    const GasStock& stock = town.stocks[at];
    town.basic.Execute("Update LPG Set LPGStock = " + number(stock.kilograms) +
                       ", CANFull = " + number(stock.full) + ", CANEmpty = " + number(stock.empty) +
                       ", CANLoan = " + number(stock.loan) + ", CANTotalHold = " + number(stock.total) +
                       " Where Code = " + number(qint64(at) + 1));
  }
  for (size_t at = 0; at < materials.size(); ++at)
    town.basic.Execute("Update Util Set UtilStock = " + number(town.materialStock[at]) +
                       " Where Code = " + number(qint64(at) + 1));
}

}  // namespace samples
