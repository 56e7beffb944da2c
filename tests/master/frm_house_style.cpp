// The building register played by keys on real data files.
#include "master/buildings/frmHouseStyle.h"

#include <gtest/gtest.h>

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

using namespace Qt::StringLiterals;

namespace {

struct HousePickers : tests::IdlePickers {
  HousePickers() {
    regulator = VolumeChoice{u"4"_s, 2450};
    place = PostCodeChoice{u"712-010"_s, u"경북 달빛시 장터동"_s, {}};
    building = BuildingChoice{u"달빛아파트"_s, u"101"_s, u"712-010"_s, u"경북 달빛시 장터동 7"_s};
  }
};

class HouseStyleForm : public ::testing::Test {
 protected:
  void SetUp() override {
    at.openBooks(QDate(2026, 3, 16));
    form = std::make_unique<frmHouseStyle>(context);
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
    return tests::rowsOf(at.session.dbBasic, u"Select Name From Client Where Ho Is Not Null Order By Code"_s);
  }
  /** Everything of a new block of two floors with three units each, by keys; the focus ends on BtnSave. */
  void enterBlock() {
    box<QPushButton>("BtnNew")->setFocus();
    tests::key(Qt::Key_Space);
    ASSERT_TRUE(box("TxtBDName")->hasFocus());
    tests::key(Qt::Key_F12);
    ASSERT_TRUE(box("TxtDong")->hasFocus());
    tests::enter(u"103"_s);
    ASSERT_TRUE(box<QRadioButton>("OptStair")->hasFocus());
    tests::key(Qt::Key_Return);
    tests::enter(u"2"_s);
    tests::type(u"3"_s);
    for (int next = 0; next < 5; ++next) tests::key(Qt::Key_Return);  // both ticks, postcode, address
    ASSERT_TRUE(box<QCheckBox>("ChkEvaporation")->hasFocus());
    tests::key(Qt::Key_Space);
    tests::key(Qt::Key_Return);
    ASSERT_TRUE(box("TxtPressure")->hasFocus());
    tests::key(Qt::Key_Return);  // the regulators
    ASSERT_TRUE(box("TxtEva")->hasFocus());
    tests::key(Qt::Key_Return);
    tests::enter(u"1.5"_s);
    ASSERT_TRUE(box<QPushButton>("BtnSave")->hasFocus());
  }

  tests::TestPc at;
  HousePickers pickers;
  tests::IdleCommands commands;
  tests::IdleCalls calls;
  FormContext context{at.session, pickers, commands, calls};
  std::unique_ptr<frmHouseStyle> form;
};

TEST_F(HouseStyleForm, ABlockIsRegisteredByKeysWithACorrectedUnit) {
  enterBlock();
  EXPECT_EQ(pickers.asked.last(), u"1"_s);
  auto* const units = box<Spread>("SpBDAddress");
  ASSERT_EQ(units->model().text(1, 4), u"203"_s);
  units->setFocus();
  units->setActiveCell(1, 4);
  tests::enter(u"201"_s);
  EXPECT_NE(units->model().background(1, 2), -1) << "the number stands twice now";
  units->setActiveCell(1, 4);
  tests::type(u"209"_s);
  tests::grab(*form, u"frmHouseStyle-new"_s);
  // The open cell counts too: the button takes it first.
  at.prompts.expect(u"건물등록을 마쳤습니다"_s);
  box<QPushButton>("BtnSave")->click();
  EXPECT_EQ(households(),
            u"달빛아파트 103동 101호;달빛아파트 103동 201호;달빛아파트 103동 102호;"
            u"달빛아파트 103동 202호;달빛아파트 103동 103호;달빛아파트 103동 209호"_s);
  EXPECT_EQ(units->model().text(1, 4), u"209"_s) << "the stored block shows its households";
  EXPECT_TRUE(units->model().locked(1, 4));
  EXPECT_TRUE(box("TxtHeight")->isReadOnly());
  EXPECT_EQ(box<QCheckBox>("Chk4"), nullptr) << "only a new block is numbered";
  tests::grab(*form, u"frmHouseStyle"_s);
}

TEST_F(HouseStyleForm, BoxesDecideTheNumbersUntilTheBlockIsStored) {
  enterBlock();
  auto* const units = box<Spread>("SpBDAddress");
  box("TxtHeight")->setText(u"4"_s);
  box<QCheckBox>("Chk4")->click();
  EXPECT_EQ(units->model().text(1, 1), u"5층"_s);
  EXPECT_EQ(units->model().MaxRows(), 4);
  box("TxtWidth")->setText(u"4"_s);
  box<QCheckBox>("Chk4Ho")->click();
  EXPECT_EQ(units->model().text(4, 5), u"105"_s);
  box<QPushButton>("BtnCancel")->click();
  EXPECT_EQ(units->model().MaxRows(), 0);
  EXPECT_EQ(households(), QString());
}

TEST_F(HouseStyleForm, ABigBlockShowsHowFarItIs) {
  const QScopedValueRollback shortGroups(longWorkGroup, 5);
  enterBlock();
  box("TxtHeight")->setText(u"30"_s);
  box("TxtWidth")->setText(u"60"_s);
  tests::grab(*form, u"frmHouseStyle-big"_s);
  bool seen = false;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, form.get(), [&] {
    if (auto* const bar = form->findChild<QWidget*>(u"FrmProgress"_s); bar && !seen) {
      seen = true;
      EXPECT_FALSE(bar->findChild<QPushButton*>()) << "half a block is none";
      tests::grab(*bar, u"FrmProgress-households"_s);
    }
  });
  watch.start(0);
  at.prompts.expect(u"건물등록을 마쳤습니다"_s);
  tests::key(Qt::Key_Return);
  EXPECT_TRUE(seen);
  EXPECT_FALSE(form->findChild<QWidget*>(u"FrmProgress"_s)) << "it goes when the work is done";
  EXPECT_EQ(form->grid()->model().text(1, 6), u"1800"_s);
}

TEST_F(HouseStyleForm, AStoredBlockIsChangedAndDeletedByKeys) {
  enterBlock();
  at.prompts.expect(u"건물등록을 마쳤습니다"_s);
  tests::key(Qt::Key_Return);
  form->grid()->setFocus();
  EXPECT_TRUE(box<QRadioButton>("OptStair")->isChecked());
  EXPECT_EQ(box("TxtDelayPay")->text(), u"1.5"_s);
  box<QRadioButton>("OptFloor")->click();
  box("TxtEva")->setText(u"2600"_s);
  at.prompts.expect(u"선택하신 건물의 모든 가구에 대한 내용이 수정됩니다."_s);
  box<QPushButton>("BtnSave")->click();
  EXPECT_TRUE(box<QRadioButton>("OptFloor")->isChecked());
  EXPECT_EQ(form->grid()->model().text(1, 3), u"복도식"_s);
  EXPECT_EQ(form->grid()->model().text(1, 8), u"2600"_s);
  at.prompts.expect(u"선택된 건물의 자료와 고객현황을 모두 지우시겠습니까?"_s);
  at.prompts.expect(u"삭제하시겠습니까?"_s);
  form->grid()->setFocus();
  tests::key(Qt::Key_Delete);
  EXPECT_EQ(households(), QString());
  EXPECT_EQ(form->grid()->model().MaxRows(), 0);

  form->findChild<QTabWidget*>()->setCurrentIndex(1);
  box<QPushButton>("BtnNew")->setFocus();
  tests::key(Qt::Key_Space);
  tests::key(Qt::Key_F12);
  EXPECT_EQ(pickers.asked.last(), u"2"_s) << "the second page is the multi-family houses'";
}

}  // namespace
