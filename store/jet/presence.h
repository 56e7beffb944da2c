#pragma once
// Who has a data file open: every program holds a shared lock on a small file beside it (Basic.mdb: Basic.ldb) as long
// as the file is open. Who needs the file for itself, to open it exclusively, to make, replace or delete it, holds the
// lock alone. The last one to leave takes the small file away; one left behind by a killed program locks nobody out.
#include <QString>
#include <optional>

namespace jet {

class Presence {
 public:
  /** With others. Waits so many milliseconds for one who holds it alone, then 3356. Where no file can be made or locked
   *  beside the data file (a read-only folder) nobody is seen. */
  Presence(const QString& dataFile, int milliseconds);
  ~Presence();
  Presence(const Presence&) = delete;
  Presence& operator=(const Presence&) = delete;

  bool isHeld() const { return file_ >= 0; }
  /** Alone from now on; false when others have the file open, or nobody can be seen. */
  bool takeAlone();
  void shareAgain();

 private:
  enum class Try { Held, Busy, Impossible };
  Try tryShared();
  void leave();

  QByteArray path_;
  int file_ = -1;
};

/** A data file's name for this program alone as long as this lives, whether the file exists or not: for making,
 *  replacing and deleting it. Waits so many milliseconds for whoever has the file open or does the same, then 3045. */
class AloneWith {
 public:
  AloneWith(const QString& dataFile, int milliseconds);

 private:
  std::optional<Presence> presence_;
};

}  // namespace jet
