// The bank's file through the window: the month asked for, the figures shown, the way out.
#include "billing/FrmSukum.h"

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "tests/idle_context.h"
#include "tests/support.h"
#include "tests/ui/grab.h"

namespace {

struct SukumForm : testing::Test, tests::TestPc {
  SukumForm() {
    openBooks(QDate(2026, 4, 2));
    session.BasicPath = session.DbPath + "Basic.mdb";
    form.emplace(idle.context);
    tests::show(*form);
  }
  template <class Control>
  Control* box(const char* name) {
    return form->findChild<Control*>(QString::fromLatin1(name));
  }
  QLineEdit* year() { return box<QLineEdit>("txtYear"); }

  tests::IdleContext idle{session};
  std::optional<FrmSukum> form;
};

TEST_F(SukumForm, AMonthIsCollectedByKeys) {
  QFile file(pc.paths.native("C:\\RWGas") + "/202603.txt");
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  for (const char* amount : {"0000001218350", "0000000000650"})
    file.write("22" + QByteArray(11, '0') + "0331" + QByteArray(32, '0') + QByteArray(19, '0') + '0' +
               amount + "\r\n");
  file.close();
  EXPECT_EQ(year()->text(), "2026");
  EXPECT_EQ(box<QComboBox>("CboMon")->currentText(), "04");
  ASSERT_TRUE(year()->hasFocus());
  tests::key(Qt::Key_Return);
  tests::key(Qt::Key_Up);  // March
  tests::key(Qt::Key_Return);
  ASSERT_TRUE(box<QPushButton>("BtnSave")->hasFocus());
  tests::key(Qt::Key_Return);
  EXPECT_EQ(box<QLabel>("txtCount")->text(), "2");
  EXPECT_EQ(box<QLabel>("txtSuKum")->text(), "1,219,000");
  tests::grab(*form, "FrmSukum");
  // Figures of an earlier run do not stand beside a run that failed.
  box<QComboBox>("CboMon")->setCurrentIndex(0);
  prompts.expect("수납파일을 찾을 수 없습니다.");
  prompts.expect("해당년월 파일이 존재하지 않거나 잘못된 파일입니다.");
  box<QPushButton>("BtnSave")->click();
  EXPECT_EQ(box<QLabel>("txtSuKum")->text(), QString());
}

TEST_F(SukumForm, AYearThatIsNoNumberGoesBackToThisYear) {
  tests::type("20x6");
  prompts.expect("잘못된 년도입니다.");
  tests::key(Qt::Key_Tab);
  QApplication::processEvents();
  EXPECT_EQ(year()->text(), "2026");
  EXPECT_TRUE(year()->hasFocus());
  tests::type("x");
  box<QPushButton>("BtnCancle")->click();  // over a wrong year: nothing is asked any more
  QApplication::processEvents();
  EXPECT_FALSE(form->isVisible());
}

}  // namespace
