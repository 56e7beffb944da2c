#include "ui/forms/form.h"

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

namespace {

/** A form like those of the program: boxes above, a grid, buttons. */
class DemoForm : public Form {
 public:
  explicit DemoForm(Session& session) : Form("frmDemo", "보기 화면", session) {
    rows.setColumns(
        {{.header = "품명", .width = 20}, {.header = "금액", .width = 12, .kind = CellKind::Money}});
    rows.setRows({{"프로판", "42000"}, {"부탄", "1500"}, {}});
    auto* const panel = addGroup("고객 정보");
    Fields fields(panel, 3);
    name = fields.text("TxtName", "상호", 0, 20);
    tel = fields.tel("TxtTel", "전화번호");
    date = fields.date("TxtDate", "거래일자");
    memo = fields.lines("TxtMemo", "메모", 2, 2);
    money = fields.money("TxtMoney", "미수금");
    fields.combo("CboKind", "구분", {"일반", "체적"}, 8);
    fields.check("ChkUse", "사용");
    fields.value("LblEndDay", "최종거래일")->setText("2026-06-01");
    body()->addWidget(panel);
    grid = addSpread("SpDemo", rows);
    grid->setFillColumn(1);
    grid->cellFinished = [this](int row, int col, const QString&, const QString& text) {
      if (text == "error") throw jet::Error(3022, "중복된 값입니다.");
      if (text == "no") return false;
      rows.setText(row, col, text);
      return true;
    };
    body()->addWidget(grid, 1);
    save = addButton("BtnSave", "저장(&S)", [this] { ++saves; });
    body()->addWidget(buttonRow({save, addButton("BtnExit", "닫기(&X)", [this] { close(); })}));
    setHelp(name, "고객의 상호를 입력합니다");
    setBottomLine("Esc:전체보기   F10:출력");
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
  EXPECT_EQ(form.findChild<QLabel*>("PnlHelp")->text(), "고객의 상호를 입력합니다");
  form.tel->setEnabled(false);
  tests::key(Qt::Key_Return);
  EXPECT_TRUE(form.date->hasFocus()) << "a disabled box is passed over";
  tests::type("20260615");
  EXPECT_EQ(form.date->dateText(), "2026-06-15");
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
  tests::compose({"ㅎ", "하"}, "한");
  EXPECT_TRUE(form.name->hasFocus());
  EXPECT_EQ(form.name->text(), "한");
}

TEST_F(FormTest, CommandsFirstCloseTheOpenCell) {
  form.grid->setFocus();
  form.grid->setActiveCell(1, 1);
  tests::type("x");
  tests::key(Qt::Key_F5);
  EXPECT_EQ(form.fives, 1);
  EXPECT_EQ(form.rows.text(1, 1), "x");

  tests::type("no");
  tests::key(Qt::Key_F5);
  EXPECT_EQ(form.fives, 1) << "a refused text cancels the command";
  QTest::mouseClick(form.save, Qt::LeftButton);
  QApplication::processEvents();
  EXPECT_EQ(form.saves, 0);
  EXPECT_EQ(form.grid->editingText(), "no");
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
      for (const QString title : {"하나", "둘", "셋"}) pages->addTab(new QLineEdit, title);
      pages->setTabEnabled(1, false);
      body()->addWidget(pages);
    }
    QTabWidget* pages;
  } paged(at.session);
  tests::show(paged);
  paged.grid->setFocus();
  tests::type("x");
  tests::key(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(paged.pages->currentIndex(), 2) << "the page that is off is passed over";
  EXPECT_EQ(paged.rows.text(1, 1), "x");
  EXPECT_TRUE(paged.grid->hasFocus());
  tests::key(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(paged.pages->currentIndex(), 0);
  tests::key(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(paged.pages->currentIndex(), 2);

  tests::type("no");
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
  at.prompts.expect("3022");
  form.grid->setFocus();
  form.grid->setActiveCell(2, 1);
  tests::enter("error");
  EXPECT_EQ(form.grid->editingText(), "error");
  EXPECT_EQ(form.rows.text(2, 1), "부탄");
  form.grid->cancelEdit();

  at.prompts.expect("Error 3061 (이름) in procedure SpEva_ButtonClicked of Form frmDemo");
  EXPECT_FALSE(form.trap("SpEva_ButtonClicked", [] { throw jet::Error(3061, "이름"); }));
  at.prompts.expect("작업 중 오류");
  EXPECT_FALSE(form.guard([] { throw std::out_of_range("range"); }));
}

TEST_F(FormTest, MoneyBoxShowsSeparatorsOnlyAtRest) {
  form.money->setRange(0, 1'000'000);
  form.money->setFocus();
  tests::type("1234567");
  EXPECT_EQ(form.money->text(), "1234567");
  form.name->setFocus();
  EXPECT_EQ(form.money->text(), "1,000,000") << "held to its range";
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
  EXPECT_EQ(again.grid->cellRect(1, 2).right() + 1, again.grid->viewport()->width())
      << "what is spare is the first column's, and the others move over";
}

TEST_F(FormTest, Picture) {
  form.name->setText("한강식당");
  form.tel->setText("053-123-4567");
  form.money->setValue(1234500);
  tests::grab(form, "form");
}

}  // namespace
