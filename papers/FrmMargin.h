#pragma once
// How far each kind of document is moved on its paper.
#include <QMap>

#include "papers/form_kind_dialog.h"
#include "papers/paper_printer.h"

class QLineEdit;

class FrmMargin : public KindDialog {
 public:
  explicit FrmMargin(FormContext& context, QWidget* parent = nullptr);

 protected:
  void showKind() override;

 private:
  void keepTyped();

  QLineEdit *txtTop_, *txtLeft_;
  QString shown_;                         ///< the kind in the boxes
  QMap<QString, DocumentMargins> typed_;  ///< of the kinds that were looked at
};
