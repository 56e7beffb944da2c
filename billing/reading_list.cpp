#include "billing/reading_list.h"

#include "billing/building_rate.h"
#include "billing/reading_sheet.h"
#include "pc/reports.h"
#include "store/data_access.h"
#include "store/report_staging.h"
#include "store/session.h"
#include "store/vb.h"

using namespace Qt::StringLiterals;

namespace {

QString listStatement(const ReadingSheet& sheet, int row) {
  const auto text = [&](int col) { return u'\'' + plainText(sheet.grid.text(row, col)) + u'\''; };
  QString values = text(EvaCol::Name);
  for (int col = EvaCol::PrevUseGage; col <= EvaCol::Pay; ++col)
    values += ", " + vb::CStr(sheet.number(row, col));
  values += sheet.grid.text(row, EvaCol::Prnt) == "1"_L1 ? u", 'O'"_s : u", 'X'"_s;
  return "Insert Into Print(Str01, Dbl01, Dbl02, Dbl03, Lng01, Lng02, Lng03, Lng04, Lng05, Lng06, "
         "Str02, Str03, str04) Values(" +
         values + ", " + text(EvaCol::TrustDay) + ", " + text(EvaCol::BDName) + ")";
}

}  // namespace

void printReadingList(ReadingSheet& sheet) {
  Session& session = sheet.session;
  int rows = 0;
  while (!sheet.grid.text(rows + 1, EvaCol::Name).isEmpty()) ++rows;
  stageReport(session, rows, [&](int row) { return listStatement(sheet, row); });
  const QString building = sheet.book == MeterBook::Individual
                               ? u"일반주택/식당"_s
                               : BuildingLabelForDong(session, sheet.buildingEntry());
  session.reports->show(
      {.file = u"체적검침현황.rpt"_s,
       .formulas = {u"월= '"_s + sheet.monthText() + u"월)'"_s, u"건물명= '"_s + building + u"'"_s},
       .dataFile = printFile()});
}
