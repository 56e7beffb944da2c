#include "app/FrmPath.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/FrmNetDrive.h"
#include "master/registers/form_context.h"

using namespace Qt::StringLiterals;

FrmPath::FrmPath(FormContext& context, QWidget* parent)
    : FrmPath(
          context.session, [&context] { context.commands.openForm(u"FrmNetDrive"_s); }, parent) {
  on(btnSet_, &QPushButton::clicked, [this] { set(); });
  pnlData_->hide();
}

FrmPath::FrmPath(Session& session, QWidget* parent)
    : FrmPath(
          session, [this, &session] { FrmNetDrive(session, this).exec(); }, parent) {
  setWindowTitle(u"다른 폴더 선택"_s);
  btnSet_->setText(u"이 폴더 사용(&S)"_s);
  on(btnSet_, &QPushButton::clicked, [this] { use(); });
}

FrmPath::FrmPath(Session& session, std::function<void()> openNetwork, QWidget* parent)
    : Dialog(u"FrmPath"_s, u"작업경로 설정"_s, session.prompts, parent), rules_(session) {
  drive1_ = new QComboBox;
  drive1_->setObjectName(u"Drive1"_s);
  dir1_ = new QListWidget;
  dir1_->setObjectName(u"Dir1"_s);
  pnlPath_ = shownValue("pnlPath");
  pnlData_ = shownValue("pnlData");

  auto* grid = new QGridLayout;
  grid->setSpacing(8);
  grid->addWidget(drive1_, 0, 0);
  grid->addWidget(dir1_, 1, 0, 6, 1);
  grid->addWidget(pnlPath_, 7, 0, 1, 2);
  grid->addWidget(pnlData_, 8, 0, 1, 2);
  grid->addWidget(addButton("btnNew", u"새 폴더(&N)"_s, [this] { create(); }), 1, 1);
  grid->addWidget(addButton("btnDelete", u"폴더 삭제(&D)"_s, [this] { remove(); }), 2, 1);
  grid->addWidget(addButton("btnNetwork", u"네트워크(&W)..."_s,
                            [this, open = std::move(openNetwork)] {
                              open();
                              fillDrives(drive1_->currentText());
                            }),
                  3, 1);
  grid->setRowStretch(4, 1);
  btnSet_ = addButton("btnSet", u"경로 설정(&S)"_s, {});
  grid->addWidget(btnSet_, 5, 1);
  grid->addWidget(addLeave("btnClose", u"닫기(&X)"_s), 6, 1);
  grid->setColumnStretch(0, 1);
  body()->addLayout(grid);
  allowResize({470, 390});

  fillDrives(rules_.startDrive());
  const bool lost = drive1_->currentIndex() < 0;
  if (lost) drive1_->setCurrentIndex(0);
  openFolder(lost ? drive1_->currentText() + u'\\' : rules_.startFolder());
  on(drive1_, &QComboBox::activated, [this] { openFolder(drive1_->currentText() + u'\\'); });
  on(dir1_, &QListWidget::itemActivated, [this] { enterChosen(); });
  dir1_->setFocus();
}

void FrmPath::fillDrives(const QString& chosen) {
  drive1_->clear();
  drive1_->addItems(rules_.drives());
  const int place = drive1_->findText(chosen, Qt::MatchFixedString);
  drive1_->setCurrentIndex(place);
}

void FrmPath::openFolder(const QString& path) {
  folder_ = path;
  pnlPath_->setText(path);
  pnlData_->setText(u"자료 "_s + rules_.dataIn(path) +
                    (rules_.holdsData(path) ? u"  (자료 파일 있음)"_s : u"  (자료 파일 없음)"_s));
  dir1_->clear();
  if (DataFolder::parentOf(path) != path) dir1_->addItem(u".."_s);
  dir1_->addItems(rules_.folders(path));
  dir1_->setCurrentRow(0);
}

void FrmPath::enterChosen() {
  const auto* item = dir1_->currentItem();
  if (!item) return;
  openFolder(item->text() == ".."_L1 ? DataFolder::parentOf(folder_)
                                     : DataFolder::child(folder_, item->text()));
}

void FrmPath::create() {
  const QString made = rules_.create(folder_);
  if (!made.isEmpty()) openFolder(made);
}

void FrmPath::remove() {
  if (rules_.remove(folder_)) openFolder(DataFolder::parentOf(folder_));
}

void FrmPath::set() {
  if (!rules_.set(folder_)) return accept();
  // The handles are closed: nothing behind this window may run again.
  QCoreApplication::exit(0);
}

void FrmPath::use() {
  rules_.use(folder_);
  accept();
}
