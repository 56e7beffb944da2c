#include "documents/ledger/clsTrade.h"

#include "documents/ledger/softly.h"
#include "store/data_access.h"

std::optional<jet::Recordset> clsTrade::Read() const {
  std::optional<jet::Recordset> rows;
  softly([&] { rows = db_.OpenRecordset("SELECT * FROM " + table() + " ORDER BY Code"); });
  return rows;
}

std::optional<jet::Recordset> clsTrade::ReadLine() const {
  std::optional<jet::Recordset> rows;
  softly([&] {
    rows = db_.OpenRecordset("SELECT * FROM " + table() + " WHERE Code = '" + plainText(Code) + "'");
  });
  return rows;
}

bool clsTrade::Delete() const {
  int gone = 0;
  return softly([&] {
           gone = db_.Execute("DELETE * FROM " + table() + " WHERE Code = '" + plainText(Code) + "'");
         }) &&
         gone > 0;
}

/** Added up by code first and named then: sorted by code a month's lines compare as numbers, by name as texts. Lines of
 *  one month have its text in common. */
jet::Recordset clsTrade::TaxQuery(const QString& from, const QString& to, TaxGathering kind) const {
  const bool daily = kind == TaxGathering::Daily, oneMonth = from.left(7) == to.left(7);
  const QString day = daily ? "Sale.saledate" : "Left$(Sale.saleDate, 7)";
  return db_.OpenRecordset(
      "SELECT Sums.SDealDate, client.Name AS CName, Sums.SumKum, Sums.CSPCode, Sums.SumVat, Sums.SPName, "
      "Sums.SumQuantity, Sums.FUnitCost, Sums.SCCode, Sums.SPNorm, Sums.SumDC FROM (SELECT " +
      (oneMonth && !daily ? "'" + plainText(from.left(7)) + "'" : day) +
      " AS SDealDate, Sum(Sale.saleunit * sale.salenum) AS SumKum, "
      "Count(Sale.salename) AS CSPCode,Sum(0) AS SumVat, First(Sale.salename) AS SPName, "
      "Sum(Sale.salenum) AS SumQuantity, First(Sale.saleunit) AS FUnitCost, Sale.ClientCode AS SCCode, "
      "First(Sale.Salething) AS SPNorm, Sum(sale.DC) as SumDC FROM Sale WHERE Sale.saleDate BETWEEN '" +
      plainText(from) + "' AND '" + plainText(to) +
      "' AND Sale.saleunit <> 0 and Sale.SaleList = 0 GROUP BY Sale.ClientCode" +
      (oneMonth && !daily ? QString() : ", " + day) +
      ") AS Sums LEFT JOIN Client ON Sums.SCCode = client.Code ORDER BY " +
      (daily ? "Sums.SDealDate, Client.Name, Sums.SCCode;" : "Client.Name, Sums.SDealDate, Sums.SCCode;"));
}
