#pragma once
// The sale screen: three sheets of lines under the panel of the current row's customer.
#include <array>

#include "master/customers/map_handshake.h"
#include "trade/form_line.h"
#include "trade/sale_entry.h"

class QLabel;
class QPushButton;
class QTabWidget;
class QTimer;

class frmSale : public LineForm, public CallerTarget {
 public:
  explicit frmSale(FormContext& context, QWidget* parent = nullptr);

  /** "gas" or "material": the sheet that the menu's entry means. */
  void showPage(const QString& page);
  bool TakeCallerNumber(const QString& number) override;

 protected:
  Spread* grid() const override { return grids_[size_t(book_.sheet())]; }
  void showPartner(int row) override;
  void showAll() override { fill(book_.sheet()); }
  void dayTaken() override;
  bool openedEmpty(int row) override;
  void sheetShown() override;

 private:
  void buildPanel();
  void buildSheet(SaleSheet sheet, const QString& caption);
  bool canTakeCall();
  void reveal();
  void fill(SaleSheet sheet);
  void sheetChosen(int index);
  void showToday();
  void showLedger();
  void print();
  void startMap();
  void lookAtMap();

  SaleBook book_;
  SaleEntry entry_;
  MapHandshake map_;
  QTabWidget* tabs_ = nullptr;
  std::array<Spread*, 3> grids_{};
  QLabel *address_ = nullptr, *tel_ = nullptr, *endDay_ = nullptr, *memo_ = nullptr, *mapState_ = nullptr;
  QPushButton* mapButton_ = nullptr;
  QTimer* mapTimer_ = nullptr;
};
