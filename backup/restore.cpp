#include "backup/restore.h"

#include <QFileInfo>

#include "backup/data_folder_alone.h"
#include "backup/make_backup.h"
#include "pc/pc.h"
#include "store/folder_swap.h"

using namespace Qt::StringLiterals;

namespace backup {

void prepareRestore(const pc::Pc& pc, const QString& dataFolder, const QString& archive,
                    const ArchiveFacts& facts, const Tell& tell) {
  const auto isBasic = [](const PackedFile& file) {
    return file.name.compare(u"Basic.mdb"_s, Qt::CaseInsensitive) == 0;
  };
  if (std::ranges::none_of(facts.files, isBasic))
    throw jet::Error(notAnArchive, archive + u"\nBasic.mdb 가 들어 있지 않아 되돌릴 수 없습니다."_s);
  beginPreparing(pc.paths, dataFolder, pc.clock.now());
  const QString fresh = pc.paths.native(preparedFolder(dataFolder));
  try {
    unpack(pc.paths.native(archive), facts, fresh, tell);
    QStringList names;
    for (const PackedFile& file : facts.files) names << file.name;
    const Soundness sound = checkDataFiles(fresh, names, tell);
    if (!sound.damaged.isEmpty())
      throw jet::Error(damagedData, u"백업에 든 자료 파일이 손상되어 되돌리지 않았습니다: "_s +
                                        sound.damaged.join(u", "_s));
  } catch (...) {
    dropPrepared(pc.paths, dataFolder);
    throw;
  }
}

QString finishRestore(const pc::Pc& pc, const QString& dataFolder, std::unique_ptr<DataFolderAlone> held) {
  try {
    QString kept = swapIn(pc.paths, dataFolder, pc.clock.now());
    held.reset();
    clearMarks(pc.paths, kept);
    return kept;
  } catch (...) {
    dropPrepared(pc.paths, dataFolder);
    throw;
  }
}

}  // namespace backup
