#include "trade/sale_book.h"

#include "master/customers/client_entry.h"
#include "store/data_access.h"
#include "store/jet/sql.h"
#include "store/text_width.h"

namespace {

const LineTable saleTable = {.table = "Sale",
                             .key = "SaleID",
                             .date = "SaleDate",
                             .partner = "ClientCode",
                             .kind = "SaleGubun",
                             .name = "SaleName",
                             .size = "SaleThing",
                             .number = "SaleNum",
                             .unit = "SaleUnit",
                             .paid = "Income",
                             .partnerGone = "다른 PC에서 삭제한 고객입니다!",
                             .sheetColumn = "Gubun",
                             .kindOf = saleKind};

const QStringList saleHeaders = {
    "일자",   "고객명", "구분",   "품명 / 용량", "수량", "단가",    "D/C",
    "금  액", "입금액", "미수금", "담당자",      "코드", "고개코드"};  // spelt so on purpose

/** Of the lines, by sheet. */
const QString materialLines = saleKindIs("Sale.SaleGubun", LineBalance::Material);
const QString sheetFilters[] = {" AND Not " + materialLines + " And Sale.Gubun = False ",
                                " AND Not " + materialLines + " And Sale.Gubun = true ",
                                " AND " + materialLines + " "};

}  // namespace

SaleBook::SaleBook(Session& session) : LineBook(session, saleTable) {
  for (const SaleSheet sheet : {SaleSheet::General, SaleSheet::Volume, SaleSheet::Material})
    sheetGrid(sheet).setColumns(lineColumns(saleKinds(sheet), saleHeaders));
  setSheet(sheetGrid(sheet_), saleKinds(sheet_));
}

// --- reading -------------------------------------------------------------------------------------------------

// The years between which lines are looked for are the PC clock's; the day is one of the working year.
QString SaleBook::sheetStatement(SaleSheet sheet, bool showDay) const {
  const QString thisYear = QString::number(year());
  const QString lastYear = QString::number(year() - 1);
  return "Select Sale.*, Client.* From Sale Right Join Client On Sale.ClientCode = Client.Code "
         "Where Sale.SaleDate Between '" +
         plainText(lastYear) + "-01-01" + "' and '" + plainText(thisYear) + "-12-31' " +
         sheetFilters[size_t(sheet)] +
         (showDay ? " And Sale.SaleDate = '" + plainText(session_.WorkYear) + "-" + plainText(date()) + "' "
                  : " And Sale.ClientCode = " + QString::number(client_) + " ") +
         "Order By Sale.SaleDate, Sale.SaleID ";
}

bool SaleBook::FillSaleGrid(SaleSheet sheet, bool showDay) {
  if (!load(sheetGrid(sheet), saleKinds(sheet), sheetStatement(sheet, showDay))) return false;
  sheet_ = sheet;
  showDay_ = showDay;
  return true;
}

QString SaleBook::partnerName(const jet::Recordset& line) const {
  return DisplayName(line);
}

QString SaleBook::lineStatement(const QString& key) const {
  return "Select * From Sale Where SaleID = " + plainNumber(key);
}

QString SaleBook::moneyStatement(const QString& key) const {
  return "Select Trust, Income From Sale Where SaleID = " + plainNumber(key);
}

QString SaleBook::balanceStatement(LineBalance balance, const QString& client) const {
  return (balance == LineBalance::Gas ? "Select GasInit From Client Where Code = "
                                      : "Select UtilInit From Client Where Code = ") +
         plainNumber(client);
}

QString SaleBook::offeredFrom() const {
  return metered() ? " And Gubun = True" : " And Gubun = False";
}

SaleClientPanel SaleBook::panel(int row) {
  const QString code = grid().text(row, LineCol::Code);
  jet::Recordset client;
  if (code.isEmpty() ||
      !OpenSnapshot(session_.prompts, db(), client, "Select * From Client Where Code = " + code) ||
      client.atEnd())
    return {};
  return {code.toLongLong(),
          "(" + client["PostCode"].toText() + ") " + client["Address"].toText(),
          client["Tel"].toText(),
          moneyText(client["GasInit"].toDouble()),
          moneyText(client["UtilInit"].toDouble()),
          client["LastDate"].toText(),
          client["Memo"].toText(),
          client["Position"].toText().isEmpty() ? "약도없슴" : "약도있슴"};
}

// --- writing -------------------------------------------------------------------------------------------------

QString SaleBook::insertSkeleton(const TradeLine& line) {
  const char* tail = sheet_ == SaleSheet::Material ? ", 7, False, '0')"
                     : sheet_ == SaleSheet::Volume ? ", 1, True, '0')"
                                                   : ", 1, False, '0')";
  db().Execute(
      "Insert Into Sale(salelist, deallist, SaleDate, ClientCode, SaleGubun, Gubun, salething) "
      "Values(0,0, '" +
      plainText(line.date) + "', " + plainNumber(line.partner) + tail);
  return "Select Max(SaleID) As Saler from Sale";
}

void SaleBook::moveBalance(const BalanceMove& move, const QString& client) {
  const bool gas = move.balance == LineBalance::Gas;
  const char16_t* const start =
      gas ? move.up ? u"Update Client Set GasInit = GasInit + " : u"Update Client Set GasInit = GasInit - "
      : move.up ? u"Update Client Set UtilInit = UtilInit + "
                : u"Update Client Set UtilInit = UtilInit - ";
  jet::Sql sql;
  db().Execute(sql << start << move.by << u" Where Code = " << plainNumber(client));
}

void SaleBook::updateLine(const TradeLine& line) {
  db().Execute(jet::Sql() << u"Update Sale Set SaleDate = '" << plainText(line.date) << u"', ClientCode = "
                          << plainNumber(line.partner) << u", Response = '" << plainText(line.person)
                          << u"', SaleName = '" << plainText(line.item.name) << u"', SaleThing = '"
                          << plainText(line.item.size) << u"', SaleUnit = " << line.unit << u", SaleNum = "
                          << line.number << u", SaleGubun = " << line.kind->code
                          << (metered() ? u", Gubun = True, " : u", Gubun = False, ") << u"Income = "
                          << line.paid << u", DC = " << line.discount << u", Trust = " << line.trust
                          << u" Where SaleID = " << plainNumber(line.key));
  // Kept: an older day takes the last date back.
  db().Execute("Update Client Set LastDate = '" + plainText(line.date) +
               "' Where Code = " + plainNumber(line.partner));
}

void SaleBook::updatePerson(const QString& key, const QString& person) {
  db().Execute("Update Sale Set Response = '" + plainText(person) + "' Where SaleID = " + plainNumber(key));
}

void SaleBook::deleteLine(const QString& key) {
  db().Execute("Delete From Sale Where SaleID = " + plainNumber(key));
}
