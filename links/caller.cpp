#include "links/caller.h"

#include "store/jet/value.h"
#include "store/settings_table.h"

using namespace Qt::StringLiterals;

bool Caller::enabled() const {
  return session_.pc.settings.read(setting::SeeIdUse) == u"1";
}

void Caller::setEnabled(bool on) {
  session_.pc.settings.write(setting::SeeIdUse, on);
  if (on)
    OpenSeeID();
  else
    CloseSeeID();
}

std::array<QString, 2> Caller::ports() const {
  const auto& settings = session_.pc.settings;
  return {settings.read(setting::SeeIdPorts[0]), settings.read(setting::SeeIdPorts[1])};
}

void Caller::OpenSeeID() {
  if (!enabled()) return;
  const auto numbers = ports();
  for (size_t at = 0; at < controls_.size(); ++at) {
    if (controls_[at]->isOpen() || numbers[at] == u"0") continue;
    const QString port = u"COM"_s + numbers[at];
    if (controls_[at]->open(port) > 0)
      session_.prompts.MsgInfo(u"포트 "_s + port + u"으로 SEE ID OPEN에 실패했습니다."_s);
  }
}

void Caller::CloseSeeID() {
  for (size_t at = 0; at < controls_.size(); ++at) {
    if (!controls_[at]->isOpen()) continue;
    const QString port = u"COM"_s + QString::number(at + 1);
    if (controls_[at]->close(port) > 0)
      session_.prompts.MsgInfo(u"포트 "_s + port + u"으로 SEE ID CLOSE에 실패했습니다."_s);
  }
}

void Caller::changePorts(const std::array<QString, 2>& typed) {
  CloseSeeID();
  for (size_t at = 0; at < typed.size(); ++at)
    session_.pc.settings.write(setting::SeeIdPorts[at], QString::number(jet::Value(typed[at]).toLong()));
  OpenSeeID();
}

void Caller::deviceEvent(int state, const QString& number) {
  if (state == 1 || state == 2) OnCallerNumber(number);
}

void Caller::OnCallerNumber(const QString& number) {
  const QDateTime called = session_.pc.clock.now();  // the form may ask the operator for a while
  CallerTarget* target = active_();
  if (!target || !target->TakeCallerNumber(number)) waiting_.AddStanbyNumber(number, called);
}
