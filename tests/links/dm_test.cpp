// Address lines, labels two across and envelopes, at their places on a recording printer.
#include "links/dm_list.h"
#include "tests/cells.h"
#include "tests/recorded_print.h"
#include "tests/support.h"

using namespace Qt::StringLiterals;

namespace {

struct DmTest : testing::Test, tests::TestPc {
  tests::RecordedPrinters printers;
  DmTest() {
    openBooks(QDate(2026, 3, 16));
    session.printers = &printers;
  }
  void choosePrinter(const char* top = "0", const char* left = "0") {
    for (const auto& [key, value] : {std::pair{"DEVICENAME", "지로프린터"}, {"TOP", top}, {"LEFT", left}})
      pc.settings.SaveSetting("해온판매", "프린터설정", QString::fromLatin1(key), QString::fromUtf8(value));
  }
  void addClient(const char* values) {
    session.dbBasic.Execute(
        "Insert Into Client(Name, PostCode, Address, BDName, Dong, Ho, VolumeYesNo) Values(" +
        QString::fromUtf8(values) + ")");
  }
  const tests::RecordedJob& print(DmList& list, DmPaper paper) {
    const auto run = list.run(paper);
    EXPECT_TRUE(run);
    EXPECT_EQ(runDocuments(onPrinter(session, list.printer()), *run), list.ticked());
    return *printers.jobs.back();
  }
};

QString joined(const std::vector<QStringList>& lines) {
  QStringList texts;
  for (const QStringList& line : lines) texts << line.front();
  return texts.join(u'/');
}

TEST_F(DmTest, AnAddressIsFourLinesOrAsManyAsItHas) {
  EXPECT_EQ(buildingLine("한빛아파트", "101", "305"), "한빛아파트 101동 305호");
  EXPECT_EQ(buildingLine("빌라", {}, "201"), "빌라 201호");
  EXPECT_EQ(buildingLine({}, "101", "305"), QString());
  EXPECT_EQ(joined(addressLines("403-010", "인천 부평구", "빌라 2호", "가람", 46)),
            "403-010/인천 부평구/빌라 2호/가람");
  EXPECT_EQ(joined(addressLines({}, "인천", {}, "가람", 46)), "인천/가람");
  // Hangul counts two: "인천광역시 부평구" is 17 wide, with " 부평동" 24.
  EXPECT_EQ(joined(addressLines({}, "인천광역시 부평구 부평동 12", {}, {}, 17)),
            "인천광역시 부평구/부평동 12");
  EXPECT_EQ(joined(addressLines({}, "가나다라마바사", {}, {}, 5)), "가나/다라/마바/사")
      << "a word that is too long is broken, no half character";
}

TEST_F(DmTest, TheOptionChoosesTheCustomers) {
  addClient("'가람', '1', '', '', '', '', False");
  addClient("'나래', '2', '', '한빛', '101', '305', True");
  DmList list(session);
  const auto names = [&](DmKind kind) {
    EXPECT_TRUE(list.load(kind));
    return tests::columnOf(list.list(), DmCol::Name).join(QString());
  };
  EXPECT_EQ(names(DmKind::General), "가람");
  EXPECT_EQ(names(DmKind::All), "가람나래");
  list.tickAll(true);
  EXPECT_EQ(list.ticked(), 2);
  EXPECT_EQ(names(DmKind::Volume), "나래");
  EXPECT_EQ(list.ticked(), 0);
  EXPECT_EQ(list.list().text(1, DmCol::Building), "한빛 101동 305호");
}

TEST_F(DmTest, NoTickAndNoPrinterAreTold) {
  addClient("'가람', '1', '', '', '', '', False");
  DmList list(session);
  ASSERT_TRUE(list.load(DmKind::All));
  prompts.expect("출력할 고객을 선택하십시오!");
  EXPECT_FALSE(list.run(DmPaper::Label));
  prompts.expect("출력할 프린터가 설정되어 있지 않습니다.");
  EXPECT_EQ(list.printer(), QString());
}

// Rows of 1/8 inch, columns of 1/15: the first label's text begins at row 4.7, column 6.5, a line takes 1.35 rows; the
// label beside it stands 60 columns (4 inches) on, the one below 10.68 rows.
TEST_F(DmTest, LabelsStandTwoAcrossAndSixteenOnASheet) {
  for (int at = 1; at <= 17; ++at)
    addClient(qPrintable(u"'고객%1', '403-0%1', '인천 부평구 부평동 %1', '%2', '101', '305', False"_s
                             .arg(at, 2, 10, QChar(u'0'))
                             .arg(at == 2 ? u"한빛"_s : QString())));
  choosePrinter();
  DmList list(session);
  ASSERT_TRUE(list.load(DmKind::All));
  list.tickAll(true);
  const tests::RecordedJob& job = print(list, DmPaper::Label);
  EXPECT_EQ(job.title, "DM 라벨");
  EXPECT_EQ(job.pages, 2);
  EXPECT_EQ(job.texts(2), (QStringList{"403-017", "인천 부평구 부평동 17", "고객17"}));
  const auto text = [&](double row, double column) {
    const tests::PrintedItem* item = job.at(1, column / 15, row / 8);
    return item ? item->text : "-";
  };
  EXPECT_EQ(text(4.7, 6.5), "403-001");
  EXPECT_EQ(text(4.7 + 1.35, 6.5), "인천 부평구 부평동 01");
  EXPECT_EQ(text(4.7 + 2.7, 6.5), "고객01") << "no building, no line";
  EXPECT_EQ(text(4.7, 66.5), "403-002");
  EXPECT_EQ(text(4.7 + 2.7, 66.5), "한빛 101동 305호");
  EXPECT_EQ(text(4.7 + 4.05, 66.5), "고객02");
  EXPECT_EQ(text(4.7 + 10.68, 6.5), "403-003");
  EXPECT_EQ(text(4.7 + 7 * 10.68, 66.5), "403-016");
  EXPECT_LT((4.7 + 7 * 10.68 + 7 * 1.35) / 8, 11.69 - 0.5) << "seven lines of the last row stay on the sheet";
}

TEST_F(DmTest, AnEnvelopeIsASheetOfItsOwnAndMovesWithTheMargins) {
  addClient("'가람', '403-010', '인천 부평구', '한빛', '101', '305', False");
  addClient("'나래', '403-020', '인천 남구', '', '', '', False");
  addClient("'다솜', '', '', '', '', '', False");
  choosePrinter("2", "-1.5");
  DmList list(session);
  ASSERT_TRUE(list.load(DmKind::All));
  list.list().setText(1, DmCol::Tick, "1");
  list.list().setText(2, DmCol::Tick, "1");
  const tests::RecordedJob& job = print(list, DmPaper::Envelope);
  EXPECT_EQ(job.pages, 2);
  EXPECT_EQ(job.paper.width, 8.66);
  const auto* first = job.at(1, (62 - 1.5) / 15, (15 + 2) / 8.0);
  ASSERT_TRUE(first);
  EXPECT_EQ(first->text, "403-010");
  EXPECT_EQ(first->font.points, 11);
  EXPECT_EQ(job.texts(1), (QStringList{"403-010", "인천 부평구", "한빛 101동 305호", "가람"}));
  EXPECT_EQ(job.texts(2), (QStringList{"403-020", "인천 남구", "나래"}));
  const auto run = list.run(DmPaper::Envelope);
  EXPECT_EQ(run->name(1), "2026-03-16 나래 DM 봉투");
}

}  // namespace
