#include "links/caller.h"

#include "links/see_id_lines.h"
#include "tests/support.h"

namespace {

TEST(SeeIdLines, UnderstandsWhatUnitsSend) {
  SeeIdLines lines;
  auto heard = [&](const QByteArray& bytes) {
    QStringList numbers;
    for (const SeeIdEvent& event : lines.feed(bytes))
      numbers << QString::number(event.state) + u':' + event.number;
    return numbers.join(u' ');
  };
  EXPECT_EQ(heard("\r\nRING\r\nDATE = 1124\r\nNMBR=0531234567\r\n"), "0: 0: 1:0531234567");
  EXPECT_EQ(heard("NMBR = 053-123-4567\r"), "1:0531234567");
  EXPECT_EQ(heard("02123"), "") << "a read may end anywhere";
  EXPECT_EQ(heard("45678\r"), "2:0212345678");
  EXPECT_EQ(heard("NMBR=114\r119\r12\r"), "1:114 2:119 0:") << "an extension has three digits";
  EXPECT_EQ(heard("(053) 123-4567\r" + QByteArray(20, '7') + '\r' + QByteArray(21, '7') + '\r'),
            "2:0531234567 2:77777777777777777777 0:");
  EXPECT_EQ(heard(QByteArray(73, ' ') + "0531234\r" + QByteArray(73, ' ') + "05312345\r"), "2:0531234");
  EXPECT_EQ(heard("NMBR=P\rNMBR=\rNAME=012\r"), "0: 0: 0:") << "withheld numbers carry none";
  EXPECT_EQ(heard(QByteArray("\xff\x00\x81", 3) + "0531234567\r"), "0:") << "noise before a number spoils it";
  EXPECT_EQ(heard(QByteArray(100000, '7') + "\r0531234567\r"), "2:0531234567")
      << "an endless line is dropped";
}

struct FakeControl : SeeIdControl {
  int open(const QString& port) override {
    asked << "open " + port;
    up = !broken;
    return broken ? 3 : 0;
  }
  int close(const QString& port) override {
    asked << "close " + port;
    up = broken;
    return broken ? 3 : 0;
  }
  bool isOpen() const override { return up; }
  QStringList asked;
  bool up = false, broken = false;
};

struct FakeForm : CallerTarget {
  bool TakeCallerNumber(const QString& number) override {
    taken = number;
    if (during) during();
    return ready;
  }
  QString taken;
  bool ready = true;
  std::function<void()> during;
};

struct CallerTest : ::testing::Test, tests::TestPc {
  CallerTest() { session.AppTitle = "해온판매"; }
  void use(const char* port1, const char* port2) {
    pc.settings.SaveSetting("해온판매", "환경설정", "OpenSeeIDPort1", port1);
    pc.settings.SaveSetting("해온판매", "환경설정", "OpenSeeIDPort2", port2);
  }
  FakeControl first, second;
  FakeForm form;
  CallerTarget* active = nullptr;
  WaitingList waiting{pc.clock};
  Caller caller{session, {&first, &second}, waiting, [this] { return active; }};
};

TEST_F(CallerTest, OpensOnlyWhatIsInUse) {
  caller.OpenSeeID();
  EXPECT_TRUE(first.asked.isEmpty()) << "not ticked";
  use("7", "0");
  caller.setEnabled(true);
  EXPECT_EQ(first.asked, QStringList{"open COM7"});
  EXPECT_TRUE(second.asked.isEmpty()) << "port 0 is no device and no message";
  caller.OpenSeeID();
  EXPECT_EQ(first.asked.size(), 1) << "open already";
  caller.setEnabled(false);
  EXPECT_EQ(first.asked.last(), "close COM1") << "kept: named by its place, not by the stored number";
  EXPECT_FALSE(caller.enabled());
}

TEST_F(CallerTest, AFailedPortIsToldAndTheNextGoesOn) {
  first.broken = true;
  prompts.expect("포트 COM1으로 SEE ID OPEN에 실패했습니다.");
  caller.setEnabled(true);
  EXPECT_TRUE(second.isOpen());
  first.broken = false;
  caller.changePorts({"4x", "글자"});
  EXPECT_EQ(caller.ports(), (std::array<QString, 2>{"4", "0"})) << "a text is stored as its value";
  EXPECT_EQ(first.asked.last(), "open COM4");
  EXPECT_FALSE(second.isOpen());
  first.broken = true;
  prompts.expect("포트 COM1으로 SEE ID CLOSE에 실패했습니다.");
  caller.CloseSeeID();
}

TEST_F(CallerTest, ACallGoesToTheFormInFrontElseIntoTheList) {
  const QString today = pc.clock.dateText();
  caller.deviceEvent(1, "0531234567");
  active = &form;
  caller.deviceEvent(0, "0539999999");
  EXPECT_EQ(form.taken, "") << "other states are ignored";
  caller.deviceEvent(2, "0212345678");
  EXPECT_EQ(form.taken, "0212345678");
  form.ready = false;
  pc.clock.set(QDateTime({2026, 3, 5}, {9, 0}));
  form.during = [this] { pc.clock.set(QDateTime({2026, 3, 5}, {9, 30})); };
  caller.deviceEvent(1, "0533334444");
  ASSERT_EQ(waiting.entries().size(), 2);
  EXPECT_TRUE(waiting.entries()[0].startsWith("0531234567 [" + today + " "));
  EXPECT_TRUE(waiting.entries()[0].endsWith("]"));
  EXPECT_TRUE(waiting.entries()[1].contains(" 09:00:")) << "the call's own time, however long the form asked";
  EXPECT_EQ(waiting.OldestStanbyNumber(), "0531234567");
  EXPECT_EQ(waiting.TakeStanbyNumber(), "0531234567") << "the oldest first";
  EXPECT_EQ(waiting.TakeStanbyNumber(), "0533334444");
  EXPECT_EQ(waiting.TakeStanbyNumber(), "");
}

}  // namespace
