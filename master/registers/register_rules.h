#pragma once
// What the small registers share below their forms: a list of rows, boxes by column name, and two states, browsing
// and new. A register of its own says how a row is read, checked, stored and taken out.
#include <vector>

#include "master/registers/register_list.h"
#include "ui/model/spread_model.h"

class RegisterRules {
 public:
  /** What became of a save or delete. When it was refused, focus names the box to go to (may be ''). */
  struct Outcome {
    bool done = false;
    QString focus = {};
    RowEnd end = RowEnd::Done;  ///< when another PC was there first: the list has been read anew
  };

  /** Where the rows lie in Basic.mdb and the columns that tell one from another. */
  struct Table {
    QString name, key = "Code";
    bool keyIsText = false;
    /** Further columns of the key, True for a text. */
    std::vector<std::pair<QString, bool>> also = {};
  };

  /** title: of the box that refuses a save without a row. */
  RegisterRules(Session& session, Table table, QString title, RegisterList shown);
  virtual ~RegisterRules() = default;
  RegisterRules(const RegisterRules&) = delete;
  RegisterRules& operator=(const RegisterRules&) = delete;

  SpreadModel& list() { return list_; }
  const SpreadModel& list() const { return list_; }

  /** Reads the list anew; the chosen row stays chosen where it still is. False after a failed query has been told. */
  bool load();
  /** What a column is called on the screen. */
  void setLabel(const QString& column, const QString& label) { labels_[column] = label; }
  /** BtnNew: what the emptied boxes show. */
  RegisterFields beginNew();
  /** BtnCancel: back to browsing with nothing chosen. */
  void cancel();
  /** A row of the list becomes the chosen one; its record for the boxes, empty below the last row. */
  RegisterFields select(int row);

  bool isNew() const { return new_; }
  int selectedRow() const { return row_; }  ///< 0: none

  /** BtnSave: stores the boxes as a new row after BtnNew, else as a change of the chosen row, and reads the list
   *  anew; a changed row stays chosen. shown: the boxes as they stood when the row was shown, where that is not the
   *  record's own text. Throws jet::Error when the statement fails. */
  Outcome save(const RegisterFields& boxes, const RegisterFields& shown = {});
  /** BtnDel and the Delete key: asks, then takes the chosen row out. Throws jet::Error. */
  Outcome remove();

 protected:
  /** Texts that BtnNew puts into the boxes. */
  virtual RegisterFields blank() const { return {}; }
  virtual Outcome insert(const RegisterFields& boxes) = 0;
  virtual Outcome change(const RegisterFields& boxes) = 0;
  virtual Outcome erase() = 0;
  /** BtnSave with neither BtnNew nor a chosen row. */
  virtual Outcome saveWithoutRow(const RegisterFields& boxes);
  /** Row colours and the like, after the list has been filled. */
  virtual void dressList() {}

  /** Columns that postings move. A change only moves them, by what the operator changed in the box. */
  virtual QStringList runningColumns() const { return {}; }

  /** The chosen row's record as it was read from the file. */
  const RegisterFields& record() const { return records_.at(size_t(row_ - 1)); }
  /** Writes a change of the chosen row together with a fresh reading of it (row_change.h). */
  Outcome changeChosen(const RegisterFields& boxes, const QString& title,
                       const std::function<void(const RowChange& change, const RegisterFields& row,
                                                const RegisterFields& stored)>& write);
  /** Asks, standing on no and naming the row, then runs work when the row is still as it was shown. */
  Outcome eraseChosen(const QString& name, const QString& question, const QString& title,
                      const std::function<void()>& work);
  /** The same without the question. */
  Outcome eraseAsShown(const QString& title, const std::function<void()>& work);
  /** Tells why a save or delete is refused and where the focus goes. */
  Outcome refuse(const QString& text, const QString& title, const QString& focus = {});
  enum class Found { Nothing, Something, Failed };
  /** Whether the statement finds a row; a failure has been told, and whatever asked is dropped. */
  Found lookFor(const QString& sql);

  Session& session_;
  SpreadModel list_;

 private:
  RowSource source() const;
  QString keyCondition(const RegisterFields& record) const;
  std::optional<Outcome> impossible(const RegisterFields& boxes);

  Table table_;
  QString title_;
  RegisterList shownAs_;
  RegisterFields labels_;
  RegisterFields shown_;                 ///< of the change being saved
  std::vector<RegisterFields> records_;  ///< one a row of the list
  bool new_ = false;
  int row_ = 0;
};

/** A register whose key alone decides whether a save adds a row or changes one, in every state. */
class KeyedRegister : public RegisterRules {
 protected:
  using RegisterRules::RegisterRules;
  virtual Outcome store(const RegisterFields& boxes) = 0;

 private:
  Outcome insert(const RegisterFields& boxes) final { return store(boxes); }
  Outcome change(const RegisterFields& boxes) final { return store(boxes); }
  Outcome saveWithoutRow(const RegisterFields& boxes) final { return store(boxes); }
};
