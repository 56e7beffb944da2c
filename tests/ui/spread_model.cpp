#include "ui/model/spread_model.h"

#include "ui/model/row_backup.h"

namespace {

class SubTotals : public ::testing::Test {
 protected:
  SubTotals() {
    grid.setColumns({{.header = "품명"}, {.header = "금액", .kind = CellKind::Money}});
    grid.setRows({{"가스", "1,000"}, {"용기", "2000"}, {"자재", "-500"}});
  }
  SpreadModel grid;
};

TEST_F(SubTotals, RowShowsTheSumAndItsFormula) {
  InsertSubTotal(grid, 4, SubTotal::Whole, 1, {2});
  EXPECT_EQ(grid.text(4, 1), "[합 계]");
  EXPECT_EQ(grid.formula(4, 2), "SUM(R1C2:R3C2)");
  EXPECT_EQ(grid.text(4, 2), "2500");
  EXPECT_TRUE(grid.bold(4));
}

TEST_F(SubTotals, SumFollowsChangedInsertedAndDeletedRows) {
  InsertSubTotal(grid, 4, SubTotal::Part, 1, {2});
  EXPECT_EQ(grid.text(4, 1), "[소 계]");
  grid.setText(1, 2, "5,000");
  EXPECT_EQ(grid.text(4, 2), "6500");
  grid.insertRow(2);
  grid.setText(2, 2, "1");
  EXPECT_EQ(grid.formula(5, 2), "SUM(R1C2:R4C2)");
  EXPECT_EQ(grid.text(5, 2), "6501");
  grid.deleteRow(1);
  EXPECT_EQ(grid.text(4, 2), "1501");
  grid.setMaxRows(3);
  grid.setText(1, 2, "7");
  EXPECT_EQ(grid.formula(3, 2), QString());
}

TEST_F(SubTotals, ARowBackupPutsBackEveryCellUnlessTheStepWasStored) {
  const auto row = [this](int at) { return grid.text(at, 1) + grid.text(at, 2); };
  for (const bool stored : {true, false}) {
    RowBackup backup(grid, 2);
    grid.setText(2, 1, "실병");
    grid.setText(2, 2, "3000");
    if (stored) backup.stored();
    backup.putBack();
    EXPECT_EQ(row(2), stored ? "실병3000" : "용기2000");
    grid.setRows({{"가스", "1,000"}, {"용기", "2000"}, {"자재", "-500"}});
  }
  {
    RowBackup first(grid, 1, 1);
    grid.setText(1, 1, "산소");
    grid.setText(1, 2, "7");
  }
  EXPECT_EQ(row(1), "가스7") << "of the columns named alone, at the end of its life";
}

TEST_F(SubTotals, OtherFormulasAreRefused) {
  EXPECT_FALSE(grid.setFormula(1, 2, "AVG(R1C2:R3C2)"));
  EXPECT_FALSE(grid.setFormula(1, 2, "SUM(R1C1:R3C2)"));
  EXPECT_EQ(grid.text(1, 2), "1,000");
}

}  // namespace
