// The windows of the papers without a scan line: bank, period, what is remembered, screen, PDF files.
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "giro/frmPrtJiro.h"
#include "giro/frmPrtJiroOrgA4.h"
#include "papers/form_document_run.h"
#include "store/options.h"
#include "tests/giro/giro_windows.h"
#include "ui/paper/page_view.h"
#include "ui/paper/pages_window.h"
#include "ui/paper/printers.h"

namespace {

using tests::box, tests::click, tests::part;

struct PlainGiroForms : testing::Test, tests::GiroWindows {
  PlainGiroForms() {
    front.window.add("달빛식당", "1234", "60590");
    front.window.add("별빛식당", "5", "1000");
  }
  static PagesWindow* preview(QWidget& form) { return form.findChild<PagesWindow*>(); }
};

TEST_F(PlainGiroForms, BankPeriodAndPaperOfJiro) {
  frmPrtJiro form(context);
  EXPECT_EQ(form.windowTitle(), "MICR");
  tests::show(form);
  EXPECT_EQ(box(form, "use_start") + '~' + box(form, "use_end"), "2026.02.01~2026.02.28");
  EXPECT_EQ(box(form, "TxtYear") + box(form, "TxtMon") + box(form, "TxtDay"), "20260316");
  EXPECT_EQ(box(form, "TxtBank"), "");
  click(form, "BtnRef");
  EXPECT_EQ(box(form, "TxtBank"), "") << "left without a choice";
  pickers.bank = BankChoice{"가람은행", "123-45", "해온가스"};
  click(form, "BtnRef");
  EXPECT_EQ(box(form, "TxtBank") + '|' + box(form, "TxtNumber") + '|' + box(form, "TxtUser"),
            "가람은행|123-45|해온가스");
  tests::grab(form, "frmPrtJiro");
  click(form, "BtnJiro");
  EXPECT_EQ(printers.jobs.back()->at(1, 28 / 15.0, 8.1 / 8)->text, "은행명 : 가람은행");
  EXPECT_EQ(printers.jobs.back()->pages, 1) << "the customer chosen";

  part<QCheckBox>(form, "chkMicr")->click();
  EXPECT_EQ(GetOption(session, "MICR용지", "0"), "1");
  click(form, "BtnJiro");
  EXPECT_EQ(printers.jobs.back()->at(1, 24 / 15.0, 2.8 / 8)->text, "2026년 03월 16일 ");

  prompts.expect("이 설정은 다음 달로", false);
  part<QRadioButton>(form, "OptDue1")->click();
  EXPECT_TRUE(part<QRadioButton>(form, "OptDue0")->isChecked()) << "a no puts it back";
  EXPECT_EQ(session.AfterDueMethod, 0);
  prompts.expect("이 설정은 다음 달로", true);
  part<QRadioButton>(form, "OptDue1")->click();
  EXPECT_EQ(session.AfterDueMethod, 1);
  EXPECT_EQ(setting("Config", "납기후금액계산법"), "1");
}

TEST_F(PlainGiroForms, TheA4FormRemembersItsBoxes) {
  {
    frmPrtJiroOrgA4 form(context);
    EXPECT_EQ(form.windowTitle(), "일반지로(A4) 발행");
    tests::show(form);
    EXPECT_EQ(box(form, "TxtUse1"), "2026.02.01") << "the month before the shown one";
    EXPECT_FALSE(form.findChild<QLabel*>("LblNote"));
    part<QCheckBox>(form, "chkNewPaper")->click();
    part<QCheckBox>(form, "chkPaperType")->click();
    part<QLineEdit>(form, "TxtUse1")->setText("2026.01.16");
    part<QLineEdit>(form, "TxtUse2")->setText("2026.02.15");
    QTest::keyClick(&form, Qt::Key_Escape);
  }
  EXPECT_EQ(setting("환경설정", "A4최신용지타입") + setting("환경설정", "A4지로용지타입") +
                setting("환경설정", "A4지로_사용기간From") + setting("환경설정", "A4지로_사용기간To"),
            "112026.01.162026.02.15");
  frmPrtJiroOrgA4 form(context);
  tests::show(form);
  EXPECT_TRUE(part<QCheckBox>(form, "chkNewPaper")->isChecked());
  EXPECT_TRUE(part<QCheckBox>(form, "chkPaperType")->isChecked());
  EXPECT_EQ(box(form, "TxtUse1") + '~' + box(form, "TxtUse2"), "2026.01.16~2026.02.15");
  EXPECT_TRUE(form.findChild<QLabel*>("LblNote")) << "an old period is told";
  pickers.bank = BankChoice{"나루은행", "2-2", "을"};
  click(form, "BtnRef2");
  EXPECT_EQ(box(form, "TxtBank2") + box(form, "TxtBank"), "나루은행");
  tests::grab(form, "frmPrtJiroOrgA4");
  click(form, "BtnJiro");
  EXPECT_EQ(printers.jobs.back()->at(1, 50 / 15.0, 13.3 / 8)->text, "나루은행");
  EXPECT_EQ(printers.jobs.back()->at(1, 18 / 15.0, 3.2 / 8)->text, "2026.01.16 - 2026.02.15");
  part<QCheckBox>(form, "chkThisMon")->click();
  EXPECT_EQ(box(form, "TxtUse1"), "2026.03.01");
}

TEST_F(PlainGiroForms, TheSameSlipsOnTheScreen) {
  frmPrtMicr form(context);
  EXPECT_EQ(form.windowTitle(), "MICR-A4");
  tests::show(form);
  tests::grab(form, "frmPrtMicr");
  set("DEVICENAME", "");
  part<QRadioButton>(form, "Opt4")->click();
  click(form, "BtnPreview");
  PagesWindow* window = preview(form);
  ASSERT_TRUE(window) << "needs no printer";
  EXPECT_EQ(window->windowTitle(), "MICR-A4 지로 미리보기");
  EXPECT_EQ(part<QLabel>(*window, "LblPage")->text(), "1 / 2");
  QApplication::processEvents();
  tests::grab(*window, "FrmPaperView");
  EXPECT_TRUE(printers.jobs.empty());
  set("DEVICENAME", "지로프린터");
  QTest::keyClick(window, Qt::Key_F10);
  ASSERT_EQ(printers.jobs.size(), 1u);
  EXPECT_EQ(printers.jobs[0]->pages, 2);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(preview(form)) << "it closes behind its print";
  front.window.rows.setMaxRows(0);
  prompts.expect("발행할 고객이 없습니다.");
  click(form, "BtnPreview");
  EXPECT_FALSE(preview(form));
}

TEST_F(PlainGiroForms, EachCustomersSlipIsAFileOfItsOwn) {
  PcPrinters real(pc);
  session.printers = &real;
  front.window.add("달빛식당", "7", "500");
  QDir(folder.path()).mkdir("pdf");
  const QDir pdf(folder.filePath("pdf"));
  QString offered;
  folderAsker() = [&](QWidget*, const QString& before) {
    offered = before;
    return pdf.path();
  };
  frmPrtJiroOrgA4 form(context);
  tests::show(form);
  part<QRadioButton>(form, "Opt4")->click();
  click(form, "BtnPdf");
  EXPECT_EQ(pdf.entryList({"*.pdf"}),
            (QStringList{"2026-03-16 달빛식당 지로 (2).pdf", "2026-03-16 달빛식당 지로.pdf",
                         "2026-03-16 별빛식당 지로.pdf"}))
      << "two customers of one name, and nothing is written over";
  const QStringList pages = tests::pdfPages(pdf.filePath("2026-03-16 별빛식당 지로.pdf"));
  ASSERT_EQ(pages.size(), 1);
  EXPECT_TRUE(pages[0].contains("별빛식당 님") && !pages[0].contains("달빛식당"));
  click(form, "BtnPdf");
  EXPECT_EQ(pdf.count(), 6u + 2) << "once more beside them";
  EXPECT_EQ(offered, pdf.path()) << "the place of before";
  folderAsker() = [](QWidget*, const QString&) { return QString(); };
  click(form, "BtnPdf");
  EXPECT_EQ(pdf.count(), 6u + 2);

  real.askFile = [&](const QString& title) {
    offered = title;
    return pdf.filePath("mine.pdf");
  };
  part<QRadioButton>(form, "Opt1")->click();
  click(form, "BtnPdf");
  EXPECT_TRUE(QTest::qWaitFor([&] {
    const auto* const notice = form.findChild<QLabel*>("pnlCaption");
    return notice && notice->text() == "고객 1명의 지로를 PDF로 저장하였습니다.";
  }));
  EXPECT_EQ(offered, "2026-03-16 달빛식당 지로");
  EXPECT_TRUE(pdf.exists("mine.pdf"));
}

TEST_F(PlainGiroForms, EveryPaperAsPdfReadBack) {
  PcPrinters real(pc);
  session.printers = &real;
  set("DEVICENAME", pdfPrinterName());
  session.dbBasic.Execute(
      "Insert Into Bank(BName, BNumber, BUser) Values('가람은행', '123-45-678', '해온가스')");
  front.window.rows.setText(2, EvaCol::PayWay, "3");
  const auto printed = [&](QDialog& form, const QString& name) {
    const QStringList pages = allAsPdf(form, name);
    EXPECT_FALSE(pages.isEmpty()) << name.toStdString();
    // 2% of 60,590 is 1,211, cut to ten
    for (const char* text : {"60,590", "1,210", "61,800", "0001234", "달빛식당", "가람은행", "123-45-678"})
      EXPECT_TRUE(pages.value(0).contains(QString::fromUtf8(text))) << name.toStdString() << ' ' << text;
    EXPECT_TRUE(pages.value(pages.size() - 1).contains("(자동이체)"));
    return pages;
  };
  frmPrtJiro jiro(context);
  EXPECT_EQ(printed(jiro, "jiro").size(), 2);
  part<QCheckBox>(jiro, "chkMicr")->click();
  EXPECT_TRUE(printed(jiro, "jiro-micr")[0].contains("2026년 03월 16일"));
  frmPrtJiroOrg org(context);
  EXPECT_EQ(org.windowTitle(), "일반지로");
  tests::show(org);
  tests::grab(org, "frmPrtJiroOrg");
  EXPECT_TRUE(printed(org, "org")[0].contains("달빛식당 님"));
  frmPrtJiroOrgA4 orgA4(context);
  const QStringList sheet = printed(orgA4, "org-a4");
  EXPECT_EQ(sheet.size(), 1);
  for (const char* text : {"안전관리비", "문의전화 :", "053-700-0000"})
    EXPECT_TRUE(sheet[0].contains(QString::fromUtf8(text))) << text;
  frmPrtMicr micr(context);
  EXPECT_TRUE(printed(micr, "micr-a4")[0].contains("2026.03.16"));
}

}  // namespace
