#include "links/FrmSeeIDStanbyList.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>

#include "store/settings_table.h"

using namespace Qt::StringLiterals;

FrmSeeIDStanbyList::FrmSeeIDStanbyList(Session& session, WaitingList& waiting, QWidget* parent)
    : QWidget(parent, Qt::Window), session_(session), waiting_(waiting) {
  setObjectName(u"FrmSeeIDStanbyList"_s);
  setWindowTitle(u"발신번호 처리 대기"_s);

  List1_ = new QListWidget(this);
  List1_->setObjectName(u"List1"_s);
  List1_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  auto button = [this](const char* name, const QString& caption, auto work) {
    auto* made = new QPushButton(caption, this);
    made->setObjectName(QString::fromLatin1(name));
    connect(made, &QPushButton::clicked, this, work);
    return made;
  };
  auto* btnDel = button("btnDel", u"삭제(&E)"_s, [this] { deleteSelected(); });
  auto* btnAllDel = button("btnAllDel", u"전체삭제(&A)"_s, [this] { waiting_.clear(); });
  auto* Command1 = button("Command1", u"test"_s, [this] { askTestEntry(); });
  Command1->hide();
  connect(new QShortcut(Qt::Key_Delete, this), &QShortcut::activated, btnDel, &QPushButton::click);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(btnDel);
  buttons->addWidget(btnAllDel);
  auto* all = new QVBoxLayout(this);
  all->addWidget(new QLabel(u"자동 발신번호 처리 대기 목록"_s, this));
  all->addWidget(List1_);
  all->addLayout(buttons);
  resize(320, 280);

  const pc::Settings& settings = session_.pc.settings;
  const QPoint stored(settings.read(setting::WaitingX).toInt(), settings.read(setting::WaitingY).toInt());
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

void FrmSeeIDStanbyList::closeEvent(QCloseEvent* event) {
  if (!isMinimized() && x() >= 0 && y() >= 0) {
    session_.pc.settings.write(setting::WaitingX, QString::number(x()));
    session_.pc.settings.write(setting::WaitingY, QString::number(y()));
  }
  hide();
  event->ignore();
}

void FrmSeeIDStanbyList::showEntries() {
  List1_->clear();
  List1_->addItems(waiting_.entries());
}

void FrmSeeIDStanbyList::deleteSelected() {
  QList<int> rows;
  for (const QModelIndex& index : List1_->selectionModel()->selectedRows()) rows << index.row();
  if (rows.isEmpty()) {
    session_.prompts.MsgInfo(u"삭제할 항목을 선택해 주세요."_s);
    return;
  }
  std::sort(rows.begin(), rows.end(), std::greater<>());
  for (int row : rows) waiting_.remove(row);
}

void FrmSeeIDStanbyList::askTestEntry() {
  const auto typed = session_.prompts.InputBox(u"string"_s, u"test"_s, u"0111234567"_s);
  if (typed && !typed->isEmpty()) waiting_.AddStanbyNumber(*typed);
}
