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
  void SetUp() override { install(u"데이터압축.EXE"_s); }
};

TEST_F(ModBackUp, EveryKindHasItsQuestionAndItsArgument) {
  struct Kind {
    int kind;
    QString title;
    QStringList backup, restore;
  };
  const QString tool = u"데이터압축.EXE"_s;
  for (const Kind& kind : {Kind{0, u"데이터 백업(하드)"_s, {tool}, {tool}},
                           Kind{1, u"데이터 백업(서버)"_s, {tool, u"SERVERUP"_s}, {tool, u"UNZIP"_s}},
                           Kind{2, u"데이터 백업(AS)"_s, {tool, u"AS"_s}, {tool}},
                           Kind{3, u"데이터 백업(하드)"_s, {tool, u"HDDAUTO"_s}, {tool, u"HDDAUTO"_s}}}) {
    session.ClosingForBackup = false;
    prompts.expect(kind.title);
    EXPECT_TRUE(RunBackup(session, kind.kind, false, closeForms));
    EXPECT_EQ(prompts.seen.last(),
              kind.title +
                  u"|안전한 백업을 위하여 현재 사용중인 해온판매 프로그램을 종료합니다.\n"
                  u"계속하시겠습니까?"_s);
    EXPECT_EQ(started, kind.backup);
    EXPECT_TRUE(session.ClosingForBackup);
    prompts.expect(u"데이터 내려받기"_s);
    EXPECT_TRUE(RunRestore(session, kind.kind, closeForms));
    EXPECT_TRUE(prompts.seen.last().contains(
        u"안전한 복구를 위하여 현재 사용중인 해온판매 프로그램을 종료합니다."_s));
    EXPECT_EQ(started, kind.restore);
  }
  EXPECT_EQ(closed, 8);
}

TEST_F(ModBackUp, NoAndAFormThatStaysStartNothing) {
  prompts.expect(u"데이터 백업"_s, false);
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
  prompts.expect(u"시작할 수 없습니다"_s);
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
  prompts.expect(u"시작할 수 없습니다"_s);
  EXPECT_FALSE(pressed(1));
}

}  // namespace
