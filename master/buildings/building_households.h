#pragma once
// One block with all its households: made, changed and removed in one go.
#include <QStringList>

#include <functional>

#include "master/customers/client_entry.h"
#include "store/session.h"

/** A block as its boxes say. Texts stand between plain quotes in the statements: an apostrophe in one makes the first
 *  of them fail, before anything is made. */
struct Building {
  HouseStyle houseStyle = HouseStyle::Apartment;
  QString name, dong, postCode, address;
  bool staircase = true;
  int floors = 0, width = 0;  ///< units a floor
  bool metered = false;
  QString pressure;   ///< size of the regulator, metered only
  QString unitPrice;  ///< won a unit, metered only
  QString lateRate;   ///< percent a month; 0: the company's own
};

/** A block of up to so many households is one group: a power cut leaves all of it or nothing. A bigger one lets other
 *  PCs in on the way; a power cut then leaves it with the households made so far, and it can be deleted as any other. */
constexpr int wholeBuilding = 1000;

/** Makes the block, its head row without a unit number, and one household a unit with its thirteen meter rows. Told
 *  the households done after each group; cannot be stopped. When it fails, what was made is taken back and the operator
 *  told so, or that it could not be; then the error goes on (jet::Error). */
void makeBuilding(const Session& session, const Building& building, const QStringList& units,
                  const std::function<bool(int done)>& tell);

/** Rewrites the block `code` and all customers that stand under its name and the block it had. A household's own name
 *  keeps the old block; kept. Name, floors and width do not change. Throws jet::Error. */
void changeBuilding(const Session& session, const Building& building, const QString& code,
                    const QString& oldDong, bool wasMetered);

/** Takes the block out with its customers and their meter rows; sales remain. Throws jet::Error. */
void removeBuilding(const Session& session, const QString& code, const QString& name, const QString& dong);
