#pragma once
// The meter book worked by keystrokes: a block or the shops shown, their readings typed, their bills read back.
#include "samples/month.h"

namespace samples {

/** Whose rows, and in which order the screen lists them. */
struct MeterGroup {
  QString where, order;
};
MeterGroup sampleBlock();  ///< the 30 households of 달빛아파트 101
MeterGroup sampleShops();  ///< the individual book

class MeterKeys {
 public:
  /** The screen shows this month of this year's file. */
  MeterKeys(Stage& stage, int year, int month);

  /** The book of apartments by its menu entry, shown by block, one block chosen: by its place in the list from 1.
   *  firstTime: the PC does not show blocks yet. */
  void openBlock(int placeInList, bool firstTime = false);
  void openShops();
  /** Types a reading into every row of the shown group: what the month before ended with and what used() tells. */
  void enterReadings(const MeterGroup& group, int (*used)(int place));
  /** As the month's rows lie in the file. */
  QList<MonthBill> bills(const MeterGroup& group) const;

 private:
  Stage& stage_;
  QString yearFile_;
  int month_;
};

}  // namespace samples
