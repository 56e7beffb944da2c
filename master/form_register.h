#pragma once
// A small register on the screen: the list above, boxes by column name below, new, save, cancel, delete, leave.
#include "master/register_rules.h"
#include "ui/fields.h"
#include "ui/form.h"

/** Browsing shows the list's current line in the boxes; BtnNew empties them, BtnSave or BtnCancel ends that. */
class RegisterForm : public Form {
 public:
  RegisterForm(const QString& name, const QString& caption, RegisterRules& rules, Session& session,
               const char* gridName, QWidget* parent = nullptr);

  Spread* grid() const { return grid_; }
  /** Where the derived form lays its boxes out; then it binds each of them and calls start. */
  QGroupBox* boxPanel() const { return panel_; }
  /** The box holds the column. Enter goes from one bound box to the next, from the last to BtnSave. */
  void bind(QWidget* box, const QString& column, const QString& help = {});
  /** Reads the list when the form is first shown; the focus goes to the list, or to BtnNew when it is empty. */
  void start();

  RegisterFields boxes() const;
  void setBoxes(const RegisterFields& texts);

 protected:
  void newRecord();
  void saveRecord();
  void cancelRecord();
  void deleteRecord();
  /** Boxes without a column of their own follow here after another record was shown. */
  virtual void recordShown() {}

 private:
  void showRow(int row);
  void refreshButtons();

  RegisterRules& rules_;
  Spread* grid_;
  QGroupBox* panel_;
  QPushButton *new_, *save_, *cancel_, *delete_, *exit_;
  QList<QPair<QWidget*, QString>> bound_;
};
