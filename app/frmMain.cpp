#include "app/frmMain.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QDialog>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>

#include "app/company_profile.h"
#include "app/first_steps.h"
#include "app/form_child_window.h"
#include "app/form_ground.h"
#include "app/form_table.h"
#include "app/form_tool_button.h"
#include "app/form_year_end.h"
#include "app/frame_rules.h"
#include "app/move_in_start.h"
#include "backup/settings.h"
#include "links/FrmSeeIDOptions.h"
#include "links/FrmSeeIDStanbyList.h"
#include "links/caller.h"
#include "links/companion_tools.h"
#include "links/form_see_id_port.h"
#include "links/frmMsgBackUp.h"
#include "links/modBackUp.h"
#include "ui/forms/form.h"
#include "ui/forms/guard.h"
#include "ui/forms/style.h"

using namespace Qt::StringLiterals;

frmMain::frmMain(Session& session, Pickers& pickers, QWidget* parent)
    : QMainWindow(parent),
      session_(session),
      waiting_(std::make_unique<WaitingList>(session.pc.clock)),
      ports_{std::make_unique<SeeIdPort>(session.pc.paths), std::make_unique<SeeIdPort>(session.pc.paths)},
      caller_(std::make_unique<Caller>(session, Caller::Controls{ports_[0].get(), ports_[1].get()}, *waiting_,
                                       [this] { return dynamic_cast<CallerTarget*>(activeForm()); })),
      context_{session, pickers, *this, *waiting_},
      ground_(new Ground(session, this)) {
  setObjectName(u"frmMain"_s);
  setWindowTitle(mainWindowTitle());
  setCentralWidget(ground_);
  ground_->hiddenCommand = [this](Qt::KeyboardModifiers keys) { return hiddenCommand(keys); };
  buildMenus();
  buildToolBar();
  buildStatusLine();
  resize(1200, 800);
  refresh();
  session_.profileChanged = [this] { refresh(); };
  for (auto& port : ports_)
    port->onEvent = [this](int state, const QString& number) {
      guard([&] { caller_->deviceEvent(state, number); });
    };
}

frmMain::~frmMain() {
  session_.profileChanged = {};
}

void frmMain::start() {
  guard([&] { caller_->OpenSeeID(); });
  guard([&] {
    if (FirstSteps(session_).booksAreEmpty()) openForm(u"FrmFirstSteps"_s);
  });
}

// --- menu, tool bar, status line --------------------------------------------------------------------------------

void frmMain::buildMenus() {
  for (const auto& entry : commandMap()) {
    QMenu* above = menus_.value(entry.menuName());
    if (above && entry.flags & CommandEntry::Ruled) above->addSeparator();
    if (entry.kind == CommandKind::Menu) {
      QMenu* menu = above ? above->addMenu(entry.text()) : menuBar()->addMenu(entry.text());
      menu->setObjectName(entry.objectName());
      menus_[entry.objectName()] = menu;
      connect(menu, &QMenu::aboutToShow, this, &frmMain::refreshEntries);
      continue;
    }
    QAction* action = above->addAction(entry.text());
    action->setObjectName(entry.objectName());
    action->setCheckable(entry.kind == CommandKind::SeeIdEnabled);
    connect(action, &QAction::triggered, this, [this, &entry] { perform(entry); });
    actions_[entry.objectName()] = action;
  }
}

void frmMain::buildToolBar() {
  QToolBar* bar = addToolBar(u"도구모음"_s);
  bar->setObjectName(u"TBar"_s);
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->setIconSize(QSize(24, 24));
  bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  int place = 0;
  for (const auto& entry : toolButtons()) {
    const QString command = QString::fromUtf16(entry.command);
    QToolButton* const button = makeToolButton(entry, menus_.value(command), actions_.value(command));
    button->setObjectName(u"TBar"_s + QString::number(++place));
    bar->addWidget(button);
  }
  auto* gap = new QWidget;
  gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  bar->addWidget(gap);
  pnlCompany_ = new QLabel;
  pnlCompany_->setObjectName(u"PnlCompany"_s);
  pnlCompany_->setTextFormat(Qt::PlainText);
  pnlCompany_->setFont(look::textFont(12, true));
  pnlCompany_->setContentsMargins(12, 0, 14, 0);
  bar->addWidget(pnlCompany_);
}

