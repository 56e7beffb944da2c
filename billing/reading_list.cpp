#include "billing/reading_list.h"

#include "billing/building_rate.h"
#include "billing/reading_sheet.h"
#include "briefs/brief_run.h"
#include "store/session.h"
#include "store/vb.h"

using namespace Qt::StringLiterals;

namespace {

const std::vector<BriefColumn>& listColumns() {
  static const std::vector<BriefColumn> columns = [] {
    std::vector<BriefColumn> made;
    for (const char16_t* staged : {u"Str01", u"Dbl01", u"Dbl02", u"Dbl03", u"Lng01", u"Lng02", u"Lng03",
                                   u"Lng04", u"Lng05", u"Lng06", u"Str02", u"Str03", u"Str04"})
      made.push_back({.staged = QString::fromUtf16(staged)});
    return made;
  }();
  return columns;
}

BriefCells listRow(const ReadingSheet& sheet, int row) {
  BriefCells cells{sheet.grid.text(row, EvaCol::Name)};
  for (int col = EvaCol::PrevUseGage; col <= EvaCol::Pay; ++col)
    cells.push_back(vb::CStr(sheet.number(row, col)));
  cells.push_back(sheet.grid.text(row, EvaCol::Prnt) == "1"_L1 ? u"O"_s : u"X"_s);
  cells.push_back(sheet.grid.text(row, EvaCol::TrustDay));
  cells.push_back(sheet.grid.text(row, EvaCol::BDName));
  return cells;
}

}  // namespace

void printReadingList(ReadingSheet& sheet) {
  Session& session = sheet.session;
  std::vector<BriefCells> rows;
  for (int row = 1; !sheet.grid.text(row, EvaCol::Name).isEmpty(); ++row) rows.push_back(listRow(sheet, row));
  const QString building = sheet.book == HouseStyle::Individual
                               ? u"일반주택/식당"_s
                               : BuildingLabelForDong(session, sheet.buildingEntry());
  printBriefRows(
      session, listColumns(), rows,
      {.report = u"체적검침현황.rpt"_s,
       .formulas = {u"월= '"_s + sheet.monthText() + u"월)'"_s, u"건물명= '"_s + building + u"'"_s},
       .blankRow = false});
}
