#pragma once
// "체적 예상 배달주기": whom the delivery van should visit, from the gap between his last eight deliveries.
#include "master/registers/form_context.h"
#include "trade/forecast.h"
#include "ui/forms/form.h"

class QButtonGroup;
class QComboBox;
class QLineEdit;

class frmVolumeEstimate : public Form {
 public:
  explicit frmVolumeEstimate(FormContext& context, QWidget* parent = nullptr);

 private:
  QWidget* questionRow();
  QComboBox* dayPart(const QString& name, int most, QWidget* parent);
  void findAll();
  void findOfDay();
  void extract(const std::optional<QString>& day);

  Forecast forecast_;
  Spread* grid_ = nullptr;
  QLineEdit* year_ = nullptr;
  QButtonGroup* which_ = nullptr;
  QComboBox *month_ = nullptr, *day_ = nullptr;
};
