#pragma once
// The book of purchases: its statements and what of it differs from the book of sales. A station goes by its name, which
// is what Buy holds of it.
#include "trade/line_book.h"

/** The station of the current row, as the panel above the grid shows it. Money with separators. */
struct BuyStationPanel {
  QString address, tel, owner, fax, gasOwed, utilOwed;
};

class BuyBook : public LineBook {
 public:
  explicit BuyBook(Session& session);

  /** Loads the lines of the year: all of them, or those of the station chosen last. False after a failed query has been
   *  told; the grid is then as it was. */
  bool FillBuyGrid(bool showAll);
  bool refill() override { return FillBuyGrid(showAll_); }
  void setStation(const QString& company) { station_ = company; }

  /** '' texts for a row without a station. */
  BuyStationPanel panel(int row);
  /** The stations whose name is the text, else those whose name, telephone or address holds it. */
  QStringList stationsNamed(const QString& typed);

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
  bool writesWithoutItem() const override { return true; }

 private:
  SpreadModel grid_;
  bool showAll_ = true;
  QString station_;
};
