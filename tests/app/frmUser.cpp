// The company profile, filled in by keys.
#include "app/frmUser.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabWidget>

#include "app/frmSecurity.h"
#include "tests/answers.h"
#include "tests/idle_context.h"
#include "tests/support.h"
#include "tests/ui/grab.h"

namespace {

struct UserForm : testing::Test, tests::TestPc {
  tests::IdleContext idle{session};
  UserForm() { openBooks(); }
};

TEST_F(UserForm, ANewCompanyIsTypedFieldByFieldThenItsSettings) {
  frmUser form(idle.context);
  tests::show(form);
  auto* tabs = tests::part<QTabWidget>(form, "TabUser");
  prompts.expect("먼저 사용자 등록을 해주십시오");
  tabs->setCurrentIndex(1);
  EXPECT_EQ(tabs->currentIndex(), 0);
  EXPECT_EQ(tests::focused(), "TxtCompany");

  tests::enter("");
  prompts.expect("상호를 입력하십시오");
  tests::press(form, "CmdSave");
  EXPECT_EQ(tests::focused(), "TxtCompany");
  for (const char* text :
       {"Gas", "Kim", "1-2-3", "700123", "Daegu", "Retail", "LPG", "053-1", "053-2", "1234567"})
    tests::enter(text);
  EXPECT_EQ(tests::focused(), "CmdSave");
  prompts.expect("사용자 등록이 완료되었습니다");
  tests::key(Qt::Key_Space);
  tests::grab(form, "frmUser1");

  tabs->setCurrentIndex(1);
  EXPECT_EQ(tests::focused(), "TxtRate");
  for (const char* text : {"2.5", "1000", "", "", "", "", "", "", "", "700", "799", "", "pw", "pw"})
    tests::enter(text);
  tests::part<QRadioButton>(form, "OptYes")->click();
  tests::part<QRadioButton>(form, "OptCutOnOff")->click();
  tests::grab(form, "frmUser2");
  prompts.expect("귀하의 패스워드는 pw 입니다");
  tests::press(form, "BtnSave");
  EXPECT_EQ(tests::rowsOf(session.dbBasic, "Select Company, fax, Rate, Post2, PayState From User"),
            "Gas|053-2|2.5|799|3");
  EXPECT_TRUE(session.StockEnabled);
}

TEST_F(UserForm, WhatWasTypedGoesOnlyAfterAQuestionAndNothingOfAnotherPcIsWrittenOver) {
  session.dbBasic.Execute("Insert Into User(Company, User, Rate) Values('Gas', 'Kim', 2.5)");
  frmUser form(idle.context);
  tests::show(form);
  auto* const company = tests::part<QLineEdit>(form, "TxtCompany");
  auto* const rate = tests::part<QLineEdit>(form, "TxtRate");
  ASSERT_TRUE(company->hasFocus());
  tests::enter("x");
  tests::key(Qt::Key_2, Qt::AltModifier);
  ASSERT_TRUE(rate->hasFocus());
  tests::type("a9.75,");
  EXPECT_EQ(rate->text(), "9.75") << "a rate is a number";
  EXPECT_TRUE(tests::part<QLabel>(form, "PnlHelp")->text().contains("넣을 수 없는"));
  prompts.expect("버리시겠습니까?", false);
  tests::key(Qt::Key_Escape);
  prompts.expect("버리시겠습니까?", false);
  form.close();
  EXPECT_TRUE(form.isVisible());
  EXPECT_EQ(company->text() + rate->text(), "x9.75");

  session.dbBasic.Execute("Update User Set Rate = 3, Tel = '053-1'");
  prompts.expect("먼저 바꾸었습니다!", false);
  tests::key(Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(tests::rowsOf(session.dbBasic, "Select Rate From User"), "3");
  prompts.expect("먼저 바꾸었습니다!");
  prompts.expect("패스워드가 현재 삭제된 상태입니다");
  tests::key(Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(tests::rowsOf(session.dbBasic, "Select Rate From User"), "9.75");
  prompts.expect("버리시겠습니까?");  // the profile's page still holds its "x"
  tests::key(Qt::Key_Escape);
  EXPECT_EQ(company->text(), "Gas");
  rate->setFocus();
  tests::type("1");
  prompts.expect("버리시겠습니까?", false);
  form.close();
  EXPECT_TRUE(form.isVisible()) << "the settings alone are asked about too";
  prompts.expect("버리시겠습니까?");
  form.close();
  EXPECT_FALSE(form.isVisible());
}

TEST_F(UserForm, ThePostcodesBoxLooksForWhatStandsInIt) {
  session.dbBasic.Execute("Insert Into User(Company, PostCode, Address) Values('Gas', '700020', 'Daegu')");
  frmUser form(idle.context);
  tests::show(form);
  auto* const code = tests::part<QLineEdit>(form, "TxtPostCode");
  code->setFocus();
  tests::key(Qt::Key_F12);
  EXPECT_EQ(code->text(), "700020") << "the search was left";
  idle.pickers.place = {"702010", "대구 북구 고성동", ""};
  tests::key(Qt::Key_F12);
  EXPECT_EQ(idle.pickers.asked, QStringList({"700020", "700020"}));
  EXPECT_EQ(code->text(), "702010");
  EXPECT_EQ(tests::part<QLineEdit>(form, "TxtAddress")->text(), "대구 북구 고성동");
  prompts.expect("버리시겠습니까?");
  form.close();
}

TEST_F(UserForm, WithoutThePasswordTheFormCloses) {
  session.dbBasic.Execute("Insert Into User(Company, Password) Values('Gas', 'pw')");
  idle.pickers.password = false;
  frmUser form(idle.context);
  tests::show(form);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(tests::part<QLineEdit>(form, "TxtCompany")->text(), "");
}

TEST_F(UserForm, ThePasswordBoxRefusesAndMarksTheText) {
  session.dbBasic.Execute("Insert Into User(Company, Password) Values('Gas', 'pw')");
  frmSecurity box(session);
  tests::show(box);
  tests::grab(box, "frmSecurity");
  prompts.expect("패스워드가 잘못되었습니다. 다시 시도하십시오");
  tests::enter("PW");
  EXPECT_EQ(tests::part<QLineEdit>(box, "txtPassword")->selectedText(), "PW");
  tests::enter("pw");
  EXPECT_EQ(box.result(), QDialog::Accepted);
}

}  // namespace
