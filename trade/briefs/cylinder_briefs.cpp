// Cylinders that are out: by item, by who has them, by delivery person. What was lent before the period stays lent,
// whatever the year.
#include <algorithm>

#include "store/data_access.h"
#include "store/year_file.h"
#include "trade/briefs/brief_parts.h"
#include "trade/briefs/trade_briefs.h"

using namespace Qt::StringLiterals;

namespace {

/** Columns of a table of lines; kinds 5 (out) and 6 (back) mean the same in both. */
struct LoanTable {
  QString kind, day, pieces;
};

const LoanTable saleLoans{"Sale.SaleGubun", "Sale.SaleDate", "Sale.SaleNum"};
const LoanTable buyLoans{"Buy.PurchaseGubun", "Buy.BuyDate", "Buy.PurchaseNum"};
const QString clientNames = "Client.Name, Client.HouseStyle, Client.BDName, Client.Dong, Client.Ho";

/** Out before the period, out and back in it. */
QString loanSums(const LoanTable& of, const BriefAsk& ask) {
  const QString before = plainPath(of.day) + " < '" + plainText(ask.from(briefPeriod)) + "'";
  return "Sum(IIf(" + before + ", IIf(" + of.kind + " = 5, " + of.pieces + ", -" + of.pieces +
         "), 0)) AS Before, " + "Sum(IIf(" + before + " Or " + of.kind + " = 6, 0, " + of.pieces +
         ")) AS Lent, " + "Sum(IIf(" + before + " Or " + of.kind + " = 5, 0, " + of.pieces + ")) AS Back ";
}

QString loanLines(const LoanTable& of, const BriefAsk& ask) {
  return "(" + of.kind + " = 5 Or " + of.kind + " = 6) And " + plainPath(of.day) + " <= '" +
         plainText(ask.to(briefPeriod)) + "' And " + daysAre(of.day, {ask.fileFrom, ask.fileTo}) + " ";
}

QString partOf(const QString& field, const QString& part) {
  return part.isEmpty() ? QString() : "And " + plainPath(field) + " Like '*" + plainText(part) + "*' ";
}

BriefColumn keyText(const QString& header, const QString& field, const QString& staged, double width) {
  BriefColumn column = textColumn(header, field, staged, width);
  column.key = true;
  return column;
}

/** Nothing out and nothing moved: no line of the report. */
void dropSettled(Session&, const BriefAsk&, const BriefTeller&, BriefRows& rows) {
  std::erase_if(rows.rows, [](const BriefCells& row) {
    const auto figures = row.end() - 5;  // the hidden customer stands behind them
    return std::all_of(figures, figures + 4, [](const QString& cell) { return cell == u"0"_s; });
  });
}

BriefPage loanPage(const QString& grid, std::vector<BriefColumn> columns, const QString& report) {
  BriefColumn open = piecesColumn("미회수", {}, "Lng04");
  open.cell = [](const jet::Recordset& rs) {
    return QString::number(rs["Before"].toLong() + rs["Lent"].toLong() - rs["Back"].toLong());
  };
  for (const BriefColumn& column :
       {piecesColumn("이월", "Before", "Lng01"), piecesColumn("대여", "Lent", "Lng02"),
        piecesColumn("회수", "Back", "Lng03"), open, hiddenColumn("ClientCode")})
    columns.push_back(column);
  columns.back().key = true;
  return {.key = "loans",
          .grid = grid,
          .columns = std::move(columns),
          .period = briefPeriod,
          .reach = BriefReach::UpTo,
          .complete = dropSettled,
          .emptyText = [](const BriefAsk&) { return u"조회기간의 용기 대여/회수 자료가 없습니다!"_s; },
          .report = report,
          .formulas = [](const BriefAsk& ask, const BriefRows&) { return QStringList{periodFormula(ask)}; },
          .behind = clientBehind};
}

QString stationsStatement(const BriefAsk& ask) {
  return "SELECT '충전소' AS Kind, Buy.BuyCompany AS Name, 0 AS HouseStyle, '' AS BDName, '' AS Dong, '' AS "
         "Ho, "
         "Buy.BuyName AS Item, Buy.BuyThing AS Thing, 0 AS ClientCode, " +
         loanSums(buyLoans, ask) + "FROM Buy Where " + loanLines(buyLoans, ask) +
         partOf("Buy.BuyCompany", ask.text("TxtName")) + "GROUP BY Buy.BuyCompany, Buy.BuyName, Buy.BuyThing";
}

QString clientsStatement(const BriefAsk& ask) {
  return "SELECT '고객' AS Kind, " + clientNames +
         ", Sale.SaleName AS Item, Sale.SaleThing AS Thing, Sale.ClientCode, " + loanSums(saleLoans, ask) +
         "FROM Sale LEFT JOIN Client ON Sale.ClientCode = Client.Code Where " + loanLines(saleLoans, ask) +
         partOf("Client.Name", ask.text("TxtName")) + "GROUP BY Sale.ClientCode, " + clientNames +
         ", Sale.SaleName, Sale.SaleThing";
}

}  // namespace

