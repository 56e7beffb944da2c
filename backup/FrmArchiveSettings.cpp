#include "backup/FrmArchiveSettings.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include "pc/pc.h"
#include "ui/forms/fields.h"
#include "ui/forms/folder_box.h"

using namespace Qt::StringLiterals;

namespace backup {

FrmArchiveSettings::FrmArchiveSettings(pc::Pc& pc, Prompts& prompts, QWidget* parent)
    : Dialog(u"FrmArchiveSettings"_s, u"백업 설정"_s, prompts, parent), pc_(pc) {
  build();
  const Settings stored = readSettings(pc_);
  txtFolder_->setText(stored.folder);
  numKeep_->setValue(stored.keep);
  txtServer_->setText(stored.serverFolder);
  txtCommand_->setText(stored.serverCommand);
  chkRemind_->setChecked(stored.remindAtExit);
  txtFolder_->setFocus();
}

void FrmArchiveSettings::build() {
  QWidget* const panel = addPanel();
  panel->setMinimumWidth(580);
  Fields boxes(panel, 1);
  const auto folder = [&](const char* name, const QString& label) {
    auto* const box = new FolderBox(
        name, [this](const QString& typed) { return pc_.paths.native(typed); }, panel);
    boxes.add(label, box);
    return box;
  };
  txtFolder_ = folder("txtFolder", u"백업 폴더(&F)"_s);
  numKeep_ = new QSpinBox(panel);
  numKeep_->setObjectName(u"numKeep"_s);
  numKeep_->setRange(1, mostKept);
  numKeep_->setSuffix(u" 개"_s);
  numKeep_->setFixedWidth(100);
  boxes.add(u"보관할 백업(&K)"_s, numKeep_);
  txtServer_ = folder("txtServer", u"서버 폴더(&V)"_s);
  txtCommand_ = boxes.text("txtCommand", u"서버 명령(&C)"_s);
  auto* const hint = new QLabel(
      u"서버 명령은 백업 뒤에 실행합니다. %1 자리에 백업 파일의 경로가 들어갑니다.\n예: scp %1 shop@server:backup/"_s,
      panel);
  hint->setProperty("role", u"faint"_s);
  boxes.add({}, hint);
  chkRemind_ = boxes.check("chkRemind", u"해온판매를 끝낼 때 백업할지 묻기(&M)"_s);
  addDefault("btnSave", u"저장(&O)"_s, [this] { save(); });
  addLeave("btnCancel", u"취소(&X)"_s);
  enterOrder({txtFolder_->line(), numKeep_, txtServer_->line(), txtCommand_, chkRemind_});
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
    prompts().MsgWarn(u"백업 폴더를 입력하십시오."_s, windowTitle());
    txtFolder_->setFocus();
    return;
  }
  const QString line = settings.serverCommand.trimmed();
  if (!line.isEmpty() && !line.contains(u"%1"_s)) {
    prompts().MsgWarn(u"서버 명령에는 백업 파일의 자리 %1 이 있어야 합니다."_s, windowTitle());
    txtCommand_->setFocus();
    return;
  }
  if (!writeSettings(pc_, settings)) {
    prompts().MsgWarn(u"설정을 저장할 수 없습니다. 디스크와 쓰기 권한을 확인하십시오."_s, windowTitle());
    return;
  }
  accept();
}

}  // namespace backup
