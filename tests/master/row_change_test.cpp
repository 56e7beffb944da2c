#include "master/registers/row_change.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(RowChange, WhatBothTypedAlikeIsNoQuarrel) {
  const RowChange change{.read = {{u"Tel"_s, u"1"_s}, {u"Memo"_s, u"a"_s}, {u"Fax"_s, u"9"_s}},
                         .shown = {{u"Tel"_s, u"1"_s}, {u"Memo"_s, u"a"_s}, {u"Fax"_s, u"9"_s}},
                         .typed = {{u"Tel"_s, u"2"_s}, {u"Memo"_s, u"b"_s}, {u"Fax"_s, u"9"_s}}};
  const MergedRow merged = mergeRow(change, {{u"Tel"_s, u"2"_s}, {u"Memo"_s, u"c"_s}, {u"Fax"_s, u"8"_s}});
  EXPECT_EQ(merged.both, QStringList{u"Memo"_s});
  EXPECT_EQ(merged.others, QStringList{u"Fax"_s});
  EXPECT_EQ(merged.row, (RegisterFields{{u"Tel"_s, u"2"_s}, {u"Memo"_s, u"b"_s}, {u"Fax"_s, u"8"_s}}));
}

TEST(RowChange, ARunningFigureIsMovedByWhatWasChangedInItsBox) {
  // The box shows whole won of what is stored with a fraction.
  const RowChange change{.read = {{u"GasInit"_s, u"12345.5"_s}, {u"UtilInit"_s, {}}},
                         .shown = {{u"GasInit"_s, u"12,346"_s}, {u"UtilInit"_s, {}}},
                         .typed = {{u"GasInit"_s, u"12,340"_s}, {u"UtilInit"_s, u"500"_s}},
                         .running = {u"GasInit"_s, u"UtilInit"_s}};
  EXPECT_EQ(movedBy(change, u"GasInit"_s), -6);
  EXPECT_EQ(movedFigures(change, {{u"GasInit"_s, u"12000"_s}, {u"UtilInit"_s, {}}}),
            u", GasInit = GasInit - 6, UtilInit = 0 + 500"_s);
}

}  // namespace
