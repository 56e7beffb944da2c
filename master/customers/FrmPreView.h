#pragma once
// The page of a customer's map, to look at and to print.
#include "master/customers/map_page.h"
#include "master/registers/form_context.h"
#include "ui/forms/form.h"

class FrmPreView : public Form {
 public:
  explicit FrmPreView(FormContext& context, QWidget* parent = nullptr);
  QSize sizeHint() const override { return {760, 900}; }
  /** The customer handed over last, in place of the one on show. */
  void showPage(const QString&);

 private:
  void showMap();
  void print();

  MapPage page_;
  QWidget* view_ = nullptr;
};
