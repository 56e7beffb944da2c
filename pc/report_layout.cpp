#include "pc/report_layout.h"

#include <QRegularExpression>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace pc {
namespace {

constexpr double pointsAnInch = 72, millimetresAnInch = 25.4;
constexpr double lineSpacing = 1.5, rowSpacing = 1.9;

struct LayoutWord {
  QString text;
  bool quoted = false;
};

using LayoutWords = std::vector<LayoutWord>;

/** The words of one line; what stands behind # outside quotes is a remark. */
LayoutWords wordsOf(const QString& line) {
  LayoutWords words;
  for (qsizetype at = 0; at < line.size();) {
    if (line[at].isSpace()) {
      ++at;
    } else if (line[at] == u'#') {
      break;
    } else if (line[at] == u'"') {
      const qsizetype close = line.indexOf(u'"', at + 1);
      if (close < 0) throw ReportError{u"따옴표가 닫히지 않았습니다"_s};
      words.push_back({line.mid(at + 1, close - at - 1), true});
      at = close + 1;
    } else {
      const qsizetype from = at;
      while (at < line.size() && !line[at].isSpace() && line[at] != u'"') ++at;
      words.push_back({line.mid(from, at - from), false});
    }
  }
  return words;
}

/** Takes a line's words one after the other; what is missing or left over is told. */
class LayoutReader {
 public:
  explicit LayoutReader(LayoutWords words) : words_(std::move(words)) {}

  bool atEnd() const { return at_ == words_.size(); }
  QString word(const char16_t* what) {
    if (atEnd()) throw ReportError{QString::fromUtf16(what) + u" 빠졌습니다"_s};
    return words_[at_++].text;
  }
  QString quoted(const char16_t* what) {
    if (atEnd() || !words_[at_].quoted) throw ReportError{QString::fromUtf16(what) + u" 빠졌습니다"_s};
    return words_[at_++].text;
  }
  bool isQuoted() const { return !atEnd() && words_[at_].quoted; }
  bool take(QStringView word) {
    if (atEnd() || words_[at_].quoted || words_[at_].text != word) return false;
    ++at_;
    return true;
  }
  bool isNumber() const {
    bool number = false;
    if (!atEnd() && !words_[at_].quoted) words_[at_].text.toDouble(&number);
    return number;
  }
  double number(const char16_t* what, double least, double most) {
    const QString text = word(what);
    bool read = false;
    const double number = text.toDouble(&read);
    if (!read || !(number >= least && number <= most))
      throw ReportError{u"'"_s + text + u"'은(는) 쓸 수 없는 크기입니다"_s};
    return number;
  }
  ReportAlign align() {
    if (take(u"center")) return ReportAlign::Center;
    if (take(u"right")) return ReportAlign::Right;
    take(u"left");
    return ReportAlign::Left;
  }
  void finish() const {
    if (!atEnd()) throw ReportError{u"모르는 낱말 '"_s + words_[at_].text + u"'이(가) 있습니다"_s};
  }

