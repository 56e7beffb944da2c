// What the main program does for a backup: the question, the forms, the compressor's arguments, and its own end.
#include "links/modBackUp.h"

#include "tests/companion.h"

namespace {

using namespace tests;
using namespace Qt::StringLiterals;

struct ModBackUp : testing::Test, StartingPc {
  bool closes = true;
  int closed = 0;
  CloseForms closeForms = [this] {
    ++closed;
    return closes;
  };
  void SetUp() override { install("데이터압축.EXE"); }
};

TEST_F(ModBackUp, EveryKindHasItsQuestionAndItsArgument) {
  struct Kind {
    int kind;
    QString title;
    QStringList backup, restore;
  };
  const QString tool = "데이터압축.EXE";
  for (const Kind& kind : {Kind{0, "데이터 백업(하드)", {tool}, {tool}},
                           Kind{1, "데이터 백업(서버)", {tool, "SERVERUP"}, {tool, "UNZIP"}},
                           Kind{2, "데이터 백업(AS)", {tool, "AS"}, {tool}},
                           Kind{3, "데이터 백업(하드)", {tool, "HDDAUTO"}, {tool, "HDDAUTO"}}}) {
    session.ClosingForBackup = false;
    prompts.expect(kind.title);
    EXPECT_TRUE(RunBackup(session, kind.kind, false, closeForms));
    EXPECT_EQ(prompts.seen.last(),
              kind.title +
                  u"|안전한 백업을 위하여 현재 사용중인 해온판매 프로그램을 종료합니다.\n"
                  u"계속하시겠습니까?"_s);
    EXPECT_EQ(started, kind.backup);
    EXPECT_TRUE(session.ClosingForBackup);
    prompts.expect("데이터 내려받기");
    EXPECT_TRUE(RunRestore(session, kind.kind, closeForms));
    EXPECT_TRUE(
        prompts.seen.last().contains("안전한 복구를 위하여 현재 사용중인 해온판매 프로그램을 종료합니다."));
    EXPECT_EQ(started, kind.restore);
  }
  EXPECT_EQ(closed, 8);
}

TEST_F(ModBackUp, NoAndAFormThatStaysStartNothing) {
  prompts.expect("데이터 백업", false);
  EXPECT_FALSE(RunBackup(session, 0, false, closeForms));
  EXPECT_EQ(closed, 0);
  closes = false;
  EXPECT_FALSE(RunBackup(session, 0, true, closeForms));
  EXPECT_EQ(closed, 1);
  EXPECT_TRUE(started.isEmpty());
  EXPECT_FALSE(session.ClosingForBackup);
}

TEST_F(ModBackUp, ACompressorThatDoesNotStartIsToldAndTheProgramStays) {
  starts = false;
  prompts.expect("시작할 수 없습니다");
  EXPECT_FALSE(RunBackup(session, 1, true, {}));
  EXPECT_FALSE(session.ClosingForBackup);
}

TEST_F(ModBackUp, TheReminderEndsBacksUpOrStays) {
  const auto pressed = [&](int button) {
    return AskBackupOnExit(session, closeForms, [=] { return button; });
  };
  EXPECT_FALSE(pressed(3));
  EXPECT_TRUE(pressed(2));
  EXPECT_TRUE(started.isEmpty());
  EXPECT_TRUE(pressed(0));
  EXPECT_EQ(started, (QStringList{"데이터압축.EXE", "SERVERUP"}));
  EXPECT_TRUE(pressed(1));
  EXPECT_EQ(started, (QStringList{"데이터압축.EXE"}));
  starts = false;
  prompts.expect("시작할 수 없습니다");
  EXPECT_FALSE(pressed(1));
}

}  // namespace
