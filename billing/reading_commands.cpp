#include "billing/reading_commands.h"

#include "billing/reading_bill.h"
#include "billing/reading_load.h"
#include "billing/reading_panel.h"
#include "billing/reading_save.h"
#include "billing/reading_sheet.h"
#include "store/data_access.h"
#include "store/long_work.h"
#include "store/session.h"
#include "store/vb.h"
#include "store/year_file.h"
#include "ui/model/row_backup.h"

using namespace Qt::StringLiterals;

namespace {

const QString volumeManager = u"체적 관리자"_s;

QString customersMonth(const ReadingSheet& sheet, int row) {
  return "Where ClientCode = " + sheet.code(row) + " And Mon = " + QString::number(sheet.month);
}

/** Runs work over count rows; told where the operator has stopped it. True: all is done. */
bool runRows(ReadingSheet& sheet, LongWork work, const ReadingProgress& progress) {
  const int count = work.count;
  if (progress) work.tell = [&progress, count](int done) { return progress(done, count); };
  const int done = run(sheet.session.wsMain, work);
  if (done == count) return true;
  sheet.session.prompts.MsgInfo(
      QString::number(count) + u"건 중 "_s + QString::number(done) + u"건까지 처리하고 중지하였습니다."_s,
      volumeManager);
  return false;
}

void recalculateRow(ReadingSheet& sheet, int row) {
  takeStoredReadingDay(sheet, row);  // it is saved with the row
  RowBackup backup(sheet.grid, row);
  CalcReadingRow(sheet, row);
  SaveReadingRow(sheet, row);
  backup.stored();
}

}  // namespace

void askPerson(ReadingSheet& sheet, int row, int col) {
  const bool reader = col == EvaCol::UseGage;
  if (sheet.month < 1 || sheet.code(row).isEmpty() || (!reader && col != EvaCol::Pay)) return;
  Session& session = sheet.session;
  jet::Recordset rs;
  if (!OpenSnapshot(session.prompts, session.dbYear, rs,
                    "Select * From Evaporation " + customersMonth(sheet, row)) ||
      rs.atEnd())
    return;
  const std::optional<QString> name =
      reader ? session.prompts.InputBox(u"검침담당자를 입력하세요"_s, u"검침담당"_s, rs["ChkMan"].toText())
             : session.prompts.InputBox(u"수금담당자를 입력하세요"_s, u"수금담당"_s, rs["CashMan"].toText());
  if (!name) return;
  session.dbYear.Execute(
      reader ? "Update Evaporation Set ChkMan = '" + plainText(*name) + "' " + customersMonth(sheet, row)
             : "Update Evaporation Set CashMan = '" + plainText(*name) + "' " + customersMonth(sheet, row));
}

void correctUse(ReadingSheet& sheet, int row) {
  Prompts& prompts = sheet.session.prompts;
  if (row == 0) return;
  if (sheet.number(row, EvaCol::UseGage) == 0) {
    prompts.MsgInfo(u"당월검침을 먼저 입력하세요."_s);
    return;
  }
  const RowInQuestion shown(sheet.grid, row);
  if (!prompts.MsgAsk(u"현재 커서가 있는 고객의 사용량을 직접 수정하시겠습니까?\n"
                      "이 기능은 계량기 교체시등에 사용됩니다."_s))
    return;
  const double use = vb::Val(
      prompts
          .InputBox(u"변경할 사용량을 입력하세요."_s, u"사용량 수정"_s, sheet.grid.text(row, EvaCol::UseMuch))
          .value_or(QString()));
  if (use == 0) return;
  const int changed = sheet.session.dbYear.Execute("Update Evaporation set usemuch = " + vb::CStr(use) +
                                                   " Where Mon = " + QString::number(sheet.month) +
                                                   " and ClientCode = " + sheet.code(row));
  if (changed == 0) {
    prompts.MsgWarn(u"오류가 발생하여 변경에 실패했습니다."_s);
    return;
  }
  RowBackup backup(sheet.grid, row);
  sheet.setNumber(row, EvaCol::PrevUseGage, meterDifference(sheet.number(row, EvaCol::UseGage), use));
  CalcReadingRow(sheet, row);
  SaveReadingRow(sheet, row);
  backup.stored();
}

