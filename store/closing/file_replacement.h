#pragma once
// A data file made beside the one whose place it will take. The place goes from the old file to the new one in one step,
// and what stood there keeps lying beside it under a dated name until that is dropped.
#include <QDateTime>
#include <QString>

#include <optional>

#include "store/jet/presence.h"

namespace pc {
class Paths;
}

/** Paths as written. Until it has taken its place nobody else can open a file there, and a new file that never did goes
 *  with this. All throw jet::Error: 3045 for a file in use elsewhere, 3024 for one that is missing, 3026 for a full
 *  disk, 3051 where a folder refuses, 3043 for a disk that does not answer. */
class FileReplacement {
 public:
  FileReplacement(const pc::Paths& paths, const QString& place);
  ~FileReplacement();
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;

  /** Where the new file is made. */
  QString made() const;
  /** Begins it as a copy of a file that nobody has open. */
  void copyFrom(const QString& file);
  /** The made file, closed by now, takes the place. */
  void takePlace(const QDateTime& now);

  /** What stood there before, e.g. "C:\...\2027Foundation-20261231-183005.mdb"; '' when nothing did. */
  const QString& kept() const { return kept_; }
  void dropKept();
  void putBack();

 private:
  void keepOld(const QDateTime& now);

  const pc::Paths& paths_;
  QString place_, kept_;
  std::optional<jet::AloneWith> alone_;
};

/** Paths of the files that replacements of this place have kept and not dropped: one was ended in its middle. */
QStringList keptBeside(const pc::Paths& paths, const QString& place);
