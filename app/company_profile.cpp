#include "app/company_profile.h"

#include "store/data_access.h"
#include "store/jet/text_rules.h"
#include "store/settings_table.h"

using namespace Qt::StringLiterals;

namespace {

/** The columns of User that page one shows as they are. */
struct ProfileText {
  const char* column;
  QString CompanyData::*text;
};
const ProfileText profileTexts[] = {{"Company", &CompanyData::Company}, {"User", &CompanyData::User},
                                    {"BusCode", &CompanyData::BusCode}, {"PostCode", &CompanyData::PostCode},
                                    {"Fax", &CompanyData::Fax},         {"Address", &CompanyData::Address},
                                    {"Tel", &CompanyData::Tel},         {"BusStyle", &CompanyData::BusStyle},
                                    {"BusKind", &CompanyData::BusKind}};

/** The percentages and fees of page two. */
struct RateText {
  const char* column;
  QString BillingSettings::*text;
};
const RateText rateTexts[] = {{"Rate", &BillingSettings::Rate},
                              {"AptRate", &BillingSettings::AptRate},
                              {"ManyRate", &BillingSettings::ManyRate},
                              {"Security", &BillingSettings::Security},
                              {"AptSecurity", &BillingSettings::AptSecurity},
                              {"ManySecurity", &BillingSettings::ManySecurity}};

QString valText(const QString& text) {
  return jet::textOf(jet::val(text));
}
// The safety fees are whole won.
QString wholeText(const QString& text) {
  return QString::number(qRound64(jet::val(text)));
}

}  // namespace

std::optional<jet::Recordset> CompanyProfile::row() const {
  jet::Recordset rows;
  if (!OpenSnapshot(session_.prompts, session_.dbBasic, rows, u"Select * From User"_s) ||
      rows.RecordCount() == 0)
    return {};
  return rows;
}

bool CompanyProfile::exists() const {
  return row().has_value();
}

QString CompanyProfile::companyName() const {
  const auto user = row();
  return user ? (*user)[u"Company"_s].toText() : u"라온웨어"_s;
}

CompanyData CompanyProfile::profile() const {
  CompanyData data;
  data.Ocr = session_.pc.settings.read(setting::ApprovalNumber);
  const auto user = row();
  if (!user) return data;
  for (const auto& [column, text] : profileTexts) data.*text = (*user)[column].toText();
  return data;
}

BillingSettings CompanyProfile::settings() const {
  BillingSettings page;
  page.oneMonthOnly = session_.pc.settings.read(setting::LateChargeKind) == "1"_L1;
  page.withoutDelay = session_.pc.settings.read(setting::AfterDueMethod) == "1"_L1;
  const auto user = row();
  if (!user) return page;
  page.PayState = int((*user)[u"PayState"_s].toLong());
  for (const auto& [column, text] : rateTexts) page.*text = (*user)[column].toText();
  if (!user->isNull(u"Post1"_s)) page.Post1 = (*user)[u"Post1"_s].toText();
  if (!user->isNull(u"Post2"_s)) page.Post2 = (*user)[u"Post2"_s].toText();
  page.Stock = (*user)[u"Stock"_s].toBool();
  return page;
}

