#pragma once
// Choosing the data folder and mapping a network drive: the rules behind FrmPath and FrmNetDrive. Paths are written
// ones ("C:\RWGas"), without a last backslash unless they are a drive's root.
#include <QString>
#include <QStringList>

struct Session;

class DataFolder {
 public:
  explicit DataFolder(Session& session) : session_(session) {}

  QStringList drives() const;
  /** Names of the folders in a folder, sorted without regard to case. */
  QStringList folders(const QString& path) const;
  /** The current data folder as the lists start with it: drive, and the rest behind the first backslash. */
  QString startDrive() const;
  QString startFolder() const;

  /** Asks for a name and makes the folder; its path, or '' when none was made. */
  QString create(const QString& parent);
  /** Asks; True when the (empty) folder is gone. */
  bool remove(const QString& folder);
  /** Saves folder + "DBS\" as the data folder for the next start. True when the operator wants to end the program
   *  now: every handle is closed then. */
  bool set(const QString& folder);

  /** Where the data of a chosen folder lie: the folder itself when it holds Basic.mdb, else its "DBS\". */
  QString dataIn(const QString& folder) const;
  bool holdsData(const QString& folder) const;
  /** Saves dataIn(folder) as the data folder, for a start that has not found its own. */
  void use(const QString& folder);

  static QString parentOf(const QString& path);
  static QString child(const QString& path, const QString& name);
  static constexpr int maxPath = 260;  ///< characters

 private:
  void save(const QString& data, const QString& reports);
  Session& session_;
};

class NetDrive {
 public:
  explicit NetDrive(Session& session) : session_(session) {}
  /** Letters that may be chosen, "D:" to "Z:". */
  static QStringList letters();
  /** Maps the share; what the panel says then. A failure is told in a box too. */
  QString map(const QString& share, const QString& letter);

 private:
  Session& session_;
};