Brief canLpgBrief() {
  BriefPage page = loanPage("SpCANLPG",
                            {keyText("용기명", "SaleName", "Str02", 14),
                             keyText("용량", "SaleThing", "Str03", 6), clientColumn("Str04")},
                            "용기대여현황02.rpt");
  page.fill = 3;
  page.order = {1, 2, 3};
  page.statement = [](const BriefAsk& ask) {
    return "SELECT Sale.SaleName, Sale.SaleThing, Sale.ClientCode, " + clientNames + ", " +
           loanSums(saleLoans, ask) + "FROM Sale LEFT JOIN Client ON Sale.ClientCode = Client.Code Where " +
           loanLines(saleLoans, ask) + partOf("Sale.SaleName", ask.text("TxtItem")) +
           "GROUP BY Sale.SaleName, Sale.SaleThing, Sale.ClientCode, " + clientNames +
           " Order By Sale.SaleName, Sale.SaleThing, Client.Name";
  };
  return {.form = "frmCANLPGBrief",
          .caption = "용기별/기간별 대여현황",
          .questions = {askPeriod(),
                        {.kind = AskKind::Text,
                         .name = "TxtItem",
                         .label = "용기명",
                         .help = "용기명의 일부를 입력하면 그 용기만 조회합니다"}},
          .pages = {page}};
}

Brief canCompanyBrief() {
  BriefColumn name = clientColumn("Str02", true);
  name.header = "상호 / 고객명";
  BriefPage page = loanPage("SpCANCompany",
                            {keyText("구분", "Kind", "Str01", 10), name,
                             keyText("용기명", "Item", "Str03", 14), keyText("용량", "Thing", "Str04", 6)},
                            "용기대여현황01.rpt");
  page.fill = 2;
  page.order = {1, 2, 3, 4};
  page.statement = [](const BriefAsk& ask) {
    const int which = ask.place("OptWhere");
    if (which == 1) return stationsStatement(ask);
    if (which == 2) return clientsStatement(ask);
    return stationsStatement(ask) + " UNION ALL " + clientsStatement(ask);
  };
  return {.form = "frmCANCompanyBrief",
          .caption = "상호별/기간별 대여현황",
          .questions = {askPeriod(),
                        {.kind = AskKind::Text,
                         .name = "TxtName",
                         .label = "상호",
                         .help = "상호나 고객명의 일부를 입력하면 그곳만 조회합니다"},
                        {.kind = AskKind::Options,
                         .name = "OptWhere",
                         .help = "조회할 곳을 선택합니다",
                         .entries =
                             [](const Session&, int) {
                               return QStringList{"전체", "충전소", "고객"};
                             }}},
          .pages = {page}};
}

Brief canResBrief() {
  BriefPage page =
      loanPage("SpCANRes",
               {keyText("담당자", "Response", "Str01", 10), textColumn("휴대전화", "HP", "Str02", 14),
                clientColumn("Str03"), keyText("용기명", "SaleName", "Str04", 14),
                keyText("용량", "SaleThing", "Str05", 6)},
               "용기대여현황03.rpt");
  page.fill = 3;
  page.order = {1, 3, 4, 5};
  page.chart = {.kind = BriefChart::Kind::Bars,
                .title = "담당자별 미회수 용기",
                .label = 1,
                .series = {9},
                .byLabel = true};
  page.statement = [](const BriefAsk& ask) {
    const QString person = ask.text("TxtResponse");
    return "SELECT Sale.Response, Response.HP, Sale.SaleName, Sale.SaleThing, Sale.ClientCode, " +
           clientNames + ", " + loanSums(saleLoans, ask) +
           "FROM (Sale LEFT JOIN Client ON Sale.ClientCode = Client.Code) LEFT JOIN Response ON "
           "Sale.Response = Response.Name Where " +
           loanLines(saleLoans, ask) +
           (person.isEmpty() ? QString() : "And Sale.Response = '" + copiedText(person) + "' ") +
           "GROUP BY Sale.Response, Response.HP, Sale.SaleName, Sale.SaleThing, Sale.ClientCode, " +
           clientNames + " Order By Sale.Response, Client.Name, Sale.SaleName";
  };
  return {.form = "frmCANResBrief",
          .caption = "담당별/기간별 대여현황",
          .questions = {askPeriod(), askPerson()},
          .pages = {page}};
}
