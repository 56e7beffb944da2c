#include "master/registers/form_register_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

#include "ui/forms/boxes.h"
#include "ui/forms/fields.h"
#include "ui/forms/form.h"

using namespace Qt::StringLiterals;

namespace {

QString boxText(const QWidget* box) {
  if (auto* const money = dynamic_cast<const MoneyBox*>(box)) return money->plainText();
  if (auto* const date = dynamic_cast<const DateBox*>(box)) return date->dateText();
  if (auto* const line = qobject_cast<const QLineEdit*>(box)) return line->text().trimmed();
  if (auto* const lines = qobject_cast<const QPlainTextEdit*>(box)) return lines->toPlainText();
  if (auto* const combo = qobject_cast<const QComboBox*>(box)) return combo->currentText();
  if (auto* const tick = qobject_cast<const QAbstractButton*>(box)) return tick->isChecked() ? "-1" : "0";
  return {};
}

void setBoxText(QWidget* box, const QString& text) {
  if (auto* const money = dynamic_cast<MoneyBox*>(box)) {
    text.isEmpty() ? money->clear() : money->setValue(qint64(text.toDouble()));
  } else if (auto* const line = qobject_cast<QLineEdit*>(box)) {
    line->setText(text);
    line->setCursorPosition(0);
  } else if (auto* const lines = qobject_cast<QPlainTextEdit*>(box)) {
    lines->setPlainText(text);
  } else if (auto* const combo = qobject_cast<QComboBox*>(box)) {
    combo->setCurrentIndex(combo->findText(text));
  } else if (auto* const tick = qobject_cast<QCheckBox*>(box)) {
    tick->setChecked(text.toInt() != 0);
  } else if (auto* const option = qobject_cast<QRadioButton*>(box)) {
    // An option goes out only by another one's coming on.
    for (QRadioButton* const each : option->parentWidget()->findChildren<QRadioButton*>())
      if ((each == option) == (text.toInt() != 0)) each->setChecked(true);
  }
}

}  // namespace

RegisterPage::RegisterPage(Form& form, RegisterRules& rules, const char* gridName)
    : QWidget(&form), rules_(rules), form_(form) {
  grid_ = form.addSpread(gridName, rules.list(), this);
  grid_->setFillColumn(rules.list().MaxCols());
  grid_->rowEntered = [this](int row) { showRow(row); };
  grid_->cellLeaving = [this](int row, int, int toRow, int) { return row == toRow || mayDrop(); };
  grid_->enterPressed = [this](int, int) { enterBoxes(); };
  grid_->doubleClicked = [this](int, int) { enterBoxes(); };
  grid_->keyPressed = [this](int, int, int key, Qt::KeyboardModifiers modifiers) {
    if (key != Qt::Key_Delete || modifiers || !deleteAsked) return false;
    deleteAsked();
    return true;
  };
  panel_ = form.addGroup({});
  panel_->setObjectName(u"PnlBoxes"_s);
  panel_->setStyleSheet(u"#PnlBoxes { margin-top: 0; }"_s);  // room for a title it does not have
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(5);
  column->addWidget(grid_, 1);
  column->addWidget(panel_);
}

void RegisterPage::bind(QWidget* box, const QString& column, const QString& help) {
  bound_.push_back({box, column});
  form_.setHelp(box, help);
  if (const QLabel* const label = Fields::labelOf(box)) rules_.setLabel(column, label->text());
}

void RegisterPage::setListHelp(const QString& help) {
  grid_->cellEntered = [this, help](int, int) { form_.showHelp(help); };
}

QList<QWidget*> RegisterPage::bound() const {
  QList<QWidget*> all;
  for (const auto& [box, column] : bound_) all << box;
  return all;
}

RegisterFields RegisterPage::boxes() const {
  RegisterFields texts;
  for (const auto& [box, column] : bound_) texts[column] = boxText(box);
  return texts;
}

void RegisterPage::setBoxes(const RegisterFields& texts) {
  for (const auto& [box, column] : bound_) setBoxText(box, texts.value(column));
  if (recordShown) recordShown();
  shown_ = boxes();
}

void RegisterPage::showRow(int row) {
  setBoxes(rules_.select(row));
  if (stateChanged) stateChanged();
}

void RegisterPage::load() {
  rules_.load();
  if (!grid_->setActiveCell(1, 1)) showRow(0);
}

/** The list as the file holds it now, its cursor on the line it was on. */
void RegisterPage::reload() {
  const int row = grid_->activeRow();
  rules_.load();
  const int next = rules_.selectedRow() > 0 ? rules_.selectedRow() : std::min(row, rules_.list().MaxRows());
  grid_->setActiveCell(next, std::max(1, grid_->activeCol()));
  showRow(next);
}

bool RegisterPage::mayDrop() {
  if (boxes() == shown_) return true;
  return form_.session().prompts.MsgAsk(
      u"입력한 내용을 저장하지 않았습니다!\n저장하지 않고 버리시겠습니까?"_s, form_.windowTitle(), false);
}

void RegisterPage::enterBoxes() {
  for (const auto& [box, column] : bound_) {
    const auto* const line = qobject_cast<const QLineEdit*>(box);
    if (!box->isVisibleTo(this) || !box->isEnabled() || (line && line->isReadOnly())) continue;
    return Form::focus(box);
  }
}

void RegisterPage::focusApostrophe() {
  const RegisterFields texts = boxes();
  for (const auto& [box, column] : bound_) {
    if (!hasApostrophe(texts[column])) continue;
    return Form::focus(box);
  }
}

void RegisterPage::newRecord() {
  if (!mayDrop()) return;
  setBoxes(rules_.beginNew());
  if (stateChanged) stateChanged();
  if (!bound_.isEmpty()) Form::focus(bound_.first().first);
}

bool RegisterPage::saveRecord() {
  const RegisterFields typed = boxes();
  const auto [done, column, end] = rules_.save(typed, shown_);
  if (!done && end == RowEnd::Gone) {
    // What was typed stays as a new entry, and counts as typed.
    reload();
    shown_ = rules_.beginNew();
    for (const auto& [box, name] : bound_) setBoxText(box, typed[name]);
    if (recordShown) recordShown();
    if (stateChanged) stateChanged();
    enterBoxes();
    return false;
  }
  if (!done) {
    for (const auto& [box, name] : bound_)
      if (name == column) Form::focus(box);
    return false;
  }
  const int row = rules_.selectedRow() > 0 ? rules_.selectedRow() : rules_.list().MaxRows();
  grid_->setActiveCell(row, 1);
  showRow(row);
  return true;
}

void RegisterPage::cancelRecord() {
  rules_.cancel();
  rules_.select(grid_->activeRow());
  reload();
  grid_->setFocus();
}

void RegisterPage::deleteRecord() {
  const int row = grid_->activeRow();
  const auto [done, column, end] = rules_.remove();
  if (!done && end == RowEnd::Done) return;
  const int next = rules_.selectedRow() > 0 ? rules_.selectedRow() : std::min(row, rules_.list().MaxRows());
  grid_->setActiveCell(next, 1);
  showRow(next);
  grid_->setFocus();
}
