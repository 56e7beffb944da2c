#pragma once
// The purchase screen: the year's lines under the panel of the current row's station.
#include "trade/buy_entry.h"
#include "trade/form_line.h"

class QLabel;

class frmBuy : public LineForm {
 public:
  explicit frmBuy(FormContext& context, QWidget* parent = nullptr);

  /** "gas" or "material": what new lines open with. */
  void showPage(const QString& page) { entry_.buysMaterials(page == "material"); }

 protected:
  Spread* grid() const override { return grid_; }
  void showPartner(int row) override;
  void showAll() override;
  void dayTaken() override {}

 private:
  void buildPanel();

  BuyBook book_;
  BuyEntry entry_;
  Spread* grid_ = nullptr;
  QLabel *address_ = nullptr, *tel_ = nullptr, *owner_ = nullptr, *fax_ = nullptr;
};
