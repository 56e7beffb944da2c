#include "documents/invoices/clsPrintTax.h"

#include <QCoreApplication>
#include <QDate>
#include <QSysInfo>

#include "documents/ledger/softly.h"
#include "store/data_access.h"
#include "store/jet/sql.h"

using namespace Qt::StringLiterals;

namespace {

QString number(double value) {
  return QString::number(value, 'g', 15);
}

/** A number of at least three digits behind a month. */
QString codeOf(const QString& prefix, qint64 running) {
  return prefix + u"%1"_s.arg(running, 3, 10, QChar('0'));
}

}  // namespace

QString tax_serial::prefixOf(const QString& date) {
  return date.mid(2, 2) + date.mid(5, 2);
}

QString tax_serial::inc(const QString& code) {
  return codeOf(code.left(4), code.mid(4).toLongLong() + 1);
}

QString tax_serial::shown(const QString& code) {
  return code.left(4) + '-' + code.mid(4);
}

QString taxStation(const QDate& today) {
  static const QString station = today.toString(Qt::ISODate) + ' ' +
                                 QSysInfo::machineHostName().remove(QChar(0x27)).left(30) + ' ' +
                                 QString::number(QCoreApplication::applicationPid());
  return station;
}

QString clsPrintTax::own() const {
  return "Station = '" + plainText(station_) + "'";
}

void clsPrintTax::Empty() const {
  // A station's name begins with its day. One that runs past midnight keeps its lines for another day.
  const QString stale = QDate::fromString(station_.left(10), Qt::ISODate).addDays(-1).toString(Qt::ISODate);
  tax_.Execute("DELETE * FROM NewAcount WHERE " + own() + " Or Station Is Null Or Station < '" +
               plainText(stale) + "'");
}

bool clsPrintTax::Insert() const {
  return softly([&] {
    tax_.Execute(jet::Sql()
                 << u"INSERT INTO NewAcount(TaxCode, CCode, CName, PCode, PName, PNorm, Quantity, UnitCost, "
                    u"TradeKum, VatKum, SumKum, DealDate, IssueDate, Item, Code, Station) VALUES('"
                 << plainText(line.TaxCode) << u"', '" << plainText(line.CCode) << u"', '"
                 << copiedText(line.CName) << u"', '" << plainText(line.PCode) << u"', '"
                 << copiedText(line.PName) << u"', '" << copiedText(line.PNorm) << u"', " << line.Quantity
                 << u", " << line.UnitCost << u", " << line.TradeKum << u", " << line.VatKum << u", "
                 << line.SumKum << u", '" << plainText(line.DealDate) << u"', '" << plainText(line.IssueDate)
                 << u"', " << line.Item << u", '" << plainText(line.Code) << u"', '" << plainText(station_)
                 << u"');");
  });
}

bool clsPrintTax::Update() const {
  const QString oneLine = line.Code.isEmpty() ? QString() : " And Code = '" + plainText(line.Code) + "'";
  return softly([&] {
    tax_.Execute("UPDATE NewAcount SET PName = '" + copiedText(line.PName) + "', PNorm = '" +
                 copiedText(line.PNorm) + "', Quantity = " + number(line.Quantity) +
                 ", UnitCost = " + number(line.UnitCost) + ", TradeKum = " + QString::number(line.TradeKum) +
                 ", VatKum = " + QString::number(line.VatKum) + ", SumKum = " + QString::number(line.SumKum) +
                 ", IssueDate = '" + plainText(line.IssueDate) + "', Item = " + QString::number(line.Item) +
                 " WHERE TaxCode = '" + plainText(line.TaxCode) + "'" + oneLine + " And " + own() + ";");
  });
}

bool clsPrintTax::SetIssueDate(const QString& taxCode, const QString& date) const {
  return softly([&] {
    tax_.Execute("UPDATE NewAcount SET IssueDate = '" + plainText(date) + "' WHERE TaxCode = '" +
                 plainText(taxCode) + "' And " + own() + ";");
  });
}

QString clsPrintTax::NextLineCode() const {
  const jet::Recordset last = tax_.OpenRecordset("SELECT Max(Code) AS MCode FROM NewAcount;");
  return u"%1"_s.arg(last["MCode"].toText().toLongLong() + 1, 6, 10, QChar('0'));
}

