#include "documents/document_date.h"

#include "store/date_text.h"

QString documentDate(Session& session, const QString& typed) {
  const bool bare =
      typed.size() == 8 && std::all_of(typed.begin(), typed.end(), [](QChar each) { return each.isDigit(); });
  QString date = checkedDate(bare ? typed.left(4) + '-' + typed.mid(4, 2) + '-' + typed.mid(6) : typed,
                             session.pc.clock);
  if (date.isEmpty()) session.prompts.MsgWarn("잘못된 날짜 형식입니다.\n정확한 날짜 형식을 입력하세요.");
  return date;
}
