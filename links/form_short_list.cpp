#include "links/form_short_list.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/forms/form_ini.h"
#include "ui/forms/keys.h"
#include "ui/grid/spread.h"

using namespace Qt::StringLiterals;

ShortListDialog::ShortListDialog(const ShortListKind& kind, Session& session, bool picks, QWidget* parent)
    : Dialog(kind.form, kind.caption, session.prompts, parent), list_(session, kind), session_(session) {
  rememberPlace(session.pc.paths);
  grid_ = new Spread(list_.grid(), this);
  grid_->setObjectName(u"SpList"_s);
  grid_->setFillColumn(list_.grid().MaxCols());
  grid_->guard = [this](const std::function<void()>& work) { return guard(work); };
  grid_->cellFinished = [this](int row, int col, const QString&, const QString& typed) {
    return list_.finishCell(row, col, typed);
  };
  grid_->columnResized = [this](int col) { FormIni(session_.pc.paths).SaveSpreadIni(*this, *grid_, col); };
  grid_->keyPressed = [this, picks](int row, int, int pressed, Qt::KeyboardModifiers) {
    if (picks && isEnterKey(pressed) && !grid_->isEditing() && !list_.isEmpty(row)) {
      take(row);
      return true;
    }
    return key(row, pressed);
  };
  if (picks)
    grid_->doubleClicked = [this](int row, int) {
      if (row > 0 && !list_.isEmpty(row)) take(row);
    };
  body()->addWidget(grid_, 1);

  auto* const hints = new QGridLayout;
  hints->setHorizontalSpacing(10);
  hints->setColumnStretch(1, 1);
  const auto hint = [&](const QString& of, const QString& text) {
    const int row = hints->rowCount();
    hints->addWidget(new QLabel(of), row, 0);
    auto* const words = new QLabel(text);
    words->setProperty("role", u"faint"_s);
    hints->addWidget(words, row, 1);
  };
  for (int at = 0; at + 1 < kind.hints.size(); at += 2) hint(kind.hints[at], kind.hints[at + 1]);
  if (picks) hint(u"※ 선택"_s, u"엔터"_s);
  body()->addLayout(hints);
  addButton("BtnSave", u"저장(&S)"_s, [this] {
    grid_->setFocus();  // first: a save that fails leaves the hand in the list too
    if (grid_->commitEdit()) save();
  });
  addLeave("BtnExit", u"닫기(&X)"_s);
  allowResize({grid_->fullWidth() + 60, 24 * fontMetrics().lineSpacing()});
  guard([this] { list_.load(); });
  FormIni(session.pc.paths).LoadSpreadIni(*grid_, *this);
  grid_->setActiveCell(picks || list_.grid().MaxRows() == 1 ? 1 : list_.grid().MaxRows(), 1);
  grid_->setFocus();
}

bool ShortListDialog::key(int row, int key) {
  if (key != Qt::Key_Delete || grid_->isEditing()) return false;
  list_.remove(row);
  return true;
}

void ShortListDialog::save() {
  const int row = grid_->activeRow();
  list_.save();
  grid_->setActiveCell(std::min(row, list_.grid().MaxRows()), 1);
}

bool ShortListDialog::mayLeave() {
  if (!grid_->commitEdit()) return false;
  if (list_.changed() && list_.askToSave()) list_.save();
  return true;
}

void ShortListDialog::take(int row) {
  QStringList cells;
  for (int col = 1; col <= list_.grid().MaxCols(); ++col) cells << list_.grid().text(row, col);
  if (!guard([this] { mayLeave(); })) return;
  taken_ = cells;
  accept();
}

std::optional<QStringList> ShortListDialog::pick() {
  taken_.clear();
  exec();
  return taken_.isEmpty() ? std::nullopt : std::optional(taken_);
}
