#include "documents/invoices/tax_bulk.h"

using namespace Qt::StringLiterals;

namespace {

QString digitsOf(const QString& serial) {
  return QString(serial).remove('-').remove(' ');
}

QString amountOf(double value) {
  return value == 0 ? QString() : QString::number(value, 'g', 15);
}

/** The fourth item stands for all behind it too. */
std::vector<TaxLine> itemsOf(const TaxInvoice& invoice) {
  std::vector<TaxLine> items = invoice.lines;
  if (items.size() <= size_t(bulkItems)) return items;
  TaxLine& last = items[bulkItems - 1];
  const size_t more = items.size() - bulkItems;
  for (size_t place = bulkItems; place < items.size(); ++place) {
    last.TradeKum += items[place].TradeKum;
    last.VatKum += items[place].VatKum;
  }
  last.PName += u" 외 %1건"_s.arg(more);
  last.PNorm.clear();
  last.Quantity = last.UnitCost = 0;
  items.resize(bulkItems);
  return items;
}

std::vector<SpreadColumn> bulkColumns() {
  std::vector<SpreadColumn> columns;
  const auto text = [&](const QString& header, double width = 14) {
    columns.push_back({.header = header, .width = width});
  };
  const auto amount = [&](const QString& header) {
    columns.push_back({.header = header, .width = 13, .kind = CellKind::Money});
  };
  text("전자(세금)계산서 종류\n(01:일반, 02:영세율)");
  text("작성일자");
  for (const QString side : {"공급자", "공급받는자"}) {
    text(side + " 등록번호");
    text(side + " 종사업장번호");
    text(side + " 상호", 24);
    text(side + " 성명");
    text(side + " 사업장주소", 36);
    text(side + " 업태");
    text(side + " 종목");
    text(side + " 이메일" + (side == "공급자" ? "" : "1"));
    if (side != "공급자") text(side + " 이메일2");
  }
  amount("공급가액");
  amount("세액");
  text("비고");
  for (int item = 1; item <= bulkItems; ++item) {
    const QString number = QString::number(item);
    text("일자" + number + "\n(2자리, 작성년월 제외)", 8);
    text("품목" + number, 20);
    text("규격" + number);
    amount("수량" + number);
    amount("단가" + number);
    amount("공급가액" + number);
    amount("세액" + number);
    text("품목비고" + number);
  }
  for (const char* header : {"현금", "수표", "어음", "외상미수금"}) amount(header);
  text("영수(01),\n청구(02)", 8);
  return columns;
}

}  // namespace

void fillBulkSheet(SpreadModel& sheet, const DocumentParty& supplier, const std::vector<TaxInvoice>& invoices,
                   bool receipt) {
  sheet.setColumns(bulkColumns());
  std::vector<std::vector<QString>> rows;
  for (const TaxInvoice& invoice : invoices) {
    std::vector<QString> row{"01", digitsOf(invoice.issueDate)};
    const auto party = [&](const DocumentParty& who) {
      row.insert(row.end(), {digitsOf(who.serial), QString(), who.company, who.person, who.address,
                             who.status, who.item, QString()});
    };
    party(supplier);
    party(invoice.buyer);
    row.push_back({});
    row.insert(row.end(),
               {QString::number(invoice.sums.supply), QString::number(invoice.sums.tax), QString()});
    const std::vector<TaxLine> items = itemsOf(invoice);
    for (size_t item = 0; item < size_t(bulkItems); ++item) {
      if (item >= items.size()) {
        row.insert(row.end(), 8, QString());
        continue;
      }
      const TaxLine& line = items[item];
      const QString day = line.DealDate.mid(8, 2);
      const bool several = line.Item > 1;
      row.insert(row.end(), {day.isEmpty() ? invoice.issueDate.mid(8, 2) : day, line.PName, line.PNorm,
                             several ? QString() : amountOf(line.Quantity),
                             several ? QString() : amountOf(line.UnitCost), QString::number(line.TradeKum),
                             QString::number(line.VatKum), QString()});
    }
    row.insert(row.end(), 4, QString());
    row.push_back(receipt ? "01" : "02");
    rows.push_back(std::move(row));
  }
  sheet.setRows(std::move(rows));
}
