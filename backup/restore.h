#pragma once
// An archive put back in the data folder's place: first into a fresh folder, and only when all of it is whole the two
// change places. What was there stays beside it under a dated name.
#include "backup/archive.h"

namespace pc {
struct Pc;
}

namespace backup {

class DataFolderAlone;

/** Unpacks and checks beside the data folder. Throws jet::Error and Stopped; the books are as they were. */
void prepareRestore(const pc::Pc& pc, const QString& dataFolder, const QString& archive,
                    const ArchiveFacts& facts, const Tell& tell);
/** Puts what was prepared in place while the folder is held; where the old books lie now, '' when there were none.
 *  Throws jet::Error; the books are then as they were. */
QString finishRestore(const pc::Pc& pc, const QString& dataFolder, std::unique_ptr<DataFolderAlone> held);

}  // namespace backup
