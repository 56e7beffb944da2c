#include "tests/storm/packer.h"

#include "backup/data_folder_alone.h"
#include "backup/make_backup.h"
#include "backup/restore.h"
#include "store/folder_swap.h"
#include "tests/storm/books.h"
#include "tests/storm/poster.h"

using namespace Qt::StringLiterals;

namespace storm {

std::unique_ptr<backup::DataFolderAlone> hold(Pc& here) {
  auto held = std::make_unique<backup::DataFolderAlone>(here.pc.paths, here.session.DbPath);
  const QStringList busy = held->take();
  if (!busy.isEmpty()) report(u"%1 3045 %2"_s.arg(QLatin1String(word::told), busy.join(u' ')));
  return held;
}

int runPacker(const QStringList& arguments) {
  Pc here(arguments.at(0));
  backup::Settings settings = backup::readSettings(here.pc);
  settings.keep = 2;
  report(QLatin1String(word::ready));
  for (;;) makeBackup(here.pc, here.session.DbPath, settings, backup::Series::Books, hold(here), {});
}

int runRestorer(const QStringList& arguments) {
  Pc here(arguments.at(0));
  const QString shelf = backup::readSettings(here.pc).folder;
  finishSwap(here.pc.paths, here.session.DbPath);
  report(QLatin1String(word::ready));
  for (int turn = 0;; ++turn) {
    const QString archive = shelf + (turn % 2 ? u"one.zip"_s : u"two.zip"_s);
    const backup::ArchiveFacts facts = backup::verify(here.pc.paths.native(archive), {});
    auto held = hold(here);
    backup::prepareRestore(here.pc, here.session.DbPath, archive, facts, {});
    backup::finishRestore(here.pc, here.session.DbPath, std::move(held));
  }
}

}  // namespace storm
