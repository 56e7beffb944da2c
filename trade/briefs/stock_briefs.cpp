// What was in stock when a period began, what came and went, and what was left.
#include "trade/briefs/brief_parts.h"
#include "trade/briefs/trade_briefs.h"
#include "trade/stock_walk.h"

#include "store/session.h"

namespace {

BriefColumn stockColumn(const QString& header, const QString& group, const QString& staged) {
  BriefColumn column = piecesColumn(header, {}, staged);
  column.group = group;
  column.sum = false;  // cylinders of three and of fifty kilograms make no sum
  return column;
}

std::vector<BriefColumn> itemColumns(const QString& size) {
  return {textColumn("품명", {}, "Str01", 20), textColumn(size, {}, "Str02", 8)};
}

std::vector<BriefColumn> gasColumns() {
  std::vector<BriefColumn> columns = itemColumns("용량");
  int place = 2;
  const auto add = [&](const QString& group, const QStringList& headers) {
    for (const QString& header : headers)
      columns.push_back(stockColumn(header, group, "Str" + QString::number(++place).rightJustified(2, u'0')));
  };
  add("가스 (실병)", {"이월", "구매", "판매", "재고"});
  add("용기", {"이월", "구매", "판매", "대여", "회수", "재고"});
  return columns;
}

std::vector<BriefColumn> materialColumns() {
  std::vector<BriefColumn> columns = itemColumns("규격");
  for (const auto& [header, staged] : {std::pair("이월", "Str03"), std::pair("구매", "Str04"),
                                       std::pair("판매", "Str05"), std::pair("재고", "Str06")})
    columns.push_back(stockColumn(header, {}, staged));
  return columns;
}

/** The walk's rows. */
void walked(Session& session, StockWalkOf what, const BriefAsk& ask, const BriefTeller& tell,
            BriefRows& rows) {
  const auto items = walkStock(session, what, ask.from(briefPeriod), ask.to(briefPeriod), tell);
  rows.read = items.has_value();
  if (!items) return;
  for (const StockInOut& item : *items) {
    BriefCells cells = {item.name, item.size};
    std::vector<qint64> figures = {item.opening, item.bought, item.sold, item.closing};
    if (what == StockWalkOf::Gas)
      for (const qint64 cylinders :
           {item.canOpening, item.canBought, item.canSold, item.canLent, item.canReturned, item.canClosing})
        figures.push_back(cylinders);
    for (const qint64 figure : figures) cells.push_back(QString::number(figure));
    rows.rows.push_back(std::move(cells));
  }
}

Brief stockBrief(StockWalkOf what) {
  const bool gas = what == StockWalkOf::Gas;
  const QString of = gas ? "가스/용기의 " : "시설/자재의 ";
  return {.form = gas ? "frmHoldBrief" : "frmUtilHoldBrief",
          .caption = gas ? "가스/용기 재고수불 현황" : "시설/자재 재고수불 현황",
          .questions = {askPeriod()},
          .pages = {{.key = "stock",
                     .grid = gas ? "SpHold" : "SpUtilHold",
                     .columns = gas ? gasColumns() : materialColumns(),
                     .complete = [what](Session& session, const BriefAsk& ask, const BriefTeller& tell,
                                        BriefRows& rows) { walked(session, what, ask, tell, rows); },
                     .working =
                         [of](const BriefAsk& ask) {
                           return of + ask.from(briefPeriod) + " 일부터 " + ask.to(briefPeriod) +
                                  " 일까지의 재고 수불현황을 계산중입니다. 잠시 기다려 주십시오...";
                         },
                     .emptyText =
                         [gas](const BriefAsk&) {
                           return QString(gas ? "등록된 가스가 없습니다!" : "등록된 자재가 없습니다!");
                         },
                     .report = gas ? "재고수불현황.rpt" : "자재재고수불현황.rpt",
                     .formulas = [](const BriefAsk& ask,
                                    const BriefRows&) { return QStringList{periodFormula(ask)}; }}}};
}

}  // namespace

Brief holdBrief() {
  return stockBrief(StockWalkOf::Gas);
}

Brief utilHoldBrief() {
  return stockBrief(StockWalkOf::Materials);
}
