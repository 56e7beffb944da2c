#pragma once
// The entry boxes forms are made of: amounts, masked dates, telephone numbers.
#include <QLineEdit>

/** A whole amount in won, kilograms or pieces: right-aligned, separators while it rests, digits while it is typed. */
class MoneyBox : public QLineEdit {
 public:
  explicit MoneyBox(QWidget* parent = nullptr);
  void setRange(qint64 least, qint64 most);
  /** 0 for an empty box. */
  qint64 value() const;
  void setValue(qint64 value);
  /** The digits without separators; '' for an empty box. */
  QString plainText() const;

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  qint64 least_ = -999'999'999'999, most_ = 999'999'999'999;
};

/** A date behind the mask "0000\-00\-00", or "00\-00" for month and day. Whoever comes to it, by key or by mouse, types
 *  over it from its first digit; a further click goes to a digit. */
class DateBox : public QLineEdit {
 public:
  enum class Mask { YearMonthDay, MonthDay };
  explicit DateBox(Mask mask, QWidget* parent = nullptr);
  /** As typed, with its dashes; '' when nothing was typed. */
  QString dateText() const;
  void setDateText(const QString& text) { setText(text); }

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  bool justEntered_ = false;  ///< by the mouse, whose press is still to come
};

/** Digits, dashes, blanks and parentheses; how a number is written out is the register's affair. */
class TelBox : public QLineEdit {
 public:
  explicit TelBox(QWidget* parent = nullptr);
};
