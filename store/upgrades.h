#pragma once
// Old data files brought up to date at every start. There is no version number: each step looks at the files
// themselves and does nothing where nothing is missing. The order of the calls is app/start_up's.
#include <QString>

#include "store/jet/database.h"

struct Session;

namespace upgrades {

// A step fails with jet::Error unless it says otherwise.

/** APT.delaypay and Evaporation.paydelayed, in the installed folder whatever the settings say; nothing when its
 *  Basic.mdb does not open. */
void addLateCharges(Session& session);
/** dbDetail.mdb with its table DealList. */
void makeDealList(Session& session);
/** PostCode anew from dbPost.mdb when its DDD is not 60 wide and the setting PostC is empty; announced in a box. */
void rebuildPostCodes(Session& session, const jet::Database& basic, const jet::Database& post);
/** Sale.DealList and SaleList in the year walk. */
void addDealMarks(Session& session);
/** Client.Serial, Status, Item and Uname. */
void addClientTaxFields(const jet::Database& basic);
/** Sale rows without a customer go, in the year walk. */
void removeOrphans(Session& session);
/** Sets BasicPath and links the tables of Basic.mdb into every year file anew. False at the first file that does not
 *  open. */
bool relink(Session& session);
/** The tax file's columns as wide as they are needed: more than seven digits in the numbers (a month's goes beyond 999),
 *  fractions in Quantity, amounts beyond two thousand million; NewAcount gets Code and Station; the table of
 *  the issued items is made. */
void widenTaxFields(const jet::Database& tax);
/** Client.Tel1, and Tel2 only where Tel1 was missing. */
void addMoreTelephones(Session& session);
/** Opens dbCommon on the installed folder's Basic.mdb (ends quietly when that fails) and makes its table Options. */
void makeOptions(Session& session);

}  // namespace upgrades
