#pragma once
// Prints the OCR slips of the reading screen: continuous paper, or A4.
#include "giro/form_giro.h"
#include "ui/grid/spread.h"

class frmPrtJiroOCR : public GiroForm {
 public:
  explicit frmPrtJiroOCR(FormContext& context, QWidget* parent = nullptr);
  /** "continuous" or "a4". */
  void showPage(const QString& page);
  void done(int result) override;

 protected:
  bool addInput(GiroInput& input) override;

 private:
  QStringList notes() const;

  SpreadModel notes_;
  Spread* txtAnnounce_;
};
