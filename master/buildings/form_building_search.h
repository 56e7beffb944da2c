#pragma once
// A household's building is picked in two lists: the buildings of a house style, then the blocks of one.
#include "master/buildings/building_search.h"

class QWidget;

/** What the search has loaded in its window; the chosen line, 0 when the operator leaves. */
int frmBDName(Session& session, BuildingSearch& search, QWidget* parent);
int frmAPTAddress(Session& session, BuildingSearch& search, QWidget* parent);

/** Both, one after the other; a building of one block asks for no block. */
std::optional<BuildingChoice> chooseBuilding(Session& session, HouseStyle style, QWidget* parent);
