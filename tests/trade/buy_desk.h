#pragma once
// The sale tests' desk with two stations, for the tests of purchases.
#include "tests/trade/sale_desk.h"
#include "trade/buy_entry.h"

namespace tests {

/** 한강 is owed 200,000 won for gas and 7,000 for fittings, 낙동 nothing. */
struct BuyDesk : SaleDesk {
  BuyDesk() {
    insertRows(pc.session.dbBasic, "RefillState(Code, Company, Tel, PostCode, Address)",
               {"'0001', '한강', '02-111-2222', '100-200', '강변로 7'",
                "'0002', '낙동', '051-333-4444', '600-100', '부두로 9'"});
    clearBooks();
  }

  /** Stock and debts as they are at first, and no line. */
  void clearBooks() {
    for (const char* const sql :
         {"Delete * From Buy", "Update RefillState Set GasInit = 0, UtilInit = 0",
          "Update RefillState Set GasInit = 200000, UtilInit = 7000 Where Company = '한강'",
          "Update LPG Set LPGStock = 1000, CANTotalHold = 100, CANLoan = 10, CANEmpty = 40, CANFull = 50",
          "Update Util Set UtilStock = 30"})
      run(sql);
  }
  QString line() {
    return rows(
        "Select BuyCompany, PurchaseGubun, BuyName, BuyThing, PurchaseNum, PurchaseUnit, DC, Pay, Trust, "
        "Response From Buy");
  }
  QString owed() { return rows("Select GasInit, UtilInit From RefillState Order By Code"); }
};

}  // namespace tests
