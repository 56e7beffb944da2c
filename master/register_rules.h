#pragma once
// What the small registers share below their forms: a list of rows, boxes by column name, and two states, browsing
// and new. A register of its own says how a row is read, checked, stored and taken out.
#include <QHash>
#include <QString>
#include <vector>

#include "store/session.h"
#include "ui/spread_model.h"

/** Texts of the boxes (or of one record) by column name. */
using RegisterFields = QHash<QString, QString>;

class RegisterRules {
 public:
  /** What became of a save or delete. When it was refused, focus names the box to go to (may be ''). */
  struct Outcome {
    bool done = false;
    QString focus = {};
  };

  explicit RegisterRules(Session& session) : session_(session) {}
  virtual ~RegisterRules() = default;
  RegisterRules(const RegisterRules&) = delete;
  RegisterRules& operator=(const RegisterRules&) = delete;

  SpreadModel& list() { return list_; }
  const SpreadModel& list() const { return list_; }

  /** Reads the list anew; nothing is chosen then. False after a failed query has been told. */
  bool load();
  /** BtnNew: what the emptied boxes show. */
  RegisterFields beginNew();
  /** BtnCancel: back to browsing with nothing chosen. */
  void cancel();
  /** A row of the list becomes the chosen one; its record for the boxes, empty below the last row. */
  RegisterFields select(int row);

  bool isNew() const { return new_; }
  int selectedRow() const { return row_; }  ///< 0: none

  /** BtnSave: stores the boxes as a new row after BtnNew, else as a change of the chosen row, and reads the list
   *  anew; a changed row stays chosen. Throws jet::Error when the statement fails. */
  Outcome save(const RegisterFields& boxes);
  /** BtnDel and the Delete key: asks, then takes the chosen row out. Throws jet::Error. */
  Outcome remove();

 protected:
  virtual QString listStatement() const = 0;
  /** The list's cells of one record, in the order of the columns. */
  virtual std::vector<QString> cells(const RegisterFields& record) const = 0;
  /** Texts that BtnNew puts into the boxes. */
  virtual RegisterFields blank() const { return {}; }
  virtual Outcome insert(const RegisterFields& boxes) = 0;
  virtual Outcome change(const RegisterFields& boxes) = 0;
  virtual Outcome erase() = 0;
  /** BtnSave with neither BtnNew nor a chosen row. */
  virtual Outcome saveWithoutRow(const RegisterFields& boxes) = 0;
  /** Row colours and the like, after the list has been filled. */
  virtual void dressList() {}

  /** The chosen row's record as read from the file. */
  const RegisterFields& record() const { return records_.at(size_t(row_ - 1)); }
  /** Tells why a save or delete is refused and where the focus goes. */
  Outcome refuse(const QString& text, const QString& title, const QString& focus = {});
  enum class Found { Nothing, Something, Failed };
  /** Whether the statement finds a row; a failure has been told, and whatever asked is dropped. */
  Found lookFor(const QString& sql);

  Session& session_;
  SpreadModel list_;

 private:
  std::vector<RegisterFields> records_;  ///< one a row of the list
  bool new_ = false;
  int row_ = 0;
};

/** A typed number as a statement takes it: "1,250" is 1250, '' is 0. */
QString typedNumber(const QString& typed);
