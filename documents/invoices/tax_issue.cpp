#include "documents/invoices/tax_issue.h"

#include <map>

#include "documents/ledger/softly.h"
#include "store/data_access.h"
#include "store/year_file.h"

using namespace Qt::StringLiterals;

namespace {

/** A typed invoice's lines by the form's choice; the last one takes what rounding leaves of the invoice's sums. */
void splitLines(TaxInvoice& invoice, Vat vat) {
  VatSplit rest = invoice.sums;
  for (TaxLine& line : invoice.lines) {
    const VatSplit split = splitAmount(line.SumKum, vat);
    line.TradeKum = split.supply;
    line.VatKum = split.tax;
    rest.supply -= split.supply;
    rest.tax -= split.tax;
  }
  invoice.lines.back().TradeKum += rest.supply;
  invoice.lines.back().VatKum += rest.tax;
}

}  // namespace

TaxInvoice TaxIssuer::pendingOf(const TaxSheet& sheet, int row, const TaxIssueAsk& ask) const {
  const SpreadModel& grid = sheet.grid();
  const auto won = [&](int col) { return grid.text(row, col).toLongLong(); };
  TaxInvoice invoice{.clientCode = grid.text(row, TaxCol::ClientCode),
                     .clientName = grid.text(row, TaxCol::Client),
                     .issueDate = grid.text(row, TaxCol::IssueDate),
                     .lines = invoices_.Lines(grid.text(row, TaxCol::TaxCode)),
                     .sums = {won(TaxCol::Supply), won(TaxCol::Tax), won(TaxCol::Total)},
                     .list = grid.text(row, TaxCol::Item)};
  if (invoice.lines.empty()) return invoice;
  invoice.dealDate = invoice.lines.front().DealDate;
  if (!ask.gathering) {
    if (ask.vat != Vat::Included) splitLines(invoice, ask.vat);
  } else {
    // A gathered invoice has one line, which shows what the form's choice makes of its amount.
    TaxLine& line = invoice.lines.front();
    line.TradeKum = invoice.sums.supply;
    line.VatKum = invoice.sums.tax;
    if (line.Item > 1) {
      line.PName = invoice.list;
      line.PNorm.clear();
    }
  }
  return invoice;
}

void TaxIssuer::readBuyer(TaxInvoice& invoice) const {
  invoice.buyer = ::readBuyer(session_, invoice.clientCode, invoice.clientName).party;
}

QString TaxIssuer::freeSerial(const QString& wanted) const {
  const jet::Recordset taken = invoices_.tax().OpenRecordset("SELECT Serial FROM TaxAcount WHERE Serial = '" +
                                                             plainText(wanted) + "'");
  return taken.atEnd() ? wanted : invoices_.NextSerial(wanted.left(4));
}

bool TaxIssuer::fileInvoice(const TaxInvoice& invoice, const QString& section) {
  const bool filed = softly([&] {
    invoices_.tax().Execute(
        "INSERT INTO TaxAcount(Serial, CCode, DealDate, DealYY, IssueDate, TradeKum, VatKum, Blank, List, "
        "Section, CName) VALUES('" +
        plainText(invoice.serial) + "', '" + plainText(invoice.clientCode) + "', '" +
        plainText(invoice.dealDate) + "', '" + plainText(invoice.dealDate.left(7)) + "', '" +
        plainText(invoice.issueDate) + "', " + QString::number(invoice.sums.supply) + ", " +
        QString::number(invoice.sums.tax) + ", " +
        QString::number(blankCells(invoice.sums.supply, supplyCells)) + ", '" +
        copiedText(invoice.list.left(100)) + "', '" + plainText(section) + "', '" +
        copiedText(invoice.clientName.left(60)) + "')");
    int number = 0;
    for (const TaxLine& line : invoice.lines)
      invoices_.tax().Execute(
          "INSERT INTO TaxItem(Serial, Line, PName, PNorm, Quantity, UnitCost, TradeKum, VatKum, Item, "
          "DealDate) VALUES('" +
          plainText(invoice.serial) + "', " + QString::number(++number) + ", '" +
          copiedText(line.PName.left(100)) + "', '" + copiedText(line.PNorm.left(30)) + "', " +
          QString::number(line.Quantity, 'g', 15) + ", " + QString::number(line.UnitCost, 'g', 15) + ", " +
          QString::number(line.TradeKum) + ", " + QString::number(line.VatKum) + ", " +
          QString::number(line.Item) + ", '" + plainText(line.DealDate) + "')");
  });
  if (!filed) removeInvoice(invoice.serial);  // a refused statement undoes nothing that ran before it
  return filed;
}