/** By number and not by the text's order, in which 1000 stands before 999. */
QString clsPrintTax::highest(const QString& sql, const QString& prefix) const {
  qint64 most = 0;
  for (auto codes = tax_.OpenRecordset(sql); !codes.atEnd(); codes.MoveNext())
    most = qMax(most, codes[0].toText().mid(prefix.size()).toLongLong());
  return codeOf(prefix, most + 1);
}

QString clsPrintTax::NextSerial(const QString& prefix) const {
  return highest(
      "SELECT Serial FROM TaxAcount WHERE Serial LIKE '" + plainText(prefix) + "*' ORDER BY Serial;", prefix);
}

QString clsPrintTax::NextTaxCode(const QString& prefix) const {
  const QString issued = NextSerial(prefix),
                prepared = highest("SELECT TaxCode FROM NewAcount WHERE TaxCode LIKE '" + plainText(prefix) +
                                       "*' And " + own(),
                                   prefix);
  return issued.mid(4).toLongLong() > prepared.mid(4).toLongLong() ? issued : prepared;
}

std::optional<jet::Recordset> clsPrintTax::FindIssued(const QString& client, const QString& date,
                                                      const QString& section) const {
  std::optional<jet::Recordset> rows;
  softly([&] {
    rows = tax_.OpenRecordset("SELECT * FROM TaxAcount WHERE CCode = '" + plainText(client) +
                              "' AND DealYY = '" + plainText(date.left(7)) + "' AND DealDate = '" +
                              plainText(date) + "' AND Section = '" + plainText(section) + "';");
  });
  return rows;
}

/** Grouped by the code first: it tells the invoices apart, so the other texts are hardly compared. */
jet::Recordset clsPrintTax::List() const {
  return tax_.OpenRecordset(
      "SELECT DealDate AS DDate, IssueDate, CName, Sum(Tradekum) AS STrade, Sum(VatKum) AS SVat, "
      "Sum(SumKum) AS SSum,Sum(Item) AS SItem, First(PName) AS FPName, TaxCode, CCode FROM NewAcount "
      "WHERE " +
      own() +
      " GROUP BY TaxCode, CCode, CName, DealDate, IssueDate "
      "ORDER BY DealDate, CName;");
}

std::vector<TaxLine> clsPrintTax::Lines(const QString& taxCode) const {
  std::vector<TaxLine> lines;
  for (auto row = tax_.OpenRecordset("SELECT * FROM NewAcount WHERE TaxCode = '" + plainText(taxCode) +
                                     "' And " + own() + " ORDER BY Code");
       !row.atEnd(); row.MoveNext())
    lines.push_back({row["TaxCode"].toText(), row["CCode"].toText(), row["CName"].toText(),
                     row["PCode"].toText(), row["PName"].toText(), row["PNorm"].toText(),
                     row["Quantity"].toDouble(), row["UnitCost"].toDouble(), row["TradeKum"].toLong(),
                     row["VatKum"].toLong(), row["SumKum"].toLong(), row["DealDate"].toText(),
                     row["IssueDate"].toText(), row["Item"].toLong(), row["Code"].toText()});
  return lines;
}

std::vector<TaxLine> clsPrintTax::IssuedLines(const QString& serial) const {
  std::vector<TaxLine> lines;
  for (auto row = tax_.OpenRecordset("Select * From TaxItem Where Serial = '" + plainText(serial) +
                                     "' Order By Line");
       !row.atEnd(); row.MoveNext()) {
    const qint64 supply = row["TradeKum"].toLong(), vat = row["VatKum"].toLong();
    lines.push_back({.PName = row["PName"].toText(),
                     .PNorm = row["PNorm"].toText(),
                     .Quantity = row["Quantity"].toDouble(),
                     .UnitCost = row["UnitCost"].toDouble(),
                     .TradeKum = supply,
                     .VatKum = vat,
                     .SumKum = supply + vat,
                     .DealDate = row["DealDate"].toText(),
                     .Item = row["Item"].toLong()});
  }
  return lines;
}

void clsPrintTax::DeleteInvoice(const QString& taxCode) const {
  tax_.Execute("delete from NewAcount where TaxCode = '" + plainText(taxCode) + "' And " + own());
}

void clsPrintTax::DeleteLine(const QString& code) const {
  tax_.Execute("delete from NewAcount where Code = '" + plainText(code) + "' And " + own());
}
