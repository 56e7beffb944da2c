#include "trade/item_text.h"

ItemText splitItem(const QString& text) {
  const qsizetype slash = text.indexOf(u'/');
  if (slash < 0) return {text.trimmed(), {}};
  return {text.left(slash).trimmed(), text.mid(slash + 1).trimmed()};
}

QString joinItem(const ItemText& item) {
  if (item.name.isEmpty() && (item.size.isEmpty() || item.size == u'0')) return {};
  return item.name + QStringLiteral(" / ") + item.size;
}
