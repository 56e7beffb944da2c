// The company profile, filled in by keys.
#include "app/frmUser.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "app/frmSecurity.h"
#include "tests/idle_context.h"
#include "tests/support.h"
#include "tests/ui/grab.h"

namespace {

struct UserForm : testing::Test, tests::TestPc {
  tests::IdleContext idle{session};
  UserForm() { openBooks(); }

  template <class W>
  static W* part(QWidget& form, const char* name) {
    W* found = form.findChild<W*>(QString::fromUtf8(name));
    EXPECT_TRUE(found) << name;
    return found;
  }
  void open(frmUser& form) {
    tests::show(form);
    QApplication::processEvents();
  }
  void enter(const QString& text) { tests::enter(text); }
};

TEST_F(UserForm, ANewCompanyIsTypedFieldByFieldThenItsSettings) {
  frmUser form(idle.context);
  open(form);
  auto* tabs = part<QTabWidget>(form, "TabUser");
  prompts.expect("먼저 사용자 등록을 해주십시오");
  tabs->setCurrentIndex(1);
  EXPECT_EQ(tabs->currentIndex(), 0);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "TxtCompany");

  enter("");
  prompts.expect("상호를 입력하십시오");
  QTest::mouseClick(part<QPushButton>(form, "CmdSave"), Qt::LeftButton);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "TxtCompany");
  for (const char* text :
       {"Gas", "Kim", "1-2-3", "700123", "Daegu", "Retail", "LPG", "053-1", "053-2", "1234567"})
    enter(text);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "CmdSave");
  prompts.expect("사용자 등록이 완료되었습니다");
  tests::key(Qt::Key_Space);
  tests::grab(form, "frmUser1");

  tabs->setCurrentIndex(1);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "TxtRate");
  for (const char* text : {"2.5", "1000", "", "", "", "", "", "", "", "700", "799", "", "pw", "pw"}) {
    if (QString::fromUtf8(text).isEmpty())
      tests::key(Qt::Key_Return);
    else
      enter(QString::fromUtf8(text));
  }
  part<QRadioButton>(form, "OptYes")->click();
  part<QRadioButton>(form, "OptCutOnOff")->click();
  tests::grab(form, "frmUser2");
  prompts.expect("귀하의 패스워드는 pw 입니다");
  QTest::mouseClick(part<QPushButton>(form, "BtnSave"), Qt::LeftButton);
  const auto row = session.dbBasic.OpenRecordset("Select * From User");
  EXPECT_EQ(row["Company"].toText(), "Gas");
  EXPECT_EQ(row["fax"].toText(), "053-2");
  EXPECT_EQ(row["Rate"].toText(), "2.5");
  EXPECT_EQ(row["Post2"].toText(), "799");
  EXPECT_EQ(row["PayState"].toText(), "3");
  EXPECT_TRUE(session.StockEnabled);
}

TEST_F(UserForm, WhatWasTypedGoesOnlyAfterAQuestionAndNothingOfAnotherPcIsWrittenOver) {
  session.dbBasic.Execute("Insert Into User(Company, User, Rate) Values('Gas', 'Kim', 2.5)");
  frmUser form(idle.context);
  open(form);
  auto* const company = part<QLineEdit>(form, "TxtCompany");
  auto* const rate = part<QLineEdit>(form, "TxtRate");
  ASSERT_TRUE(company->hasFocus());
  enter("x");
  tests::key(Qt::Key_2, Qt::AltModifier);
  ASSERT_TRUE(rate->hasFocus());
  tests::type("a9.75,");
  EXPECT_EQ(rate->text(), "9.75") << "a rate is a number";
  EXPECT_TRUE(part<QLabel>(form, "PnlHelp")->text().contains("넣을 수 없는"));
  prompts.expect("버리시겠습니까?", false);
  tests::key(Qt::Key_Escape);
  prompts.expect("버리시겠습니까?", false);
  form.close();
  EXPECT_TRUE(form.isVisible());
  EXPECT_EQ(company->text() + rate->text(), "x9.75");

  session.dbBasic.Execute("Update User Set Rate = 3, Tel = '053-1'");
  prompts.expect("먼저 바꾸었습니다!", false);
  tests::key(Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(session.dbBasic.OpenRecordset("Select Rate From User")[0].toText(), "3");
  prompts.expect("먼저 바꾸었습니다!");
  prompts.expect("패스워드가 현재 삭제된 상태입니다");
  tests::key(Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(session.dbBasic.OpenRecordset("Select Rate From User")[0].toText(), "9.75");
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
  open(form);
  auto* const code = part<QLineEdit>(form, "TxtPostCode");
  code->setFocus();
  tests::key(Qt::Key_F12);
  EXPECT_EQ(code->text(), "700020") << "the search was left";
  idle.pickers.place = {"702010", "대구 북구 고성동", ""};
  tests::key(Qt::Key_F12);
  EXPECT_EQ(idle.pickers.asked, QStringList({"700020", "700020"}));
  EXPECT_EQ(code->text(), "702010");
  EXPECT_EQ(part<QLineEdit>(form, "TxtAddress")->text(), "대구 북구 고성동");
  prompts.expect("버리시겠습니까?");
  form.close();
}

TEST_F(UserForm, WithoutThePasswordTheFormCloses) {
  session.dbBasic.Execute("Insert Into User(Company, Password) Values('Gas', 'pw')");
  idle.pickers.password = false;
  frmUser form(idle.context);
  open(form);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(part<QLineEdit>(form, "TxtCompany")->text(), "");
}

TEST_F(UserForm, ThePasswordBoxRefusesAndMarksTheText) {
  session.dbBasic.Execute("Insert Into User(Company, Password) Values('Gas', 'pw')");
  frmSecurity box(session);
  tests::show(box);
  tests::grab(box, "frmSecurity");
  prompts.expect("패스워드가 잘못되었습니다. 다시 시도하십시오");
  enter("PW");
  EXPECT_EQ(part<QLineEdit>(box, "txtPassword")->selectedText(), "PW");
  enter("pw");
  EXPECT_EQ(box.result(), QDialog::Accepted);
}

}  // namespace
