#include "trade/line_items.h"

#include <algorithm>

#include "master/catalogue/size_search.h"
#include "trade/item_text.h"

namespace {

bool isSameText(const QString& one, const QString& other) {
  return one.trimmed().compare(other.trimmed(), Qt::CaseInsensitive) == 0;
}

}  // namespace

std::vector<ItemChoice> lineItemsNamed(Session& session, const LineKind& kind, TradeSide side,
                                       const QString& typed) {
  SpreadModel list;
  if (typed.trimmed().isEmpty() || !SizeSearch(session, kind.searchCode, side).load(list)) return {};
  std::vector<ItemChoice> whole, ofSize, ofName;
  for (int row = 1; row <= list.MaxRows(); ++row) {
    const std::optional<ItemChoice> item = SizeSearch::choice(list, row);
    if (!item) continue;
    const ItemText text = splitItem(typed);
    if (isSameText(text.name, item->name) && isSameText(text.size, item->size)) whole.push_back(*item);
    if (isSameText(typed, item->size)) ofSize.push_back(*item);
    if (isSameText(typed, item->name)) ofName.push_back(*item);
  }
  return !whole.empty() ? whole : !ofSize.empty() ? ofSize : ofName;
}
