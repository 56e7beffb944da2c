#pragma once
// The three-way dialog before documents are printed: ink-jet, dot, or not at all, and on which sheet.
#include "master/registers/pickers.h"
#include "store/session.h"

class QWidget;

/** Nothing when the operator leaves. */
std::optional<PrintMethodChoice> FrmMsg(Session& session, const PrintMethodQuestion& question,
                                        QWidget* parent);
