#pragma once
// Typing an invoice by hand: its lines, what follows from which cell, saving them among those under preparation.
#include "documents/invoices/clsPrintTax.h"
#include "documents/vat_split.h"
#include "store/session.h"
#include "ui/model/spread_model.h"

namespace AcountCol {
enum : int { Name = 1, Norm, Kinds, Quantity, Price, Supply, Tax, Total, TaxCode, ItemCode, LineCode };
}

class NewAcountEntry {
 public:
  NewAcountEntry(Session& session, clsPrintTax& invoices);

  SpreadModel& grid() { return grid_; }

  /** Whom and for when the lines are. The customer's VAT choice comes from the ledger; without one the tax comes on
   *  top. */
  void setClient(const QString& code, const QString& name);
  const QString& clientName() const { return clientName_; }
  bool hasClient() const { return !client_.isEmpty(); }
  /** The lines are nobody's until another customer is set. */
  void forgetClient() { client_.clear(); }
  void setDates(const QString& issueDate, const QString& dealDate);

  /** Before a cell opens; False after telling why it stays closed. */
  bool mayEdit(int row, int col);
  /** Takes a finished cell and works out those that follow. False after telling why not. */
  bool finishCell(int row, int col, const QString& text);
  void takeItem(int row, const QString& name, const QString& norm, double price);
  /** Where Enter goes next in the row; a new row behind its last cell. */
  std::pair<int, int> nextCell(int row, int col);

  /** Supply, tax and total of all lines. */
  VatSplit sums() const;
  bool isUnsaved() const { return unsaved_; }

  /** Stores the lines; then the grid is empty for the next invoice. False after telling that it failed or that there is
   *  no customer. */
  bool save();
  /** Takes a line away after a question. */
  void deleteLine(int row);

 private:
  void clear();
  bool isForClient();
  void beginLine(int row);
  void fill(int row, const VatSplit& split);
  TaxLine lineOf(int row) const;

  Session& session_;
  clsPrintTax& invoices_;
  SpreadModel grid_;
  QString client_, clientName_, issueDate_, dealDate_, taxCode_;
  Vat vat_ = Vat::OnTop;
  qint64 lastLine_ = 0;  ///< number of the line given last
  bool unsaved_ = false;
};
