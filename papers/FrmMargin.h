#pragma once
// How far each kind of document is moved on its paper.
#include "ui/forms/dialog.h"

struct FormContext;
class QLineEdit;
class QListWidget;

class FrmMargin : public Dialog {
 public:
  explicit FrmMargin(FormContext& context, QWidget* parent = nullptr);
  /** Puts the list on a kind of document. */
  void showPage(const QString& kind);

 private:
  QString kind() const;
  void showKind();
  void store();

  FormContext& context_;
  QListWidget* list1_;
  QLineEdit *txtTop_, *txtLeft_;
};
