#include "giro/giro_setup.h"

#include "store/session.h"
#include "store/vb.h"

using namespace Qt::StringLiterals;

namespace {
const QString giroSection = u"프린터설정"_s;
}

GiroSetup readGiroSetup(const Session& session) {
  const auto setting = [&](const QString& key) {
    return session.pc.settings.GetSetting(session.AppTitle, giroSection, key);
  };
  const QString top = setting(u"TOP"_s), left = setting(u"LEFT"_s);
  return {setting(u"DEVICENAME"_s), vb::Val(top), vb::Val(left), top, left};
}

bool saveGiroSetup(Session& session, const QString& device, const QString& top, const QString& left) {
  if (device.isEmpty()) {
    session.prompts.MsgWarn(u"프린터를 선택해 주십시오"_s, u"인쇄 관리자"_s);
    return false;
  }
  const auto save = [&](const QString& key, const QString& value) {
    session.pc.settings.SaveSetting(session.AppTitle, giroSection, key, value);
  };
  save(u"DEVICENAME"_s, device);
  save(u"TOP"_s, top);
  save(u"LEFT"_s, left);
  session.prompts.MsgInfo(u"프린터가 설정되었습니다."_s);
  return true;
}
