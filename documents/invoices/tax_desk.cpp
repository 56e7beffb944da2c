#include "documents/invoices/tax_desk.h"

#include "documents/document_date.h"
#include "documents/invoices/tax_bulk.h"

namespace {

constexpr auto kind = "세금계산서";

}  // namespace

TaxDesk::TaxDesk(Session& session)
    : session_(session),
      invoices_(session.dbTax, taxStation(session.pc.clock.today())),
      gatherer_(session, invoices_),
      issuer_(session, invoices_, gatherer_),
      ticks_(sheet_.grid(), TaxCol::Tick, TaxCol::TaxCode) {}

bool TaxDesk::gather(const TaxAsk& ask) {
  if (ask.from > ask.to) {
    session_.prompts.MsgWarn("검색일자 지정이 잘못되었습니다. 다시 입력하세요.");
    return false;
  }
  if (ask.tab == TaxTab::Pending && ask.gathering) {
    gathered_ = ask;
    gatherer_.gather(ask.from, ask.to, *ask.gathering);
  }
  list(ask);
  return true;
}

bool TaxDesk::isGatheredFor(const TaxAsk& ask) const {
  return gathered_.from == ask.from && gathered_.to == ask.to && gathered_.gathering == ask.gathering;
}

std::optional<TaxGathering> TaxDesk::preparedAs(const TaxAsk& ask) const {
  return ask.gathering ? gathered_.gathering : std::nullopt;
}

void TaxDesk::list(const TaxAsk& ask) {
  if (ask.tab == TaxTab::Pending)
    sheet_.listPending(invoices_, ask.vat, preparedAs(ask));
  else
    sheet_.listIssued(session_.dbTax, session_.dbBasic, ask.from.toString(Qt::ISODate),
                      ask.to.toString(Qt::ISODate), ask.gathering);
}

QString TaxDesk::nextSerial(const QDate& day) const {
  return invoices_.NextSerial(tax_serial::prefixOf(day.toString(Qt::ISODate)));
}

bool TaxDesk::setIssueDate(int row, const QString& typed) {
  const QString date = documentDate(session_, typed);
  if (date.isEmpty()) return false;
  if (!invoices_.SetIssueDate(grid().text(row, TaxCol::TaxCode), date)) {
    session_.prompts.MsgWarn("세금계산서의 발행일자를 변경하는 중 오류가 발생했습니다.");
    return false;
  }
  grid().setText(row, TaxCol::IssueDate, date);
  return true;
}

bool TaxDesk::deleteIssued(int row) {
  const QString serial = grid().text(row, TaxCol::TaxCode);
  if (serial.isEmpty() ||
      !session_.prompts.MsgAsk("지정하신 세금계산서 내역을 삭제하시겠습니까?", kind, false) ||
      !issuer_.deleteIssued(serial))
    return false;
  return true;
}

void TaxDesk::fillBulk(SpreadModel& sheet, bool receipt) {
  std::vector<int> rows;
  for (int row = 1; row <= grid().MaxRows(); ++row)
    if (!grid().text(row, TaxCol::TaxCode).isEmpty()) rows.push_back(row);
  fillBulkSheet(sheet, readSupplier(session_).value_or(DocumentParty{}), issuer_.reprint(sheet_, rows),
                receipt);
}

bool TaxDesk::hasPapers() {
  return hasDocuments(session_, ticks_, kind);
}

DocumentRun TaxDesk::papers(const TaxAsk& ask, const QString& serial, const TaxPaperChoice& choice) {
  const std::vector<int> rows = ticks_.ticked();
  return runOf(ask.tab == TaxTab::Issued ? issuer_.reprint(sheet_, rows)
                                         : issuer_.preview(sheet_, rows, {preparedAs(ask), ask.vat, serial}),
               choice);
}

DocumentRun TaxDesk::issue(const TaxAsk& ask, QString& serial, const TaxPaperChoice& choice) {
  if (ask.tab == TaxTab::Issued) return papers(ask, serial, choice);
  TaxIssue done = issuer_.issue(sheet_, ticks_.ticked(), {preparedAs(ask), ask.vat, serial});
  serial = done.nextSerial;
  issuer_.tell(done);
  return runOf(std::move(done.issued), choice);
}

DocumentRun TaxDesk::runOf(std::vector<TaxInvoice> invoices, const TaxPaperChoice& choice) {
  TaxPaper paper(choice, readSupplier(session_).value_or(DocumentParty{}),
                 documentShift(session_, kind, choice.layout));
  return documentRun(kind, std::move(paper), std::move(invoices), [](const TaxInvoice& invoice) {
    return documentName(invoice.issueDate, invoice.clientName, kind + (' ' + invoice.serial));
  });
}
