// Sale lines as they were posted: all of a period, those of one customer; materials by customer.
#include "store/data_access.h"
#include "trade/briefs/brief_parts.h"
#include "trade/briefs/trade_briefs.h"
#include "trade/line_kinds.h"

using namespace Qt::StringLiterals;

namespace {

QString lineStatement(const QString& condition) {
  return "SELECT Sale.SaleDate, Sale.Response, Sale.SaleName, Sale.SaleThing, Sale.SaleNum, Sale.SaleUnit, "
         "Sale.SaleGubun, Sale.Income, Sale.DC, Sale.Trust, Sale.ClientCode, Client.Name, Client.HouseStyle, "
         "Client.BDName, Client.Dong, Client.Ho FROM Sale LEFT JOIN Client ON Sale.ClientCode = Client.Code "
         "Where " +
         condition + "Order By Sale.SaleDate, Sale.SaleID";
}

/** A figure of a sale; a collection has none, its amount and credit are the balance of that moment. */
BriefColumn ofSales(BriefColumn column) {
  column.cell = [field = column.field](const jet::Recordset& rs) {
    if (saleKind(int(rs["SaleGubun"].toLong())).isPayment()) return QString();
    return QString::number(field.isEmpty() ? rs["Income"].toLong() + rs["Trust"].toLong()
                                           : rs[field].toLong());
  };
  return column;
}

/** Columns of a line, with or without its customer. */
std::vector<BriefColumn> lineColumns(bool withClient) {
  BriefColumn unit = ofSales(wonColumn("단가", "SaleUnit", "Lng02")),
              number = piecesColumn("수량", "SaleNum", "Lng01"), discount = wonColumn("D/C", "DC", "Lng03");
  unit.sum = false;
  unit.width = 10;
  number.width = 6;
  discount.width = 9;
  std::vector<BriefColumn> columns{
      textColumn("일자", "SaleDate", "Str01", 11),
      {.header = "구분",
       .width = 7,
       .look = BriefLook::Centre,
       .staged = "Str03",
       .cell = [](const jet::Recordset& rs) { return saleKind(int(rs["SaleGubun"].toLong())).label; }},
      itemColumn("Str04"),
      ofSales(number),
      unit,
      ofSales(discount),
      ofSales(wonColumn("금액", {}, "Lng04")),
      wonColumn("입금액", "Income", "Lng05"),
      ofSales(wonColumn("미수금", "Trust", "Lng06")),
      textColumn("담당자", "Response", "Str05", 10),
      hiddenColumn("ClientCode")};
  if (withClient) columns.insert(columns.begin() + 1, clientColumn("Str02"));
  return columns;
}

}  // namespace

Brief saleBrief() {
  return {.form = "frmSaleBrief",
          .caption = "전체 판매 현황",
          .questions = {askPeriod(), askName()},
          .pages = {{.key = "lines",
                     .grid = "SpSaleBrief",
                     .columns = lineColumns(true),
                     .fill = 2,
                     .statement =
                         [](const BriefAsk& ask) {
                           const QString part = ask.text("TxtName");
                           return lineStatement(briefDays("Sale.SaleDate", ask, briefPeriod) +
                                                (part.isEmpty()
                                                     ? QString()
                                                     : "And Client.Name Like '*" + plainText(part) + "*' "));
                         },
                     .period = briefPeriod,
                     .reach = BriefReach::Asked,
                     .order = {1},
                     .emptyText = [](const BriefAsk&) { return u"조회기간의 판매 자료가 없습니다!"_s; },
                     .report = "전체판매현황.rpt",
                     .formulas = [](const BriefAsk& ask,
                                    const BriefRows&) { return QStringList{periodFormula(ask)}; },
                     .behind = clientBehind}},
          .printButton = false};
}

