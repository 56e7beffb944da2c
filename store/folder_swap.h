#pragma once
// A whole folder put in another one's place in one step: what stands afterwards is the old one or the new one, never a
// mixture, whenever the power goes. Both lie in the same folder above.
#include <QDateTime>
#include <QString>

namespace pc {
class Paths;
}

/** The folder in which the data folder's successor is made, "C:\RWGas\Dbs-준비중". Written paths, without a last
 *  backslash. */
QString preparedFolder(const QString& folder);

/** Makes the prepared folder anew and empty, marked as unfinished. What a broken-off run left there goes; but books that
 *  stand there whole are put aside under a dated name. Throws jet::Error 75. */
void beginPreparing(const pc::Paths& paths, const QString& folder, const QDateTime& now);
/** Takes an unfinished prepared folder away. */
void dropPrepared(const pc::Paths& paths, const QString& folder);
/** Puts the prepared folder in the folder's place. What stood there lies afterwards under the name given back
 *  ("C:\RWGas\Dbs-이전-20260316-090000"); '' when nothing did. Throws jet::Error 75; everything is then as it was. */
QString swapIn(const pc::Paths& paths, const QString& folder, const QDateTime& now);
/** A swap that a power cut broke off between its two renamings, where the disk knows no exchange in one step: the
 *  folder is missing and its successor stands whole beside it. Puts it in place; true when it did. */
bool finishSwap(const pc::Paths& paths, const QString& folder);
