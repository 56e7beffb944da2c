#include "billing/reading_panel.h"

#include <optional>

#include "billing/reading_sheet.h"
#include "store/data_access.h"
#include "store/jet/sql.h"
#include "store/session.h"
#include "store/text_width.h"

using namespace Qt::StringLiterals;

namespace {

QString orUnknown(const QString& text) {
  return text.trimmed().isEmpty() ? u"미입력"_s : text;
}

/** What the table holds beside the cells. */
struct RowNotes {
  std::optional<QString> readingDay;  ///< nothing while the row has none
  QString reader, collector;
};

RowNotes rowNotes(const ReadingSheet& sheet, int row) {
  jet::Recordset rs;
  if (!OpenSnapshot(sheet.session.prompts, sheet.session.dbYear, rs,
                    jet::Sql() << u"Select PrntDay, ChkMan, CashMan From Evaporation Where ClientCode = "
                               << sheet.code(row) << u" And Mon = " << sheet.month) ||
      rs.atEnd())
    return {};
  RowNotes notes{{}, rs[1].toText(), rs[2].toText()};
  if (!rs[0].isNull()) notes.readingDay = rs[0].toText().trimmed() + u' ';
  return notes;
}

/** The row's own reading day, when it has one, becomes the sheet's. */
void takeReadingDay(ReadingSheet& sheet, const RowNotes& notes) {
  if (notes.readingDay) sheet.readingDay = *notes.readingDay;
}

}  // namespace

void takeStoredReadingDay(ReadingSheet& sheet, int row) {
  takeReadingDay(sheet, rowNotes(sheet, row));
}

ReadingPanel enterReadingRow(ReadingSheet& sheet, int row) {
  if (sheet.code(row).isEmpty()) return {};
  const auto known = [&](int col) { return orUnknown(sheet.grid.text(row, col)); };
  ReadingPanel panel;
  panel.status = u" 상호/성명:"_s + known(EvaCol::ClientName) + u"   전화:"_s + known(EvaCol::Tel) +
                 u"   주소:"_s + known(EvaCol::Address);
  const RowNotes notes = rowNotes(sheet, row);
  takeReadingDay(sheet, notes);
  panel.man = u"체적단가 : "_s + moneyText(sheet.number(row, EvaCol::VolumeUnit)) + u"원  검침원 : "_s +
              orUnknown(notes.reader) + u"  수금원 : "_s + orUnknown(notes.collector);
  return panel;
}
