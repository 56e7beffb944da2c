#pragma once
// Why the data folder cannot be worked in, in words that name the drive, the network or the folder.
#include <QString>

struct Session;

struct FolderTrouble {
  enum class Kind {
    None,
    NoDrive,   ///< the drive's letter is not there
    Network,   ///< the letter stands for a share that does not answer
    NoFolder,  ///< the drive is there, the folder is not
    NoAccess,  ///< it is there and cannot be read, or is no folder
    NoData,    ///< it can be read and holds no Basic.mdb
    Told,      ///< the folder looks well; what went wrong in it has been told in a box
  };
  Kind kind = Kind::None;
  QString headline;  ///< what is wrong, one sentence
  QString advice;    ///< what to look at, what to press

  bool any() const { return kind != Kind::None; }
};

/** Whether the drive and the share of the data folder can be reached at all; nothing is made, nothing is asked. A folder
 *  that is merely missing is no trouble here: it may be a new one. */
FolderTrouble reachDataFolder(const Session& session);
/** The same after a start that has failed: always some trouble. */
FolderTrouble whyNotStarted(const Session& session);
