// The ledgers: reports over the live tables by a selection formula.
#include "store/session.h"
#include "trade/briefs/brief_parts.h"
#include "trade/briefs/trade_briefs.h"

namespace {

/** A text of a selection formula, its own apostrophe doubled. */
QString formulaText(QString text) {
  const QChar apostrophe{0x27};
  return apostrophe + text.replace(apostrophe, QString(2, apostrophe)) + apostrophe;
}

QString days(const QString& field, const BriefAsk& ask) {
  return field + " >= " + formulaText(ask.from(briefPeriod)) + " And " + field +
         " <= " + formulaText(ask.to(briefPeriod));
}

QStringList dayFormulas(const BriefAsk& ask, const BriefRows&) {
  return {"SDay=" + formulaText(ask.from(briefPeriod)), "EDay=" + formulaText(ask.to(briefPeriod))};
}

Brief ledger(const QString& form, const QString& caption, const QString& report, BriefQuestion narrowed,
             std::function<QString(const Session&, const BriefAsk&)> selection) {
  return {.form = form,
          .caption = caption,
          .questions = {askPeriod(), std::move(narrowed)},
          .pages = {{.key = "ledger",
                     .period = briefPeriod,
                     .report = report,
                     .formulas = dayFormulas,
                     .selection = std::move(selection)}}};
}

}  // namespace

Brief saleLedgerBrief() {
  return ledger("frmPrtSale", "판매대장 출력", "salegas.rpt",
                {.kind = AskKind::Options,
                 .name = "OptHouse",
                 .help = "출력할 고객의 구분을 선택합니다",
                 .entries =
                     [](const Session&, int) {
                       return QStringList{"전체", "일반/식당", "아파트", "다가구"};
                     }},
                [](const Session& session, const BriefAsk& ask) {
                  QString formula = days("{Sale.SaleDate}", ask);
                  if (const int house = ask.place("OptHouse"); house > 0)
                    formula += " And {Client.HouseStyle} = " + QString::number(house - 1);
                  return formula + (session.SaleLedgerGas
                                        ? " And {Sale.SaleGubun} <> 7 and {Sale.SaleGubun} <> 8 "
                                        : " And ({Sale.SaleGubun} = 7 or {Sale.SaleGubun} = 8) ");
                });
}

Brief buyLedgerBrief() {
  return ledger("frmPrtBuy", "구매대장 출력", "buygas.rpt",
                {.kind = AskKind::Station,
                 .name = "TxtCompany",
                 .label = "구매처",
                 .help = "F12로 구매처를 선택하세요.  지움 : DELETE"},
                [](const Session&, const BriefAsk& ask) {
                  const QString company = ask.text("TxtCompany");
                  return days("{Buy.BuyDate}", ask) +
                         (company.isEmpty() ? QString() : " And {Buy.BuyCompany} = " + formulaText(company));
                });
}
