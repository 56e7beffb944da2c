#include "app/background.h"

#include <QFileInfo>

#include "store/session.h"
#include "store/settings_table.h"

using namespace Qt::StringLiterals;

namespace {

// The settings hold a colour with red in the lowest byte.
int swapRedAndBlue(int colour) {
  return (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
}

}  // namespace

QString BackgroundSettings::defaultPicture() const {
  return session_.pc.paths.programFolder() + u"\\Image\\mainbg.jpg"_s;
}

Background BackgroundSettings::load() const {
  Background ground;
  bool isNumber = false;
  const pc::Settings& settings = session_.pc.settings;
  const int stored = settings.read(setting::GroundColour).toInt(&isNumber);
  ground.rgb = swapRedAndBlue(isNumber ? stored : setting::GroundColour.fallback.toInt());
  // One that was taken away is stored as '' and stays away.
  const QString file = settings.read(setting::GroundPicture, defaultPicture());
  const QString native = session_.pc.paths.native(file);
  if (!file.isEmpty() && QFileInfo(native).isFile()) ground.picture = native;
  ground.tiled = settings.read(setting::GroundCentred) == "0"_L1;
  return ground;
}

void BackgroundSettings::setTiled(bool tiled) {
  session_.pc.settings.write(setting::GroundCentred, !tiled);
}
void BackgroundSettings::setPicture(const QString& path) {
  session_.pc.settings.write(setting::GroundPicture, path);
}
void BackgroundSettings::useDefaultPicture() {
  setPicture(defaultPicture());
}
void BackgroundSettings::setColour(int rgb) {
  session_.pc.settings.write(setting::GroundColour, QString::number(swapRedAndBlue(rgb)));
}
void BackgroundSettings::useDefaultColour() {
  session_.pc.settings.write(setting::GroundColour, setting::GroundColour.fallback.toString());
}

void BackgroundSettings::warnColourHidden() {
  if (!load().tiled) return;
  session_.prompts.MsgInfo(u"로고가 타일형으로 배치되어 있으면 배경색이 적용되지 않습니다."_s + u'\n' +
                           u"가운데 배치 또는 로고를 없앨 경우만 적용됩니다."_s);
}

QString BackgroundSettings::pictureFilter() {
  const QString told = u"Pictures (*.bmp;*.jpg;*.gif)|*.bmp;*.jpg;*.gif"_s;
  return told.section(u'|', 0, 0).replace(u';', u' ');
}
