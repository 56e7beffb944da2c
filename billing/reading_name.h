#pragma once
// How the lists of the meter book name a customer.
#include <QString>

#include "store/rate_book.h"

/** The name in the individual book, "101동 203호" in the books of buildings. */
inline QString readingName(HouseStyle book, const QString& name, const QString& dong, const QString& ho) {
  if (book == HouseStyle::Individual) return name;
  return dong + "동 " + ho + "호";
}
