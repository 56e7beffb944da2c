#pragma once
// Prints the OCR slips of the reading screen: continuous paper, or A4.

#include "giro/jiro_ocr.h"
#include "master/registers/form_context.h"
#include "ui/forms/dialog.h"
#include "ui/model/spread_model.h"

class DueDateBoxes;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class SelectionGroup;
class Spread;

class frmPrtJiroOCR : public Dialog {
 public:
  explicit frmPrtJiroOCR(FormContext& context, QWidget* parent = nullptr);
  /** "continuous" or "a4". */
  void showPage(const QString& page);

 private:
  QGroupBox* buildDates();
  QGroupBox* buildNotes();
  void startUseMonth();
  void fillUsePeriod();
  void showPrinter();
  void openSetUp(const QString& form);
  void print();

  FormContext& context_;
  JiroOcr rules_;
  SpreadModel notes_;
  DueDateBoxes* due_;
  QComboBox* cmbUseMon_;
  QLineEdit *txtUse1_, *txtUse2_;
  QCheckBox* chkThisMon_;
  SelectionGroup* selection_;
  Spread* txtAnnounce_;
  QLabel* lblPrinter_;
};