/** Out of the register with its items; False where that was refused. */
bool TaxIssuer::removeInvoice(const QString& serial) {
  const QString where = " WHERE Serial = '" + plainText(serial) + "'";
  bool all = true;
  invoices_.tax().Together([&] {
    for (const char* table : {"TaxItem", "TaxAcount"})
      all &= softly([&] { invoices_.tax().Execute(u"DELETE * FROM "_s + table + where); });
  });
  return all;
}

/** The lines must still be those that were added up: a delivery entered since, or another PC's invoice, would otherwise
 *  leave the pool without standing on a paper, or stand on two. */
TaxIssuer::Claim TaxIssuer::claim(const jet::Database& year, const TaxInvoice& invoice,
                                  const QString& section) {
  const TaxPart part = gatherer_.partOf(invoice.dealDate);
  const TaxLine& line = invoice.lines.front();
  const QString whose = invoice.clientCode.isEmpty() ? u"Clientcode Is Null"_s
                                                     : "Clientcode = " + plainNumber(invoice.clientCode);
  const QString own = whose + " and  saleDate BETWEEN '" + plainText(part.from) + "' AND '" +
                      plainText(part.to) + "'",
                free = own + " And saleunit <> 0 And SaleList = 0";
  const jet::Recordset now = year.OpenRecordset(
      "SELECT Sum(saleunit * salenum) AS SSum, Sum(DC) AS SumDC, Count(salename) AS SItem FROM Sale WHERE " +
      free);
  if (now["SItem"].toLong() != line.Item || now["SSum"].toLong() - now["SumDC"].toLong() != line.SumKum)
    return Claim::Moved;
  if (!fileInvoice(invoice, section)) return Claim::Refused;
  const bool named = line.Item == 1 && !line.PName.contains(QChar(0x27));
  year.Execute("update sale set SaleList = 1 where " + free +
               (named ? " AND  salename = '" + plainText(line.PName) + "'" : QString()));
  return Claim::Got;
}

TaxIssue TaxIssuer::issue(const TaxSheet& sheet, const std::vector<int>& rows, const TaxIssueAsk& ask) {
  TaxIssue done{.nextSerial = ask.serial};
  const QString section = sectionOf(ask.gathering);
  std::vector<jet::Database> files{session_.dbBasic, invoices_.tax()};
  std::map<QString, jet::Database> years;
  for (const int row : rows) {
    const QString year = sheet.grid().text(row, TaxCol::DealDate).left(4);
    if (!ask.gathering || years.contains(year)) continue;
    years[year] = openYear(session_, year);
    if (years[year].isOpen()) files.push_back(years[year]);
  }
  session_.wsMain.Together(files, [&] {
    for (const int row : rows) {
      TaxInvoice invoice = pendingOf(sheet, row, ask);
      if (invoice.lines.empty()) {
        ++done.moved;
        continue;
      }
      if (!fitsCells(invoice.sums)) {
        ++done.unfit;
        continue;
      }
      const QString prefix = tax_serial::prefixOf(invoice.dealDate);
      invoice.serial =
          freeSerial(done.nextSerial.startsWith(prefix) ? done.nextSerial : invoices_.NextSerial(prefix));
      Claim got = Claim::Moved;
      if (!ask.gathering)
        got = fileInvoice(invoice, section) ? Claim::Got : Claim::Refused;
      else if (const auto& year = years.at(invoice.dealDate.left(4)); year.isOpen())
        got = claim(year, invoice, section);
      if (got == Claim::Moved) {
        ++done.moved;
        continue;
      }
      invoices_.DeleteInvoice(sheet.grid().text(row, TaxCol::TaxCode));
      if (got == Claim::Refused) {
        ++done.failed;
        continue;
      }
      if (invoice.serial.startsWith(done.nextSerial.left(4)))
        done.nextSerial = tax_serial::inc(invoice.serial);
      done.issued.push_back(std::move(invoice));
    }
  });
  for (TaxInvoice& invoice : done.issued) readBuyer(invoice);
  return done;
}

