#pragma once
// Telephone numbers in the shape they are stored and read: 053-123-4567. It stands with the customers, below the
// caller identification that uses it too, because the register's boxes and the customer search need it first.
#include <QString>

struct TelNumber {
  QString text;       ///< the whole number with its dashes
  QString localPart;  ///< without the area code: a number is stored with or without one
};

/** A number of fewer than six characters, or of four digits or fewer, is handed back as it is. */
TelNumber FormatTel(const QString& text);
