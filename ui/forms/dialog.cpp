#include "ui/forms/dialog.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/forms/form_ini.h"
#include "ui/forms/guard.h"
#include "ui/forms/keys.h"
#include "ui/forms/push_button.h"

using namespace Qt::StringLiterals;

Dialog::Dialog(const QString& name, const QString& caption, Prompts& prompts, QWidget* parent)
    : QDialog(parent), prompts_(prompts) {
  setObjectName(name);
  setWindowTitle(caption);
  auto* const whole = new QVBoxLayout(this);
  whole->setContentsMargins(18, 16, 18, 14);
  whole->setSpacing(12);
  whole->setSizeConstraint(QLayout::SetFixedSize);
  body_ = new QVBoxLayout;
  body_->setSpacing(8);
  whole->addLayout(body_, 1);
  foot_ = new QHBoxLayout;
  foot_->setSpacing(8);
  whole->addLayout(foot_);
}

bool Dialog::guard(const std::function<void()>& work) {
  return guarded(prompts_, work);
}

void Dialog::enterOrder(const QList<QWidget*>& controls) {
  order_ = EnterOrder(controls);
}

QWidget* Dialog::addPanel() {
  auto* const panel = new QWidget(this);
  body_->addWidget(panel);
  return panel;
}

QLabel* Dialog::addText(const QString& text, const char* name) {
  auto* const label = new QLabel(text, this);
  label->setObjectName(QString::fromUtf8(name));
  label->setTextFormat(Qt::PlainText);
  body_->addWidget(label);
  return label;
}

QLabel* Dialog::shownValue(const char* name, const QString& text) {
  auto* const label = new QLabel(text);
  label->setObjectName(QString::fromUtf8(name));
  label->setTextFormat(Qt::PlainText);
  label->setProperty("role", u"value"_s);
  return label;
}

QPushButton* Dialog::addButton(const char* name, const QString& caption, std::function<void()> work) {
  auto* const button = new PushButton(name, caption, this);
  button->setAutoDefault(false);
  if (work) on(button, &QPushButton::clicked, std::move(work));
  if (foot_->count() == 0) foot_->addStretch(1);
  foot_->addWidget(button);
  return button;
}

QPushButton* Dialog::addDefault(const char* name, const QString& caption, std::function<void()> work) {
  default_ = addButton(name, caption, std::move(work));
  default_->setDefault(true);
  return default_;
}

QPushButton* Dialog::addLeave(const char* name, const QString& caption) {
  return addButton(name, caption, [this] { reject(); });
}

void Dialog::allowResize(const QSize& design) {
  layout()->setSizeConstraint(QLayout::SetDefaultConstraint);
  if (design.isValid()) resize(design);
}

void Dialog::reject() {
  bool may = false;
  if (guard([&] { may = mayLeave(); }) && may) QDialog::reject();
}

void Dialog::done(int result) {
  if (paths_) FormIni(*paths_).SaveFormIni(*this);
  QDialog::done(result);
}

void Dialog::keyPressEvent(QKeyEvent* event) {
  const bool enter = isEnterKey(event->key());
  if (!enter) return QDialog::keyPressEvent(event);
  if (event->modifiers() & ~Qt::KeypadModifier) return;  // not the plain key
  QWidget* const at = focusWidget();
  if (auto* const button = qobject_cast<QPushButton*>(at)) return button->click();
  if (at && order_.from(at, this) == EnterOrder::Step::Moved) return;
  if (default_ && default_->isEnabled()) default_->click();
}

void Dialog::showEvent(QShowEvent* event) {
  if (paths_ && !event->spontaneous()) FormIni(*paths_).LoadFormIni(*this);
  // Texts that came after the building, or a place remembered with smaller letters, cut no button.
  if (!event->spontaneous()) resize(size().expandedTo(sizeHint()));
  QDialog::showEvent(event);
}
