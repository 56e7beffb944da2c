#include "giro/frmPrtChange.h"

#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "master/registers/form_context.h"
#include "papers/form_correction_box.h"
#include "papers/paper_printer.h"
#include "pc/print_job.h"
#include "ui/forms/fields.h"

using namespace Qt::StringLiterals;

frmPrtChange::frmPrtChange(FormContext& context, QWidget* parent)
    : Dialog(u"frmPrtChange"_s, u"프린터 설정"_s, context.session.prompts, parent), context_(context) {
  Session& session = context_.session;
  const SlipPrinter setup = slipPrinter(session);
  lstPrt_ = new QListWidget;
  lstPrt_->setObjectName(u"LstPrt"_s);
  lstPrt_->setSpacing(1);
  if (session.printers) lstPrt_->addItems(session.printers->names());
  for (QListWidgetItem* present : lstPrt_->findItems(setup.device, Qt::MatchExactly))
    lstPrt_->setCurrentItem(present);
  QLabel* const words = addText(u"지로용지를 출력할 프린터(&R)"_s);
  words->setBuddy(lstPrt_);
  words->setMargin(2);  // the key's underline has room
  body()->addWidget(lstPrt_, 1);

  Fields boxes(addPanel(), 2);
  const auto box = [&](const QString& name, const QString& text, const QString& label, const QString& unit) {
    auto* const made = correctionBox(name, text);
    made->installEventFilter(this);
    boxes.add(label, made);
    boxes.add({}, new QLabel(unit));
    return made;
  };
  txtTop_ = box(u"TxtTop"_s, setup.topText, u"위쪽 보정(&T)"_s, u"칸 (1칸 = 1/8인치, 아래로 +)"_s);
  txtLeft_ = box(u"TxtLeft"_s, setup.leftText, u"왼쪽 보정(&L)"_s, u"칸 (1칸 = 1/15인치, 오른쪽으로 +)"_s);

  QPushButton* const set = addButton("BtnPrt", u"설정(&S)"_s, [this] { save(); });
  addLeave("BtnExit", u"닫기(&X)"_s);
  enterOrder({txtTop_, txtLeft_, set});
  allowResize({420, 330});
  lstPrt_->setFocus();
}

/** A box left empty becomes "0". */
bool frmPrtChange::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusOut) {
    auto* box = static_cast<QLineEdit*>(watched);
    if (box->text().isEmpty()) box->setText(u"0"_s);
  }
  return Dialog::eventFilter(watched, event);
}

void frmPrtChange::save() {
  // The line under the cursor is not chosen yet: the list puts the cursor on its first line by itself.
  const auto chosen = lstPrt_->selectedItems();
  saveSlipPrinter(context_.session, chosen.isEmpty() ? QString() : chosen.first()->text(), txtTop_->text(),
                  txtLeft_->text());
}
