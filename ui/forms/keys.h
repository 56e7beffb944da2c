#pragma once
// What a key is, whatever keyboard it comes from.
#include <Qt>

/** Enter, that of the number pad too. */
constexpr bool isEnterKey(int key) {
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}