Brief clientSaleBrief() {
  BriefQuestion period = askPeriod();
  period.fromNewYear = true;
  return {
      .form = "frmAClientSaleBrief",
      .caption = "고객별 판매 내역",
      .questions = {{.kind = AskKind::Client,
                     .name = "TxtClient",
                     .label = "고객명",
                     .help = "전화, 번지, 상호로 고객을 검색하세요   엔터, F12:검색"},
                    period},
      .pages = {{.key = "lines",
                 .grid = "SpAClient",
                 .columns = lineColumns(false),
                 .fill = 3,
                 .statement =
                     [](const BriefAsk& ask) {
                       return lineStatement("Sale.ClientCode = " + QString::number(ask["TxtClient"].code) +
                                            " And " + briefDays("Sale.SaleDate", ask, briefPeriod));
                     },
                 .period = briefPeriod,
                 .reach = BriefReach::Asked,
                 .order = {1},
                 .emptyText =
                     [](const BriefAsk& ask) {
                       return ask["TxtClient"].code > 0
                                  ? ask.text("TxtClient") + " 고객의 조회기간 판매 자료가 없습니다!"
                                  : u"조회할 고객을 먼저 검색하십시오!"_s;
                     },
                 .printTitle =
                     [](const BriefAsk& ask) {
                       return ask.text("TxtClient") + " 판매 내역 (" + ask.from(briefPeriod) + " ~ " +
                              ask.to(briefPeriod) + ")";
                     }}}};
}

Brief utilClientBrief() {
  std::vector<BriefColumn> columns{clientColumn("Str01"), textColumn("전화번호", "Tel", "Str02", 14),
                                   textColumn("품명", "SaleName", "Str03", 20),
                                   textColumn("규격", "SaleThing", "Str04", 12)};
  for (const BriefColumn& figure : saleFigures()) columns.push_back(figure);
  columns.push_back(hiddenColumn("ClientCode"));
  for (const size_t at : {size_t(2), size_t(3), columns.size() - 1}) columns[at].key = true;
  return {
      .form = "frmUtilClientBrief",
      .caption = "고객별 자재 판매현황",
      .questions = {askPeriod(), askName()},
      .pages = {
          {.key = "clients",
           .grid = "SpUtilClient",
           .columns = std::move(columns),
           .statement =
               [](const BriefAsk& ask) {
                 return "SELECT Sale.ClientCode, Client.Name, Client.Tel, Client.HouseStyle, "
                        "Client.BDName, Client.Dong, Client.Ho, Sale.SaleName, Sale.SaleThing, "
                        "Sum(Sale.SaleNum) AS SaleNum, Sum(Sale.Income) AS Income, Sum(Sale.DC) AS DC, "
                        "Sum(Sale.Trust) AS Trust FROM Sale LEFT JOIN Client ON Sale.ClientCode = "
                        "Client.Code Where " +
                        saleKindIs("Sale.SaleGubun", LineBalance::Material, KindPart::Sold) + " And " +
                        briefDays("Sale.SaleDate", ask, briefPeriod) + "And Client.Name Like '*" +
                        plainText(ask.text("TxtName")) +
                        "*' GROUP BY Sale.ClientCode, Client.Name, Client.Tel, Client.HouseStyle, "
                        "Client.BDName, Client.Dong, Client.Ho, Sale.SaleName, Sale.SaleThing Order By "
                        "Client.Name, Sale.ClientCode, Sale.SaleName, Sale.SaleThing";
               },
           .period = briefPeriod,
           .reach = BriefReach::Asked,
           .order = {1, 3, 4},
           .emptyText = [](const BriefAsk&) { return u"조회기간 및 조회고객명의 자재판매가 없습니다!"_s; },
           .report = "고객별자재판매현황.rpt",
           .formulas = [](const BriefAsk& ask, const BriefRows&) { return QStringList{periodFormula(ask)}; },
           .chart = {.kind = BriefChart::Kind::Bars,
                     .title = "자재를 많이 산 고객",
                     .label = 1,
                     .series = {6},
                     .byLabel = true,
                     .most = 12,
                     .apart = 10},
           .behind = clientBehind}}};
}