void recalculate(ReadingSheet& sheet, const ReadingProgress& progress) {
  Session& session = sheet.session;
  if (!session.prompts.MsgAsk(u"미수금및 연체료를 재계산 하시겠습니까?"_s)) return;
  // January looks into last year's file for every customer: it stays open meanwhile.
  jet::Database lastYear;
  if (sheet.month == 1) lastYear = openYear(session, session.pc.clock.today().year() - 1);
  const auto isRead = [&sheet](int at) { return sheet.number(at + 1, EvaCol::UseGage) != 0; };
  const auto asks = [&](int at) {
    return isRead(at) && !sheet.grid.text(at + 1, EvaCol::TrustDay).trimmed().isEmpty();
  };
  const auto step = [&](int at) {
    if (!isRead(at)) return;
    if (!asks(at)) return recalculateRow(sheet, at + 1);
    if (sheet.showRow) sheet.showRow(at + 1);
    const RowInQuestion shown(sheet.grid, at + 1);
    recalculateRow(sheet, at + 1);
  };
  runRows(sheet, {.count = sheet.grid.MaxRows(), .step = step, .asks = asks}, progress);
}

bool clearUse(ReadingSheet& sheet, const ReadingProgress& progress) {
  Session& session = sheet.session;
  if (!session.prompts.MsgAsk(u"현재 화면내 모든고객에 대해 당월 사용량을 클리어 하시겠습니까?"_s))
    return false;
  int changed = 0;
  const auto step = [&](int at) {
    changed += session.dbYear.Execute(
        "Update Evaporation Set UseMuch = 0 Where Mon = " + QString::number(sheet.month) +
        " AND ClientCode = " + sheet.code(at + 1));
  };
  if (runRows(sheet, {.count = sheet.grid.MaxRows(), .step = step}, progress))
    session.prompts.MsgInfo(QString::number(changed) + u"건의 자료를 수정하였습니다."_s);
  return true;
}

namespace {

QString skipQuestion(const ReadingSheet& sheet) {
  const QString building = sheet.book == HouseStyle::Individual ? QString() : u' ' + sheet.buildingEntry();
  return QStringList{
      u"[미검침]이란 당월에 검침을 실시하지 않고,"_s, u"전월의 검침을 그대로 다음달로 넘기는 기능입니다."_s,
      u"만약, 당월검침을 이미 입력한 경우"_s, u"입력한 검침수치가 모두 지워지므로 주의하시기 바랍니다."_s,
      sheet.monthText() + u"월 "_s + bookCaption(sheet.book) + u" 고객"_s + building +
          u"의 검침을 미실시로 처리하시겠습니까?"_s}
      .join(u'\n');
}

}  // namespace

bool skipReadings(ReadingSheet& sheet, const ReadingProgress& progress) {
  Session& session = sheet.session;
  if (!maySkipReadings(sheet) || !session.prompts.MsgAsk(skipQuestion(sheet), volumeManager, false))
    return false;
  jet::Recordset rs;
  if (!OpenSnapshot(session.prompts, session.dbYear, rs, wholeBookStatement(sheet, sheet.month - 1)))
    return false;
  int count = 0;
  if (!rs.atEnd()) {
    rs.MoveLast();
    count = rs.RecordCount();
    rs.MoveFirst();
  }
  const auto step = [&](int) {
    const QString total = vb::CStr(rs["Total"].toDouble()), code = rs["Code"].toText();
    session.dbYear.Execute(
        "Update Evaporation Set Trust = " + total + ", UseGage = " + vb::CStr(rs["UseGage"].toDouble()) +
        ", UseMuch = 0 Where ClientCode = " + code + " And Mon = " + QString::number(sheet.month));
    session.dbYear.Execute("Update Evaporation Set Trust = " + total + " Where ClientCode = " + code +
                           " And Mon = " + QString::number(sheet.month + 1));
    rs.MoveNext();
  };
  if (runRows(sheet, {.count = count, .step = step}, progress))
    session.prompts.MsgInfo(sheet.monthText() + u"월의 체적검침을 미실시로 처리완료했습니다"_s);
  return true;
}

bool maySkipReadings(const ReadingSheet& sheet) {
  return sheet.month > 0 && sheet.month < 12;
}
