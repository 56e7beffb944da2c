#include "trade/item_text.h"

using namespace Qt::StringLiterals;

ItemText splitItem(const QString& text) {
  const qsizetype slash = text.indexOf(u'/');
  if (slash < 0) return {text.trimmed(), {}};
  return {text.left(slash).trimmed(), text.mid(slash + 1).trimmed()};
}

QString joinItem(const ItemText& item) {
  if (item.name.isEmpty() && (item.size.isEmpty() || item.size == u'0')) return {};
  return item.name + u" / "_s + item.size;
}
