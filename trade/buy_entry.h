#pragma once
// What is the purchase screen's own of the hand on a line: the station.
#include "trade/buy_book.h"
#include "trade/line_entry.h"

class BuyEntry : public LineEntry {
 public:
  BuyEntry(BuyBook& book, Pickers& pickers);

  /** New lines open with materials instead of gas. */
  void buysMaterials(bool on) { materials_ = on; }

 protected:
  LineStep choosePartner(int row, const QString& text) override;
  std::optional<LineStep> partnerTyped(int row, const QString& typed) override;
  int firstKind() const override { return materials_ ? positionOf(buyKinds(), BuyMaterial) : 0; }

 private:
  LineStep moveLine(int row, const QString& company);

  BuyBook& purchases_;
  bool materials_ = false;
};
