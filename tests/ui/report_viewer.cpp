#include "ui/paper/report_viewer.h"

#include <QComboBox>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QWheelEvent>

#include "store/report_staging.h"
#include "tests/cpu_clock.h"
#include "tests/recorded_print.h"
#include "tests/support.h"
#include "tests/ui/grab.h"
#include "tests/ui/modal.h"
#include "ui/paper/frmReport.h"
#include "ui/paper/page_view.h"
#include "ui/paper/print_choice.h"
#include "ui/paper/print_report.h"
#include "ui/paper/printers.h"

using namespace Qt::StringLiterals;

namespace {

class ReportViewing : public ::testing::Test {
 protected:
  void SetUp() override {
    pc.openBooks(QDate(2026, 3, 16));
    pc.session.RptPath = "C:\\RWGas\\RPT\\";
    pc.session.printers = &printers;
  }
  void TearDown() override { printChooser() = asking; }
  /** A month's list of an apartment block. */
  void stageReadings(int rows) {
    stageReport(pc.session, rows, [](int row) {
      return u"Insert Into Print(Str01, Dbl01, Dbl02, Dbl03, Lng01, Lng02, Lng03, Lng04, Lng05, Lng06, "
             "Str02, Str03, Str04) Values('%1동 %2호', %3, %4, %5, %6, %7, %8, 1000, %9, %10, 'O', '03/%11', '한빛아파트')"_s
                 .arg(101 + row / 400)
                 .arg((row % 400 / 4 + 1) * 100 + row % 4 + 1)
                 .arg(1200.5 + row)
                 .arg(1218.75 + row)
                 .arg(18.25)
                 .arg(39'420)
                 .arg(row % 7 == 0 ? 52'300 : 0)
                 .arg(row % 7 == 0 ? 1'046 : 0)
                 .arg(row % 7 == 0 ? 93'766 : 40'420)
                 .arg(row % 3 == 0 ? 40'420 : 0)
                 .arg(row % 28 + 1, 2, 10, QChar('0'));
    });
  }
  frmReport* show(const QString& file = "체적검침현황.rpt") {
    viewer.show({file, {"월= '03월)'", "건물명= '한빛아파트'"}, printFile()});
    if (viewer.window()) tests::show(*viewer.window());
    return viewer.window();
  }
  static QString label(QWidget* form, const char* name) { return form->findChild<QLabel*>(name)->text(); }

  tests::TestPc pc;
  tests::RecordedPrinters printers;
  ReportViewer viewer{pc.session};
  const PrintChooser asking = printChooser();
};

TEST_F(ReportViewing, KeysTurnPagesChangeTheSizeAndClose) {
  stageReadings(100);
  QPointer<frmReport> form = show();
  ASSERT_TRUE(form);
  const int pages = label(form, "LblPage").section(' ', -1).toInt();
  ASSERT_GE(pages, 3);
  tests::grab(*form, "frmReport");
  const auto* view = form->findChild<PageView*>();
  tests::key(Qt::Key_PageUp);
  EXPECT_EQ(view->page(), 0) << "nothing before the first";
  tests::key(Qt::Key_PageDown);
  EXPECT_EQ(label(form, "LblPage"), u"2 / %1"_s.arg(pages));
  tests::key(Qt::Key_End);
  EXPECT_EQ(view->page(), pages - 1);
  EXPECT_FALSE(form->findChild<QPushButton*>("BtnNext")->isEnabled());
  tests::grab(*form, "frmReport-last");
  const double before = view->zoom();
  tests::key(Qt::Key_Plus, Qt::ShiftModifier);
  EXPECT_GT(view->zoom(), before);
  tests::keys({Qt::Key_Minus, Qt::Key_Minus});
  EXPECT_LT(view->zoom(), before);
  QTest::mouseClick(form->findChild<QPushButton*>("BtnFitPage"), Qt::LeftButton);
  EXPECT_EQ(view->fit(), PageView::Fit::Page);
  tests::grab(*form, "frmReport-whole-page");
  tests::key(Qt::Key_Escape);
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(form.isNull());
}

TEST_F(ReportViewing, PrintsWhatIsChosenOnTheChosenPrinterAndRemembersIt) {
  stageReadings(100);
  show();
  int asked = 0;
  printChooser() = [&](Session&, int pages, QWidget*) -> std::optional<PrintChoice> {
    asked = pages;
    return PrintChoice{"지로프린터", 2, 2};
  };
  tests::key(Qt::Key_F10);
  ASSERT_EQ(printers.jobs.size(), 1u);
  EXPECT_GE(asked, 3);
  EXPECT_TRUE(printers.jobs[0]->ended);
  EXPECT_EQ(printers.jobs[0]->title, "체적검침현황");
  EXPECT_EQ(printers.jobs[0]->pages, 1);
  EXPECT_TRUE(printers.jobs[0]->texts().contains(u"2 / %1"_s.arg(asked)));
  EXPECT_EQ(pc.pc.settings.GetSetting("해온판매", "프린터설정", "보고서"), "지로프린터");

  printers.refusal = "용지가 없습니다.";
  pc.prompts.expect("용지가 없습니다.");
  tests::key(Qt::Key_P, Qt::ControlModifier);
  printChooser() = [](Session&, int, QWidget*) { return std::nullopt; };
  tests::key(Qt::Key_F10);
  EXPECT_EQ(printers.jobs.size(), 1u);
}

TEST_F(ReportViewing, TheQuestionOffersTheLastPrinterAndAllPages) {
  stageReadings(100);
  pc.pc.settings.SaveSetting("해온판매", "프린터설정", "보고서", "PDF 파일");
  frmReport* const form = show();
  const auto answer = [form](int first, int last, int key) {
    tests::whenModal([=](QWidget& box) {
      EXPECT_EQ(box.findChild<QComboBox*>("CboPrinter")->currentText(), "PDF 파일");
      auto* const from = box.findChild<QSpinBox*>("SpnFirst");
      auto* const to = box.findChild<QSpinBox*>("SpnLast");
      EXPECT_EQ(from->value(), 1);
      EXPECT_EQ(to->value(), to->maximum());
      QStringList words;
      for (const QLabel* const label : box.findChildren<QLabel*>()) words << label->text();
      EXPECT_TRUE(words.contains("쪽부터")) << words.join(u'|').toStdString();
      EXPECT_TRUE(words.contains(u"쪽까지  (전체 %1쪽)"_s.arg(to->maximum())));
      tests::grab(box, "frmReport-print");
      from->setValue(first);
      to->setValue(last);
      QTest::keyClick(&box, Qt::Key(key));
    });
    tests::show(*form);
    form->findChild<PageView*>()->setFocus();
    tests::key(Qt::Key_F10);
  };
  answer(1, 1, Qt::Key_Escape);
  EXPECT_TRUE(printers.jobs.empty());
  answer(3, 2, Qt::Key_Return);
  ASSERT_EQ(printers.jobs.size(), 1u);
  EXPECT_EQ(printers.jobs[0]->printer, "PDF 파일");
  EXPECT_EQ(printers.jobs[0]->pages, 2) << "a range the wrong way round is turned";
}

TEST_F(ReportViewing, TheWheelGoesOnToTheNextPageOnlyAtTheEnd) {
  stageReadings(100);
  frmReport* const form = show();
  auto* const view = form->findChild<PageView*>();
  const auto turn = [&](int by, Qt::KeyboardModifiers with = {}) {
    QWheelEvent event({50, 50}, view->viewport()->mapToGlobal(QPointF(50, 50)), {}, {0, by}, Qt::NoButton,
                      with, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view->viewport(), &event);
  };
  for (int step = 0; step < 3; ++step) tests::key(Qt::Key_Plus);
  turn(-120);
  EXPECT_EQ(view->page(), 0) << "the page itself is not seen to its end";
  view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
  turn(-120);
  EXPECT_EQ(view->page(), 1);
  EXPECT_EQ(view->verticalScrollBar()->value(), 0);
  turn(120);
  EXPECT_EQ(view->page(), 0);
  EXPECT_EQ(view->verticalScrollBar()->value(), view->verticalScrollBar()->maximum());
  const double zoom = view->zoom();
  turn(120, Qt::ControlModifier);
  EXPECT_GT(view->zoom(), zoom);
}

TEST_F(ReportViewing, TellsWhatIsWrongAndOpensNothing) {
  stageReadings(0);
  pc.prompts.expect("출력할 자료가 없습니다!");
  EXPECT_FALSE(show());
  stageReadings(1);
  pc.prompts.expect("보고서 양식을 찾을 수 없습니다!");
  EXPECT_FALSE(show("아직없는보고서.rpt"));
  pc.prompts.expect("작업 중 오류가 발생했습니다.");
  viewer.show({"체적검침현황.rpt", {}, "C:\\RWGas\\Dbs\\없음.mdb"});
  EXPECT_FALSE(viewer.window());
  ASSERT_TRUE(show());
  pc.prompts.expect("보고서 양식을 찾을 수 없습니다!");
  EXPECT_TRUE(show("아직없는보고서.rpt")) << "the preview that stands is left alone";
}

TEST_F(ReportViewing, ThePdfHoldsEveryRowAndTheExactTotals) {
  stageReadings(100);
  PcPrinters real(pc.pc);
  pc.session.printers = &real;
  const QString pictures = qEnvironmentVariable("HAEON_PICTURES");
  const QString file = pictures.isEmpty() ? pc.folder.filePath("list.pdf") : pictures + "/report.pdf";
  real.askFile = [&](const QString&) { return file; };
  frmReport* const form = show();
  QTest::mouseClick(form->findChild<QPushButton*>("BtnPdf"), Qt::LeftButton);
  QProcess reader;
  reader.start("pdftotext", {"-layout", file, "-"});
  ASSERT_TRUE(reader.waitForFinished());
  const QString text = QString::fromUtf8(reader.readAllStandardOutput());
  EXPECT_EQ(text.count("한빛아파트"), 100 + text.count('\f')) << "each row, and the head of each page";
  // 100 rows of 18.25; 14 rows (7, 14, ... 98) with 93,766, 86 with 40,420.
  EXPECT_TRUE(text.contains("1,825") && text.contains("3,942,000") && text.contains("4,788,844"));

  real.askFile = [](const QString&) { return QString(); };  // the operator leaves: no box
  QTest::mouseClick(form->findChild<QPushButton*>("BtnPdf"), Qt::LeftButton);
}

TEST_F(ReportViewing, TheSpreadsheetHasNumbersAsNumbers) {
  pc.pc.process.setStarter([](const QString&, const QStringList&, const QString&) { return true; });
  stageReadings(3);
  frmReport* const form = show();
  pc.prompts.expect("엑셀로 자료를 내보내기 하시겠습니까?");
  QTest::mouseClick(form->findChild<QPushButton*>("BtnExcel"), Qt::LeftButton);
  const QString folder = pc.pc.paths.native("C:\\RWGas\\ExpExcel");
  const QStringList files = QDir(folder).entryList({"*.xlsx"});
  ASSERT_EQ(files.size(), 1);
  QProcess unzip;
  unzip.start("unzip", {"-p", folder + '/' + files[0], "xl/worksheets/sheet1.xml"});
  ASSERT_TRUE(unzip.waitForFinished());
  const QString sheet = QString::fromUtf8(unzip.readAllStandardOutput());
  EXPECT_TRUE(sheet.contains("<c r=\"D2\"><v>1219.75</v>")) << sheet.toStdString();
  EXPECT_TRUE(sheet.contains("<v>118260</v>")) << "the total of three times 39,420";
}

TEST_F(ReportViewing, FiveThousandRowsStandAtOnce) {
  stageReadings(5000);
  tests::CpuClock since;
  frmReport* const form = show();
  ASSERT_TRUE(form);
  const qint64 opened = since.restart();
  tests::key(Qt::Key_End);
  QApplication::processEvents();
  const qint64 turned = since.elapsed();
  RecordProperty("opened_ms", int(opened));
  RecordProperty("turned_ms", int(turned));
  EXPECT_GE(label(form, "LblPage").section(' ', 0, 0).toInt(), 120);
  // Only the shown page is painted; the bounds leave room for a slow machine under sanitizers.
  EXPECT_LT(opened, 4000);
  EXPECT_LT(turned, 1000);
}

}  // namespace
