#pragma once
// "세금계산서 발행": sale lines gathered into invoices, or invoices typed by hand; their printing and their register.
#include "documents/form_document.h"
#include "documents/form_parts.h"
#include "documents/invoices/tax_desk.h"

class QRadioButton;

class FrmTax : public DocumentForm {
 public:
  explicit FrmTax(FormContext& context, QWidget* parent = nullptr);

  /** mode: 0 gathers sale lines, 1 takes typed invoices. Empty dates: the first of the month, today. */
  void Open(int mode, const QString& fromDate, const QString& toDate);
  /** The mode, "0" or "1". */
  void showPage(const QString& mode);

 protected:
  bool hasPapers() override { return desk_.hasPapers(); }
  void print() override;
  std::optional<DocumentRun> papers(bool issuing) override;
  bool mayClose() override;

 private:
  QWidget* questionRow();
  QWidget* choiceRow();
  QWidget* sumRow();
  void connectGrid();
  void connectKeys();
  bool isTyped() const { return mode_ == 1; }
  bool mayDropTyped();
  TaxAsk ask() const;
  Vat vat() const;
  bool gather();
  void list();
  void turnTab();
  void showSums();
  void showSerial(const QString& serial);
  QString serial() const;
  bool finishCell(int row, int col, const QString& text);
  std::optional<TaxPaperChoice> askPaper();
  void exportIssued();
  void deleteIssued();
  void typeInvoice();

  TaxDesk desk_;
  int mode_ = 0;
  bool isJustMade_ = true;
  int gatheredAs_ = 0;  ///< place of the gathering that is listed
  QRadioButton *gathering_[3], *vat_[3], *receipt_, *charge_;
  QCheckBox *freeOfTax_, *all_, *form_;
  QPushButton* gatherButton_;
  QLineEdit *serialMonth_, *serialNumber_;
  SplitSums sums_;
  QLabel* caption_;
};
