#pragma once
// How a grid cell shows an item: "name / size". Sales and purchases read and write it the same way.
#include <QString>

struct ItemText {
  QString name, size;
  bool isEmpty() const { return name.isEmpty() && size.isEmpty(); }
};

/** Split at the first "/"; a text without one is all name. */
ItemText splitItem(const QString& text);

/** '' when there is no item: no name, and the size '' or the '0' of lines without one. */
QString joinItem(const ItemText& item);
