#include "billing/reading_watch.h"

#include <cmath>

#include "billing/reading_bill.h"
#include "billing/reading_load.h"
#include "billing/reading_sheet.h"
#include "store/data_access.h"
#include "store/session.h"
#include "store/vb.h"
#include "store/year_file.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double farFactor = 2, farUse = 3;  // times; cubic metres
constexpr int monthsLookedBack = 3;

struct Look {
  const char16_t* text;
  int colour;  ///< 0xRRGGBB
};

// By ReadingMark.
constexpr Look looks[readingMarks] = {{u"", -1},
                                      {u"□ 미검침", 0xE2E4E8},
                                      {u"◀ 역회전", 0xF6CFCF},
                                      {u"○ 사용 없음", 0xF5EFC3},
                                      {u"▲ 많음", 0xFBDDBB},
                                      {u"▼ 적음", 0xE0D8F2}};

QString sign(ReadingMark mark) {
  return markText(mark).left(1);
}

/** Uses of one file's months by customer, by month of that year. */
using Uses = QHash<QString, QHash<int, double>>;

/** A file that fails is left out: it has been or will be told where the book itself is read. */
void addUses(Uses& uses, const jet::Database& year, const ReadingSheet& sheet, int first, int last) {
  if (first > last) return;
  try {
    for (jet::Recordset rs = year.OpenRecordset(usesStatement(sheet, first, last)); !rs.atEnd();
         rs.MoveNext())
      uses[rs[0].toText()][int(rs[1].toLong())] = rs[2].toDouble();
  } catch (const jet::Error&) {
  }
}

Uses lastYearsUses(const ReadingSheet& sheet) {
  Uses uses;
  const Session& session = sheet.session;
  const jet::Database file = openYear(session, openedYear(session) - 1);
  if (!file.isOpen()) return uses;
  addUses(uses, file, sheet, sheet.month, sheet.month);
  addUses(uses, file, sheet, 12 + sheet.month - monthsLookedBack, 12);
  return uses;
}

void show(ReadingSheet& sheet, int row, ReadingMark mark) {
  SpreadModel& grid = sheet.grid;
  grid.setText(row, EvaCol::Judgement, markText(mark));
  if (grid.sign(row, EvaCol::UseMuch) == sign(mark)) return;
  grid.setSign(row, EvaCol::UseMuch, sign(mark));
  const int own = grid.column(EvaCol::UseMuch).background;
  grid.setBackground(row, EvaCol::UseMuch, mark == ReadingMark::None ? own : looks[int(mark)].colour);
}

/** To a tenth. */
QString shownUse(double use) {
  return vb::CStr(std::round(use * 10) / 10);
}

QString useOrDash(std::optional<double> use) {
  return use ? vb::CStr(*use) : u"-"_s;
}

}  // namespace

UsualUse usualUse(std::optional<double> sameMonthLastYear, const std::vector<double>& monthsBefore) {
  if (sameMonthLastYear.value_or(0) > 0) return {UsualUse::From::LastYear, *sameMonthLastYear};
  double sum = 0;
  int months = 0;
  for (const double use : monthsBefore) {
    if (use <= 0) continue;
    sum += use;
    ++months;
  }
  if (months == 0) return {};
  return {UsualUse::From::LastMonths, sum / months};
}

ReadingMark markOf(double reading, double use, const UsualUse& usual) {
  if (use < 0) return ReadingMark::Backward;
  if (use == 0) return reading == 0 ? ReadingMark::Unread : ReadingMark::Zero;
  if (usual.from == UsualUse::From::Nothing) return ReadingMark::None;
  if (use > usual.use * farFactor && use - usual.use >= farUse) return ReadingMark::High;
  if (use * farFactor < usual.use && usual.use - use >= farUse) return ReadingMark::Low;
  return ReadingMark::None;
}

QString markText(ReadingMark mark) {
  return QString::fromUtf16(looks[int(mark)].text);
}

