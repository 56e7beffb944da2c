#include "giro/frmPrtChange.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "master/registers/form_context.h"
#include "papers/form_correction_box.h"
#include "papers/paper_printer.h"
#include "pc/print_job.h"
#include "ui/forms/guard.h"

using namespace Qt::StringLiterals;

frmPrtChange::frmPrtChange(FormContext& context, QWidget* parent) : QDialog(parent), context_(context) {
  setObjectName(u"frmPrtChange"_s);
  setWindowTitle(u"프린터 설정"_s);
  Session& session = context_.session;
  const SlipPrinter setup = slipPrinter(session);
  lstPrt_ = new QListWidget;
  lstPrt_->setObjectName(u"LstPrt"_s);
  lstPrt_->setSpacing(1);
  if (session.printers) lstPrt_->addItems(session.printers->names());
  for (QListWidgetItem* present : lstPrt_->findItems(setup.device, Qt::MatchExactly))
    lstPrt_->setCurrentItem(present);

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(16, 14, 16, 14);
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(8);
  auto* listLabel = new QLabel(u"지로용지를 출력할 프린터(&R)"_s);
  listLabel->setBuddy(lstPrt_);
  grid->addWidget(listLabel, 0, 0, 1, 3);
  grid->addWidget(lstPrt_, 1, 0, 1, 3);
  const auto box = [&](int row, const QString& name, const QString& text, const QString& label,
                       const QString& unit) {
    auto* made = correctionBox(name, text);
    made->installEventFilter(this);
    connect(made, &QLineEdit::returnPressed, this, [this] { focusNextChild(); });
    auto* words = new QLabel(label);
    words->setBuddy(made);
    grid->addWidget(words, row, 0, Qt::AlignRight);
    grid->addWidget(made, row, 1);
    grid->addWidget(new QLabel(unit), row, 2);
    return made;
  };
  txtTop_ = box(2, u"TxtTop"_s, setup.topText, u"위쪽 보정(&T)"_s, u"칸 (1칸 = 1/8인치, 아래로 +)"_s);
  txtLeft_ = box(3, u"TxtLeft"_s, setup.leftText, u"왼쪽 보정(&L)"_s, u"칸 (1칸 = 1/15인치, 오른쪽으로 +)"_s);

  auto* set = new QPushButton(u"설정(&S)"_s);
  set->setObjectName(u"BtnPrt"_s);
  auto* exit = new QPushButton(u"닫기(&X)"_s);
  exit->setObjectName(u"BtnExit"_s);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  buttons->addStretch();
  for (QPushButton* each : {set, exit}) {
    each->setAutoDefault(false);
    buttons->addWidget(each);
  }
  grid->addLayout(buttons, 4, 0, 1, 3);
  grid->setColumnStretch(2, 1);
  connect(set, &QPushButton::clicked, this, [this] { save(); });
  connect(exit, &QPushButton::clicked, this, &QDialog::reject);
  resize(420, 330);
  lstPrt_->setFocus();
}

/** A box left empty becomes "0". */
bool frmPrtChange::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusOut) {
    auto* box = static_cast<QLineEdit*>(watched);
    if (box->text().isEmpty()) box->setText(u"0"_s);
  }
  return QDialog::eventFilter(watched, event);
}

void frmPrtChange::save() {
  // The line under the cursor is not chosen yet: the list puts the cursor on its first line by itself.
  const auto chosen = lstPrt_->selectedItems();
  guarded(context_.session.prompts, [&] {
    saveSlipPrinter(context_.session, chosen.isEmpty() ? QString() : chosen.first()->text(), txtTop_->text(),
                    txtLeft_->text());
  });
}
