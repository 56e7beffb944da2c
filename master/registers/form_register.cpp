#include "master/registers/form_register.h"

#include <QGroupBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

RegisterForm::RegisterForm(const QString& name, const QString& caption, Session& session, QWidget* parent)
    : Form(name, caption, session, parent) {
  new_ = addButton("BtnNew", u"신규(&N)"_s, [this] { page()->newRecord(); });
  save_ = addButton("BtnSave", u"저장(&S)"_s, [this] { saveRecord(); });
  cancel_ = addButton("BtnCancel", u"취소(&Q)"_s, [this] { page()->cancelRecord(); });
  delete_ = addButton("BtnDel", u"삭제(&D)"_s, [this] { page()->deleteRecord(); });
  exit_ = addButton("BtnExit", u"닫기(&X)"_s, [this] { (parentWidget() ? parentWidget() : this)->close(); });
  onKey(Qt::Key_Escape, [this] { leaveBoxes(); });
}

RegisterPage* RegisterForm::addPage(RegisterRules& rules, const char* gridName, const QString& listHelp,
                                    const char* tabs, const QString& title) {
  auto* const added = new RegisterPage(*this, rules, gridName);
  added->setListHelp(listHelp);
  added->stateChanged = [this] { refreshButtons(); };
  added->recordShown = [this] { recordShown(); };
  added->deleteAsked = [this] { page()->deleteRecord(); };
  pages_ << added;  // before the first tab comes up and asks for its page
  if (!tabs) {
    body()->addWidget(added, 1);
  } else {
    if (!tabs_) {
      tabs_ = new QTabWidget(this);
      tabs_->setObjectName(QString::fromUtf8(tabs));
      body()->addWidget(tabs_, 1);
      connect(tabs_, &QTabWidget::currentChanged, this, [this] {
        refreshButtons();
        grid()->setFocus();
      });
    }
    tabs_->addTab(added, title);
  }
  return added;
}

RegisterPage* RegisterForm::page() const {
  return pages_.value(tabs_ ? tabs_->currentIndex() : 0);
}

void RegisterForm::withoutDeleteButton() {
  delete_->hide();
}

void RegisterForm::start() {
  QList<QWidget*> order;
  for (const RegisterPage* each : pages_) order << each->bound();
  enterOrder(order << save_);
  body()->addWidget(buttonRow({new_, save_, cancel_, delete_, nullptr, exit_}));
  for (RegisterPage* each : pages_) guard([each] { each->load(); });
  if (page()->rules().list().MaxRows() > 0)
    grid()->setFocus();
  else
    new_->setFocus();
}

/** Back to the list; in the list itself the file is read anew. */
void RegisterForm::leaveBoxes() {
  if (page()->mayDrop()) page()->cancelRecord();
}

bool RegisterForm::mayClose() {
  for (RegisterPage* const each : pages_) {
    if (each->mayDrop()) continue;
    if (tabs_) tabs_->setCurrentWidget(each);
    return false;
  }
  return true;
}

void RegisterForm::saveRecord() {
  const bool wasNew = page()->rules().isNew();
  bool saved = false;
  if (!guard([&] { saved = page()->saveRecord(); })) page()->focusApostrophe();
  if (!saved) return;
  // The hand that enters one record after another goes on with the next; a change goes back to the list.
  if (wasNew)
    new_->setFocus();
  else
    grid()->setFocus();
}

void RegisterForm::refreshButtons() {
  if (!page()) return;
  const RegisterRules& rules = page()->rules();
  new_->setEnabled(!rules.isNew());
  cancel_->setEnabled(rules.isNew() || rules.selectedRow() > 0);
  delete_->setEnabled(!rules.isNew());
}
