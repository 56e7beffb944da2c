#pragma once
// One register on the screen: its list, and below it the boxes by column name. The form's buttons act on it.
#include <QWidget>

#include <functional>

#include "master/registers/register_rules.h"

class Form;
class QGroupBox;
class Spread;

/** Browsing shows the list's current line in the boxes. What was typed and not saved goes only after a question; the
 *  buttons that say so (cancel, delete) ask nothing about it. */
class RegisterPage : public QWidget {
 public:
  RegisterPage(Form& form, RegisterRules& rules, const char* gridName);

  Spread* grid() const { return grid_; }
  /** Where the form lays the boxes out before it binds each of them. */
  QGroupBox* boxPanel() const { return panel_; }
  const RegisterRules& rules() const { return rules_; }

  /** The box holds the column; a tick or the first of two options holds "-1" when it is on, else "0". */
  void bind(QWidget* box, const QString& column, const QString& help = {});
  /** What the help line shows while the list has the focus. */
  void setListHelp(const QString& help);
  /** The bound boxes in the order they were bound. */
  QList<QWidget*> bound() const;
  RegisterFields boxes() const;

  /** Reads the list and shows its first line. */
  void load();
  void newRecord();
  /** True when it was stored; a refused save has put the focus on the box that wants something. */
  bool saveRecord();
  /** The boxes show the chosen line again as the file holds it; the focus goes to the list. */
  void cancelRecord();
  void deleteRecord();
  /** Asks about what was typed and not saved; True when it may go. */
  bool mayDrop();
  /** The first box that takes typing gets the focus. */
  void enterBoxes();
  /** The first box whose text no statement can hold gets the focus. */
  void focusApostrophe();

  std::function<void()> recordShown;   ///< boxes without a column of their own follow here
  std::function<void()> stateChanged;  ///< new or browsing, a line or none: the buttons follow
  std::function<void()> deleteAsked;   ///< the Delete key in the list

 private:
  void setBoxes(const RegisterFields& texts);
  void showRow(int row);
  void reload();

  RegisterRules& rules_;
  Spread* grid_;
  QGroupBox* panel_;
  Form& form_;
  QList<QPair<QWidget*, QString>> bound_;
  RegisterFields shown_;  ///< the boxes as they were filled
};
