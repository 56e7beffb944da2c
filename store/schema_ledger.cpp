#include "store/schema_shape.h"

namespace schema {

using namespace shape;

namespace {

/** A sale or purchase line of a monthly ledger file. */
jet::TableDef ledgerLines(const char* name) {
  return make(name, {text("Code", 10), text("CCode", 6), text("PCode", 10), text("PName", 60),
                     text("PNorm", 30), date("DealDate"), whole("Quantity"), real("UnitCost"), whole("DC"),
                     whole("VatKum"), whole("TradeKum"), whole("SumKum"), text("Charge", 6)});
}

/** A trader's book: what was dealt and what was paid. A DealDate of day "00" is a month's opening balance. */
jet::TableDef ledgerBook(const char* name) {
  return make(name, {text("CCode", 6), text("CName", 60), date("DealDate"), whole("TradeKum"), whole("DC"),
                     whole("VatKum"), whole("SumKum"), text("Code", 10), whole("InOutKum"),
                     text("InOutGubun", 1), text("NoteCode", 10)});
}

jet::TableDef ledgerPayments(const char* name) {
  return make(name,
              {text("Code", 10), text("CCode", 6), text("CName", 60), date("DealDate"), whole("TradeKum"),
               text("NoteCode", 10), text("Section", 1), text("Charge", 6), text("Bigo", 100)});
}

jet::TableDef ledgerPrices(const char* name) {
  return make(name,
              {text("Code", 10), date("AppDate"), real("AppUnit"), text("CCode", 6), text("PCode", 10)});
}

}  // namespace

std::vector<jet::TableDef> ledgerTables() {
  return {
      make("Trader", {text("Code", 6),    text("C_Name", 60), text("U_Name", 30), text("Serial", 14),
                      text("Phone", 20),  text("Fax", 20),    text("DDD", 4),     text("Charge", 6),
                      whole("VAT"),       text("Addr1", 100), text("Addr2", 100), text("Post", 7),
                      text("Status", 30), text("Item", 30),   date("OpenDate"),   date("CloseDate"),
                      date("EnterDate"),  text("Section", 1), whole("TotNoPay"),  text("Bigo", 255),
                      yesNo("bDeled"),    text("HPhone", 14)}),
      make("Charge",
           {text("Code", 6), text("CName", 30), text("Serial", 14), date("JoinDate"), text("Post", 7),
            text("Addr", 100), text("Tel_Home", 20), text("Phone", 20), text("Bigo", 255)}),
      make("Product", {text("Code", 10), text("PName", 60), text("PNorm", 30), text("ClassCode", 6),
                       whole("PTax"), text("PPices", 10), real("BuyPrice"), real("SalePrice"),
                       whole("BaseStock"), whole("FairStock"), text("Bigo", 255)}),
      make("PClass", {text("Code", 6), text("ClassName", 30), yesNo("Used")}),
      make("Stock", {text("PCode", 10), text("PName", 60), text("PNorm", 30), text("ClassCode", 6),
                     text("ClassName", 30), whole("BaseCount"), whole("InStock"), whole("OutStock"),
                     whole("CurStock"), whole("Modify")}),
      ledgerLines("Sale"),
      ledgerLines("Purchase"),
      ledgerBook("SaleBook"),
      ledgerBook("PurchBook"),
      ledgerPayments("Payment"),
      ledgerPayments("Deposit"),
      make("BillNote",
           {text("NCode", 10), text("CCode", 6), date("DealDate"), text("NSection", 1), text("Section", 1),
            text("Publisher", 60), text("NSerial", 20), text("NBCode", 10), whole("NoteKum"),
            date("IssueDate"), date("ExpireDate"), text("Endorser", 60), text("Bigo", 255)}),
      make("EstiBase", {text("EstiCode", 10), text("CCode", 6), text("CName", 60), date("EstiDate"),
                        date("DeriveDate"), text("ClassName", 30), whole("EstiKum"), text("EstiHanKum", 60),
                        whole("Vat"), text("Refer", 60), text("Validate", 30), text("Section", 1)}),
      make("Estimate",
           {whole("Seq"), text("Code", 10), whole("EAmount"), real("EUnitPrice"), text("EUnit", 10)}),
      ledgerPrices("SpecialUnit"),
      ledgerPrices("SpecialDC"),
  };
}

}  // namespace schema
