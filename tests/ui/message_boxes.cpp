// The real boxes, answered by posted keys.
#include "ui/forms/message_boxes.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCalendarWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>

#include <functional>

#include "store/data_access.h"
#include "tests/support.h"
#include "tests/ui/grab.h"
#include "tests/ui/modal.h"
#include "ui/forms/FrmProgress.h"
#include "ui/forms/frmCalendar.h"
#include "ui/forms/frmFloatMsg.h"
#include "ui/forms/guard.h"
#include "ui/forms/picker_dialog.h"

using namespace Qt::StringLiterals;

namespace {

using tests::whenModal;

struct Boxes : ::testing::Test {
  MessageBoxes boxes{[] { return u"해온판매"_s; }};
};

TEST_F(Boxes, EmptyTitleBecomesTheProgramsOwn) {
  QString title, text;
  whenModal([&](QWidget& box) {
    title = box.windowTitle();
    text = static_cast<QMessageBox&>(box).text();
    tests::grab(box, u"box_info"_s);
    QTest::keyClick(&box, Qt::Key_Return);
  });
  boxes.MsgInfo(u"처리완료"_s);
  EXPECT_EQ(title, u"해온판매"_s);
  EXPECT_EQ(text, u"처리완료"_s);
}

TEST_F(Boxes, AnErrorIsNotedUnderTheInnermostFormBeforeItIsTold) {
  QStringList noted;
  MessageBoxes noting([] { return u"해온판매"_s; },
                      [&](const QString& window, const jet::Error& error) {
                        noted << window + u' ' + QString::number(error.number());
                      });
  QWidget frame;
  frame.setObjectName(u"frmMain"_s);
  auto* const form = new QWidget(&frame);
  form->setObjectName(u"FrmDealList"_s);
  auto* const cell = new QLineEdit(form);
  cell->setObjectName(u"TxtName"_s);
  tests::show(frame);
  cell->setFocus();
  QString shown;
  whenModal([&](QWidget& box) {
    EXPECT_EQ(noted, QStringList{"FrmDealList 3022"});
    shown = static_cast<QMessageBox&>(box).text();
    QTest::keyClick(&box, Qt::Key_Return);
  });
  EXPECT_FALSE(guarded(noting, [] { throw jet::Error(3022, u"중복"_s); }));
  EXPECT_EQ(shown, "작업 중 오류가 발생했습니다.\n오류번호 : 3022\n오류내용 : 중복");
}

TEST_F(Boxes, EnterAnswersWithTheDefaultAndLettersAnswerBothWays) {
  const auto answer = [this](bool yesFirst, int key) {
    whenModal([key](QWidget& box) {
      tests::grab(box, u"box_ask"_s);
      QTest::keyClick(&box, Qt::Key(key));
    });
    return boxes.MsgAsk(u"계속하시겠습니까?"_s, u"체적관리자"_s, yesFirst);
  };
  EXPECT_TRUE(answer(true, Qt::Key_Return));
  EXPECT_FALSE(answer(false, Qt::Key_Return));
  EXPECT_TRUE(answer(false, Qt::Key_Y));
  EXPECT_FALSE(answer(true, Qt::Key_N));
  EXPECT_FALSE(answer(true, Qt::Key_Escape));
}

TEST_F(Boxes, ErrorBoxTellsNumberAndText) {
  QString title, text;
  whenModal([&](QWidget& box) {
    title = box.windowTitle();
    text = static_cast<QMessageBox&>(box).text();
    QTest::keyClick(&box, Qt::Key_Return);
  });
  boxes.ErrorBox(u"저장하지 못했습니다."_s, 3022, u"중복된 값"_s);
  EXPECT_EQ(title, u"오류"_s);
  EXPECT_EQ(text, u"저장하지 못했습니다.\n오류번호 : 3022\n오류내용 : 중복된 값"_s);
}

TEST_F(Boxes, ABrokenStatementStandsOnItsOwnLineAsItWasTyped) {
  tests::TestPc at;
  at.openBooks();
  QString text;
  whenModal([&](QWidget& box) {
    text = static_cast<QMessageBox&>(box).text();
    QTest::keyClick(&box, Qt::Key_Return);
  });
  jet::Recordset rs;
  EXPECT_FALSE(OpenSnapshot(boxes, at.session.dbBasic, rs,
                            u"Select * From Bank Where BName = '"_s + plainText(u"x' Or '1'='1"_s) + u"'"_s));
  EXPECT_TRUE(text.endsWith(u")\nSelect * From Bank Where BName = 'x' Or '1'='1'"_s)) << text.toStdString();
  EXPECT_EQ(text.count(u"Select"_s), 1);
}

TEST_F(Boxes, InputBoxHandsBackTheTextOrNothing) {
  whenModal([](QWidget& box) {
    tests::grab(box, u"box_input"_s);
    auto* const line = box.findChild<QLineEdit*>();
    line->setText(u"13579"_s);
    QTest::keyClick(line, Qt::Key_Return);
  });
  EXPECT_EQ(boxes.InputBox(u"암호확인"_s, u"체적자료 클리어"_s), u"13579"_s);
  whenModal([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  EXPECT_EQ(boxes.InputBox(u"암호확인"_s, {}), std::nullopt);
}

TEST_F(Boxes, CalendarOpensOnTheGivenDayAndTakesByEnter) {
  const QDate today(2026, 6, 15);
  const auto choose = [&](const QString& initial, int key) {
    whenModal([key](QWidget& box) {
      tests::grab(box, u"frmCalendar"_s);
      QWidget* const days = box.findChild<QWidget*>(u"qt_calendar_calendarview"_s);
      ASSERT_TRUE(days);
      if (key != Qt::Key_Escape) QTest::keyClick(days, Qt::Key_Right);
      QTest::keyClick(days, Qt::Key(key));
    });
    return frmCalendar(boxes, initial, today);
  };
  EXPECT_EQ(choose(u"2026-02-28"_s, Qt::Key_Return), u"2026-03-01"_s);
  EXPECT_EQ(choose(u"2026-02-30"_s, Qt::Key_Return), u"2026-06-16"_s) << "no such day: today";
  EXPECT_EQ(choose({}, Qt::Key_Escape), std::nullopt);
}

TEST_F(Boxes, ProgressStopsOnlyWhereTheWorkMay) {
  FrmProgress fixed(u"월마감"_s, 10, false);
  fixed.close();
  EXPECT_TRUE(fixed.isVisible());
  EXPECT_TRUE(fixed.step(10));
  FrmProgress free(u"자료 검색"_s, 10, true);
  tests::grab(free, u"FrmProgress"_s);
  tests::show(free);
  tests::key(Qt::Key_Return);
  EXPECT_TRUE(free.step(1)) << "an Enter held too long stops nothing";
  QTest::keyClick(&free, Qt::Key_Escape);
  EXPECT_TRUE(free.isVisible()) << "the work says when it ends";
  EXPECT_FALSE(free.step(5));
}

TEST_F(Boxes, NoticeGoesByItself) {
  QWidget window;
  QLineEdit box(&window);
  tests::show(window);
  box.setFocus();
  showFloatMsg(u"저장되었습니다."_s, 20, &window);
  auto* const notice = window.findChild<QWidget*>(u"frmFloatMsg"_s);
  ASSERT_TRUE(notice && notice->isVisible());
  EXPECT_TRUE(box.hasFocus());
  EXPECT_TRUE(QTest::qWaitFor([&] { return !window.findChild<QWidget*>(u"frmFloatMsg"_s); }, 2000));
}

TEST_F(Boxes, PickerFindsTakesAndLeaves) {
  tests::TestPc at;
  SpreadModel rows;
  rows.setColumns({{.header = u"은행명"_s, .width = 20, .locked = true}});
  const auto run = [&](std::function<void(PickerDialog&)> act) {
    rows.clear();
    PickerDialog dialog(u"frmSearchBank"_s, u"은행 검색"_s, at.session, rows, "SpBank");
    dialog.addFind("TxtFind", u"은행명"_s, [&](const QString& text) {
      rows.setRows({{text + u'1'}, {text + u'2'}});
      dialog.showFound();
    });
    whenModal([&](QWidget& box) { act(static_cast<PickerDialog&>(box)); });
    return dialog.pick();
  };
  EXPECT_EQ(run([](PickerDialog& box) {
              EXPECT_TRUE(box.findBox()->hasFocus());
              tests::compose({u"ㅎ"_s, u"하"_s}, u"한"_s);
              EXPECT_EQ(box.grid()->model().MaxRows(), 0) << "a syllable being composed searches nothing";
              tests::key(Qt::Key_Return);
              EXPECT_TRUE(box.grid()->hasFocus());
              tests::key(Qt::Key_Down);
              tests::grab(box, u"picker"_s);
              tests::key(Qt::Key_Return);
            }),
            2);
  EXPECT_EQ(rows.text(2, 1), u"한2"_s);
  EXPECT_EQ(run([](PickerDialog&) {
              tests::key(Qt::Key_Return);
              tests::key(Qt::Key_Escape);
            }),
            0);
  EXPECT_EQ(run([](PickerDialog& box) {
              tests::key(Qt::Key_Return);
              QTest::mouseDClick(box.grid()->viewport(), Qt::LeftButton, {},
                                 box.grid()->cellRect(1, 1).center());
            }),
            1);
}

}  // namespace
