#include "app/start_up.h"

#include "store/data_access.h"
#include "store/data_files.h"
#include "store/settings_table.h"
#include "store/upgrades.h"
#include "store/vb.h"
#include "store/year_file.h"

using namespace Qt::StringLiterals;

namespace {

const QString noCompany = u"라온웨어"_s;

}  // namespace

bool StartUp::SubMain(const std::function<void()>& showStartWindow) {
  usable_ = begin();
  if (!usable_) return false;
  attempt([&] { upgrades::addLateCharges(session_); });
  if (usable_) showStartWindow();
  if (usable_ && session_.wsMain.isOpen()) {
    attempt([&] {
      upgrades::addMoreTelephones(session_);
      upgrades::makeOptions(session_);
    });
  }
  if (!usable_) closeFiles();
  return usable_;
}

/** A fresh start, also after one that has failed. A folder that cannot be reached is not touched: a new folder of its
 *  name on this PC would look like an empty shop. */
bool StartUp::begin() {
  closeFiles();
  failures_ = 0;
  screen_ = {};
  session_.AppTitle = u"해온판매"_s;
  // Without them the data would be looked for in the installed folder, and made anew there.
  if (!session_.pc.settings.canBeRead(session_.AppTitle)) {
    session_.prompts.MsgWarn(
        u"프로그램의 설정을 읽을 수 없어 시작하지 않았습니다.\n"
        u"디스크와 사용 권한을 확인하고 다시 하세요. 저장된 자료는 그대로 있습니다."_s);
    return false;
  }
  session_.DbPath = dataFolder(session_);
  return !reachDataFolder(session_).any() && prepareDataFolder(session_);
}

void StartUp::load() {
  attempt([&] { loadSteps(); });
}

/** A step that fails ends the start: what comes after it counts on it. */
void StartUp::attempt(const std::function<void()>& steps) {
  try {
    steps();
  } catch (const jet::Error& error) {
    session_.prompts.tellError(u"프로그램 시작 중 오류가 발생하여 종료합니다."_s, error);
    usable_ = false;
  }
}

void StartUp::loadSteps() {
  pc::Pc& pc = session_.pc;
  session_.SavedDateFormat = pc.clock.shortDateFormat();
  if (session_.SavedDateFormat != u"yyyy-MM-dd"_s) pc.clock.setShortDateFormat(u"yyyy-MM-dd"_s);

  session_.DbPath = dataFolder(session_);
  session_.RptPath = u"C:\\RWGas\\RPT\\"_s;  // Kept: whatever the setting says.
  session_.DelayCalcFlag = pc.settings.read(setting::LateChargeKind);
  if (session_.DelayCalcFlag.isEmpty()) {
    session_.DelayCalcFlag = u"0"_s;
    pc.settings.write(setting::LateChargeKind, session_.DelayCalcFlag);
  }
  session_.AfterDueMethod = vb::CInt(vb::Val(pc.settings.read(setting::AfterDueMethod)));
  session_.WorkYear = vb::Format(pc.clock.today(), u"YYYY"_s);
  makeYearFile(session_, session_.WorkYear);
  session_.wsMain = openWorkspace(session_, session_.DbPath);
  upgrades::makeDealList(session_);
  upgradePostCodes();
  bool linked = false;
  session_.wsMain.KeepingFiles([&] {
    upgrades::addDealMarks(session_);
    session_.dbBasic = session_.wsMain.OpenDatabase(session_.DbPath + u"Basic.mdb"_s);
    upgrades::addClientTaxFields(session_.dbBasic);
    upgrades::removeOrphans(session_);
    linked = upgrades::relink(session_);
  });
  if (!linked) return;  // silently: the start window stays as it is

  pc.settings.write(setting::BackupFolder, session_.DbPath);
  session_.dbYear = session_.wsMain.OpenDatabase(yearFile(session_, session_.WorkYear));
  session_.dbTax = session_.wsMain.OpenDatabase(session_.DbPath + u"dbTax.mdb"_s);
  upgrades::widenTaxFields(session_.dbTax);
  pc.settings.write(setting::MapFolder, u"C:\\RWGAS\\MAP\\"_s);
  user_ = session_.dbBasic.OpenRecordset(u"Select * From User"_s);
  fillScreen();
}

void StartUp::upgradePostCodes() {
  const jet::Database basic = session_.wsMain.OpenDatabase(session_.DbPath + u"Basic.mdb"_s);
  jet::Database post;
  if (OpenDB(session_.wsMain, post, session_.DbPath + u"dbPost.mdb"_s)) {
    upgrades::rebuildPostCodes(session_, basic, post);
  } else {
    session_.prompts.MsgWarn(u"우편번호 파일을 찾을 수 없습니다."_s);
  }
}

void StartUp::fillScreen() {
  const bool known = user_.RecordCount() > 0;
  const QString company = known ? user_[u"Company"_s].toText() : noCompany;
  session_.StockEnabled = known && user_[u"Stock"_s].toBool();
  const bool open = !known || user_[u"Password"_s].toText().isEmpty();
  screen_.passwordVisible = open;
  screen_.password = open ? u"엔터치세요"_s : QString();
  screen_.identify = u"일반 사용자 로그인"_s;
  const QString saved = session_.pc.settings.read(setting::CompanyName);
  screen_.user = saved.isEmpty() ? company : saved;
  screen_.company = company;
}

SignIn StartUp::enterPassword(const QString& typed) {
  Prompts& prompts = session_.prompts;
  if (!user_.isOpen()) throw jet::Error(91, u"자료 파일이 열리지 않아 로그인할 수 없습니다."_s);
  session_.CurrentPassword.clear();
  if (user_.RecordCount() == 0) {
    prompts.MsgInfo(u"사용자 등록후 Password를 설정해 주시기 바랍니다."_s);
    return SignIn::Accepted;
  }
  const QString password = user_[u"Password"_s].toText();
  if (password.isEmpty()) return SignIn::Accepted;
  if (password == typed) {
    session_.CurrentPassword = password;
    return SignIn::Accepted;
  }
  if (++failures_ < 3) {
    prompts.MsgWarn(u"Password가 일치하지 않습니다!"_s, u"인증실패"_s);
    return SignIn::TryAgain;
  }
  prompts.MsgWarn(u"사용자 인증이 3회이상 실패하였으므로 프로그램을 종료합니다."_s, u"보안 관리자"_s);
  return SignIn::EndProgram;
}

bool StartUp::askToLeave() {
  if (!session_.prompts.MsgAsk(u"프로그램을 종료하시겠습니까?"_s, u"보안관리자"_s)) return false;
  closeFiles();
  return true;
}

void StartUp::relink() {
  upgrades::relink(session_);
}

void StartUp::shutDown() {
  session_.pc.settings.write(setting::MapEdited, false);
  closeFiles();
}

void StartUp::closeFiles() {
  if (!session_.SavedDateFormat.isEmpty()) session_.pc.clock.setShortDateFormat(session_.SavedDateFormat);
  user_.Close();
  for (jet::Database* handle : {&session_.dbBasic, &session_.dbYear, &session_.dbTax, &session_.dbCommon}) {
    handle->Close();
  }
  session_.wsMain.Close();
}