void TaxIssuer::tell(const TaxIssue& issue) {
  if (issue.failed > 0) session_.prompts.MsgWarn("세금계산서 내역을 저장하는 중 오류가 발생했습니다.");
  if (issue.unfit > 0)
    session_.prompts.MsgWarn(
        u"금액의 자릿수가 계산서의 칸보다 많은 %1건은 발행하지 않았습니다."_s.arg(issue.unfit));
  if (issue.moved > 0)
    session_.prompts.MsgWarn(
        u"집계한 뒤에 매출이 바뀌었거나 다른 PC에서 먼저 발행한 %1건은 "
        u"발행하지 않았습니다.\n다시 집계한 후 발행하세요."_s.arg(issue.moved));
}

std::vector<TaxInvoice> TaxIssuer::preview(const TaxSheet& sheet, const std::vector<int>& rows,
                                           const TaxIssueAsk& ask) {
  std::vector<TaxInvoice> shown;
  QString next = ask.serial;
  for (const int row : rows) {
    TaxInvoice invoice = pendingOf(sheet, row, ask);
    if (invoice.lines.empty()) continue;
    const QString prefix = tax_serial::prefixOf(invoice.dealDate);
    if (!next.startsWith(prefix)) next = invoices_.NextSerial(prefix);
    invoice.serial = next;
    next = tax_serial::inc(next);
    readBuyer(invoice);
    shown.push_back(std::move(invoice));
  }
  return shown;
}

std::vector<TaxInvoice> TaxIssuer::reprint(const TaxSheet& sheet, const std::vector<int>& rows) {
  std::vector<TaxInvoice> shown;
  const SpreadModel& grid = sheet.grid();
  for (const int row : rows) {
    const qint64 supply = grid.text(row, TaxCol::Supply).toLongLong(),
                 tax = grid.text(row, TaxCol::Tax).toLongLong();
    TaxInvoice invoice{.serial = grid.text(row, TaxCol::TaxCode),
                       .clientCode = grid.text(row, TaxCol::ClientCode),
                       .clientName = grid.text(row, TaxCol::Client),
                       .dealDate = grid.text(row, TaxCol::DealDate),
                       .issueDate = grid.text(row, TaxCol::IssueDate),
                       .sums = {supply, tax, supply + tax},
                       .list = grid.text(row, TaxCol::Item)};
    invoice.lines = invoices_.IssuedLines(invoice.serial);
    // One that was issued before its lines were kept has what the register calls them.
    if (invoice.lines.empty())
      invoice.lines.push_back({.PName = invoice.list,
                               .TradeKum = supply,
                               .VatKum = tax,
                               .SumKum = supply + tax,
                               .DealDate = invoice.dealDate});
    readBuyer(invoice);
    shown.push_back(std::move(invoice));
  }
  return shown;
}

bool TaxIssuer::deleteIssued(const QString& serial) {
  const bool gone = removeInvoice(serial);
  if (!gone) session_.prompts.MsgWarn("계산서 데이터를 삭제하는 중 오류가 발생했습니다.");
  return gone;
}
