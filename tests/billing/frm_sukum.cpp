// The bank's file through the window: the month asked for, the figures shown, the way out.
#include "billing/FrmSukum.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <memory>

#include "tests/idle_context.h"
#include "tests/support.h"
#include "tests/ui/grab.h"

using namespace Qt::StringLiterals;

namespace {

class SukumForm : public ::testing::Test {
 protected:
  void SetUp() override {
    at.openBooks(QDate(2026, 4, 2));
    at.session.BasicPath = at.session.DbPath + u"Basic.mdb"_s;
    form = std::make_unique<FrmSukum>(idle.context);
    tests::show(*form);
  }
  template <class Control>
  Control* box(const char* name) {
    return form->findChild<Control*>(QString::fromLatin1(name));
  }

  tests::TestPc at;
  tests::IdleContext idle{at.session};
  std::unique_ptr<FrmSukum> form;
};

TEST_F(SukumForm, AMonthIsCollectedByKeys) {
  QFile file(at.pc.paths.native(u"C:\\RWGas"_s) + u"/202603.txt"_s);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  for (const char* amount : {"0000001218350", "0000000000650"})
    file.write("22" + QByteArray(11, '0') + "0331" + QByteArray(32, '0') + QByteArray(19, '0') + '0' +
               amount + "\r\n");
  file.close();
  EXPECT_EQ(box<QLineEdit>("txtYear")->text(), u"2026"_s);
  EXPECT_EQ(box<QComboBox>("CboMon")->currentText(), u"04"_s);
  ASSERT_TRUE(box<QLineEdit>("txtYear")->hasFocus());
  tests::key(Qt::Key_Return);
  tests::key(Qt::Key_Up);  // March
  tests::key(Qt::Key_Return);
  ASSERT_TRUE(box<QPushButton>("BtnSave")->hasFocus());
  tests::key(Qt::Key_Return);
  EXPECT_EQ(box<QLabel>("txtCount")->text(), u"2"_s);
  EXPECT_EQ(box<QLabel>("txtSuKum")->text(), u"1,219,000"_s);
  tests::grab(*form, u"FrmSukum"_s);
  // Figures of an earlier run do not stand beside a run that failed.
  box<QComboBox>("CboMon")->setCurrentIndex(0);
  at.prompts.expect(u"수납파일을 찾을 수 없습니다."_s);
  at.prompts.expect(u"해당년월 파일이 존재하지 않거나 잘못된 파일입니다."_s);
  box<QPushButton>("BtnSave")->click();
  EXPECT_EQ(box<QLabel>("txtSuKum")->text(), QString());
}

TEST_F(SukumForm, AYearThatIsNoNumberGoesBackToThisYear) {
  tests::type(u"20x6"_s);
  at.prompts.expect(u"잘못된 년도입니다."_s);
  tests::key(Qt::Key_Tab);
  QApplication::processEvents();
  EXPECT_EQ(box<QLineEdit>("txtYear")->text(), u"2026"_s);
  EXPECT_TRUE(box<QLineEdit>("txtYear")->hasFocus());
  tests::type(u"x"_s);
  box<QPushButton>("BtnCancle")->click();  // over a wrong year: nothing is asked any more
  QApplication::processEvents();
  EXPECT_FALSE(form->isVisible());
}

}  // namespace
