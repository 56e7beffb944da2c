#pragma once
// The late-charge rate of a household, and a building's name as lists and slips print it.
#include <QHash>
#include <QString>

#include "store/rate_book.h"

struct Session;

/** The building's own late charge in percent a month; 0 when it has none, when the customer is in no building, and
 *  after a failed query has been told. */
double GetBuildingDelayPay(Session& session, qint64 code);
/** Percent a month for a customer of the book: an apartment's building goes before the apartments' rate. */
double lateRate(Session& session, HouseStyle book, qint64 code);

/** The rates of a whole run, read by one statement at its beginning. */
class LateRates {
 public:
  /** buildingsToo: an apartment's building goes before the apartments' rate, as in lateRate. A failed query has been
   *  told and leaves the book's rate. */
  LateRates(Session& session, HouseStyle book, bool buildingsToo);
  double of(qint64 code) const;

 private:
  double ofBook_;
  QHash<qint64, double> own_;  ///< of each household the building's, of two entries of one block the first's
};

/** Whether the building list has one entry a block, "<building> <dong>". */
bool showsBlocks(const Session& session);
/** The building of an entry of the list: where the list goes by blocks, the last four characters are the block's. */
QString BuildingLabelForDong(Session& session, const QString& entry);
