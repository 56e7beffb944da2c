#pragma once
// The arrears of the apartments month by month: gathered from the meter book into the station's own scratch file, listed
// from there.
#include "briefs/brief.h"

/** "아파트 미수현황": what each household was billed each month up to the month asked for, and what of it is open. */
Brief aptBalnBrief();

/** Columns of spList. */
namespace AptCol {
enum : int {
  Building = 1,
  Dong,
  Ho,
  Month,
  Previous,
  Reading,
  Use,
  Fee,
  Manage,
  Delay,
  Billed,
  Open,
  Note,
  Last = Note
};
}

/** "C:\RWGas\Dbs\dbAPTbaln.mdb": of the station, wherever the data lie. */
QString aptBalnFile();
