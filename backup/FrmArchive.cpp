#include "backup/FrmArchive.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include "backup/FrmArchiveSettings.h"
#include "pc/pc.h"
#include "ui/forms/fields.h"
#include "ui/grid/spread.h"
#include "ui/model/column.h"

using namespace Qt::StringLiterals;

namespace backup {

namespace {
enum ArchiveCol { Made = 1, Size, Place, Name };
}

FrmArchive::FrmArchive(pc::Pc& pc, Prompts& prompts, QWidget* parent)
    : Dialog(u"FrmArchive"_s, u"데이터 압축"_s, prompts, parent), pc_(pc), compressor_(pc, prompts) {
  compressor_.over = this;
  rows_.setColumns(column::shown({column::centred(u"백업한 때"_s, 20), column::right(u"크기"_s, 11),
                                  column::centred(u"곳"_s, 9), column::text(u"파일"_s, 42)}));
  build();
  showShelf();
}

void FrmArchive::build() {
  Fields places(addPanel(), 1);
  pnlData_ = places.value("pnlData", u"자료 폴더"_s);
  pnlShelf_ = places.value("pnlShelf", u"백업 폴더"_s);

  auto* const backups = new QHBoxLayout;
  backups->setSpacing(8);
  QPushButton* const first =
      addButton("btnBackUp", u"이 PC에 백업(&B)"_s, [this] { backUp(Series::Books, false); });
  backups->addWidget(first);
  backups->addWidget(addButton("btnServer", u"서버에 백업(&V)"_s, [this] { backUp(Series::Books, true); }));
  backups->addWidget(
      addButton("btnSupport", u"A/S용 백업(&A)"_s, [this] { backUp(Series::Support, false); }));
  backups->addStretch();
  backups->addWidget(addButton("btnSettings", u"설정(&S)..."_s, [this] { changeSettings(); }));
  body()->addLayout(backups);

  SpArchive_ = new Spread(rows_, this);
  SpArchive_->setObjectName(u"SpArchive"_s);
  SpArchive_->setFillColumn(Name);
  SpArchive_->setMinimumSize(720, 260);
  SpArchive_->guard = [this](const std::function<void()>& work) { return guard(work); };
  SpArchive_->enterPressed = [this](int, int) { restoreChosen(); };
  SpArchive_->doubleClicked = [this](int, int) { restoreChosen(); };
  body()->addWidget(SpArchive_, 1);

  foot()->addWidget(addButton("btnRestore", u"고른 백업으로 되돌리기(&R)..."_s, [this] { restoreChosen(); }));
  addButton("btnOther", u"다른 파일에서(&O)..."_s, [this] { restoreOther(); });
  addButton("btnFolder", u"백업 폴더 열기(&F)"_s, [this] { openFolder(); });
  addLeave("btnClose", u"닫기(&X)"_s);
  allowResize();
  first->setFocus();
}

void FrmArchive::beginWithRestore() {
  SpArchive_->setFocus();
  if (rows_.MaxRows() > 0) SpArchive_->setActiveCell(1, Made);
}

void FrmArchive::showShelf() {
  const Settings settings = readSettings(pc_);
  pnlData_->setText(dataFolderToPack(pc_));
  pnlShelf_->setText(settings.folder + u"   (최근 "_s + QString::number(settings.keep) + u"개를 보관)"_s);
  findChild<QPushButton*>(u"btnServer"_s)->setEnabled(settings.hasServer());
  findChild<QPushButton*>(u"btnServer"_s)
      ->setToolTip(settings.hasServer() ? QString()
                                        : u"[설정]에서 서버 폴더나 서버 명령을 먼저 정하십시오."_s);
  shelf_ = archivesOf(pc_.paths, settings);
  std::vector<std::vector<QString>> lines;
  const QLocale korean(QLocale::Korean);
  for (const ShelfArchive& archive : shelf_)
    lines.push_back({archive.made.toString(u"yyyy-MM-dd HH:mm:ss"_s),
                     korean.formattedDataSize(archive.bytes, 1, QLocale::DataSizeTraditionalFormat),
                     archive.onServer ? u"서버"_s : u"이 PC"_s, archive.path});
  rows_.setRows(std::move(lines));
  findChild<QPushButton*>(u"btnRestore"_s)->setEnabled(!shelf_.isEmpty());
}

void FrmArchive::restoreChosen() {
  const int row = SpArchive_->activeRow();
  if (row >= 1 && row <= shelf_.size()) restore(shelf_[row - 1].path);
}

void FrmArchive::restoreOther() {
  const QString chosen = QFileDialog::getOpenFileName(
      this, u"되돌릴 백업 파일"_s, pc_.paths.native(readSettings(pc_).folder), u"백업 파일 (*.zip)"_s);
  if (!chosen.isEmpty()) restore(chosen);
}

void FrmArchive::restore(const QString& archive) {
  restored_ = compressor_.restore(archive) || restored_;
  showShelf();
  SpArchive_->setFocus();
}

void FrmArchive::backUp(Series series, bool toServer) {
  compressor_.backUp(series, toServer, false);
  showShelf();
}

void FrmArchive::changeSettings() {
  if (FrmArchiveSettings(pc_, prompts(), this).exec() == QDialog::Accepted) showShelf();
}

void FrmArchive::openFolder() {
  const QString folder = readSettings(pc_).folder;
  if (!pc_.paths.makeFolder(folder) || !pc_.process.open(folder))
    prompts().MsgInfo(u"폴더를 여는 프로그램이 없습니다.\n"_s + pc_.paths.native(folder), windowTitle());
}

}  // namespace backup
