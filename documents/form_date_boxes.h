#pragma once
// The from and to of the document forms: txtDate(0) and txtDate(1), and the range they stand for.
#include <QDate>

#include <optional>

#include "documents/document_date.h"
#include "ui/forms/fields.h"
#include "ui/forms/form.h"

class QHBoxLayout;

class DateRangeBoxes {
 public:
  DateRangeBoxes(Form& form, QWidget* parent, const QString& fromHelp, const QString& toHelp);

  /** Both boxes behind their caption. */
  void addTo(QHBoxLayout* row, const char* caption);
  DateBox* box(int end) const { return boxes_[end]; }
  /** An empty date takes the one given for it. */
  void set(const QString& from, const QString& to, const QDate& emptyFrom, const QDate& emptyTo);
  /** What was typed becomes the range, also in a box that is not left yet. False after telling that it is no date. */
  bool take() { return check(0) && check(1); }
  QDate from() const { return dayOf(0); }
  QDate to() const { return dayOf(1); }

 private:
  QDate dayOf(int end) const { return QDate::fromString(taken_[end], Qt::ISODate); }
  bool check(int end);

  Form& form_;
  DateBox* boxes_[2];
  QString taken_[2];  ///< what stands in them as a date
};
