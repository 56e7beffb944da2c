#pragma once
// Gas and cylinders: one row of LPG for each gas name and cylinder size, with prices and the stock counted by hand.
#include "master/registers/register_rules.h"

/** Boxes by column name: LPGName, Size (kg), LPGPurchase, LPGSelling, CANPurchase, CANSelling (won a cylinder),
 *  LPGStock (kg), CANFull, CANEmpty, CANLoan (pieces). */
class GasCatalogue : public RegisterRules {
 public:
  explicit GasCatalogue(Session& session);

  /** Enter on an empty name box. */
  static QString defaultName();
  /** Cylinders held in all: empties, fulls and loans. */
  static QString totalHold(const RegisterFields& boxes);
  /** What the gas in stock cost, whole won, half a won away from zero; 0 for a cylinder of no size. */
  static qint64 stockWorth(const RegisterFields& record);

 protected:
  Outcome insert(const RegisterFields& boxes) override;
  Outcome change(const RegisterFields& boxes) override;
  Outcome erase() override;
  QStringList runningColumns() const override;

 private:
  static QString movedTotal(const RowChange& change, const RegisterFields& stored);
};
