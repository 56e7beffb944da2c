#include "ui/forms/form.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "tests/support.h"
#include "tests/ui/grab.h"
#include "ui/forms/fields.h"

using namespace Qt::StringLiterals;

namespace {

/** A form like those of the program: boxes above, a grid, buttons. */
class DemoForm : public Form {
 public:
  explicit DemoForm(Session& session) : Form(u"frmDemo"_s, u"보기 화면"_s, session) {
    rows.setColumns(
        {{.header = u"품명"_s, .width = 20}, {.header = u"금액"_s, .width = 12, .kind = CellKind::Money}});
    rows.setRows({{u"프로판"_s, u"42000"_s}, {u"부탄"_s, u"1500"_s}, {}});
    auto* const panel = addGroup(u"고객 정보"_s);
    Fields fields(panel, 3);
    name = fields.text("TxtName", u"상호"_s, 0, 20);
    tel = fields.tel("TxtTel", u"전화번호"_s);
    date = fields.date("TxtDate", u"거래일자"_s);
    memo = fields.lines("TxtMemo", u"메모"_s, 2, 2);
    money = fields.money("TxtMoney", u"미수금"_s);
    fields.combo("CboKind", u"구분"_s, {u"일반"_s, u"체적"_s}, 8);
    fields.check("ChkUse", u"사용"_s);
    fields.value("LblEndDay", u"최종거래일"_s)->setText(u"2026-06-01"_s);
    body()->addWidget(panel);
    grid = addSpread("SpDemo", rows);
    grid->setFillColumn(1);
    grid->cellFinished = [this](int row, int col, const QString&, const QString& text) {
      if (text == u"error"_s) throw jet::Error(3022, u"중복된 값입니다."_s);
      if (text == u"no"_s) return false;
      rows.setText(row, col, text);
      return true;
    };
    body()->addWidget(grid, 1);
    save = addButton("BtnSave", u"저장(&S)"_s, [this] { ++saves; });
    body()->addWidget(buttonRow({save, addButton("BtnExit", u"닫기(&X)"_s, [this] { close(); })}));
    setHelp(name, u"고객의 상호를 입력합니다"_s);
    setBottomLine(u"Esc:전체보기   F10:출력"_s);
    enterOrder({name, tel, date, memo, money, save}, [] {});
    onKey(Qt::Key_F5, [this] { ++fives; });
  }

