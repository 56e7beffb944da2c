// The whole road by keystrokes on the real window: the sample day, read back from the data files.
#include "samples/day.h"

#include <QCoreApplication>

#include "tests/day/sample_folder.h"

namespace {

TEST(SampleDay, BalancesAndStockAreRightToTheWonAndThePiece) {
  const tests::SampleFolder books;
  samples::Stage stage(books.options());
  const samples::DayReport day = samples::playDay(stage, [](const QString&) {});
  // 50,000 owed; 30,000 collected; 7,000 of the delivery left on credit.
  EXPECT_EQ(day.before.gasInit, 50000);
  EXPECT_EQ(day.after.gasInit, 27000);
  EXPECT_EQ(day.after.utilInit, day.before.utilInit);
  // One full 20 kg cylinder out, its empty one back; the loan was taken back by deleting it. Ten empty ones were filled.
  EXPECT_EQ(day.after.stockKilograms, day.before.stockKilograms - 20 + 200);
  EXPECT_EQ(day.after.full, day.before.full - 1 + 10);
  EXPECT_EQ(day.after.empty, day.before.empty + 1 - 10);
  EXPECT_EQ(day.after.loan, day.before.loan);
  EXPECT_EQ(day.after.total, day.before.total);
  EXPECT_EQ(day.after.lastDate, "2026-03-16");
  EXPECT_EQ(day.lines, (QStringList{"1\tLPG\t20\t1\t20000\t7000", "4\t가스수금\t0\t0\t30000\t20000"}));
  EXPECT_EQ(day.purchases, QStringList{"달빛충전소\t1\tLPG\t20\t10\t100000\t80000"});
  const QStringList stock = day.stock.split('\t');
  ASSERT_EQ(stock.size(), 4);
  EXPECT_EQ(stock[3].toLongLong(), day.after.full);
  EXPECT_EQ(stock[0].toLongLong() + stock[1].toLongLong() - stock[2].toLongLong(), day.after.full);
  EXPECT_GE(stock[1].toLongLong(), 10);
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
