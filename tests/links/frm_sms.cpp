// Choosing whom a message goes to, by keys on the real window.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "links/FrmSMS.h"
#include "tests/idle_context.h"
#include "tests/support.h"
#include "tests/ui/grab.h"

using namespace Qt::StringLiterals;

namespace {

struct SmsForm : testing::Test, tests::TestPc {
  SmsForm() {
    openBooks(QDate(2026, 3, 16));
    for (const QString& client : {u"'달빛식당', '02-333-4444,010-1234', 152000"_s,
                                  u"'가람상회', '010-5555-6666', 0"_s, u"'해맑은세탁소', '', 38000"_s})
      session.dbBasic.Execute(u"Insert Into Client(Name, Tel, GasInit) Values("_s + client + u")"_s);
  }
  tests::IdleContext idle{session};
  QString count(QWidget& form) { return form.findChild<QLabel*>(u"lblCountRec"_s)->text(); }
};

TEST_F(SmsForm, TicksAreCountedFoundAnewAndHandedOver) {
  pc.paths.makeFolder(u"C:\\RWGas"_s);
  QFile tool(pc.paths.native(u"C:\\RWGas\\RWSMS.exe"_s));
  ASSERT_TRUE(tool.open(QIODevice::WriteOnly));
  QStringList started;
  pc.process.setStarter([&](const QString&, const QStringList& arguments, const QString&) {
    started << arguments;
    return true;
  });
  FrmSMS form(idle.context);
  tests::show(form);
  EXPECT_TRUE(form.findChild<Spread*>(u"grdList"_s)->isAncestorOf(QApplication::focusWidget()));
  tests::key(Qt::Key_Space);  // 가람상회
  tests::key(Qt::Key_Down);
  tests::key(Qt::Key_Space);  // 달빛식당
  EXPECT_EQ(count(form), u"2"_s);
  tests::key(Qt::Key_Space);
  EXPECT_EQ(count(form), u"1"_s);
  auto* const all = form.findChild<QCheckBox*>(u"ChkAll"_s);
  all->click();
  EXPECT_EQ(count(form), u"3"_s);
  tests::grab(form, u"FrmSMS"_s);

  // A typed amount is what is looked for; an emptied one is 0.
  auto* const balance = form.findChild<QLineEdit*>(u"txtBalance"_s);
  balance->setFocus();
  tests::type(u"1x00000"_s);
  EXPECT_TRUE(form.findChild<QRadioButton*>(u"optFilter1"_s)->isChecked());
  tests::key(Qt::Key_Return);
  EXPECT_EQ(balance->text(), u"100,000"_s);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), u"btnSearch"_s);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(count(form), u"0"_s);
  EXPECT_FALSE(all->isChecked());
  auto& list = form.findChild<Spread*>(u"grdList"_s)->model();
  ASSERT_EQ(list.MaxRows(), 1);
  EXPECT_EQ(list.text(1, SmsCol::Balance), u"152,000"_s);
  balance->setFocus();
  balance->clear();
  tests::key(Qt::Key_Tab);
  EXPECT_TRUE(QTest::qWaitFor([&] { return balance->text() == u"0"_s; }));

  all->click();
  form.findChild<QPushButton*>(u"btnTrans0"_s)->click();
  EXPECT_EQ(started, QStringList{pc.paths.native(u"C:\\RWGas\\ExternTelNo.txt"_s)});
  QFile file(pc.paths.native(u"C:\\RWGas\\ExternTelNo.txt"_s));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll().count('\n'), 2) << "two numbers in one cell";
}

TEST_F(SmsForm, ANameIsFoundByEnterAndAFailureLeavesTheWindow) {
  FrmSMS form(idle.context);
  tests::show(form);
  auto* const name = form.findChild<QLineEdit*>(u"txtName"_s);
  name->setFocus();
  tests::compose({u"세"_s}, u"세탁"_s);
  tests::key(Qt::Key_Return);
  auto& list = form.findChild<Spread*>(u"grdList"_s)->model();
  ASSERT_EQ(list.MaxRows(), 1);
  EXPECT_EQ(list.text(1, SmsCol::Name), u"해맑은세탁소"_s);
  name->setFocus();
  name->setText(u"'"_s);
  prompts.expect(u"Like"_s);
  tests::key(Qt::Key_Return);
  EXPECT_TRUE(form.isVisible());
}

}  // namespace
