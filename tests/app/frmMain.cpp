// The main window by menu, keys and mouse.
#include "app/frmMain.h"

#include <QAction>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QStatusBar>
#include <QTimer>

#include "app/FrmPath.h"
#include "app/company_profile.h"
#include "app/frame_rules.h"
#include "billing/reading_screen.h"
#include "links/caller.h"
#include "tests/answers.h"
#include "tests/companion.h"
#include "tests/idle_context.h"
#include "tests/ui/grab.h"
#include "tests/ui/modal.h"
#include "ui/grid/spread.h"

namespace {

struct MainWindow : testing::Test, tests::StartingPc {
  tests::IdlePickers pickers;
  std::unique_ptr<frmMain> window;
  int relinked = 0, left = 0;
  MainWindow() {
    openBooks();
    remind(false);
    window = std::make_unique<frmMain>(session, pickers);
    window->relink = [this] { ++relinked; };
    window->closed = [this] { ++left; };
    tests::show(*window);
  }
  void remind(bool on) { pc.settings.SaveSetting("Backup", "설정", "종료알림", on ? "1" : "0"); }
  QAction* entry(const char* name) const { return tests::part<QAction>(*window, name); }
  qsizetype children() const {
    QApplication::processEvents();  // a form that closed itself leaves one turn later
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return window->findChild<QMdiArea*>()->subWindowList().size();
  }
};

TEST_F(MainWindow, EveryEntryIsOnAndStockEntriesFollowTheCompany) {
  for (const char* name : {"MnuUser", "MnuExit", "MnuIncome", "MnuBack"})
    EXPECT_TRUE(entry(name)->isEnabled()) << name;
  EXPECT_FALSE(entry("MnuInitStock")->isEnabled());
  EXPECT_FALSE(entry("MnuRemain")->isEnabled()) << "it has its form, but no stock is kept";
  session.StockEnabled = true;
  window->refresh();
  for (const CommandEntry& each : commandMap()) {
    if (each.kind == CommandKind::Menu) continue;
    const QByteArray name = each.objectName().toUtf8();
    EXPECT_TRUE(entry(name.constData())->isEnabled()) << name.toStdString();
    const QString form = each.formName().section(':', 0, 0);
    EXPECT_TRUE(form.isEmpty() || form == "FrmSeeIDOptions" || form == "FrmSeeIDStanbyList" ||
                window->hasForm(form))
        << name.toStdString();
  }
  EXPECT_EQ(window->findChild<QLabel*>("PnlCompany")->text(), "라온웨어");
  EXPECT_EQ(window->windowTitle(), mainWindowTitle());
  for (const char* button : {"TBar2", "TBar10", "TBar11"})
    EXPECT_TRUE(window->findChild<QWidget*>(button)->isEnabled()) << button;
  tests::grab(*window, "frmMain");
}

TEST_F(MainWindow, AGreyEntryTellsWhyWhereverItIsMet) {
  const auto told = [this] { return window->statusBar()->currentMessage(); };
  QTest::keyClick(window.get(), Qt::Key_B, Qt::AltModifier);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_TRUE(menu);
  menu->setActiveAction(entry("MnuGas"));
  EXPECT_EQ(told(), "");
  QTest::keyClick(menu, Qt::Key_Down);
  EXPECT_TRUE(told().startsWith("재고 초기화: 재고관리를 하지 않는 동안은")) << told().toStdString();
  menu->setActiveAction(entry("MnuGas"));
  QTest::keyClick(menu, Qt::Key_I);
  EXPECT_TRUE(told().startsWith("재고 초기화: ")) << "its own letter goes to it";
  EXPECT_TRUE(menu->isVisible());
  tests::grab(*menu, "frmMain-grey");
  QTest::keyClick(menu, Qt::Key_Return);
  EXPECT_EQ(children(), 0);
  QTest::keyClick(menu, Qt::Key_Escape);
  EXPECT_EQ(told(), "");
}

TEST_F(MainWindow, TheCompanysNameAndTheStockEntriesFollowASavedProfile) {
  prompts.expect("사용자 등록이 완료되었습니다");
  CompanyProfile profile(session);
  CompanyData data;
  data.Company = "해온가스";
  data.User = "홍";
  EXPECT_EQ(profile.saveProfile(data), ProfileSaved::Yes);
  EXPECT_EQ(window->findChild<QLabel*>("PnlCompany")->text(), "해온가스");
  prompts.expect("패스워드가 현재 삭제된 상태입니다.");
  BillingSettings settings;
  settings.Stock = true;
  EXPECT_TRUE(profile.saveSettings(settings));
  EXPECT_TRUE(entry("MnuInitStock")->isEnabled());
}

TEST_F(MainWindow, APageReachesADialogBeforeItRuns) {
  QString title;
  QTimer::singleShot(0, window.get(), [&] {
    if (QWidget* box = QApplication::activeModalWidget()) {
      title = box->windowTitle();
      box->close();
    }
  });
  EXPECT_TRUE(window->openForm("frmPrtJiroOCR:a4"));
  EXPECT_EQ(title, "OCR-A4");
}

TEST_F(MainWindow, AMenuIsReachedByAltAndItsEntryRelinksAndOpensOneChild) {
  QTest::keyClick(window.get(), Qt::Key_A, Qt::AltModifier);
  QWidget* menu = QApplication::activePopupWidget();
  ASSERT_TRUE(menu);
  EXPECT_EQ(menu->objectName(), "MnuContribution");
  if (!static_cast<QMenu*>(menu)->activeAction()) QTest::keyClick(menu, Qt::Key_Down);
  QTest::keyClick(menu, Qt::Key_Return);
  ASSERT_EQ(children(), 1);
  EXPECT_EQ(window->activeForm()->objectName(), "frmUser");
  EXPECT_EQ(relinked, 1);
  EXPECT_TRUE(window->run("MnuUser"));
  EXPECT_EQ(relinked, 2);
  EXPECT_EQ(children(), 1) << "an open form comes to the front";
  tests::show(*window);  // the menu took the focus with it
  tests::key(Qt::Key_F4, Qt::ControlModifier);
  EXPECT_EQ(children(), 0);
}

TEST_F(MainWindow, AMenuOpensWhateverTheStoreAnswers) {
  session.dbBasic.Execute("Drop Table User");  // as a network that is gone
  QTest::keyClick(window.get(), Qt::Key_B, Qt::AltModifier);
  QWidget* const menu = QApplication::activePopupWidget();
  ASSERT_TRUE(menu);
  menu->close();
}

TEST_F(MainWindow, AnotherBooksEntryTurnsTheOpenReadingScreen) {
  session.dbBasic.Execute("Insert Into User(Company) Values('해온가스')");
  ASSERT_TRUE(window->run("MnuIndivisualCheck"));
  auto* const screen = dynamic_cast<ReadingScreen*>(window->activeForm());
  ASSERT_TRUE(screen);
  EXPECT_EQ(screen->book(), HouseStyle::Individual);
  ASSERT_TRUE(window->run("MnuManyCheck"));
  EXPECT_EQ(children(), 1);
  EXPECT_EQ(screen->book(), HouseStyle::MultiHousehold);
  auto* const status = window->findChild<QLabel*>("PnlStatus");
  window->showStatus("가람식당");
  EXPECT_EQ(status->property("role"), "status");
  window->activeForm()->close();
  EXPECT_EQ(status->text() + status->property("role").toString(), "") << "colour and text go with the form";
}

TEST_F(MainWindow, EscOnTheLinesBehindAReportLeadsBackToItsLine) {
  tests::insertRows(session.dbYear, "Client(Code, Name, GasInit)", {"1, '가람', 5000", "2, '나래', 7000"});
  const QString year = session.WorkYear;
  tests::insertRows(session.dbYear, "Sale(SaleDate, ClientCode, SaleGubun, Gubun, SaleNum, Trust)",
                    {"'" + year + "-01-01', 2, 1, False, 1, 7000"});
  pc.clock.set(QDate(year.toInt(), 12, 31).startOfDay());
  const auto front = [this] {
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return window->activeForm() ? window->activeForm()->objectName() : QString();
  };
  const auto lines = [this] { return window->activeForm()->findChild<Spread*>(); };
  // Whatever else stands open, and in whatever order it was opened.
  for (const char* const form :
       {"frmAClientSaleBrief", "frmBank", "frmTrustBrief", "frmUser", "frmTrustBrief"})
    ASSERT_TRUE(window->openForm(QString::fromUtf8(form)) && front() == form) << form;
  tests::key(Qt::Key_F5);
  lines()->setActiveCell(2, 3);
  for (const bool doubleClick : {false, true}) {
    if (doubleClick)
      lines()->doubleClicked(2, 3);
    else
      tests::key(Qt::Key_Return);
    ASSERT_EQ(front(), "frmAClientSaleBrief");
    EXPECT_EQ(lines()->model().MaxRows(), 2) << "the line and its sum";
    EXPECT_TRUE(lines()->isAncestorOf(QApplication::focusWidget()));
    tests::key(Qt::Key_Escape);
    ASSERT_EQ(front(), "frmTrustBrief");
    EXPECT_EQ(lines()->activeRow(), 2);
    EXPECT_TRUE(lines()->isAncestorOf(QApplication::focusWidget()));
  }
}

TEST_F(MainWindow, AFormThatClosesItselfTakesItsFrameAlong) {
  ASSERT_TRUE(window->openForm("frmUser"));
  window->activeForm()->close();
  EXPECT_EQ(children(), 0);
  EXPECT_EQ(window->activeForm(), nullptr);
  EXPECT_FALSE(window->openForm("frmNowhere"));
}

TEST_F(MainWindow, EveryChildOpensWhollyInSight) {
  auto* ground = window->findChild<QMdiArea*>();
  session.dbBasic.Execute("Insert Into User(Company) Values('해온가스')");
  window->resize(1092, 614);  // what a small screen at 125 % leaves
  QApplication::processEvents();
  for (const char* form :
       {"frmUser",           "frmBank",      "frmResponse",    "frmVolume",       "frmClient",
        "frmHouseStyle",     "frmGasUtil",   "frmRefillState", "FrmSukum",        "frmSale",
        "frmTodaySale",      "frmEva",       "frmEvaTotal",    "frmBuy",          "frmResCAN",
        "frmVolumeEstimate", "FrmDealList",  "FrmTax",         "frmLPGSaleBrief", "frmResSaleBrief",
        "frmTrustBrief",     "frmSaleBrief", "frmCANResBrief", "frmPrtSale"}) {
    ASSERT_TRUE(window->openForm(QString::fromUtf8(form)));
    QApplication::processEvents();
    const QMdiSubWindow* const child = ground->currentSubWindow();
    const QRect place = child->geometry(), room = ground->viewport()->rect();
    EXPECT_TRUE(room.contains(place)) << form << ' ' << place.width() << 'x' << place.height() << " in "
                                      << room.width() << 'x' << room.height();
  }
}

TEST_F(MainWindow, ARepairThatFailsEndsInABox) {
  session.dbBasic.Execute("Insert Into Client(Name, VolumeYesNo) Values('고객', True)");
  EXPECT_TRUE(window->run("YearError"));
  prompts.expect("오류");
  EXPECT_TRUE(window->run("YearError"));
}

TEST_F(MainWindow, HiddenTestCallReachesTheWaitingListOnlyWhileCallsAreTaken) {
  auto* ground = window->findChild<QMdiArea*>();
  const auto hidden = Qt::ShiftModifier | Qt::ControlModifier;
  QTest::mouseClick(ground->viewport(), Qt::RightButton, hidden);
  pc.settings.SaveSetting("해온판매", "Registration", "SeeIDUse", "1");
  prompts.expectInput("발신번호 테스트", "0531234567");
  QTest::mouseClick(ground->viewport(), Qt::RightButton, hidden);
  EXPECT_TRUE(window->run("mnu_SeeIDStanbyList"));
  auto* list = window->findChild<QWidget*>("FrmSeeIDStanbyList");
  ASSERT_TRUE(list);
  EXPECT_TRUE(list->isVisible());
  list->close();
  EXPECT_FALSE(list->isVisible());
  EXPECT_EQ(window->context().calls.TakeStanbyNumber(), "0531234567") << "closing its window keeps the list";
}

TEST_F(MainWindow, LeavingAsksAndCountsOnce) {
  window->openForm("frmUser");
  prompts.expect("프로그램을 종료하시겠습니까?", false);
  QTest::mouseClick(window->findChild<QWidget*>("TBar11"), Qt::LeftButton);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(children(), 1);
  prompts.expect("프로그램 종료");
  EXPECT_TRUE(window->close());
  EXPECT_EQ(left, 1);
}

TEST_F(MainWindow, TheWindowThatMayEndTheProgramOpensWhenNothingTypedIsLost) {
  ASSERT_TRUE(window->openForm("frmUser"));
  QApplication::processEvents();
  tests::type("x");
  QTimer::singleShot(0, window.get(), [] {
    QWidget* const box = QApplication::activeModalWidget();
    EXPECT_FALSE(box) << "the data folder is chosen over what was typed";
    if (box) box->close();
  });
  prompts.expect("버리시겠습니까?", false);
  EXPECT_TRUE(window->run("mnuPath"));
  EXPECT_EQ(children(), 1);
  tests::whenModal<FrmPath>([this](QDialog& dialog) {
    EXPECT_EQ(children(), 0);
    dialog.reject();
  });
  prompts.expect("버리시겠습니까?");
  EXPECT_TRUE(window->run("mnuPath"));
}

TEST_F(MainWindow, TheReminderComesBeforeTheEndAndMayBackUp) {
  install("데이터압축.EXE");
  remind(true);
  const auto closeBy = [&](const char* button) {
    QTimer::singleShot(0, window.get(), [button] {
      QWidget* const box = QApplication::activeModalWidget();
      ASSERT_TRUE(box && box->objectName() == "frmMsgBackUp");
      QTest::mouseClick(box->findChild<QWidget*>(button), Qt::LeftButton);
    });
    return window->close();
  };
  EXPECT_FALSE(closeBy("btnResult3"));
  EXPECT_TRUE(window->isVisible());
  window->openForm("frmUser");
  EXPECT_TRUE(closeBy("btnResult0"));
  EXPECT_EQ(started, (QStringList{"데이터압축.EXE", "SERVERUP"}));
  EXPECT_EQ(left, 1);
}

TEST_F(MainWindow, BackupRestoreAndTheImportEndTheProgramAndTheToolsDoNot) {
  for (const char* name : {"데이터압축.EXE", "haeon-import", "CashPad", "RWPlanner.exe"}) install(name);
  for (const char* tool : {"ManyCashInOut", "MnuCashBrief", "MnuInList", "MnuOutList"}) {
    started.clear();
    EXPECT_TRUE(window->run(tool));
    EXPECT_EQ(started, (QStringList{"CashPad", "C:\\rwgas\\dbs"})) << tool;
  }
  EXPECT_TRUE(window->run("mnuSchedule"));
  EXPECT_EQ(started, (QStringList{"RWPlanner.exe", "C:\\rwgas\\dbs"}));
  EXPECT_EQ(left, 0);
  prompts.expect("데이터 백업(하드)", false);
  EXPECT_TRUE(window->run("MnuBack"));
  EXPECT_EQ(left, 0);
  const std::pair<const char*, QStringList> ends[] = {{"MnuBack", {"데이터압축.EXE"}},
                                                      {"mnuDataManagerAS", {"데이터압축.EXE", "AS"}},
                                                      {"mnuDataManagerDN", {"데이터압축.EXE", "UNZIP"}},
                                                      {"mnuMoveIn", {"haeon-import", "--window"}}};
  for (const auto& [name, program] : ends) {
    session.ClosingForBackup = false;
    left = 0;
    window->show();
    prompts.expect("종료합니다");
    EXPECT_TRUE(window->run(name));
    EXPECT_EQ(started, program);
    EXPECT_EQ(left, 1) << name;
  }
}

}  // namespace
