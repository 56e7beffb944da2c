#pragma once
// "은행 조회": picks an account for the slips.
#include "master/registers/pickers.h"

#include <optional>

class QWidget;
struct Session;

/** Nothing when the operator leaves. */
std::optional<BankChoice> frmSearchBank(Session& session, QWidget* parent);
