// The reminder at the program's end.
#include "links/frmMsgBackUp.h"

#include <QLabel>
#include <QPushButton>

#include "tests/support.h"
#include "tests/ui/grab.h"

namespace {

TEST(MsgBackUp, TellsTheButtonAndStaysWhenClosed) {
  tests::ScriptedPrompts prompts;
  for (int button = 0; button < 4; ++button) {
    frmMsgBackUp box(prompts);
    tests::show(box);
    EXPECT_EQ(box.Result(), 3);
    box.findChild<QPushButton*>("btnResult" + QString::number(button))->click();
    EXPECT_EQ(box.Result(), button);
  }
  frmMsgBackUp left(prompts);
  tests::show(left);
  tests::grab(left, "frmMsgBackUp");
  EXPECT_TRUE(left.findChild<QLabel*>("txtMsg")->text().startsWith(
      "                             [데이터 백업]\n\n    ※"));
  left.close();
  EXPECT_EQ(left.Result(), 3);
  frmMsgBackUp entered(prompts);
  tests::show(entered);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(entered.Result(), 2) << "Enter ends the program";
}

}  // namespace
