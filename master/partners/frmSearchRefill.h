#pragma once
// "거래처 조회": picks a supplier by name.
#include "master/registers/pickers.h"

#include <optional>

class QWidget;
struct Session;

/** Nothing when the operator leaves. */
std::optional<QString> frmSearchRefill(Session& session, QWidget* parent);
