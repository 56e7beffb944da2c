// The building register played by keys on real data files.
#include "master/buildings/frmHouseStyle.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QTabWidget>
#include <QTimer>
#include <memory>

#include "store/long_work.h"
#include "tests/answers.h"
#include "tests/idle_context.h"
#include "tests/support.h"
#include "tests/ui/grab.h"

namespace {

class HouseStyleForm : public ::testing::Test {
 protected:
  void SetUp() override {
    at.openBooks(QDate(2026, 3, 16));
    idle.pickers.regulator = VolumeChoice{"4", 2450};
    idle.pickers.place = PostCodeChoice{"712-010", "경북 달빛시 장터동", {}};
    idle.pickers.building = BuildingChoice{"달빛아파트", "101", "712-010", "경북 달빛시 장터동 7"};
    form = std::make_unique<frmHouseStyle>(idle.context);
    form->resize(form->sizeHint());
    tests::show(*form);
  }
  /** A control of the page in front. */
  template <class Control = QLineEdit>
  Control* box(const char* name) {
    for (auto* const each : form->findChildren<Control*>(QString::fromLatin1(name)))
      if (each->isVisible()) return each;
    return nullptr;
  }
  QString households() {
    return tests::rowsOf(at.session.dbBasic, "Select Name From Client Where Ho Is Not Null Order By Code");
  }
  /** Everything of a new block of two floors with three units each, by keys; the focus ends on BtnSave. */
  void enterBlock() {
    box<QPushButton>("BtnNew")->setFocus();
    tests::key(Qt::Key_Space);
    ASSERT_TRUE(box("TxtBDName")->hasFocus());
    tests::key(Qt::Key_F12);
    ASSERT_TRUE(box("TxtDong")->hasFocus());
    tests::enter("103");
    ASSERT_TRUE(box<QRadioButton>("OptStair")->hasFocus());
    tests::key(Qt::Key_Return);
    tests::enter("2");
    tests::type("3");
    for (int next = 0; next < 5; ++next) tests::key(Qt::Key_Return);  // both ticks, postcode, address
    ASSERT_TRUE(box<QCheckBox>("ChkEvaporation")->hasFocus());
    tests::keys({Qt::Key_Space, Qt::Key_Return});
    ASSERT_TRUE(box("TxtPressure")->hasFocus());
    tests::key(Qt::Key_Return);  // the regulators
    ASSERT_TRUE(box("TxtEva")->hasFocus());
    tests::key(Qt::Key_Return);
    tests::enter("1.5");
    ASSERT_TRUE(box<QPushButton>("BtnSave")->hasFocus());
  }

  tests::TestPc at;
  tests::IdleContext idle{at.session};
  std::unique_ptr<frmHouseStyle> form;
};

TEST_F(HouseStyleForm, ABlockIsRegisteredByKeysWithACorrectedUnit) {
  enterBlock();
  EXPECT_EQ(idle.pickers.asked.last(), "1");
  auto* const units = box<Spread>("SpBDAddress");
  ASSERT_EQ(units->model().text(1, 4), "203");
  units->setFocus();
  units->setActiveCell(1, 4);
  tests::enter("201");
  EXPECT_NE(units->model().background(1, 2), -1) << "the number stands twice now";
  units->setActiveCell(1, 4);
  tests::type("209");
  tests::grab(*form, "frmHouseStyle-new");
  // The open cell counts too: the button takes it first.
  at.prompts.expect("건물등록을 마쳤습니다");
  box<QPushButton>("BtnSave")->click();
  EXPECT_EQ(households(),
            u"달빛아파트 103동 101호;달빛아파트 103동 201호;달빛아파트 103동 102호;"
            "달빛아파트 103동 202호;달빛아파트 103동 103호;달빛아파트 103동 209호");
  EXPECT_EQ(units->model().text(1, 4), "209") << "the stored block shows its households";
  EXPECT_TRUE(units->model().locked(1, 4));
  EXPECT_TRUE(box("TxtHeight")->isReadOnly());
  EXPECT_EQ(box<QCheckBox>("Chk4"), nullptr) << "only a new block is numbered";
  tests::grab(*form, "frmHouseStyle");
}

TEST_F(HouseStyleForm, BoxesDecideTheNumbersUntilTheBlockIsStored) {
  enterBlock();
  auto* const units = box<Spread>("SpBDAddress");
  box("TxtHeight")->setText("4");
  box<QCheckBox>("Chk4")->click();
  EXPECT_EQ(units->model().text(1, 1), "5층");
  EXPECT_EQ(units->model().MaxRows(), 4);
  box("TxtWidth")->setText("4");
  box<QCheckBox>("Chk4Ho")->click();
  EXPECT_EQ(units->model().text(4, 5), "105");
  box<QPushButton>("BtnCancel")->click();
  EXPECT_EQ(units->model().MaxRows(), 0);
  EXPECT_EQ(households(), QString());
}

TEST_F(HouseStyleForm, ABigBlockShowsHowFarItIs) {
  const QScopedValueRollback shortGroups(longWorkGroup, 5);
  enterBlock();
  box("TxtHeight")->setText("30");
  box("TxtWidth")->setText("60");
  tests::grab(*form, "frmHouseStyle-big");
  bool seen = false;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, form.get(), [&] {
    if (auto* const bar = form->findChild<QWidget*>("FrmProgress"); bar && !seen) {
      seen = true;
      EXPECT_FALSE(bar->findChild<QPushButton*>()) << "half a block is none";
      tests::grab(*bar, "FrmProgress-households");
    }
  });
  watch.start(0);
  at.prompts.expect("건물등록을 마쳤습니다");
  tests::key(Qt::Key_Return);
  EXPECT_TRUE(seen);
  EXPECT_FALSE(form->findChild<QWidget*>("FrmProgress")) << "it goes when the work is done";
  EXPECT_EQ(form->grid()->model().text(1, 6), "1800");
}

TEST_F(HouseStyleForm, AStoredBlockIsChangedAndDeletedByKeys) {
  enterBlock();
  at.prompts.expect("건물등록을 마쳤습니다");
  tests::key(Qt::Key_Return);
  form->grid()->setFocus();
  EXPECT_TRUE(box<QRadioButton>("OptStair")->isChecked());
  EXPECT_EQ(box("TxtDelayPay")->text(), "1.5");
  box<QRadioButton>("OptFloor")->click();
  box("TxtEva")->setText("2600");
  at.prompts.expect("선택하신 건물의 모든 가구에 대한 내용이 수정됩니다.");
  box<QPushButton>("BtnSave")->click();
  EXPECT_TRUE(box<QRadioButton>("OptFloor")->isChecked());
  EXPECT_EQ(form->grid()->model().text(1, 3), "복도식");
  EXPECT_EQ(form->grid()->model().text(1, 8), "2600");
  at.prompts.expect("선택된 건물의 자료와 고객현황을 모두 지우시겠습니까?");
  at.prompts.expect("삭제하시겠습니까?");
  form->grid()->setFocus();
  tests::key(Qt::Key_Delete);
  EXPECT_EQ(households(), QString());
  EXPECT_EQ(form->grid()->model().MaxRows(), 0);

  form->findChild<QTabWidget*>()->setCurrentIndex(1);
  box<QPushButton>("BtnNew")->setFocus();
  tests::keys({Qt::Key_Space, Qt::Key_F12});
  EXPECT_EQ(idle.pickers.asked.last(), "2") << "the second page is the multi-family houses'";
}

}  // namespace
