#pragma once
// "세금계산서 발행": sale lines gathered into invoices, or invoices typed by hand; their printing and their register.
#include "documents/form_date_boxes.h"
#include "documents/invoices/tax_desk.h"
#include "master/registers/form_context.h"

class QCheckBox;
class QGroupBox;
class QRadioButton;
class QTabBar;

class FrmTax : public Form {
 public:
  explicit FrmTax(FormContext& context, QWidget* parent = nullptr);

  /** "0" gathers sale lines, "1" takes typed invoices. */
  void showPage(const QString& mode);
  /** Empty dates: the first of the month, today. */
  void Open(int mode, const QString& fromDate, const QString& toDate);

 protected:
  bool mayClose() override;

 private:
  QWidget* questionRow();
  QWidget* choiceRow();
  QWidget* sumRow();
  void connectGrid();
  void connectKeys();
  bool isTyped() const { return mode_ == 1; }
  TaxTab tab() const;
  TaxAsk ask() const;
  Vat vat() const;
  void gather();
  void list();
  void showSums();
  void showSerial(const QString& serial);
  QString serial() const;
  void showPrinter();
  QString printer() const;
  bool finishCell(int row, int col, const QString& text);
  std::optional<TaxPaperChoice> askPaper();
  /** gatherAgain: what was not ticked is gathered anew afterwards, else it stays as it stands. */
  void issue(bool gatherAgain);
  void preview();
  void savePdf();
  void exportIssued();
  void deleteIssued();
  void typeInvoice();
  void openDates();
  void closeDates();

  FormContext& context_;
  TaxDesk desk_;
  std::unique_ptr<DateRangeBoxes> dates_;
  int mode_ = 0;
  QTabBar* tabs_;
  QGroupBox* datePanel_;
  QRadioButton *gathering_[3], *vat_[3], *receipt_, *charge_;
  QCheckBox *freeOfTax_, *all_, *form_;
  QPushButton* gatherButton_;
  QLineEdit *serialMonth_, *serialNumber_;
  QLabel *sums_[3], *caption_;
  Spread* grid_;
};
