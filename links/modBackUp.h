#pragma once
// The choice of a backup or of putting one back: the data compressor, a program of its own, does the work once this one
// has ended and the files are free.
#include <QString>

#include <functional>

#include "store/session.h"

/** 0 to the local disk by the compressor's own window, 1 to or from the server, 2 for support, 3 to the local disk
 *  without asking. */
using BackupKind = int;

/** Closes all child forms; False when one stays, because it holds a cell that it cannot save. Unset: there are none. */
using CloseForms = std::function<bool()>;

/** Asks (but not when quiet), closes the forms and starts the compressor. True: it was started, ClosingForBackup is set,
 *  and the caller closes the main window. One that does not start is told; the program stays up. */
bool RunBackup(Session& session, BackupKind kind, bool quiet, const CloseForms& closeForms);
/** The same for putting a backup back. */
bool RunRestore(Session& session, BackupKind kind, const CloseForms& closeForms);
/** At the program's end: ask gives the index of the button of frmMsgBackUp. True: the program may end. */
bool AskBackupOnExit(Session& session, const CloseForms& closeForms, const std::function<int()>& ask);
