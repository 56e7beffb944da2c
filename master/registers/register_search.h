#pragma once
// The short lists that other screens pick a supplier, a person, a bank account or a regulator from.
#include "master/registers/pickers.h"
#include "store/session.h"
#include "ui/model/spread_model.h"

/** One such list: its window's title, its statement and which field stands in which column. */
class RegisterSearch {
 public:
  static RegisterSearch volumes();    ///< columns: size, name, unit (won)
  static RegisterSearch responses();  ///< columns: name, telephone, mobile
  static RegisterSearch
  refills();  ///< columns: company, owner, telephone, owed for gas and for materials (won)
  static RegisterSearch banks();  ///< columns: bank, account, holder

  const QString& title() const { return title_; }
  /** False after a failed query has been told. */
  bool load(Session& session, SpreadModel& list) const;

 private:
  struct Column {
    QString field;
    SpreadColumn look;
  };
  RegisterSearch(QString title, QString statement, std::vector<Column> columns)
      : title_(std::move(title)), statement_(std::move(statement)), columns_(std::move(columns)) {}
  static Column text(const QString& field, const QString& header, double width);
  static Column money(const QString& field, const QString& header, double width);

  QString title_, statement_;
  std::vector<Column> columns_;
};
