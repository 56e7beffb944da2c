#pragma once
// What the banks collected: a month's file is posted into the meter book, and a list tells what was posted.
#include <QFile>

#include <functional>
#include <memory>
#include <optional>

#include "billing/collection_file.h"
#include "store/session.h"

class CollectionImport {
 public:
  /** What a run that came to its end adds up to. */
  struct Collected {
    int count = 0;   ///< payments
    double sum = 0;  ///< won
  };
  /** Told the pieces done; cannot be stopped. */
  using Teller = std::function<bool(int done)>;

  explicit CollectionImport(Session& session) : session_(session) {}

  QString thisYear() const;
  bool isYear(const QString& typed) const;

  /** "C:\RWGas\202603.txt", and the list beside it. */
  QString inputFile(const QString& year, const QString& month) const;
  QString listFile(const QString& year, const QString& month) const;

  /** BtnSave. month: two digits. Nothing when the run ended before the file did; what was posted until then stays.
   *
   *  Kept: a blank line ends the run with both files left open, and every later run then fails on them, until this
   *  object goes. */
  std::optional<Collected> run(const QString& year, const QString& month,
                               const std::function<Teller(int count)>& beginWork = {});

  /** BtnList: the list in Notepad. */
  void showList(const QString& year, const QString& month);

 private:
  struct Files {
    QFile list, input;
  };
  struct Run;
  std::optional<Collected> post(const QString& year, const QString& month,
                                const std::function<Teller(int count)>& beginWork);
  bool take(Run& run, const CollectionPiece& piece);
  bool postRecord(Run& run, const CollectionRecord& record);
  bool writeLine(const Run& run);

  Session& session_;
  std::unique_ptr<Files> left_;  ///< the files of a run that a blank line ended
};