  SpreadModel rows;
  QLineEdit *name, *tel;
  DateBox* date;
  QPlainTextEdit* memo;
  MoneyBox* money;
  Spread* grid;
  QPushButton* save;
  int saves = 0, fives = 0;
};

class FormTest : public ::testing::Test {
 protected:
  FormTest() {
    form.resize(760, 420);
    tests::show(form);
  }
  tests::TestPc at;
  DemoForm form{at.session};
};

TEST_F(FormTest, EnterGoesOnByTheTableButNotOutOfSeveralLines) {
  form.name->setFocus();
  EXPECT_EQ(form.findChild<QLabel*>(u"PnlHelp"_s)->text(), u"고객의 상호를 입력합니다"_s);
  form.tel->setEnabled(false);
  tests::key(Qt::Key_Return);
  EXPECT_TRUE(form.date->hasFocus()) << "a disabled box is passed over";
  tests::type(u"20260615"_s);
  EXPECT_EQ(form.date->dateText(), u"2026-06-15"_s);
  tests::key(Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_TRUE(form.memo->hasFocus());
  tests::key(Qt::Key_Return);
  EXPECT_TRUE(form.memo->hasFocus());
  form.money->setFocus();
  tests::key(Qt::Key_Return);
  EXPECT_TRUE(form.save->hasFocus());
  tests::key(Qt::Key_Return);
  EXPECT_EQ(form.saves, 1);
}

TEST_F(FormTest, BoxDoesNotJumpWhileASyllableIsComposed) {
  form.name->setFocus();
  tests::compose({u"ㅎ"_s, u"하"_s}, u"한"_s);
  EXPECT_TRUE(form.name->hasFocus());
  EXPECT_EQ(form.name->text(), u"한"_s);
}

TEST_F(FormTest, CommandsFirstCloseTheOpenCell) {
  form.grid->setFocus();
  form.grid->setActiveCell(1, 1);
  tests::type(u"x"_s);
  tests::key(Qt::Key_F5);
  EXPECT_EQ(form.fives, 1);
  EXPECT_EQ(form.rows.text(1, 1), u"x"_s);

  tests::type(u"no"_s);
  tests::key(Qt::Key_F5);
  EXPECT_EQ(form.fives, 1) << "a refused text cancels the command";
  QTest::mouseClick(form.save, Qt::LeftButton);
  QApplication::processEvents();
  EXPECT_EQ(form.saves, 0);
  EXPECT_EQ(form.grid->editingText(), u"no"_s);
  form.close();
  EXPECT_TRUE(form.isVisible());
  form.grid->cancelEdit();
}

TEST_F(FormTest, TheHandGoesBackToTheGridAfterAButton) {
  form.grid->setFocus();
  QTest::mouseClick(form.save, Qt::LeftButton);
  EXPECT_TRUE(form.grid->hasFocus());
  form.name->setFocus();
  form.save->click();
  EXPECT_TRUE(form.name->hasFocus()) << "the button never had it";
  form.rows.clear();
  QTest::mouseClick(form.save, Qt::LeftButton);
  EXPECT_FALSE(form.grid->hasFocus()) << "nothing to work on there";
}

// The window behind a box still has its shortcuts until the keyboard has moved over to the box.
TEST_F(FormTest, NothingRunsBehindABox) {
  QDialog box(&form);
  QTimer::singleShot(0, &box, [&] {
    form.save->click();
    form.close();
    EXPECT_EQ(form.saves, 0);
    EXPECT_TRUE(form.isVisible());
    box.reject();
  });
  box.exec();
  form.save->click();
  EXPECT_EQ(form.saves, 1);
}

TEST_F(FormTest, PagesTurnByKeysWithTheOpenCellTakenFirst) {
  struct Paged : DemoForm {
    explicit Paged(Session& session) : DemoForm(session) {
      pages = new QTabWidget;
      for (const QString& title : {u"하나"_s, u"둘"_s, u"셋"_s}) pages->addTab(new QLineEdit, title);
      pages->setTabEnabled(1, false);
      body()->addWidget(pages);
    }
    QTabWidget* pages;
  } paged(at.session);
  tests::show(paged);
  paged.grid->setFocus();
  tests::type(u"x"_s);
  tests::key(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(paged.pages->currentIndex(), 2) << "the page that is off is passed over";
  EXPECT_EQ(paged.rows.text(1, 1), u"x"_s);
  EXPECT_TRUE(paged.grid->hasFocus());
  tests::key(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(paged.pages->currentIndex(), 0);
  tests::key(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(paged.pages->currentIndex(), 2);

  tests::type(u"no"_s);
  tests::key(Qt::Key_PageUp, Qt::ControlModifier);
  auto* const bar = paged.pages->tabBar();
  QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(0).center());
  EXPECT_EQ(paged.pages->currentIndex(), 2) << "a refused cell keeps its page";
  paged.grid->cancelEdit();
  QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(0).center());
  EXPECT_EQ(paged.pages->currentIndex(), 0);
  tests::key(Qt::Key_F4, Qt::ControlModifier);
  EXPECT_FALSE(paged.isVisible());
}

TEST_F(FormTest, ErrorsEndInABox) {
  at.prompts.expect(u"3022"_s);
  form.grid->setFocus();
  form.grid->setActiveCell(2, 1);
  tests::enter(u"error"_s);
  EXPECT_EQ(form.grid->editingText(), u"error"_s);
  EXPECT_EQ(form.rows.text(2, 1), u"부탄"_s);
  form.grid->cancelEdit();

  at.prompts.expect(u"Error 3061 (이름) in procedure SpEva_ButtonClicked of Form frmDemo"_s);
  EXPECT_FALSE(form.trap(u"SpEva_ButtonClicked"_s, [] { throw jet::Error(3061, u"이름"_s); }));
  at.prompts.expect(u"작업 중 오류"_s);
  EXPECT_FALSE(form.guard([] { throw std::out_of_range("range"); }));
}

TEST_F(FormTest, MoneyBoxShowsSeparatorsOnlyAtRest) {
  form.money->setRange(0, 1'000'000);
  form.money->setFocus();
  tests::type(u"1234567"_s);
  EXPECT_EQ(form.money->text(), u"1234567"_s);
  form.name->setFocus();
  EXPECT_EQ(form.money->text(), u"1,000,000"_s) << "held to its range";
  EXPECT_EQ(form.money->value(), 1'000'000);
  form.money->clear();
  EXPECT_EQ(form.money->plainText(), QString());
}

TEST_F(FormTest, PlaceColumnsAndGridSizesComeBack) {
  form.move(40, 60);
  form.resize(740, 444);
  form.grid->setColWidth(2, 17.5);
  form.grid->columnResized(2);
  form.close();
  DemoForm again(at.session);
  tests::show(again);
  EXPECT_EQ(again.pos(), QPoint(40, 60));
  EXPECT_EQ(again.size(), QSize(740, 444));
  EXPECT_EQ(again.grid->colWidth(2), 17.5);
}

TEST_F(FormTest, Picture) {
  form.name->setText(u"한강식당"_s);
  form.tel->setText(u"053-123-4567"_s);
  form.money->setValue(1234500);
  tests::grab(form, u"form"_s);
}

}  // namespace
