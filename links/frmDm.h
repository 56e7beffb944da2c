#pragma once
// "DM 발송": address labels and envelopes for customers.
#include "links/dm_list.h"
#include "links/form_ticked.h"
#include "master/registers/form_context.h"

class QRadioButton;

class frmDm : public TickedForm {
 public:
  explicit frmDm(FormContext& context, QWidget* parent = nullptr);

 private:
  QWidget* buildHead();
  void load(DmKind kind);
  void showCounts() override;
  void print(DmPaper paper);

  FormContext& context_;
  DmList rules_;
  QLabel *lblTotal_, *lblSel_;
  Spread* grid_;
};
