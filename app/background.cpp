#include "app/background.h"

#include <QFileInfo>

#include "store/session.h"

using namespace Qt::StringLiterals;

namespace {

const QString backgroundApplication = u"라온공통"_s;
const QString backgroundSection = u"메인배경"_s;
const QString defaultColour = u"15856113"_s;

// The settings hold a colour with red in the lowest byte.
int swapRedAndBlue(int colour) {
  return (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
}

}  // namespace

QString BackgroundSettings::setting(const QString& key, const QString& fallback) const {
  return session_.pc.settings.GetSetting(backgroundApplication, backgroundSection, key, fallback);
}

void BackgroundSettings::save(const QString& key, const QString& value) {
  session_.pc.settings.SaveSetting(backgroundApplication, backgroundSection, key, value);
}

QString BackgroundSettings::defaultPicture() const {
  return session_.pc.paths.programFolder() + u"\\Image\\mainbg.jpg"_s;
}

Background BackgroundSettings::load() const {
  Background ground;
  bool isNumber = false;
  const int stored = setting(u"배경색상"_s, defaultColour).toInt(&isNumber);
  ground.rgb = swapRedAndBlue(isNumber ? stored : defaultColour.toInt());
  const QString file = setting(u"로고파일경로"_s, defaultPicture());
  const QString native = session_.pc.paths.native(file);
  if (!file.isEmpty() && QFileInfo(native).isFile()) ground.picture = native;
  ground.tiled = setting(u"로고배치형태"_s, u"0"_s) == "0"_L1;
  return ground;
}

void BackgroundSettings::setTiled(bool tiled) {
  save(u"로고배치형태"_s, tiled ? u"0"_s : u"1"_s);
}
void BackgroundSettings::setPicture(const QString& path) {
  save(u"로고파일경로"_s, path);
}
void BackgroundSettings::useDefaultPicture() {
  setPicture(defaultPicture());
}
void BackgroundSettings::setColour(int rgb) {
  save(u"배경색상"_s, QString::number(swapRedAndBlue(rgb)));
}
void BackgroundSettings::useDefaultColour() {
  save(u"배경색상"_s, defaultColour);
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
