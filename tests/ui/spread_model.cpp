#include "ui/model/spread_model.h"

#include <gtest/gtest.h>

#include "ui/model/row_backup.h"

using namespace Qt::StringLiterals;

namespace {

class SubTotals : public ::testing::Test {
 protected:
  SubTotals() {
    grid.setColumns({{.header = u"품명"_s}, {.header = u"금액"_s, .kind = CellKind::Money}});
    grid.setRows({{u"가스"_s, u"1,000"_s}, {u"용기"_s, u"2000"_s}, {u"자재"_s, u"-500"_s}});
  }
  SpreadModel grid;
};

TEST_F(SubTotals, RowShowsTheSumAndItsFormula) {
  InsertSubTotal(grid, 4, SubTotal::Whole, 1, {2});
  EXPECT_EQ(grid.text(4, 1), u"[합 계]"_s);
  EXPECT_EQ(grid.formula(4, 2), u"SUM(R1C2:R3C2)"_s);
  EXPECT_EQ(grid.text(4, 2), u"2500"_s);
  EXPECT_TRUE(grid.bold(4));
}

TEST_F(SubTotals, SumFollowsChangedInsertedAndDeletedRows) {
  InsertSubTotal(grid, 4, SubTotal::Part, 1, {2});
  EXPECT_EQ(grid.text(4, 1), u"[소 계]"_s);
  grid.setText(1, 2, u"5,000"_s);
  EXPECT_EQ(grid.text(4, 2), u"6500"_s);
  grid.insertRow(2);
  grid.setText(2, 2, u"1"_s);
  EXPECT_EQ(grid.formula(5, 2), u"SUM(R1C2:R4C2)"_s);
  EXPECT_EQ(grid.text(5, 2), u"6501"_s);
  grid.deleteRow(1);
  EXPECT_EQ(grid.text(4, 2), u"1501"_s);
  grid.setMaxRows(3);
  grid.setText(1, 2, u"7"_s);
  EXPECT_EQ(grid.formula(3, 2), QString());
}

TEST_F(SubTotals, ARowBackupPutsBackEveryCellUnlessTheStepWasStored) {
  const auto row = [this](int at) { return grid.text(at, 1) + grid.text(at, 2); };
  for (const bool stored : {true, false}) {
    RowBackup backup(grid, 2);
    grid.setText(2, 1, u"실병"_s);
    grid.setText(2, 2, u"3000"_s);
    if (stored) backup.stored();
    backup.putBack();
    EXPECT_EQ(row(2), stored ? u"실병3000"_s : u"용기2000"_s);
    grid.setRows({{u"가스"_s, u"1,000"_s}, {u"용기"_s, u"2000"_s}, {u"자재"_s, u"-500"_s}});
  }
  {
    RowBackup first(grid, 1, 1);
    grid.setText(1, 1, u"산소"_s);
    grid.setText(1, 2, u"7"_s);
  }
  EXPECT_EQ(row(1), u"가스7"_s) << "of the columns named alone, at the end of its life";
}

TEST_F(SubTotals, OtherFormulasAreRefused) {
  EXPECT_FALSE(grid.setFormula(1, 2, u"AVG(R1C2:R3C2)"_s));
  EXPECT_FALSE(grid.setFormula(1, 2, u"SUM(R1C1:R3C2)"_s));
  EXPECT_EQ(grid.text(1, 2), u"1,000"_s);
}

}  // namespace
