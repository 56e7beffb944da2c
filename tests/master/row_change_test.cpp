#include "master/registers/row_change.h"

namespace {

TEST(RowChange, WhatBothTypedAlikeIsNoQuarrel) {
  const RowChange change{.read = {{"Tel", "1"}, {"Memo", "a"}, {"Fax", "9"}},
                         .shown = {{"Tel", "1"}, {"Memo", "a"}, {"Fax", "9"}},
                         .typed = {{"Tel", "2"}, {"Memo", "b"}, {"Fax", "9"}}};
  const MergedRow merged = mergeRow(change, {{"Tel", "2"}, {"Memo", "c"}, {"Fax", "8"}});
  EXPECT_EQ(merged.both, QStringList{"Memo"});
  EXPECT_EQ(merged.others, QStringList{"Fax"});
  EXPECT_EQ(merged.row, (RegisterFields{{"Tel", "2"}, {"Memo", "b"}, {"Fax", "8"}}));
}

TEST(RowChange, ARunningFigureIsMovedByWhatWasChangedInItsBox) {
  // The box shows whole won of what is stored with a fraction.
  const RowChange change{.read = {{"GasInit", "12345.5"}, {"UtilInit", {}}},
                         .shown = {{"GasInit", "12,346"}, {"UtilInit", {}}},
                         .typed = {{"GasInit", "12,340"}, {"UtilInit", "500"}},
                         .running = {"GasInit", "UtilInit"}};
  EXPECT_EQ(movedBy(change, "GasInit"), -6);
  EXPECT_EQ(movedFigures(change, {{"GasInit", "12000"}, {"UtilInit", {}}}),
            ", GasInit = GasInit - 6, UtilInit = 0 + 500");
}

}  // namespace
