#include "billing/reading_edit.h"

#include "billing/reading_bill.h"
#include "billing/reading_months.h"
#include "billing/reading_save.h"
#include "billing/reading_sheet.h"
#include "store/date_text.h"
#include "store/session.h"
#include "store/vb.h"
#include "ui/model/row_backup.h"

using namespace Qt::StringLiterals;

namespace {

bool holdsAmount(int col) {
  return col != EvaCol::TrustDay && col != EvaCol::Prnt;
}

/** Puts the text into its cell and computes what follows from it. False: refused. */
bool applyReadingCell(ReadingSheet& sheet, int row, int col, const QString& typed) {
  if (col == EvaCol::TrustDay) return ApplyTrustDayEdit(sheet, row, typed);
  const double before = sheet.number(row, col);
  if (holdsAmount(col))
    sheet.setNumber(row, col, vb::Val(typed));
  else
    sheet.grid.setText(row, col, typed);
  switch (col) {
    case EvaCol::UseGage:
      if (!sheet.isOpening()) CalcReadingRow(sheet, row);
      break;
    case EvaCol::Delay:
      ApplyDelayEdit(sheet, before, row);
      break;
    case EvaCol::Manage:
      ApplyManageEdit(sheet, before, row);
      break;
    case EvaCol::Pay:
      ApplyPayEdit(sheet, before, row);
      break;
    case EvaCol::Total:
      // Kept: the opening row of a customer with arrears carries a use of 1.
      if (sheet.number(row, EvaCol::UseMuch) == 0) sheet.grid.setText(row, EvaCol::UseMuch, u"1"_s);
      sheet.grid.setText(row, EvaCol::Trust, sheet.grid.text(row, EvaCol::Total));
      break;
    default:
      break;
  }
  return true;
}

/** "MM/DD" of a date text "yyyy-MM-dd". */
QString monthAndDay(const QString& date) {
  return date.mid(5).replace(u'-', u'/');
}

}  // namespace

ReadingEdit finishReadingCell(ReadingSheet& sheet, int row, int col, const QString& typed) {
  if (col == EvaCol::PayDelayed) {
    tickPaidLate(sheet, row, typed == "1"_L1);
    return {ReadingEdit::Done, {row, col}};
  }
  if (!ValidateCellEdit(sheet, col) || typed == sheet.grid.text(row, col)) return {};
  const RowInQuestion shown(sheet.grid, row);
  if (!sheet.session.prompts.MsgAsk(u"선택된 자료를 수정하시겠습니까?"_s, u"체적 관리자"_s)) return {};
  RowBackup backup(sheet.grid, row);
  if (!applyReadingCell(sheet, row, col, typed)) return {};
  SaveReadingRow(sheet, row);
  backup.stored();
  return {ReadingEdit::Done, MoveAfterEdit(sheet, row, col)};
}

CellPlace MoveAfterEdit(const ReadingSheet& sheet, int row, int col) {
  const int below = qMin(row + 1, sheet.grid.MaxRows());
  switch (col) {
    case EvaCol::UseGage:
    case EvaCol::TrustDay:
      return {below, EvaCol::UseGage};
    case EvaCol::Delay:
      return {row, EvaCol::Manage};
    case EvaCol::Manage:
      return {row, EvaCol::Pay};
    case EvaCol::Pay:
      return {below, EvaCol::Pay};
    default:
      return {row, col};
  }
}

bool ApplyTrustDayEdit(ReadingSheet& sheet, int row, const QString& typed) {
  const QString date = checkedDate(typed, sheet.session.pc.clock);
  if (date.isEmpty()) {
    sheet.session.prompts.MsgWarn(u"날짜입력이 잘못되었습니다!"_s, u"검침 관리자"_s);
    return false;
  }
  sheet.grid.setText(row, EvaCol::TrustDay, monthAndDay(date));
  return true;
}

void tickPaidLate(ReadingSheet& sheet, int row, bool on) {
  Session& session = sheet.session;
  const bool paid = sheet.number(row, EvaCol::Pay) != 0;
  const bool nothingLeft = sheet.number(row, EvaCol::Total) == 0;
  if (!paid || (on && !nothingLeft)) {
    session.prompts.MsgInfo(
        u"납기후에 수금한 경우 다음달에 연체료를 청구하기 위한 선택사항 입니다.\n\n"
        "당월 최종미수금이 0원이며 납기후에 납부를 한 경우만 체크해 주세요."_s);
    // Kept: also a tick that was to be taken away reads "0" then, though the book keeps it.
    sheet.grid.setText(row, EvaCol::PayDelayed, u"0"_s);
    return;
  }
  session.dbYear.Execute("Update Evaporation Set paydelayed = " + (on ? u"-1"_s : u"0"_s) +
                         " Where ClientCode = " + sheet.code(row) +
                         (sheet.isOpening() ? " And Mon < " + QString::number(sheet.calendarMonth())
                                            : " And Mon = " + QString::number(sheet.month)));
  sheet.grid.setText(row, EvaCol::PayDelayed, on ? u"1"_s : u"0"_s);
}

// Kept: five characters are never checked.
void takeReadingDay(ReadingSheet& sheet, const QString& typed) {
  Session& session = sheet.session;
  sheet.readingDay = typed;
  if (typed.size() == 5) return;
  const QString date = checkedMonthDay(typed, session.WorkYear, session.pc.clock);
  if (date.isEmpty()) {
    session.prompts.MsgWarn(u"날짜 입력이 잘못되었습니다!"_s, u"체적 관리자"_s);
    sheet.readingDay = sheet.today();
  } else {
    sheet.readingDay = monthAndDay(date);
  }
}
