// The reports over the sample retailer's two years, against figures recomputed line by line in plain loops.
#include <QMap>

#include "briefs/brief_run.h"
#include "samples/sample_books.h"
#include "store/year_file.h"
#include "tests/briefs/brief_desk.h"
#include "trade/briefs/trade_briefs.h"

namespace {

struct Line {
  QString day, person, item, size;
  qint64 client = 0, pieces = 0, income = 0, discount = 0, trust = 0;
  int kind = 0;
  bool metered = false;

  bool isGas() const { return kind <= 3 || kind == 5 || kind == 6; }
};

/** The figures of one line of a report, in the order of its columns. */
using Figures = std::vector<qint64>;

struct BriefFigures : testing::Test, tests::TestPc {
  static constexpr int year = 2026;
  std::vector<Line> lines;  ///< of both years
  QMap<qint64, qint64> gasOwed, utilOwed;

  BriefFigures() {
    pc.clock.set(QDate(year, 3, 16).startOfDay().addSecs(9 * 3600));
    samples::makeBooks(pc, prompts);
    session.DbPath = installedDataFolder();
    session.WorkYear = QString::number(year);
    session.wsMain = openWorkspace(session, session.DbPath);
    session.dbBasic = session.wsMain.OpenDatabase(session.DbPath + "Basic.mdb");
    session.dbYear = openYear(session, year);
    for (const int each : {year - 1, year}) {
      const jet::Database file = openYear(session, each);
      for (auto rs = file.OpenRecordset(u"Select * From Sale"); !rs.atEnd(); rs.MoveNext())
        lines.push_back({rs["SaleDate"].toText(), rs["Response"].toText(), rs["SaleName"].toText(),
                         rs["SaleThing"].toText(), rs["ClientCode"].toLong(), rs["SaleNum"].toLong(),
                         rs["Income"].toLong(), rs["DC"].toLong(), rs["Trust"].toLong(),
                         int(rs["SaleGubun"].toLong()), rs["Gubun"].toBool()});
    }
    for (auto rs = session.dbBasic.OpenRecordset(u"Select * From Client"); !rs.atEnd(); rs.MoveNext()) {
      gasOwed[rs["Code"].toLong()] = rs["GasInit"].toLong();
      utilOwed[rs["Code"].toLong()] = rs["UtilInit"].toLong();
    }
    EXPECT_GT(lines.size(), 3000u);
  }

