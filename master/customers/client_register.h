#pragma once
// The register of customers: three pages by how a customer lives, each with its list and its boxes. Checks, saves and
// deletes; a meter customer's thirteen meter rows come and go with the customer.
#include <array>

#include "master/customers/client_entry.h"
#include "store/session.h"
#include "ui/model/spread_model.h"

class ClientRegister {
 public:
  static constexpr int PageCount = 3;
  /** Hidden column of every list. */
  static constexpr int CodeCol = 7;

  explicit ClientRegister(Session& session);

  SpreadModel& list(HouseStyle page) { return lists_.at(size_t(page)); }

  /** Reads a page's list anew; nothing is chosen then. False after a failed query has been told. */
  bool loadPage(HouseStyle page);
  /** The same for the page in front; who was chosen stays so where he still is. */
  bool reload();
  /** The bottom line with the count of all customers. */
  QString bottomLine() const;

  bool isNew() const { return new_; }
  qint64 code() const { return new_ ? 0 : chosen_.code; }  ///< 0: none
  HouseStyle page() const { return chosen_.houseStyle; }

  /** BtnNew: the emptied boxes; the joining date is today's. */
  ClientEntry beginNew();
  /** BtnCancel: back to browsing; the boxes of the customer chosen before, or empty ones. */
  ClientEntry cancel();
  /** A row of the page's list, or a customer by code, becomes the chosen one. Empty when there is none. */
  ClientEntry selectRow(int row);
  ClientEntry select(qint64 code);
  /** The row that shows a customer on the page; 0 when none does. */
  int rowOf(qint64 code) const;

  /** BtnSave: a new customer after BtnNew, else a change of the chosen one: columns that another PC has written
   *  meanwhile are kept or asked about, balances are only moved by what the operator changed (row_change.h). shown: the
   *  boxes as they stood when the customer was shown, where they are not the customer's own texts. A customer that
   *  another PC has deleted becomes a new entry. Throws jet::Error when a statement fails; what ran before it stays. */
  ClientSaved save(const ClientEntry& boxes, const std::optional<ClientEntry>& shown = {});
  /** Delete key on the list: asks, then, when nobody else has changed the customer meanwhile, takes the customer out with the meter rows and, in every year's file from
   *  the current one back, the sales. Nothing when nobody is chosen or the operator would rather not. Throws
   *  jet::Error. */
  std::optional<RowEnd> removeChosen();

 private:
  ClientSaved insert(const ClientEntry& boxes);
  ClientSaved change(const ClientEntry& boxes, const ClientEntry& shown);
  RowSource source(qint64 code) const;
  bool readRow(qint64 code, jet::Recordset& client) const;
  ClientEntry emptyEntry() const;
  void showChosen(int row);

  Session& session_;
  std::array<SpreadModel, PageCount> lists_;
  bool new_ = false;
  ClientEntry chosen_;
};
