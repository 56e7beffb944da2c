#pragma once
// Which printer each kind of document goes to.
#include "ui/forms/dialog.h"

struct FormContext;
class QComboBox;
class QLabel;
class QListWidget;

class FrmSetPrinter : public Dialog {
 public:
  explicit FrmSetPrinter(FormContext& context, QWidget* parent = nullptr);
  /** Puts the list on a kind of document. */
  void showPage(const QString& kind);

 private:
  QString kind() const;
  void showKind();
  void store();

  FormContext& context_;
  QListWidget* list1_;
  QComboBox* cboPrinter_;
  QLabel* lblChosen_;
};
