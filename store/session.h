#pragma once
// What lasts from start to exit: the session's globals and open handles. Filled by app/start_up, read everywhere.
#include <QString>

#include <functional>

#include "pc/pc.h"
#include "store/jet/database.h"
#include "store/rate_book.h"
#include "ui/model/prompts.h"

namespace pc {
class Printers;
class Reports;
}  // namespace pc

/** One run of the program at one PC. */
struct Session {
  Session(pc::Pc& onPc, Prompts& withPrompts) : pc(onPc), prompts(withPrompts) {}

  pc::Pc& pc;
  Prompts& prompts;

  QString AppTitle;
  QString DbPath;     ///< data folder with its last backslash
  QString RptPath;    ///< "C:\RWGas\RPT\"
  QString BasicPath;  ///< Basic.mdb as the links name it
  QString WorkYear;   ///< four digits; the year of the PC clock at start
  QString CurrentPassword;
  QString DelayCalcFlag;   ///< "1" charge on the one month only, "0" cumulative
  int AfterDueMethod = 0;  ///< 0 carries this month's delay charge on, 1 carries the bill without it
  RateBook rates;          ///< read when the meter book opens and when the settings are saved
  HouseStyle CheckKind = HouseStyle::Individual;  ///< meter book to open
  bool StockEnabled = false;                      ///< postings move LPG and Util
  QString SavedDateFormat;
  bool ClosingForBackup =
      false;  ///< a program that needs the files free was started: the main window closes without a question

  QString SaleDay;            ///< "yyyy-mm-dd", the day that frmTodaySale sums up; set by the sale screen
  bool SaleLedgerGas = true;  ///< what frmPrtSale lists: gas lines, else materials; set by the sale screen

  std::function<void()>
      profileChanged;  ///< called when the company's row was saved; the main window shows its name

  pc::Printers* printers = nullptr;  ///< the PC's; set once at start
  pc::Reports* reports = nullptr;

  jet::Workspace wsMain;
  jet::Database dbBasic, dbYear, dbTax, dbCommon;
};
