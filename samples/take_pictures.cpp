// Pictures of every form on the sample retailer's books, for the documents and for looking at.
#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTest>
#include <QTextStream>
#include <QTimer>

#include <utility>

#include "app/FrmFolderTrouble.h"
#include "app/FrmGuide.h"
#include "app/FrmInitMsg.h"
#include "app/form_desk.h"
#include "app/form_pickers.h"
#include "app/form_tool_icons.h"
#include "app/frmMain.h"
#include "app/frmSecurity.h"
#include "app/frmSplash.h"
#include "app/start_up.h"
#include "backup/FrmArchive.h"
#include "backup/FrmArchiveSettings.h"
#include "backup/data_folder_alone.h"
#include "backup/make_backup.h"
#include "links/FrmSeeIDOptions.h"
#include "links/FrmSeeIDStanbyList.h"
#include "links/caller.h"
#include "links/form_see_id_port.h"
#include "links/frmMsgBackUp.h"
#include "master/customers/frmNewClient.h"
#include "moving/FrmMoveIn.h"
#include "pc/program_line.h"
#include "samples/form_words.h"
#include "samples/sample_books.h"
#include "store/settings_table.h"
#include "ui/forms/style.h"
#include "ui/paper/pages_window.h"

using namespace Qt::StringLiterals;

namespace {

constexpr pc::ProgramLine programLine{
    "take_pictures", "[--words] PC FOLDER",
    "Opens every form on the books in the folder PC and saves its picture in FOLDER.\n"
    "--words: in place of pictures one file, words.txt, with what stands on every form.\n"
    "QT_SCALE_FACTOR=1.5 shows them as on a screen of 144 dpi."};

/** While it lives, work is given every modal window that comes up, once each; also one that comes up within work. */
class WhenModal {
 public:
  explicit WhenModal(std::function<void(QWidget&)> work) : work_(std::move(work)) { watch(); }

 private:
  void watch() {
    QTimer::singleShot(0, &alive_, [this] {
      watch();
      QWidget* const box = QApplication::activeModalWidget();
      if (!box || seen_.contains(box) || box->objectName() == "FrmProgress"_L1)
        return;  // a bar leaves by itself
      seen_ << box;
      work_(*box);
    });
  }

  std::function<void(QWidget&)> work_;
  QList<QPointer<QWidget>> seen_;
  QObject alive_;
};

class Photographer {
 public:
  Photographer(const QString& folder, bool words) : folder_(folder), words_(words) { QDir().mkpath(folder); }

  void take(QWidget& of, const QString& name) {
    of.show();
    if (of.isWindow()) (void)QTest::qWaitForWindowExposed(&of);
    QCoreApplication::
        processEvents();  // what the form left for the next round: the first focus, a list's height
    if (words_) {
      QFile all(file("words.txt"));
      QString words = u"= "_s + name + u'\n' + samples::wordsOf(of);
      if (const auto* paper = dynamic_cast<PagesWindow*>(&of)) words += samples::wordsOf(paper->pages());
      // The clock runs, and a packed file's length is the packer's.
      static const QRegularExpression passing(u"(?<=\\d):\\d\\d(:\\d\\d)?|-\\d{6}(?=\\.zip)|[\\d.]+ kB"_s);
      if (all.open(QIODevice::Append)) all.write(words.remove(passing).toUtf8());
      return;
    }
    const QString file = folder_ + u'/' + name + ".png";
    if (!of.grab().save(file)) QTextStream(stderr) << "cannot write " << file << '\n';
  }

  /** A modal form: taken when it stands, then left. */
  void takeModal(const QString& name, const std::function<void()>& open) {
    const WhenModal then([this, name](QWidget& box) {
      take(box, name);
      if (auto* dialog = qobject_cast<QDialog*>(&box))
        dialog->reject();
      else
        box.close();
    });
    open();
  }

  QString file(const QString& name) const { return folder_ + u'/' + name; }

