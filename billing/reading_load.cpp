#include "billing/reading_load.h"

#include <optional>

#include "billing/building_rate.h"
#include "billing/reading_bill.h"
#include "billing/reading_months.h"
#include "billing/reading_name.h"
#include "billing/reading_sheet.h"
#include "store/data_access.h"
#include "store/rounding.h"
#include "store/session.h"
#include "store/settings_table.h"

using namespace Qt::StringLiterals;

namespace {

const QString readingManager = u"검침 관리자"_s;

QString bookWhere(const ReadingSheet& sheet, int month) {
  return "Where Client.HouseStyle = " + QString::number(int(sheet.book)) + " And " +
         "Evaporation.Mon = " + QString::number(month);
}

QString columnsUpToRooms() {
  return "SELECT Client.Code, Client.Tel, Client.Address, Client.VolumeUnit, Client.Name, Client.BDName, "
         "Client.Dong, "
         "Client.Ho, Evaporation.TrustDay, Evaporation.UseGage, Evaporation.UseMuch, Evaporation.UsePay, "
         "Evaporation.Trust, Evaporation.Delay, Evaporation.Manage, Evaporation.Total, ";
}

QString bookTables() {
  return "FROM Evaporation LEFT JOIN Client ON Evaporation.ClientCode = Client.Code ";
}

/** The chosen building, and no household without a room number. */
QString householdFilter(const ReadingSheet& sheet) {
  if (sheet.book == HouseStyle::Individual) return {};
  QString filter;
  if (sheet.building > 0) {
    const QString entry = sheet.buildingEntry();
    // Kept: an entry "<building> <block>" is cut by length, so only a block of three characters finds its households.
    if (showsBlocks(sheet.session))
      filter = " And Client.BDName = '" + plainText(entry.chopped(qMin<qsizetype>(4, entry.size()))) +
               "' And Client.Dong = '" + plainText(entry.right(3)) + "' ";
    else
      filter = " And Client.BDName = '" + plainText(entry) + "' ";
  }
  return filter + " And isnull(Client.Ho) = False ";
}

/** Of a month's rows and of those of the month before alike: the two are paired by their places. */
QString readingOrder(const ReadingSheet& sheet) {
  if (sheet.book == HouseStyle::Individual) return " ORDER BY Client.name";
  if (!ordersByRoom(sheet)) return " ORDER BY Client.code";
  // A room that is no number is room 0.
  return " ORDER BY Client.BDName, Client.dong, IIF(Client.ho is null, 0, "
         "IIF(ISNUMERIC(Client.ho),  CLNG(Client.ho), 0) ), Client.code";
}

QString bookStatement(const ReadingSheet& sheet) {
  return columnsUpToRooms() + "Evaporation.Pay, Evaporation.Prnt, Evaporation.PrntDay, payway, paydelayed " +
         bookTables() + bookWhere(sheet, sheet.month) + householdFilter(sheet) + readingOrder(sheet);
}

QString previousStatement(const ReadingSheet& sheet) {
  return "Select Evaporation.UseGage AS PrevUseGage FROM Evaporation LEFT JOIN Client "
         "ON Evaporation.ClientCode = Client.Code " +
         bookWhere(sheet, sheet.month - 1) + householdFilter(sheet) + readingOrder(sheet);
}

std::vector<QString> readingRow(const ReadingSheet& sheet, const jet::Recordset& rs,
                                std::optional<int> payState) {
  const auto text = [&rs](const QString& column) { return rs[column].toText(); };
  const auto tick = [&rs](const QString& column) { return rs[column].toBool() ? u"1"_s : u"0"_s; };
  const QString name = readingName(sheet.book, text(u"Name"_s), text(u"Dong"_s), text(u"Ho"_s));
  const QString total = jet::Value(roundToTen(rs[u"Total"_s].toDouble(), payState)).toText();
  return {name,
          QString(),
          text(u"UseGage"_s),
          text(u"UseMuch"_s),
          text(u"UsePay"_s),
          text(u"Trust"_s),
          text(u"Delay"_s),
          text(u"Manage"_s),
          total,
          text(u"Pay"_s),
          tick(u"Prnt"_s),
          text(u"TrustDay"_s),
          text(u"Code"_s),
          text(u"VolumeUnit"_s),
          text(u"Address"_s),
          text(u"Tel"_s),
          text(u"Name"_s),
          text(u"payway"_s),
          tick(u"paydelayed"_s),
          text(u"BDName"_s)};
}

/** Column 2. Kept: rows are paired by place, so a row that the month before lacks shifts all behind it. */
void fillPrevious(ReadingSheet& sheet, const jet::Recordset& before) {
  jet::Recordset rs = before;
  for (int row = 1; row <= sheet.grid.MaxRows() && !rs.atEnd(); ++row, rs.MoveNext()) {
    const double reading = sheet.number(row, EvaCol::UseGage), use = sheet.number(row, EvaCol::UseMuch);
    // A use that was set by hand, as after a change of the meter, has the previous reading that fits it.
    if (use != 0 && reading != 0)
      sheet.setNumber(row, EvaCol::PrevUseGage, meterDifference(reading, use));
    else
      sheet.grid.setText(row, EvaCol::PrevUseGage, rs[0].toText());
  }
}

}  // namespace

