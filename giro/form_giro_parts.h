#pragma once
// What the giro forms' windows are made of: whom to print, the due date, the period of use, the bank.
#include <QDate>
#include <QGroupBox>
#include <functional>

#include "giro/giro_run.h"
#include "giro/slip.h"

struct FormContext;
class QHBoxLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;

/** Opt1 to Opt4. */
class SelectionGroup : public QGroupBox {
 public:
  explicit SelectionGroup(QWidget* parent = nullptr);
  GiroSelection chosen() const;

 private:
  QRadioButton* options_[4];
};

/** TxtYear, TxtMon and TxtDay in a row; printed as they stand. */
class DueDateBoxes : public QWidget {
 public:
  explicit DueDateBoxes(const QDate& day, QWidget* parent = nullptr);
  QString year() const;
  QString month() const;
  QString day() const;
  QLineEdit* first() const { return year_; }

 private:
  QLineEdit* box(QHBoxLayout& row, const QString& name, const QString& text, int digits,
                 const QString& label);
  QLineEdit *year_, *month_, *day_;
};

/** Two boxes for the first and last day of use. */
class PeriodBoxes : public QWidget {
 public:
  /** mask: '' takes any text of ten characters. */
  PeriodBoxes(const char* fromName, const char* toName, const QString& mask, QWidget* parent = nullptr);
  QString from() const;
  QString to() const;
  void set(const QString& from, const QString& to);

 private:
  QLineEdit *from_, *to_;
};

/** "수납은행선택": TxtBank, TxtNumber, TxtUser and the search; a further panel's names carry its number. */
class BankPanel : public QGroupBox {
 public:
  /** number: 1 to 3. search: what the button runs. */
  BankPanel(int number, QWidget* parent = nullptr);
  SlipBank bank() const;
  void setBank(const SlipBank& bank);
  QPushButton* search() const { return search_; }

 private:
  QLineEdit *name_, *account_, *holder_;
  QPushButton* search_;
};
