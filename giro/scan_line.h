#pragma once
// The line of a slip that the bank's reader takes: giro number, customer and total, two of them with a check digit.
#include <QString>

/** Weights 2, 1, 2, 1 from the last character on; a product of two digits counts by their sum. */
int checkDigitOfCode(const QString& code);
/** Weights 7, 3, 1, 7, 3, 1 from the last character on. '' gives 0. */
int checkDigitOfTotal(const QString& total);

/** giroNumber: seven digits. code and total (won) as plain digits, without separators or leading zeros: a piece
 *  shorter than its field is filled with blanks in front, a longer one stands whole. */
QString scanLine(const QString& giroNumber, const QString& code, const QString& total);
