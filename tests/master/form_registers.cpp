// Every register in the main window, worked by keys alone: list, boxes, pages, buttons, options; and what was typed goes
// only after a question.
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "app/frmMain.h"
#include "tests/answers.h"
#include "tests/idle_context.h"
#include "tests/support.h"
#include "tests/ui/grab.h"
#include "ui/forms/form.h"

using namespace Qt::StringLiterals;

namespace {

struct RegisterWindow {
  const char* form;
  int pages;
};
const RegisterWindow registerWindows[] = {{"frmClient", 3}, {"frmGasUtil", 2},     {"frmHouseStyle", 2},
                                          {"frmVolume", 1}, {"frmRefillState", 1}, {"frmResponse", 1},
                                          {"frmBank", 1}};

struct Registers : testing::TestWithParam<RegisterWindow>, tests::TestPc {
  void SetUp() override {
    openBooks(QDate(2026, 6, 15));
    const auto fill = [this](const QString& into, const QStringList& rows) {
      tests::insertRows(session.dbBasic, into, rows);
    };
    fill("LPG(LPGName, Size, LPGPurchase, CANFull)", {"'LPG', '20', 30000, 10", "'LPG', '50', 70000, 5"});
    fill("Util(Name, Size, UtilStock)", {"'밸브', '15A', 48", "'호스', '3m', 9"});
    fill("RefillState(Company, Code, GasInit)",
         {"'한강충전소', '0001', 1000000", "'북한산충전소', '0002', Null"});
    fill("Response(Name)", {"'김배달'", "'박기사'"});
    fill("Bank(BName, BNumber)", {"'국민은행', '001'", "'농협', '002'"});
    fill("APT(Name, Dong, PostCode, Address, Structure, Height, Width, Gubun)",
         {"'한빛', '101', '700-010', '동인동 1', False, 5, 2, True",
          "'한빛', '102', '700-010', '동인동 1', False, 5, 2, True",
          "'달빛', '1', '700-010', '동인동 2', False, 2, 2, False",
          "'달빛', '2', '700-010', '동인동 2', False, 2, 2, False"});
    for (int style = 0; style < 3; ++style)
      for (int i = 1; i < 3; ++i)
        fill("Client(Name, BDName, Dong, Ho, HouseStyle, PayWay, Tel)",
             {u"'고객%2', '한빛', '101', '10%2', %1, 2, '0531234%1%2'"_s.arg(style).arg(i)});
    window = std::make_unique<frmMain>(session, pickers);
    window->resize(1280, 860);
    tests::show(*window);
    ASSERT_TRUE(window->openForm(GetParam().form));
    QApplication::processEvents();
    form = dynamic_cast<Form*>(window->activeForm());
    ASSERT_TRUE(form);
  }
  void TearDown() override {
    window->setSilentClose();
    form = nullptr;
    window.reset();
  }
  void turnTo(int page) {
    if (page > 0) tests::key(Qt::Key(Qt::Key_1 + page), Qt::AltModifier);
    QApplication::processEvents();  // the buttons come along
  }
  static QWidget* focused() { return QApplication::focusWidget(); }
  static bool inList() {
    return focused() && dynamic_cast<Spread*>(focused()->parentWidget()->parentWidget());
  }
  static Spread* list() { return dynamic_cast<Spread*>(focused()->parentWidget()->parentWidget()); }
  /** From the list into the boxes, on to the first that takes any text. */
  QLineEdit* intoATextBox() {
    tests::key(Qt::Key_Return);
    for (int next = 0; next < 20; ++next) {
      auto* const line = qobject_cast<QLineEdit*>(focused());
      if (line && !line->isReadOnly() && !line->validator() && line->inputMask().isEmpty()) return line;
      tests::key(Qt::Key_Return);
    }
    ADD_FAILURE() << "no box";
    return nullptr;
  }

