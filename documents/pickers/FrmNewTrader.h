#pragma once
// "거래처 등록": enters a trader of the ledger.
#include "documents/pickers/new_trader.h"
#include "master/registers/pickers.h"
#include "ui/forms/dialog.h"

class DateBox;
class MoneyBox;
class QComboBox;
class QLabel;
class QLineEdit;

class FrmNewTrader : public Dialog {
 public:
  /** customer: the sale side; else a supplier. */
  FrmNewTrader(Session& session, Pickers& pickers, bool customer, QWidget* parent = nullptr);

  /** Runs the dialog; True when a trader was stored. */
  bool enter();

 protected:
  bool mayLeave() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  TraderFields typed() const;
  void save();
  void searchCharge(bool typed);
  void searchPost(const QString& text);
  QString postCode() const;

  Session& session_;
  Pickers& pickers_;
  const bool customer_;
  bool stored_ = false;
  QLineEdit *name_, *person_, *phone_, *fax_, *charge_, *serial_, *status_, *item_, *address_, *lot_,
      *remark_;
  DateBox *open_, *close_;
  PostCodeChoice post_ = {};  ///< the one chosen last
  QComboBox* vat_;
  MoneyBox* balance_;
  QLabel* help_;
  QHash<QObject*, QString> helps_;
};