 private:
  LayoutWords words_;
  size_t at_ = 0;
};

bool isNumberField(const QString& field) {
  return field.startsWith("Lng"_L1) || field.startsWith("Dbl"_L1);
}

QString liveName(const QString& name) {
  static const QRegularExpression names(u"^[\\p{L}\\p{N}_]+$"_s);
  if (!names.match(name).hasMatch()) throw ReportError{u"'"_s + name + u"'은(는) 쓸 수 없는 이름입니다"_s};
  return name;
}

/** "Sale.SaleDate" of a table that was named before. */
QString liveField(const QString& field, const ReportLayout& layout) {
  const QString table = liveName(field.section(u'.', 0, 0));
  liveName(field.section(u'.', 1));
  if (!layout.tables.has(table)) throw ReportError{u"'"_s + table + u"' 테이블이 앞에 없습니다"_s};
  return field;
}

void checkField(const QString& field, const ReportLayout& layout) {
  if (!layout.tables.first.isEmpty()) {
    if (!layout.tables.values.contains(field)) liveField(field, layout);
    return;
  }
  static const QRegularExpression fields(u"^(Str(0[1-9]|1[0-3])|Lng0[1-8]|Dbl0[1-3])$"_s);
  if (!fields.match(field).hasMatch()) throw ReportError{u"'"_s + field + u"' 칸은 없습니다"_s};
}

void readPaper(LayoutReader& words, ReportLayout& layout) {
  if (!words.take(u"A4")) throw ReportError{u"용지는 A4만 쓸 수 있습니다"_s};
  layout.paper = PaperSize{};
  if (words.take(u"landscape"))
    std::swap(layout.paper.width, layout.paper.height);
  else
    words.take(u"portrait");
}

void readMargins(LayoutReader& words, ReportLayout& layout) {
  for (double* side : {&layout.left, &layout.top, &layout.right, &layout.bottom})
    *side = words.number(u"여백이", 0, 80) / millimetresAnInch;
}

void readFont(LayoutReader& words, ReportLayout& layout) {
  layout.font.family = words.word(u"글꼴이");
  layout.font.points = words.number(u"글자 크기가", 5, 30);
}

/** [left|center|right] [points] [bold] "text", as often as wanted. */
ReportLine readLine(LayoutReader& words, double usualPoints) {
  ReportLine line;
  do {
    ReportText text;
    text.align = words.align();
    text.points = words.isNumber() ? words.number(u"글자 크기가", 5, 40) : usualPoints;
    text.bold = words.take(u"bold");
    text.text = words.quoted(u"따옴표 안의 글이");
    line.texts.push_back(text);
  } while (!words.atEnd());
  return line;
}

void readColumn(LayoutReader& words, ReportLayout& layout) {
  ReportColumn column;
  column.field = words.word(u"칸의 이름이");
  const bool counter = column.field == "no"_L1;
  if (!counter) checkField(column.field, layout);
  column.caption = words.quoted(u"칸의 제목이");
  column.width = words.number(u"칸의 너비가", 1, 200);
  column.align = words.align();
  const bool number = isNumberField(column.field) || (!layout.tables.first.isEmpty() && !counter);
  if (number && words.isQuoted()) column.picture = words.quoted(u"모양이");
  column.sum = number && words.take(u"sum");
  layout.columns.push_back(column);
}

int columnPlace(const ReportLayout& layout, const QString& field) {
  const auto found = std::ranges::find(layout.columns, field, &ReportColumn::field);
  if (found == layout.columns.end()) throw ReportError{u"'"_s + field + u"' 칸이 앞에 없습니다"_s};
  return int(found - layout.columns.begin());
}

void readSpan(LayoutReader& words, ReportLayout& layout) {
  ReportSpan span{.caption = words.quoted(u"제목이")};
  span.first = columnPlace(layout, words.word(u"첫 칸이"));
  span.last = columnPlace(layout, words.word(u"끝 칸이"));
  const bool shared = std::ranges::any_of(layout.spans, [&](const ReportSpan& other) {
    return span.first <= other.last && other.first <= span.last;
  });
  if (span.last < span.first || shared) throw ReportError{u"묶음 제목의 칸 차례가 맞지 않습니다"_s};
  layout.spans.push_back(span);
}

void readGroup(LayoutReader& words, ReportLayout& layout) {
  layout.groupField = words.word(u"칸의 이름이");
  checkField(layout.groupField, layout);
  layout.group.push_back(readLine(words, layout.font.points));
}

void readTable(LayoutReader& words, ReportLayout& layout) {
  if (!layout.columns.empty() || !layout.tables.first.isEmpty())
    throw ReportError{u"table은 칸보다 앞에 한 번만 적습니다"_s};
  layout.tables.first = liveName(words.word(u"테이블의 이름이"));
}

void readJoin(LayoutReader& words, ReportLayout& layout) {
  if (layout.tables.first.isEmpty()) throw ReportError{u"table이 앞에 없습니다"_s};
  ReportTables::Join join{.table = liveName(words.word(u"테이블의 이름이")), .left = {}, .right = {}};
  layout.tables.joins.push_back(join);
  layout.tables.joins.back().left = liveField(words.word(u"앞의 칸이"), layout);
  layout.tables.joins.back().right = liveField(words.word(u"이을 칸이"), layout);
}

void readValue(LayoutReader& words, ReportLayout& layout) {
  ReportTables::Value& value = layout.tables.values[liveName(words.word(u"값의 이름이"))];
  value = {};
  do {
    const QString field = words.word(u"더할 칸이");
    if (field == "except"_L1 && !value.fields.isEmpty()) {
      value.exceptField = liveField(words.word(u"가릴 칸이"), layout);
      break;
    }
    value.fields << liveField(field, layout);
  } while (!words.atEnd());
  while (!value.exceptField.isEmpty() && (value.codes.isEmpty() || !words.atEnd())) {
    const QString code = words.word(u"가릴 값이");
    bool whole = false;
    code.toInt(&whole);
    if (!whole) throw ReportError{u"'"_s + code + u"' 값은 정수가 아닙니다"_s};
    value.codes << code;
  }
}

void readLabels(LayoutReader& words, ReportLayout& layout) {
  auto& labels = layout.tables.labels[liveField(words.word(u"칸의 이름이"), layout)];
  do {
    const QString code = words.word(u"값이");
    labels[code] = words.quoted(u"따옴표 안의 글이");
  } while (!words.atEnd());
}

using ReadWord = void (*)(LayoutReader& words, ReportLayout& layout);

template <ReportLines ReportLayout::*band>
void readBandLine(LayoutReader& words, ReportLayout& layout) {
  (layout.*band).push_back(readLine(words, layout.font.points));
}

void readOrder(LayoutReader& words, ReportLayout& layout) {
  layout.tables.order << liveField(words.word(u"칸이"), layout);
}

void readRowHeight(LayoutReader& words, ReportLayout& layout) {
  layout.rowPoints = words.number(u"줄의 높이가", 6, 100);
}

void readSubtotal(LayoutReader& words, ReportLayout& layout) {
  layout.subtotal = words.quoted(u"소계의 이름이");
}

void readTotal(LayoutReader& words, ReportLayout& layout) {
  layout.total = words.quoted(u"합계의 이름이");
}

void readLayoutLine(const QString& text, ReportLayout& layout) {
  static const std::map<QString, ReadWord> readers = {{u"title"_s, readBandLine<&ReportLayout::title>},
                                                      {u"next"_s, readBandLine<&ReportLayout::next>},
                                                      {u"summary"_s, readBandLine<&ReportLayout::summary>},
                                                      {u"foot"_s, readBandLine<&ReportLayout::foot>},
                                                      {u"table"_s, readTable},
                                                      {u"join"_s, readJoin},
                                                      {u"order"_s, readOrder},
                                                      {u"value"_s, readValue},
                                                      {u"label"_s, readLabels},
                                                      {u"paper"_s, readPaper},
                                                      {u"margins"_s, readMargins},
                                                      {u"font"_s, readFont},
                                                      {u"row"_s, readRowHeight},
                                                      {u"column"_s, readColumn},
                                                      {u"span"_s, readSpan},
                                                      {u"group"_s, readGroup},
                                                      {u"subtotal"_s, readSubtotal},
                                                      {u"total"_s, readTotal}};
  LayoutReader words(wordsOf(text));
  if (words.atEnd()) return;
  const QString kind = words.word(u"");
  const auto reader = readers.find(kind);
  if (reader == readers.end()) throw ReportError{u"모르는 낱말 '"_s + kind + u"'이(가) 있습니다"_s};
  reader->second(words, layout);
  words.finish();
}

}  // namespace

