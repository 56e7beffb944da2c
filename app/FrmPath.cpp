#include "app/FrmPath.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "app/FrmNetDrive.h"
#include "master/registers/form_context.h"

using namespace Qt::StringLiterals;

FrmPath::FrmPath(FormContext& context, QWidget* parent)
    : FrmPath(
          context.session, [&context] { context.commands.openForm(u"FrmNetDrive"_s); }, parent) {
  connect(btnSet_, &QPushButton::clicked, this, [this] { set(); });
  pnlData_->hide();
}

FrmPath::FrmPath(Session& session, QWidget* parent)
    : FrmPath(
          session, [this, &session] { FrmNetDrive(session, this).exec(); }, parent) {
  setWindowTitle(u"다른 폴더 선택"_s);
  btnSet_->setText(u"이 폴더 사용(&S)"_s);
  connect(btnSet_, &QPushButton::clicked, this, [this] { use(); });
}

FrmPath::FrmPath(Session& session, std::function<void()> openNetwork, QWidget* parent)
    : QDialog(parent), rules_(session) {
  setObjectName(u"FrmPath"_s);
  setWindowTitle(u"작업경로 설정"_s);
  drive1_ = new QComboBox;
  drive1_->setObjectName(u"Drive1"_s);
  dir1_ = new QListWidget;
  dir1_->setObjectName(u"Dir1"_s);
  pnlPath_ = new QLabel;
  pnlPath_->setObjectName(u"pnlPath"_s);
  pnlData_ = new QLabel;
  pnlData_->setObjectName(u"pnlData"_s);
  for (QLabel* panel : {pnlPath_, pnlData_}) {
    panel->setProperty("role", u"value"_s);
    panel->setTextFormat(Qt::PlainText);
  }

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(16, 14, 16, 14);
  grid->setSpacing(8);
  grid->addWidget(drive1_, 0, 0);
  grid->addWidget(dir1_, 1, 0, 6, 1);
  grid->addWidget(pnlPath_, 7, 0, 1, 2);
  grid->addWidget(pnlData_, 8, 0, 1, 2);
  grid->addWidget(button(u"새 폴더(&N)"_s, u"btnNew"_s, [this] { create(); }), 1, 1);
  grid->addWidget(button(u"폴더 삭제(&D)"_s, u"btnDelete"_s, [this] { remove(); }), 2, 1);
  grid->addWidget(button(u"네트워크(&W)..."_s, u"btnNetwork"_s,
                         [this, open = std::move(openNetwork)] {
                           open();
                           fillDrives(drive1_->currentText());
                         }),
                  3, 1);
  grid->setRowStretch(4, 1);
  btnSet_ = button(u"경로 설정(&S)"_s, u"btnSet"_s, {});
  grid->addWidget(btnSet_, 5, 1);
  grid->addWidget(button(u"닫기(&X)"_s, u"btnClose"_s, [this] { reject(); }), 6, 1);
  grid->setColumnStretch(0, 1);
  resize(470, 390);

  fillDrives(rules_.startDrive());
  const bool lost = drive1_->currentIndex() < 0;
  if (lost) drive1_->setCurrentIndex(0);
  openFolder(lost ? drive1_->currentText() + u'\\' : rules_.startFolder());
  connect(drive1_, &QComboBox::activated, this, [this] { openFolder(drive1_->currentText() + u'\\'); });
  connect(dir1_, &QListWidget::itemActivated, this, &FrmPath::enterChosen);
  connect(dir1_, &QListWidget::itemDoubleClicked, this, &FrmPath::enterChosen);
  dir1_->setFocus();
}

QPushButton* FrmPath::button(const QString& caption, const QString& name, std::function<void()> work) {
  auto* made = new QPushButton(caption);
  made->setObjectName(name);
  made->setAutoDefault(false);
  if (work) connect(made, &QPushButton::clicked, this, std::move(work));
  return made;
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
