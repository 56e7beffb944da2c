#pragma once
// The list of invoices: those under preparation and those issued.
#include <optional>

#include "documents/invoices/clsPrintTax.h"
#include "documents/vat_split.h"
#include "ui/model/spread_model.h"

namespace TaxCol {
enum : int { IssueDate = 1, DealDate, Client, Supply, Tax, Total, Item, Tick, TaxCode, ClientCode };
}

/** tabSection's two pages. */
enum class TaxTab { Pending = 1, Issued = 2 };

/** How an invoice came about: gathered from sale lines, or typed. Stored in the register's Section. */
QString sectionOf(std::optional<TaxGathering> gathering);

class TaxSheet {
 public:
  TaxSheet();
  SpreadModel& grid() { return grid_; }
  const SpreadModel& grid() const { return grid_; }

  /** The invoices under preparation, their amounts by the choice of the form; those of 0 are left out. */
  void listPending(const clsPrintTax& invoices, Vat vat, std::optional<TaxGathering> gathering);
  /** The register's of a range, as they were issued; basic: whose customers' names it shows. */
  void listIssued(const jet::Database& tax, const jet::Database& basic, const QString& from,
                  const QString& to, std::optional<TaxGathering> gathering);

  /** Won, of all rows. */
  const VatSplit& sums() const { return sums_; }
  bool isEmpty() const { return grid_.text(1, TaxCol::TaxCode).isEmpty(); }

 private:
  void show(std::vector<std::vector<QString>> rows);

  SpreadModel grid_;
  VatSplit sums_;
};
