#pragma once
// "판매가스 등록": gas and cylinders on one page, facilities and materials on the other.
#include "master/catalogue/gas_catalogue.h"
#include "master/catalogue/util_catalogue.h"
#include "master/registers/form_context.h"
#include "master/registers/form_register.h"

class frmGasUtil : public RegisterForm {
 public:
  explicit frmGasUtil(FormContext& context, QWidget* parent = nullptr);

 protected:
  void recordShown() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void buildGas();
  void buildUtil();
  void showTotalHold();
  void printPage();

  GasCatalogue gas_;
  UtilCatalogue util_;
  RegisterPage* gasPage_ = nullptr;
  QLineEdit *name_ = nullptr, *size_ = nullptr;
  QLabel* totalHold_ = nullptr;
};
