#pragma once
// What every giro form does around its own layout: the checks before a run, which rows get a slip, the walk over them
// in the screen's order, one job for all of it.
#include <functional>
#include <memory>
#include <vector>

#include "giro/giro_setup.h"
#include "pc/print_job.h"

class ReadingScreen;
struct Session;

/** The four options of the forms. */
enum class GiroSelection { Active = 1, Ticked, Unticked, All };

/** Rows of the reading grid that get a slip, in its order. */
std::vector<int> rowsToPrint(const ReadingScreen& screen, GiroSelection selection);

/** The customer is to be charged by his bank: the slip then names no amount to pay. */
QString automaticTransfer();

struct GiroRun {
  QString title;  ///< of the job
  pc::PaperSize paper;
  int slipsOnPage = 1;
  GiroSelection selection = GiroSelection::All;
  /** Puts one slip on the page; place: 0 for the sheet's first. */
  std::function<void(pc::PrintJob& job, const GiroSetup& setup, int row, int place)> slip;
  /** Told after every slip; False stops the run, the slips so far are printed. */
  std::function<bool(int done, int of)> tell = {};
};

/** Slips printed; 0 after telling why none could be. Throws PrintError when the printer refuses: nothing of the run
 *  then goes out. screen: null when no reading screen is open. */
int runGiro(Session& session, const ReadingScreen* screen, const GiroRun& run);
