#pragma once
// The short lists that other screens pick a supplier, a person, a bank account or a regulator from.
#include "master/registers/pickers.h"
#include "master/registers/register_list.h"
#include "store/session.h"

/** One such list: its window's name and title, its grid's name, its statement and which field stands in which column. */
class RegisterSearch {
 public:
  static RegisterSearch volumes();    ///< frmSearchVolume: size, name, unit (won)
  static RegisterSearch responses();  ///< frmSearchResponse: name, telephone, mobile
  static RegisterSearch
  refills();  ///< frmSearchRefill: company, owner, telephone, owed for gas and materials (won)
  static RegisterSearch banks();  ///< frmSearchBank: bank, account, holder

  const QString& form() const { return form_; }
  const QString& title() const { return title_; }
  const char* grid() const { return grid_; }
  /** False after a failed query has been told. */
  bool load(Session& session, SpreadModel& list) const;

 private:
  RegisterSearch(QString form, QString title, const char* grid, RegisterList list)
      : form_(std::move(form)), title_(std::move(title)), grid_(grid), list_(std::move(list)) {}

  QString form_, title_;
  const char* grid_;
  RegisterList list_;
};
