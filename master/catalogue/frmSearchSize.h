#pragma once
// "판매상품조회", "구매상품 조회": picks the goods of a posting line.
#include "master/registers/pickers.h"

#include <optional>

class QWidget;
struct FormContext;

/** kind: the search code "1" to "6". Nothing when the operator leaves, or goes to the catalogue to add something. */
std::optional<ItemChoice> frmSearchSize(FormContext& context, const QString& kind, TradeSide side,
                                        QWidget* parent);
