#pragma once
// The goods that a posting line of each kind may name: one list, twelve sets of headings and figures.
#include "master/registers/pickers.h"
#include "store/session.h"
#include "ui/model/spread_model.h"

class SizeSearch {
 public:
  SizeSearch(Session& session, const QString& kind, TradeSide side);

  /** "구매상품 조회" or "판매상품조회" */
  QString title() const;
  /** Name, size, price (won a piece), count (pieces). An unknown kind leaves the list empty. False after a failed
   *  query has been told. */
  bool load(SpreadModel& list) const;
  /** The goods of a line; nothing for a line without any. */
  static std::optional<ItemChoice> choice(const SpreadModel& list, int row);

 private:
  Session& session_;
  QString kind_;
  TradeSide side_;
};
