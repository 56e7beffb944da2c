// A process that enters meter readings, as poster.cpp does sales.
#include <QRandomGenerator>

#include "billing/reading_edit.h"
#include "billing/reading_load.h"
#include "billing/reading_sheet.h"
#include "store/rate_book.h"
#include "tests/storm/books.h"
#include "tests/storm/poster.h"

using namespace Qt::StringLiterals;

namespace storm {

int runReader(const QStringList& arguments) {
  Pc here(arguments.at(0));
  here.open();
  here.session.DelayCalcFlag = u"0"_s;
  if (!readRateBook(here.session)) return 6;
  QRandomGenerator random(arguments.at(1).toUInt());
  ReadingSheet sheet(here.session);
  sheet.month = readMonth;
  fillBuildings(sheet);
  showReadings(sheet);
  report(QLatin1String(word::ready));
  for (;;) {
    const int row = 1 + random.bounded(sheet.grid.MaxRows());
    const QString meter = QString::number(1 + random.bounded(400));
    if (meter == sheet.grid.text(row, EvaCol::UseGage)) continue;
    report(QLatin1String(word::at) + u' ' + sheet.code(row));
    if (finishReadingCell(sheet, row, EvaCol::UseGage, meter).end != ReadingEdit::Done) return 7;
    report(u"%1 %2 %3 %4"_s.arg(QLatin1String(word::read), sheet.code(row), meter)
               .arg(qint64(sheet.number(row, EvaCol::Total))));
  }
}

}  // namespace storm
