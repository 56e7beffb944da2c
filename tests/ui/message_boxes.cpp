// The real boxes, answered by posted keys.
#include "ui/forms/message_boxes.h"

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

namespace {

using tests::whenModal;

struct Boxes : ::testing::Test {
  static QString buttons(const QWidget& box) {
    QStringList words;
    for (const auto* const button : static_cast<const QMessageBox&>(box).buttons()) words << button->text();
    words.sort();
    return words.join(u' ');
  }
  MessageBoxes boxes{[] { return "해온판매"; }};
};

TEST_F(Boxes, EmptyTitleBecomesTheProgramsOwn) {
  QString title, text;
  whenModal([&](QWidget& box) {
    title = box.windowTitle();
    text = static_cast<QMessageBox&>(box).text();
    EXPECT_EQ(buttons(box), "확인");
    tests::grab(box, "box_info");
    QTest::keyClick(&box, Qt::Key_Return);
  });
  boxes.MsgInfo("처리완료");
  EXPECT_EQ(title, "해온판매");
  EXPECT_EQ(text, "처리완료");
}

TEST_F(Boxes, AnErrorIsNotedUnderTheInnermostFormBeforeItIsTold) {
  QStringList noted;
  MessageBoxes noting([] { return "해온판매"; },
                      [&](const QString& window, const jet::Error& error) {
                        noted << window + u' ' + QString::number(error.number());
                      });
  QWidget frame;
  frame.setObjectName("frmMain");
  auto* const form = new QWidget(&frame);
  form->setObjectName("FrmDealList");
  auto* const cell = new QLineEdit(form);
  cell->setObjectName("TxtName");
  tests::show(frame);
  cell->setFocus();
  QString shown;
  whenModal([&](QWidget& box) {
    EXPECT_EQ(noted, QStringList{"FrmDealList 3022"});
    shown = static_cast<QMessageBox&>(box).text();
    QTest::keyClick(&box, Qt::Key_Return);
  });
  EXPECT_FALSE(guarded(noting, [] { throw jet::Error(3022, "중복"); }));
  EXPECT_EQ(shown, "작업 중 오류가 발생했습니다.\n오류번호 : 3022\n오류내용 : 중복");
}

TEST_F(Boxes, EnterAnswersWithTheDefaultAndLettersAnswerBothWays) {
  const auto answer = [this](bool yesFirst, int key) {
    whenModal([key](QWidget& box) {
      EXPECT_EQ(buttons(box), "아니오(&N) 예(&Y)");
      tests::grab(box, "box_ask");
      QTest::keyClick(&box, Qt::Key(key));
    });
    return boxes.MsgAsk("계속하시겠습니까?", "체적관리자", yesFirst);
  };
  EXPECT_TRUE(answer(true, Qt::Key_Return));
  EXPECT_FALSE(answer(false, Qt::Key_Return));
  EXPECT_TRUE(answer(false, Qt::Key_Y));
  EXPECT_FALSE(answer(true, Qt::Key_N));
  EXPECT_FALSE(answer(true, Qt::Key_Escape));

  const auto ofThree = [this](int key) {
    whenModal([key](QWidget& box) {
      EXPECT_EQ(buttons(box), "아니오(&N) 예(&Y) 취소(&C)");
      QTest::keyClick(&box, Qt::Key(key));
    });
    return boxes.MsgYesNoCancel("저장하시겠습니까?", "체적관리자");
  };
  using Answer = Prompts::Answer;
  EXPECT_EQ(ofThree(Qt::Key_Return), Answer::Cancel);
  EXPECT_EQ(ofThree(Qt::Key_Escape), Answer::Cancel);
  EXPECT_EQ(ofThree(Qt::Key_C), Answer::Cancel);
  EXPECT_EQ(ofThree(Qt::Key_Y), Answer::Yes);
  EXPECT_EQ(ofThree(Qt::Key_N), Answer::No);
}

TEST_F(Boxes, ErrorBoxTellsNumberAndText) {
  QString title, text;
  whenModal([&](QWidget& box) {
    EXPECT_EQ(buttons(box), "확인");
    title = box.windowTitle();
    text = static_cast<QMessageBox&>(box).text();
    QTest::keyClick(&box, Qt::Key_Return);
  });
  boxes.ErrorBox("저장하지 못했습니다.", 3022, "중복된 값");
  EXPECT_EQ(title, "오류");
  EXPECT_EQ(text, "저장하지 못했습니다.\n오류번호 : 3022\n오류내용 : 중복된 값");
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
                            "Select * From Bank Where BName = '" + plainText("x' Or '1'='1") + "'"));
  EXPECT_TRUE(text.endsWith(")\nSelect * From Bank Where BName = 'x' Or '1'='1'")) << text.toStdString();
  EXPECT_EQ(text.count("Select"), 1);
}

