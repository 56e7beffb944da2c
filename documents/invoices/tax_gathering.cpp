#include "documents/invoices/tax_gathering.h"

#include "documents/vat_split.h"
#include "papers/month_range.h"
#include "store/data_access.h"
#include "store/year_file.h"

using namespace Qt::StringLiterals;

bool TaxGatherer::gather(const QDate& from, const QDate& to, TaxGathering kind) {
  invoices_.Empty();
  parts_.clear();
  code_.clear();
  bool all = true;
  session_.wsMain.KeepingFiles([&] {
    invoices_.tax().Together([&] {
      for (const MonthPart& month : monthsOf(from, to)) {
        parts_.push_back({month.from, month.to});
        all = all && gatherPart(parts_.back(), kind);
      }
    });
  });
  if (!all) session_.prompts.MsgWarn("세금계산서 데이터 집계 중 오류가 발생했습니다.");
  return all;
}

bool TaxGatherer::gatherPart(const TaxPart& part, TaxGathering kind) {
  const jet::Database year = openYear(session_, part.from.left(4));
  if (!year.isOpen()) return true;
  qint64 line = invoices_.NextLineCode().toLongLong();
  const QString today = session_.pc.clock.dateText();
  for (auto row = clsTrade(year, LedgerSide::Sale).TaxQuery(part.from, part.to, kind); !row.atEnd();
       row.MoveNext()) {
    const qint64 amount = row["SumKum"].toLong() - row["SumDC"].toLong();
    if (amount == 0) continue;
    const VatSplit split = splitAmount(amount, Vat::Included);
    const QString date = row["SDealDate"].toText(), prefix = tax_serial::prefixOf(date);
    code_ = code_.startsWith(prefix) ? tax_serial::inc(code_) : invoices_.NextSerial(prefix);
    invoices_.line = {.TaxCode = code_,
                      .CCode = row["SCCode"].toText(),
                      .CName = row["CName"].toText(),
                      .PName = row["SPName"].toText(),
                      .PNorm = row["SPNorm"].toText(),
                      .Quantity = row["SumQuantity"].toDouble(),
                      .UnitCost = row["FUnitCost"].toDouble(),
                      .TradeKum = split.supply,
                      .VatKum = split.tax,
                      .SumKum = split.total,
                      .DealDate = date,
                      .IssueDate = today,
                      .Item = row["CSPCode"].toLong(),
                      .Code = u"%1"_s.arg(line++, 6, 10, QChar('0'))};
    if (!invoices_.Insert()) return false;
  }
  return true;
}

TaxPart TaxGatherer::partOf(const QString& date) const {
  for (const TaxPart& part : parts_) {
    if (date.size() > 7 && date >= part.from && date <= part.to) return {date, date};
    if (date.size() == 7 && part.from.startsWith(date)) return part;
  }
  return {};
}
