#pragma once
// The made-up retailer while its books are being written: who there is, what lies in stock, the dice that decide.
#include <QStringList>

#include <array>
#include <vector>

#include "samples/sample_words.h"
#include "store/session.h"

namespace samples {

/** A small generator of our own, so that every platform makes the same books. */
class Dice {
 public:
  explicit Dice(quint64 seed) : state_(seed) {}
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
  quint64 state_;
};

/** Stands at its place in Town::customers, which is its code less one. */
struct Customer {
  int houseStyle = 0;
  QString name, building, dong, ho, address, zipCode, tel, tel1, uname, memo;
  bool volumetric = false;
  int payWay = 1;
  qint64 gasInit = 0, utilInit = 0;  // won
  std::array<int, 2> lent = {};      // pieces of the first two gases
  QString lastDate;
};

struct GasStock {
  qint64 kilograms = 0, full = 0, empty = 0, loan = 0, total = 0;
};

struct Town {
  explicit Town(Session& of);

  Session& session;
  jet::Database basic, post;
  jet::Database lastYear, thisYear;
  Dice dice{20020101};
  std::vector<Customer> customers;
  std::array<GasStock, gases.size()> stocks;
  std::array<qint64, materials.size()> materialStock;

  QString tail();  ///< four digits
  /** A number of the town; no two customers share their last four digits. */
  QString telephone();
  QString address(const Village& village);

 private:
  QStringList tails_;
};

// The books' chapters, in the order in which they are written. Each throws jet::Error.
void writeShop(Town& town);
void makeCustomers(Town& town);
void writeCustomers(Town& town);
/** Two years of lines up to the day before the PC's clock. */
void writeTrade(Town& town);
/** What the lines add up to. */
void writeRunningFigures(Town& town);
/** The meter book of this year: the opening readings, then every month before the clock's, read, billed and mostly
 *  paid. Moves the PC's clock through these months and puts it back. */
void writeReadings(Town& town);

// Words of a statement.
QString text(const char* utf8);
QString quoted(const QString& value);
QString quoted(const char* utf8);
QString number(qint64 value);
QString yesNo(bool yes);

}  // namespace samples
