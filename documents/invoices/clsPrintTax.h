#pragma once
// The invoices under preparation (NewAcount) and the numbers of those issued (TaxAcount).
#include <QDate>
#include <optional>

#include "documents/ledger/clsTrade.h"

/** One line of an invoice under preparation, in the order of its columns. Won, pieces. */
struct TaxLine {
  QString TaxCode = {}, CCode = {}, CName = {};
  QString PCode = "0";  ///< "0" on gathered lines
  QString PName = {}, PNorm = {};
  double Quantity = 0, UnitCost = 0;
  qint64 TradeKum = 0, VatKum = 0, SumKum = 0;
  QString DealDate = {}, IssueDate = {};  ///< "yyyy-MM-dd"; of a month "yyyy-MM"
  qint64 Item = 0;                        ///< sale lines gathered; above 0 quantity and price are not typed
  QString Code = {};                      ///< numbers the lines, six digits
};

/** An invoice's code: two digits of the year, two of the month, a running number of three inside the month. The number
 *  is not bounded: behind 2603999 comes 26031000. */
namespace tax_serial {
/** "2603" of a date "2026-03" or "2026-03-31". */
QString prefixOf(const QString& date);
QString inc(const QString& code);
/** "####-###". */
QString shown(const QString& code);
}  // namespace tax_serial

class clsPrintTax {
 public:
  /** tax: dbTax.mdb. station: whose lines these are. All PCs prepare in one table; each works on its own lines and never
   *  on those of another that types at the same time. */
  clsPrintTax(jet::Database tax, QString station) : tax_(std::move(tax)), station_(std::move(station)) {}

  TaxLine line;

  /** Takes away the station's own lines, and those that a station left behind on an earlier day. */
  void Empty() const;
  /** False where the statement was refused; the caller tells. */
  bool Insert() const;
  bool Update() const;  ///< the line of TaxCode, and of Code when it is set
  bool SetIssueDate(const QString& taxCode, const QString& date) const;
  /** A free Code. */
  QString NextLineCode() const;
  /** The code behind the highest of a month in the register; the first when it has none. */
  QString NextSerial(const QString& prefix) const;
  /** The same, and behind the invoices under preparation. */
  QString NextTaxCode(const QString& prefix) const;
  /** A register's row of one customer, date and section. */
  std::optional<jet::Recordset> FindIssued(const QString& client, const QString& date,
                                           const QString& section) const;
  /** DDate, IssueDate, CName, STrade, SVat, SSum, SItem, FPName, TaxCode, CCode: an invoice a row. */
  jet::Recordset List() const;
  std::vector<TaxLine> Lines(const QString& taxCode) const;
  /** Of an issued invoice. */
  std::vector<TaxLine> IssuedLines(const QString& serial) const;
  void DeleteInvoice(const QString& taxCode) const;
  void DeleteLine(const QString& code) const;

  const jet::Database& tax() const { return tax_; }
  /** Condition of the station's own lines, to stand behind a Where or And. */
  QString own() const;

 private:
  QString highest(const QString& sql, const QString& prefix) const;

  jet::Database tax_;
  QString station_;
};

/** This program's name among those that prepare invoices: the day it first did, the PC, the process. */
QString taxStation(const QDate& today);
