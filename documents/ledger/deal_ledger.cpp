#include "documents/ledger/deal_ledger.h"

#include "documents/ledger/softly.h"
#include "documents/vat_split.h"
#include "store/data_access.h"

using namespace Qt::StringLiterals;

namespace {

clsTradeBook bookOf(const jet::Database& year, const LedgerLine& line) {
  clsTradeBook book(year, LedgerSide::Sale);
  book.CCode = ledgerCode(line.client);
  book.DealDate = line.date;
  return book;
}

std::optional<LedgerAmounts> amountsOf(const jet::Database& year, const LedgerLine& line) {
  clsTrade sale(year, LedgerSide::Sale);
  sale.Code = line.code;
  const auto row = sale.ReadLine();
  if (!row || row->atEnd()) return {};
  return LedgerAmounts::of(*row);
}

}  // namespace

QString ledgerCode(const QString& client) {
  return u"%1"_s.arg(client.toLongLong(), 6, 10, QChar('0'));
}

std::optional<qint64> changeLedgerQuantity(const jet::Database& year, const LedgerLine& line, qint64 quantity,
                                           qint64 price) {
  std::optional<qint64> total;
  const QString where = " WHERE Sale.Code = '" + plainText(line.code) + "'";
  year.Together([&] {
    softly([&] {
      const jet::Recordset choice = year.OpenRecordset(
          "SELECT Sale.VatKum, Sale.DC, Trader.VAT, Product.PTax FROM (Sale LEFT JOIN Trader ON Sale.CCode "
          "= Trader.Code) LEFT JOIN Product ON Sale.PCode = Product.Code" +
          where);
      const auto before = amountsOf(year, line);
      if (choice.atEnd() || !before) return;
      // An item of its own that is free of tax stays so, whatever the trader's choice.
      const bool freeItem = !choice["PTax"].isNull() && vatOf(choice["PTax"].toLong()) == Vat::None;
      const qint64 discount = choice["DC"].toLong();
      const VatSplit split =
          splitAmount(quantity * price - discount, freeItem ? Vat::None : vatOf(choice["VAT"].toLong()));
      year.Execute("UPDATE Sale SET Quantity = " + QString::number(quantity) +
                   ", TradeKum = " + QString::number(split.supply) +
                   ", VatKum = " + QString::number(split.tax) + ", SumKum = " + QString::number(split.total) +
                   " WHERE Code = '" + plainText(line.code) + "'");
      const LedgerAmounts now{split.supply, discount, split.tax, split.total};
      if (bookOf(year, line).Adjust(now - *before)) total = split.total;
    });
  });
  return total;
}

bool deleteLedgerLine(const jet::Database& year, const LedgerLine& line) {
  bool gone = false;
  year.Together([&] {
    const auto amounts = amountsOf(year, line);
    if (!amounts || !bookOf(year, line).Adjust(LedgerAmounts{} - *amounts)) return;
    clsTrade sale(year, LedgerSide::Sale);
    sale.Code = line.code;
    gone = sale.Delete();
  });
  return gone;
}
