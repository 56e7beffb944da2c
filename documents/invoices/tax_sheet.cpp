#include "documents/invoices/tax_sheet.h"

#include <QHash>

#include "store/data_access.h"

using namespace Qt::StringLiterals;

QString sectionOf(std::optional<TaxGathering> gathering) {
  return gathering ? QString::number(int(*gathering)) : u"3"_s;
}

TaxSheet::TaxSheet() {
  const auto locked = [](const char* header, double width, CellKind kind = CellKind::Text,
                         CellAlign align = CellAlign::Left) {
    return SpreadColumn{.header = header, .width = width, .kind = kind, .align = align, .locked = true};
  };
  grid_.setColumns({
      {.header = "발행일자", .width = 12, .align = CellAlign::Center, .maxLength = 10},
      locked("거래일자", 12, CellKind::Text, CellAlign::Center),
      locked("매 출 처", 26),
      locked("공급가액", 14, CellKind::Money, CellAlign::Right),
      locked("부가세", 13, CellKind::Money, CellAlign::Right),
      locked("합 계 액", 14, CellKind::Money, CellAlign::Right),
      locked("품   목", 24),
      {.header = "발행", .width = 6, .kind = CellKind::CheckBox, .align = CellAlign::Center},
      locked("계산서코드", 12, CellKind::Text, CellAlign::Center),
      {.header = "거래처코드", .locked = true, .hidden = true},
  });
}

void TaxSheet::show(std::vector<std::vector<QString>> rows) {
  if (rows.empty()) rows.emplace_back();
  grid_.setRows(std::move(rows));
}

void TaxSheet::listPending(const clsPrintTax& invoices, Vat vat, std::optional<TaxGathering> gathering) {
  std::vector<std::vector<QString>> rows;
  sums_ = {};
  const bool months = gathering && *gathering != TaxGathering::Daily;
  for (auto found = invoices.List(); !found.atEnd(); found.MoveNext()) {
    const qint64 amount = found["SSum"].toLong();
    if (amount == 0) continue;
    // A typed invoice was split when it was typed, line by line.
    const bool asTyped = !gathering && vat == Vat::Included;
    const VatSplit split = asTyped ? VatSplit{found["STrade"].toLong(), found["SVat"].toLong(), amount}
                                   : splitAmount(amount, vat);
    const QString date = found["DDate"].toText(), item = found["FPName"].toText();
    const bool more = found["SItem"].toLong() > 1;
    sums_ = {sums_.supply + split.supply, sums_.tax + split.tax, sums_.total + split.total};
    rows.push_back({found["IssueDate"].toText(), months ? date.left(7) : date, found["CName"].toText(),
                    QString::number(split.supply), QString::number(split.tax), QString::number(split.total),
                    more ? item + " 외" : item, QString(), found["TaxCode"].toText(),
                    found["CCode"].toText()});
  }
  show(std::move(rows));
}

void TaxSheet::listIssued(const jet::Database& tax, const jet::Database& basic, const QString& from,
                          const QString& to, std::optional<TaxGathering> gathering) {
  QHash<QString, QString> names;  // of customers; one deleted meanwhile keeps the register's
  for (auto client = basic.OpenRecordset("Select Code, Name From Client"); !client.atEnd(); client.MoveNext())
    names[client[0].toText()] = client[1].toText();
  std::vector<std::vector<QString>> rows;
  sums_ = {};
  // What was gathered over months has no day, so a range of days would never find it.
  const bool months = gathering && *gathering != TaxGathering::Daily;
  const QString range =
      months ? "DealYY BETWEEN '" + plainText(from.left(7)) + "' AND '" + plainText(to.left(7)) + "'"
             : "DealDate BETWEEN '" + plainText(from) + "' AND '" + plainText(to) + "'";
  for (auto found = tax.OpenRecordset("SELECT * FROM TaxAcount WHERE " + range + " AND Section = '" +
                                      plainText(sectionOf(gathering)) + "' ORDER BY Serial;");
       !found.atEnd(); found.MoveNext()) {
    const qint64 supply = found["TradeKum"].toLong(), vat = found["VatKum"].toLong();
    const QString code = found["CCode"].toText();
    sums_ = {sums_.supply + supply, sums_.tax + vat, sums_.total + supply + vat};
    rows.push_back({found["IssueDate"].toText(), found["DealDate"].toText(),
                    names.value(code, found["CName"].toText()), QString::number(supply), QString::number(vat),
                    QString::number(supply + vat), found["List"].toText(), QString(),
                    found["Serial"].toText(), code});
  }
  show(std::move(rows));
}
