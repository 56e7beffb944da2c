#include "backup/FrmArchiveSettings.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include "pc/pc.h"

using namespace Qt::StringLiterals;

namespace backup {

FrmArchiveSettings::FrmArchiveSettings(pc::Pc& pc, Prompts& prompts, QWidget* parent)
    : QDialog(parent), pc_(pc), prompts_(prompts) {
  setObjectName(u"FrmArchiveSettings"_s);
  setWindowTitle(u"백업 설정"_s);
  build();
  const Settings stored = readSettings(pc_);
  txtFolder_->setText(stored.folder);
  numKeep_->setValue(stored.keep);
  txtServer_->setText(stored.serverFolder);
  txtCommand_->setText(stored.serverCommand);
  chkRemind_->setChecked(stored.remindAtExit);
  txtFolder_->setFocus();
}

QWidget* FrmArchiveSettings::folderBox(QLineEdit*& box, const char* name) {
  auto* both = new QWidget;
  auto* row = new QHBoxLayout(both);
  row->setContentsMargins(0, 0, 0, 0);
  box = new QLineEdit;
  box->setObjectName(QString::fromLatin1(name));
  auto* find = new QPushButton(u"찾기..."_s);
  find->setAutoDefault(false);
  connect(find, &QPushButton::clicked, this, [this, box] {
    const QString chosen =
        QFileDialog::getExistingDirectory(this, u"폴더 선택"_s, pc_.paths.native(box->text()));
    if (!chosen.isEmpty()) box->setText(chosen);
  });
  row->addWidget(box, 1);
  row->addWidget(find);
  return both;
}

void FrmArchiveSettings::build() {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(18, 16, 18, 14);
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(8);
  int line = 0;
  const auto row = [&](const QString& caption, QWidget* box, QWidget* buddy) {
    auto* label = new QLabel(caption);
    label->setBuddy(buddy);
    grid->addWidget(label, line, 0, Qt::AlignRight);
    grid->addWidget(box, line++, 1);
  };
  const auto hint = [&](const QString& text) {
    auto* label = new QLabel(text);
    label->setProperty("role", u"faint"_s);
    label->setWordWrap(true);
    grid->addWidget(label, line++, 1);
  };
  QWidget* const folder = folderBox(txtFolder_, "txtFolder");
  row(u"백업 폴더(&F)"_s, folder, txtFolder_);
  numKeep_ = new QSpinBox;
  numKeep_->setObjectName(u"numKeep"_s);
  numKeep_->setRange(1, mostKept);
  numKeep_->setSuffix(u" 개"_s);
  numKeep_->setFixedWidth(100);
  row(u"보관할 백업(&K)"_s, numKeep_, numKeep_);
  QWidget* const server = folderBox(txtServer_, "txtServer");
  row(u"서버 폴더(&V)"_s, server, txtServer_);
  txtCommand_ = new QLineEdit;
  txtCommand_->setObjectName(u"txtCommand"_s);
  row(u"서버 명령(&C)"_s, txtCommand_, txtCommand_);
  hint(
      u"서버 명령은 백업 뒤에 실행합니다. %1 자리에 백업 파일의 경로가 들어갑니다.\n예: scp %1 shop@server:backup/"_s);
  chkRemind_ = new QCheckBox(u"해온판매를 끝낼 때 백업할지 묻기(&M)"_s);
  chkRemind_->setObjectName(u"chkRemind"_s);
  grid->addWidget(chkRemind_, line++, 1);

  auto* ok = new QPushButton(u"저장(&O)"_s);
  ok->setObjectName(u"btnSave"_s);
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, [this] { save(); });
  auto* leave = new QPushButton(u"취소(&X)"_s);
  leave->setAutoDefault(false);
  connect(leave, &QPushButton::clicked, this, &QDialog::reject);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(leave);
  grid->addLayout(buttons, line, 0, 1, 2);
  grid->setColumnStretch(1, 1);
  setMinimumWidth(600);
}

Settings FrmArchiveSettings::typed() const {
  return {.folder = txtFolder_->text(),
          .keep = numKeep_->value(),
          .serverFolder = txtServer_->text(),
          .serverCommand = txtCommand_->text(),
          .remindAtExit = chkRemind_->isChecked()};
}

void FrmArchiveSettings::save() {
  const Settings settings = typed();
  if (settings.folder.trimmed().isEmpty()) {
    prompts_.MsgWarn(u"백업 폴더를 입력하십시오."_s, windowTitle());
    txtFolder_->setFocus();
    return;
  }
  const QString line = settings.serverCommand.trimmed();
  if (!line.isEmpty() && !line.contains(u"%1"_s)) {
    prompts_.MsgWarn(u"서버 명령에는 백업 파일의 자리 %1 이 있어야 합니다."_s, windowTitle());
    txtCommand_->setFocus();
    return;
  }
  if (!writeSettings(pc_, settings)) {
    prompts_.MsgWarn(u"설정을 저장할 수 없습니다. 디스크와 쓰기 권한을 확인하십시오."_s, windowTitle());
    return;
  }
  accept();
}

}  // namespace backup
