#include "trade/sale_sheet.h"

#include "master/customers/client_entry.h"
#include "store/data_access.h"

namespace {

QString sheetFilter(SaleSheet sheet) {
  switch (sheet) {
    case SaleSheet::Volume:
      return " AND Sale.SaleGubun <> 7 And Sale.SaleGubun <> 8 And Sale.Gubun = true ";
    case SaleSheet::Material:
      return " AND (Sale.SaleGubun = 7 Or Sale.SaleGubun = 8) ";
    case SaleSheet::General:
      break;
  }
  return " AND Sale.SaleGubun <> 7 And Sale.SaleGubun <> 8 And Sale.Gubun = False ";
}

// The years between which lines are looked for are the PC clock's; the day is one of the working year.
QString sheetStatement(int year, const QString& workYear, SaleSheet sheet, const SaleFilter& filter) {
  const QString thisYear = QString::number(year);
  const QString lastYear = QString::number(year - 1);
  return "Select Sale.*, Client.* From Sale Right Join Client On Sale.ClientCode = Client.Code "
         "Where Sale.SaleDate Between '" +
         plainText(lastYear) + "-01-01" + "' and '" + plainText(thisYear) + "-12-31' " + sheetFilter(sheet) +
         (filter.showDay
              ? " And Sale.SaleDate = '" + plainText(workYear) + "-" + plainText(filter.date) + "' "
              : " And Sale.ClientCode = " + QString::number(filter.client) + " ") +
         "Order By Sale.SaleDate, Sale.SaleID ";
}

std::vector<QString> sheetRow(const jet::Recordset& line, SaleSheet sheet) {
  const int kind = int(line["SaleGubun"].toLong());
  const bool collection = isCollection(kind);
  // What was paid and what was left together are the amount; of a collection, the balance at that moment.
  const double amount = line["Income"].toDouble() + line["Trust"].toDouble();
  const auto unlessCollection = [&line, collection](const char* column) {
    return collection ? QString() : saleText(line[QString(column)].toDouble());
  };
  return {
      line["SaleDate"].toText().right(5),
      DisplayName(line),
      saleLabels(sheet).value(salePositionOf(sheet, kind)),
      collection ? collectionItem(kind) : joinItem({line["SaleName"].toText(), line["SaleThing"].toText()}),
      unlessCollection("SaleNum"),
      unlessCollection("SaleUnit"),
      unlessCollection("DC"),
      saleText(amount),
      saleText(line["Income"].toDouble()),
      saleText(line["Trust"].toDouble()),
      line["Response"].toText(),
      line["SaleID"].toText(),
      line["ClientCode"].toText()};
}

}  // namespace

std::vector<SpreadColumn> saleColumns(SaleSheet sheet) {
  const auto money = [](const char* header, double width) {
    return SpreadColumn{.header = header,
                        .width = width,
                        .kind = CellKind::Money,
                        .align = CellAlign::Right,
                        .maxLength = 12};
  };
  std::vector<SpreadColumn> columns = {
      {.header = "일자", .width = 6, .kind = CellKind::MonthDay, .align = CellAlign::Center, .maxLength = 10},
      {.header = "고객명", .width = 22},
      {.header = "구분",
       .width = 7,
       .kind = CellKind::Combo,
       .align = CellAlign::Center,
       .combo = saleLabels(sheet)},
      {.header = "품명 / 용량", .width = 18},
      {.header = "수량", .width = 5, .kind = CellKind::Integer, .align = CellAlign::Right, .maxLength = 6},
      money("단가", 10),
      money("D/C", 9),
      money("금  액", 10),
      money("입금액", 10),
      money("미수금", 10),
      {.header = "담당자", .width = 9, .align = CellAlign::Center, .maxLength = 20},
      {.header = "코드", .hidden = true},
      {.header = "고개코드", .hidden = true},  // spelt so on purpose
  };
  columns[SaleCol::Trust - 1].locked = true;
  return columns;
}

void lockForKind(SpreadModel& grid, int row, SaleSheet sheet) {
  const bool collection = isCollection(saleKindAt(sheet, grid.comboPosition(row, SaleCol::Kind)));
  for (const int col : {SaleCol::Item, SaleCol::Number, SaleCol::Unit, SaleCol::Discount})
    grid.setLocked(row, col, collection);
}

QString storedSaleLine(const jet::Recordset& line) {
  QStringList texts;
  for (const char* const column : {"SaleDate", "ClientCode", "SaleGubun", "Gubun", "SaleName", "SaleThing",
                                   "SaleNum", "SaleUnit", "DC", "Income", "Trust", "Response"})
    texts << line[QString(column)].toText();
  return texts.join(u'\n');
}

bool loadSaleSheet(Session& session, SpreadModel& grid, SaleSheet sheet, const SaleFilter& filter,
                   KnownLines& known) {
  jet::Recordset lines;
  if (!OpenSnapshot(session.prompts, session.dbYear, lines,
                    sheetStatement(session.pc.clock.today().year(), session.WorkYear, sheet, filter)))
    return false;
  std::vector<std::vector<QString>> rows;
  for (; !lines.atEnd(); lines.MoveNext()) {
    rows.push_back(sheetRow(lines, sheet));
    known[lines["SaleID"].toText()] = storedSaleLine(lines);
  }
  rows.emplace_back();
  grid.setRows(std::move(rows));
  for (int row = 1; row < grid.MaxRows(); ++row) lockForKind(grid, row, sheet);
  return true;
}
