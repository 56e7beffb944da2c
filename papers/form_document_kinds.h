#pragma once
// The list of document kinds that the set-up windows share.
#include <QListWidget>

#include "papers/paper_printer.h"

/** List1, on its first kind and as wide as its entries. */
inline QListWidget* documentKindList() {
  auto* list = new QListWidget;
  list->setObjectName(QStringLiteral("List1"));
  list->setSpacing(1);
  list->addItems(documentKinds());
  list->setCurrentRow(0);
  list->setFixedWidth(list->sizeHintForColumn(0) + 40);
  list->setMinimumHeight(list->sizeHintForRow(0) * (list->count() + 1));
  return list;
}

inline void chooseDocumentKind(QListWidget& list, const QString& kind) {
  const qsizetype place = documentKinds().indexOf(kind);
  if (place >= 0) list.setCurrentRow(int(place));
}
