#pragma once
// What a customer's boxes are filled with from the other registers: place and regulator.
#include "master/customers/client_entry.h"
#include "master/registers/pickers.h"
#include "store/session.h"

/** Asks the postcode search for a typed postcode or district; False after telling that there is none. */
bool lookUpPostCode(const Session& session, Pickers& pickers, ClientEntry& boxes);

/** The regulator with its price; False when none was chosen. */
bool lookUpRegulator(Pickers& pickers, ClientEntry& boxes);

/** The household's building, block, postcode and address; False when none was chosen. */
bool lookUpBuilding(Pickers& pickers, ClientEntry& boxes);