  static void add(Figures& into, const Figures& what) {
    into.resize(what.size());
    for (size_t at = 0; at < what.size(); ++at) into[at] += what[at];
  }
  static Figures sold(const Line& line) {
    return {line.pieces, line.income + line.trust, line.discount, line.income, line.trust};
  }
  /** A page's figures by the text of one of its cells; rows without any figure are left out. */
  static QMap<QString, Figures> shownBy(BriefRun& run, int page, size_t key,
                                        const std::vector<size_t>& columns) {
    QMap<QString, Figures> found;
    for (const BriefCells& row : run.rows(page).rows) {
      Figures figures;
      for (const size_t col : columns) figures.push_back(row[col].toLongLong());
      if (std::ranges::any_of(figures, [](qint64 each) { return each != 0; })) add(found[row[key]], figures);
    }
    return found;
  }
};

TEST_F(BriefFigures, GasByMonthDayAndCustomer) {
  BriefRun run(session, lpgSaleBrief());
  for (const int option : {0, 1, 2}) {
    QMap<QString, Figures> months, days, clients;
    for (const Line& line : lines) {
      if (!line.isGas() || (option == 1 && line.metered) || (option == 2 && !line.metered)) continue;
      if (line.day.startsWith("2025")) add(months[line.day.mid(5, 2) + "월"], sold(line));
      if (line.day.startsWith("2026-02")) add(days[line.day.mid(5)], sold(line));
      if (line.day >= "2025-11-20" && line.day <= "2026-02-10")
        add(clients[QString::number(line.client)], sold(line));
    }
    ASSERT_FALSE(days.isEmpty());
    const QHash<QString, BriefAnswer> asked{{"OptGubun", {.place = option}},
                                            {"CboYear", {.text = "2025"}},
                                            {"TxtDay", tests::days("2025-11-20", "2026-02-10")}};
    ASSERT_TRUE(run.load(tests::asks(0, asked)));
    EXPECT_EQ(shownBy(run, 0, 0, {1, 3, 4, 5, 6}), months);
    ASSERT_TRUE(run.load(tests::asks(
        1, {{"OptGubun", {.place = option}}, {"CboYear", {.text = "2026"}}, {"CboMonth", {.text = "02"}}})));
    EXPECT_EQ(shownBy(run, 1, 0, {1, 2, 3, 4, 5}), days);
    ASSERT_TRUE(run.load(tests::asks(2, asked)));
    const auto silent = [](QMap<QString, Figures>& of) {
      of.removeIf([](const auto& each) {
        return std::ranges::all_of(each.value(), [](qint64 won) { return won == 0; });
      });
    };
    silent(clients);
    EXPECT_EQ(shownBy(run, 2, 8, {3, 4, 5, 6, 7}), clients);
  }
}

TEST_F(BriefFigures, ByPersonAndMaterialsByCustomer) {
  const QHash<QString, BriefAnswer> asked{{"TxtDay", tests::days("2025-06-01", "2026-03-15")}};
  const auto inPeriod = [](const Line& line) { return line.day >= "2025-06-01" && line.day <= "2026-03-15"; };
  const auto person = [&](bool gas) {
    QMap<QString, Figures> persons;
    for (const Line& line : lines) {
      if (!inPeriod(line)) continue;
      const bool collection = line.kind == (gas ? 4 : 8);
      if (!collection && !(gas ? line.kind == 1 || line.kind == 3 : line.kind == 7)) continue;
      add(persons[line.person],
          {line.pieces, collection ? 0 : line.income + line.trust, line.discount,
           collection ? 0 : line.income, collection ? line.income : 0, collection ? 0 : line.trust});
    }
    return persons;
  };
  for (const bool gas : {true, false}) {
    BriefRun run(session, gas ? resSaleBrief() : resUtilBrief());
    ASSERT_TRUE(run.load(tests::asks(2, asked)));
    EXPECT_EQ(shownBy(run, 2, 0, {1, 2, 3, 4, 5, 6}), person(gas));
    ASSERT_TRUE(run.load(tests::asks(0, asked)));
    EXPECT_EQ(shownBy(run, 0, 1, {4, 5, 6, 7, 8, 9}), person(gas)) << "the lines add up to the sums";
  }
  QMap<QString, Figures> clients;
  for (const Line& line : lines)
    if (inPeriod(line) && line.kind == 7) add(clients[QString::number(line.client)], sold(line));
  BriefRun run(session, utilClientBrief());
  ASSERT_TRUE(run.load(tests::asks(0, asked)));
  EXPECT_EQ(shownBy(run, 0, 9, {4, 5, 6, 7, 8}), clients);
}

TEST_F(BriefFigures, CreditAndItsAge) {
  const QDate today = pc.clock.today();
  for (const bool gas : {true, false}) {
    BriefRun run(session, gas ? trustBrief() : utilTrustBrief());
    ASSERT_TRUE(run.load(tests::asks(0)));
    const auto& owed = gas ? gasOwed : utilOwed;
    QMap<qint64, Figures> ages, expected;
    for (const BriefCells& row : run.rows(0).rows) {
      Figures& of = ages[row.back().toLongLong()];
      for (size_t at = row.size() - 5; at < row.size() - 1; ++at) of.push_back(row[at].toLongLong());
    }
    for (auto each = owed.begin(); each != owed.end(); ++each) {
      if (each.value() == 0) continue;
      std::vector<const Line*> credit;
      for (const Line& line : lines)
        if (line.client == each.key() && (gas ? line.isGas() : line.kind == 7)) credit.push_back(&line);
      std::ranges::stable_sort(credit, [](const Line* a, const Line* b) { return a->day > b->day; });
      Figures& of = expected[each.key()];
      of = {0, 0, 0, 0};
      qint64 left = each.value();
      for (const Line* const line : credit) {
        const qint64 part = std::clamp<qint64>(line->trust, 0, std::max<qint64>(left, 0));
        const qint64 days = QDate::fromString(line->day, "yyyy-MM-dd").daysTo(today);
        of[days > 90 ? 3 : days > 60 ? 2 : days > 30 ? 1 : 0] += part;
        left -= part;
      }
      of[3] += std::max<qint64>(left, 0);
    }
    EXPECT_EQ(ages.size(), expected.size());
    EXPECT_TRUE(ages == expected);
  }
}

TEST_F(BriefFigures, CylindersThatAreOut) {
  BriefRun run(session, canLpgBrief());
  ASSERT_TRUE(run.load(tests::asks(0, {{"TxtDay", tests::days("2026-01-10", "2026-02-20")}})));
  QMap<QString, Figures> items;
  for (const Line& line : lines) {
    if ((line.kind != 5 && line.kind != 6) || line.day > "2026-02-20") continue;
    const bool before = line.day < "2026-01-10", out = line.kind == 5;
    const qint64 moved = out ? line.pieces : -line.pieces;
    add(items[line.item + line.size],
        {before ? moved : 0, !before && out ? line.pieces : 0, !before && !out ? line.pieces : 0, moved});
  }
  QMap<QString, Figures> shown;
  for (const BriefCells& row : run.rows(0).rows)
    add(shown[row[0] + row[1]],
        {row[3].toLongLong(), row[4].toLongLong(), row[5].toLongLong(), row[6].toLongLong()});
  EXPECT_EQ(shown, items);
  qint64 out = 0, lent = 0;
  for (const Figures& each : shown) out += each[3];
  ASSERT_TRUE(run.load(tests::asks(0, {{"TxtDay", tests::days("2026-01-01", "2026-03-16")}})));
  out = 0;
  for (const BriefCells& row : run.rows(0).rows) out += row[6].toLongLong();
  for (auto rs = session.dbBasic.OpenRecordset(u"Select Sum(CANLoan) As Lent From LPG"); !rs.atEnd();
       rs.MoveNext())
    lent = rs["Lent"].toLong();
  EXPECT_EQ(out, lent) << "what the lines leave out is what the stock says";
}

}  // namespace
