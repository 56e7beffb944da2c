// The road of a bill by keystrokes on the real window: readings, slips on paper, the bank's file, the next month.
#include "samples/month.h"

#include <QProcess>

#include "tests/day/sample_folder.h"

namespace {

/** The law of the bill for these books: 2450 won a cubic metre, 2 percent of the arrears down to ten won. */
void expectBill(const samples::MonthBill& bill, int used, qint64 fee) {
  const std::string who = bill.name.toStdString();
  EXPECT_EQ(bill.use, used) << who;
  EXPECT_EQ(bill.amount, 2450 * used) << who;
  EXPECT_EQ(bill.late, bill.arrears * 2 / 100 / 10 * 10) << who;
  EXPECT_EQ(bill.fee, fee) << who;
  EXPECT_EQ(bill.issued, bill.amount + bill.arrears + bill.late + fee) << who;
}

QString pdfText(const QString& file) {
  QProcess reader;
  reader.start("pdftotext", {"-layout", file, "-"});
  EXPECT_TRUE(reader.waitForFinished());
  return QString::fromUtf8(reader.readAllStandardOutput());
}

TEST(SampleMonth, ReadingsBecomeSlipsTheBanksFileAndTheNextMonthsArrears) {
  tests::SampleFolder books("2026-03-16 09:00:00");
  books.pdf = books.root.filePath("slips.pdf");
  const samples::MonthReport month = samples::playMonth(books.startedAt(), [](const QString&) {});

  ASSERT_EQ(month.block.size(), 30);
  ASSERT_EQ(month.shops.size(), 19);
  for (int place = 1; place <= 30; ++place)
    expectBill(month.block[place - 1], samples::usedByHousehold(place), 800);
  for (int place = 1; place <= 19; ++place)
    expectBill(month.shops[place - 1], samples::usedByShop(place), 1000);

  // 11 m3 without arrears: 26,950 + 800; paid at the bank, April opens with nothing.
  EXPECT_EQ(month.block[0].issued, 27750);
  EXPECT_EQ(month.block[0].nextArrears, 0);
  // 13 m3 and 47,350 won open: 31,850 + 47,350 + 940 + 800; not paid.
  EXPECT_EQ(month.block[2].issued, 80940);
  EXPECT_EQ(month.block[2].nextArrears, 80940);
  int paid = 0;
  for (const samples::MonthBill& bill : month.block) {
    paid += bill.paid > 0;
    EXPECT_EQ(bill.nextArrears, bill.issued - bill.paid) << bill.name.toStdString();
  }
  EXPECT_EQ(paid, 20);
  EXPECT_EQ(month.paidSlips, 20);

  const QString slips = pdfText(books.pdf);
  EXPECT_EQ(slips.count(u'\f'), 15) << "two slips a sheet";
  EXPECT_EQ(slips.count("<11<"), 30);
  // Customer 3: 3 x 2 leaves 4 to ten; 80940 by 7, 3, 1 from the right: 0 + 12 + 9 + 0 + 24, 5 to ten.
  const QString scanned = QString(slips).remove(u' ');
  EXPECT_TRUE(scanned.contains("<0000000++34++809405<<11<")) << "the line that the bank's reader takes";

  const QString statements = pdfText(books.root.filePath("거래명세표.pdf"));
  EXPECT_EQ(statements.count(u'\f'), samples::statementsIssued) << "a sheet each";
  EXPECT_EQ(statements.count("(공급받는자 보관용)"), samples::statementsIssued);
  const QString invoices = pdfText(books.root.filePath("세금계산서.pdf"));
  EXPECT_GT(month.invoices, 50);
  EXPECT_EQ(invoices.count(u'\f'), month.invoices);
  EXPECT_TRUE(invoices.contains("2603-001"));
}

}  // namespace
