#pragma once
// "전자수납 처리": a month's payments from the bank's file.
#include "billing/collection_import.h"
#include "master/registers/form_context.h"
#include "ui/forms/form.h"

class QComboBox;
class QLabel;
class QLineEdit;

class FrmSukum : public Form {
 public:
  explicit FrmSukum(FormContext& context, QWidget* parent = nullptr);
  QSize sizeHint() const override;

 private:
  void leaveYear();
  void collect();

  CollectionImport collection_;
  QLineEdit* year_ = nullptr;
  QComboBox* month_ = nullptr;
  QLabel *count_ = nullptr, *sum_ = nullptr;
};
