// What every report of the trade side makes of answers, names and layouts that are wrong.
#include <QFile>

#include "store/report_source.h"
#include "tests/briefs/brief_desk.h"
#include "trade/briefs/trade_briefs.h"

using namespace Qt::StringLiterals;

namespace {

using tests::days;

constexpr Brief (*everyBrief[])() = {lpgSaleBrief,    resSaleBrief, resUtilBrief,    trustBrief,
                                     utilTrustBrief,  canLpgBrief,  canCompanyBrief, canResBrief,
                                     utilClientBrief, saleBrief,    clientSaleBrief, saleLedgerBrief,
                                     buyLedgerBrief,  holdBrief,    utilHoldBrief};

/** Makes the report as the viewer does. */
struct MakingReports : pc::Reports {
  explicit MakingReports(Session& of) : session(of) {}
  Session& session;
  QStringList texts;  ///< every cell of the rows
  QString refusal;
  void show(const pc::ReportRequest& request) override {
    texts.clear();
    refusal.clear();
    try {
      const auto report = makeReport(session, request);
      for (const auto& row : report->table().rows)
        for (const pc::ReportValue& value : row) texts << pc::plainText(value);
      EXPECT_GT(report->count(), 0);
    } catch (const pc::ReportError& error) {
      refusal = error.text;
    }
  }
};

/** A line of every kind, of names with an apostrophe. */
struct BadInput : testing::Test, tests::BriefDesk {
  MakingReports making{session};

  BadInput() {
    session.reports = &making;
    session.RptPath = "C:\\RWGas\\RPT\\";
    run("Update Client Set Name = 'O''Neil', GasInit = 5000, UtilInit = 700 Where Code = 1");
    run("Insert Into LPG(LPGName, Size, CANFull, CANEmpty) Values('LP''G', '20', 5, 5)");
    run("Insert Into Util(Name, Size, UtilStock) Values('LP''G', '20', 5)");
    for (int kind = 1; kind <= 8; ++kind) {
      sale({.day = "2026-03-02", .kind = kind, .pieces = 2, .income = 900, .trust = 100});
      run(u"Insert Into Buy(BuyDate, BuyCompany, Response, BuyName, BuyThing, PurchaseNum, PurchaseGubun, Pay, Trust) Values('2026-03-02', 'D''or', 'O''Hara', 'LP''G', '20', 2, %1, 900, 100)"_s
              .arg(kind));
    }
    run("Update Sale Set SaleName = 'LP''G', Response = 'O''Hara'");
  }

