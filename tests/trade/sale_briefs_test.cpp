// The reports of the trade side, each on a few lines worked by hand.
#include "tests/briefs/brief_desk.h"
#include "trade/briefs/trade_briefs.h"

namespace {

using tests::asks;
using tests::days;

struct SaleBriefs : testing::Test, tests::BriefDesk {
  static Line fitting(const char* day, int client, qint64 pieces, qint64 income, qint64 trust = 0,
                      const char* item = "밸브", const char* size = "15A") {
    return {day, client, 7, pieces, income, trust, 0, item, size};
  }
  /** Money alone; trust: what is open then. */
  static Line money(const char* day, int client, int kind, qint64 income, qint64 trust, const char* item,
                    const char* person = "한기사") {
    return {day, client, kind, 0, income, trust, 0, item, "0", person};
  }
  /** Gas of two months, a collection, cylinders, materials, a line of another year's file. */
  SaleBriefs() {
    sale({.day = "2026-01-05", .pieces = 2, .income = 60000, .trust = 20000, .discount = 500, .unit = 40000});
    sale({.day = "2026-01-20", .kind = 3, .trust = 90000, .size = "50", .unit = 90000});
    sale({.day = "2026-03-02", .client = 2, .pieces = 1, .income = 40000, .person = "두기사"});
    sale({.day = "2026-03-02", .client = 3, .pieces = 3, .size = "0.5", .person = "두기사"});
    sale(money("2026-03-09", 1, 4, 50000, 60000, "가스수금"));
    sale(fitting("2026-03-10", 2, 2, 5000, 3000));
    sale(money("2026-03-11", 2, 8, 1000, 2000, "자재수금", "두기사"));
    sale({.day = "2026-03-31", .kind = 2, .pieces = 1, .income = 30000, .item = "용기"});
  }
  const QHash<QString, BriefAnswer> march{{"TxtDay", days("2026-03-01", "2026-03-31")}};
};

TEST_F(SaleBriefs, GasByMonth) {
  run("Update Sale Set SaleThing = Null Where SaleGubun = 2");
  BriefRun brief(session, lpgSaleBrief());
  BriefAsk ask = asks(0, {{"CboYear", {.text = "2026"}}});
  QStringList rows = load(brief, ask);
  ASSERT_EQ(rows.size(), 13);
  // 2 x 20 kg and 1 x 50 kg; 80,000 and 90,000 won.
  EXPECT_EQ(rows[0], "01월|3|90|170000|500|60000|110000");
  EXPECT_EQ(rows[1], "02월|0|0|0|0|0|0");
  EXPECT_EQ(rows[2], "03월|5|21.5|70000|0|70000|0") << "without the collection and the materials";
  EXPECT_EQ(rows[12], "[합 계]|8||240000|500|130000|110000");
  brief.print(0);
  EXPECT_EQ(staged("Str01, Lng01, Lng02, Lng03, Lng04, Lng05").first(2),
            QStringList({"01월|3|170000|500|60000|110000", "02월|0|0|0|0|0"}));
  EXPECT_EQ(reports.asked.back().file, "월별판매현황.rpt");
  EXPECT_TRUE(reports.asked.back().formulas.contains("판매구분= '(전체)'"));
  EXPECT_EQ(openYear(session, "2026").OpenRecordset(u"Select * From Sale Where SaleThing Is Null").atEnd(),
            true);

  ask.answers["OptGubun"].place = 2;
  EXPECT_EQ(load(brief, ask)[2], "03월|3|1.5|0|0|0|0");
  brief.print(0);
  EXPECT_TRUE(reports.asked.back().formulas.contains("판매구분= '(체적)'"));
  ask.answers["OptGubun"].place = 1;
  EXPECT_EQ(load(brief, ask)[2], "03월|2|20|70000|0|70000|0");
  EXPECT_EQ(brief.page(0).behind(ask, brief.cells(0, 3)), "frmLPGSaleBrief:day?CboYear=2026&CboMonth=03");

  sale(year("2025"), {.day = "2025-07-01", .income = 9});
  ask.answers["CboYear"].text = "2025";
  EXPECT_EQ(load(brief, ask)[6], "07월|1|20|9|0|9|0");
  ask.answers["CboYear"].text = "2024";
  pc.prompts.expect("2024년의 LPG판매 자료가 없습니다!");
  EXPECT_FALSE(brief.load(ask));
  EXPECT_TRUE(pc.prompts.seen.last().startsWith("조회 관리자|"));
}

TEST_F(SaleBriefs, GasByDay) {
  BriefRun brief(session, lpgSaleBrief());
  BriefAsk ask = asks(1, {{"CboYear", {.text = "2026"}}, {"CboMonth", {.text = "03"}}});
  EXPECT_EQ(load(brief, ask),
            QStringList({"03-02|4|40000|0|40000|0", "03-31|1|30000|0|30000|0", "[합 계]|5|70000|0|70000|0"}));
  EXPECT_EQ(printed(brief, 1, "Str01, Lng01, Lng02, Lng03, Lng04, Lng05"),
            "일별판매현황.rpt 03-02|4|40000|0|40000|0");
  EXPECT_EQ(reports.asked.back().formulas, QStringList({"조회월= '03'", "판매구분= '월 전체)'"}));
  EXPECT_EQ(brief.page(1).behind(ask, brief.cells(1, 1)),
            "frmSaleBrief:lines?TxtDayFrom=2026-03-02&TxtDayTo=2026-03-02");
  ask.answers["OptGubun"].place = 2;
  ASSERT_TRUE(brief.load(ask));
  brief.print(1);
  EXPECT_EQ(reports.asked.back().formulas.last(), "판매구분= '월 체적)'") << "without its opening bracket";
  ask.answers["CboMonth"].text = "02";
  pc.prompts.expect("02월의 LPG판매 자료가 없습니다!");
  EXPECT_FALSE(brief.load(ask));
}

TEST_F(SaleBriefs, GasByCustomer) {
  BriefRun brief(session, lpgSaleBrief());
  BriefAsk ask = asks(2, {{"TxtDay", days("2026-01-01", "2026-03-31")}, {"TxtName", {}}});
  EXPECT_EQ(load(brief, ask),
            QStringList({"김하나|053-1|일반/식당|4|200000|500|90000|110000", "박셋|053-3|일반/식당|3|0|0|0|0",
                         "한빛 101동 202호|053-2|아 파 트|1|40000|0|40000|0",
                         "[합 계]|||8|240000|500|130000|110000"}));
  EXPECT_EQ(printed(brief, 2, "Str01, Str02, Str03, Lng01, Lng02, Lng03, Lng04, Lng05"),
            "고객별판매현황.rpt 김하나|053-1|일반/식당|4|200000|500|90000|110000");
  EXPECT_EQ(reports.asked.back().formulas, QStringList({"조회기간= '1월 1일 - 3월 31일'"}));
  ask.answers["TxtName"].text = "셋";
  EXPECT_EQ(load(brief, ask).size(), 2);
  run("Update Client Set Name = '' Where Code = 1");
  ask.answers["TxtName"].text = "";
  ASSERT_TRUE(brief.load(ask));
  brief.print(2);
  EXPECT_EQ(staged("Str01").first(), "Null") << "a missing name prints as this word";
  EXPECT_EQ(brief.page(2).behind(ask, brief.cells(2, 2)),
            "frmAClientSaleBrief:lines?TxtClient=3&TxtDayFrom=2026-01-01&TxtDayTo=2026-03-31");
  ask.answers["TxtName"].text = "없는이";
  pc.prompts.expect("조회기간 및 조회고객명의 LPG판매가 없습니다!");
  EXPECT_FALSE(brief.load(ask));
}

TEST_F(SaleBriefs, ACustomerOfTwoYearsIsOneLine) {
  sale(year("2025"), {.day = "2025-12-31", .pieces = 10, .income = 1});
  BriefRun brief(session, lpgSaleBrief());
  EXPECT_EQ(
      load(brief, asks(2, {{"TxtDay", days("2025-12-31", "2026-01-05")}, {"TxtName", {}}})),
      QStringList({"김하나|053-1|일반/식당|12|80001|500|60001|20000", "[합 계]|||12|80001|500|60001|20000"}));
}

TEST_F(SaleBriefs, GasByPerson) {
  BriefRun brief(session, resSaleBrief());
  EXPECT_EQ(load(brief, asks(0, march)),
            QStringList({"2026-03-02|두기사|한빛 101동 202호|LPG / 20|1|40000|0|40000|0|0",
                         "2026-03-02|두기사|박셋|LPG / 0.5|3|0|0|0|0|0",
                         "2026-03-09|한기사|김하나|가스수금|0|0|0|0|50000|0",
                         "[합 계]||||4|40000|0|40000|50000|0"}))
      << "cylinders sold alone and materials are not gas";
  EXPECT_EQ(printed(brief, 0, "Str01, Str02, Str03, Str04, Lng01, Lng02, Lng03, Lng04, Lng05", -1),
            "가스내역.rpt 2026-03-09|한기사|김하나|가스수금|0|0|0|50000|0");

  BriefAsk one = asks(1, march);
  EXPECT_EQ(load(brief, one).first(), "두기사|2026-03-02|한빛 101동 202호|LPG / 20|1|40000|0|40000|0|0");
  one.answers["TxtResponse"].text = "한기사";
  EXPECT_EQ(load(brief, one).size(), 2);
  brief.print(1);
  EXPECT_EQ(reports.asked.back().file, "담당내역.rpt");
  EXPECT_TRUE(reports.asked.back().formulas.contains("담당자= '한기사'"));

  const BriefAsk all = asks(2, {{"TxtDay", days("2026-01-01", "2026-12-31")}});
  EXPECT_EQ(load(brief, all),
            QStringList({"두기사|4|40000|0|40000|0|0", "한기사|3|170000|500|60000|50000|110000",
                         "[합 계]|7|210000|500|100000|50000|110000"}));
  EXPECT_EQ(printed(brief, 2, "Str01, Lng01, Lng02, Lng03, Lng04, Lng05", -1),
            "담당집계.rpt 한기사|3|170000|60000|50000|110000");
  EXPECT_EQ(
      brief.page(2).behind(all, {"한기사"}),
      briefAddress("frmResSaleBrief", "person",
                   {{"TxtResponse", "한기사"}, {"TxtDayFrom", "2026-01-01"}, {"TxtDayTo", "2026-12-31"}}));
  pc.prompts.expect("조회기간의 가스판매 자료가 없습니다!");
  EXPECT_FALSE(brief.load(asks(2, {{"TxtDay", days("2026-02-01", "2026-02-28")}})));
}

TEST_F(SaleBriefs, MaterialsByPersonAndByCustomer) {
  BriefRun person(session, resUtilBrief());
  EXPECT_EQ(load(person, asks(2, march)), QStringList({"두기사|0|0|0|0|1000|0", "한기사|2|8000|0|5000|0|3000",
                                                       "[합 계]|2|8000|0|5000|1000|3000"}));
  for (const auto& [page, file] :
       {std::pair{0, "시설자재내역.rpt"}, {1, "자재담당내역.rpt"}, {2, "자재담당집계.rpt"}}) {
    ASSERT_TRUE(person.load(asks(page, march)));
    person.print(page);
    EXPECT_EQ(reports.asked.back().file, file);
  }
  sale(fitting("2026-03-12", 2, 1, 4000, 0, "밸브", "15a"));
  sale(fitting("2026-03-12", 1, 5, 700, 0, "호스", "3m"));
  BriefRun client(session, utilClientBrief());
  EXPECT_EQ(load(client, asks(0, march)), QStringList({"김하나|053-1|호스|3m|5|700|0|700|0",
                                                       "한빛 101동 202호|053-2|밸브|15A|3|12000|0|9000|3000",
                                                       "[합 계]||||8|12700|0|9700|3000"}));
  EXPECT_EQ(printed(client, 0, "Str01, Str02, Str03, Str04, Lng01, Lng02, Lng03, Lng04, Lng05", -1),
            "고객별자재판매현황.rpt 한빛 101동 202호|053-2|밸브|15A|3|12000|0|9000|3000");
}

TEST_F(SaleBriefs, LinesOfAPeriodAndOfACustomer) {
  BriefRun all(session, saleBrief());
  EXPECT_FALSE(all.brief().printButton) << "by F10 alone";
  const QStringList rows = load(all, asks(0, march));
  EXPECT_EQ(rows.size(), 7);
  EXPECT_EQ(rows[2], "2026-03-09|김하나|수금|가스수금|||||50000||한기사") << "a collection is money alone";
  EXPECT_EQ(rows[3], "2026-03-10|한빛 101동 202호|자판|밸브 / 15A|2|0|0|8000|5000|3000|한기사");
  EXPECT_EQ(rows[6], "[합 계]||||7||0|78000|126000|3000|");
  EXPECT_EQ(printed(all, 0, "Str01, Str02, Str03, Str04, Str05, Lng01, Lng02, Lng03, Lng04, Lng05, Lng06", 2),
            "전체판매현황.rpt 2026-03-09|김하나|수금|가스수금|한기사|||||50000|");
  EXPECT_EQ(load(all, asks(0, {{"TxtDay", march["TxtDay"]}, {"TxtName", {.text = "둘"}}})).size(), 4);

  BriefRun one(session, clientSaleBrief());
  BriefAsk ask =
      asks(0, {{"TxtDay", days("2026-01-01", "2026-12-31")}, {"TxtClient", {.text = "김하나", .code = 1}}});
  EXPECT_EQ(load(one, ask), QStringList({"2026-01-05|가스|LPG / 20|2|40000|500|80000|60000|20000|한기사",
                                         "2026-01-20|실병|LPG / 50|1|90000|0|90000|0|90000|한기사",
                                         "2026-03-09|수금|가스수금|||||50000||한기사",
                                         "2026-03-31|용판|용기 / 20|1|0|0|30000|30000|0|한기사",
                                         "[합 계]|||4||500|200000|140000|110000|"}));
  EXPECT_TRUE(one.page(0).report.isEmpty()) << "the grid itself is printed";
  EXPECT_EQ(one.page(0).printTitle(ask), "김하나 판매 내역 (2026-01-01 ~ 2026-12-31)");
  ask.answers["TxtClient"] = {.text = "김하"};
  pc.prompts.expect("조회할 고객을 먼저 검색하십시오!");
  EXPECT_FALSE(one.load(ask));
}

TEST_F(SaleBriefs, MaterialCredit) {
  run("Update Client Set UtilInit = 9000, GasInit = 4 Where Code = 2");
  BriefRun brief(session, utilTrustBrief());
  // 9,000 owed: 3,000 of 10 March (21 days), the rest older. Before: 9,000 - 3,000 + 1,000.
  EXPECT_EQ(load(brief, asks(0)),
            QStringList({"한빛 101동 202호|053-2||7000|8000|5000|1000|9000|3000|0|0|6000",
                         "[합 계]|||7000|8000|5000|1000|9000|3000|0|0|6000"}));
  brief.print(0);
  EXPECT_EQ(staged("Str01, Lng01, Lng02, Lng03, Lng04, Lng05"),
            QStringList({"한빛 101동 202호|7000|8000|5000|1000|9000"}));
  EXPECT_EQ(reports.asked.back().file, "자재미수현황.rpt");
}

struct Cylinders : testing::Test, tests::BriefDesk {
  Cylinders() {
    for (const jet::Database& each : {year("2025"), session.dbYear})  // as a closing copies
      sale(each, {.day = "2025-05-05", .kind = 5, .pieces = 5});
    sale({.day = "2026-01-10", .kind = 6, .pieces = 1});
    sale({.day = "2026-03-01", .kind = 5, .pieces = 3});
    sale({.day = "2026-03-31", .kind = 6, .pieces = 2, .person = "두기사"});
    sale({.day = "2026-03-05", .client = 2, .kind = 5, .pieces = 4, .size = "50"});
    sale({.day = "2026-03-10", .client = 2, .kind = 5, .pieces = 2, .size = "13"});
    sale({.day = "2026-03-11", .client = 2, .kind = 6, .pieces = 2, .size = "13"});  // settled within it
    sale({.day = "2026-01-05", .client = 3, .kind = 5, .pieces = 7});
    sale({.day = "2026-01-06", .client = 3, .kind = 6, .pieces = 7});  // settled before the period
    sale({.day = "2026-03-06", .kind = 1, .pieces = 99});
    sale({.day = "2026-04-01", .kind = 5, .pieces = 99});
    tests::insertRows(
        session.dbYear, "Buy(BuyDate, BuyCompany, BuyName, BuyThing, PurchaseNum, PurchaseGubun)",
        {"'2026-02-01', '대구충전소', 'LPG', '20', 10, 5", "'2026-03-03', '대구충전소', 'LPG', '20', 4, 6",
         "'2026-03-03', '대구충전소', 'LPG', '20', 50, 1"});
  }
  QStringList loadMarch(BriefRun& brief, QHash<QString, BriefAnswer> answers = {}) {
    answers["TxtDay"] = days("2026-03-01", "2026-03-31");
    return load(brief, asks(0, answers));
  }
};

TEST_F(Cylinders, WhatIsOutByItem) {
  BriefRun brief(session, canLpgBrief());
  // Kim: 5 last year, 1 back, 3 out and 2 back in March.
  EXPECT_EQ(loadMarch(brief), QStringList({"LPG|13|한빛 101동 202호|0|2|2|0", "LPG|20|김하나|4|3|2|5",
                                           "LPG|50|한빛 101동 202호|0|4|0|4", "[합 계]|||4|9|4|9"}));
  EXPECT_EQ(printed(brief, 0, "Str02, Str03, Str04, Lng01, Lng02, Lng03, Lng04", 1),
            "용기대여현황02.rpt LPG|20|김하나|4|3|2|5");
  EXPECT_EQ(reports.asked.back().formulas, QStringList({"조회기간= '3월 1일 - 3월 31일'"}));
  ASSERT_TRUE(brief.load(asks(0, {{"TxtDay", days("2023-01-01", "2026-03-31")}})));
  EXPECT_EQ(brief.rows(0).note, "") << "all years up to it are read, so none of them is missed";
  pc.prompts.expect("조회기간의 용기 대여/회수 자료가 없습니다!");
  EXPECT_FALSE(
      brief.load(asks(0, {{"TxtDay", days("2026-03-01", "2026-03-31")}, {"TxtItem", {.text = "부탄"}}})));
}

TEST_F(Cylinders, WhatIsOutAtStationsAndCustomers) {
  BriefRun brief(session, canCompanyBrief());
  EXPECT_EQ(loadMarch(brief),
            QStringList({"고객|김하나|LPG|20|4|3|2|5", "고객|한빛 101동 202호|LPG|13|0|2|2|0",
                         "고객|한빛 101동 202호|LPG|50|0|4|0|4", "충전소|대구충전소|LPG|20|10|0|4|6",
                         "[합 계]||||14|9|8|15"}));
  EXPECT_EQ(printed(brief, 0, "Str01, Str02, Str03, Str04, Lng01, Lng02, Lng03, Lng04", 3),
            "용기대여현황01.rpt 충전소|대구충전소|LPG|20|10|0|4|6");
  EXPECT_EQ(loadMarch(brief, {{"OptWhere", {.place = 1}}}).size(), 2);
  EXPECT_EQ(loadMarch(brief, {{"OptWhere", {.place = 2}}, {"TxtName", {.text = "하나"}}}).size(), 2);
  EXPECT_EQ(loadMarch(brief, {{"TxtName", {.text = "하나"}}}).size(), 2)
      << "stations of another name stay out";
  EXPECT_EQ(brief.page(0).behind(brief.ask(0), brief.cells(0, 1)).section('?', 0, 0),
            "frmAClientSaleBrief:lines");
}

TEST_F(Cylinders, WhatIsOutByPerson) {
  session.dbBasic.Execute(u"Insert Into Response(Name, HP) Values('한기사', '010-1')");
  BriefRun brief(session, canResBrief());
  EXPECT_EQ(loadMarch(brief),
            QStringList({"두기사||김하나|LPG|20|0|0|2|-2", "한기사|010-1|김하나|LPG|20|4|3|0|7",
                         "한기사|010-1|한빛 101동 202호|LPG|13|0|2|2|0",
                         "한기사|010-1|한빛 101동 202호|LPG|50|0|4|0|4", "[합 계]|||||4|9|4|9"}));
  EXPECT_EQ(printed(brief, 0, "Str01, Str02, Str03, Str04, Str05, Lng01, Lng02, Lng03, Lng04", 1),
            "용기대여현황03.rpt 한기사|010-1|김하나|LPG|20|4|3|0|7");
  EXPECT_EQ(loadMarch(brief, {{"TxtResponse", {.text = "두기사"}}}).size(), 2);
}

struct Ledgers : testing::Test, tests::BriefDesk {};

TEST_F(Ledgers, SelectBySaleFormula) {
  BriefRun brief(session, saleLedgerBrief());
  BriefAsk ask = asks(0, {{"TxtDay", days("2026-03-01", "2026-03-31")}});
  ASSERT_TRUE(brief.printLive(ask));
  const pc::ReportRequest& shown = reports.asked.back();
  EXPECT_EQ(shown.file, "salegas.rpt");
  EXPECT_EQ(shown.selection,
            "{Sale.SaleDate} >= '2026-03-01' And {Sale.SaleDate} <= '2026-03-31' And {Sale.SaleGubun} <> 7 "
            "and {Sale.SaleGubun} <> 8 ");
  EXPECT_EQ(shown.formulas, QStringList({"SDay='2026-03-01'", "EDay='2026-03-31'"}));
  EXPECT_EQ(shown.liveFiles.size(), 1);
  ask.answers["OptHouse"].place = 2;
  session.SaleLedgerGas = false;
  ASSERT_TRUE(brief.printLive(ask));
  EXPECT_EQ(reports.asked.back().selection,
            "{Sale.SaleDate} >= '2026-03-01' And {Sale.SaleDate} <= '2026-03-31' And {Client.HouseStyle} = 1 "
            "And ({Sale.SaleGubun} = 7 or {Sale.SaleGubun} = 8) ");
  ask.answers["TxtDay"] = days("2026-03-31", "2026-03-01");
  pc.prompts.expect("늦습니다");
  EXPECT_FALSE(brief.printLive(ask));
}

TEST_F(Ledgers, SelectByPurchaseFormula) {
  year("2025");
  BriefRun brief(session, buyLedgerBrief());
  BriefAsk ask = asks(0, {{"TxtDay", days("2025-03-01", "2026-03-31")}, {"TxtCompany", {.text = "O'Neil"}}});
  ASSERT_TRUE(brief.printLive(ask));
  EXPECT_EQ(
      reports.asked.back().selection,
      "{Buy.BuyDate} >= '2025-03-01' And {Buy.BuyDate} <= '2026-03-31' And {Buy.BuyCompany} = 'O''Neil'");
  EXPECT_EQ(reports.asked.back().file, "buygas.rpt");
  EXPECT_EQ(reports.asked.back().liveFiles.size(), 2);
  EXPECT_EQ(reports.asked.back().liveSelections,
            QStringList({"{Buy.BuyDate} >= '2025-03-01' And {Buy.BuyDate} <= '2025-12-31' And "
                         "{Buy.BuyCompany} = 'O''Neil'",
                         "{Buy.BuyDate} >= '2026-01-01' And {Buy.BuyDate} <= '2026-03-31' And "
                         "{Buy.BuyCompany} = 'O''Neil'"}))
      << "a line that a closing copied stands in its own year's file";
}

}  // namespace
