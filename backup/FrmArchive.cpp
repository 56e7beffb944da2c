#include "backup/FrmArchive.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

#include "backup/FrmArchiveSettings.h"
#include "pc/pc.h"
#include "ui/grid/spread.h"

using namespace Qt::StringLiterals;

namespace backup {

namespace {
enum ArchiveCol { Made = 1, Size, Place, Name };
}

FrmArchive::FrmArchive(pc::Pc& pc, Prompts& prompts, QWidget* parent)
    : QDialog(parent), pc_(pc), prompts_(prompts), compressor_(pc, prompts) {
  setObjectName(u"FrmArchive"_s);
  setWindowTitle(u"데이터 압축"_s);
  compressor_.over = this;
  rows_.setColumns({{.header = u"백업한 때"_s, .width = 20, .align = CellAlign::Center, .locked = true},
                    {.header = u"크기"_s, .width = 11, .align = CellAlign::Right, .locked = true},
                    {.header = u"곳"_s, .width = 9, .align = CellAlign::Center, .locked = true},
                    {.header = u"파일"_s, .width = 42, .locked = true}});
  build();
  showShelf();
}

QPushButton* FrmArchive::button(const char* name, const QString& caption, std::function<void()> work) {
  auto* made = new QPushButton(caption);
  made->setObjectName(QString::fromLatin1(name));
  made->setAutoDefault(false);
  connect(made, &QPushButton::clicked, this, std::move(work));
  return made;
}

void FrmArchive::build() {
  auto* places = new QGridLayout;
  places->setHorizontalSpacing(10);
  int line = 0;
  for (const auto& [label, panel, name] : {std::tuple{u"자료 폴더"_s, &pnlData_, "pnlData"},
                                           std::tuple{u"백업 폴더"_s, &pnlShelf_, "pnlShelf"}}) {
    *panel = new QLabel;
    (*panel)->setObjectName(QString::fromLatin1(name));
    (*panel)->setProperty("role", u"value"_s);
    (*panel)->setTextFormat(Qt::PlainText);
    places->addWidget(new QLabel(label), line, 0);
    places->addWidget(*panel, line++, 1);
  }
  places->setColumnStretch(1, 1);

  auto* backups = new QHBoxLayout;
  backups->setSpacing(8);
  backups->addWidget(button("btnBackUp", u"이 PC에 백업(&B)"_s, [this] { backUp(Series::Books, false); }));
  backups->addWidget(button("btnServer", u"서버에 백업(&V)"_s, [this] { backUp(Series::Books, true); }));
  backups->addWidget(button("btnSupport", u"A/S용 백업(&A)"_s, [this] { backUp(Series::Support, false); }));
  backups->addStretch();
  backups->addWidget(button("btnSettings", u"설정(&S)..."_s, [this] { changeSettings(); }));

  SpArchive_ = new Spread(rows_);
  SpArchive_->setObjectName(u"SpArchive"_s);
  SpArchive_->setFillColumn(Name);
  SpArchive_->setMinimumSize(720, 260);
  SpArchive_->enterPressed = [this](int, int) { restoreChosen(); };
  SpArchive_->doubleClicked = [this](int, int) { restoreChosen(); };

  auto* restores = new QHBoxLayout;
  restores->setSpacing(8);
  restores->addWidget(button("btnRestore", u"고른 백업으로 되돌리기(&R)..."_s, [this] { restoreChosen(); }));
  restores->addWidget(button("btnOther", u"다른 파일에서(&O)..."_s, [this] { restoreOther(); }));
  restores->addWidget(button("btnFolder", u"백업 폴더 열기(&F)"_s, [this] { openFolder(); }));
  restores->addStretch();
  restores->addWidget(button("btnClose", u"닫기(&X)"_s, [this] { accept(); }));

  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(18, 16, 18, 14);
  rows->setSpacing(10);
  rows->addLayout(places);
  rows->addLayout(backups);
  rows->addWidget(SpArchive_, 1);
  rows->addLayout(restores);
  findChild<QPushButton*>(u"btnBackUp"_s)->setFocus();
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
  if (FrmArchiveSettings(pc_, prompts_, this).exec() == QDialog::Accepted) showShelf();
}

void FrmArchive::openFolder() {
  const QString folder = readSettings(pc_).folder;
  if (!pc_.paths.makeFolder(folder) || !pc_.process.open(folder))
    prompts_.MsgInfo(u"폴더를 여는 프로그램이 없습니다.\n"_s + pc_.paths.native(folder), windowTitle());
}

}  // namespace backup
