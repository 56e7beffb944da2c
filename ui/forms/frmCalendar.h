#pragma once
// The date picker behind F12.
#include <QDate>
#include <QString>

#include <optional>

class QWidget;

/** Opens on the date of initial ("yyyy-MM-dd"), or on today when that is none. The chosen date as "yyyy-MM-dd";
 *  nothing when the operator leaves. */
std::optional<QString> frmCalendar(const QString& initial, const QDate& today, QWidget* parent = nullptr);
