// Gas and materials by delivery person: every line, the lines person by person, the sums.
#include "store/data_access.h"
#include "trade/briefs/brief_parts.h"
#include "trade/briefs/trade_briefs.h"
#include "trade/line_kinds.h"

namespace {

/** What the two forms differ in. */
struct PersonBook {
  QString form, caption;
  QString kinds;                    ///< the lines that count
  int collection = SaleCollection;  ///< the kind that is money in
  QString what;                     ///< in the messages
  QString lines, person, total;     ///< reports
};

/** A collection's amount and credit are the balance of that moment: they count for nothing here, and its money stands
 *  apart from what was paid at the delivery. */
QString figure(const PersonBook& book, const QString& ofSale, const QString& ofCollection) {
  return "IIf(Sale.SaleGubun = " + QString::number(book.collection) + ", " + ofCollection + ", " + ofSale +
         ")";
}

QString figures(const PersonBook& book, const QString& open, const QString& close) {
  return open + "Sale.SaleNum" + close + " AS Pieces, " + open + "Sale.DC" + close + " AS Discount, " + open +
         figure(book, "Sale.Income + Sale.Trust", "0") + close + " AS Amount, " + open +
         figure(book, "Sale.Income", "0") + close + " AS Paid, " + open + figure(book, "0", "Sale.Income") +
         close + " AS Collected, " + open + figure(book, "Sale.Trust", "0") + close + " AS Credit ";
}

QString linesStatement(const PersonBook& book, const BriefAsk& ask, const QString& order) {
  const QString person = ask.page == 1 ? ask.text("TxtResponse") : QString();
  return "SELECT Sale.SaleDate, Sale.Response, Sale.SaleName, Sale.SaleThing, Sale.ClientCode, Client.Name, "
         "Client.HouseStyle, Client.BDName, Client.Dong, Client.Ho, " +
         figures(book, {}, {}) + "FROM Sale LEFT JOIN Client ON Sale.ClientCode = Client.Code Where " +
         book.kinds + " And " + briefDays("Sale.SaleDate", ask, briefPeriod) +
         (person.isEmpty() ? QString() : "And Sale.Response = '" + copiedText(person) + "' ") + "Order By " +
         order + "Sale.SaleDate, Sale.SaleID";
}

QString totalStatement(const PersonBook& book, const BriefAsk& ask) {
  return "SELECT Sale.Response, " + figures(book, "Sum(", ")") + "FROM Sale Where " + book.kinds + " And " +
         briefDays("Sale.SaleDate", ask, briefPeriod) + "GROUP BY Sale.Response Order By Sale.Response";
}

BriefColumn personColumn(const QString& staged, bool key) {
  return {
      .header = "담당자", .field = "Response", .width = 12, .staged = staged, .key = key, .missing = "Null"};
}

/** What all three pages have in common. */
BriefPage personPage(const PersonBook& book, const QString& report, std::vector<BriefColumn> columns) {
  for (const BriefColumn& column :
       {piecesColumn("수량", "Pieces", "Lng01"), wonColumn("판매금액", "Amount", "Lng02"),
        wonColumn("D/C", "Discount", {}), wonColumn("입금액", "Paid", "Lng03"),
        wonColumn("수금액", "Collected", "Lng04"), wonColumn("미수금", "Credit", "Lng05"),
        hiddenColumn("ClientCode")})
    columns.push_back(column);
  return {
      .columns = std::move(columns),
      .period = briefPeriod,
      .reach = BriefReach::Asked,
      .emptyText = [what = book.what](const BriefAsk&) { return "조회기간의 " + what + " 자료가 없습니다!"; },
      .report = report,
      .formulas =
          [](const BriefAsk& ask, const BriefRows&) {
            const QString person = ask.page == 1 ? ask.text("TxtResponse") : QString();
            return QStringList{periodFormula(ask), "담당자= '" + (person.isEmpty() ? "전체" : person) + "'"};
          }};
}

BriefPage linesPage(const PersonBook& book) {
  BriefPage page = personPage(book, book.lines,
                              {textColumn("일자", "SaleDate", "Str01", 11), personColumn("Str02", false),
                               clientColumn("Str03"), itemColumn("Str04")});
  page.key = "lines";
  page.tab = "판매 내역";
  page.grid = "SpLines";
  page.fill = 3;
  page.statement = [book](const BriefAsk& ask) { return linesStatement(book, ask, {}); };
  page.order = {1};
  page.behind = clientBehind;
  return page;
}

BriefPage onePersonsPage(const PersonBook& book) {
  BriefPage page = personPage(book, book.person,
                              {personColumn("Str01", false), textColumn("일자", "SaleDate", "Str02", 11),
                               clientColumn("Str03"), itemColumn("Str04")});
  page.key = "person";
  page.tab = "담당자별 내역";
  page.grid = "SpPerson";
  page.fill = 3;
  page.statement = [book](const BriefAsk& ask) { return linesStatement(book, ask, "Sale.Response, "); };
  page.order = {1, 2};
  page.behind = clientBehind;
  return page;
}

BriefPage totalPage(const PersonBook& book) {
  BriefPage page = personPage(book, book.total, {personColumn("Str01", true)});
  page.key = "total";
  page.tab = "담당자별 집계";
  page.grid = "SpTotal";
  page.statement = [book](const BriefAsk& ask) { return totalStatement(book, ask); };
  page.order = {1};
  page.chart = {
      .kind = BriefChart::Kind::Bars, .title = "담당자별 판매금액과 수금액", .label = 1, .series = {3, 6}};
  page.behind = [form = book.form](const BriefAsk& ask, const BriefCells& cells) {
    return briefAddress(form, "person",
                        {{"TxtResponse", cells[0]},
                         {"TxtDayFrom", ask.from(briefPeriod)},
                         {"TxtDayTo", ask.to(briefPeriod)}});
  };
  return page;
}

Brief personBrief(const PersonBook& book) {
  return {.form = book.form,
          .caption = book.caption,
          .tabs = "TabRes",
          .questions = {askPeriod(), askPerson({1})},
          .pages = {linesPage(book), onePersonsPage(book), totalPage(book)}};
}

}  // namespace

Brief resSaleBrief() {
  return personBrief({.form = "frmResSaleBrief",
                      .caption = "담당별 판매 현황",
                      .kinds = "(Sale.SaleGubun = 1 or Sale.SaleGubun = 3 or Sale.SaleGubun = 4)",
                      .collection = SaleCollection,
                      .what = "가스판매",
                      .lines = "가스내역.rpt",
                      .person = "담당내역.rpt",
                      .total = "담당집계.rpt"});
}

Brief resUtilBrief() {
  return personBrief({.form = "frmResUtilBrief",
                      .caption = "판매담당별 현황",
                      .kinds = saleKindIs("Sale.SaleGubun", LineBalance::Material),
                      .collection = SaleMaterialCollection,
                      .what = "시설/자재판매",
                      .lines = "시설자재내역.rpt",
                      .person = "자재담당내역.rpt",
                      .total = "자재담당집계.rpt"});
}
