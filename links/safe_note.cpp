#include "links/safe_note.h"

#include "pc/reports.h"
#include "store/data_files.h"
#include "store/date_text.h"
#include "store/year_file.h"

using namespace Qt::StringLiterals;

bool showSafeNote(Session& session, const SafeNoteAsk& ask) {
  const QString from = checkedDate(ask.from, session.pc.clock), to = checkedDate(ask.to, session.pc.clock);
  if (from.isEmpty() || to.isEmpty()) {
    session.prompts.MsgWarn(u"날짜입력이 잘못되었습니다!"_s, u"출력 관리자"_s);
    return false;
  }
  const QString file = yearFile(session, from.left(4));
  if (!isThere(session.pc.paths, file)) {
    session.prompts.MsgWarn(from.left(4) + u"년의 자료 파일이 없습니다!"_s, u"출력 관리자"_s);
    return false;
  }
  const QString days = QString(from == to ? from : from + u" ~ "_s + to).replace(u'-', u'/');
  session.reports->show({.file = u"safenote.rpt"_s,
                         .formulas = {u"DDay= '%1'"_s.arg(days), u"DMon= '%1'"_s.arg(ask.month)},
                         .selection = u"{Sale.SaleDate} >= '%1'  and {Sale.SaleDate} <= '%2'"_s.arg(from, to),
                         .liveFiles = {file}});
  return true;
}
