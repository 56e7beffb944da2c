#include "master/form_register_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

#include "ui/boxes.h"
#include "ui/form.h"

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
  grid_->keyPressed = [this](int, int, int key, Qt::KeyboardModifiers) {
    if (key != Qt::Key_Delete || !deleteAsked) return false;
    deleteAsked();
    return true;
  };
  panel_ = form.addGroup({});
  panel_->setObjectName(QStringLiteral("PnlBoxes"));
  panel_->setStyleSheet(QStringLiteral("#PnlBoxes { margin-top: 0; }"));  // room for a title it does not have
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(5);
  column->addWidget(grid_, 1);
  column->addWidget(panel_);
}

void RegisterPage::bind(QWidget* box, const QString& column, const QString& help) {
  bound_.push_back({box, column});
  form_.setHelp(box, help);
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
}

void RegisterPage::showRow(int row) {
  setBoxes(rules_.select(row));
  if (stateChanged) stateChanged();
}

void RegisterPage::load() {
  rules_.load();
  if (!grid_->setActiveCell(1, 1)) showRow(0);
}

void RegisterPage::newRecord() {
  setBoxes(rules_.beginNew());
  if (stateChanged) stateChanged();
  if (!bound_.isEmpty()) Form::focus(bound_.first().first);
}

bool RegisterPage::saveRecord() {
  const auto [done, column] = rules_.save(boxes());
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
  showRow(grid_->activeRow());
  grid_->setFocus();
}

void RegisterPage::deleteRecord() {
  const int row = grid_->activeRow();
  if (!rules_.remove().done) return;
  const int next = std::min(row, rules_.list().MaxRows());
  grid_->setActiveCell(next, 1);
  showRow(next);
  grid_->setFocus();
}
