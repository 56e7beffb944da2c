// The sample retailer's meter book: every figure follows from the one before it, and the present month is still to do.
#include "samples/sample_books.h"

#include <QMap>

#include "store/year_file.h"
#include "tests/support.h"
#include "trade/stock_walk.h"

namespace {

struct MeterRow {
  double reading = 0, use = 0, amount = 0, arrears = 0, late = 0, fee = 0, total = 0, paid = 0;
};

qint64 cutToTen(double won) {
  return qint64(won) / 10 * 10;
}

TEST(SampleBooks, JanuaryAndFebruaryAreBilledAndMarchWaits) {
  tests::TestPc at;
  const QDateTime morning(QDate(2026, 3, 16), QTime(9, 0));
  at.pc.clock.set(morning);
  samples::makeBooks(at.pc, at.prompts);
  EXPECT_EQ(at.pc.clock.today(), morning.date()) << "the clock is back";

  Session& session = at.session;
  session.DbPath = installedDataFolder();
  session.wsMain = openWorkspace(session, session.DbPath);
  const jet::Database year = session.wsMain.OpenDatabase(session.DbPath + "2026Foundation.mdb");
  auto rs = year.OpenRecordset(
      "Select Client.HouseStyle, Client.VolumeUnit, Client.BDName, Client.Dong, Evaporation.* From "
      "Evaporation LEFT JOIN Client On Evaporation.ClientCode = Client.Code Where Mon <= 4 Order By "
      "ClientCode, Mon");
  const double fees[] = {1000, 800, 900};
  QMap<QString, int> owingBlocks;
  int households = 0, shops = 0, paidFebruary = 0;
  MeterRow before;
  for (; !rs.atEnd(); rs.MoveNext()) {
    const auto month = rs["Mon"].toLong();
    const qint64 code = rs["ClientCode"].toLong();
    const MeterRow row{rs["UseGage"].toDouble(), rs["UseMuch"].toDouble(), rs["UsePay"].toDouble(),
                       rs["Trust"].toDouble(),   rs["Delay"].toDouble(),   rs["Manage"].toDouble(),
                       rs["Total"].toDouble(),   rs["Pay"].toDouble()};
    if (month == 0) {
      EXPECT_GT(row.reading, 0) << code;
    }
    if (month == 1 || month == 2) {
      EXPECT_GT(row.use, 0) << code;
      EXPECT_EQ(row.reading, before.reading + row.use) << code;
      EXPECT_EQ(row.amount, row.use * rs["VolumeUnit"].toDouble()) << code;
      EXPECT_EQ(row.late, cutToTen(2 * row.arrears / 100)) << code;
      EXPECT_EQ(row.fee, fees[rs["HouseStyle"].toLong()]) << code;
      EXPECT_EQ(row.total, cutToTen(row.amount + row.arrears + row.late + row.fee) - row.paid) << code;
    }
    if (month >= 1 && month <= 3) {
      EXPECT_EQ(row.arrears, month == 1 ? 0 : before.total) << code;
    }
    if (month == 2 && row.paid > 0) ++paidFebruary;
    if (month == 3) {
      EXPECT_EQ(row.reading, 0) << code;
      if (rs["BDName"].toText() == "달빛아파트" && rs["Dong"].toText() == "101") ++households;
      if (rs["HouseStyle"].toLong() == 0) ++shops;
      if (row.arrears > 0) ++owingBlocks[rs["BDName"].toText()];
    }
    if (month == 4) {
      EXPECT_EQ(row.arrears, 0) << code;
    }
    before = row;
  }
  EXPECT_EQ(households, 30);
  EXPECT_GT(shops, 5);
  EXPECT_GT(paidFebruary, 40);
  EXPECT_GT(owingBlocks["달빛아파트"], 5) << "there is something to charge late";
  EXPECT_GT(owingBlocks[QString()], 2);
}

/** Back through two years of lines the walk comes to what the shop opened with. */
TEST(SampleBooks, StockAndDebtsAreWhatTheLinesAddUpTo) {
  tests::TestPc at;
  at.pc.clock.set(QDateTime(QDate(2026, 3, 16), QTime(9, 0)));
  samples::makeBooks(at.pc, at.prompts);
  Session& session = at.session;
  session.DbPath = installedDataFolder();
  session.WorkYear = "2026";
  session.wsMain = openWorkspace(session, session.DbPath);
  session.dbYear = openYear(session, session.WorkYear);
  const auto gas = walkStock(session, StockWalkOf::Gas, "2025-01-01", "2026-03-15");
  ASSERT_TRUE(gas);
  EXPECT_EQ(gas->size(), 6u);
  for (const StockInOut& item : *gas) {
    EXPECT_EQ(item.opening, samples::openingFull) << item.name.toStdString() << item.size.toStdString();
    EXPECT_EQ(item.canOpening, samples::openingFull + samples::openingEmpty);
    EXPECT_GT(item.bought, 0);
  }
  const auto fittings = walkStock(session, StockWalkOf::Materials, "2025-01-01", "2026-03-15");
  ASSERT_TRUE(fittings);
  for (const StockInOut& item : *fittings) {
    EXPECT_EQ(item.opening, samples::openingFittings) << item.name.toStdString();
    EXPECT_GE(item.closing, 0);
  }

  QMap<QString, qint64> gasOwed, fittingsOwed;
  for (const char* const year : {"2025", "2026"}) {
    auto line = openYear(session, QString(year)).OpenRecordset("Select * From Buy Order By BuyID");
    for (; !line.atEnd(); line.MoveNext()) {
      const qint64 kind = line["PurchaseGubun"].toLong();
      const QString station = line["BuyCompany"].toText();
      if (kind == 7 || kind == 8)
        (kind == 7 ? gasOwed : fittingsOwed)[station] -= line["Pay"].toLong();
      else
        (kind == 4 ? fittingsOwed : gasOwed)[station] += line["Trust"].toLong();
    }
  }
  auto station = session.dbYear.OpenRecordset("Select * From RefillState");
  for (; !station.atEnd(); station.MoveNext()) {
    const QString name = station["Company"].toText();
    EXPECT_EQ(station["GasInit"].toLong(), gasOwed[name]) << name.toStdString();
    EXPECT_EQ(station["UtilInit"].toLong(), fittingsOwed[name]) << name.toStdString();
  }
}

}  // namespace
