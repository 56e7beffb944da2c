#include "backup/data_folder_alone.h"

#include <QFile>
#include <optional>

#include "pc/paths.h"
#include "store/data_files.h"
#include "store/jet/error_texts.h"
#include "store/jet/presence.h"

using namespace Qt::StringLiterals;

namespace backup {

namespace {

constexpr int patience = 300;  // milliseconds for a lock that is just being given back

bool isBusy(int number) {
  return number == 3045 || number == 3356 || number == 3261;
}

}  // namespace

struct DataFolderAlone::Held {
  jet::Workspace workspace;
  jet::Database file;
  std::optional<jet::AloneWith> alone;
};

DataFolderAlone::DataFolderAlone(const pc::Paths& paths, const QString& folder)
    : paths_(paths), folder_(folder) {}
DataFolderAlone::~DataFolderAlone() = default;

QStringList DataFolderAlone::take() {
  QStringList names = filesIn(paths_, folder_, u"*.mdb"_s), busy;
  const auto isBasic = [](const QString& name) {
    return name.compare(u"Basic.mdb"_s, Qt::CaseInsensitive) == 0;
  };
  std::stable_partition(names.begin(), names.end(), isBasic);
  for (const QString& name : names) {
    if (held_.contains(name)) continue;
    const QString native = paths_.native(folder_ + name);
    auto held = std::make_unique<Held>();
    try {
      jet::Workspace::Options options;
      options.busyMilliseconds = patience;
      held->workspace = jet::Workspace(options);
      held->file = held->workspace.OpenDatabase(native, true);
    } catch (const jet::Error& error) {
      if (isBusy(error.number())) {
        busy << name;
        if (isBasic(name)) return busy;  // its holder may be making the others
        continue;
      }
      if (error.number() == 3043) throw;
      held->file.Close();
      held->workspace.Close();
      strange_[name] = error.number();
      try {
        held->alone.emplace(native, patience);
      } catch (const jet::Error&) {
        busy << name;
        continue;
      }
    }
    held_[name] = std::move(held);
  }
  return busy;
}

void clearMarks(const pc::Paths& paths, const QString& keptFolder) {
  if (keptFolder.isEmpty()) return;
  for (const QString& name : paths.list(keptFolder, u"*.ldb"_s))
    QFile::remove(paths.native(keptFolder + u'\\' + name));
}

}  // namespace backup
