#include "samples/sample_purchases.h"

using namespace Qt::StringLiterals;

namespace samples {
namespace {

enum PurchaseKind {
  GasIn = 1,
  Cylinder = 2,
  FullCylinder = 3,
  Fitting = 4,
  Left = 5,
  TakenBack = 6,
  Paid = 7,
  PaidFitting = 8
};

constexpr qint64 fewFittings = 10, manyFittings = 40;
constexpr int leftAtOnce = 4;  // empties taken to the station for testing

}  // namespace

void Purchases::day(const QDate& day, const jet::Database& year) {
  year_ = &year;
  today_ = day.toString(u"yyyy-MM-dd");
  for (size_t at = 0; at < gases.size(); ++at) refill(at);
  for (size_t at = 0; at < materials.size(); ++at) fittings(at);
  cylinders(day);
  if (paidMonth_ != day.month()) pay();
  paidMonth_ = day.month();
}

/** Empty cylinders go to the station and come back filled; where too few are left, filled ones are bought. */
void Purchases::refill(size_t at) {
  const samples::Gas& gas = gases[at];
  GasStock& stock = town_.stocks[at];
  if (stock.full >= 20) return;
  const size_t station = at % stations.size();
  const auto take = [&](int kind, qint64 price, qint64 count) {
    if (count == 0) return;
    line(station, kind, text(gas.name), number(gas.size), price, count);
    stock.full += count;
    stock.kilograms += count * gas.size;
  };
  const qint64 refilled = stock.empty > 5 ? stock.empty - 5 : 0;
  take(GasIn, gas.purchase, refilled);
  stock.empty -= refilled;
  const qint64 bought = stock.full < 40 ? 60 - stock.full : 0;
  take(FullCylinder, gas.purchase + gas.canPurchase, bought);
  stock.total += bought;
}

void Purchases::fittings(size_t at) {
  if (town_.materialStock[at] >= fewFittings) return;
  const Material& material = materials[at];
  line(stations.size() - 1, Fitting, text(material.name), text(material.size), material.purchase,
       manyFittings);
  town_.materialStock[at] += manyFittings;
}

/** On Mondays: empties come back from their test or go to it; new ones are bought twice a year. */
void Purchases::cylinders(const QDate& day) {
  if (day.dayOfWeek() != Qt::Monday) return;
  const samples::Gas& gas = gases[0];
  GasStock& stock = town_.stocks[0];
  if (left_ > 0) {
    line(0, TakenBack, text(gas.name), number(gas.size), 0, left_);
    stock.empty += left_;
    stock.loan -= left_;
    left_ = 0;
  } else if (day.day() <= 7 && stock.empty > 3 * leftAtOnce) {
    left_ = leftAtOnce;
    line(0, Left, text(gas.name), number(gas.size), 0, left_);
    stock.empty -= left_;
    stock.loan += left_;
  }
  if (day.day() > 7 || (day.month() != 3 && day.month() != 9)) return;
  line(0, Cylinder, text(gas.name), number(gas.size), gas.canPurchase, 5);
  stock.empty += 5;
  stock.total += 5;
}

/** At the beginning of a month most of what is owed is paid. */
void Purchases::pay() {
  const auto settle = [this](size_t station, qint64& debt, int kind, const char* name) {
    if (debt <= 0) return;
    const qint64 paid = dice_.chance(60) ? debt : debt / 2000 * 1000;
    if (paid == 0) return;
    write(station, kind, text(name), u"0"_s, 0, 0, paid, debt - paid);
    debt -= paid;
  };
  for (size_t at = 0; at < stations.size(); ++at) {
    settle(at, debts_[at].gas, Paid, "가스지급");
    settle(at, debts_[at].material, PaidFitting, "자재지급");
  }
}

/** Paid at once, in half, or not yet. */
void Purchases::line(size_t station, int kind, const QString& name, const QString& size, qint64 price,
                     qint64 count) {
  const qint64 amount = price * count;
  const qint64 trust = dice_.chance(40) ? 0 : dice_.chance(70) ? amount : amount / 2000 * 1000;
  write(station, kind, name, size, price, count, amount - trust, trust);
  (kind == Fitting ? debts_[station].material : debts_[station].gas) += trust;
}

void Purchases::write(size_t station, int kind, const QString& name, const QString& size, qint64 price,
                      qint64 count, qint64 paid, qint64 trust) {
  year_->Execute(
      "Insert Into Buy(BuyDate, BuyCompany, Response, BuyName, BuyThing, PurchaseUnit, PurchaseNum, "
      "PurchaseGubun, Pay, DC, Trust) Values('" +
      today_ + "', " + quoted(stations[station]) + ", " + quoted(staff[0]) + ", " + quoted(name) + ", " +
      quoted(size) + ", " + number(price) + ", " + number(count) + ", " + number(kind) + ", " + number(paid) +
      ", 0, " + number(trust) + ")");
}

void Purchases::writeDebts() {
  for (size_t at = 0; at < stations.size(); ++at)
    town_.basic.Execute("Update RefillState Set GasInit = " + number(debts_[at].gas) + ", UtilInit = " +
                        number(debts_[at].material) + " Where Company = " + quoted(stations[at]));
}

}  // namespace samples