void loadUsesBefore(ReadingSheet& sheet) {
  sheet.before.clear();
  if (sheet.isOpening()) return;
  Uses thisYear;
  addUses(thisYear, sheet.session.dbYear, sheet, qMax(1, sheet.month - monthsLookedBack), sheet.month - 1);
  const Uses lastYear = lastYearsUses(sheet);
  for (int row = 1; row <= sheet.grid.MaxRows(); ++row) {
    const QString code = sheet.code(row);
    const auto use = [&](int month) -> std::optional<double> {  // 0 is last year's December
      const QHash<int, double> months = month > 0 ? thisYear.value(code) : lastYear.value(code);
      const auto found = months.constFind(month > 0 ? month : 12 + month);
      return found == months.cend() ? std::nullopt : std::optional(*found);
    };
    std::vector<double> monthsBefore;
    for (int back = 1; back <= monthsLookedBack; ++back)
      monthsBefore.push_back(use(sheet.month - back).value_or(0));
    sheet.before[code] = {use(sheet.month - 1), usualUse(use(sheet.month - 12), monthsBefore)};
  }
}

std::array<int, readingMarks> markReadings(ReadingSheet& sheet) {
  std::array<int, readingMarks> counts{};
  if (sheet.isOpening()) return counts;
  for (int row = 1; row <= sheet.grid.MaxRows(); ++row) {
    const UseBefore before = sheet.before.value(sheet.code(row));
    const ReadingMark mark =
        markOf(sheet.number(row, EvaCol::UseGage), sheet.number(row, EvaCol::UseMuch), before.usual);
    ++counts[size_t(mark)];
    show(sheet, row, mark);
    sheet.grid.setText(row, EvaCol::LastUse, before.lastMonth ? vb::CStr(*before.lastMonth) : QString());
    const bool known = before.usual.from != UsualUse::From::Nothing;
    sheet.grid.setText(row, EvaCol::UsualUse, known ? shownUse(before.usual.use) : QString());
  }
  return counts;
}

int nextMarked(const ReadingSheet& sheet, int row, int step) {
  const int rows = sheet.grid.MaxRows();
  for (int tried = 1; tried <= rows; ++tried) {
    const int at = (row - 1 + step * tried % rows + rows) % rows + 1;
    if (!sheet.grid.text(at, EvaCol::Judgement).isEmpty()) return at;
  }
  return 0;
}

QString countsText(const std::array<int, readingMarks>& counts) {
  QStringList parts;
  for (int mark = 1; mark < readingMarks; ++mark)
    if (counts[size_t(mark)] > 0)
      parts << markText(ReadingMark(mark)) + u' ' + QString::number(counts[size_t(mark)]);
  return parts.join(u"   "_s);
}

QString useText(const ReadingSheet& sheet, int row, const std::optional<QString>& typed) {
  if (sheet.isOpening() || sheet.code(row).isEmpty()) return {};
  const UseBefore before = sheet.before.value(sheet.code(row));
  const double reading = typed ? vb::Val(*typed) : sheet.number(row, EvaCol::UseGage);
  const double use = typed ? meterDifference(reading, sheet.number(row, EvaCol::PrevUseGage))
                           : sheet.number(row, EvaCol::UseMuch);
  const ReadingMark mark = markOf(reading, use, before.usual);
  QString usual = u"-"_s;
  if (before.usual.from != UsualUse::From::Nothing)
    usual = shownUse(before.usual.use) +
            (before.usual.from == UsualUse::From::LastYear ? u" (작년 같은 달)"_s : u" (최근 석 달 평균)"_s);
  QString text = u"전월 사용 : "_s + useOrDash(before.lastMonth) + u"   예상 : "_s + usual + u"   이번 : "_s;
  if (mark != ReadingMark::Unread) text += vb::CStr(use) + u' ';
  return (text + markText(mark)).trimmed();
}
