// Two years of the sample retailer's meter book, read and paid by the program's rules, closed twice; beside it every
// household's figures once more by plain arithmetic.
#include <QMap>

#include "billing/reading_bill.h"
#include "billing/reading_load.h"
#include "billing/reading_save.h"
#include "billing/reading_sheet.h"
#include "samples/sample_books.h"
#include "store/closing/recarry.h"
#include "store/rate_book.h"
#include "store/year_file.h"
#include "tests/support.h"

namespace {

/** One customer as an accountant keeps him. Won and cubic metres. */
struct Account {
  qint64 price = 0, fee = 0;
  qint64 reading = 0, amount = 0, arrears = 0, late = 0, total = 0;
};

/** Down to ten won; below zero the last digit is taken off once more, as the bill does. */
qint64 cut(double won) {
  const auto whole = qint64(won);
  return whole - std::abs(whole % 10);
}

qint64 usedBy(qint64 code, int month) {
  return 5 + (code * 7 + month * 3) % 40;
}

/** Nothing, all, half in thousands, or a thousand too much. */
qint64 paidBy(qint64 code, int month, qint64 total) {
  switch ((code + month) % 4) {
    case 0:
      return 0;
    case 1:
      return total;
    case 2:
      return total / 2000 * 1000;
    default:
      return total + 1000;
  }
}

struct TwoYears : testing::Test, tests::TestPc {
  QMap<qint64, Account> accounts;

  TwoYears() {
    pc.clock.set(QDateTime(QDate(2026, 1, 5), QTime(9, 0)));
    samples::makeBooks(pc, prompts);
    session.AppTitle = "해온판매";
    session.DbPath = installedDataFolder();
    session.DelayCalcFlag = "0";
    session.wsMain = openWorkspace(session, session.DbPath);
    session.dbBasic = session.wsMain.OpenDatabase(session.DbPath + "Basic.mdb");
    openYearOf(2026);
    EXPECT_TRUE(readRateBook(session));
    const qint64 fees[] = {1000, 800, 900};
    for (auto rs = session.dbYear.OpenRecordset(
             "Select Client.Code, VolumeUnit, HouseStyle, UseGage From Evaporation Left Join Client On "
             "Evaporation.ClientCode = Client.Code Where Mon = 0");
         !rs.atEnd(); rs.MoveNext())
      accounts[rs[0].toLong()] = {
          .price = rs[1].toLong(), .fee = fees[rs[2].toLong()], .reading = rs[3].toLong()};
  }
  void openYearOf(int year) {
    session.WorkYear = QString::number(year);
    session.dbYear = session.wsMain.OpenDatabase(yearFile(session, year));
  }

  void account(qint64 code, int month, qint64 paid) {
    Account& of = accounts[code];
    of.reading += usedBy(code, month);
    of.amount = of.price * usedBy(code, month);
    of.late = cut(2.0 * double(of.arrears) / 100);
    of.total = cut(double(of.amount + of.arrears + of.late + of.fee)) - paid;
  }
  /** What the month brings into the next one. */
  void carry(Account& of, int afterDue) const {
    of.arrears =
        afterDue == 0 || of.total == 0 || of.total == cut(double(of.amount)) ? of.total : of.total - of.late;
  }

  void readAndPay(int year, int month) {
    samples::eachReading(session, QDate(year, month, 26), month,
                         [&](ReadingSheet& sheet, int row) { work(sheet, row, month); });
    for (Account& of : accounts) carry(of, month == 12 ? 0 : session.AfterDueMethod);
  }
  void work(ReadingSheet& sheet, int row, int month) {
    const qint64 code = sheet.code(row).toLongLong();
    sheet.setNumber(row, EvaCol::UseGage,
                    sheet.number(row, EvaCol::PrevUseGage) + double(usedBy(code, month)));
    CalcReadingRow(sheet, row);
    const qint64 paid = paidBy(code, month, qint64(sheet.number(row, EvaCol::Total)));
    sheet.setNumber(row, EvaCol::Pay, double(paid));
    ApplyPayEdit(sheet, 0, row);
    SaveReadingRow(sheet, row);
    account(code, month, paid);
  }
  void closeYearOf(int year) {
    prompts.expect("넘기시겠습니까?");
    prompts.expect("완료되었습니다");
    closeYear(session, {.forecast = [](const ClosingForecast&) { return true; },
                        .progress = [](const QString&, int, int) {},
                        .differs =
                            [](const CarryCheck& check, const QString&) {
                              ADD_FAILURE() << check.differing.size() << " customers differ";
                              return false;
                            }});
    openYearOf(year + 1);
    pc.clock.set(QDateTime(QDate(year + 1, 1, 4), QTime(9, 0)));
  }
  /** Customers whose opening reading or January's arrears are not what the accountant has. */
  int wrong() const {
    int count = 0;
    for (auto rs = session.dbYear.OpenRecordset(
             "Select ClientCode, Mon, UseGage, Trust From Evaporation Where Mon < 2");
         !rs.atEnd(); rs.MoveNext()) {
      const Account& of = accounts[rs[0].toLong()];
      const bool fits = rs[1].toLong() == 0 ? rs[2].toDouble() == double(of.reading)
                                            : rs[3].toDouble() == double(of.arrears);
      if (!fits && ++count < 5)
        ADD_FAILURE() << "customer " << rs[0].toLong() << " month " << rs[1].toLong() << ": "
                      << rs[2].toDouble() << ' ' << rs[3].toDouble() << " for " << of.reading << ' '
                      << of.arrears;
    }
    return count;
  }
};

TEST_F(TwoYears, EveryHouseholdOpensEachYearWithWhatAnAccountantHas) {
  for (int month = 1; month <= 12; ++month) readAndPay(2026, month);
  closeYearOf(2026);
  EXPECT_EQ(wrong(), 0);
  session.AfterDueMethod = 1;
  for (int month = 1; month <= 12; ++month) readAndPay(2027, month);
  closeYearOf(2027);
  EXPECT_EQ(wrong(), 0) << "the closing carries the whole bill, whatever the setting";
  int owing = 0, over = 0;
  for (Account& of : accounts) {
    owing += of.arrears > 0;
    over += of.arrears < 0;
    carry(of, 1);
  }
  EXPECT_GT(owing, 20);
  EXPECT_GT(over, 10);
  prompts.expect("다시 이월하시겠습니까?");
  prompts.expect("체적검침 재이월이 완료되었습니다.");
  recarry(session, [](const QString&, int, int) {});
  EXPECT_EQ(wrong(), 0) << "the carry once more follows it";
}

}  // namespace
