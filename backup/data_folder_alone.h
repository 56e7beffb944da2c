#pragma once
// The data folder for this program alone: as long as it is held no PC opens one of its files.
#include <QString>
#include <QStringList>

#include <map>
#include <memory>

namespace pc {
class Paths;
}

namespace backup {

class DataFolderAlone {
 public:
  DataFolderAlone(const pc::Paths& paths, const QString& folder);
  ~DataFolderAlone();

  /** Takes what is free, Basic.mdb first, for it is what every start opens. Names of files that somebody else has open;
   *  none: the folder is held. Work that a power cut broke off in a file is taken back by the taking. Throws jet::Error
   *  when the folder cannot be read. */
  QStringList take();
  /** Files that cannot be opened as ours, and why: damaged, or another program's. They are not in anybody's use. */
  const std::map<QString, int>& strange() const { return strange_; }

 private:
  struct Held;
  const pc::Paths& paths_;
  QString folder_;
  std::map<QString, std::unique_ptr<Held>> held_;
  std::map<QString, int> strange_;  ///< name, the engine's number
};

/** The marks of who was in go from a folder that was put aside while it was held: nobody is in it any more. */
void clearMarks(const pc::Paths& paths, const QString& keptFolder);

}  // namespace backup
