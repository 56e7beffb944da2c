#include "links/form_ticked.h"

#include <QCheckBox>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

Spread* TickedForm::addTickedGrid(const char* name, TickedList& rules, int fillColumn, const QString& help) {
  ticks_ = &rules;
  grid_ = addSpread(name, rules.list());
  grid_->setFillColumn(fillColumn);
  grid_->setFrozenCols(TickedList::Tick + 1);  // the name beside the tick
  grid_->cellFinished = [this](int row, int col, const QString&, const QString& typed) {
    ticks_->list().setText(row, col, typed);
    showCounts();
    return true;
  };
  grid_->cellEntered = [this, help](int, int) { showHelp(help); };
  body()->addWidget(grid_, 1);
  return grid_;
}

QCheckBox* TickedForm::addTickAll(const QString& caption, QWidget* parent) {
  chkAll_ = new QCheckBox(caption, parent);
  chkAll_->setObjectName(u"ChkAll"_s);
  connect(chkAll_, &QCheckBox::clicked, this, [this](bool on) {
    command([&] {
      ticks_->tickAll(on);
      showCounts();
    });
  });
  return chkAll_;
}

QPushButton* TickedForm::addExit(const char* name) {
  return addButton(name, u"닫기(&X)"_s, [this] { (parentWidget() ? parentWidget() : this)->close(); });
}

void TickedForm::fill(const std::function<void()>& read) {
  chkAll_->setChecked(false);
  guard(read);
  showCounts();
  if (ticks_->list().MaxRows() > 0) grid_->setActiveCell(1, TickedList::Tick);
}
