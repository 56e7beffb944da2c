#pragma once
// "담당자 조회": picks a delivery person by name.
#include "master/registers/pickers.h"

#include <optional>

class QWidget;
struct Session;

/** Nothing when the operator leaves. */
std::optional<QString> frmSearchResponse(Session& session, QWidget* parent);
