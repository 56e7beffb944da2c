#pragma once
// What the made-up retailer buys: gas, cylinders and fittings, some of it on credit, and what it pays the stations.
#include <QDate>

#include "samples/sample_town.h"

namespace samples {

class Purchases {
 public:
  explicit Purchases(Town& of) : town_(of) {}

  /** All of one working day, before the shop opens, into the year's file. */
  void day(const QDate& day, const jet::Database& year);
  /** What the stations are owed in the end. */
  void writeDebts();

 private:
  void refill(size_t gas);
  void fittings(size_t material);
  void cylinders(const QDate& day);
  void pay();
  void line(size_t station, int kind, const QString& name, const QString& size, qint64 price, qint64 count);
  void write(size_t station, int kind, const QString& name, const QString& size, qint64 price, qint64 count,
             qint64 paid, qint64 trust);

  struct Debt {
    qint64 gas = 0, material = 0;  // won
  };
  Town& town_;
  Dice dice_{19990901};
  std::array<Debt, stations.size()> debts_;
  const jet::Database* year_ = nullptr;
  QString today_;
  int paidMonth_ = 0;
  int left_ = 0;  ///< empties with the first station
};

}  // namespace samples
