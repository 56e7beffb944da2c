// The turn of the year by keystrokes on the real window: the year is closed, the clock moves on, January bills carry.
#include "samples/year_end.h"

#include "tests/day/sample_folder.h"

namespace {

TEST(SampleYearEnd, DecemberIsClosedAndJanuaryBillsCarryWhatItLeft) {
  const tests::SampleFolder books(samples::closingClock);
  const samples::YearEndReport year = samples::playYearEnd(books.startedAt(), [](const QString&) {});

  ASSERT_EQ(year.december.size(), 30);
  ASSERT_EQ(year.january.size(), 30);
  int withArrears = 0;
  for (int place = 1; place <= 30; ++place) {
    const samples::MonthBill &last = year.december[place - 1], &first = year.january[place - 1];
    const std::string who = last.name.toStdString();
    EXPECT_EQ(last.use, samples::usedByHousehold(place)) << who;
    // Nobody has paid for December: January brings in all of it, and a charge of 2 percent, cut to ten won.
    EXPECT_EQ(first.code, last.code) << who;
    EXPECT_EQ(first.reading, last.reading + samples::usedByHousehold(place)) << who;
    EXPECT_EQ(first.use, samples::usedByHousehold(place))
        << who << ": from the reading that the closing carried";
    EXPECT_EQ(first.arrears, last.issued) << who;
    EXPECT_EQ(first.late, last.issued * 2 / 100 / 10 * 10) << who;
    EXPECT_EQ(first.issued, first.amount + first.arrears + first.late + first.fee) << who;
    withArrears += first.arrears > 0;
  }
  EXPECT_EQ(withArrears, 30);
  EXPECT_GE(year.carried, 30) << "and what others owed by November's bill";
}

}  // namespace
