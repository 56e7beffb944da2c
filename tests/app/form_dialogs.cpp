// The frame's small windows, driven by keys and mouse.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QTimer>

#include "app/FrmFolderTrouble.h"
#include "app/FrmInitMsg.h"
#include "app/FrmNetDrive.h"
#include "app/FrmPath.h"
#include "app/form_ground.h"
#include "tests/idle_context.h"
#include "tests/support.h"
#include "tests/ui/grab.h"

namespace {

struct FrameDialogs : testing::Test, tests::TestPc {
  tests::IdleContext idle{session};
  FrameDialogs() {
    session.AppTitle = "해온판매";
    session.DbPath = "C:\\RWGas\\Dbs\\";
    pc.paths.makeFolder("C:\\RWGas\\Dbs");
  }
};

TEST_F(FrameDialogs, FolderIsChosenByKeys) {
  FrmPath form(idle.context);
  form.show();
  auto* list = tests::part<QListWidget>(form, "Dir1");
  auto* shown = tests::part<QLabel>(form, "pnlPath");
  EXPECT_EQ(shown->text(), "C:\\RWGas\\Dbs");
  EXPECT_EQ(tests::part<QComboBox>(form, "Drive1")->currentText(), "C:");
  tests::grab(form, "FrmPath");
  QTest::keyClick(list, Qt::Key_Return);  // on ".."
  EXPECT_EQ(shown->text(), "C:\\RWGas");
  QTest::keyClick(list, Qt::Key_Down);
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_EQ(shown->text(), "C:\\RWGas\\Dbs");
  tests::press(form, "btnNetwork");
  EXPECT_EQ(idle.commands.asked, QStringList{"FrmNetDrive"});
  QTest::keyClick(list, Qt::Key_Return);
  prompts.expect("경로 설정", false);
  tests::press(form, "btnSet");
  EXPECT_EQ(pc.settings.GetSetting("해온판매", "환경설정", "db경로"), "C:\\RWGas\\DBS\\");
  EXPECT_FALSE(form.isVisible());
}

TEST_F(FrameDialogs, NetworkFolderIsMappedOnEnter) {
  FrmNetDrive form(idle.context);
  form.show();
  tests::part<QLineEdit>(form, "txtPath")->setText(pc.paths.native("C:\\RWGas"));
  QTest::keyClick(tests::part<QLineEdit>(form, "txtPath"), Qt::Key_Return);
  EXPECT_EQ(tests::part<QLabel>(form, "pnlResult")->text(),
            "Z:\\ 드라이브로 네트워크 드라이브 연결이 되었습니다.");
  tests::grab(form, "FrmNetDrive");
  EXPECT_TRUE(form.isVisible());
}

TEST_F(FrameDialogs, AMissingFolderLeavesThreeRoadsAndTheDoor) {
  session.DbPath = "Z:\\DBS\\";
  const auto choice = [this](const std::function<void(FrmFolderTrouble&)>& act) {
    FrmFolderTrouble form(reachDataFolder(session), session);
    QTimer::singleShot(0, &form, [&] { act(form); });
    return form.tryAgain();
  };
  EXPECT_TRUE(choice([](auto& form) {
    EXPECT_EQ(tests::part<QLabel>(form, "lblHeadline")->text(), "Z: 드라이브가 없습니다.");
    tests::grab(form, "FrmFolderTrouble");
    QTest::keyClick(&form, Qt::Key_Return);
  })) << "Enter tries again";
  EXPECT_FALSE(choice([](auto& form) { QTest::keyClick(&form, Qt::Key_Escape); }));
  EXPECT_TRUE(choice([](auto& form) {
    QTimer::singleShot(0, &form, [] {
      auto& folders = *QApplication::activeModalWidget();
      EXPECT_EQ(tests::part<QLabel>(folders, "pnlPath")->text(), "C:\\") << "the lost drive cannot be shown";
      auto* list = tests::part<QListWidget>(folders, "Dir1");
      QTest::keyClick(list, Qt::Key_Return);
      EXPECT_EQ(tests::part<QLabel>(folders, "pnlData")->text(), "자료 C:\\RWGas\\DBS\\  (자료 파일 없음)");
      tests::grab(folders, "FrmPath-at-start");
      tests::press(folders, "btnSet");
    });
    tests::press(form, "btnFolder");
  }));
  EXPECT_EQ(pc.settings.GetSetting("해온판매", "환경설정", "db경로"), "C:\\RWGas\\DBS\\");
}

TEST_F(FrameDialogs, NoticeRemembersItsTick) {
  const auto setting = [&] { return pc.settings.GetSetting("해온판매", "환경설정", "NoMsg", "0"); };
  {
    FrmInitMsg form(session);
    form.show();
    tests::grab(form, "FrmInitMsg");
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_EQ(setting(), "0");
  }
  FrmInitMsg form(session);
  form.show();
  tests::part<QCheckBox>(form, "ChkCheck")->setChecked(true);
  QTest::keyClick(&form, Qt::Key_Return);
  EXPECT_EQ(setting(), "1");
}

TEST_F(FrameDialogs, GroundOffersItsMenuAndHidesItsCommands) {
  Ground ground(session, nullptr);
  ground.resize(300, 200);
  ground.show();
  QStringList captions;
  for (const QAction* entry : ground.contextMenu()->actions())
    if (!entry->isSeparator()) captions << entry->text();
  EXPECT_EQ(captions,
            (QStringList{"Logo 타일형 배치", "Logo 가운데 배치", "Logo 이미지 변경", "Logo 없애기",
                         "Logo 기본 이미지", "배경색 변경", "기본 배경색", "메    뉴      닫    기"}));
  EXPECT_TRUE(ground.background().tiled);
  ground.contextMenu()->actions().at(1)->trigger();
  EXPECT_FALSE(ground.background().tiled);

  std::vector<Qt::KeyboardModifiers> pressed;
  ground.hiddenCommand = [&](Qt::KeyboardModifiers keys) {
    pressed.push_back(keys);
    return true;
  };
  const auto hidden = Qt::ShiftModifier | Qt::ControlModifier;
  QTest::mouseClick(ground.viewport(), Qt::RightButton, hidden);
  QTest::mouseClick(ground.viewport(), Qt::RightButton, hidden | Qt::AltModifier);
  QTest::mouseClick(ground.viewport(), Qt::LeftButton, hidden);
  EXPECT_EQ(pressed, (std::vector<Qt::KeyboardModifiers>{hidden, hidden | Qt::AltModifier}));
}

TEST_F(FrameDialogs, GroundPaintsColourThenPicture) {
  QImage red(4, 4, QImage::Format_RGB32);
  red.fill(Qt::red);
  const QString file = pc.paths.native("C:\\RWGas") + "/red.bmp";
  ASSERT_TRUE(red.save(file));
  BackgroundSettings settings(session);
  settings.setColour(0x00FF00);
  Ground ground(session, nullptr);
  ground.resize(200, 200);
  ground.show();
  const auto pixel = [&](int x, int y) { return ground.viewport()->grab().toImage().pixelColor(x, y); };
  EXPECT_EQ(pixel(100, 100), QColor(Qt::green));
  settings.setPicture(file);
  settings.setTiled(false);
  ground.LoadMainBG();
  const int middle = ground.viewport()->width() / 2;
  EXPECT_EQ(pixel(middle, ground.viewport()->height() / 2), QColor(Qt::red));
  EXPECT_EQ(pixel(20, 20), QColor(Qt::green));
  settings.setTiled(true);
  ground.LoadMainBG();
  EXPECT_EQ(pixel(20, 20), QColor(Qt::red));
}

}  // namespace
