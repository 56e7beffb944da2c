#pragma once
// Network shares: where this PC reaches one, and the words for the ways it can fail.
#include <QString>

namespace pc {

/** The network interface's own numbers. */
enum NetworkFailure {
  netAccessDenied = 5,
  netBadDeviceType = 66,
  netBadNetName = 67,
  netAlreadyAssigned = 85,
  netInvalidPassword = 86,
  netBadDevice = 1200,
  netAlreadyRemembered = 1202,
  netNoNetOrBadPath = 1203,
  netCannotOpenProfile = 1205,
  netBadProfile = 1206,
  netExtendedError = 1208,
  netNoNetwork = 1222
};

/** Korean text of a failure; empty for 0. An unknown number speaks of the network in general. */
QString networkFailureText(int failure);

struct Share {
  int failure = 0;
  QString folder;  ///< where the PC reaches it; unused on Windows, where the letter itself is connected
};

/** Finds (on Windows: connects) a share. letter is "Z:". */
Share findShare(const QString& share, const QString& letter);

}  // namespace pc
