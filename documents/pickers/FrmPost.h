#pragma once
// The postcode picker of the ledger's forms: the whole file, not the company's own area alone.
#include "master/registers/pickers.h"
#include "store/session.h"

class QWidget;

/** Searches at once for a caller's text; '' lists all. The chosen line's postcode "000-000" and address; nothing when the operator
 *  leaves. */
std::optional<PostCodeChoice> FrmPost(Session& session, const QString& text, QWidget* parent);
