// This year's meter book so far, by the program's own rules: what is read, billed and paid is what the screen would do.
#include "billing/reading_bill.h"
#include "billing/reading_load.h"
#include "billing/reading_save.h"
#include "billing/reading_sheet.h"
#include "samples/sample_books.h"
#include "samples/sample_town.h"

using namespace Qt::StringLiterals;

namespace samples {
namespace {

class MeterBooks {
 public:
  explicit MeterBooks(Session& session) : session_(session), now_(session.pc.clock.now()) {}
  ~MeterBooks() { session_.pc.clock.set(now_); }
  MeterBooks(const MeterBooks&) = delete;
  MeterBooks& operator=(const MeterBooks&) = delete;

  void write() {
    eachReading(session_, {now_.date().year(), 1, 2}, 0, [this](ReadingSheet& sheet, int row) {
      sheet.setNumber(row, EvaCol::UseGage, 100 + dice_.roll(800));
      SaveReadingRow(sheet, row);
    });
    for (int month = 1; month < now_.date().month(); ++month) {
      eachReading(session_, {now_.date().year(), month, 26}, month, [this](ReadingSheet& sheet, int row) {
        read(sheet, row);
        pay(sheet, row);
      });
    }
  }

 private:
  /** Cubic metres: a household cooks, a shop lives on it. */
  void read(ReadingSheet& sheet, int row) {
    const int used = sheet.book == HouseStyle::Individual ? 60 + dice_.roll(90) : 8 + dice_.roll(15);
    sheet.setNumber(row, EvaCol::UseGage, sheet.number(row, EvaCol::PrevUseGage) + used);
    CalcReadingRow(sheet, row);
    sheet.grid.setText(row, EvaCol::Prnt, u"1"_s);
    SaveReadingRow(sheet, row);
  }

  /** Four of five pay in the first days of the next month, a few of them half; nobody has paid in the future. */
  void pay(ReadingSheet& sheet, int row) {
    const QDate paid = session_.pc.clock.today().addDays(7 + dice_.roll(8));
    const bool pays = dice_.chance(80), half = dice_.chance(10);
    if (!pays || paid >= now_.date()) return;
    const double issued = sheet.number(row, EvaCol::Total);
    const double before = sheet.number(row, EvaCol::Pay);
    sheet.setNumber(row, EvaCol::Pay, half ? double(qint64(issued / 2000) * 1000) : issued);
    ApplyPayEdit(sheet, before, row);
    sheet.grid.setText(row, EvaCol::TrustDay, paid.toString(u"MM/dd"));
    SaveReadingRow(sheet, row);
  }

  Session& session_;
  const QDateTime now_;
  Dice dice_{20260105};  // of its own: the rest of the books stays as it is
};

}  // namespace

void eachReading(Session& session, const QDate& day, int month,
                 const std::function<void(ReadingSheet& sheet, int row)>& work) {
  session.pc.clock.set(day.startOfDay().addSecs(9 * 3600));
  for (const HouseStyle book : {HouseStyle::Individual, HouseStyle::Apartment, HouseStyle::MultiHousehold}) {
    ReadingSheet sheet(session);
    sheet.book = book;
    sheet.month = month;
    fillBuildings(sheet);
    if (!sheet.buildings.isEmpty()) sheet.building = 0;
    RefreshReadingGrid(sheet);
    session.wsMain.Together([&] {
      for (int row = 1; row <= sheet.grid.MaxRows(); ++row) work(sheet, row);
    });
  }
}

void writeReadings(Town& town) {
  town.session.DelayCalcFlag = u"0"_s;
  readRateBook(town.session);
  MeterBooks(town.session).write();
}

}  // namespace samples
