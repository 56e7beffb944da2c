#include "billing/reading_months.h"

#include "billing/reading_sheet.h"
#include "store/date_text.h"
#include "store/session.h"

using namespace Qt::StringLiterals;

QStringList FillMonthList(const pc::Clock& clock) {
  QStringList months{u"기초"_s};
  for (int month = 1; month <= clock.today().month(); ++month) months << twoDigits(month);
  return months;
}

bool IsEditableMonth(const pc::Clock& clock, const QString& month) {
  return month == "00"_L1 || month == twoDigits(clock.today().month());
}

bool ValidateCellEdit(ReadingSheet& sheet, int col) {
  const pc::Clock& clock = sheet.session.pc.clock;
  const bool thisMonth = IsEditableMonth(clock, twoDigits(sheet.month));
  QString refusal;
  if (col == EvaCol::Delay && !thisMonth)
    refusal = u"연체료에 대한 수정은 현재달만 가능합니다"_s;
  else if (col == EvaCol::Manage && !thisMonth)
    refusal = u"안전관리비에 대한 수정은 현재달만 가능합니다"_s;
  else if (col == EvaCol::Pay && !thisMonth && !IsEditableMonth(clock, twoDigits(sheet.month + 1)))
    refusal = u"당월수금액에 대한 수정은 최근 1개월까지만 가능합니다"_s;
  if (refusal.isEmpty()) return true;
  sheet.session.prompts.MsgWarn(refusal, u"검침 관리자"_s);
  return false;
}

QString openingNotes(const ReadingSheet& sheet) {
  return QStringList{u"                      체적기초 입력시 주의사항!"_s,
                     u""_s,
                     u"       1. 처음 전산적용 시점의 검침량을 당월검침란에 입력합니다    "_s,
                     u""_s,
                     u"       2. 초기미수금은 발행금액란에 입력합니다    "_s,
                     u""_s,
                     u"       3. 기초입력량은 1월부터 "_s + QString::number(sheet.calendarMonth() - 1) +
                         u"월까지의 검침량으로 일괄등록됩니다        "_s,
                     u""_s,
                     u"       4. 발행금액란은 기초입력시에만 입력할 수 있으며, "_s,
                     u"          그외에는 입력할 수 없습니다"_s,
                     u""_s,
                     u"       5. 기초입력시 미수금에 대한 연체료를 계산하지 않으려면 "_s,
                     u"          사용자등록->환경설정에서 연체료를 0%로 변경하고 기초를 "_s,
                     u"          입력하십시오"_s}
      .join(u'\n');
}
