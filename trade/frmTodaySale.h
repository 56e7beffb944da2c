#pragma once
// The figures of one day: quantity, income, discount and credit of each sheet of the sale screen.
#include "master/registers/form_context.h"
#include "trade/today_sale.h"
#include "ui/forms/form.h"

class QLabel;

class frmTodaySale : public Form {
 public:
  explicit frmTodaySale(FormContext& context, QWidget* parent = nullptr);

  /** An open form is asked for again: the session's day may be another one. */
  void showPage(const QString&) { load(); }
  QSize sizeHint() const override;

 private:
  void load();

  TodaySale today_;
  SpreadModel sums_;
  Spread* grid_;
  QLabel* title_;
};
