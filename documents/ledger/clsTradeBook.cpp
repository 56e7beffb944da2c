#include "documents/ledger/clsTradeBook.h"

#include <QDate>

#include "documents/ledger/softly.h"
#include "store/data_access.h"

LedgerAmounts LedgerAmounts::of(const jet::Recordset& row) {
  return {row["TradeKum"].toLong(), row["DC"].toLong(), row["VatKum"].toLong(), row["SumKum"].toLong()};
}

LedgerAmounts LedgerAmounts::operator-(const LedgerAmounts& other) const {
  return {TradeKum - other.TradeKum, DC - other.DC, VatKum - other.VatKum, SumKum - other.SumKum};
}

std::optional<jet::Recordset> clsTradeBook::open(const QString& sql) const {
  std::optional<jet::Recordset> rows;
  softly([&] { rows = db_.OpenRecordset(sql); });
  return rows;
}

bool clsTradeBook::Add() const {
  return softly([&] {
    db_.Execute("INSERT INTO " + table() + "(CCode, CName, DealDate, TradeKum) VALUES ( '" +
                plainText(CCode) + "', '" + plainText(CName) + "', '" + plainText(DealDate) + "', " +
                QString::number(TradeKum) + ")");
  });
}

std::optional<jet::Recordset> clsTradeBook::Read(const QString& code) const {
  return open("SELECT * FROM " + table() + " WHERE CCode = '" + plainText(code) + "'");
}

bool clsTradeBook::Adjust(const LedgerAmounts& by) const {
  int moved = 0;
  const auto move = [](const QString& column, qint64 difference) {
    return column + " = " + column + " + (" + QString::number(difference) + ")";
  };
  return softly([&] {
           moved = db_.Execute("UPDATE " + table() + " SET " + move("TradeKum", by.TradeKum) + ", " +
                               move("DC", by.DC) + ", " + move("VatKum", by.VatKum) + ", " +
                               move("SumKum", by.SumKum) + " WHERE CCode = '" + plainText(CCode) +
                               "' AND DealDate = '" + plainText(DealDate) + "'");
         }) &&
         moved > 0;
}

bool clsTradeBook::Delete() const {
  const QString day = DealDate.isEmpty() ? QString() : " AND DealDate = '" + plainText(DealDate) + "'";
  return softly(
      [&] { db_.Execute("DELETE * FROM " + table() + " WHERE CCode = '" + plainText(CCode) + "'" + day); });
}

std::optional<qint64> clsTradeBook::PeriodBalance(const QString& code, const QString& date) const {
  const QString year = date.left(4), month = date.left(7);
  const auto opening = open("SELECT TradeKum FROM " + table() + " WHERE CCode = '" + plainText(code) +
                            "' AND DealDate LIKE '" + plainText(year) + "-*-00' ORDER BY DealDate;");
  if (!opening) return {};
  const qint64 broughtIn = opening->atEnd() ? 0 : (*opening)["TradeKum"].toLong();
  if (month.endsWith("-01")) return broughtIn;
  const QDate first = QDate::fromString(month + "-01", Qt::ISODate);
  if (!first.isValid()) return {};
  const auto dealt =
      open("SELECT Sum(SumKum) AS SSum, Sum(InOutKum) AS SInOut FROM " + table() + " WHERE CCode = '" +
           plainText(code) + "' AND DealDate BETWEEN '" + plainText(year) + "-01-01' AND '" +
           plainText(first.addDays(-1).toString(Qt::ISODate)) + "' AND NOT DealDate LIKE '*-00';");
  if (!dealt) return {};
  return broughtIn + (*dealt)["SSum"].toLong() - (*dealt)["SInOut"].toLong();
}

std::optional<jet::Recordset> clsTradeBook::OpeningRows(const QString& year) const {
  return open("SELECT * FROM " + table() + " WHERE DealDate LIKE '" + plainText(year) +
              "-*-00' ORDER BY CCode;");
}
