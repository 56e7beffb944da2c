// Runs of documents over a recording printer, and the months of a range.
#include "papers/document_run.h"
#include "papers/month_range.h"
#include "tests/recorded_print.h"
#include "tests/support.h"

namespace {

QString months(const QDate& from, const QDate& to) {
  QStringList parts;
  for (const MonthPart& part : monthsOf(from, to)) parts << part.from.mid(2) + '~' + part.to.mid(5);
  return parts.join(' ');
}

TEST(MonthRange, FirstAndLastPartAreCutTheYearRollsOver) {
  EXPECT_EQ(months({2026, 3, 5}, {2026, 3, 5}), "26-03-05~03-05");
  EXPECT_EQ(months({2025, 11, 20}, {2026, 2, 3}),
            "25-11-20~11-30 25-12-01~12-31 26-01-01~01-31 26-02-01~02-03");
  EXPECT_EQ(months({2024, 1, 31}, {2024, 3, 31}), "24-01-31~01-31 24-02-01~02-29 24-03-01~03-31");
  EXPECT_EQ(months({2026, 3, 5}, {2026, 3, 4}), "");
  EXPECT_EQ(months({}, {2026, 3, 4}), "");
}

struct DocumentRunTest : testing::Test, tests::TestPc {
  tests::RecordedPrinters printers;
  DocumentRun run{.title = "시험",
                  .paper = {4, 3},
                  .placesOnSheet = 2,
                  .documents = 3,
                  .put = [](pc::PrintJob& job, pc::PaperPlaces& places,
                            int document) { job.text(places.next(), 0, QString::number(document)); },
                  .name =
                      [](int document) {
                        return documentName("2026-03-31", " 달빛  식당", "지로") + QString::number(document);
                      }};

  void SetUp() override { session.printers = &printers; }
  const tests::RecordedJob& job() { return *printers.jobs.back(); }
};

TEST_F(DocumentRunTest, GoesOutInOneJobAndStopsBetweenTwo) {
  const OpenJob open = onPrinter(session, "PDF 파일");
  EXPECT_EQ(runDocuments(open, run), 3);
  EXPECT_TRUE(job().ended);
  EXPECT_EQ(job().printer + '|' + job().title, "PDF 파일|시험");
  EXPECT_EQ(job().paper.width, 4);
  EXPECT_EQ(job().texts(1), (QStringList{"0", "1"}));
  EXPECT_EQ(job().texts(2), QStringList{"2"});
  std::vector<int> told;
  EXPECT_EQ(runDocuments(open, run,
                         [&](int done, int of) {
                           told.push_back(done * 10 + of);
                           return done < 2;
                         }),
            2);
  EXPECT_EQ(told, (std::vector<int>{13, 23}));
  EXPECT_TRUE(job().ended) << "what was put goes out";
  EXPECT_EQ(job().pages, 1) << "no empty sheet behind it";
  run.documents = 0;
  EXPECT_EQ(runDocuments(open, run), 0);
  EXPECT_EQ(printers.jobs.size(), 2u);
}

TEST_F(DocumentRunTest, ARefusalAbandonsTheJob) {
  EXPECT_THROW(onPrinter(session, "뽑힌 프린터"), pc::PrintError);
  printers.refusesFromPage = 2;
  EXPECT_THROW(runDocuments(onPrinter(session, "PDF 파일"), run), pc::PrintError);
  EXPECT_TRUE(job().abandoned && !job().ended);
}

TEST_F(DocumentRunTest, EachDocumentApartUnderItsName) {
  const OpenJob file = [&](const QString& title, const pc::PaperSize& paper) {
    return printers.openFile("/pdf/" + title, title, paper);
  };
  EXPECT_EQ(runDocumentsApart(file, run), 3);
  ASSERT_EQ(printers.jobs.size(), 3u);
  EXPECT_EQ(printers.jobs[1]->printer, "/pdf/2026-03-31 달빛 식당 지로1");
  for (size_t each = 0; each < 3; ++each) {
    EXPECT_TRUE(printers.jobs[each]->ended);
    EXPECT_EQ(printers.jobs[each]->items[0].x, 0) << "each begins a sheet";
    EXPECT_EQ(printers.jobs[each]->texts(), QStringList{QString::number(each)});
  }
  EXPECT_EQ(runDocumentsApart(file, run, [](int done, int) { return done < 1; }), 1);
}

}  // namespace
