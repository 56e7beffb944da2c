#include "documents/form_parts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QTabBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

QTabBar* sectionTabs(QWidget* parent) {
  auto* const tabs = new QTabBar(parent);
  tabs->setObjectName("tabSection");
  tabs->setExpanding(false);
  tabs->setFocusPolicy(Qt::NoFocus);
  tabs->addTab("발행할 내역");
  tabs->addTab("발행한 내역");
  return tabs;
}

QVBoxLayout* stackedRows(std::initializer_list<QWidget*> rows) {
  auto* const stack = new QVBoxLayout;
  stack->setSpacing(0);
  for (QWidget* const row : rows) stack->addWidget(row);
  return stack;
}

QHBoxLayout* panelRow(QWidget* panel, int margin, int spacing) {
  auto* const row = new QHBoxLayout(panel);
  const int side = margin == 0 ? 0 : 6;
  row->setContentsMargins(side, margin, side, margin);
  row->setSpacing(spacing);
  return row;
}

QLabel* figure(QWidget* parent, const char* name, int digits) {
  auto* const shown = new QLabel(parent);
  shown->setObjectName(QString::fromUtf8(name));
  shown->setProperty("role", "value");
  shown->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  shown->setFixedWidth(digits * parent->fontMetrics().horizontalAdvance('0'));
  return shown;
}

void SplitSums::addTo(QHBoxLayout* row, QWidget* parent) {
  static constexpr const char* captions[] = {"공급가액", "부가세", "합계액"};
  for (int place = 0; place < 3; ++place) {
    row->addWidget(new QLabel(captions[place], parent));
    shown_[place] = figure(parent, qPrintable(u"pnlSum(%1)"_s.arg(place)), 17);
    row->addWidget(shown_[place]);
  }
}

void SplitSums::show(const VatSplit& sums) {
  int place = 0;
  for (const qint64 won : {sums.supply, sums.tax, sums.total}) shown_[place++]->setText(wonOrBlank(won));
}
