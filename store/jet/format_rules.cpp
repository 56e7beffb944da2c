#include "store/jet/format_rules.h"

#include <QDateTime>
#include <QStringList>
#include <cmath>

#include "store/jet/text_rules.h"

using namespace Qt::StringLiterals;

namespace jet {
namespace {

/** A piece of a picture: a run of one placeholder letter, or literal text (quoted, escaped or plain). */
struct PicturePiece {
  QChar mark;  ///< null for literal text
  QString text;
};

std::vector<PicturePiece> picturePieces(QStringView picture, QStringView marks, bool runs) {
  std::vector<PicturePiece> pieces;
  const auto literal = [&](QStringView text) {
    if (pieces.empty() || !pieces.back().mark.isNull()) pieces.push_back({});
    pieces.back().text += text;
  };
  for (qsizetype at = 0; at < picture.size(); ++at) {
    const QChar c = picture[at];
    if (c == u'\\' && at + 1 < picture.size()) {
      literal(picture.sliced(++at, 1));
    } else if (c == u'"') {
      const qsizetype close = picture.indexOf(u'"', at + 1);
      const qsizetype end = close < 0 ? picture.size() : close;
      literal(picture.sliced(at + 1, end - at - 1));
      at = end;
    } else if (marks.contains(c, Qt::CaseInsensitive)) {
      const QChar mark = c.toLower();
      if (runs && !pieces.empty() && pieces.back().mark == mark) {
        pieces.back().text += c;
      } else {
        pieces.push_back({mark, QString(c)});
      }
    } else {
      literal(picture.sliced(at, 1));
    }
  }
  return pieces;
}

QStringList pictureSections(QStringView picture) {
  QStringList sections{QString()};
  bool quoted = false;
  for (qsizetype at = 0; at < picture.size(); ++at) {
    const QChar c = picture[at];
    if (c == u'\\' && !quoted && at + 1 < picture.size()) {
      sections.last() += c;
      sections.last() += picture[++at];
      continue;
    }
    if (c == u'"') quoted = !quoted;
    if (c == u';' && !quoted) {
      sections << QString();
    } else {
      sections.last() += c;
    }
  }
  return sections;
}

/** The digits of a number rounded to places, half away from zero as its 15 significant digits show it. */
QString roundedDigits(double number, int places) {
  QString digits = QString::number(number, 'e', 14);  // d.dddddddddddddde+xx
  const int exponent = digits.mid(digits.indexOf(u'e') + 1).toInt();
  digits = digits.left(digits.indexOf(u'e')).remove(u'.');
  int keep = exponent + 1 + places;  // digits that stay
  if (keep < 0) return u"0"_s.repeated(places);
  if (keep >= digits.size()) return digits + u"0"_s.repeated(keep - digits.size());
  const bool up = digits[keep] >= u'5';
  digits.truncate(keep);
  if (keep <= places) digits.prepend(u"0"_s.repeated(places - keep));
  for (qsizetype at = digits.size() - 1; up && at >= -1; --at) {
    if (at < 0) {
      digits.prepend(u'1');
    } else if (digits[at] == u'9') {
      digits[at] = u'0';
      continue;
    } else {
      digits[at] = QChar(digits[at].unicode() + 1);
    }
    break;
  }
  return digits;
}

/** What a section's placeholders ask for. */
struct NumberPicture {
  int whole = 0, fraction = 0;
  bool point = false, thousands = false, percent = false;
  int thousandsDown = 0;  ///< commas right before the point divide
};

NumberPicture readNumberPicture(const std::vector<PicturePiece>& pieces) {
  NumberPicture read;
  int commas = 0;
  for (const PicturePiece& piece : pieces) {
    if (piece.mark == u'0' || piece.mark == u'#') {
      if (commas > 0) read.thousands = true;
      commas = 0;
      (read.point ? read.fraction : read.whole)++;
    } else if (piece.mark == u',' && read.whole > 0 && !read.point) {
      ++commas;
    } else if (piece.mark == u'.') {
      if (!read.point) read.thousandsDown = commas;
      commas = 0;
      read.point = true;
    } else if (piece.mark == u'%') {
      read.percent = true;
    }
  }
  if (!read.point) read.thousandsDown = commas;
  return read;
}

QString formatSection(double number, const QString& section) {
  const auto pieces = picturePieces(section, u"0#.,%", false);
  const NumberPicture read = readNumberPicture(pieces);
  if (read.percent) number *= 100;
  number /= std::pow(1000.0, read.thousandsDown);

  QString whole = roundedDigits(number, read.fraction);
  const QString fraction = whole.right(read.fraction);
  whole.chop(read.fraction);
  while (whole.startsWith(u'0')) whole.remove(0, 1);

  QString text;
  int wholeSeen = 0, fractionSeen = 0;
  bool zeros = false, behindPoint = false;
  const auto putWhole = [&](int place) {  // place counts from the point, from 0
    if (place < whole.size()) {
      text += whole[whole.size() - 1 - place];
    } else if (zeros) {
      text += u'0';
    } else {
      return;
    }
    if (read.thousands && place > 0 && place % 3 == 0) text += u',';
  };
  for (const PicturePiece& piece : pieces) {
    if (piece.mark.isNull()) {
      text += piece.text;
    } else if (piece.mark == u'.') {
      if (!behindPoint && read.whole == 0)
        for (int place = int(whole.size()) - 1; place >= 0; --place) putWhole(place);
      if (!behindPoint) text += u'.';
      behindPoint = true;
    } else if (piece.mark == u'%') {
      text += u'%';
    } else if (piece.mark == u'0' || piece.mark == u'#') {
      if (behindPoint) {
        QStringView rest = QStringView(fraction).sliced(fractionSeen);
        const bool moreDigits = rest.count(u'0') < rest.size();
        if (piece.mark == u'0' || moreDigits) text += fraction[fractionSeen];
        ++fractionSeen;
        continue;
      }
      zeros = zeros || piece.mark == u'0';
      const int place = read.whole - 1 - wholeSeen;
      if (wholeSeen == 0)
        for (int more = int(whole.size()) - 1; more > place; --more) putWhole(more);
      putWhole(place);
      ++wholeSeen;
    }
  }
  return text;
}

const char16_t* const kWeekdays[] = {u"월", u"화", u"수", u"목", u"금", u"토", u"일"};

QString twoDigits(int number) {
  return QString::number(number).rightJustified(2, u'0');
}

QString datePiece(const QDateTime& moment, QChar mark, qsizetype count, bool minutes, bool half) {
  const QDate day = moment.date();
  const QTime time = moment.time();
  QString weekday = QString::fromUtf16(kWeekdays[day.dayOfWeek() - 1]);
  const auto number = [count](int n) { return count == 1 ? QString::number(n) : twoDigits(n); };
  switch (mark.unicode()) {
    case u'y':
      if (count == 1) return QString::number(day.dayOfYear());
      return count == 2 ? twoDigits(day.year() % 100) : QString::number(day.year()).rightJustified(4, u'0');
    case u'm':
      if (minutes) return number(time.minute());
      return count > 2 ? QString::number(day.month()) + u'월' : number(day.month());
    case u'd':
      if (count <= 2) return number(day.day());
      if (count == 3) return weekday;
      if (count == 4) return weekday + u"요일"_s;
      if (count == 5) return day.toString(u"yyyy-MM-dd"_s);
      return u"%1년 %2월 %3일 %4요일"_s.arg(day.year()).arg(day.month()).arg(day.day()).arg(weekday);
    case u'h':
      return number(half ? (time.hour() + 11) % 12 + 1 : time.hour());
    case u'n':
      return number(time.minute());
    case u's':
      return number(time.second());
    default:  // the date separator of the PC, whose short date is yyyy-MM-dd
      return u"-"_s.repeated(count);
  }
}

bool isDatePicture(QStringView picture) {
  for (const PicturePiece& piece : picturePieces(picture, u"ymdhns0#", true)) {
    if (piece.mark == u'0' || piece.mark == u'#') return false;
    if (!piece.mark.isNull()) return true;
  }
  return false;
}

}  // namespace

QString formatNumber(double number, QStringView picture) {
  const QStringList sections = pictureSections(picture);
  const auto has = [&](int index) { return index < sections.size() && !sections[index].isEmpty(); };
  if (number == 0 && has(2)) return formatSection(0, sections[2]);
  if (number < 0 && has(1)) return formatSection(-number, sections[1]);
  const QString text = formatSection(std::fabs(number), sections[0]);
  return number < 0 ? u'-' + text : text;
}

QString formatDate(const QDateTime& moment, QStringView picture) {
  if (!moment.isValid()) return {};
  QString marked = picture.toString();
  const qsizetype half = marked.indexOf(u"AM/PM"_s, 0, Qt::CaseInsensitive);
  if (half >= 0) marked.replace(half, 5, moment.time().hour() < 12 ? u"\"오전\""_s : u"\"오후\""_s);
  QString text;
  QChar before;
  for (const PicturePiece& piece : picturePieces(marked, u"ymdhns/", true)) {
    if (piece.mark.isNull()) {
      text += piece.text;
      continue;
    }
    text += datePiece(moment, piece.mark, piece.text.size(), piece.mark == u'm' && before == u'h', half >= 0);
    before = piece.mark;
  }
  return text;
}

QString format(const Value& value, QStringView picture) {
  if (value.isNull()) return {};
  if (picture.isEmpty()) return value.toText();
  if (isDatePicture(picture)) {
    const QString text = value.toText().trimmed();
    QDateTime moment = QDateTime::fromString(text, u"yyyy-MM-dd HH:mm:ss"_s);
    if (!moment.isValid()) moment = QDate::fromString(text, u"yyyy-MM-dd"_s).startOfDay();
    return moment.isValid() ? formatDate(moment, picture) : value.toText();
  }
  if (!value.isText()) return formatNumber(value.toDouble(), picture);
  const auto number = numberOf(value.toText());
  return number ? formatNumber(*number, picture) : value.toText();
}

}  // namespace jet
