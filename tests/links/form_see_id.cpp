// The unit on a pseudo-terminal, and the two windows of caller identification.
#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "links/FrmSeeIDFormatTelNo.h"
#include "links/FrmSeeIDOptions.h"
#include "links/FrmSeeIDStanbyList.h"
#include "links/form_see_id_port.h"
#include "tests/answers.h"
#include "tests/idle_context.h"
#include "tests/support.h"
#include "tests/ui/grab.h"

namespace {

/** A line with a unit at its far end. */
struct Line {
  Line() {
    struct termios raw {};
    cfmakeraw(&raw);
    char name[64];
    EXPECT_EQ(openpty(&unit, &end, name, &raw, nullptr), 0);
    qputenv("HAEON_COM9", name);
  }
  ~Line() {
    unplug();
    qunsetenv("HAEON_COM9");
  }
  void send(const QByteArray& bytes) {
    EXPECT_EQ(::write(unit, bytes.constData(), size_t(bytes.size())), bytes.size());
  }
  void unplug() {
    for (int* fd : {&unit, &end}) {
      if (*fd >= 0) ::close(*fd);
      *fd = -1;
    }
  }
  int unit = -1, end = -1;
};

struct SeeIdPortTest : ::testing::Test, tests::TestPc {
  SeeIdPortTest() {
    port.onEvent = [this](int state, const QString& number) {
      heard << QString::number(state) + u':' + number;
    };
  }
  Line line;
  SeeIdPort port{pc.paths};
  QStringList heard;
};

TEST_F(SeeIdPortTest, HearsCallsAlsoBehindABoxAndWhileOneIsBeingTaken) {
  ASSERT_EQ(port.open("COM9"), 0);
  line.send("RING\r\nNMBR=05312");
  ASSERT_TRUE(QTest::qWaitFor([&] { return heard.size() == 1; })) << "the ring; behind it half a number";
  line.send("34567\r\n");
  ASSERT_TRUE(QTest::qWaitFor([&] { return heard.size() == 2; }));
  EXPECT_EQ(heard, (QStringList{"0:", "1:0531234567"}));

  QDialog box;
  box.setModal(true);
  box.show();
  line.send("0212345678\r");
  ASSERT_TRUE(QTest::qWaitFor([&] { return heard.size() == 3; })) << "the list takes it at once";
  box.close();
  bool asking = false;
  port.onEvent = [&](int, const QString& number) {
    heard << number;
    if (asking) return;
    asking = true;  // the first one's search stays open until the second has come
    EXPECT_TRUE(QTest::qWaitFor([&] { return heard.contains("0214445555"); }));
  };
  line.send("0213334444\r0214445555\r");
  ASSERT_TRUE(QTest::qWaitFor([&] { return heard.size() == 5; }));
  EXPECT_EQ(heard.mid(2), (QStringList{"2:0212345678", "0213334444", "0214445555"}));
  EXPECT_EQ(port.close("COM1"), 0);
  EXPECT_FALSE(port.isOpen());
}

TEST_F(SeeIdPortTest, AnUnpluggedUnitLetsThePortGo) {
  ASSERT_EQ(port.open("COM9"), 0);
  line.unplug();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !port.isOpen(); }));
  EXPECT_GT(port.open("COM9"), 0) << "nothing is there any more";
}

TEST(SeeIdForms, PortsAreChangedAndTheListSurvivesItsWindow) {
  tests::TestPc at;
  at.session.AppTitle = "해온판매";
  WaitingList waiting(at.pc.clock);
  SeeIdPort first(at.pc.paths), second(at.pc.paths);
  Caller caller(at.session, {&first, &second}, waiting, [] { return nullptr; });
  FrmSeeIDOptions options(at.session, caller);
  options.show();
  EXPECT_EQ(options.findChild<QLineEdit*>("txtPortNo0")->text(), "1");
  options.findChild<QLineEdit*>("txtPortNo0")->setText("5");
  options.findChild<QLineEdit*>("txtPortNo1")->setText("abc");
  QTest::keyClick(&options, Qt::Key_Return);
  EXPECT_EQ(caller.ports(), (std::array<QString, 2>{"5", "0"}));

  waiting.AddStanbyNumber("0531111111");
  FrmSeeIDStanbyList window(at.session, waiting);
  window.bringToFront();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window)) << "Delete is a shortcut of the window";
  waiting.AddStanbyNumber("0532222222");
  auto* list = window.findChild<QListWidget*>("List1");
  ASSERT_EQ(list->count(), 2);
  at.prompts.expect("삭제할 항목을 선택해 주세요.");
  window.findChild<QPushButton*>("btnDel")->click();
  list->setCurrentRow(0);
  waiting.AddStanbyNumber("0533333333");  // a call comes between the choice and the key
  QTest::keyClick(list, Qt::Key_Delete);
  window.move(120, 80);
  window.close();
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(at.pc.settings.GetSetting("해온판매", "환경설정", "발신번호대기창x"), "120");
  window.bringToFront();
  window.move(140, 80);
  QTest::keyClick(list, Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(at.pc.settings.GetSetting("해온판매", "환경설정", "발신번호대기창x"), "140");
  EXPECT_EQ(waiting.TakeStanbyNumber(), "0532222222");
  EXPECT_EQ(waiting.TakeStanbyNumber(), "0533333333");
}

TEST(SeeIdForms, NumbersOutOfShapeAreTickedAndPutRightByKeys) {
  tests::TestPc at;
  at.openBooks();
  at.session.dbBasic.Execute("Insert Into Client(Name, Tel, Tel1) Values('나래', '0531234567', '1234567')");
  at.session.dbBasic.Execute("Insert Into Client(Name, Tel) Values('가람', '053-765-4321')");
  tests::IdleContext idle{at.session};
  FrmSeeIDFormatTelNo form(idle.context);
  tests::show(form);
  auto* const count = form.findChild<QLabel*>("LblCount");
  EXPECT_EQ(count->text(), "2개 중 2개 선택");
  tests::grab(form, "FrmSeeIDFormatTelNo");
  tests::keys({Qt::Key_Down, Qt::Key_Space});
  EXPECT_EQ(count->text(), "2개 중 1개 선택");
  at.prompts.expect("선택한 전화번호 1개를 바꾸시겠습니까?");
  at.prompts.expect("전화번호 1개를 바꾸었습니다.");
  tests::key(Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(tests::rowsOf(at.session.dbBasic, "Select Tel, Tel1 From Client Where Name = '나래'"),
            "053-123-4567|1234567");
  EXPECT_EQ(count->text(), "1개 중 1개 선택") << "what was left is offered again";
  at.prompts.expect("선택한 전화번호 1개를 바꾸시겠습니까?");
  at.prompts.expect("전화번호 1개를 바꾸었습니다.");
  tests::key(Qt::Key_S, Qt::AltModifier);
  EXPECT_FALSE(form.findChild<QPushButton*>("BtnSave")->isEnabled());
  EXPECT_TRUE(form.findChild<QPushButton*>("BtnExit")->hasFocus());
}

}  // namespace