  tests::IdlePickers pickers;
  std::unique_ptr<frmMain> window;
  Form* form = nullptr;
};

INSTANTIATE_TEST_SUITE_P(Windows, Registers, testing::ValuesIn(registerWindows),
                         [](const auto& info) { return std::string(info.param.form); });

TEST_P(Registers, TheListHasTheFocusEnterGoesToTheBoxesEscBackTabLeaves) {
  for (int page = 0; page < GetParam().pages; ++page) {
    SCOPED_TRACE(page);
    turnTo(page);
    ASSERT_TRUE(inList()) << "at the start";
    Spread* const grid = list();
    EXPECT_EQ(grid->activeRow(), 1);
    tests::key(Qt::Key_Down);
    EXPECT_EQ(grid->activeRow(), 2);
    tests::key(Qt::Key_Return);
    ASSERT_FALSE(inList());
    EXPECT_TRUE(form->isAncestorOf(focused()));
    tests::key(Qt::Key_Escape);
    ASSERT_TRUE(inList());
    EXPECT_EQ(grid->activeRow(), 2) << "the line stays";
    tests::key(Qt::Key_Tab);
    EXPECT_FALSE(inList());
    EXPECT_TRUE(form->isAncestorOf(focused()));
    tests::key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(inList());
  }
}

TEST_P(Registers, EnterWalksOverEveryBoxToTheSaveButton) {
  for (int page = 0; page < GetParam().pages; ++page) {
    SCOPED_TRACE(page);
    turnTo(page);
    tests::key(Qt::Key_N, Qt::AltModifier);
    tests::type("7");
    QList<QWidget*> seen;
    for (int step = 0; step < 40 && focused()->objectName() != "BtnSave"; ++step) {
      ASSERT_FALSE(seen.contains(focused())) << focused()->objectName().toStdString();
      seen << focused();
      if (auto* const option = qobject_cast<QRadioButton*>(focused())) {
        EXPECT_TRUE(option->isChecked()) << "a group is entered at the option that is on";
        tests::key(Qt::Key_Right);
        EXPECT_TRUE(qobject_cast<QRadioButton*>(focused()) && focused() != option);
        EXPECT_FALSE(option->isChecked());
        seen << focused();
      }
      tests::key(Qt::Key_Return);
    }
    ASSERT_EQ(focused()->objectName(), "BtnSave");
    for (QLineEdit* const box : form->findChildren<QLineEdit*>()) {
      const bool ofAGrid = dynamic_cast<Spread*>(box->parentWidget()->parentWidget());
      if (box->isVisible() && box->isEnabled() && !box->isReadOnly() && !ofAGrid) {
        EXPECT_TRUE(seen.contains(box)) << box->objectName().toStdString();
      }
    }
    prompts.expect("저장하지 않고 버리시겠습니까?");
    tests::key(Qt::Key_Escape);
    EXPECT_TRUE(inList());
  }
}

TEST_P(Registers, AltLettersAreTheirOwn) {
  for (int page = 0; page < GetParam().pages; ++page) {
    turnTo(page);
    QMap<QString, QString> letters;
    const auto take = [&](const QString& text, const QString& whose) {
      const QString letter = QKeySequence::mnemonic(text).toString();
      if (letter.isEmpty()) return;
      EXPECT_FALSE(letters.contains(letter))
          << letter.toStdString() << ": " << letters[letter].toStdString() << " and " << whose.toStdString();
      letters[letter] = whose;
    };
    for (const QAction* const menu : window->menuBar()->actions()) take(menu->text(), menu->text());
    for (const auto* const button : form->findChildren<QAbstractButton*>())
      if (button->isVisible()) take(button->text(), button->objectName());
    for (const auto* const label : form->findChildren<QLabel*>())
      if (label->isVisible() && label->buddy()) take(label->text(), label->text());
    for (const auto* const tabs : form->findChildren<QTabWidget*>())
      for (int tab = 0; tab < tabs->count(); ++tab) take(tabs->tabText(tab), tabs->tabText(tab));
    for (const auto* const button : form->findChildren<QPushButton*>()) {
      if (button->isVisible()) {
        EXPECT_FALSE(QKeySequence::mnemonic(button->text()).isEmpty()) << button->objectName().toStdString();
      }
    }
  }
}

TEST_P(Registers, WhatWasTypedGoesOnlyAfterAQuestion) {
  const QString question = "저장하지 않고 버리시겠습니까?";
  for (const bool fresh : {false, true}) {
    SCOPED_TRACE(fresh);
    ASSERT_TRUE(inList());
    Spread* const grid = list();
    if (fresh) tests::key(Qt::Key_N, Qt::AltModifier);
    QLineEdit* const box = fresh ? qobject_cast<QLineEdit*>(focused()) : intoATextBox();
    ASSERT_TRUE(box);
    box->selectAll();
    tests::type("abc");
    const auto stays = [&](const char* how) {
      EXPECT_EQ(box->text(), "abc") << how;
      EXPECT_TRUE(box->isVisible()) << how;
    };
    prompts.expect(question, false);
    tests::key(Qt::Key_Escape);
    stays("Esc");
    EXPECT_TRUE(box->hasFocus());
    if (!fresh) {
      prompts.expect(question, false);
      tests::key(Qt::Key_N, Qt::AltModifier);
      stays("new");
      grid->setFocus();
      prompts.expect(question, false);
      tests::key(Qt::Key_Down);
      stays("another line");
      EXPECT_EQ(grid->activeRow(), 1);
    }
    prompts.expect(question, false);
    tests::key(Qt::Key_X, Qt::AltModifier);
    stays("the leaving button");
    prompts.expect(question, false);
    form->parentWidget()->close();
    stays("the window's own button");
    pc.settings.SaveSetting("Backup", "설정", "종료알림", "0");  // the plain question
    prompts.expect("종료");
    prompts.expect(question, false);
    window->close();
    stays("the main window");
    EXPECT_TRUE(window->isVisible());
    prompts.expect(question);
    Form::focus(box);
    tests::key(Qt::Key_Escape);
    EXPECT_NE(box->text(), "abc");
    EXPECT_TRUE(inList());
  }
}

TEST_P(Registers, OnlyThePlainDeleteKeyDeletesTheKeypadsToo) {
  const QString name = GetParam().form;
  for (const Qt::KeyboardModifiers held : {Qt::NoModifier, Qt::KeypadModifier}) {
    if (name == "frmVolume")
      prompts.expect("삭제할 수 없습니다!");
    else
      prompts.expect(name == "frmHouseStyle" ? "모두 지우시겠습니까?" : "삭제하시겠습니까?", false);
    tests::key(Qt::Key_Delete, held);
  }
  tests::key(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_TRUE(inList());
}

TEST_P(Registers, AnApostropheIsToldAndTheBoxKeepsFocusAndText) {
  QLineEdit* const box = intoATextBox();
  ASSERT_TRUE(box);
  box->selectAll();
  tests::type("O'N");
  const QString name = GetParam().form;
  if (QStringList{"frmClient", "frmGasUtil", "frmResponse"}.contains(name))
    prompts.expect("변경하시겠습니까?");
  prompts.expect(QString());
  tests::key(Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(box->hasFocus());
  EXPECT_EQ(box->text(), "O'N");
  prompts.expect("저장하지 않고 버리시겠습니까?");
  tests::key(Qt::Key_Escape);
}

}  // namespace
