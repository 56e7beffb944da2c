#include "trade/buy_book.h"

#include "store/data_access.h"
#include "store/jet/sql.h"
#include "store/text_width.h"

using namespace Qt::StringLiterals;

namespace {

const LineTable buyTable = {.table = "Buy",
                            .key = "BuyID",
                            .date = "BuyDate",
                            .partner = "BuyCompany",
                            .kind = "PurchaseGubun",
                            .name = "BuyName",
                            .size = "BuyThing",
                            .number = "PurchaseNum",
                            .unit = "PurchaseUnit",
                            .paid = "Pay",
                            .partnerGone = "다른 PC에서 삭제했거나 상호를 바꾼 구매처입니다!",
                            .partnerIsText = true,
                            .kindOf = buyKind};

const QStringList buyHeaders = {"일자",     "구매처",   "구분",     "품명/용량", "수량", "단가",  "D/C",
                                "구매금액", "지불금액", "외상금액", "담당자",    "코드", "구매처"};

}  // namespace

BuyBook::BuyBook(Session& session) : LineBook(session, buyTable) {
  grid_.setColumns(lineColumns(buyKinds(), buyHeaders));
  setSheet(grid_, buyKinds());
}

// --- reading -------------------------------------------------------------------------------------------------

bool BuyBook::FillBuyGrid(bool showAll) {
  const QString statement =
      "Select Buy.*, RefillState.* From Buy Left Join RefillState On Buy.BuyCompany = RefillState.Company " +
      (showAll ? QString() : "Where Buy.BuyCompany = '" + plainText(station_) + "' ") +
      "Order By Buy.BuyDate, Buy.BuyID";
  if (!load(grid_, buyKinds(), statement)) return false;
  showAll_ = showAll;
  return true;
}

QString BuyBook::partnerName(const jet::Recordset& line) const {
  return line["BuyCompany"].toText();
}

QString BuyBook::lineStatement(const QString& key) const {
  return "Select * From Buy Where BuyID = " + plainNumber(key);
}

QString BuyBook::moneyStatement(const QString& key) const {
  return "Select Trust, Pay From Buy Where buyID = " + plainNumber(key);
}

QString BuyBook::balanceStatement(LineBalance balance, const QString& company) const {
  if (balance == LineBalance::Gas)
    return "Select GasInit From RefillState Where Company = '" + plainText(company) + "'";
  return "Select UtilInit From RefillState Where Company = '" + plainText(company) + "'";
}

BuyStationPanel BuyBook::panel(int row) {
  const QString company = grid().text(row, LineCol::Code);
  jet::Recordset station;
  if (company.isEmpty() ||
      !OpenSnapshot(session_.prompts, db(), station,
                    "Select * From RefillState Where Company = '" + plainText(company) + "'") ||
      station.atEnd())
    return {};
  return {"(" + station["PostCode"].toText() + ") " + station["Address"].toText(),
          station["Tel"].toText(),
          station["User"].toText(),
          station["Fax"].toText(),
          moneyText(station["GasInit"].toDouble()),
          moneyText(station["UtilInit"].toDouble())};
}

QStringList BuyBook::stationsNamed(const QString& typed) {
  const QString text = typed.trimmed();
  jet::Recordset station;
  if (text.isEmpty() || !OpenSnapshot(session_.prompts, db(), station,
                                      u"Select Company, Tel, Address From RefillState Order By Code"_s))
    return {};
  QStringList holding;
  for (; !station.atEnd(); station.MoveNext()) {
    const QString company = station["Company"].toText();
    if (company == text) return {company};
    for (const char* const column : {"Company", "Tel", "Address"})
      if (station[column].toText().contains(text, Qt::CaseInsensitive) && !holding.contains(company))
        holding << company;
  }
  return holding;
}

// --- writing -------------------------------------------------------------------------------------------------

QString BuyBook::insertSkeleton(const TradeLine& line) {
  db().Execute("Insert Into Buy(BuyDate, BuyCompany, PurchaseGubun) Values('" + plainText(line.date) +
               "', '" + plainText(line.partner) + "', 1)");
  return "Select Max(BuyID) As Buyer from Buy";
}

void BuyBook::moveBalance(const BalanceMove& move, const QString& company) {
  const bool gas = move.balance == LineBalance::Gas;
  const char16_t* const start = gas       ? move.up ? u"Update RefillState Set GasInit = GasInit + "
                                                    : u"Update RefillState Set GasInit = GasInit - "
                                : move.up ? u"Update RefillState Set UtilInit = UtilInit + "
                                          : u"Update RefillState Set UtilInit = UtilInit - ";
  jet::Sql sql;
  db().Execute(sql << start << move.by << u" Where Company = '" << plainText(company) << u"'");
}

void BuyBook::updateLine(const TradeLine& line) {
  db().Execute(jet::Sql() << u"Update Buy Set BuyDate = '" << plainText(line.date) << u"', BuyCompany = '"
                          << plainText(line.partner) << u"', Response = '" << plainText(line.person)
                          << u"', BuyName = '" << plainText(line.item.name) << u"', BuyThing = '"
                          << plainText(line.item.size) << u"', PurchaseUnit = " << line.unit
                          << u", PurchaseNum = " << line.number << u", PurchaseGubun = " << line.kind->code
                          << u", Pay = " << line.paid << u", DC = " << line.discount << u", Trust = "
                          << line.trust << u" Where BuyID = " << plainNumber(line.key));
}

void BuyBook::updatePerson(const QString& key, const QString& person) {
  db().Execute("Update Buy Set Response = '" + plainText(person) + "' Where BuyID = " + plainNumber(key));
}

void BuyBook::deleteLine(const QString& key) {
  db().Execute("Delete From Buy Where BuyID = " + plainNumber(key));
}
