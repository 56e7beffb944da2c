#include "documents/ledger/clsTrader.h"

#include <vector>

#include "documents/ledger/softly.h"
#include "store/data_access.h"

using namespace Qt::StringLiterals;

namespace {

QString quoted(const QString& text) {
  return "'" + plainText(text) + "'";
}

/** The columns behind Code, each with its value as it stands in a statement. */
std::vector<std::pair<QString, QString>> written(const TraderFields& of) {
  static const QStringList columns{"C_Name",   "U_Name",    "Serial",    "Phone",   "Fax",    "DDD",
                                   "Charge",   "Addr1",     "Addr2",     "Post",    "Status", "Item",
                                   "OpenDate", "CloseDate", "EnterDate", "Section", "Bigo",   "HPhone"};
  const QString* const texts[] = {&of.C_Name,  &of.U_Name, &of.Serial,   &of.Phone,     &of.Fax,
                                  &of.DDD,     &of.Charge, &of.Addr1,    &of.Addr2,     &of.Post,
                                  &of.Status,  &of.Item,   &of.OpenDate, &of.CloseDate, &of.EnterDate,
                                  &of.Section, &of.Bigo,   &of.HPhone};
  std::vector<std::pair<QString, QString>> pairs;
  for (qsizetype place = 0; place < columns.size(); ++place)
    pairs.emplace_back(columns[place], quoted(*texts[place]));
  pairs.emplace_back("VAT", QString::number(of.VAT));
  pairs.emplace_back("TotNoPay", QString::number(of.TotNoPay));
  pairs.emplace_back("bDeled", of.bDeled ? "True" : "False");
  return pairs;
}

}  // namespace

std::optional<jet::Recordset> clsTrader::open(const QString& sql) const {
  std::optional<jet::Recordset> rows;
  softly([&] { rows = db_.OpenRecordset(sql); });
  return rows;
}

std::optional<qint64> clsTrader::numberOf(const QString& sql) const {
  const auto rows = open(sql);
  if (!rows || rows->atEnd()) return {};
  return (*rows)[0].toLong();
}

std::optional<jet::Recordset> clsTrader::List() const {
  return open("SELECT * FROM Trader ORDER BY Code");
}

std::optional<jet::Recordset> clsTrader::UndeletedList() const {
  return open("SELECT * FROM Trader WHERE bDeled = False ORDER BY C_Name;");
}

std::optional<jet::Recordset> clsTrader::FindClient(const QString& code, const QString& name,
                                                    const QString& tel, const QString& address) const {
  if (!code.isEmpty())
    return open("SELECT * FROM client WHERE Code = " + plainNumber(code) + " ORDER BY Code;");
  // Kept: "ORDERY" is no word of the language, so this branch finds nothing.
  return open("SELECT * FROM client WHERE name LIKE '*" + plainText(name) + "*' OR Tel LIKE '*" +
              plainText(tel) + "*' OR Address LIKE '*" + plainText(address) + "*' ORDERY BY Code;");
}

bool clsTrader::Insert() const {
  QString columns = "Code", values = quoted(fields.Code);
  for (const auto& [column, value] : written(fields)) {
    columns += ", " + column;
    values += ", " + value;
  }
  return softly([&] { db_.Execute("INSERT INTO Trader(" + columns + ") VALUES(" + values + ")"); });
}

bool clsTrader::Update() const {
  QStringList pairs;
  for (const auto& [column, value] : written(fields)) pairs << column + " = " + value;
  return softly([&] {
    db_.Execute("UPDATE Trader SET " + pairs.join(", ") + " WHERE Code = '" + plainText(fields.Code) + "'");
  });
}

bool clsTrader::Delete() const {
  return softly([&] { db_.Execute("Delete * From Trader WHERE Code = '" + plainText(fields.Code) + "'"); });
}

std::optional<qint64> clsTrader::VatOf(const QString& code) const {
  return numberOf("SELECT VAT FROM Trader WHERE Code = '" + plainText(code) + "'");
}

std::optional<QString> clsTrader::NextCode() const {
  const auto last = open("SELECT Max(Code) AS MCode FROM Trader;");
  if (!last) return {};
  return u"%1"_s.arg((*last)["MCode"].toText().toLongLong() + 1, 6, 10, QChar('0'));
}

std::optional<qint64> clsTrader::TotNoPayOf(const QString& code) const {
  return numberOf("SELECT TotNoPay FROM Trader WHERE Code = '" + plainText(code) + "'");
}

std::optional<jet::Recordset> clsTrader::FindByName(const QString& name) const {
  return open("SELECT * FROM Trader WHERE C_Name = '" + plainText(name) + "'");
}

bool clsTrader::SetCharge(const jet::Database& ledger, const QString& code, const QString& charge) {
  const QString change = " set charge = '" + plainText(charge) + "' where CCode = '" + plainText(code) + "'";
  return softly([&] {
    ledger.Together([&] {
      ledger.Execute("update sale" + change);
      ledger.Execute("update purchase" + change);
    });
  });
}
