#pragma once
// The short entry of a customer, over the search that did not find one.
#include <memory>

#include "master/customers/form_client_boxes.h"
#include "master/registers/pickers.h"
#include "ui/forms/dialog.h"

class QPushButton;

class frmNewClient : public Dialog {
 public:
  frmNewClient(Session& session, Pickers& pickers, const QString& searchText, QWidget* parent = nullptr);

  /** Runs the dialog; the registered customer, or nothing when the operator leaves. */
  std::optional<ClientChoice> enter();

 protected:
  bool mayLeave() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void save();

  Form* form_;
  std::unique_ptr<ClientBoxes> boxes_;
  QPushButton* save_;
  std::optional<ClientChoice> registered_;
  ClientEntry shown_;  ///< the boxes as they were filled
};
