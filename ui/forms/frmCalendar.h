#pragma once
// The date picker behind F12.
#include <QDate>
#include <QString>

#include <optional>

#include "ui/model/prompts.h"

class QWidget;

/** Opens on the date of initial ("yyyy-MM-dd"), or on today when that is none. The chosen date as "yyyy-MM-dd";
 *  nothing when the operator leaves. */
std::optional<QString> frmCalendar(Prompts& prompts, const QString& initial, const QDate& today,
                                   QWidget* parent = nullptr);
