// A process that enters meter readings, as poster.cpp does sales.
#include <QRandomGenerator>

#include "billing/reading_edit.h"
#include "billing/reading_load.h"
#include "billing/reading_sheet.h"
#include "store/rate_book.h"
#include "tests/storm/books.h"
#include "tests/storm/poster.h"

namespace storm {

int runReader(const QStringList& arguments) {
  OpenPc here(arguments.at(0));
  here.session.DelayCalcFlag = "0";
  if (!readRateBook(here.session)) return 6;
  QRandomGenerator random(arguments.at(1).toUInt());
  ReadingSheet sheet(here.session);
  sheet.month = readMonth;
  fillBuildings(sheet);
  showReadings(sheet);
  report(word::ready);
  for (;;) {
    const int row = 1 + random.bounded(sheet.grid.MaxRows());
    const QString meter = QString::number(1 + random.bounded(400));
    if (meter == sheet.grid.text(row, EvaCol::UseGage)) continue;
    report(word::at, sheet.code(row));
    if (finishReadingCell(sheet, row, EvaCol::UseGage, meter).end != ReadingEdit::Done) return 7;
    report(word::read, sheet.code(row), meter, qint64(sheet.number(row, EvaCol::Total)));
  }
}

}  // namespace storm
