#pragma once
// A trader of the ledger, and the customer he is looked up as.
#include <optional>

#include "store/jet/database.h"

/** One row of Trader, in the order of its columns. */
struct TraderFields {
  QString Code = {}, C_Name = {}, U_Name = {}, Serial = {}, Phone = {}, Fax = {}, DDD = {}, Charge = {};
  qint64 VAT = 0;  ///< a code of Vat
  QString Addr1 = {}, Addr2 = {}, Post = {}, Status = {}, Item = {}, OpenDate = {}, CloseDate = {},
          EnterDate = {};
  QString Section = {};  ///< "1" the sale side, else the purchase side
  qint64 TotNoPay = 0;   ///< won
  QString Bigo = {};
  bool bDeled = false;
  QString HPhone = {};
};

/** Operations on Trader and Client. Each fails softly: nothing or False where the table is not there, without a box. */
class clsTrader {
 public:
  /** db: the basic file. */
  explicit clsTrader(jet::Database db) : db_(std::move(db)) {}

  TraderFields fields;

  std::optional<jet::Recordset> List() const;
  std::optional<jet::Recordset> UndeletedList() const;
  /** By code; without one by name, telephone or address, whose statement is misspelt and so never finds anything. */
  std::optional<jet::Recordset> FindClient(const QString& code, const QString& name = {},
                                           const QString& tel = {}, const QString& address = {}) const;
  bool Insert() const;
  bool Update() const;
  bool Delete() const;
  std::optional<qint64> VatOf(const QString& code) const;
  /** Six digits. */
  std::optional<QString> NextCode() const;
  /** The running arrears in won. */
  std::optional<qint64> TotNoPayOf(const QString& code) const;
  std::optional<jet::Recordset> FindByName(const QString& name) const;
  /** The trader's person on every line of a ledger file. */
  static bool SetCharge(const jet::Database& ledger, const QString& code, const QString& charge);

 private:
  std::optional<jet::Recordset> open(const QString& sql) const;
  std::optional<qint64> numberOf(const QString& sql) const;

  jet::Database db_;
};
