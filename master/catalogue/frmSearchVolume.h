#pragma once
// "압력조정기 조회": picks a regulator with its price.
#include "master/registers/pickers.h"

#include <optional>

class QWidget;
struct Session;

/** Nothing when the operator leaves. */
std::optional<VolumeChoice> frmSearchVolume(Session& session, QWidget* parent);
