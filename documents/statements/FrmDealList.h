#pragma once
// "거래명세표 발행": statements of the sale lines that are ticked.
#include "documents/form_document.h"
#include "documents/statements/deal_desk.h"

class QRadioButton;

class FrmDealList : public DocumentForm {
 public:
  explicit FrmDealList(FormContext& context, QWidget* parent = nullptr);

  /** Two dates "2026-03-01,2026-03-31"; an empty one is today. */
  void showPage(const QString& range);
  void Open(const QString& fromDate, const QString& toDate);
  /** The newest month's opening balance, "yyyy-mm-00". */
  const QString& openingKey() const { return openingKey_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool hasPapers() override { return desk_.hasPapers(); }
  std::optional<DocumentRun> papers(bool issuing) override;
  void print() override;

 private:
  QWidget* questionRow();
  QWidget* choiceRow();
  QWidget* sumRow();
  void connectGrid();
  DealAsk ask() const;
  /** False after telling what is wrong, with the focus there. */
  bool search();
  bool list();
  void turnTab();
  bool findClient();
  void chooseClient();
  void clientLeft();
  std::optional<DealPrint> askPrint();
  bool finishCell(int row, int col, const QString& text);

  DealDesk desk_;
  QLineEdit *client_, *clientCode_;
  QCheckBox *all_, *form_, *facility_, *freeOfTax_;
  QRadioButton *included_, *onTop_;
  QLabel *sum_, *caption_;
  QString openingKey_;
};
