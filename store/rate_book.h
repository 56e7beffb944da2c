#pragma once
// The six billing figures of the company: late-charge rates in percent a month, safety fees in whole won.
#include <array>
#include <cstddef>

#include "store/house_style.h"

struct Session;

struct RateBook {
  struct Entry {
    double rate = 0;      ///< percent a month
    double security = 0;  ///< won a month
  };
  std::array<Entry, 3> books;
  const Entry& of(HouseStyle book) const { return books[size_t(book)]; }
};

/** Reads session.rates from the company's row; Null is 0. The rates of the individual and the multi-household book go
 *  through single precision and keep its binary error (2.1 is 2.0999999046...), the apartments' does not. False when
 *  there is no row (all figures are then 0) or after a failed query has been told. */
bool readRateBook(Session& session);

/** method: as Session::AfterDueMethod, which follows. */
void setAfterDueMethod(Session& session, int method);
