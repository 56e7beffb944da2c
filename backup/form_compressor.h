#pragma once
// The data compressor's work as the operator meets it: waiting for the files with a way out, a bar while it runs, and a
// word at its end.
#include "backup/archive.h"
#include "backup/archive_shelf.h"
#include "backup/settings.h"
#include "ui/model/prompts.h"

class QWidget;
namespace pc {
struct Pc;
}

namespace backup {

class DataFolderAlone;

class Compressor {
 public:
  Compressor(pc::Pc& pc, Prompts& prompts) : pc_(pc), prompts_(prompts) {}

  QWidget* over = nullptr;  ///< the window that the bar stands over

  /** What became of it is told; quiet tells failures alone. True: an archive was made (and sent). */
  bool backUp(Series series, bool toServer, bool quiet);
  /** Reads the archive, asks, puts it in the books' place. True: the books are those of the archive. */
  bool restore(const QString& archive);

 private:
  /** Runs work; a failure is told, a stop too. */
  bool guarded(const QString& title, const std::function<void()>& work);
  std::unique_ptr<DataFolderAlone> awaitFolder();
  void run(const QString& caption, const std::function<void(const Tell&)>& work);
  bool mayRestore(const QString& archive, const ArchiveFacts& facts);

  pc::Pc& pc_;
  Prompts& prompts_;
};

}  // namespace backup
