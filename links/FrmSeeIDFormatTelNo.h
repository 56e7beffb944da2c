#pragma once
// "전화번호 형식": the customers' numbers that a caller would not be found by, to be put into shape.
#include "links/form_ticked.h"
#include "links/tel_tidy.h"
#include "master/registers/form_context.h"

class FrmSeeIDFormatTelNo : public TickedForm {
 public:
  explicit FrmSeeIDFormatTelNo(FormContext& context, QWidget* parent = nullptr);

 private:
  void load();
  void showCounts() override;

  TelTidy rules_;
  QLabel* lblCount_;
  Spread* grid_;
  QPushButton *btnSave_, *btnExit_;
};
