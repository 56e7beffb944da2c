#pragma once
// "거래명세표 발행": statements of the sale lines that are ticked.
#include "documents/form_date_boxes.h"
#include "documents/statements/deal_desk.h"
#include "master/registers/form_context.h"

class QCheckBox;
class QRadioButton;
class QTabBar;

class FrmDealList : public Form {
 public:
  explicit FrmDealList(FormContext& context, QWidget* parent = nullptr);

  /** Two dates "2026-03-01,2026-03-31"; an empty one is today. */
  void showPage(const QString& range);
  void Open(const QString& fromDate, const QString& toDate);
  /** The newest month's opening balance, "yyyy-mm-00". */
  const QString& openingKey() const { return openingKey_; }

 private:
  QWidget* questionRow();
  QWidget* choiceRow();
  QWidget* sumRow();
  void connectGrid();
  DealTab tab() const;
  DealAsk ask() const;
  void search();
  void turnTab();
  void chooseClient();
  void clientLeft();
  void showPrinter();
  QString printer() const;
  std::optional<DealPrint> askPrint();
  void print();
  void issue();
  void preview();
  void savePdf();
  bool finishCell(int row, int col, const QString& text);

  FormContext& context_;
  DealDesk desk_;
  std::unique_ptr<DateRangeBoxes> dates_;
  QTabBar* tabs_;
  QLineEdit *client_, *clientCode_;
  QCheckBox *all_, *form_, *facility_, *freeOfTax_;
  QRadioButton *included_, *onTop_;
  QLabel *sum_, *caption_;
  Spread* grid_;
  QString openingKey_;
};
