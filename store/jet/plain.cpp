#include "store/jet/plain.h"

#include <algorithm>

#include "store/jet/error_texts.h"
#include "store/jet/lexer.h"

using namespace Qt::StringLiterals;

namespace jet {
namespace {

/** Stands before the place that is refused. No character of any language, and no statement holds it otherwise. */
constexpr QChar kRefused(u'\xFDD0');

QString refusedAt(const QString& text, qsizetype place) {
  return place < 0 ? text : QString(text).insert(place, kRefused);
}

bool isDigits(QStringView text) {
  return std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

QStringView withoutSign(QStringView text) {
  return text.startsWith(u'-') || text.startsWith(u'+') ? text.sliced(1) : text;
}

/** As numbers are written here: "-12.5", and "1.5E-05" for what is very small or large. */
bool isOneNumber(QStringView text) {
  const qsizetype e = text.indexOf(u'E');
  const QStringView exponent = e < 0 ? QStringView(u"0") : withoutSign(text.sliced(e + 1));
  if (e >= 0) text = text.first(e);
  text = withoutSign(text);
  const qsizetype point = text.indexOf(u'.');
  const QStringView whole = point < 0 ? text : text.first(point);
  const QStringView places = point < 0 ? QStringView() : text.sliced(point + 1);
  return isDigits(whole) && isDigits(places) && !(whole.isEmpty() && places.isEmpty()) &&
         isDigits(exponent) && !exponent.isEmpty();
}

}  // namespace

QString plainText(const QString& text) {
  return refusedAt(text, text.indexOf(u'\''));
}

QString plainNumber(const QString& text) {
  return refusedAt(text, isOneNumber(text) ? -1 : 0);
}

QString plainPath(const QString& path) {
  return refusedAt(path, path.indexOf(u']'));
}

QString copiedText(QString text) {
  return text.remove(kRefused).replace(u'\'', u"''"_s);
}

void requirePlain(QStringView sql) {
  const qsizetype at = sql.indexOf(kRefused);
  if (at < 0) return;
  const QString shown = shownSql(sql);
  const QStringView there = QStringView(shown).sliced(at);
  const QString what = there.startsWith(u'\'')  ? u"글자 속에 작은따옴표가 있습니다"_s
                       : there.startsWith(u']') ? u"경로에 대괄호가 있습니다"_s
                                                : u"숫자가 아닙니다"_s;
  fail(3075, syntaxText(shown, at, what) + u'\r' + shown);
}

QString shownSql(QStringView sql) {
  return sql.toString().remove(kRefused);
}

}  // namespace jet
