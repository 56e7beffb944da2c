#include "pc/text_width.h"

#include <algorithm>

#include "pc/cp949.h"

namespace {

/** Places of a character that certainly stands in the code page; 0 where its table must be asked. */
int placesOf(QChar character) {
  const char16_t code = character.unicode();
  if (code < 0x80) return 1;
  return code >= u'가' && code <= u'힣' ? 2 : 0;
}

}  // namespace

int widthOf(const QString& text) {
  int width = 0;
  for (const QChar character : text) {
    const int places = placesOf(character);
    if (places == 0) return int(pc::toCp949(text).size());
    width += places;
  }
  return width;
}

QString CutByWidth(const QString& text, int width) {
  if (std::ranges::any_of(text, [](QChar character) { return placesOf(character) == 0; })) {
    QString cut = pc::fromCp949(pc::toCp949(text).left(qMax(0, width)));
    if (cut.endsWith(QChar(QChar::ReplacementCharacter))) cut.back() = u' ';
    return cut;
  }
  qsizetype whole = 0;
  for (; whole < text.size() && placesOf(text[whole]) <= width; ++whole) width -= placesOf(text[whole]);
  const bool half = whole < text.size() && width > 0;
  return half ? text.left(whole) + u' ' : text.left(whole);
}