bool ordersByRoom(const ReadingSheet& sheet) {
  return sheet.session.pc.settings.read(setting::OrderedByRoom) != "0"_L1;
}

QString wholeBookStatement(const ReadingSheet& sheet, int month) {
  return columnsUpToRooms() + "Evaporation.Pay, Evaporation.Prnt, Evaporation.PrntDay " + bookTables() +
         bookWhere(sheet, month) + " Order By Client.Code";
}

QString usesStatement(const ReadingSheet& sheet, int firstMonth, int lastMonth) {
  return "Select Evaporation.ClientCode, Evaporation.Mon, Evaporation.UseMuch " + bookTables() +
         "Where Client.HouseStyle = " + QString::number(int(sheet.book)) +
         " And Evaporation.Mon >= " + QString::number(firstMonth) +
         " And Evaporation.Mon <= " + QString::number(lastMonth) + householdFilter(sheet);
}

Selection CheckSelection(ReadingSheet& sheet) {
  if (sheet.month < 0) {
    sheet.session.prompts.MsgWarn(u"조회/입력할 월을 선택하십시오"_s, readingManager);
    return Selection::NoMonth;
  }
  if (sheet.book != HouseStyle::Individual && sheet.building < 0) {
    sheet.session.prompts.MsgWarn(u"조회/입력할 건물을 선택하십시오"_s, readingManager);
    return Selection::NoBuilding;
  }
  return Selection::Complete;
}

void fillBuildings(ReadingSheet& sheet) {
  sheet.buildings.clear();
  sheet.building = -1;
  if (sheet.book == HouseStyle::Individual) return;
  sheet.buildings << (sheet.book == HouseStyle::Apartment ? u"아파트 전체"_s : u"다가구 전체"_s);
  const bool blocks = showsBlocks(sheet.session);
  const QString style = QString::number(int(sheet.book));
  jet::Recordset rs;
  if (!OpenSnapshot(sheet.session.prompts, sheet.session.dbBasic, rs,
                    blocks ? "Select Distinct BDName, DONG From Client Where HouseStyle = " + style
                           : "Select Distinct BDName From Client Where HouseStyle = " + style))
    return;
  for (; !rs.atEnd(); rs.MoveNext())
    sheet.buildings << rs[0].toText() + (blocks ? u' ' + rs[1].toText() : QString());
}

void showReadings(ReadingSheet& sheet) {
  const bool opening = sheet.isOpening();
  const int locked = sheet.grid.column(EvaCol::UsePay).background;
  sheet.grid.setColumnLocked(EvaCol::Total, !opening, opening ? -1 : locked);
  if (opening) sheet.session.prompts.MsgInfo(openingNotes(sheet), u"체적 관리자"_s);
  RefreshReadingGrid(sheet);
  sheet.readingDay = sheet.today();
}

void RefreshReadingGrid(ReadingSheet& sheet) {
  Session& session = sheet.session;
  jet::Recordset rs, before;
  if (!OpenSnapshot(session.prompts, session.dbYear, rs, bookStatement(sheet))) return;
  if (!sheet.isOpening() && !OpenSnapshot(session.prompts, session.dbYear, before, previousStatement(sheet)))
    return;
  const std::optional<int> payState = companyPayState(session);
  std::vector<std::vector<QString>> rows;
  for (; !rs.atEnd(); rs.MoveNext()) rows.push_back(readingRow(sheet, rs, payState));
  sheet.grid.setRows(std::move(rows));
  if (before.isOpen()) fillPrevious(sheet, before);
  loadUsesBefore(sheet);
  markReadings(sheet);
}
