// What all dialogs share, by keys and mouse.
#include "ui/forms/dialog.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>

#include "store/jet/error_texts.h"
#include "tests/support.h"
#include "tests/ui/grab.h"
#include "ui/forms/fields.h"

namespace {

struct DialogTest : testing::Test, tests::TestPc {
  struct Asking : Dialog {
    using Dialog::Dialog;
    bool mayLeave() override { return may; }
    bool may = true;
  };
  Asking dialog{"frmTest", "시험", prompts};
  QLineEdit *first, *second;
  QPlainTextEdit* lines;
  int done = 0;

  DialogTest() {
    Fields boxes(dialog.addPanel(), 1);
    first = boxes.text("TxtFirst", "첫째(&1)");
    second = boxes.text("TxtSecond", "둘째(&2)");
    lines = boxes.lines("TxtLines", "셋째", 2);
    dialog.addDefault("BtnOk", "확인(&O)", [this] { ++done; });
    dialog.addLeave("BtnCancel", "취소(&C)");
  }
  QPushButton* button(const char* name) { return dialog.findChild<QPushButton*>(name); }
  void stand(QWidget* focus) {
    tests::show(dialog);
    focus->setFocus();
  }
};

TEST_F(DialogTest, EnterPressesTheDefaultButtonTheOneWithTheFocusOrNothing) {
  stand(first);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(done, 1);
  tests::key(Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(done, 2);
  for (const auto with : {Qt::ControlModifier, Qt::AltModifier, Qt::ShiftModifier})
    tests::key(Qt::Key_Return, with);
  EXPECT_EQ(done, 2) << "not the plain key";
  lines->setFocus();
  tests::key(Qt::Key_Return);
  EXPECT_EQ(done, 2);
  EXPECT_EQ(lines->toPlainText(), "\n") << "a box of several lines keeps its Enter";
  button("BtnOk")->setEnabled(false);
  first->setFocus();
  tests::key(Qt::Key_Return);
  EXPECT_TRUE(dialog.isVisible());
  button("BtnCancel")->setFocus();
  tests::key(Qt::Key_Return);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

TEST_F(DialogTest, EnterGoesFromBoxToBoxAndPressesTheDefaultBehindTheLast) {
  dialog.enterOrder({first, second});
  stand(first);
  second->setText("12");
  tests::key(Qt::Key_Return);
  EXPECT_TRUE(second->hasFocus());
  EXPECT_EQ(second->selectedText(), "12");
  EXPECT_EQ(done, 0);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(done, 1);
}

TEST_F(DialogTest, EscTheLeavingButtonAndTheCrossAskFirst) {
  stand(first);
  dialog.may = false;
  tests::key(Qt::Key_Escape);
  button("BtnCancel")->click();
  dialog.close();
  EXPECT_TRUE(dialog.isVisible());
  dialog.may = true;
  dialog.close();
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(DialogTest, AFailureInAnyHandlerEndsInABox) {
  QListWidget list;
  list.addItems({"1", "2"});
  dialog.on(&list, &QListWidget::currentRowChanged, [] { throw jet::errorOf(3043, "C:\\x"); });
  dialog.addButton("BtnFail", "실패(&F)", [] { throw jet::errorOf(3043, "C:\\x"); });
  stand(first);
  prompts.expect("작업 중 오류가 발생했습니다.");
  list.setCurrentRow(1);
  prompts.expect("작업 중 오류가 발생했습니다.");
  button("BtnFail")->click();
  EXPECT_TRUE(dialog.isVisible());
}

TEST_F(DialogTest, PlaceAndSizeAreRemembered) {
  dialog.allowResize({400, 300});
  dialog.rememberPlace(pc.paths);
  stand(first);
  dialog.setGeometry(120, 90, 450, 330);
  tests::key(Qt::Key_Escape);
  Dialog next("frmTest", "시험", prompts);
  next.allowResize({400, 300});
  next.rememberPlace(pc.paths);
  next.show();
  EXPECT_EQ(next.geometry(), QRect(120, 90, 450, 330));
}

}  // namespace
