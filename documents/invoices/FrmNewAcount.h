#pragma once
// "세금계산서 등록": an invoice typed by hand.
#include "documents/form_parts.h"
#include "documents/invoices/new_acount.h"
#include "master/registers/form_context.h"
#include "ui/forms/dialog.h"

class DateBox;
class QLabel;
class QLineEdit;
class Spread;

class FrmNewAcount : public Dialog {
 public:
  explicit FrmNewAcount(FormContext& context, QWidget* parent = nullptr);

  /** The two dates, "2026-03-31,2026-03-15". */
  void showPage(const QString& dates);

 protected:
  bool mayLeave() override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* headPanel();
  QWidget* sumPanel();
  void connectGrid();
  void help(QWidget* box, const QString& text);
  void chooseClient();
  bool takeDates();
  void searchItem(int row);
  bool store();
  void save();
  void deleteLine();

  FormContext& context_;
  clsPrintTax invoices_;
  NewAcountEntry entry_;
  DateBox *issue_, *deal_;
  QLineEdit* client_;
  Spread* grid_;
  QLabel* help_;
  SplitSums sums_;
  QHash<QObject*, QString> helps_;
  QString issueDate_, dealDate_;
};
