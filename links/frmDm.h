#pragma once
// "DM 발송": address labels and envelopes for customers.
#include "links/dm_list.h"
#include "master/registers/form_context.h"
#include "ui/forms/form.h"

class QCheckBox;
class QRadioButton;

class frmDm : public Form {
 public:
  explicit frmDm(FormContext& context, QWidget* parent = nullptr);

 private:
  QWidget* buildHead();
  void load(DmKind kind);
  void showCounts();
  void print(DmPaper paper);

  FormContext& context_;
  DmList rules_;
  QCheckBox* chkAll_;
  QLabel *lblTotal_, *lblSel_;
  Spread* grid_;
};
