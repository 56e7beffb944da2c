#include "billing/reading_panel.h"

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

/** What the table holds beside the cells; the row's own reading day becomes the sheet's. */
jet::Recordset openRowNotes(ReadingSheet& sheet, int row) {
  jet::Recordset rs;
  if (OpenSnapshot(sheet.session.prompts, sheet.session.dbYear, rs,
                   jet::Sql() << u"Select PrntDay, ChkMan, CashMan From Evaporation Where ClientCode = "
                              << sheet.code(row) << u" And Mon = " << sheet.month) &&
      !rs.atEnd() && !rs[0].isNull())
    sheet.readingDay = rs[0].toText().trimmed() + u' ';
  return rs;
}

}  // namespace

void takeStoredReadingDay(ReadingSheet& sheet, int row) {
  openRowNotes(sheet, row);
}

ReadingPanel enterReadingRow(ReadingSheet& sheet, int row) {
  if (sheet.code(row).isEmpty()) return {};
  const auto known = [&](int col) { return orUnknown(sheet.grid.text(row, col)); };
  ReadingPanel panel;
  panel.status = u" 상호/성명:"_s + known(EvaCol::ClientName) + u"   전화:"_s + known(EvaCol::Tel) +
                 u"   주소:"_s + known(EvaCol::Address);
  QString reader, collector;
  const jet::Recordset notes = openRowNotes(sheet, row);
  if (notes.isOpen() && !notes.atEnd()) {
    reader = notes[1].toText();
    collector = notes[2].toText();
  }
  panel.man = u"체적단가 : "_s + moneyText(sheet.number(row, EvaCol::VolumeUnit)) + u"원  검침원 : "_s +
              orUnknown(reader) + u"  수금원 : "_s + orUnknown(collector);
  return panel;
}
