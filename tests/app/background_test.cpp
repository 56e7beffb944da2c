#include "app/background.h"

#include "tests/support.h"

namespace {

struct BackgroundTest : testing::Test, tests::TestPc {
  BackgroundSettings settings{session};

  QString makePicture(const QString& written) {
    const QString native = pc.paths.native(written);
    tests::writeFile(native);
    return native;
  }
};

TEST_F(BackgroundTest, ColourIsKeptWithRedInTheLowestByte) {
  EXPECT_EQ(settings.load().rgb, 0xF1F1F1);
  settings.setColour(0x102030);
  EXPECT_EQ(pc.settings.GetSetting("라온공통", "메인배경", "배경색상"), QString::number(0x302010));
  EXPECT_EQ(settings.load().rgb, 0x102030);
  pc.settings.SaveSetting("라온공통", "메인배경", "배경색상", "파랑");
  EXPECT_EQ(settings.load().rgb, 0xF1F1F1) << "a text that is no number takes the default";
}

TEST_F(BackgroundTest, PictureIsTheDefaultTheChosenOrNone) {
  EXPECT_EQ(settings.load().picture, "") << "a PC without the file shows the colour alone";
  const QString standard = makePicture("C:\\RWGas\\Image\\mainbg.jpg");
  EXPECT_EQ(settings.load().picture, standard);
  settings.removePicture();
  EXPECT_EQ(settings.load().picture, "") << "taken away is not the same as never set";
  const QString other = makePicture("C:\\그림\\배경.bmp");
  settings.setPicture(other);
  EXPECT_EQ(settings.load().picture, other);
  settings.useDefaultPicture();
  EXPECT_EQ(settings.load().picture, standard);
}

TEST_F(BackgroundTest, ColourIsWarnedOfOnlyWhileTiled) {
  EXPECT_TRUE(settings.load().tiled);
  prompts.expect(
      "로고가 타일형으로 배치되어 있으면 배경색이 적용되지 않습니다.\n가운데 배치 또는 로고를 없앨 경우만 "
      "적용됩니다.");
  settings.warnColourHidden();
  settings.setTiled(false);
  settings.warnColourHidden();
  EXPECT_EQ(prompts.seen.size(), 1);
}

}  // namespace