void frmMain::buildStatusLine() {
  statusBar()->setObjectName(u"StatusMain"_s);
  statusBar()->setSizeGripEnabled(false);
  status_ = new QLabel;
  status_->setObjectName(u"PnlStatus"_s);
  status_->setTextFormat(Qt::PlainText);
  status_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // a long address widens no window
  statusBar()->addWidget(status_, 1);
  clock_ = new QLabel;
  clock_->setObjectName(u"LblClock"_s);
  clock_->setContentsMargins(8, 1, 8, 1);
  statusBar()->addPermanentWidget(clock_);
  timer1_ = new QTimer(this);
  timer1_->setObjectName(u"Timer1"_s);
  connect(timer1_, &QTimer::timeout, this, &frmMain::showClock);
  timer1_->start(1000);
  showClock();
}

void frmMain::showClock() {
  const QDateTime now = session_.pc.clock.now();
  clock_->setText(longDate(now.date()) + u' ' + clockTime(now.time()));
}

QString frmMain::whyOff(const CommandEntry& entry) const {
  if (entry.flags & CommandEntry::NeedsStock && !session_.StockEnabled)
    return entry.plainCaption() +
           u": 재고관리를 하지 않는 동안은 쓸 수 없습니다. [보조관리 - 사용자 등록]의 환경설정에서 \"관리함\"을 고르십시오."_s;
  return {};
}

void frmMain::refreshEntries() {
  for (const auto& entry : commandMap())
    if (QAction* action = actions_.value(entry.objectName())) {
      const QString reason = whyOff(entry);
      action->setEnabled(reason.isEmpty());
      action->setStatusTip(reason);
    }
  actions_[u"mnu_SeeIDEnabled"_s]->setChecked(caller_->enabled());
}

void frmMain::refresh() {
  refreshEntries();
  guard([&] { pnlCompany_->setText(CompanyProfile(session_).companyName()); });
}

// --- commands ---------------------------------------------------------------------------------------------------

bool frmMain::run(const QString& command) {
  const CommandEntry* entry = findCommand(command);
  if (!entry || entry->kind == CommandKind::Menu || !whyOff(*entry).isEmpty()) return false;
  perform(*entry);
  return true;
}

void frmMain::perform(const CommandEntry& entry) {
  auto* const front = qobject_cast<Form*>(activeForm());
  if (front && !front->commitEditors()) return;
  guard([&] {
    if (entry.flags & CommandEntry::FormsAway && !closeForms()) return;
    if (entry.flags & CommandEntry::Relink && relink) relink();
    switch (entry.kind) {
      case CommandKind::Form:
      case CommandKind::Dialog:
        if (entry.book) {
          // As a page too: a form that stands open turns to the book that was asked for.
          session_.CheckKind = *entry.book;
          openForm(entry.formName() + u':' + entry.kindOfBook());
        } else {
          openForm(entry.formName());
        }
        break;
      case CommandKind::InitStock:
        initStock(session_, context_.pickers);
        break;
      case CommandKind::CloseYear:
        runYearClose(session_, this);
        break;
      case CommandKind::Recarry:
        runRecarry(session_, this);
        break;
      case CommandKind::YearError:
        rebuildBookRows(session_);
        break;
      case CommandKind::Exit:
        close();
        break;
      case CommandKind::SeeIdEnabled:
        caller_->setEnabled(!caller_->enabled());
        break;
      case CommandKind::SeeIdTest:
        testCall();
        break;
      case CommandKind::Guide:
        if (openGuide) openGuide();
        break;
      case CommandKind::Home:
        askAndOpenAddress(u"홈페이지에 접속하시겠습니까?"_s, u"http://"_s + makerAddress());
        break;
      case CommandKind::RemoteSupport:
        askAndOpenAddress(u"원격지원서비스에 접속하시겠습니까?"_s,
                          u"http://"_s + makerAddress() + u"/remote"_s);
        break;
      case CommandKind::BackUp:
        if (RunBackup(session_, 0, false, [this] { return closeForms(); })) close();
        break;
      case CommandKind::BackUpSupport:
        if (RunBackup(session_, 2, false, [this] { return closeForms(); })) close();
        break;
      case CommandKind::BringBack:
        if (RunRestore(session_, 1, [this] { return closeForms(); })) close();
        break;
      case CommandKind::CashBook:
        RunCashbook(session_, folderForTools(session_), oldCashBook());
        break;
      case CommandKind::Schedule:
        RunSchedule(session_, folderForTools(session_), {});
        break;
      case CommandKind::MoveIn:
        if (startMoveIn(session_, [this] { return closeForms(); })) close();
        break;
      case CommandKind::Menu:
        break;
    }
  });
  refreshEntries();
}

void frmMain::askAndOpenAddress(const QString& question, const QString& address) {
  if (!session_.prompts.MsgAsk(question) || QDesktopServices::openUrl(QUrl(address))) return;
  session_.prompts.MsgInfo(
      u"이 PC에는 인터넷 화면을 여는 프로그램이 없습니다.\n주소는 아래와 같습니다.\n\n"_s + address);
}