bool ReportTables::has(const QString& table) const {
  return table == first || std::ranges::any_of(joins, [&](const Join& join) { return join.table == table; });
}

bool ReportColumn::isText() const {
  return field.startsWith("Str"_L1) || (picture.isEmpty() && field.contains(u'.'));
}

double ReportLine::height() const {
  double points = 0;
  for (const ReportText& text : texts) points = std::max(points, text.points);
  return points * lineSpacing / pointsAnInch;
}

double heightOf(const ReportLines& lines) {
  double height = 0;
  for (const ReportLine& line : lines) height += line.height();
  return height;
}

double ReportLayout::rowHeight() const {
  return (rowPoints > 0 ? rowPoints : font.points * rowSpacing) / pointsAnInch;
}

double ReportLayout::headingHeight() const {
  return font.points * rowSpacing / pointsAnInch * (spans.empty() ? 1.15 : 2);
}

QStringList ReportLayout::fields() const {
  static const QRegularExpression named(u"\\{((?:Str|Lng|Dbl)\\d\\d)\\}"_s);
  QStringList fields;
  for (const ReportColumn& column : columns)
    if (column.field != "no"_L1) fields << column.field;
  if (!groupField.isEmpty()) fields << groupField;
  for (const ReportLine& line : group)
    for (const ReportText& text : line.texts)
      for (const auto& found : named.globalMatch(text.text)) fields << found.captured(1);
  fields.removeDuplicates();
  return fields;
}

ReportLayout parseReportLayout(const QString& text) {
  ReportLayout layout;
  const QStringList lines = text.split(u'\n');
  for (qsizetype at = 0; at < lines.size(); ++at) {
    try {
      readLayoutLine(lines[at], layout);
    } catch (const ReportError& error) {
      throw ReportError{QString::number(at + 1) + u"번째 줄: "_s + error.text};
    }
  }
  if (layout.columns.empty()) throw ReportError{u"칸(column)이 하나도 없습니다"_s};
  return layout;
}

}  // namespace pc
