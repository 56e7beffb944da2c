// What the trade side shows beside its report grids, on the sample retailer's two years, against plain loops over the lines:
// the ledgers, the forecast, the day at a glance.
#include "store/report_source.h"
#include "tests/trade/sample_shop.h"
#include "trade/briefs/trade_briefs.h"
#include "trade/forecast.h"
#include "trade/today_sale.h"

namespace {

using tests::Figures;
using tests::Line;
using tests::overNewYear;

struct TradeFigures : tests::OnSampleShop {};

TEST_F(TradeFigures, TheLedgersPrintEveryLineOfTheirPeriod) {
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

TEST_F(TradeFigures, TheForecastIsTheLastEightDaysOfEveryCustomer) {
  for (const int option : {1, 2, 3}) {
    QMap<qint64, QStringList> days;
    std::map<qint64, std::pair<bool, bool>> found;  // a line on the sheet; billed by the meter
    for (auto rs = shop().session.dbBasic.OpenRecordset(u"Select Code, VolumeYesNo From Client"); !rs.atEnd();
         rs.MoveNext())
      found[rs[0].toLong()] = {false, rs[1].toBool()};
    for (const Line& line : shop().sales) {
      if (option == 3 || line.metered == (option == 2)) found[line.client].first = true;
      if (line.kind != 4) days[line.client] << line.day;
    }
    QMap<QString, QString> plain, shown;
    for (auto& [client, which] : found) {
      QStringList of = days.value(client);
      if (!which.first || of.isEmpty() || (option != 3 && which.second != (option == 2))) continue;
      std::ranges::sort(of);
      of = of.mid(std::max<qsizetype>(0, of.size() - 8));
      const QDate first = QDate::fromString(of.first(), Qt::ISODate),
                  last = QDate::fromString(of.last(), Qt::ISODate);
      const qint64 span = first.daysTo(last), gaps = of.size() - 1;
      QString next = "-";
      if (span > 0) {
        const qint64 whole = span / gaps, twice = 2 * (span % gaps);
        const qint64 average = whole + (twice > gaps || (twice == gaps && whole % 2 == 1));
        next = last.addDays(average).toString("MM-dd ") + QString::number(average);
      }
      plain[QString::number(client)] = of.first().mid(5) + ' ' + of.last().mid(5) + ' ' + next;
    }
    Forecast forecast(shop().session);
    ASSERT_TRUE(forecast.ExtractForecast(ForecastOf(option), "2026", {}));
    SpreadModel& grid = forecast.grid();
    for (int row = 1; row <= grid.MaxRows(); ++row) {
      const QString expected = grid.text(row, ForecastCol::Expected);
      shown[grid.text(row, ForecastCol::Code)] =
          grid.text(row, ForecastCol::First) + ' ' + grid.text(row, ForecastCol::Newest) + ' ' +
          (expected.isEmpty() ? "-" : expected + ' ' + grid.text(row, ForecastCol::Average));
    }
    EXPECT_GT(plain.size(), 30) << option;
    EXPECT_EQ(shown, plain) << option;
  }
}

TEST_F(TradeFigures, TheDayAtAGlanceIsItsLines) {
  TodaySale today(shop().session);
  for (int day = 1; day <= 15; ++day) {
    shop().session.SaleDay = QDate(tests::sampleYear, 3, day).toString(Qt::ISODate);
    ASSERT_TRUE(today.load());
    for (const SaleSheet sheet : {SaleSheet::General, SaleSheet::Volume, SaleSheet::Material}) {
      Figures plain(4);
      for (const Line& line : shop().sales) {
        const SaleSheet of = line.kind >= 7 ? SaleSheet::Material
                             : line.metered ? SaleSheet::Volume
                                            : SaleSheet::General;
        if (line.day != shop().session.SaleDay || of != sheet) continue;
        const Figures figures{line.pieces, line.income, line.discount, line.trust};
        for (size_t at = 0; at < plain.size(); ++at) plain[at] += figures[at];
      }
      const DaySum& sum = today.sum(sheet);
      EXPECT_EQ((Figures{sum.pieces, sum.income, sum.discount, sum.trust}), plain)
          << day << ' ' << int(sheet);
    }
  }
}

}  // namespace
