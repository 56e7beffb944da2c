// Every grid and every ledger of the trade side's reports over the sample retailer's two years, against figures recomputed
// line by line in plain loops. The stock in and out is held so in stock_walk_test.
#include "store/report_source.h"
#include "tests/trade/sample_shop.h"
#include "trade/briefs/trade_briefs.h"

namespace {

using tests::add;
using tests::Figures;
using tests::Line;
using tests::overNewYear;
using tests::Shop;
using tests::sold;
using tests::Table;

struct BriefFigures : tests::OnSampleShop {};

/** A report's page under some answers, what of it is compared, and the same figures from the lines. */
struct Member {
  const char* name;
  Brief (*brief)();
  int page;
  QHash<QString, BriefAnswer> answers;
  std::vector<size_t> key, figures;  ///< columns from 0
  std::function<Table(const Shop&)> plain;
};

Member bySale(const char* name, Brief (*brief)(), int page, QHash<QString, BriefAnswer> answers,
              std::vector<size_t> key, std::vector<size_t> figures,
              const std::function<void(Table&, const Line&)>& work) {
  return {
      name, brief, page, std::move(answers), std::move(key), std::move(figures), [work](const Shop& shop) {
        Table table;
        for (const Line& line : shop.sales) work(table, line);
        return table;
      }};
}

void gasViews(std::vector<Member>& all) {
  for (const int option : {0, 1, 2}) {
    const auto counts = [option](const Line& line) {
      return line.isGas() && (option == 0 || line.metered == (option == 2));
    };
    const BriefAnswer which{.place = option};
    all.push_back(bySale("by month", lpgSaleBrief, 0, {{"OptGubun", which}, {"CboYear", {.text = "2025"}}},
                         {0}, {1, 2, 3, 4, 5, 6}, [counts](Table& to, const Line& line) {
                           if (!counts(line) || !line.day.startsWith("2025")) return;
                           Figures figures = sold(line);
                           figures.insert(figures.begin() + 1, line.pieces * line.size.toInt());
                           add(to, {line.day.mid(5, 2) + "월"}, figures);
                         }));
    all.push_back(bySale("by day", lpgSaleBrief, 1,
                         {{"OptGubun", which}, {"CboYear", {.text = "2026"}}, {"CboMonth", {.text = "02"}}},
                         {0}, {1, 2, 3, 4, 5}, [counts](Table& to, const Line& line) {
                           if (counts(line) && line.day.startsWith("2026-02"))
                             add(to, {line.day.mid(5)}, sold(line));
                         }));
    all.push_back(bySale("by customer", lpgSaleBrief, 2, {{"OptGubun", which}, {"TxtDay", overNewYear}}, {8},
                         {3, 4, 5, 6, 7}, [counts](Table& to, const Line& line) {
                           if (counts(line) && line.isIn(overNewYear))
                             add(to, {QString::number(line.client)}, sold(line));
                         }));
  }
}

void persons(std::vector<Member>& all) {
  for (const bool gas : {true, false}) {
    const auto work = [gas](bool withDay) {
      return [gas, withDay](Table& to, const Line& line) {
        const bool collection = line.kind == (gas ? 4 : 8);
        const bool counts = collection || (gas ? line.kind == 1 || line.kind == 3 : line.kind == 7);
        if (!counts || !line.isIn(overNewYear)) return;
        Figures figures{line.pieces, 0, line.discount, 0, line.income, 0};
        if (!collection)
          figures = {line.pieces, line.income + line.trust, line.discount, line.income, 0, line.trust};
        add(to, withDay ? QStringList{line.day, line.person} : QStringList{line.person}, figures);
      };
    };
    Brief (*const brief)() = gas ? resSaleBrief : resUtilBrief;
    const QHash<QString, BriefAnswer> period{{"TxtDay", overNewYear}};
    all.push_back(bySale("lines", brief, 0, period, {0, 1}, {4, 5, 6, 7, 8, 9}, work(true)));
    all.push_back(bySale("person by person", brief, 1, period, {1, 0}, {4, 5, 6, 7, 8, 9}, work(true)));
    all.push_back(bySale("persons", brief, 2, period, {0}, {1, 2, 3, 4, 5, 6}, work(false)));
  }
}

void linesAndMaterials(std::vector<Member>& all) {
  const QHash<QString, BriefAnswer> period{{"TxtDay", overNewYear}};
  all.push_back(bySale("materials by customer", utilClientBrief, 0, period, {9, 2, 3}, {4, 5, 6, 7, 8},
                       [](Table& to, const Line& line) {
                         if (line.kind == 7 && line.isIn(overNewYear))
                           add(to, {QString::number(line.client), line.item, line.size}, sold(line));
                       }));
  // A collection is money alone.
  const auto asShown = [](const Line& line) {
    const qint64 once = line.isCollection() ? 0 : 1;
    return Figures{line.pieces * once, line.discount * once, (line.income + line.trust) * once, line.income,
                   line.trust * once};
  };
  all.push_back(bySale("all lines", saleBrief, 0, period, {0, 11}, {4, 6, 7, 8, 9},
                       [asShown](Table& to, const Line& line) {
                         if (line.isIn(overNewYear))
                           add(to, {line.day, QString::number(line.client)}, asShown(line));
                       }));
  for (const qint64 client : {1, 20, 40})
    all.push_back(bySale("one customer's lines", clientSaleBrief, 0,
                         {{"TxtDay", overNewYear}, {"TxtClient", {.text = "이름", .code = client}}}, {0, 10},
                         {3, 5, 6, 7, 8}, [asShown, client](Table& to, const Line& line) {
                           if (line.isIn(overNewYear) && line.client == client)
                             add(to, {line.day, QString::number(client)}, asShown(line));
                         }));
}

/** Brought in, sold, discount, paid, collected, owed; by age. */
Table credit(const Shop& shop, bool gas) {
  Table table;
  const auto& owed = gas ? shop.gasOwed : shop.utilOwed;
  for (auto each = owed.begin(); each != owed.end(); ++each) {
    if (each.value() == 0) continue;
    std::vector<const Line*> lines;
    qint64 before = 0, amount = 0, discount = 0, paid = 0, collected = 0;
    for (const Line& line : shop.sales) {
      const bool collection = line.kind == (gas ? 4 : 8);
      if (line.client != each.key() || !(collection || (gas ? line.isGas() : line.kind == 7))) continue;
      if (!collection) lines.push_back(&line);
      if (line.day < "2026") {  // every customer of the sample shop began with nothing owed
        before += collection ? -line.income : line.trust;
        continue;
      }
      amount += collection ? 0 : line.income + line.trust;
      discount += line.discount;
      (collection ? collected : paid) += line.income;
    }
    std::ranges::stable_sort(lines, [](const Line* a, const Line* b) { return a->day > b->day; });
    Figures ages{0, 0, 0, 0};
    qint64 left = each.value();
    for (const Line* const line : lines) {
      const qint64 part = std::clamp<qint64>(line->trust, 0, std::max<qint64>(left, 0));
      const qint64 days = QDate::fromString(line->day, "yyyy-MM-dd").daysTo(shop.pc.clock.today());
      ages[days > 90 ? 3 : days > 60 ? 2 : days > 30 ? 1 : 0] += part;
      left -= part;
    }
    ages[3] += std::max<qint64>(left, 0);
    Figures figures{before, amount};
    if (gas) figures.push_back(discount);
    figures.insert(figures.end(), {paid, collected, each.value()});
    figures.insert(figures.end(), ages.begin(), ages.end());
    add(table, {QString::number(each.key())}, figures);
  }
  return table;
}

/** Out before the period, out and back in it, out at its end. */
Figures loan(const Line& line, const BriefAnswer& period) {
  const bool before = line.day < period.text, out = line.kind == 5;
  const qint64 moved = out ? line.pieces : -line.pieces;
  return {before ? moved : 0, !before && out ? line.pieces : 0, !before && !out ? line.pieces : 0, moved};
}

void cylinders(std::vector<Member>& all) {
  const BriefAnswer period = tests::days("2026-01-10", "2026-02-20");
  const auto isLoan = [period](const Line& line) {
    return (line.kind == 5 || line.kind == 6) && line.day <= period.to;
  };
  const QHash<QString, BriefAnswer> answers{{"TxtDay", period}};
  all.push_back(bySale("cylinders by item", canLpgBrief, 0, answers, {0, 1, 7}, {3, 4, 5, 6},
                       [=](Table& to, const Line& line) {
                         if (isLoan(line))
                           add(to, {line.item, line.size, QString::number(line.client)}, loan(line, period));
                       }));
  all.push_back(bySale(
      "cylinders by person", canResBrief, 0, answers, {0, 3, 4, 9}, {5, 6, 7, 8},
      [=](Table& to, const Line& line) {
        if (isLoan(line))
          add(to, {line.person, line.item, line.size, QString::number(line.client)}, loan(line, period));
      }));
  for (const int where : {0, 1, 2})
    all.push_back(
        {"cylinders by place",
         canCompanyBrief,
         0,
         {{"TxtDay", period}, {"OptWhere", {.place = where}}},
         {0, 2, 3, 8},
         {4, 5, 6, 7},
         [=](const Shop& shop) {
           Table table;
           if (where != 1)
             for (const Line& line : shop.sales)
               if (isLoan(line))
                 add(table, {"고객", line.item, line.size, QString::number(line.client)}, loan(line, period));
           if (where != 2)
             for (const Line& line : shop.purchases)
               if (isLoan(line)) add(table, {"충전소", line.item, line.size, "0"}, loan(line, period));
           return table;
         }});
}

std::vector<Member> members() {
  std::vector<Member> all;
  gasViews(all);
  persons(all);
  linesAndMaterials(all);
  cylinders(all);
  all.push_back(
      {"gas credit", trustBrief, 0, {}, {15}, {3, 4, 5, 6, 7, 8, 11, 12, 13, 14}, [](const Shop& shop) {
         return credit(shop, true);
       }});
  all.push_back(
      {"material credit", utilTrustBrief, 0, {}, {12}, {3, 4, 5, 6, 7, 8, 9, 10, 11}, [](const Shop& shop) {
         return credit(shop, false);
       }});
  return all;
}

TEST_F(BriefFigures, EveryPageIsWhatItsLinesAddUpTo) {
  ASSERT_GT(shop().sales.size(), 3000u);
  ASSERT_GT(shop().purchases.size(), 100u);
  for (const Member& member : members()) {
    BriefRun run(shop().session, member.brief());
    SCOPED_TRACE(run.brief().form.toStdString() + ' ' + member.name);
    ASSERT_TRUE(run.load(tests::asks(member.page, member.answers)));
    Table shown, plain = member.plain(shop());
    for (const BriefCells& row : run.rows(member.page).rows) {
      QStringList key;
      for (const size_t col : member.key) key << row[col];
      Figures figures;
      for (const size_t col : member.figures) figures.push_back(row[col].toLongLong());
      add(shown, key, figures);
    }
    tests::dropSilent(shown);
    tests::dropSilent(plain);
    EXPECT_GT(plain.size(), 0);
    EXPECT_EQ(shown, plain);
  }
}

TEST_F(BriefFigures, TheLedgersPrintEveryLineOfTheirPeriod) {
  const struct {
    Brief (*brief)();
    bool gas;
    std::function<bool(const Line&)> counts;
  } ledgers[] = {{saleLedgerBrief, true, [](const Line& of) { return of.sale && of.kind < 7; }},
                 {saleLedgerBrief, false, [](const Line& of) { return of.sale && of.kind >= 7; }},
                 {buyLedgerBrief, true, [](const Line& of) { return !of.sale; }}};
  std::vector<Line> all = shop().sales;
  all.insert(all.end(), shop().purchases.begin(), shop().purchases.end());
  for (const auto& ledger : ledgers) {
    BriefRun run(shop().session, ledger.brief());
    shop().session.SaleLedgerGas = ledger.gas;
    ASSERT_TRUE(run.printLive(tests::asks(0, {{"TxtDay", overNewYear}})));
    const pc::ReportRequest& request = shop().reports.asked.back();
    SCOPED_TRACE(request.file.toStdString());
    const pc::ReportLayout layout = findReportLayout(shop().session, request.file);
    const pc::ReportTable table = readLiveRows(shop().session, layout, request);
    const QString prefix = layout.tables.first == "Sale" ? "Sale." : "Buy.";
    const bool sale = prefix == "Sale.";
    QMap<QString, QPair<qint64, qint64>> printed, plain;  // lines and money by day
    const auto figure = [&](size_t row, const QString& field) {
      return pc::plainText(table.value(int(row), field)).toLongLong();
    };
    for (size_t row = 0; row < table.rows.size(); ++row) {
      auto& [lines, money] =
          printed[pc::plainText(table.value(int(row), prefix + (sale ? "SaleDate" : "BuyDate")))];
      ++lines;
      money +=
          figure(row, "금액") * 5 + figure(row, "미수") * 3 + figure(row, prefix + (sale ? "Income" : "Pay"));
    }
    for (const Line& line : all) {
      if (!ledger.counts(line) || !line.isIn(overNewYear)) continue;
      auto& [lines, money] = plain[line.day];
      ++lines;
      // A payment's amount and credit are the balance of that moment.
      const bool payment = line.sale ? line.isCollection() : line.kind >= 7;
      money += (payment ? 0 : (line.income + line.trust) * 5 + line.trust * 3) + line.income;
    }
    EXPECT_GT(plain.size(), 20);
    EXPECT_EQ(printed, plain);
  }
}

}  // namespace
