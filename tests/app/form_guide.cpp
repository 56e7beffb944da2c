// F1 and the guide, the first steps: by keys on the real windows.
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTimer>

#include "app/FrmFirstSteps.h"
#include "app/FrmGuide.h"
#include "app/form_help_key.h"
#include "app/form_pickers.h"
#include "app/form_table.h"
#include "app/frmMain.h"
#include "app/guide_chapters.h"
#include "tests/idle_context.h"
#include "tests/support.h"
#include "tests/ui/grab.h"
#include "ui/forms/message_boxes.h"

namespace {

struct GuideWindow : testing::Test, tests::TestPc {
  FormPickers pickers{session};
  std::unique_ptr<frmMain> window;
  HelpKey help{prompts, [this] { return window ? window->activeForm() : nullptr; }};

  GuideWindow() {
    openBooks();
    window = std::make_unique<frmMain>(session, pickers);
    pickers.setContext(window->context());
    window->openGuide = [this] { help.open(); };
    qApp->installEventFilter(&help);
    tests::show(*window);
  }
  ~GuideWindow() override { qApp->removeEventFilter(&help); }

  static FrmGuide* guide() {
    for (QWidget* each : QApplication::topLevelWidgets())
      if (each->objectName() == "FrmGuide" && each->isVisible()) return static_cast<FrmGuide*>(each);
    return nullptr;
  }
  static QString chapter() {
    const auto* list = guide() ? guide()->findChild<QListWidget*>("LstChapters") : nullptr;
    return list && list->currentItem() ? list->currentItem()->text().trimmed() : QString();
  }
  /** The text at the top of the page. */
  static QString top() {
    auto* text = guide()->findChild<QTextBrowser*>("TxtGuide");
    return text->cursorForPosition({30, 12}).block().text();
  }
  /** F1 while a modal window stands: the chapter that the guide on it shows. */
  QString chapterOver(const std::function<void()>& open) {
    QString shown;
    QTimer::singleShot(0, window.get(), [&] {
      QWidget* const modal = QApplication::activeModalWidget();
      ASSERT_TRUE(modal);
      QTimer::singleShot(0, modal, [&] {
        if (guide()) QTest::keyClick(guide(), Qt::Key_F1);  // no guide on the guide
        EXPECT_EQ(QApplication::activeModalWidget(), guide());
        shown = chapter();
        if (guide()) guide()->reject();
      });
      QTest::keyClick(modal, Qt::Key_F1);
      modal->close();
    });
    open();
    return shown;
  }
};

TEST_F(GuideWindow, F1OpensTheChapterOfWhatIsInFront) {
  QTest::keyClick(window.get(), Qt::Key_F1);
  EXPECT_EQ(chapter(), "처음 시작");
  EXPECT_EQ(top(), "처음 시작");
  session.dbBasic.Execute("Insert Into User(Company) Values('해온가스')");
  ASSERT_TRUE(window->run("MnuIndivisualCheck"));
  tests::show(*window);
  FrmGuide* const before = guide();
  tests::key(Qt::Key_F1);
  EXPECT_EQ(chapter(), "검침");
  EXPECT_EQ(top(), "검침");
  EXPECT_EQ(guide(), before) << "one guide beside the main window";
  guide()->close();
  EXPECT_EQ(chapterOver([this] { pickers.pickDate("2026-03-14"); }), "고객");
  EXPECT_EQ(chapterOver([this] { pickers.checkPassword(); }), "사용자 등록과 환경설정");
  EXPECT_EQ(chapterOver([this] {
              MessageBoxes([] { return QString(); }).InputBox("검침담당자를 입력하세요", "검침담당");
            }),
            "검침")
      << "a box without a chapter has that of the form behind it";
  EXPECT_TRUE(window->run("mnuGuide"));
  EXPECT_EQ(chapter(), "검침");
}

TEST_F(GuideWindow, EveryFormOfTheMenuHasItsChapter) {
  for (const auto& entry : commandMap()) {
    const QString form = entry.formName().section(u':', 0, 0);
    if (findForm(form)) {
      EXPECT_NE(guideChapter(form), "") << form.toStdString();
    }
  }
}

TEST_F(GuideWindow, ABoxLeadsToTheLineThatExplainsIt) {
  QString marked, shown;
  QTimer::singleShot(0, window.get(), [&] {
    QWidget* const box = QApplication::activeModalWidget();
    ASSERT_TRUE(box);
    QTimer::singleShot(0, box, [&] {
      ASSERT_TRUE(guide());
      shown = chapter();
      marked = guide()->findChild<QTextBrowser*>("TxtGuide")->textCursor().selectedText();
      guide()->reject();
    });
    QTest::keyClick(box, Qt::Key_F1);
    QTest::keyClick(box, Qt::Key_Escape);
  });
  MessageBoxes([] { return QString(); }).MsgWarn("Password가 일치하지 않습니다!");
  EXPECT_EQ(shown, "알림과 할 일");
  EXPECT_EQ(marked, "Password가 일치하지 않습니다!");
}

TEST_F(GuideWindow, ItIsSearchedByKeysAndItsLinksLead) {
  FrmGuide own(prompts);
  tests::show(own);
  tests::grab(own, "FrmGuide-top");
  auto* text = own.findChild<QTextBrowser*>("TxtGuide");
  auto* find = own.findChild<QLineEdit*>("TxtFind");
  tests::key(Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(QApplication::focusWidget(), find);
  find->setText("사용량 수정");
  const int places = own.findChild<QLabel*>("LblFound")->text().chopped(1).toInt();
  EXPECT_GE(places, 2);
  QList<int> met;
  for (int step = 0; step < places; ++step) {
    tests::key(Qt::Key_Return);
    met << text->textCursor().position();
    EXPECT_EQ(text->textCursor().selectedText(), "사용량 수정");
  }
  EXPECT_TRUE(std::is_sorted(met.begin(), met.end()));
  tests::key(Qt::Key_F3);
  EXPECT_EQ(text->textCursor().position(), met.first()) << "over the end";
  tests::key(Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(text->textCursor().position(), met.last());
  find->setText("그런 말은 없다");
  EXPECT_EQ(own.findChild<QLabel*>("LblFound")->text(), "없음");
  tests::key(Qt::Key_Return);

  Q_EMIT text->anchorClicked(QUrl("#가스자재체적단가"));
  EXPECT_EQ(own.findChild<QListWidget*>("LstChapters")->currentItem()->text(), "가스·자재·체적단가");
  own.showChapter("검침");
  tests::grab(own, "FrmGuide");
  tests::key(Qt::Key_Escape);
  EXPECT_FALSE(own.isVisible());
}

TEST_F(GuideWindow, ANewShopIsLedFromStepToStepAndMayLeave) {
  window->start();
  ASSERT_TRUE(window->activeForm());
  auto* road = dynamic_cast<FrmFirstSteps*>(window->activeForm());
  ASSERT_TRUE(road);
  tests::show(*window);
  const auto sign = [&](int step) {
    return road->findChild<QLabel*>("LblSign" + QString::number(step))->text();
  };
  const auto button = [&](int step) {
    return road->findChild<QPushButton*>("BtnStep" + QString::number(step));
  };
  EXPECT_TRUE(button(1)->hasFocus());
  EXPECT_EQ(sign(1) + sign(2), "12");
  tests::grab(*road, "FrmFirstSteps-new");
  tests::keys({Qt::Key_Down, Qt::Key_Return});
  EXPECT_EQ(window->activeForm()->objectName(), "frmGasUtil");
  session.dbBasic.Execute("Insert Into LPG(LPGName, Size) Values('LPG', '20')");
  session.dbBasic.Execute("Insert Into User(Company) Values('해온가스')");
  window->activeForm()->close();
  QTRY_VERIFY(window->activeForm() == road);
  QTRY_VERIFY(button(3)->hasFocus());
  EXPECT_EQ(sign(1) + sign(2) + sign(3), "✓✓3");
  EXPECT_EQ(road->findChild<QLabel*>("LblCount2")->text(), "1건");

  road->askFile = [this] { return folder.filePath("none.mdb"); };
  prompts.expect("우편번호가 들어 있는 파일이 아닙니다.");
  button(5)->click();
  tests::grab(*road, "FrmFirstSteps");
  tests::key(Qt::Key_Escape);
  QTRY_VERIFY(!window->activeForm());
  window->start();
  EXPECT_FALSE(window->activeForm()) << "not a second time once something was entered";
  EXPECT_TRUE(window->run("mnuFirstSteps"));
}

}  // namespace
