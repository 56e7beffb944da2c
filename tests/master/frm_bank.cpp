// The bank register played by keys on real data files.
#include "master/partners/frmBank.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <memory>

#include "tests/answers.h"
#include "tests/idle_context.h"
#include "tests/support.h"
#include "tests/ui/grab.h"

using namespace Qt::StringLiterals;

namespace {

class BankForm : public ::testing::Test {
 protected:
  void SetUp() override {
    at.openBooks(QDate(2026, 6, 15));
    at.session.dbBasic.Execute(
        u"Insert Into Bank(BName, BNumber, BUser) Values('국민은행', '001-01', '김해온')"_s);
    at.session.dbBasic.Execute(
        u"Insert Into Bank(BName, BNumber, BUser) Values('농협', '002-02', '이해온')"_s);
    form = std::make_unique<frmBank>(idle.context);
    form->resize(640, 360);
    tests::show(*form);
  }
  QLineEdit* box(const char* name) { return form->findChild<QLineEdit*>(QString::fromLatin1(name)); }
  QPushButton* button(const char* name) { return form->findChild<QPushButton*>(QString::fromLatin1(name)); }
  /** "name|number|user;" for every row of the table. */
  QString stored() {
    return tests::rowsOf(at.session.dbBasic, u"Select BName, BNumber, BUser From Bank Order By BName"_s);
  }

  tests::TestPc at;
  tests::IdleContext idle{at.session};
  std::unique_ptr<frmBank> form;
};

TEST_F(BankForm, NewAccountIsEnteredByKeysAlone) {
  button("BtnNew")->setFocus();
  tests::key(Qt::Key_Space);
  EXPECT_TRUE(box("TxtBName")->hasFocus());
  tests::compose({u"ㅅ"_s, u"시"_s}, u"신"_s);
  tests::compose({u"ㅎ"_s}, u"한"_s);
  tests::key(Qt::Key_Return);
  tests::key(Qt::Key_Return);
  tests::key(Qt::Key_Return);
  EXPECT_TRUE(button("BtnSave")->hasFocus());
  at.prompts.expect(u"계좌번호를 입력하십시오"_s);
  tests::key(Qt::Key_Return);
  EXPECT_TRUE(box("TxtBNumber")->hasFocus());
  tests::enter(u"003-03"_s);
  tests::key(Qt::Key_Return);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(stored(), u"국민은행|001-01|김해온;농협|002-02|이해온;신한|003-03|"_s);
  EXPECT_EQ(form->grid()->activeRow(), 3);
  tests::grab(*form, u"frmBank"_s);
}

TEST_F(BankForm, NameDecidesBetweenChangingAndAdding) {
  EXPECT_EQ(box("TxtBName")->text(), u"국민은행"_s) << "the first line is shown";
  box("TxtBNumber")->setText(u"001-99"_s);
  button("BtnSave")->click();
  EXPECT_EQ(stored(), u"국민은행|001-99|김해온;농협|002-02|이해온"_s);
  box("TxtBName")->setText(u"국민"_s);
  button("BtnSave")->click();
  EXPECT_EQ(stored(), u"국민|001-99|김해온;국민은행|001-99|김해온;농협|002-02|이해온"_s);
  box("TxtBName")->clear();
  at.prompts.expect(u"은행명을 입력하십시오"_s);
  button("BtnSave")->click();
}

TEST_F(BankForm, DeleteAsksFirst) {
  form->grid()->setFocus();
  tests::key(Qt::Key_Down);
  at.prompts.expect(u"선택한 자료를 삭제하시겠습니까?"_s, false);
  tests::key(Qt::Key_Delete);
  at.prompts.expect(u"선택한 자료를 삭제하시겠습니까?"_s);
  tests::key(Qt::Key_Delete);
  EXPECT_EQ(stored(), u"국민은행|001-01|김해온"_s);
  EXPECT_EQ(box("TxtBName")->text(), u"국민은행"_s);
  at.prompts.expect(u"선택한 자료를 삭제하시겠습니까?"_s);
  button("BtnDel")->click();
  at.prompts.expect(u"삭제할 자료를 선택하십시오"_s);
  button("BtnDel")->click();
}

TEST_F(BankForm, ApostropheIsToldAndTheFormStaysUp) {
  box("TxtBName")->setText(u"O'Bank"_s);
  at.prompts.expect(QString());
  button("BtnSave")->click();
  EXPECT_EQ(box("TxtBName")->text(), u"O'Bank"_s);
  EXPECT_EQ(stored(), u"국민은행|001-01|김해온;농협|002-02|이해온"_s);
}

}  // namespace