void frmMain::testCall() {
  const QString number =
      session_.prompts
          .InputBox(u"발신번호 테스트! 테스트할 전화번호 입력( '-' 없이 숫자만 입력)"_s, u"발신번호 테스트"_s)
          .value_or(QString());
  if (!number.isEmpty()) caller_->OnCallerNumber(number);
}

bool frmMain::hiddenCommand(Qt::KeyboardModifiers keys) {
  if (keys == (Qt::ShiftModifier | Qt::ControlModifier)) {
    if (caller_->enabled()) guard([&] { testCall(); });
    return true;
  }
  if (keys == (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier)) {
    guard([&] {
      clearBook(session_, [](const std::function<void()>& work) {
        const BusyPointer busy;
        work();
      });
    });
    return true;
  }
  return false;
}

// --- children ---------------------------------------------------------------------------------------------------

bool frmMain::showOpen(const QString& base, const QString& page) {
  for (QMdiSubWindow* window : ground_->subWindowList()) {
    if (!static_cast<ChildWindow*>(window)->isOpen() || window->widget()->objectName() != base) continue;
    if (window->isMinimized()) window->showNormal();
    ground_->setActiveSubWindow(window);
    const FormEntry* entry = findForm(base);
    if (entry && entry->showPage && !page.isEmpty()) entry->showPage(window->widget(), page);
    return true;
  }
  return false;
}

bool frmMain::openCallerWindow(const QString& name) {
  if (name == "FrmSeeIDOptions"_L1) {
    FrmSeeIDOptions(session_, *caller_, this).exec();
    return true;
  }
  if (name != "FrmSeeIDStanbyList"_L1) return false;
  if (!standby_) standby_ = std::make_unique<FrmSeeIDStanbyList>(session_, *waiting_, this);
  standby_->bringToFront();
  return true;
}

bool frmMain::openForm(const QString& name) {
  const QString base = name.section(u':', 0, 0), page = name.section(u':', 1);
  if (openCallerWindow(base)) return true;
  if (showOpen(base, page)) return true;
  const FormEntry* entry = findForm(base);
  if (!entry) return false;
  QWidget* above = QApplication::activeModalWidget();
  QWidget* form = entry->create(context_, above ? above : this);
  if (entry->showPage && !page.isEmpty()) entry->showPage(form, page);
  if (auto* dialog = qobject_cast<QDialog*>(form)) {
    dialog->exec();
    delete dialog;
    return true;
  }
  // A form stands at the size it is designed for, as far as there is room.
  const QSize design = form->testAttribute(Qt::WA_Resized) ? form->size() : form->sizeHint();
  auto* window = new ChildWindow(form);
  ground_->addSubWindow(window);
  const QSize room = ground_->viewport()->size();
  window->resize((design + window->sizeHint() - form->sizeHint()).boundedTo(room));
  // The area looks for the least covered place; the whole form must still be seen without scrolling.
  window->move(qBound(0, window->x(), room.width() - window->width()),
               qBound(0, window->y(), room.height() - window->height()));
  form->show();
  window->show();
  return true;
}

bool frmMain::hasForm(const QString& name) const {
  return findForm(name) != nullptr;
}

void frmMain::showStatus(const QString& text) {
  status_->setText(text);
  status_->setProperty("role", text.isEmpty() ? QVariant() : QVariant(u"status"_s));
  status_->style()->unpolish(status_);
  status_->style()->polish(status_);
}

QWidget* frmMain::activeForm() const {
  // The current child also while another program is in front: a call then still finds the sale form.
  const QMdiSubWindow* window = ground_->currentSubWindow();
  return window ? window->widget() : nullptr;
}

// --- leaving ----------------------------------------------------------------------------------------------------

bool frmMain::closeForms() {
  ground_->closeAllSubWindows();
  return ground_->subWindowList().isEmpty();  // a child may hold a cell that it cannot save
}

bool frmMain::mayLeave() {
  if (silentClose_ || session_.ClosingForBackup) return true;
  if (!backup::readSettings(session_.pc).remindAtExit) return askToLeave(session_);
  return AskBackupOnExit(
      session_, [this] { return closeForms(); },
      [this] {
        frmMsgBackUp reminder(session_.prompts, this);
        reminder.exec();
        return reminder.Result();
      });
}

void frmMain::closeEvent(QCloseEvent* event) {
  if (!mayLeave() || !closeForms()) return event->ignore();
  timer1_->stop();
  standby_.reset();
  guard([&] { caller_->CloseSeeID(); });
  if (closed) closed();
  event->accept();
}

bool frmMain::guard(const std::function<void()>& work) {
  return guarded(session_.prompts, work);
}
