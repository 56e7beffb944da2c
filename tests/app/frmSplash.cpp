// The start window: an empty PC, a password, three failures.
#include "app/frmSplash.h"

#include <QLineEdit>

#include "tests/support.h"
#include "tests/ui/grab.h"

namespace {

struct StartWindow : testing::Test, tests::TestPc {
  StartUp startUp{session};
  std::unique_ptr<frmSplash> window;
  int in = 0, out = 0;

  void open() {
    window = std::make_unique<frmSplash>(startUp, session);
    window->signedIn = [this] { ++in; };
    window->ended = [this] { ++out; };
    ASSERT_TRUE(startUp.SubMain([this] {
      window->load();
      tests::show(*window);
    }));
  }
  void company(const QString& password) {
    session.dbBasic.Execute("Insert Into User(Company, Password) Values('대한가스', '" + password + "')");
    startUp.shutDown();
  }
  QLineEdit* box() const { return window->findChild<QLineEdit*>("txtPassword"); }
  void enter(const QString& text) { tests::enter(text); }
};

TEST_F(StartWindow, OnAnEmptyPcEnterGoesOnAfterAWordAboutTheCompany) {
  open();
  EXPECT_EQ(box()->text(), "엔터치세요");
  EXPECT_EQ(box()->echoMode(), QLineEdit::Normal);
  EXPECT_EQ(window->findChild<QLineEdit*>("txtUser")->text(), "라온웨어");
  tests::grab(*window, "frmSplash");
  prompts.expect("사용자 등록후 Password를 설정해 주시기 바랍니다.");
  tests::key(Qt::Key_Return);
  EXPECT_EQ(in, 1);
  EXPECT_FALSE(window->isVisible());
}

TEST_F(StartWindow, APasswordIsMaskedAndComparedByCase) {
  open();
  company("Abc");
  open();
  EXPECT_EQ(box()->echoMode(), QLineEdit::Password);
  EXPECT_EQ(box()->text(), "");
  prompts.expect("Password가 일치하지 않습니다!");
  enter("abc");
  EXPECT_EQ(box()->text(), "");
  EXPECT_EQ(in, 0);
  enter("Abc");
  EXPECT_EQ(in, 1);
  EXPECT_EQ(session.CurrentPassword, "Abc");
}

TEST_F(StartWindow, TheThirdFailureEndsTheProgram) {
  open();
  company("Abc");
  open();
  prompts.expect("인증실패");
  prompts.expect("인증실패");
  prompts.expect("사용자 인증이 3회이상 실패하였으므로 프로그램을 종료합니다.");
  for (int failure = 0; failure < 3; ++failure) enter("x");
  EXPECT_EQ(in, 0);
  EXPECT_EQ(out, 1);
}

TEST_F(StartWindow, AStartThatEndedEarlyLeavesARoad) {
  open();
  startUp.shutDown();  // as far as a start gets whose links could not be made
  int stuck = 0;
  window->stuck = [&] { ++stuck; };
  prompts.expect("자료 파일이 열리지 않아 로그인할 수 없습니다.");
  tests::key(Qt::Key_Return);
  EXPECT_EQ(stuck, 1);
  EXPECT_EQ(in + out, 0);
  open();
  EXPECT_TRUE(startUp.ready()) << "the same start-up begins anew";
}

TEST_F(StartWindow, ClosingAsks) {
  open();
  prompts.expect("프로그램을 종료하시겠습니까?", false);
  window->close();
  EXPECT_TRUE(window->isVisible());
  prompts.expect("보안관리자");
  window->close();
  EXPECT_EQ(out, 1);
  EXPECT_FALSE(session.dbBasic.isOpen());
}

}  // namespace
