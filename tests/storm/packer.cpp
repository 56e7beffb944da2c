#include "tests/storm/packer.h"

#include "backup/data_folder_alone.h"
#include "backup/make_backup.h"
#include "backup/restore.h"
#include "store/folder_swap.h"
#include "tests/storm/books.h"
#include "tests/storm/poster.h"

namespace storm {

std::unique_ptr<backup::DataFolderAlone> hold(Pc& here) {
  auto held = std::make_unique<backup::DataFolderAlone>(here.pc.paths, here.session.DbPath);
  const QStringList busy = held->take();
  if (!busy.isEmpty()) report(word::told, 3045, busy.join(' '));
  return held;
}

int runPacker(const QStringList& arguments) {
  Pc here(arguments.at(0));
  backup::Settings settings = backup::readSettings(here.pc);
  settings.keep = 2;
  report(word::ready);
  for (;;) makeBackup(here.pc, here.session.DbPath, settings, backup::Series::Books, hold(here), {});
}

int runRestorer(const QStringList& arguments) {
  Pc here(arguments.at(0));
  const QString shelf = backup::readSettings(here.pc).folder;
  finishSwap(here.pc.paths, here.session.DbPath);
  report(word::ready);
  for (int turn = 0;; ++turn) {
    const QString archive = shelf + (turn % 2 ? "one.zip" : "two.zip");
    const backup::ArchiveFacts facts = backup::verify(here.pc.paths.native(archive), {});
    auto held = hold(here);
    backup::prepareRestore(here.pc, here.session.DbPath, archive, facts, {});
    backup::finishRestore(here.pc, here.session.DbPath, std::move(held));
  }
}

}  // namespace storm
