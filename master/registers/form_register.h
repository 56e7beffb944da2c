#pragma once
// A small register as a form of its own: one page, or several behind tabs, and new, save, cancel, delete, leave.
#include "master/registers/form_register_page.h"
#include "ui/forms/fields.h"
#include "ui/forms/form.h"

class QTabWidget;

class RegisterForm : public Form {
 public:
  RegisterForm(const QString& name, const QString& caption, Session& session, QWidget* parent = nullptr);

  /** The page that the buttons act on. */
  RegisterPage* page() const;
  Spread* grid() const { return page()->grid(); }

 protected:
  bool mayClose() override;
  /** One page for each register of the form; tabs names the control that holds several of them. The rules are members
   *  of the derived form, so pages come in its constructor, then their boxes, then start. */
  RegisterPage* addPage(RegisterRules& rules, const char* gridName, const QString& listHelp,
                        const char* tabs = nullptr, const QString& title = {});
  /** After the last box is bound: Enter goes from one bound box to the next, from the last to BtnSave; the lists are
   *  read and the focus goes to the list, or to BtnNew when it is empty. */
  void start();
  /** Rows go by the Delete key alone. */
  void withoutDeleteButton();
  /** Boxes without a column of their own follow here after another record was shown. */
  virtual void recordShown() {}

 private:
  void saveRecord();
  void leaveBoxes();
  void refreshButtons();

  QList<RegisterPage*> pages_;
  QTabWidget* tabs_ = nullptr;
  QPushButton *new_, *save_, *cancel_, *delete_, *exit_;
};
