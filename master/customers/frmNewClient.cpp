#include "master/customers/frmNewClient.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include "master/customers/new_client.h"
#include "ui/forms/form.h"
#include "ui/forms/keys.h"

frmNewClient::frmNewClient(Session& session, Pickers& pickers, const QString& searchText, QWidget* parent)
    : Dialog("frmNewClient", "신규고객 등록", session.prompts, parent),
      form_(new Form("frmNewClient", windowTitle(), session, this)) {
  layout()->setContentsMargins(0, 0, 0, 0);
  allowResize();
  body()->addWidget(form_);

  QGroupBox* const panel = form_->addGroup({});
  boxes_ =
      std::make_unique<ClientBoxes>(*form_, pickers, panel, HouseStyle::Individual, ClientBoxes::Set::Short);
  save_ = form_->addButton("BtnSave", "저장(&S)", [this] { save(); });
  auto* const leave = form_->addButton("BtnExit", "닫기(&X)", [this] { reject(); });
  form_->body()->addWidget(panel);
  form_->body()->addWidget(form_->buttonRow({save_, leave}));
  form_->enterOrder(boxes_->order() + QList<QWidget*>{save_});
  for (QWidget* const box : boxes_->order()) box->installEventFilter(this);
  form_->onKey(Qt::Key_F12, [this] { boxes_->f12(focusWidget()); });
  form_->onKey(Qt::ControlModifier, Qt::Key_F4, [this] { reject(); });  // not the form within it alone

  const ClientEntry entry = newClientFrom(searchText);
  boxes_->show(entry);
  shown_ = boxes_->entry();
  // The searched text stands in its box already; the hand goes to what is still missing.
  Form::focus(entry.name.isEmpty() ? boxes_->first() : boxes_->at(ClientBox::Tel));
  setMinimumWidth(72 * fontMetrics().horizontalAdvance(u'0'));
}

std::optional<ClientChoice> frmNewClient::enter() {
  exec();
  return registered_;
}

bool frmNewClient::mayLeave() {
  return boxes_->entry() == shown_ ||
         prompts().MsgAsk("입력한 내용을 저장하지 않았습니다!\n저장하지 않고 버리시겠습니까?", "고객 관리자",
                          false);
}

void frmNewClient::save() {
  const ClientEntry entry = boxes_->entry();
  ClientSaved saved;
  if (!form_->guard([&] { saved = saveNewClient(form_->session(), entry); })) {
    return boxes_->focusApostrophe();
  }
  if (saved.done) {
    registered_ = ClientChoice{saved.code, DisplayName(entry)};
    return accept();
  }
  if (QWidget* const box = boxes_->at(saved.focus)) Form::focus(box);
}

bool frmNewClient::eventFilter(QObject* watched, QEvent* event) {
  auto* const box = qobject_cast<QWidget*>(watched);
  if (box && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (isEnterKey(key) && boxes_->enter(box)) return true;
  }
  return Dialog::eventFilter(watched, event);
}
