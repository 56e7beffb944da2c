#include "billing/reading_panel.h"

#include "billing/reading_sheet.h"
#include "store/data_access.h"
#include "store/session.h"
#include "store/text_width.h"

using namespace Qt::StringLiterals;

namespace {

QString orUnknown(const QString& text) {
  return text.trimmed().isEmpty() ? u"미입력"_s : text;
}

}  // namespace

ReadingPanel enterReadingRow(ReadingSheet& sheet, int row) {
  if (sheet.code(row).isEmpty()) return {};
  const auto known = [&](int col) { return orUnknown(sheet.grid.text(row, col)); };
  ReadingPanel panel;
  panel.status = u" 상호/성명:"_s + known(EvaCol::ClientName) + u"   전화:"_s + known(EvaCol::Tel) +
                 u"   주소:"_s + known(EvaCol::Address);
  QString reader, collector;
  jet::Recordset rs;
  if (OpenSnapshot(sheet.session.prompts, sheet.session.dbYear, rs,
                   u"Select PrntDay, ChkMan, CashMan From Evaporation Where ClientCode = "_s +
                       sheet.code(row) + u" And Mon = "_s + QString::number(sheet.month)) &&
      !rs.atEnd()) {
    if (!rs[0].isNull()) sheet.readingDay = rs[0].toText().trimmed() + u' ';
    reader = rs[1].toText();
    collector = rs[2].toText();
  }
  panel.man = u"체적단가 : "_s + moneyText(sheet.number(row, EvaCol::VolumeUnit)) + u"원  검침원 : "_s +
              orUnknown(reader) + u"  수금원 : "_s + orUnknown(collector);
  return panel;
}
