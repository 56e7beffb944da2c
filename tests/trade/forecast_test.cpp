// The next delivery from the last eight, worked by hand.
#include "trade/forecast.h"

#include "store/year_file.h"
#include "tests/cells.h"
#include "tests/trade/sale_desk.h"

using namespace Qt::StringLiterals;

namespace {

struct Forecasts : testing::Test, tests::SaleDesk {
  Forecast forecast{pc.session};

  /** Lines of gas of one customer on these days of 2026. */
  void delivered(int client, const QStringList& days, int kind = 1, bool volume = false) {
    for (const QString& day : days)
      sold(u"'%1', %2, %3, %4, 'LPG', '20', 1"_s.arg(day.size() == 5 ? "2026-" + day : day,
                                                     QString::number(client), QString::number(kind),
                                                     volume ? "True" : "False"));
  }
  QString shown(int row) { return tests::cellsOf(forecast.grid(), row, 1, ForecastCol::Code).join('|'); }
  bool extract(ForecastOf which = ForecastOf::All, const std::optional<QString>& day = {}) {
    return forecast.ExtractForecast(which, "2026", day);
  }
};

TEST_F(Forecasts, EightDeliveriesAndTheirGap) {
  // 70 days in seven gaps; the ninth line and the collection do not count.
  delivered(1, {"01-01", "01-11", "01-21", "01-31", "02-10", "02-20", "03-02", "03-12"});
  delivered(1, {"2025-06-01"});
  delivered(1, {"03-13"}, 4);
  // 30 days in four gaps and 26 in four: halves go to the even day.
  delivered(2, {"01-01", "01-05", "01-06", "01-07", "01-31"});
  delivered(3, {"01-01", "01-05", "01-06", "01-07", "01-27"}, 5);
  ASSERT_TRUE(extract());
  EXPECT_EQ(shown(1),
            "산골식당|053-123-4567|01-01|01-11|01-21|01-31|02-10|02-20|03-02|03-12|03-12|03-22|10||1");
  EXPECT_EQ(shown(2), "김||01-01|01-05|01-06|01-07|01-31||||01-31|02-08|8||2");
  EXPECT_EQ(shown(3), "박||01-01|01-05|01-06|01-07|01-27||||01-27|02-02|6||3") << "cylinders lent count too";
}

TEST_F(Forecasts, DaysThatCoincide) {
  delivered(1, {"01-01", "01-01", "01-11"});
  delivered(2, {"02-03"});
  delivered(2, {"02-03"}, 8);
  delivered(3, {"02-04"}, 7);
  ASSERT_TRUE(extract());
  EXPECT_EQ(shown(1), "산골식당|053-123-4567|01-01|01-01|01-11||||||01-11|01-16|5||1");
  EXPECT_EQ(shown(2), "김||02-03|02-03|||||||02-03||||2");
  EXPECT_EQ(shown(3), "박||02-04||||||||02-04||||3");
  // Of lines that tie at the eighth place eight are taken.
  delivered(3, QStringList(9, "01-05"));
  ASSERT_TRUE(extract());
  EXPECT_EQ(shown(3), "박||01-05|01-05|01-05|01-05|01-05|01-05|01-05|02-04|02-04|02-08|4||3");
}

TEST_F(Forecasts, WhichCustomers) {
  delivered(1, {"01-01", "01-11"});
  delivered(3, {"01-01", "01-11"}, 1, true);
  delivered(2, {"02-01"}, 1, true);  // not billed by the meter, but once on the volume sheet
  const auto names = [&](ForecastOf which) {
    EXPECT_TRUE(extract(which));
    return tests::columnOf(forecast.grid(), ForecastCol::Name).join("");
  };
  EXPECT_EQ(names(ForecastOf::General), "산골식당");
  EXPECT_EQ(names(ForecastOf::Volume), "박");
  EXPECT_EQ(names(ForecastOf::All), "산골식당김박");
  pc.prompts.expect("배달 예상을 추출할 고객을 구분하세요");
  EXPECT_FALSE(extract(ForecastOf::Nobody));
  run("Delete * From Sale");
  pc.prompts.expect("배달자료가 없습니다!");
  EXPECT_FALSE(extract());
  EXPECT_EQ(forecast.grid().MaxRows(), 0);
}

TEST_F(Forecasts, LastYearsFileIsReadAndItsDatesSetOff) {
  makeYearFile(pc.session, "2025");
  for (const char* const day : {"2024-12-31", "2025-12-01", "2025-12-21"})
    for (const jet::Database& each :
         {openYear(pc.session, "2025"), pc.session.dbYear})  // as a closing copies
      sold(u"'%1', 1, 1, False"_s.arg(day), each);
  delivered(1, {"01-10"});
  ASSERT_TRUE(extract());
  EXPECT_EQ(shown(1), "산골식당|053-123-4567|12-01|12-21|01-10||||||01-10|01-30|20||1")
      << "nothing before the two years";
  EXPECT_EQ(forecast.grid().ink(1, ForecastCol::First), 0xE80300);
  EXPECT_EQ(forecast.grid().ink(1, ForecastCol::First + 2), -1);

  pc.session.dbYear = openYear(pc.session, "2025");  // the PC's year was changed: 355 days in two gaps
  ASSERT_TRUE(extract());
  EXPECT_EQ(shown(1), "산골식당|053-123-4567|12-31|12-01|12-21||||||12-21|06-17|178||1");
}

TEST_F(Forecasts, TheFilterIsOneDay) {
  delivered(1, {"12-01", "12-21"});  // expected on 10 January of the next year
  delivered(2, {"01-01", "01-05"});  // on 9 January
  delivered(3, {"01-01"});           // never
  ASSERT_TRUE(extract(ForecastOf::All, "01-10"));
  EXPECT_EQ(forecast.grid().MaxRows(), 1);
  EXPECT_EQ(forecast.grid().text(1, ForecastCol::Expected), "01-10");
  EXPECT_EQ(forecast.grid().ink(1, ForecastCol::Expected), 0xE80300) << "of another year";
  EXPECT_EQ(forecast.grid().ink(1, ForecastCol::Newest), -1);

  run("Update Client Set EstimateDate = '01-10' Where Code = 3");
  run("Update Client Set EstimateDate = '02-02' Where Code = 1");
  ASSERT_TRUE(extract(ForecastOf::All, "01-10"));
  EXPECT_EQ(shown(1), "박||01-01||||||||01-01|||01-10|3") << "the reserved day goes before the computed one";
  EXPECT_EQ(forecast.grid().MaxRows(), 1);
  ASSERT_TRUE(extract(ForecastOf::All, "1-10"));
  EXPECT_EQ(forecast.grid().MaxRows(), 0);
}

TEST_F(Forecasts, TheReservedDayIsWrittenAtOnce) {
  delivered(1, {"01-01", "01-11"});
  ASSERT_TRUE(extract());
  const auto stored = [&] { return rows("Select EstimateDate From Client Where Code = 1"); };
  EXPECT_TRUE(forecast.setReserved(1, "1.20"));
  EXPECT_EQ(forecast.grid().text(1, ForecastCol::Reserved) + stored(), "01-2001-20");
  EXPECT_TRUE(forecast.setReserved(1, "02-03"));
  EXPECT_EQ(stored(), "02-03");
  pc.prompts.expect("날짜 입력이 올바르지 않습니다!");
  EXPECT_FALSE(forecast.setReserved(1, "02-30"));
  EXPECT_EQ(stored(), "02-03");
  EXPECT_TRUE(forecast.setReserved(1, "2026-03-05"));
  EXPECT_EQ(stored(), "2026-03-05") << "what is no day of four or five characters stands as it was typed";
  EXPECT_TRUE(forecast.setReserved(1, ""));
  EXPECT_EQ(stored(), "");
  forecast.ExtractForecast(ForecastOf::All, "", {});
  EXPECT_TRUE(forecast.setReserved(1, "02-03")) << "with the box of the year empty";
  EXPECT_EQ(stored(), "02-03");
  makeYearFile(pc.session, "2024");
  sold("'2024-01-01', 1, 1, False", openYear(pc.session, "2024"));
  ASSERT_TRUE(forecast.ExtractForecast(ForecastOf::All, "2024", {}));
  EXPECT_TRUE(forecast.setReserved(1, "02-29")) << "a day of the year that was asked for";
  EXPECT_EQ(stored(), "02-29");
}

TEST_F(Forecasts, StopsWhereItIsToldTo) {
  for (const int client : {1, 2, 3}) delivered(client, {"01-01", "01-11"});
  QStringList told;
  EXPECT_TRUE(forecast.ExtractForecast(ForecastOf::All, "2026", {}, [&](int done, int all) {
    told << QString::number(done) + '/' + QString::number(all);
    return done < 2;
  }));
  EXPECT_EQ(told, QStringList({"0/3", "1/3", "2/3"}));
  EXPECT_EQ(forecast.grid().MaxRows(), 2);
  pc.prompts.expect("2024년의 배달자료가 없습니다!");
  EXPECT_FALSE(forecast.hasYear("2024"));
  EXPECT_TRUE(forecast.hasYear("2026"));
}

}  // namespace
