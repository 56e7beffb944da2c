#include "documents/form_date_boxes.h"

#include <QHBoxLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

DateRangeBoxes::DateRangeBoxes(Form& form, QWidget* parent, const QString& fromHelp, const QString& toHelp)
    : form_(form) {
  for (int end = 0; end < 2; ++end) {
    boxes_[end] = new DateBox(DateBox::Mask::YearMonthDay, parent);
    boxes_[end]->setObjectName(u"txtDate(%1)"_s.arg(end));
    boxes_[end]->setFixedWidth(11 * boxes_[end]->fontMetrics().horizontalAdvance('0') + 18);
    form.setHelp(boxes_[end], end == 0 ? fromHelp : toHelp);
    form.whenLeft(boxes_[end], [this, end] { check(end); });
  }
}

void DateRangeBoxes::addTo(QHBoxLayout* row, const char* caption) {
  QWidget* const panel = row->parentWidget();
  row->addWidget(new QLabel(caption, panel));
  row->addWidget(boxes_[0]);
  row->addWidget(new QLabel("~", panel));
  row->addWidget(boxes_[1]);
  row->addSpacing(10);
}

void DateRangeBoxes::set(const QString& from, const QString& to, const QDate& emptyFrom,
                         const QDate& emptyTo) {
  taken_[0] = from.isEmpty() ? emptyFrom.toString(Qt::ISODate) : from;
  taken_[1] = to.isEmpty() ? emptyTo.toString(Qt::ISODate) : to;
  for (int end = 0; end < 2; ++end) boxes_[end]->setDateText(taken_[end]);
}

bool DateRangeBoxes::check(int end) {
  const QString typed = boxes_[end]->dateText();
  if (typed == taken_[end]) return true;
  const QString date = documentDate(form_.session(), typed);
  if (date.isEmpty()) {
    boxes_[end]->setDateText(taken_[end]);
    Form::focus(boxes_[end]);
    return false;
  }
  taken_[end] = date;
  boxes_[end]->setDateText(date);
  return true;
}
