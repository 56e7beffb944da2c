#include "master/form_register.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QString boxText(const QWidget* box) {
  if (auto* const money = dynamic_cast<const MoneyBox*>(box)) return money->plainText();
  if (auto* const date = dynamic_cast<const DateBox*>(box)) return date->dateText();
  if (auto* const line = qobject_cast<const QLineEdit*>(box)) return line->text().trimmed();
  if (auto* const lines = qobject_cast<const QPlainTextEdit*>(box)) return lines->toPlainText();
  if (auto* const combo = qobject_cast<const QComboBox*>(box)) return combo->currentText();
  return {};
}

void setBoxText(QWidget* box, const QString& text) {
  if (auto* const money = dynamic_cast<MoneyBox*>(box))
    text.isEmpty() ? money->clear() : money->setValue(qint64(text.toDouble()));
  else if (auto* const line = qobject_cast<QLineEdit*>(box))
    line->setText(text);
  else if (auto* const lines = qobject_cast<QPlainTextEdit*>(box))
    lines->setPlainText(text);
  else if (auto* const combo = qobject_cast<QComboBox*>(box))
    combo->setCurrentIndex(combo->findText(text));
}

}  // namespace

RegisterForm::RegisterForm(const QString& name, const QString& caption, RegisterRules& rules,
                           Session& session, const char* gridName, QWidget* parent)
    : Form(name, caption, session, parent), rules_(rules) {
  grid_ = addSpread(gridName, rules_.list());
  grid_->setFillColumn(rules_.list().MaxCols());
  grid_->rowEntered = [this](int row) { showRow(row); };
  grid_->keyPressed = [this](int, int, int key, Qt::KeyboardModifiers) {
    if (key != Qt::Key_Delete) return false;
    deleteRecord();
    return true;
  };
  panel_ = addGroup({});
  new_ = addButton("BtnNew", u"신규(&N)"_s, [this] { newRecord(); });
  save_ = addButton("BtnSave", u"저장(&S)"_s, [this] { saveRecord(); });
  cancel_ = addButton("BtnCancel", u"취소(&C)"_s, [this] { cancelRecord(); });
  delete_ = addButton("BtnDel", u"삭제(&D)"_s, [this] { deleteRecord(); });
  exit_ = addButton("BtnExit", u"닫기(&X)"_s, [this] { (parentWidget() ? parentWidget() : this)->close(); });
  body()->addWidget(grid_, 1);
  body()->addWidget(panel_);
  body()->addWidget(buttonRow({new_, save_, cancel_, delete_, nullptr, exit_}));
}

void RegisterForm::bind(QWidget* box, const QString& column, const QString& help) {
  bound_.push_back({box, column});
  setHelp(box, help);
  QList<QWidget*> order;
  for (const auto& [each, name] : bound_) order << each;
  enterOrder(order << save_);
}

void RegisterForm::start() {
  guard([this] { rules_.load(); });
  refreshButtons();
  if (rules_.list().MaxRows() > 0)
    grid_->setFocus();
  else
    new_->setFocus();
}

RegisterFields RegisterForm::boxes() const {
  RegisterFields texts;
  for (const auto& [box, column] : bound_) texts[column] = boxText(box);
  return texts;
}

void RegisterForm::setBoxes(const RegisterFields& texts) {
  for (const auto& [box, column] : bound_) setBoxText(box, texts.value(column));
  recordShown();
}

void RegisterForm::showRow(int row) {
  setBoxes(rules_.select(row));
  refreshButtons();
}

void RegisterForm::refreshButtons() {
  const bool isNew = rules_.isNew();
  new_->setEnabled(!isNew);
  cancel_->setEnabled(isNew || rules_.selectedRow() > 0);
  delete_->setEnabled(!isNew);
}

void RegisterForm::newRecord() {
  setBoxes(rules_.beginNew());
  refreshButtons();
  if (!bound_.isEmpty()) focus(bound_.first().first);
}

void RegisterForm::saveRecord() {
  const bool wasNew = rules_.isNew();
  const auto [done, column] = rules_.save(boxes());
  if (!done) {
    for (const auto& [box, name] : bound_)
      if (name == column) focus(box);
    return;
  }
  refreshButtons();
  const int row = rules_.selectedRow() > 0 ? rules_.selectedRow() : rules_.list().MaxRows();
  grid_->setActiveCell(row, 1);
  // The hand that enters one record after another goes on with the next; a change goes back to the list.
  if (wasNew)
    new_->setFocus();
  else
    grid_->setFocus();
}

void RegisterForm::cancelRecord() {
  rules_.cancel();
  setBoxes({});
  refreshButtons();
  grid_->setFocus();
}

void RegisterForm::deleteRecord() {
  const int row = grid_->activeRow();
  if (!rules_.remove().done) return;
  setBoxes({});
  grid_->setActiveCell(std::min(row, rules_.list().MaxRows()), 1);
  refreshButtons();
  grid_->setFocus();
}