  /** Every page under answers that are right. */
  void onEveryPage(const std::function<void(BriefRun&, const BriefPage&, const BriefAsk&)>& work) {
    for (const auto brief : everyBrief)
      for (int at = 0; at < int(brief().pages.size()); ++at) {
        BriefRun run(session, brief());
        SCOPED_TRACE(run.brief().form.toStdString() + " page " + std::to_string(at));
        BriefAsk ask{.page = at};
        for (const BriefQuestion& question : run.brief().questions) {
          BriefAnswer& answer = ask.answers[question.name];
          if (question.kind == AskKind::Period) answer = days("2026-03-01", "2026-03-31");
          if (question.kind == AskKind::Year) answer.text = "2026";
          if (question.kind == AskKind::Month) answer.text = "03";
          if (question.kind == AskKind::Client) answer = {.text = "O'Neil", .code = 1};
        }
        work(run, run.page(at), ask);
      }
  }
  static const BriefQuestion* asked(const BriefRun& run, const BriefAsk& ask, AskKind kind) {
    for (const BriefQuestion& question : run.brief().questions)
      if (question.kind == kind && run.isAsked(question, ask)) return &question;
    return nullptr;
  }
  static bool go(BriefRun& run, const BriefAsk& ask) {
    return run.page(ask.page).selection ? run.printLive(ask) : run.load(ask);
  }
  void mark() {
    stageReport(session, 1, [](int) { return u"Insert Into Print(Str01) Values('before')"_s; });
  }
  void ownLayout(const QString& report, const QByteArray& text) {
    pc.pc.paths.makeFolder(session.RptPath);
    QFile file(pc.pc.paths.native(session.RptPath) + '/' + QString(report).replace(".rpt", ".layout"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  }
};

TEST_F(BadInput, AWrongPeriodIsToldAtItsBoxAndStagesNothing) {
  mark();
  int pages = 0;
  onEveryPage([&](BriefRun& run, const BriefPage&, const BriefAsk& right) {
    const BriefQuestion* const period = asked(run, right, AskKind::Period);
    if (!period) return;
    ++pages;
    BriefAsk ask = right;
    ask.answers[period->name] = days("2026-03-01", "2026-02-30");
    for (int time = 0; time < 2; ++time) pc.prompts.expect("날짜 입력이 올바르지 않습니다!");
    EXPECT_FALSE(go(run, ask));
    EXPECT_EQ(run.check(ask), period->name + "To");
  });
  EXPECT_EQ(pages, 17);
  EXPECT_EQ(staged("Str01"), QStringList{"before"});
}

TEST_F(BadInput, AYearWithoutAFileIsTold) {
  mark();
  onEveryPage([&](BriefRun& run, const BriefPage& page, const BriefAsk& right) {
    BriefAsk ask = right;
    if (const BriefQuestion* const period = asked(run, right, AskKind::Period))
      ask.answers[period->name] = days("2019-01-01", "2019-12-31");
    else if (const BriefQuestion* const year = asked(run, right, AskKind::Year))
      ask.answers[year->name].text = "2019";
    else
      return;
    if (page.selection) {
      EXPECT_TRUE(go(run, ask));
      EXPECT_TRUE(making.refusal.contains("출력할 자료가 없습니다!")) << making.refusal.toStdString();
      EXPECT_EQ(run.rows(0).note, "2019년은 자료 파일이 없어 빠졌습니다.");
      return;
    }
    pc.prompts.expect("조회 관리자");
    EXPECT_FALSE(go(run, ask));
    EXPECT_TRUE(pc.prompts.seen.last().contains("없습니다!"));
    EXPECT_EQ(run.grid(ask.page).MaxRows(), 0);
  });
  EXPECT_EQ(staged("Str01"), QStringList{"before"});
}

TEST_F(BadInput, AnApostropheIsRefusedInABoxAndPrintedInAName) {
  onEveryPage([&](BriefRun& run, const BriefPage& page, const BriefAsk& right) {
    if (const BriefQuestion* const part = asked(run, right, AskKind::Text)) {
      BriefAsk ask = right;
      ask.answers[part->name].text = "O'Ne";
      pc.prompts.expect("작은따옴표를 넣을 수 없습니다!");
      EXPECT_FALSE(go(run, ask));
    }
    for (const BriefQuestion& question : run.brief().questions) {
      BriefAsk ask = right;  // what comes from a search may hold one
      if (question.kind == AskKind::Person) ask.answers[question.name].text = "O'Hara";
      if (question.kind == AskKind::Station) ask.answers[question.name].text = "D'or";
      ASSERT_TRUE(go(run, ask));
      if (page.selection || page.report.isEmpty()) continue;
      const bool named = tests::BriefDesk::shown(run, ask.page).join(' ').contains('\'');
      run.print(ask.page);
      EXPECT_EQ(making.refusal, "");
      EXPECT_EQ(making.texts.join(' ').contains('\''), named);
    }
    if (page.selection) {
      EXPECT_TRUE(making.texts.join(' ').contains('\''));
    }
  });
}

TEST_F(BadInput, ASpoiledLayoutOfTheShopsOwnIsToldByNameAndTheRowsStayWhole) {
  onEveryPage([&](BriefRun& run, const BriefPage& page, const BriefAsk& ask) {
    if (page.report.isEmpty()) return;
    const auto print = [&] {
      EXPECT_TRUE(go(run, ask));
      if (!page.selection) run.print(ask.page);
    };
    const QString name = QString(page.report).replace(".rpt", ".layout");
    print();
    EXPECT_EQ(making.refusal, "") << "no folder of its own: the paper that came with the program";
    for (const char* const spoiled :
         {"\xff\xfe\x00 nonsense", "column", "paper A9\ncolumn Str01 \"이름\" 10\n"}) {
      ownLayout(page.report, spoiled);
      print();
      EXPECT_TRUE(making.refusal.contains(name)) << making.refusal.toStdString();
    }
    if (page.selection) {
      ownLayout(page.report, "column Str01 \"이름\" 10\n");
      print();
      EXPECT_TRUE(making.refusal.contains("table")) << making.refusal.toStdString();
    } else {
      EXPECT_EQ(staged("Str01").size(), qsizetype(run.rows(ask.page).rows.size()));
    }
  });
}

}  // namespace
