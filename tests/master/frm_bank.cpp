// The bank register played by keys on real data files.
#include "master/partners/frmBank.h"

#include <QLineEdit>
#include <QPushButton>
#include <memory>

#include "tests/answers.h"
#include "tests/idle_context.h"
#include "tests/support.h"
#include "tests/ui/grab.h"

namespace {

class BankForm : public ::testing::Test {
 protected:
  void SetUp() override {
    at.openBooks(QDate(2026, 6, 15));
    tests::insertRows(at.session.dbBasic, "Bank(BName, BNumber, BUser)",
                      {"'국민은행', '001-01', '김해온'", "'농협', '002-02', '이해온'"});
    form = std::make_unique<frmBank>(idle.context);
    form->resize(640, 360);
    tests::show(*form);
  }
  QLineEdit* box(const char* name) { return tests::part<QLineEdit>(*form, name); }
  QPushButton* button(const char* name) { return tests::part<QPushButton>(*form, name); }
  /** "name|number|user;" for every row of the table. */
  QString stored() {
    return tests::rowsOf(at.session.dbBasic, "Select BName, BNumber, BUser From Bank Order By BName");
  }

  tests::TestPc at;
  tests::IdleContext idle{at.session};
  std::unique_ptr<frmBank> form;
};

TEST_F(BankForm, NewAccountIsEnteredByKeysAlone) {
  button("BtnNew")->setFocus();
  tests::key(Qt::Key_Space);
  EXPECT_TRUE(box("TxtBName")->hasFocus());
  tests::compose({"ㅅ", "시"}, "신");
  tests::compose({"ㅎ"}, "한");
  tests::keys({Qt::Key_Return, Qt::Key_Return, Qt::Key_Return});
  EXPECT_TRUE(button("BtnSave")->hasFocus());
  at.prompts.expect("계좌번호를 입력하십시오");
  tests::key(Qt::Key_Return);
  EXPECT_TRUE(box("TxtBNumber")->hasFocus());
  tests::enter("003-03");
  tests::keys({Qt::Key_Return, Qt::Key_Return});
  EXPECT_EQ(stored(), "국민은행|001-01|김해온;농협|002-02|이해온;신한|003-03|");
  EXPECT_EQ(form->grid()->activeRow(), 3);
  tests::grab(*form, "frmBank");
}

TEST_F(BankForm, NameDecidesBetweenChangingAndAdding) {
  EXPECT_EQ(box("TxtBName")->text(), "국민은행") << "the first line is shown";
  box("TxtBNumber")->setText("001-99");
  button("BtnSave")->click();
  EXPECT_EQ(stored(), "국민은행|001-99|김해온;농협|002-02|이해온");
  box("TxtBName")->setText("국민");
  button("BtnSave")->click();
  EXPECT_EQ(stored(), "국민|001-99|김해온;국민은행|001-99|김해온;농협|002-02|이해온");
  box("TxtBName")->clear();
  at.prompts.expect("은행명을 입력하십시오");
  button("BtnSave")->click();
}

TEST_F(BankForm, DeleteAsksFirst) {
  form->grid()->setFocus();
  tests::key(Qt::Key_Down);
  at.prompts.expect("선택한 자료를 삭제하시겠습니까?", false);
  tests::key(Qt::Key_Delete);
  at.prompts.expect("선택한 자료를 삭제하시겠습니까?");
  tests::key(Qt::Key_Delete);
  EXPECT_EQ(stored(), "국민은행|001-01|김해온");
  EXPECT_EQ(box("TxtBName")->text(), "국민은행");
  at.prompts.expect("선택한 자료를 삭제하시겠습니까?");
  button("BtnDel")->click();
  at.prompts.expect("삭제할 자료를 선택하십시오");
  button("BtnDel")->click();
}

TEST_F(BankForm, ApostropheIsToldAndTheFormStaysUp) {
  box("TxtBName")->setText("O'Bank");
  at.prompts.expect("");
  button("BtnSave")->click();
  EXPECT_EQ(box("TxtBName")->text(), "O'Bank");
  EXPECT_EQ(stored(), "국민은행|001-01|김해온;농협|002-02|이해온");
}

}  // namespace
