#include "app/FrmPath.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "master/form_context.h"

using namespace Qt::StringLiterals;

FrmPath::FrmPath(FormContext& context, QWidget* parent)
    : QDialog(parent), context_(context), rules_(context.session) {
  setObjectName(u"FrmPath"_s);
  setWindowTitle(u"작업경로 설정"_s);
  drive1_ = new QComboBox;
  drive1_->setObjectName(u"Drive1"_s);
  dir1_ = new QListWidget;
  dir1_->setObjectName(u"Dir1"_s);
  pnlPath_ = new QLabel;
  pnlPath_->setObjectName(u"pnlPath"_s);
  pnlPath_->setProperty("role", u"value"_s);
  pnlPath_->setTextFormat(Qt::PlainText);

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(16, 14, 16, 14);
  grid->setSpacing(8);
  grid->addWidget(drive1_, 0, 0);
  grid->addWidget(dir1_, 1, 0, 6, 1);
  grid->addWidget(pnlPath_, 7, 0, 1, 2);
  const auto button = [&](const QString& caption, const QString& name, int row, void (FrmPath::*does)()) {
    auto* made = new QPushButton(caption);
    made->setObjectName(name);
    made->setAutoDefault(false);
    connect(made, &QPushButton::clicked, this, does);
    grid->addWidget(made, row, 1);
  };
  button(u"새 폴더(&N)"_s, u"btnNew"_s, 1, &FrmPath::create);
  button(u"폴더 삭제(&D)"_s, u"btnDelete"_s, 2, &FrmPath::remove);
  auto* network = new QPushButton(u"네트워크(&W)..."_s);
  network->setObjectName(u"btnNetwork"_s);
  network->setAutoDefault(false);
  connect(network, &QPushButton::clicked, this, [this] {
    context_.commands.openForm(u"FrmNetDrive"_s);
    fillDrives(drive1_->currentText());
  });
  grid->addWidget(network, 3, 1);
  grid->setRowStretch(4, 1);
  button(u"경로 설정(&S)"_s, u"btnSet"_s, 5, &FrmPath::set);
  auto* close = new QPushButton(u"닫기(&X)"_s);
  close->setObjectName(u"btnClose"_s);
  close->setAutoDefault(false);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  grid->addWidget(close, 6, 1);
  grid->setColumnStretch(0, 1);
  resize(470, 360);

  fillDrives(rules_.startDrive());
  openFolder(rules_.startFolder());
  connect(drive1_, &QComboBox::activated, this, [this] { openFolder(drive1_->currentText() + u'\\'); });
  connect(dir1_, &QListWidget::itemActivated, this, &FrmPath::enterChosen);
  connect(dir1_, &QListWidget::itemDoubleClicked, this, &FrmPath::enterChosen);
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
