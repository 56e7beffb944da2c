#include "links/FrmSeeIDStanbyList.h"

#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "store/settings_table.h"

using namespace Qt::StringLiterals;

FrmSeeIDStanbyList::FrmSeeIDStanbyList(Session& session, WaitingList& waiting, QWidget* parent)
    : Dialog(u"FrmSeeIDStanbyList"_s, u"발신번호 처리 대기"_s, session.prompts, parent),
      settings_(session.pc.settings),
      waiting_(waiting) {
  setWindowFlags(Qt::Window);
  addText(u"자동 발신번호 처리 대기 목록"_s);
  List1_ = new QListWidget(this);
  List1_->setObjectName(u"List1"_s);
  List1_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  body()->addWidget(List1_);
  auto* const btnDel = addButton("btnDel", u"삭제(&E)"_s, [this] { deleteSelected(); });
  addButton("btnAllDel", u"전체삭제(&A)"_s, [this] { waiting_.clear(); });
  addButton("Command1", u"test"_s, [this] { askTestEntry(); })->hide();
  connect(new QShortcut(Qt::Key_Delete, this), &QShortcut::activated, btnDel, &QPushButton::click);
  allowResize({320, 280});

  const QPoint stored(settings_.read(setting::WaitingX).toInt(), settings_.read(setting::WaitingY).toInt());
  if (stored.x() >= 0 && stored.y() >= 0) move(stored);
  waiting_.changed = [this] { showEntries(); };
  showEntries();
}

FrmSeeIDStanbyList::~FrmSeeIDStanbyList() {
  waiting_.changed = {};
}

void FrmSeeIDStanbyList::bringToFront() {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void FrmSeeIDStanbyList::done(int result) {
  if (!isMinimized() && x() >= 0 && y() >= 0) {
    settings_.write(setting::WaitingX, QString::number(x()));
    settings_.write(setting::WaitingY, QString::number(y()));
  }
  Dialog::done(result);
}

void FrmSeeIDStanbyList::showEntries() {
  QStringList chosen;
  for (const QListWidgetItem* item : List1_->selectedItems()) chosen << item->text();
  List1_->clear();
  List1_->addItems(waiting_.entries());
  for (int row = 0; row < List1_->count(); ++row)
    if (chosen.contains(List1_->item(row)->text())) List1_->item(row)->setSelected(true);
}

void FrmSeeIDStanbyList::deleteSelected() {
  QList<int> rows;
  for (const QModelIndex& index : List1_->selectionModel()->selectedRows()) rows << index.row();
  if (rows.isEmpty()) {
    prompts().MsgInfo(u"삭제할 항목을 선택해 주세요."_s);
    return;
  }
  std::sort(rows.begin(), rows.end(), std::greater<>());
  for (int row : rows) waiting_.remove(row);
}

void FrmSeeIDStanbyList::askTestEntry() {
  const auto typed = prompts().InputBox(u"string"_s, u"test"_s, u"0111234567"_s);
  if (typed && !typed->isEmpty()) waiting_.AddStanbyNumber(*typed);
}
