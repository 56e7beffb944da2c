// Choosing whom a message goes to, by keys on the real window.
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "links/FrmSMS.h"
#include "tests/answers.h"
#include "tests/idle_context.h"
#include "tests/support.h"
#include "tests/ui/grab.h"

namespace {

struct SmsForm : testing::Test, tests::TestPc {
  SmsForm() {
    openBooks(QDate(2026, 3, 16));
    tests::insertRows(session.dbBasic, "Client(Name, Tel, GasInit)",
                      {"'달빛식당', '02-333-4444,010-1234', 152000", "'가람상회', '010-5555-6666', 0",
                       "'해맑은세탁소', '', 38000"});
  }
  tests::IdleContext idle{session};
  QString count(QWidget& form) { return form.findChild<QLabel*>("lblCountRec")->text(); }
};

TEST_F(SmsForm, TicksAreCountedFoundAnewAndHandedOver) {
  tests::writeFile(pc.paths.native("C:\\RWGas\\RWSMS.exe"));
  QStringList started;
  pc.process.setStarter([&](const QString&, const QStringList& arguments, const QString&) {
    started << arguments;
    return true;
  });
  FrmSMS form(idle.context);
  tests::show(form);
  EXPECT_TRUE(form.findChild<Spread*>("grdList")->isAncestorOf(QApplication::focusWidget()));
  tests::key(Qt::Key_Space);  // 가람상회
  tests::key(Qt::Key_Down);
  tests::key(Qt::Key_Space);  // 달빛식당
  EXPECT_EQ(count(form), "2");
  tests::key(Qt::Key_Space);
  EXPECT_EQ(count(form), "1");
  auto* const all = form.findChild<QCheckBox*>("ChkAll");
  all->click();
  EXPECT_EQ(count(form), "3");
  tests::grab(form, "FrmSMS");

  // A typed amount is what is looked for; an emptied one is 0.
  auto* const balance = form.findChild<QLineEdit*>("txtBalance");
  balance->setFocus();
  tests::type("1x00000");
  EXPECT_TRUE(form.findChild<QRadioButton*>("optFilter1")->isChecked());
  tests::key(Qt::Key_Return);
  EXPECT_EQ(balance->text(), "100,000");
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "btnSearch");
  tests::key(Qt::Key_Return);
  EXPECT_EQ(count(form), "0");
  EXPECT_FALSE(all->isChecked());
  auto& list = form.findChild<Spread*>("grdList")->model();
  ASSERT_EQ(list.MaxRows(), 1);
  EXPECT_EQ(list.text(1, SmsCol::Balance), "152,000");
  balance->setFocus();
  balance->clear();
  tests::key(Qt::Key_Tab);
  EXPECT_TRUE(QTest::qWaitFor([&] { return balance->text() == "0"; }));

  all->click();
  form.findChild<QPushButton*>("btnTrans0")->click();
  EXPECT_EQ(started, QStringList{pc.paths.native("C:\\RWGas\\ExternTelNo.txt")});
  EXPECT_EQ(tests::bytesOf(pc.paths.native("C:\\RWGas\\ExternTelNo.txt")).count('\n'), 2)
      << "two numbers in one cell";
}

TEST_F(SmsForm, ANameIsFoundByEnterAndAFailureLeavesTheWindow) {
  FrmSMS form(idle.context);
  tests::show(form);
  auto* const name = form.findChild<QLineEdit*>("txtName");
  name->setFocus();
  tests::compose({"세"}, "세탁");
  tests::key(Qt::Key_Return);
  auto& list = form.findChild<Spread*>("grdList")->model();
  ASSERT_EQ(list.MaxRows(), 1);
  EXPECT_EQ(list.text(1, SmsCol::Name), "해맑은세탁소");
  name->setFocus();
  name->setText("'");
  prompts.expect("Like");
  tests::key(Qt::Key_Return);
  EXPECT_TRUE(form.isVisible());
}

}  // namespace
