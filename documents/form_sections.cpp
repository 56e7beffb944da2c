#include "documents/form_sections.h"

#include <QTabBar>
#include <QVBoxLayout>

QTabBar* sectionTabs(QWidget* parent) {
  auto* const tabs = new QTabBar(parent);
  tabs->setObjectName("tabSection");
  tabs->setExpanding(false);
  tabs->setFocusPolicy(Qt::NoFocus);
  tabs->addTab("발행할 내역");
  tabs->addTab("발행한 내역");
  return tabs;
}

QVBoxLayout* sectionHead(std::initializer_list<QWidget*> rows) {
  auto* const head = new QVBoxLayout;
  head->setSpacing(0);
  for (QWidget* const row : rows) head->addWidget(row);
  return head;
}
