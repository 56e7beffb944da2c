#pragma once
// How the language turns texts into numbers and back, compares texts and matches patterns. The one place for these
// rules: the SQLite functions, the store's helpers and the forms' rules all come here.
#include <QString>

#include <optional>
#include <string_view>

namespace jet {

/** Leading number of a text ("12kg" is 12, "" and "kg" are 0), blanks skipped, "&H" and "&O" known; never fails. */
double val(QStringView text);
/** The number that a whole text is: signs, thousands separators, currency sign, brackets for minus, exponent. Nothing
 *  when it is no number; this is what IsNumeric asks. */
std::optional<double> numberOf(QStringView text);

/** 15 significant digits, "." as the decimal point, no trailing zeros, 1E+15 from there on; -0 is "0". */
QString textOf(double number);
/** Nearest whole number, a tie goes to the even one. */
double roundHalfEven(double number);
/** The same at a number of decimal places. */
double roundHalfEven(double number, int places);

/** Text order: without case (all of Unicode) and without trailing blanks; below, above or equal to 0. */
int compareText(QStringView a, QStringView b);
int compareUtf8(std::string_view a, std::string_view b);

/** Pattern match without case: * any run, ? one character, # one digit, [a-z] one of, [!a-z] none of. Throws error 93
 *  for a bracket that is not closed. */
bool like(QStringView text, QStringView pattern);

/** Left, Right and Mid in characters; start counts from 1. Throw error 5 for a negative count or a start below 1. */
QString leftOf(const QString& text, qint64 count);
QString rightOf(const QString& text, qint64 count);
QString midOf(const QString& text, qint64 start, std::optional<qint64> count = {});

}  // namespace jet
