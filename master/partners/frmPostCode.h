#pragma once
// "우편번호 조회": finds a postcode by neighbourhood or by its digits.
#include "master/registers/pickers.h"

#include <optional>

class QWidget;
struct Session;

/** text: what the caller is looking for; it stands in the box and is looked up at once. Nothing when the operator
 *  leaves or the postcode file is missing. */
std::optional<PostCodeChoice> frmPostCode(Session& session, const QString& text, QWidget* parent);