TEST_F(Boxes, InputBoxHandsBackTheTextOrNothing) {
  whenModal([](QWidget& box) {
    tests::grab(box, "box_input");
    auto* const line = box.findChild<QLineEdit*>();
    line->setText("13579");
    QTest::keyClick(line, Qt::Key_Return);
  });
  EXPECT_EQ(boxes.InputBox("암호확인", "체적자료 클리어"), "13579");
  whenModal([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  EXPECT_EQ(boxes.InputBox("암호확인", {}), std::nullopt);
}

TEST_F(Boxes, CalendarOpensOnTheGivenDayAndTakesByEnter) {
  const QDate today(2026, 6, 15);
  const auto choose = [&](const QString& initial, int key) {
    whenModal([key](QWidget& box) {
      tests::grab(box, "frmCalendar");
      QWidget* const days = box.findChild<QWidget*>("qt_calendar_calendarview");
      ASSERT_TRUE(days);
      if (key != Qt::Key_Escape) QTest::keyClick(days, Qt::Key_Right);
      QTest::keyClick(days, Qt::Key(key));
    });
    return frmCalendar(boxes, initial, today);
  };
  EXPECT_EQ(choose("2026-02-28", Qt::Key_Return), "2026-03-01");
  EXPECT_EQ(choose("2026-02-30", Qt::Key_Return), "2026-06-16") << "no such day: today";
  EXPECT_EQ(choose({}, Qt::Key_Escape), std::nullopt);
}

TEST_F(Boxes, ProgressStopsOnlyWhereTheWorkMay) {
  FrmProgress fixed("월마감", 10, false);
  fixed.close();
  EXPECT_TRUE(fixed.isVisible());
  EXPECT_TRUE(fixed.step(10));
  FrmProgress free("자료 검색", 10, true);
  tests::grab(free, "FrmProgress");
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
  showFloatMsg("저장되었습니다.", 20, &window);
  auto* const notice = window.findChild<QWidget*>("frmFloatMsg");
  ASSERT_TRUE(notice && notice->isVisible());
  EXPECT_TRUE(box.hasFocus());
  EXPECT_TRUE(QTest::qWaitFor([&] { return !window.findChild<QWidget*>("frmFloatMsg"); }, 2000));
}

TEST_F(Boxes, PickerFindsTakesAndLeaves) {
  tests::TestPc at;
  SpreadModel rows;
  rows.setColumns({{.header = "은행명", .width = 20, .locked = true}});
  const auto run = [&](std::function<void(PickerDialog&)> act) {
    rows.clear();
    PickerDialog dialog("frmSearchBank", "은행 검색", at.session, rows, "SpBank");
    dialog.addFind("TxtFind", "은행명", [&](const QString& text) {
      rows.setRows({{text + u'1'}, {text + u'2'}});
      dialog.showFound();
    });
    whenModal([&](QWidget& box) { act(static_cast<PickerDialog&>(box)); });
    return dialog.pick();
  };
  EXPECT_EQ(run([](PickerDialog& box) {
              EXPECT_TRUE(box.findBox()->hasFocus());
              tests::compose({"ㅎ", "하"}, "한");
              EXPECT_EQ(box.grid()->model().MaxRows(), 0) << "a syllable being composed searches nothing";
              tests::key(Qt::Key_Return);
              EXPECT_TRUE(box.grid()->hasFocus());
              tests::key(Qt::Key_Down);
              tests::grab(box, "picker");
              tests::key(Qt::Key_Return);
            }),
            2);
  EXPECT_EQ(rows.text(2, 1), "한2");
  EXPECT_EQ(run([](PickerDialog&) { tests::keys({Qt::Key_Return, Qt::Key_Escape}); }), 0);
  EXPECT_EQ(run([](PickerDialog& box) {
              tests::key(Qt::Key_Return);
              QTest::mouseDClick(box.grid()->viewport(), Qt::LeftButton, {},
                                 box.grid()->cellRect(1, 1).center());
            }),
            1);
}

}  // namespace
