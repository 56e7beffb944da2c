#include "store/schema.h"

#include <algorithm>

#include "store/schema_shape.h"

using namespace Qt::StringLiterals;

namespace schema {

using namespace shape;

namespace {

// Indexes follow the statements: dates, customer and month, and the names that serve as keys.

std::vector<jet::TableDef> basicTables() {
  return {
      make("Client", {autoNumber("Code"),   text("Name", 50),    text("Tel", 20),       text("PostCode", 7),
                      text("Address", 100), date("Birth"),       text("Memo", 255),     whole("HouseStyle"),
                      text("BDName", 40),   text("Dong", 10),    text("Ho", 10),        whole("GasInit"),
                      whole("UtilInit"),    date("AppDate"),     whole("PayWay"),       yesNo("VolumeYesNo"),
                      text("Volume", 20),   whole("VolumeUnit"), text("Position", 255), date("LastDate"),
                      date("EstimateDate"), text("Serial", 12),  text("Status", 10),    text("Item", 20),
                      text("Uname", 10),    text("Tel1", 14),    text("Tel2", 14)},
           {primary("PK", {"Code"}), index("Name", {"Name"}), index("Tel", {"Tel"}), index("Tel1", {"Tel1"}),
            index("Tel2", {"Tel2"}), index("House", {"BDName", "Dong", "Ho"}),
            index("HouseStyle", {"HouseStyle", "Name"}), index("Volume", {"Volume"})}),
      make("LPG",
           {autoNumber("Code"), text("LPGName", 30), text("Size", 10), whole("LPGPurchase"),
            whole("LPGSelling"), whole("CANPurchase"), whole("CANSelling"), whole("LPGStock"),
            whole("CANTotalHold"), whole("CANLoan"), whole("CANEmpty"), whole("CANFull")},
           {primary("PK", {"Code"}), index("NameSize", {"LPGName", "Size"})}),
      make("Util",
           {autoNumber("Code"), text("Name", 40), text("Size", 30), text("SizeSize", 20),
            whole("UtilPurchase"), whole("UtilSelling"), whole("UtilStock")},
           {primary("PK", {"Code"}), index("NameSize", {"Name", "Size"})}),
      make("Response",
           {autoNumber("Code"), text("Name", 20), text("Tel", 20), text("HP", 20), text("PostCode", 7),
            text("Address", 100), text("Memo", 255), date("AppDate"), text("IdentyNo", 14)},
           {primary("PK", {"Code"}), index("Name", {"Name"})}),
      make("RefillState",
           {text("Code", 4), text("Company", 40), text("User", 20), text("BusCode", 12), text("Tel", 20),
            text("Fax", 20), text("Address", 100), text("PostCode", 7), whole("GasInit"), whole("UtilInit")},
           {index("Code", {"Code"}), index("Company", {"Company"})}),
      make("Volume", {autoNumber("Code"), text("Size", 20), text("Name", 40), whole("Unit")},
           {primary("PK", {"Code"}), index("Size", {"Size"})}),
      make("APT",
           {autoNumber("Code"), text("Name", 40), text("Dong", 10), text("PostCode", 7), text("Address", 100),
            yesNo("Structure"), whole("Height"), whole("Width"), yesNo("Evaporation"), yesNo("Gubun"),
            text("Pressure", 20), whole("Eva"), real("delaypay")},
           {primary("PK", {"Code"}), index("NameDong", {"Name", "Dong"})}),
      // A figure nobody has set yet stays Null: the settings page then shows an empty box.
      make("User", {text("Company", 40),
                    text("User", 20),
                    text("BusCode", 12),
                    text("PostCode", 7),
                    text("Fax", 20),
                    text("Address", 100),
                    text("Tel", 20),
                    text("BusStyle", 30),
                    text("BusKind", 30),
                    withoutDefault(whole("PayState")),
                    withoutDefault(real("Rate")),
                    withoutDefault(real("Security")),
                    withoutDefault(real("AptRate")),
                    withoutDefault(real("AptSecurity")),
                    withoutDefault(real("ManyRate")),
                    withoutDefault(real("ManySecurity")),
                    text("Password", 20),
                    withoutDefault(whole("Post1")),
                    withoutDefault(whole("Post2")),
                    yesNo("Stock")}),
      make("ResCAN",
           {text("ResName", 20), text("LPGName", 30), whole("CANSize"), whole("CANFull"), whole("CANEmpty"),
            whole("CANTotal")},
           {primary("PK", {"ResName", "LPGName", "CANSize"})}),
      make("Bank", {text("BName", 30), text("BNumber", 30), text("BUser", 30)},
           {primary("PK", {"BName", "BNumber"})}),
      make("Car",
           {autoNumber("RCode"), date("RDate"), text("RContent", 100), text("RCarNo", 20),
            text("RResName", 20), whole("RMoney")},
           {primary("PK", {"RCode"}), index("RDate", {"RDate"})}),
      make("CaRes", {text("CarNo", 20), text("ResName", 20)}),
      make("CaRepair", {text("CarRepair", 100)}),
      make("PostCode", {text("PostCode", 60), text("City", 60), text("Province", 60), text("DDD", 60)}),
      make("Options", {notEmpty(text("OPTName", 20)), text("OPTValue", 20)},
           {primary("Options_PK", {"OPTName"})}),
  };
}

std::vector<jet::TableDef> yearTables() {
  return {
      make("Sale",
           {autoNumber("SaleID"), date("SaleDate"), whole("ClientCode"), text("Response", 20),
            text("SaleName", 40), text("SaleThing", 30), whole("SaleUnit"), whole("SaleNum"),
            whole("SaleGubun"), yesNo("Gubun"), whole("Income"), whole("Trust"), whole("DC"),
            whole("DealList"), whole("SaleList")},
           {primary("PK", {"SaleID"}), index("SaleDate", {"SaleDate", "SaleGubun"}),
            index("Client", {"ClientCode", "SaleDate"})}),
      make("Buy",
           {autoNumber("BuyID"), date("BuyDate"), text("BuyCompany", 40), text("Response", 20),
            text("BuyName", 40), text("BuyThing", 30), whole("PurchaseUnit"), whole("PurchaseNum"),
            whole("PurchaseGubun"), whole("Pay"), whole("DC"), whole("Trust")},
           {primary("PK", {"BuyID"}), index("BuyDate", {"BuyDate"}),
            index("Company", {"BuyCompany", "BuyDate"})}),
      make("Evaporation",
           {whole("ClientCode"), whole("Mon"), real("UseGage"), real("UseMuch"), real("UsePay"),
            real("Trust"), real("Delay"), real("Manage"), real("Total"), real("Pay"), whole("Prnt"),
            date("PrntDay"), date("TrustDay"), text("ChkMan", 20), text("CashMan", 20), yesNo("paydelayed")},
           {primary("PK", {"ClientCode", "Mon"}), index("Mon", {"Mon"})}),
      make("TmpLPGCAN", {date("SaleDate"), whole("ClientCode"), text("Response", 20), text("SaleName", 40),
                         text("SaleThing", 30), whole("SaleUnit"), whole("SaleNum"), whole("SaleGubun"),
                         yesNo("Gubun"), whole("Income"), whole("Trust"), whole("DC")}),
      make("TmpLPGCANStock",
           {text("Name", 40), text("Size", 30), whole("LPGStock"), whole("CANStock"), whole("LPGPreStock"),
            whole("LPGBuy"), whole("LPGSale"), whole("CANPreStock"), whole("CANBuy"), whole("CANLent"),
            whole("CANReturn"), whole("CANSale")},
           {index("Item", {"Name", "Size"})}),
  };
}

std::vector<jet::TableDef> taxTables() {
  return {
      make(
          "TaxAcount",
          {text("Serial", 20), text("CCode", 6), date("DealDate"), text("DealYY", 7), date("IssueDate"),
           real("TradeKum"), real("VatKum"), whole("Blank"), text("List", 100), text("Section", 1),
           text("CName", 60)},  // as issued: the customer may be deleted since
          {primary("PK", {"Serial"}), index("Client", {"CCode", "DealYY"}), index("DealDate", {"DealDate"})}),
      make("NewAcount",
           {text("TaxCode", 20), text("CCode", 6), text("CName", 60), text("PCode", 10), text("PName", 60),
            text("PNorm", 30), real("Quantity"), real("UnitCost"), real("TradeKum"), real("VatKum"),
            real("SumKum"), date("DealDate"), date("IssueDate"), whole("Item"), text("Code", 10),
            text("Station", 60)},
           {index("TaxCode", {"TaxCode"})}),
      // What stood on an issued invoice, line by line: the register itself names its items in one text.
      make("TaxItem",
           {text("Serial", 20), whole("Line"), text("PName", 100), text("PNorm", 30), real("Quantity"),
            real("UnitCost"), real("TradeKum"), real("VatKum"), whole("Item"), date("DealDate")},
           {primary("PK", {"Serial", "Line"})}),
  };
}

std::vector<jet::TableDef> detailTables() {
  return {make("DealList",
               {text("DealDate", 10), notEmpty(text("CCode", 6)), text("CName", 40), text("PName", 40),
                text("PNorm", 20), withoutDefault(whole("Quant")), withoutDefault(real("UnitCost")),
                withoutDefault(whole("SaleKum")), notEmpty(text("SaleSeq", 6))},
               {primary("PK", {"DealDate", "CCode", "SaleSeq"})})};
}

std::vector<jet::TableDef> postTables() {
  return {make("Post",
               {text("ZIPCODE", 7), text("SIDO", 20), text("GUGUN", 30), text("DONG", 60), text("BUNJI", 60)},
               {index("ZIPCODE", {"ZIPCODE"})})};
}

std::vector<jet::TableDef> printTables() {
  std::vector<jet::Field> fields;
  const auto add = [&](const char* kind, int count, auto make) {
    for (int at = 1; at <= count; ++at) {
      fields.push_back(make(u"%1%2"_s.arg(QLatin1String(kind)).arg(at, 2, 10, QLatin1Char('0'))));
    }
  };
  add("Str", 13, [](const QString& name) { return text(qPrintable(name), 255); });
  add("Lng", 8, [](const QString& name) { return withoutDefault(whole(qPrintable(name))); });
  add("Dbl", 3, [](const QString& name) { return withoutDefault(real(qPrintable(name))); });
  return {make("Print", fields)};
}

std::vector<jet::TableDef> aptBalnTables() {
  return {make("AptBaln", {whole("ccode"), text("BDName", 20), text("dong", 10), text("ho", 4),
                           text("DealDate", 7), real("use"), real("PreMuch"), real("UseMuch"), real("fee"),
                           real("manage"), real("total"), real("delay"), real("baln"), text("bigo", 50)})};
}

std::vector<jet::TableDef> inOutCashTables() {
  return {
      make("Content", {withoutDefault(whole("Code")), text("Content", 50), withoutDefault(whole("Section"))}),
      make("InOutCash", {withoutDefault(whole("Code")), date("CurDate"), text("Bigo", 100), text("Sub", 20),
                         text("Detail", 50), withoutDefault(whole("Cash"))}),
  };
}

std::vector<jet::TableDef> cashbookTables() {
  return {
      make("accounts", {whole("Code"), text("Name", 50), whole("Section")}, {index("Code", {"Code"})}),
      make("cashbook",
           {whole("code"), date("sDate"), text("AcntName", 50), text("detail", 100), whole("income"),
            whole("outlay")},
           {index("sDate", {"sDate"})}),
  };
}

}  // namespace

const std::vector<jet::TableDef>& tablesOf(File file) {
  static const std::vector<std::vector<jet::TableDef>> all{
      basicTables(), yearTables(),    taxTables(),       detailTables(),   postTables(),
      printTables(), aptBalnTables(), inOutCashTables(), cashbookTables(), ledgerTables()};
  return all[size_t(file)];
}

const jet::TableDef& table(File file, const QString& name) {
  const auto& tables = tablesOf(file);
  const auto at = std::find_if(tables.begin(), tables.end(), [&](const jet::TableDef& table) {
    return table.name.compare(name, Qt::CaseInsensitive) == 0;
  });
  Q_ASSERT(at != tables.end());
  return *at;
}

const QStringList& linkedTables() {
  static const QStringList names{"Client", "LPG", "RefillState", "Response", "Util"};
  return names;
}

}  // namespace schema
