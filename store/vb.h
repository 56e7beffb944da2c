#pragma once
// The language's own helpers under their own names: numbers and dates from text, whole numbers, Format.
#include <QDate>
#include <QDateTime>
#include <QString>

#include <optional>

namespace vb {

/** Leading number of a text; 0 when there is none. Never fails. */
double Val(QStringView text);
/** Whole numbers, a tie to the even one. Error 6 beyond 32 bits (CInt: 16 bits), 13 for a text that is no number. */
qint64 CLng(double number);
qint64 CLng(QStringView text);
int CInt(double number);
int CInt(QStringView text);
/** Four decimal places, a tie to the even one. Error 6 beyond a currency's range. */
double CCur(double number);
/** Error 13 for a text that is no number, 6 for one that is none any more, such as 1E400. */
double CDbl(QStringView text);
/** 15 significant digits. */
QString CStr(double number);
bool IsNumeric(QStringView text);

/** The day a text names on a PC whose short date is yyyy-MM-dd; "-", "/", "." or 년월일 part the numbers, a time
 *  behind them is left out. Two numbers are month and day of currentYear; a
 *  year of two digits lies from 1930 to 2029. Nothing when the text is no date: the month is never guessed. */
std::optional<QDate> CDate(const QString& text, int currentYear);
bool IsDate(const QString& text, int currentYear);

/** A number by its picture, half away from zero; "#,###" of 0 is empty. */
QString Format(double number, const QString& picture);
/** A moment by its picture; "/" is the PC's date separator, "-", and "DDDDD" its short date. */
QString Format(const QDateTime& moment, const QString& picture);
QString Format(const QDate& day, const QString& picture);

}  // namespace vb
