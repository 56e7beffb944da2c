#include "store/jet/handle_catalogue.h"

#include <algorithm>

#include "store/jet/error_texts.h"

using namespace Qt::StringLiterals;

namespace jet {

QString pathOfConnect(const QString& connect) {
  const QString mark = u"DATABASE="_s;
  const qsizetype at = connect.indexOf(mark, 0, Qt::CaseInsensitive);
  return at < 0 ? QString() : connect.mid(at + mark.size()).section(u';', 0, 0);
}

std::optional<TableInfo> HandleCatalogue::tableOf(const FilePtr& file, const QString& name, int depth) {
  constexpr int kLinksInARow = 8;  // a link to a link is followed, a ring of links is not
  const TableDef* table = file->find(name);
  if (!table) return {};
  if (table->isLink()) {
    if (depth == kLinksInARow) fail(3151, name);
    const QString path = pathOfConnect(table->connect), source = table->sourceTableName;
    auto target = tableOf(workspace_.fileAt(path), source, depth + 1);
    if (!target) fail(3011, source);
    return target;
  }
  if (std::find(files_.begin(), files_.end(), file) == files_.end()) files_.push_back(file);
  return TableInfo{QString::fromLatin1(file->alias()), table->name, table->fields};
}

}  // namespace jet
