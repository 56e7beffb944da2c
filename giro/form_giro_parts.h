#pragma once
// What the giro forms' windows share: whom to print, the due date.
#include <QDate>
#include <QGroupBox>

#include "giro/giro_run.h"

class QHBoxLayout;
class QLineEdit;
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