ProfileSaved CompanyProfile::saveProfile(const CompanyData& data) {
  if (data.Company.isEmpty()) {
    session_.prompts.MsgWarn(u"상호를 입력하십시오"_s, u"필수입력"_s);
    return ProfileSaved::CompanyMissing;
  }
  if (data.User.isEmpty()) {
    session_.prompts.MsgWarn(u"대표자명을 입력하십시오"_s, u"필수입력"_s);
    return ProfileSaved::UserMissing;
  }
  const bool changing = exists();
  QStringList columns, values, changes;
  for (const auto& [column, text] : profileTexts) {
    columns << QString::fromUtf8(column);
    values << u"'"_s + plainText(data.*text) + u"'"_s;
    changes << columns.back() + u" = "_s + values.back();
  }
  if (changing)
    session_.dbBasic.Execute(u"Update User Set "_s + changes.join(u", "_s));
  else
    session_.dbBasic.Execute(u"Insert Into User("_s + columns.join(u", "_s) + u") Values("_s +
                             values.join(u", "_s) + u")"_s);
  session_.pc.settings.write(setting::CompanyName, data.Company);
  session_.pc.settings.write(setting::ApprovalNumber, data.Ocr);
  if (session_.profileChanged) session_.profileChanged();
  if (changing)
    session_.prompts.MsgInfo(u"사용자 정보 수정이 완료되었습니다"_s, u"사용자 정보 수정 완료"_s);
  else
    session_.prompts.MsgInfo(
        u"사용자 등록이 완료되었습니다"_s + u'\n' + u"뒷면의 환경설정을 입력해주십시오"_s,
        u"사용자 등록 완료"_s);
  return ProfileSaved::Yes;
}

bool CompanyProfile::saveSettings(const BillingSettings& settings) {
  const QString title = u"보안관리자"_s;
  // The second box guards against a slip; left empty it asks for nothing.
  if (!settings.passwordAgain.isEmpty() && settings.passwordAgain != settings.password) {
    session_.prompts.MsgWarn(u"두 패스워드가 서로 다릅니다. 다시 입력하십시오."_s, title);
    return false;
  }
  const QString statement =
      u"Update User Set PayState = "_s + QString::number(settings.PayState) + u", AptRate = "_s +
      valText(settings.AptRate) + u", "_s + u"AptSecurity = "_s + wholeText(settings.AptSecurity) +
      u", ManyRate = "_s + valText(settings.ManyRate) + u", "_s + u"ManySecurity = "_s +
      wholeText(settings.ManySecurity) + u", Rate = "_s + valText(settings.Rate) + u", "_s +
      u"Security = "_s + wholeText(settings.Security) + u", Password = '"_s + plainText(settings.password) +
      u"', "_s + u"Post1 = "_s + valText(settings.Post1) + u", Post2 = "_s + valText(settings.Post2) +
      u", "_s + (settings.Stock ? u"Stock = True"_s : u"Stock = False"_s);
  jet::requirePlain(statement);  // a password that cannot be stored must not leave the charges changed alone
  session_.DelayCalcFlag = settings.oneMonthOnly ? u"1"_s : u"0"_s;
  session_.pc.settings.write(setting::LateChargeKind, session_.DelayCalcFlag);
  setAfterDueMethod(session_, settings.withoutDelay ? 1 : 0);
  session_.dbBasic.Execute(statement);
  session_.StockEnabled = settings.Stock;
  readRateBook(session_);
  if (session_.profileChanged) session_.profileChanged();
  if (settings.password.isEmpty())
    session_.prompts.MsgInfo(u"귀하의 패스워드가 현재 삭제된 상태입니다."_s + u'\n' +
                                 u"패스워드는 프로그램의 모든 보안사항을 통과하므로"_s + u'\n' +
                                 u"현재로서는 임의의 사용자가 접근할 수 있음을 알려드립니다."_s,
                             title);
  else
    session_.prompts.MsgInfo(u"귀하의 패스워드는 "_s + settings.password + u" 입니다"_s + u'\n' +
                                 u"이 패스워드는 프로그램의 모든 보안사항을 통과하므로"_s + u'\n' +
                                 u"꼭 암기하시거나 잘 보관하시기 바랍니다."_s,
                             title);
  return true;
}

bool CompanyProfile::maySeeSettings() {
  if (exists()) return true;
  session_.prompts.MsgWarn(u"먼저 사용자 등록을 해주십시오"_s, u"사용자 등록"_s);
  return false;
}

bool CompanyProfile::checkPassword(const QString& typed) {
  const auto user = row();
  if ((user ? (*user)[u"Password"_s].toText() : QString()) == typed) return true;
  session_.prompts.MsgWarn(u"패스워드가 잘못되었습니다. 다시 시도하십시오"_s, u"로그인"_s);
  return false;
}
