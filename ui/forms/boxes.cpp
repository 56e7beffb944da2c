#include "ui/forms/boxes.h"

#include <QFocusEvent>
#include <QLocale>
#include <QRegularExpressionValidator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString withSeparators(qint64 value) {
  return QLocale(QLocale::Korean).toString(value);
}

}  // namespace

MoneyBox::MoneyBox(QWidget* parent) : QLineEdit(parent) {
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setRange(least_, most_);
}

void MoneyBox::setRange(qint64 least, qint64 most) {
  least_ = least;
  most_ = most;
  // A digit too many is not taken: held to the range afterwards it would become another amount.
  const auto digits = QString::number(std::max(qAbs(least), qAbs(most))).size();
  const QRegularExpression amount(u"%1(,?[0-9]){0,%2},?"_s.arg(least < 0 ? "-?" : "").arg(digits));
  delete validator();
  setValidator(new QRegularExpressionValidator(amount, this));
}

qint64 MoneyBox::value() const {
  return plainText().toLongLong();
}

void MoneyBox::setValue(qint64 value) {
  setText(hasFocus() ? QString::number(value) : withSeparators(value));
}

QString MoneyBox::plainText() const {
  return text().remove(u',');
}

void MoneyBox::focusInEvent(QFocusEvent* event) {
  setText(plainText());
  QLineEdit::focusInEvent(event);
  if (event->reason() != Qt::MouseFocusReason && event->reason() != Qt::PopupFocusReason) selectAll();
}

void MoneyBox::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (!plainText().isEmpty()) setText(withSeparators(std::clamp(value(), least_, most_)));
}

DateBox::DateBox(Mask mask, QWidget* parent) : QLineEdit(parent) {
  setInputMask(mask == Mask::YearMonthDay ? u"0000\\-00\\-00"_s : u"00\\-00"_s);
  setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
}

QString DateBox::dateText() const {
  const QString typed = text();
  return QString(typed).remove(u'-').trimmed().isEmpty() ? QString() : typed;
}

void DateBox::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  justEntered_ = event->reason() == Qt::MouseFocusReason;
  setCursorPosition(0);
}

void DateBox::mousePressEvent(QMouseEvent* event) {
  QLineEdit::mousePressEvent(event);
  if (justEntered_ || dateText().isEmpty()) setCursorPosition(0);
  justEntered_ = false;
}

TelBox::TelBox(QWidget* parent) : QLineEdit(parent) {
  static const QRegularExpression number(u"[-0-9 ()]{0,30}"_s);
  setValidator(new QRegularExpressionValidator(number, this));
}
