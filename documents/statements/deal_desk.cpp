#include "documents/statements/deal_desk.h"

#include "documents/ledger/deal_ledger.h"
#include "documents/ledger/softly.h"
#include "documents/statements/deal_issue.h"
#include "store/data_access.h"
#include "store/year_file.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto kind = "거래명세표";

}  // namespace

DealDesk::DealDesk(Session& session)
    : session_(session), search_(session, history_), ticks_(search_.grid(), DealCol::Tick, DealCol::Code) {
  OpenDB(session.wsMain, history_, session.DbPath + "dbDetail.mdb");
}

bool DealDesk::search(const DealAsk& ask) {
  asked_ = ask;
  return search_.search(ask);
}

QString DealDesk::openingKey(const QString& year) const {
  const QString newest = search_.newestSaleDate(year);
  return newest.isEmpty() ? QString() : newest.left(7) + "-00";
}

bool DealDesk::changeQuantity(int row, const QString& text) {
  SpreadModel& list = grid();
  const QString date = list.text(row, DealCol::Day);
  const jet::Database year = openYear(session_, date.left(4));
  std::optional<qint64> total;
  if (year.isOpen())
    total =
        changeLedgerQuantity(year, {list.text(row, DealCol::Code), list.text(row, DealCol::ClientCode), date},
                             text.toLongLong(), list.text(row, DealCol::Price).toLongLong());
  if (!total) {
    session_.prompts.MsgWarn("거래내역을 수정하는 중 오류가 발생했습니다.");
    return false;
  }
  list.setText(row, DealCol::Quantity, text);
  list.setText(row, DealCol::Amount, QString::number(*total));
  return true;
}

bool DealDesk::deleteTicked() {
  const std::vector<int> rows = ticks_.ticked();
  if (rows.empty()) {
    session_.prompts.MsgInfo("삭제할 내역을 선택하세요.");
    return false;
  }
  if (!session_.prompts.MsgAsk(u"선택하신 %1개의 내역을 삭제하시겠습니까?"_s.arg(rows.size()), "내역 삭제",
                               false))
    return false;
  for (const int row : rows) {
    if (deleteRow(row)) continue;
    session_.prompts.MsgWarn("거래명세표 내역을 삭제하는 중 오류가 발생했습니다.");
    break;
  }
  return true;
}

bool DealDesk::deleteRow(int row) {
  const QString date = grid().text(row, DealCol::Day), line = grid().text(row, DealCol::Code),
                client = grid().text(row, DealCol::ClientCode);
  const jet::Database year = openYear(session_, date.left(4));
  if (!year.isOpen() || !deleteLedgerLine(year, {line, client, date})) return false;
  if (asked_.tab != DealTab::Issued || !history_.isOpen()) return true;
  return softly([&] {
    history_.Execute("DELETE * FROM DealList WHERE DealDate = '" + plainText(date) + "' AND SaleSeq = '" +
                     plainText(line) + "' AND CCode = '" + plainText(client) + "'");
  });
}

bool DealDesk::hasPapers() {
  return hasDocuments(session_, ticks_, kind);
}

std::vector<DealStatement> DealDesk::statementsOfRows(const std::vector<int>& rows, const DealPrint& print) {
  std::vector<DealStatement> statements = statementsOf(grid(), rows);
  for (DealStatement& statement : statements) {
    const DocumentBuyer buyer = readBuyer(session_, statement.clientCode, statement.clientName);
    statement.buyer = buyer.party;
    if (asked_.tab == DealTab::Pending) statement.before = buyer.owed;
    if (print.layout != DocumentLayout::Dot) continue;
    const jet::Database year = openYear(session_, statement.firstDate.left(4));
    if (!year.isOpen()) continue;
    const auto balance = clsTradeBook(year, LedgerSide::Sale)
                             .PeriodBalance(ledgerCode(statement.clientCode), statement.firstDate);
    if (balance) statement.before = *balance;
  }
  return statements;
}

DocumentRun DealDesk::papers(const DealPrint& print) {
  return runOf(statementsOfRows(ticks_.ticked(), print), print);
}

DocumentRun DealDesk::issue(const DealPrint& print) {
  const std::vector<int> rows = ticks_.ticked();
  if (asked_.tab == DealTab::Issued) return papers(print);
  const std::vector<int> got = claimDeals(
      session_, grid(), rows, print.layout == DocumentLayout::Dot ? DealMark::LedgerCode : DealMark::SaleId);
  std::vector<DealStatement> statements = statementsOfRows(got, print);
  writeDealHistory(session_, history_, statements);
  if (got.size() < rows.size())
    session_.prompts.MsgWarn(
        u"다른 PC에서 먼저 발행하였거나 삭제한 %1개의 거래내역은 발행하지 않았습니다."_s.arg(rows.size() -
                                                                                             got.size()));
  return runOf(std::move(statements), print);
}

DocumentRun DealDesk::runOf(std::vector<DealStatement> statements, const DealPrint& print) {
  const QDate today = session_.pc.clock.today();
  DealPaper paper({print.layout, print.vat, print.drawnForm, asked_.from != asked_.to, today},
                  readSupplier(session_).value_or(DocumentParty{}),
                  documentShift(session_, kind, print.layout));
  return documentRun(kind, std::move(paper), std::move(statements), [today](const DealStatement& statement) {
    return documentName(today.toString(Qt::ISODate), statement.clientName, kind);
  });
}
