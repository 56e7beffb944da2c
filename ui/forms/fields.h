#pragma once
// Labelled boxes in a dense grid: labels right-aligned before their boxes, several pairs a row.
#include <QList>
#include <QString>
#include <QStringList>

#include "ui/forms/boxes.h"

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QPlainTextEdit;
class QRadioButton;
class QWidget;

/** Lays its boxes out row after row. Every box carries its name as objectName; widths in half-width characters, 0
 *  takes what the column gives; span in pairs. */
class Fields {
 public:
  /** pairs: label-and-box pairs a row. */
  Fields(QWidget* panel, int pairs);

  QLineEdit* text(const char* name, const QString& label, int width = 0, int maxLength = 0, int span = 1);
  MoneyBox* money(const char* name, const QString& label, int width = 14);
  DateBox* date(const char* name, const QString& label, DateBox::Mask mask = DateBox::Mask::YearMonthDay);
  TelBox* tel(const char* name, const QString& label, int width = 18);
  QComboBox* combo(const char* name, const QString& label, const QStringList& entries, int width = 0);
  QCheckBox* check(const char* name, const QString& caption);
  /** Options side by side behind one label: name and caption of each. */
  QList<QRadioButton*> options(const QString& label, const QList<std::pair<const char*, QString>>& each,
                               int span = 1);
  QPlainTextEdit* lines(const char* name, const QString& label, int rows, int span = 1);
  /** A figure that is only shown. */
  QLabel* value(const char* name, const QString& label, int width = 0, int span = 1);
  /** Any other widget behind a label. */
  void add(const QString& label, QWidget* box, int span = 1);
  void newRow();
  /** A key that the box does not take is told in the form's help line. */
  static void tellRefusedKeys(QLineEdit* box);
  /** The label in front of a box, to rename it. */
  static QLabel* labelOf(QWidget* box);

 private:
  template <class Box>
  Box* put(const char* name, const QString& label, Box* box, int width, int span);

  QWidget* panel_;
  QGridLayout* grid_;
  int pairs_, row_ = 0, at_ = 0;
};
