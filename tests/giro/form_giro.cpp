// The windows of the slips, driven by keys and mouse; both papers printed as PDF and read back.
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include "giro/frmPrtChange.h"
#include "giro/frmPrtJiroOCR.h"
#include "papers/FrmMargin.h"
#include "papers/FrmPrintSection.h"
#include "papers/FrmSetPrinter.h"
#include "papers/paper_printer.h"
#include "tests/giro/giro_windows.h"
#include "ui/grid/spread.h"
#include "ui/paper/printers.h"

namespace {

using tests::box, tests::click, tests::part;

struct GiroForms : testing::Test, tests::GiroWindows {};

TEST_F(GiroForms, BoxesBeginWithTodayAndTheUseMonth) {
  frmPrtJiroOCR form(context);
  tests::show(form);
  EXPECT_EQ(box(form, "TxtYear"), "2026");
  EXPECT_EQ(box(form, "TxtMon"), "03");
  EXPECT_EQ(box(form, "TxtDay"), "16");
  auto* from = part<QLineEdit>(form, "TxtUse1");
  EXPECT_EQ(from->text(), "2026.02.01");
  part<QCheckBox>(form, "chkThisMon")->click();
  EXPECT_EQ(from->text(), "2026.03.01") << "the shown month";
  EXPECT_EQ(setting("환경설정", "OCRA4지로_당월기본"), "1");
  part<QComboBox>(form, "cmbUseMon")->setCurrentIndex(0);
  EXPECT_EQ(box(form, "TxtUse2"), "2026.01.31");

  const auto way = [&](const char* from, Qt::Key by, int steps) {
    part<QWidget>(form, from)->setFocus();
    QStringList names;
    for (int step = 0; step < steps; ++step) {
      tests::key(by);
      names << tests::focused();
    }
    return names.join(' ');
  };
  EXPECT_EQ(way("TxtYear", Qt::Key_Return, 7), "TxtMon TxtDay cmbUseMon TxtUse1 TxtUse2 chkThisMon BtnJiro");
  EXPECT_EQ(way("TxtYear", Qt::Key_Tab, 8),
            "TxtMon TxtDay cmbUseMon TxtUse1 TxtUse2 chkThisMon Opt1 SpreadLine")
      << "a note's cell is open";
  EXPECT_EQ(way("BtnPrtChange", Qt::Key_Tab, 5), "BtnPrinter BtnPreview BtnPdf BtnJiro BtnExit");
  EXPECT_TRUE(form.isVisible()) << "Enter leaves a box, not the window";
  click(form, "BtnPrinter");
  set("DEVICENAME", "새 프린터");
  click(form, "BtnPrtChange");
  EXPECT_EQ(front.asked, (QStringList{"FrmSetPrinter", "frmPrtChange"}));
  EXPECT_EQ(part<QLabel>(form, "LblPrinter")->text(), "지로프린터 : 새 프린터");
}

TEST_F(GiroForms, TheButtonPrintsWhatIsTyped) {
  for (int i = 1; i <= 3; ++i)
    front.window.rows.setText(front.window.add("고객", QString::number(i), "1000"), EvaCol::Prnt,
                              i == 2 ? "1" : "0");
  front.window.active = 3;
  frmPrtJiroOCR form(context);
  form.showPage("continuous");
  tests::show(form);
  auto* notes = part<Spread>(form, "TxtAnnounce");
  notes->setFocus();
  notes->setActiveCell(1, 1);
  tests::compose({"ㄱ", "가"}, "감사합니다");
  part<QLineEdit>(form, "TxtDay")->setText("25");
  click(form, "BtnJiro");  // the note is still open
  ASSERT_EQ(printers.jobs.size(), 1u);
  EXPECT_EQ(printers.jobs[0]->at(1, 62 / 15.0, 10 / 8.0)->text, "감사합니다");
  EXPECT_EQ(printers.jobs[0]->at(1, 19 / 15.0, 5 / 8.0)->text, "25");
  EXPECT_EQ(printers.jobs[0]->at(1, 7 / 15.0, 16 / 8.0)->text, "0000003") << "the customer chosen";
  part<QLineEdit>(form, "TxtMon")->setText("2");
  part<QLineEdit>(form, "TxtDay")->setText("30");
  prompts.expect("납부마감일이 올바른 날짜가 아닙니다.", false);
  click(form, "BtnJiro");
  EXPECT_EQ(form.focusWidget()->objectName(), "TxtYear") << "where it is mended";
  EXPECT_EQ(printers.jobs.size(), 1u);
  part<QLineEdit>(form, "TxtDay")->setText("28");
  part<QRadioButton>(form, "Opt3")->click();
  click(form, "BtnJiro");
  EXPECT_EQ(printers.jobs[1]->pages, 2) << "those without a tick";

  printers.refusal = "꺼져 있습니다.";
  prompts.expect("꺼져 있습니다.");
  click(form, "BtnJiro");
  EXPECT_TRUE(form.isVisible());

  part<Spread>(form, "TxtAnnounce")->model().setText(8, 1, "문의 053-700-0000");
  QTest::keyClick(&form, Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
  frmPrtJiroOCR again(context);
  const SpreadModel& kept = part<Spread>(again, "TxtAnnounce")->model();
  EXPECT_EQ(kept.text(1, 1) + '|' + kept.text(2, 1) + '|' + kept.text(8, 1), "감사합니다||문의 053-700-0000");
}

TEST_F(GiroForms, TheProgressBarStopsTheRunBetweenSlips) {
  for (int i = 1; i <= 50; ++i) front.window.add("고객", QString::number(i), "1000");
  frmPrtJiroOCR form(context);
  tests::show(form);
  part<QRadioButton>(form, "Opt4")->click();
  QTimer::singleShot(0, &form, [] {
    if (QWidget* bar = QApplication::activeModalWidget()) click(*bar, "BtnStop");
  });
  click(form, "BtnJiro");
  ASSERT_EQ(printers.jobs.size(), 1u);
  EXPECT_EQ(printers.jobs[0]->pages, 1);
  EXPECT_TRUE(printers.jobs[0]->ended) << "what is printed goes out";
}

TEST_F(GiroForms, BothPapersAsPdfReadBack) {
  PcPrinters real(pc);
  session.printers = &real;
  set("DEVICENAME", pdfPrinterName());
  front.window.shownBook = HouseStyle::Apartment;
  front.window.entry = "행복아파트";
  front.window.add("101동 203호", "1234", "60590");
  front.window.add("101동 204호", "5", "0");
  front.window.rows.setText(front.window.add("102동 1507호", "70123", "123456780"), EvaCol::PayWay, "3");
  for (const QString paper : {"continuous", "a4"}) {
    frmPrtJiroOCR form(context);
    form.showPage(paper);
    EXPECT_EQ(form.windowTitle(), paper == "a4" ? "OCR-A4" : "OCR");
    part<Spread>(form, "TxtAnnounce")->model().setText(1, 1, "가스 사용에 늘 감사드립니다.");
    part<Spread>(form, "TxtAnnounce")->model().setText(2, 1, "문의 053-700-0000");
    tests::show(form);
    tests::grab(form, "frmPrtJiroOCR-" + paper);
    const QStringList pages = allAsPdf(form, paper);
    ASSERT_EQ(pages.size(), paper == "a4" ? 2 : 3);
    // 60590 weighs 0 + 27 + 5 + 0 + 18 = 50; 2% or 3% of it is charged after the due date: here 3%, 1,810 by ten
    EXPECT_TRUE(pages[0].contains(QRegularExpression("<1234567\\+ +\\+12344\\+ +\\+605900< +<11<")))
        << pages[0].toStdString();
    for (const char* text : {"60,590", "1,810", "62,400", "0001234", "행복아파트 101동", "감사드립니다."})
      EXPECT_TRUE(pages[0].contains(QString::fromUtf8(text))) << text << '\n' << pages[0].toStdString();
    EXPECT_TRUE(pages.last().contains("(자동이체)"));
  }
}

TEST_F(GiroForms, GiroPrinterIsChosenWithItsPlace) {
  set("DEVICENAME", "");
  frmPrtChange form(context);
  tests::show(form);
  auto* list = part<QListWidget>(form, "LstPrt");
  EXPECT_EQ(list->count(), printers.installed.size());
  prompts.expect("프린터를 선택해 주십시오");
  click(form, "BtnPrt");
  EXPECT_TRUE(prompts.seen.last().startsWith("인쇄 관리자|"));
  EXPECT_EQ(setting("프린터설정", "DEVICENAME"), "");

  part<QLineEdit>(form, "TxtTop")->setFocus();
  part<QLineEdit>(form, "TxtLeft")->setFocus();
  EXPECT_EQ(box(form, "TxtTop"), "0") << "left empty";
  tests::type("-1.5");
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Down);
  tests::grab(form, "frmPrtChange");
  prompts.expect("프린터가 설정되었습니다.");
  click(form, "BtnPrt");
  EXPECT_EQ(setting("프린터설정", "DEVICENAME"), list->currentItem()->text());
  EXPECT_EQ(setting("프린터설정", "TOP"), "0");
  EXPECT_EQ(setting("프린터설정", "LEFT"), "-1.5");
  frmPrtChange again(context);
  EXPECT_EQ(part<QListWidget>(again, "LstPrt")->currentRow(), list->currentRow());
  EXPECT_EQ(box(again, "TxtLeft"), "-1.5");
}

TEST_F(GiroForms, EachDocumentHasItsPrinterAndMargins) {
  FrmSetPrinter printer(context);
  printer.showPage("세금계산서");
  tests::show(printer);
  EXPECT_EQ(part<QLabel>(printer, "Spn기본프린터")->text(), "지로프린터");
  auto* list = part<QListWidget>(printer, "List1");
  QStringList kinds;
  for (int i = 0; i < list->count(); ++i) kinds << list->item(i)->text();
  EXPECT_EQ(kinds, (QStringList{"거래명세표", "세금계산서", "청구서", "물품가격", "DM인쇄"}));
  part<QComboBox>(printer, "CboPrinter")->setCurrentText("PDF 파일");
  click(printer, "Command1");
  EXPECT_EQ(setting("Drive", "세금계산서"), "PDF 파일");
  EXPECT_EQ(part<QLabel>(printer, "LblChosen")->text(), "PDF 파일");
  EXPECT_EQ(setting("Drive", "거래명세표"), "");
  tests::grab(printer, "FrmSetPrinter");
  list->setCurrentRow(0);
  EXPECT_EQ(part<QComboBox>(printer, "CboPrinter")->currentText(), "지로프린터") << "none yet: the PC's own";
  setDocumentPrinter(session, "청구서", "치운 프린터");
  list->setCurrentRow(2);
  EXPECT_EQ(part<QLabel>(printer, "LblChosen")->text(), "치운 프린터");
  EXPECT_EQ(part<QComboBox>(printer, "CboPrinter")->currentText(), "")
      << "another kind's printer is not offered";
  prompts.expect("프린터를 선택해 주십시오");
  click(printer, "Command1");
  EXPECT_EQ(setting("Drive", "청구서"), "치운 프린터");

  pc.settings.SaveSetting("해온판매", "거래명세표", "TopMargin", "3");
  FrmMargin margin(context);
  tests::show(margin);
  EXPECT_EQ(box(margin, "TxtTop"), "3");
  part<QListWidget>(margin, "List1")->setCurrentRow(4);
  EXPECT_EQ(box(margin, "TxtTop"), "");
  part<QLineEdit>(margin, "TxtTop")->setText("1");
  part<QLineEdit>(margin, "TxtLeft")->setText("2.5");
  tests::grab(margin, "FrmMargin");
  part<QListWidget>(margin, "List1")->setCurrentRow(1);
  part<QLineEdit>(margin, "TxtTop")->setText("7");
  part<QListWidget>(margin, "List1")->setCurrentRow(4);
  EXPECT_EQ(box(margin, "TxtLeft"), "2.5") << "what was typed for another kind waits";
  click(margin, "Cmd설정");
  EXPECT_EQ(setting("세금계산서", "TopMargin"), "7");
  EXPECT_EQ(setting("DM인쇄", "TopMargin") + '/' + setting("DM인쇄", "LeftMargin"), "1/2.5");
  EXPECT_EQ(setting("거래명세표", "TopMargin"), "3");
  EXPECT_FALSE(margin.isVisible());
}

TEST_F(GiroForms, ProductListsAreToldApart) {
  FrmPrintSection form(context);
  tests::show(form);
  tests::grab(form, "FrmPrintSection");
  click(form, "btnPrint2");
  EXPECT_EQ(form.result(), FrmPrintSection::ProductList);
  form.show();
  click(form, "btnPrint1");
  EXPECT_EQ(form.result(), FrmPrintSection::ByCategory);
  form.show();
  QTest::keyClick(&form, Qt::Key_Escape);
  EXPECT_EQ(form.result(), FrmPrintSection::Cancelled);
}

}  // namespace