 private:
  QString folder_;
  bool words_;
};

/** A preview does not hold up whoever opened it: it is taken and left while this waits. */
void waitUntilGone(const char* preview) {
  (void)QTest::qWaitFor([&] {
    const QWidget* const front = QApplication::activeModalWidget();
    return !front || front->objectName() != QLatin1String(preview);
  });
}

/** Closes the form in front; a closed form leaves in the next round, and a further one of its name may not be found. */
void closeForm(const frmMain& window) {
  if (QMdiSubWindow* const front = window.findChild<QMdiArea*>()->currentSubWindow()) front->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void mainWindowForms(frmMain& window, Session& session, Photographer& photographer) {
  window.resize(1280, 860);
  photographer.take(window, "frmMain");
  session.SaleDay = session.pc.clock.dateText();  // the day whose figures F5 shows
  for (const char* name :
       {"frmClient", "frmGasUtil", "frmVolume", "frmRefillState", "frmResponse", "frmBank", "frmHouseStyle",
        "frmEva", "FrmSukum", "FrmSMS", "frmDm", "frmCar", "frmSale", "frmTodaySale", "frmBuy"}) {
    if (name[3] != 'T') closeForm(window);
    window.openForm(QString::fromLatin1(name));
    auto* const form = window.findChild<QWidget*>(QString::fromLatin1(name));
    if (!form) continue;
    const std::string_view shown = name;
    if (shown == "frmSale" || shown == "frmBuy") {  // on a line, so that its customer or station is shown
      QCoreApplication::processEvents();
      if (QWidget* const hand = form->focusWidget()) QTest::keyClick(hand, Qt::Key_Up);
    }
    photographer.take(*form, name);
  }
  photographer.take(window, "frmMain-at-work");
  // Three numbers as older books hold them, and back.
  const auto numbers = [&](const char* as) {
    session.dbYear.Execute(u"Update Client Set Tel = "_s + QLatin1String(as) +
                           u" Where Code Between 11 And 13"_s);
  };
  numbers("Left(Tel, 3) & Mid(Tel, 5, 3) & Right(Tel, 4)");
  closeForm(window);
  window.openForm(u"FrmSeeIDFormatTelNo"_s);
  if (auto* const form = window.findChild<QWidget*>(u"FrmSeeIDFormatTelNo"_s))
    photographer.take(*form, "FrmSeeIDFormatTelNo");
  closeForm(window);
  numbers("Left(Tel, 3) & '-' & Mid(Tel, 4, 3) & '-' & Right(Tel, 4)");
}

/** The month before of one block, and its slips on paper: slips.pdf and one file a further paper. */
void meterBook(frmMain& window, Session& session, Photographer& photographer) {
  closeForm(window);
  if (!window.run("MnuAPTCheck")) return;
  auto* form = window.findChild<QWidget*>("frmEva");
  auto* const months = form->findChild<QComboBox*>("CboMon");
  months->setCurrentIndex(months->currentIndex() - 1);
  form->findChild<QComboBox*>("CboBDName")->setCurrentIndex(1);
  // Two who have not paid yet: their slips have an amount.
  session.dbYear.Execute(
      "Update Evaporation Set Total = Total + Pay, Pay = 0, TrustDay = '' Where Mon = 2 And "
      "ClientCode In (SELECT Code FROM Client WHERE BDName = '달빛아파트' AND Dong = '101' AND "
      "(Ho = '101' Or Ho = '102'))");
  form->findChild<QPushButton*>("BtnRefresh")->click();
  photographer.take(*form, "frmEva");
  session.pc.settings.write(setting::GiroPrinter, pdfPrinterName());
  const std::pair<const char*, const char*> papers[] = {{"frmPrtJiroOCR:a4", "slips.pdf"},
                                                        {"frmPrtJiro", "slips-micr.pdf"},
                                                        {"frmPrtMicr", "slips-micr-a4.pdf"},
                                                        {"frmPrtJiroOrg", "slips-general.pdf"},
                                                        {"frmPrtJiroOrgA4", "slips-general-a4.pdf"}};
  for (const auto& [paper, file] : papers) {
    qputenv("HAEON_PDF", photographer.file(file).toUtf8());
    const QString name = QString::fromLatin1(paper).section(':', 0, 0);
    const WhenModal then([&](QWidget& box) {
      auto* const slips = qobject_cast<QDialog*>(&box);
      if (!slips) {  // the preview over its dialog
        photographer.take(box, name == "frmPrtMicr" ? u"FrmPaperView"_s : name + "-paper");
        box.close();
        return;
      }
      if (slips->objectName() != name) {
        if (auto* const told = qobject_cast<QMessageBox*>(slips)) {
          QTextStream(stderr) << told->text() << '\n';
          told->reject();
        }
        return;
      }
      slips->findChild<QRadioButton*>("Opt4")->click();
      photographer.take(*slips, name);
      slips->findChild<QPushButton*>("BtnJiro")->click();
      slips->findChild<QPushButton*>("BtnPreview")->click();
      waitUntilGone("FrmPaperView");
      slips->reject();
    });
    window.openForm(QString::fromLatin1(paper));
  }
}

/** The meter book's totals of the month before, and their paper. */
void totals(frmMain& window, ReportViewer& reports, Photographer& photographer) {
  closeForm(window);
  if (!window.run("MnuAPTTotal")) return;
  auto* form = window.findChild<QWidget*>("frmEvaTotal");
  for (const char* end : {"CboMonFrom", "CboMonTo"}) {
    auto* month = form->findChild<QComboBox*>(end);
    month->setCurrentIndex(month->currentIndex() - 1);
  }
  form->findChild<QPushButton*>("BtnRefresh")->click();
  photographer.take(*form, "frmEvaTotal");
  form->findChild<QPushButton*>("BtnPrt")->click();
  if (!reports.window()) return;
  photographer.take(*reports.window(), "frmReport");
  reports.window()->close();
}

/** March's statements and invoices, and an invoice that is typed. */
void documents(frmMain& window, FormPickers& pickers, Photographer& photographer) {
  closeForm(window);
  const auto click = [](QWidget& form, const char* name) { form.findChild<QAbstractButton*>(name)->click(); };
  // The question of the paper is answered by the whole sheet, on which the form is drawn too.
  const auto takePaper = [&](QWidget& form) {
    const WhenModal then([&](QWidget& box) {
      const bool question = box.objectName() == "FrmMsg"_L1;
      photographer.take(box, form.objectName() + (question ? u"-question"_s : u"-paper"_s));
      if (!question) {
        box.close();
        return;
      }
      click(box, "optPaper(1)");
      click(box, "btnInkjet");
    });
    click(form, "btnPreview");
    waitUntilGone("FrmPaperView");
  };
  if (!window.openForm("FrmDealList:2026-03-01,2026-03-31")) return;
  auto* deals = window.findChild<QWidget*>("FrmDealList");
  click(*deals, "ChkAll");
  photographer.take(*deals, "FrmDealList");
  takePaper(*deals);
  closeForm(window);
  window.openForm("FrmTax:0");
  auto* tax = window.findChild<QWidget*>("FrmTax");
  click(*tax, "Chk선택");
  photographer.take(*tax, "FrmTax");
  takePaper(*tax);
  closeForm(window);
  photographer.takeModal("FrmNewAcount", [&] { window.openForm("FrmNewAcount"); });
  photographer.takeModal("FrmMsg", [&] {
    pickers.askPrintMethod(
        {"거래명세표 발행", "거래명세표 발행 방법을 선택하세요", "잉크젯(레이저)(&L)", "도트발행(&D)"});
  });
  photographer.takeModal("FrmTraderList", [&] { pickers.searchTrader("식당"); });
  photographer.takeModal("FrmNewTrader", [&] { pickers.registerTrader(true); });
  photographer.takeModal("FrmPost", [&] { pickers.searchPost("장터"); });
}

void forecastOfAll(QWidget& form) {
  form.findChild<QRadioButton*>("SSOption1(2)")->click();
  form.findChild<QPushButton*>("BtnFind")->click();
}

/** Every report of the trade side over the year so far, each with the first page of its paper. */
void tradeReports(frmMain& window, Session& session, ReportViewer& reports, Photographer& photographer) {
  const QString year = session.WorkYear, month = session.pc.clock.today().addMonths(-1).toString("MM");
  const QString days = "?TxtDayFrom=" + year + "-01-01&TxtDayTo=" + session.pc.clock.dateText();
  const std::pair<QString, QString> shown[] = {
      {"frmLPGSaleBrief:month?CboYear=" + year, "-month"},
      {"frmLPGSaleBrief:day?CboYear=" + year + "&CboMonth=" + month, "-day"},
      {"frmLPGSaleBrief:client" + days, "-client"},
      {"frmResSaleBrief:lines" + days, "-lines"},
      {"frmResSaleBrief:person" + days, "-person"},
      {"frmResSaleBrief:total" + days, "-total"},
      {"frmResUtilBrief:total" + days, "-total"},
      {"frmTrustBrief:clients?TxtName=", ""},
      {"frmUtilTrustBrief:clients?TxtName=", ""},
      {"frmCANLPGBrief:loans" + days, ""},
      {"frmCANCompanyBrief:loans" + days, ""},
      {"frmCANResBrief:loans" + days, ""},
      {"frmUtilClientBrief:clients" + days, ""},
      {"frmSaleBrief:lines" + days, ""},
      {"frmAClientSaleBrief:lines" + days + "&TxtClient=1", ""},
      {"frmHoldBrief:stock" + days, ""},
      {"frmUtilHoldBrief:stock" + days, ""},
      {"frmPrtSale:ledger", ""},
      {"frmPrtBuy:ledger", ""},
      {"frmResCAN", ""},
      {"frmVolumeEstimate", ""}};
  for (const auto& [address, behind] : shown) {
    closeForm(window);
    if (!window.openForm(address)) continue;
    const QString name = address.section(':', 0, 0);
    auto* const form = window.findChild<QWidget*>(name);
    if (name == "frmVolumeEstimate") forecastOfAll(*form);
    photographer.take(*form, name + behind);
    if (auto* const tick = form->findChild<QCheckBox*>("ChkChart"); tick && behind == "-month")
      tick->setChecked(true);
    if (name == "frmAClientSaleBrief") continue;  // its grid goes straight to a printer
    QTest::keyClick(form, Qt::Key_F10);
    if (!reports.window()) continue;
    photographer.take(*reports.window(), name + behind + "-paper");
    reports.window()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  closeForm(window);
}

void pickers(FormPickers& pickers, Session& session, Photographer& photographer) {
  photographer.takeModal("frmSearchClient",
                         [&] { pickers.searchClient("식당", ClientSearchMode::General, false); });
  photographer.takeModal("frmNewClient", [&] { frmNewClient(session, pickers, "053-700-0000").enter(); });
  photographer.takeModal("frmSearchSize", [&] { pickers.searchSize("1", TradeSide::Sale); });
  photographer.takeModal("frmSearchVolume", [&] { pickers.searchVolume(); });
  photographer.takeModal("frmSearchResponse", [&] { pickers.searchResponse(); });
  photographer.takeModal("frmSearchRefill", [&] { pickers.searchRefill(); });
  photographer.takeModal("frmSearchBank", [&] { pickers.searchBank(); });
  photographer.takeModal("frmPostCode", [&] { pickers.searchPostCode("장터"); });
  photographer.takeModal("frmBDName", [&] { pickers.searchBuilding(HouseStyle::Apartment); });
  photographer.takeModal("frmCalendar", [&] { pickers.pickDate("2026-03-14"); });
  photographer.takeModal("frmSecurity", [&] { pickers.checkPassword(); });
}

/** The arrears of the month before, and the year's end as a shop sees it in December. */
void yearEnd(frmMain& window, Session& session, Photographer& photographer) {
  closeForm(window);
  if (window.run("mnuAPTbaln")) {
    auto* const form = window.findChild<QWidget*>("FrmAptBaln_rpt");
    auto* const month = form->findChild<QComboBox*>("CboMon");
    month->setCurrentIndex(month->currentIndex() - 1);
    form->findChild<QPushButton*>("btnSearch")->click();
    photographer.take(*form, "FrmAptBaln_rpt");
  }
  photographer.takeModal("frmChangeYear", [&] { window.run("mnu_changeYear"); });
  session.dbYear.Execute(
      "Update Evaporation Set UseGage = 1200 + ClientCode * 7, Trust = (ClientCode Mod 3) * 24800, "
      "Total = (ClientCode Mod 5) * 18650 Where Mon = 12");
  photographer.takeModal("FrmYearEnd", [&] { window.run("MnuYearToYear"); });
}

void small(frmMain& window, Session& session, Photographer& photographer) {
  for (const char* name : {"frmUser", "FrmPath", "FrmNetDrive", "frmAbout", "frmPrtChange", "FrmSetPrinter",
                           "FrmMargin", "FrmPrintSection", "frmCarRes", "frmCaRepairUnit", "frmPrtSafe"}) {
    // A dialog runs inside openForm; a child is taken from the main window. The profile asks for the password first.
    const WhenModal then([&](QWidget& box) {
      if (box.objectName() == "frmSecurity") {
        QTest::keyClicks(box.focusWidget(), QString::fromLatin1(samples::password));
        QTest::keyClick(box.focusWidget(), Qt::Key_Return);
        return;
      }
      photographer.take(box, QString::fromLatin1(name));
      box.close();
    });
    window.openForm(QString::fromLatin1(name));
    QWidget* form = window.activeForm();
    if (form && form->objectName() == QLatin1String(name))
      photographer.take(*form, QString::fromLatin1(name));
  }
  FrmSeeIDOptions options(session, window.caller());
  photographer.take(options, "FrmSeeIDOptions");
  WaitingList waiting(session.pc.clock);
  for (const char* number : {"0531234567", "0538118844", "01000002051"})
    waiting.AddStanbyNumber(QString::fromLatin1(number));
  FrmSeeIDStanbyList list(session, waiting);
  photographer.take(list, "FrmSeeIDStanbyList");
}

void guideAndFirstSteps(frmMain& window, Prompts& prompts, Photographer& photographer) {
  FrmGuide guide(prompts);
  guide.show();
  guide.showChapter("검침");
  photographer.take(guide, "FrmGuide");
  window.openForm("FrmFirstSteps");
  photographer.take(*window.activeForm(), "FrmFirstSteps");
  window.activeForm()->close();
}

/** The data compressor and the import, which work on closed books. */
void aroundTheBooks(Session& session, Photographer& photographer) {
  pc::Pc& pc = session.pc;
  const QString folder = backup::dataFolderToPack(pc);
  for (int day = 2; day >= 0; --day) {
    const QDateTime now = pc.clock.now();
    pc.clock.set(now.addDays(-day));
    auto held = std::make_unique<backup::DataFolderAlone>(pc.paths, folder);
    if (held->take().isEmpty())
      backup::makeBackup(pc, folder, backup::readSettings(pc), backup::Series::Books, std::move(held), {});
    pc.clock.set(now);
  }
  backup::FrmArchive archives(pc, session.prompts);
  archives.show();
  archives.beginWithRestore();
  photographer.take(archives, "FrmArchive");
  backup::FrmArchiveSettings settings(pc, session.prompts);
  photographer.take(settings, "FrmArchiveSettings");
  frmMsgBackUp reminder(session.prompts);
  photographer.take(reminder, "frmMsgBackUp");
  moving::FrmMoveIn import(session, "/mnt/old/RWGas/Dbs");
  photographer.take(import, "FrmMoveIn");
}

/** A drive that is not there. */
void lostFolder(Session& session, Photographer& photographer) {
  const QString folder = std::exchange(session.DbPath, "Z:\\DBS\\");
  FrmFolderTrouble trouble(reachDataFolder(session), session);
  photographer.take(trouble, "FrmFolderTrouble");
  session.DbPath = folder;
}

}  // namespace

int main(int argc, char** argv) {
  if (pc::saidOfItself(programLine, argc, argv)) return 0;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QStringList arguments = application.arguments().mid(1);
  const bool words = arguments.removeOne("--words");
  if (arguments.size() != 2) return pc::wrongUse(programLine);
  QApplication::setWindowIcon(toolIcon(u"MnuOutcome"_s));
  look::apply(application);
  Desk desk(arguments.at(0));
  Session& session = desk.session;
  StartUp startUp(session);
  FormPickers searches(session);
  Photographer photographer(arguments.at(1), words);

  frmSplash splash(startUp, session);
  if (!startUp.SubMain([&] {
        splash.load();
        photographer.take(splash, "frmSplash");
      }))
    return 1;
  startUp.enterPassword(QString::fromLatin1(samples::password));
  splash.hide();
  FrmInitMsg notice(session);
  photographer.take(notice, "FrmInitMsg");
  notice.hide();
  lostFolder(session, photographer);
  {
    frmMain window(session, searches);
    searches.setContext(window.context());
    mainWindowForms(window, session, photographer);
    meterBook(window, session, photographer);
    totals(window, desk.reports, photographer);
    documents(window, searches, photographer);
    tradeReports(window, session, desk.reports, photographer);
    pickers(searches, session, photographer);
    small(window, session, photographer);
    guideAndFirstSteps(window, desk.boxes, photographer);
    yearEnd(window, session, photographer);
    window.setSilentClose();
    window.close();
  }
  startUp.shutDown();
  aroundTheBooks(session, photographer);
  return 0;
}
