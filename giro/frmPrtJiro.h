#pragma once
// The windows of the papers that name one bank.
#include "giro/form_giro.h"

/** On the plain or the MICR paper, whichever the shop uses. */
class frmPrtJiro : public GiroForm {
 public:
  explicit frmPrtJiro(FormContext& context, QWidget* parent = nullptr);
};

/** On the general giro's continuous paper. */
class frmPrtJiroOrg : public GiroForm {
 public:
  explicit frmPrtJiroOrg(FormContext& context, QWidget* parent = nullptr);
};

/** On the clearing house's A4 form. */
class frmPrtMicr : public GiroForm {
 public:
  explicit frmPrtMicr(FormContext& context, QWidget* parent = nullptr);
};
