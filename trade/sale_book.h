#pragma once
// The book of sales: its statements, its three sheets and what of it differs from the book of purchases.
#include <array>

#include "trade/line_book.h"

/** The customer of the current row, as the panel above the grid shows him. Money with separators. */
struct SaleClientPanel {
  qint64 code = 0;
  QString address, tel, gasTrust, utilTrust, lastDate, memo, map;
};

class SaleBook : public LineBook {
 public:
  explicit SaleBook(Session& session);

  SpreadModel& sheetGrid(SaleSheet sheet) { return grids_[size_t(sheet)]; }
  SaleSheet sheet() const { return sheet_; }
  /** What a volume customer gets is billed from his meter. */
  bool metered() const override { return sheet_ == SaleSheet::Volume; }

  /** Loads a sheet and makes it the current one. showDay: the lines of the screen's day, else those of the customer
   *  chosen last, over this year and the last. False after a failed query has been told; the current sheet then stays. */
  bool FillSaleGrid(SaleSheet sheet, bool showDay);
  bool refill() override { return FillSaleGrid(sheet_, showDay_); }
  void setClient(qint64 code) { client_ = code; }

  /** '' texts for a row without a customer. */
  SaleClientPanel panel(int row);

 protected:
  QString partnerName(const jet::Recordset& line) const override;
  QString insertSkeleton(const TradeLine& line) override;
  QString lineStatement(const QString& key) const override;
  QString moneyStatement(const QString& key) const override;
  QString balanceStatement(LineBalance balance, const QString& partner) const override;
  void moveBalance(const BalanceMove& move, const QString& partner) override;
  void updateLine(const TradeLine& line) override;
  void updatePerson(const QString& key, const QString& person) override;
  void deleteLine(const QString& key) override;
  bool writesWithoutItem() const override { return false; }
  QString offeredFrom() const override;

 private:
  QString sheetStatement(SaleSheet sheet, bool showDay) const;

  std::array<SpreadModel, 3> grids_;
  SaleSheet sheet_ = SaleSheet::General;
  bool showDay_ = true;
  qint64 client_ = 0;  ///< Client.Code
};
