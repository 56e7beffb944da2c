// Gas sales by month, by day and by customer.
#include "store/data_access.h"
#include "store/date_text.h"
#include "trade/briefs/brief_parts.h"
#include "trade/briefs/trade_briefs.h"
#include "trade/line_kinds.h"

using namespace Qt::StringLiterals;

namespace {

const QString gasSales = saleIsGasGoods("Sale.SaleGubun");

/** A line just begun has no size yet; Val of nothing would be nothing. It is looked for first: a report that is only
 *  read must not wait for another PC's group. */
void repairSizes(const jet::Database& year) {
  if (!year.OpenRecordset(u"Select Top 1 SaleID From Sale Where SaleThing Is Null").atEnd())
    year.Execute(u"update sale set saleThing = '0' where isnull(saleThing) ");
}

QString monthStatement(const BriefAsk& ask) {
  return "SELECT Sale.SaleDate, Sum(Sale.SaleNum) AS SaleNum, Sum(val(Sale.SaleThing) * Sale.SaleNum) as "
         "SaleKG, "
         "Sum(Sale.SaleUnit) AS SaleUnit, Sum(Sale.Income) AS Income, "
         "Sum(Sale.DC) AS DC, Sum(Sale.Trust) AS Trust, Sale.SaleGubun "
         "From Sale "
         "Where " +
         sheetCondition(ask) + gasSales + " and Sale.SaleDate like '" + plainText(ask.text("CboYear")) +
         "*' " + "GROUP BY Sale.SaleDate, Sale.SaleGubun " + "ORDER BY Sale.SaleDate";
}

QString dayStatement(const BriefAsk& ask) {
  return "SELECT Sale.SaleDate, Sum(Sale.SaleNum) AS SaleNum, "
         "Sum(Sale.SaleUnit) AS SaleUnit, Sum(Sale.Income) AS Income, "
         "Sum(Sale.DC) AS DC, Sum(Sale.Trust) AS Trust From Sale "
         "Where Sale.SaleDate LIke '" +
         plainText(ask.text("CboYear")) + "-" + plainText(ask.text("CboMonth")) + "-*' And " +
         sheetCondition(ask) + gasSales + " GROUP BY Sale.SaleDate Order By Sale.SaleDate";
}

/** Added up by code first and named then: grouped by names and addresses a million lines would be sorted by eight texts
 *  for the same rows. */
QString clientStatement(const BriefAsk& ask) {
  return "SELECT Sums.ClientCode, Sums.Size, Client.Name, Client.Tel, Sums.Income, Sums.DC, Client.BDName, "
         "Client.Dong, Client.Ho, Sums.Trust, Client.HouseStyle, Client.VolumeYesNo FROM "
         "(SELECT Sale.ClientCode, Sum(Sale.SaleNum) AS Size, Sum(Sale.Income) AS Income, Sum(Sale.DC) AS "
         "DC, "
         "Sum(Sale.Trust) AS Trust FROM Sale Where " +
         sheetCondition(ask) + "Sale.SaleDate >= '" + plainText(ask.from(briefPeriod)) +
         "' And Sale.SaleDate <= '" + plainText(ask.to(briefPeriod)) + "' And " + gasSales +
         " GROUP BY Sale.ClientCode) AS Sums INNER JOIN Client ON Sums.ClientCode = Client.Code Where "
         "Client.Name Like '*" +
         plainText(ask.text("TxtName")) + "*' Order By Client.Name";
}

/** A piece of the date as the row's key: months and days are added up by it. */
BriefColumn dateKey(const QString& header, double width, int from, int length, const QString& behind) {
  return {
      .header = header,
      .width = width,
      .look = BriefLook::Centre,
      .staged = "Str01",
      .key = true,
      .cell = [=](const jet::Recordset& rs) { return rs["SaleDate"].toText().mid(from, length) + behind; }};
}

std::vector<BriefColumn> withFigures(std::vector<BriefColumn> columns) {
  const std::vector<BriefColumn> figures = saleFigures();
  columns.insert(columns.end(), figures.begin(), figures.end());
  return columns;
}

BriefPage monthPage() {
  std::vector<BriefColumn> columns = withFigures({dateKey("월", 8, 5, 2, "월")});
  columns.insert(columns.begin() + 2,
                 {.header = "중량(kg)", .field = "SaleKG", .width = 11, .look = BriefLook::Number});
  BriefPage page{
      .key = "month",
      .tab = "월별 판매현황",
      .grid = "SpMonth",
      .columns = std::move(columns),
      .statement = monthStatement,
      .period = "CboYear",
      .reach = BriefReach::Asked,
      .repair = repairSizes,
      .emptyText = [](const BriefAsk& ask) { return ask.text("CboYear") + "년의 LPG판매 자료가 없습니다!"; },
      .report = "월별판매현황.rpt",
      .formulas =
          [](const BriefAsk& ask, const BriefRows&) {
            return QStringList{"조회년= '" + ask.text("CboYear") + "'",
                               "판매구분= '(" + sheetName(ask) + ")'"};
          },
      .chart = {.kind = BriefChart::Kind::Bars, .title = "월별 판매금액", .label = 1, .series = {4, 7}},
      .behind =
          [](const BriefAsk& ask, const BriefCells& cells) {
            return briefAddress("frmLPGSaleBrief", "day",
                                {{"CboYear", ask.text("CboYear")}, {"CboMonth", cells[0].left(2)}});
          }};
  for (int month = 1; month <= 12; ++month) page.slots_ << twoDigits(month) + "월";
  return page;
}

BriefPage dayPage() {
  return {
      .key = "day",
      .tab = "일별 판매현황",
      .grid = "SpDay",
      .columns = withFigures({dateKey("일자", 11, 5, 5, {})}),
      .statement = dayStatement,
      .period = "CboYear",
      .reach = BriefReach::Asked,
      .order = {1},
      .emptyText = [](const BriefAsk& ask) { return ask.text("CboMonth") + "월의 LPG판매 자료가 없습니다!"; },
      .report = "일별판매현황.rpt",
      // Kept: the words have no opening bracket, the layout puts it before the month.
      .formulas =
          [](const BriefAsk& ask, const BriefRows&) {
            return QStringList{"조회월= '" + ask.text("CboMonth") + "'",
                               "판매구분= '월 " + sheetName(ask) + ")'"};
          },
      .chart = {.kind = BriefChart::Kind::Line, .title = "일별 판매금액", .label = 1, .series = {3}},
      .behind =
          [](const BriefAsk& ask, const BriefCells& cells) {
            const QString day = ask.text("CboYear") + "-" + cells[0];
            return briefAddress("frmSaleBrief", "lines", {{"TxtDayFrom", day}, {"TxtDayTo", day}});
          }};
}

BriefPage clientPage() {
  std::vector<BriefColumn> columns =
      withFigures({clientColumn("Str01"),
                   textColumn("전화번호", "Tel", "Str02", 14),
                   {.header = "고객구분",
                    .width = 10,
                    .look = BriefLook::Centre,
                    .staged = "Str03",
                    .cell = [](const jet::Recordset& rs) {
                      static const QStringList kinds{"일반/식당", "아 파 트", "다 가 구"};
                      return kinds.value(int(rs["HouseStyle"].toLong()));
                    }}});
  columns[0].missing = "Null";
  columns[3].field = "Size";
  columns.push_back(hiddenColumn("ClientCode"));
  columns.back().key = true;
  return {.key = "client",
          .tab = "고객별 판매현황",
          .grid = "SpClient",
          .columns = std::move(columns),
          .statement = clientStatement,
          .period = briefPeriod,
          .reach = BriefReach::Asked,
          .order = {1},
          .emptyText = [](const BriefAsk&) { return u"조회기간 및 조회고객명의 LPG판매가 없습니다!"_s; },
          .report = "고객별판매현황.rpt",
          .formulas = [](const BriefAsk& ask, const BriefRows&) { return QStringList{periodFormula(ask)}; },
          .chart = {.kind = BriefChart::Kind::Bars,
                    .title = "판매금액이 많은 고객",
                    .label = 1,
                    .series = {5},
                    .most = 12},
          .behind = clientBehind};
}

}  // namespace

Brief lpgSaleBrief() {
  return {.form = "frmLPGSaleBrief",
          .caption = "LPG 판매 현황",
          .tabs = "TabLPGSale",
          .questions = {{.kind = AskKind::Year,
                         .name = "CboYear",
                         .label = "조회년",
                         .help = "조회할 해를 선택합니다",
                         .pages = {0, 1}},
                        {.kind = AskKind::Month,
                         .name = "CboMonth",
                         .label = "조회월",
                         .help = "조회할 달을 선택합니다",
                         .pages = {1}},
                        askPeriod({2}),
                        askName({2}),
                        askSheet()},
          .pages = {monthPage(), dayPage(), clientPage()}};
}
