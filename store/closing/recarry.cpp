#include "store/closing/recarry.h"

#include "store/closing/december_rows.h"
#include "store/data_access.h"
#include "store/data_files.h"
#include "store/long_work.h"
#include "store/rounding.h"
#include "store/vb.h"
#include "store/year_file.h"

using namespace Qt::StringLiterals;

namespace {

/** Kept: more goes over than by the closing, and the arrears by the setting for bills after their due date. */
void carryRow(Session& session, const DecemberRows& rsMain, const std::optional<int>& payState,
              const jet::Database& next) {
  const double total = rsMain.value("Total");
  // The rounding refuses what no currency holds; such a row is only rounded where the rule asks for it.
  const bool plain = session.AfterDueMethod == 0 || total == 0;
  const double rounded = plain ? 0 : roundToTen(rsMain.value("usepay"), payState);
  const QString arrears = plainNumber(
      jet::Value(arrearsCarried(total, rsMain.value("Delay"), rounded, session.AfterDueMethod)).toText());
  next.Execute(u"Update Evaporation"_s + u" Set Trust = "_s + arrears + u",UseGage = "_s +
               rsMain.number("UseGage") + u",UseMuch = "_s + rsMain.number("UseMuch") + u",Total = "_s +
               rsMain.number("Total") + u",paydelayed = "_s +
               (rsMain.yes("paydelayed") ? u"True"_s : u"False"_s) + rsMain.whose(0));
  next.Execute(u"Update Evaporation"_s + u" Set Trust = "_s + arrears + rsMain.whose(1));
}

}  // namespace

double arrearsCarried(double total, double delay, double roundedUsePay, int afterDueMethod) {
  if (afterDueMethod == 0 || total == 0 || total == roundedUsePay) return total;
  return total - delay;
}

void recarry(Session& session, const YearProgress& progress) {
  const int year = session.pc.clock.today().year();
  const QString thisYear = QString::number(year), lastYear = QString::number(year - 1);
  Prompts& prompts = session.prompts;
  if (!prompts.MsgAsk(lastYear + u"년도의 체적검침 자료를 올해 기초로 다시 이월하시겠습니까?"_s,
                      yearEndTitle(), false))
    return;
  if (!isThere(session.pc.paths, yearFile(session, thisYear)))
    return prompts.MsgInfo(thisYear + u"년도 자료를 찾을 수 없습니다. 먼저 이월을 해 주세요."_s);
  if (!isThere(session.pc.paths, yearFile(session, lastYear)))
    return prompts.MsgInfo(u"전년도 자료를 찾을 수 없습니다."_s);
  const QString words = u"전년도의 체적검침 자료 재이월 중..."_s;
  progress(words, 0, 0);
  {
    const jet::Database next = session.wsMain.OpenDatabase(yearFile(session, thisYear));
    const jet::Database last = session.wsMain.OpenDatabase(yearFile(session, lastYear));
    DecemberRows rsMain(last);
    const std::optional<int> payState = companyPayState(session);
    progress(words, 0, rsMain.count());
    run(session.wsMain, {.count = rsMain.count(),
                         .step =
                             [&](int) {
                               carryRow(session, rsMain, payState, next);
                               rsMain.next();
                             },
                         .tell =
                             [&](int done) {
                               progress(words, done, rsMain.count());
                               return true;
                             },
                         .whole = true,
                         .files = {next}});
  }
  prompts.MsgInfo(u"체적검침 재이월이 완료되었습니다."_s, yearEndTitle());
}
