#pragma once
// The company profile and the billing settings on two pages, behind the company's password.
#include <QList>

#include "app/company_profile.h"
#include "master/registers/form_context.h"
#include "ui/forms/form.h"

class QButtonGroup;
class QLayout;
class QLineEdit;
class QPushButton;
class QTabWidget;

class frmUser : public Form {
 public:
  frmUser(FormContext& context, QWidget* parent = nullptr);

 protected:
  void showEvent(QShowEvent* event) override;
  bool mayClose() override;

 private:
  QWidget* buildProfilePage();
  QWidget* buildSettingsPage();
  QWidget* pageOf(QLayout* boxes, QPushButton* save, const char* leaveName);
  QGroupBox* buildRates();
  QGroupBox* buildChoices(const QString& title, const QStringList& captions, const QStringList& names,
                          QButtonGroup*& group);
  QLineEdit* box(const QString& name, const QString& help, int maxLength = 0);
  QLineEdit* numberBox(const QString& name, const QString& help, const char* pattern);
  QList<std::pair<QLineEdit*, QString CompanyData::*>> profileBoxes() const;
  QList<std::pair<QLineEdit*, QString BillingSettings::*>> figureBoxes() const;
  void pass();
  void loadPages();
  void showProfile(const CompanyData& data);
  void showSettings(const BillingSettings& page);
  CompanyData typedProfile() const;
  BillingSettings typedSettings() const;
  /** Asks about what was typed and not saved; True when it may go. */
  bool mayDrop();
  bool mayWriteOver();
  void turnTo(int page);
  void saveProfile();
  void saveSettings();
  void searchPostCode();

  FormContext& context_;
  CompanyProfile rules_;
  QTabWidget* tabUser_;
  int page_ = 0;  ///< of tabUser_, the one that may be seen
  QLineEdit *txtCompany_, *txtUser_, *txtBusCode_, *txtPostCode_, *txtAddress_, *txtBusStyle_, *txtBusKind_,
      *txtTel_, *txtFax_, *txtOcr_;
  QLineEdit *txtRate_, *txtSecurity_, *txtAptRate_, *txtAptSecurity_, *txtManyRate_, *txtManySecurity_;
  QLineEdit *txtPost1_, *txtPost2_, *txtPassword1_, *txtPassword2_;
  QButtonGroup *payState_, *delayCharge_, *delayType_, *stock_;
  QPushButton *cmdSave_, *btnSave_;
  CompanyData readProfile_, shownProfile_;  ///< as the file held them; the boxes as they were filled
  BillingSettings readSettings_, shownSettings_;
  bool asked_ = false;
};
