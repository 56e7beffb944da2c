// Where the entries of a paper's table land on the page, in inches.
#include "pc/paper_form.h"

#include "tests/recorded_print.h"

using namespace Qt::StringLiterals;

namespace {

using pc::at, pc::inches, pc::PaperItem;
enum class Head { Name, Sum };
enum class Row { Item, Price };
enum Fonts { letters, small };
constexpr pc::PaperFont fonts[] = {{u"굴림체"}, {u"돋움체", 7.2, true}};

struct PaperFormTest : testing::Test {
  tests::RecordedPrinters printers;
  std::unique_ptr<pc::PrintJob> job = printers.open("지로프린터", {}, {});
  const tests::RecordedJob& record() { return *printers.jobs.back(); }
  const std::vector<QString> texts{"가람상사", "1,500"};

  void draw(std::span<const PaperItem> items, pc::PaperShift shift = {}) {
    pc::PaperForm form{.paper = {}, .rowsPerInch = 6, .columnsPerInch = 10, .fonts = fonts, .items = items};
    pc::drawPaper(*job, form, shift, 0, texts);
  }
  /** "x y text" of everything put, in hundredths of an inch. */
  QStringList places() {
    QStringList all;
    for (const auto& item : record().items) {
      const auto hundredths = [](double inch) { return QString::number(qRound(inch * 100)); };
      all << hundredths(item.x) + u' ' + hundredths(item.y) + u' ' +
                 (item.kind == tests::PrintedItem::Text ? item.text
                                                        : hundredths(item.x2) + u' ' + hundredths(item.y2));
    }
    return all;
  }
};

TEST_F(PaperFormTest, TextsStandInTheGridOrAtInchesAndMoveTogether) {
  constexpr PaperItem items[] = {
      {3, 5, Head::Name},      {3, 30, u"귀하"},          inches(2, 1, Head::Sum).in(small),
      inches(2, 1.5, u"합계"), pc::rule(1, 2, 4, 2, 1.5), pc::dashedRule(0, 5, 8, 5),
      pc::box(1, 3, 4, 4)};
  draw(items, {.rows = 3, .columns = -1});
  EXPECT_EQ(places(), (QStringList{"40 100 가람상사", "290 100 귀하", "190 150 1,500", "190 200 합계",
                                   "90 250 390 250", "-10 550 790 550",  //
                                   "90 350 390 350", "90 450 390 450", "90 350 90 450", "390 350 390 450"}));
  const auto& all = record().items;
  EXPECT_EQ(all[0].font.family, "굴림체");
  EXPECT_EQ(all[0].font.points, 10) << "the job's own size";
  EXPECT_EQ(all[2].font.family, "돋움체");
  EXPECT_EQ(all[2].font.points, 7.2);
  EXPECT_TRUE(all[2].font.bold);
  EXPECT_EQ(all[4].weight, 1.5);
  EXPECT_FALSE(all[4].dashed);
  EXPECT_TRUE(all[5].dashed);
  EXPECT_NE(job->font().points, 7.2) << "the size of before stands again";
}

TEST_F(PaperFormTest, ATextFitsItsRoom) {
  // A half-width character of the ten-point font is 10/144 of an inch wide, of the small one 0.05.
  constexpr PaperItem items[] = {at(0, 0, Head::Name).cut(5),
                                 at(1, 0, Head::Sum).padded(8),
                                 at(2, 0, Head::Name).padded(3),
                                 inches(1, 1, Head::Sum).in(small).right(13),
                                 inches(1, 2, Head::Sum).in(small).centred(13),
                                 at(3, 0, Head::Sum).cells(7, 2),
                                 inches(2, 3, Head::Sum).cells(4, 0.25),
                                 at(5, 0, u"1 5").cells(3, 2),
                                 {4, 0, Head(7)}};
  draw(items);
  EXPECT_EQ(places(), (QStringList{"0 0 가람 ", "0 17    1,500", "0 33 가람상사", "140 100 1,500",
                                   "120 200 1,500",                                          //
                                   "40 50 1", "60 50 ,", "80 50 5", "100 50 0", "120 50 0",  //
                                   "175 300 1", "200 300 ,", "225 300 5", "250 300 0", "275 300 0", "0 83 1",
                                   "40 83 5"}));
}

TEST_F(PaperFormTest, ALongTextIsWrittenSmallerBeforeItIsCut) {
  constexpr PaperItem items[] = {at(0, 0, Head::Name).squeezed(8), at(1, 0, Head::Name).squeezed(6),
                                 at(2, 0, Head::Name).squeezed(3)};
  draw(items);
  // Eight half-width characters: at three quarters of ten points six have the room, at two thirds four have that of three.
  EXPECT_EQ(places(), (QStringList{"0 0 가람상사", "0 19 가람상사", "0 37 가람"}));
  EXPECT_EQ(record().items[0].font.points, 10);
  EXPECT_EQ(record().items[1].font.points, 7.5);
  EXPECT_NEAR(record().items[2].font.points, 6.667, 0.001);
}

TEST_F(PaperFormTest, ATableRowByRow) {
  constexpr pc::PaperRow rows[] = {{1.5, {{3, Head::Name, 5}, at(20, Head::Sum).in(small)}},
                                   {2, {{4, Head::Sum}}}};
  const pc::PaperForm form{.paper = {}, .rowsPerInch = 5, .columnsPerInch = 10, .fonts = fonts, .rows = rows};
  pc::drawPaper(*job, form, {.rows = 1, .columns = 2}, 0, texts);
  EXPECT_EQ(places(), (QStringList{"50 54 가람상 ", "220 50 1,500", "60 60 1,500"}));
  EXPECT_EQ(record().items[1].font.points, 7.2);
}

TEST_F(PaperFormTest, LinesGoDownAndCopiesAsideAndDown) {
  constexpr PaperItem head[] = {{0, 0, Head::Name}};
  constexpr PaperItem line[] = {{2, 0, Row::Item}, {2, 10, Row::Price}};
  pc::PaperForm form{.paper = {}, .rowsPerInch = 1, .columnsPerInch = 1, .fonts = fonts, .items = head};
  form.copies = 4;
  form.copyRows = 30;
  form.across = 2;
  form.copyColumns = 50;
  form.line = line;
  form.lines = 2;
  form.lineRows = 1.5;
  const std::vector<QStringList> lines{{"하나", "1"}, {"둘"}, {"셋", "3"}};
  pc::drawPaper(*job, form, {}, 3, texts, lines);
  EXPECT_EQ(places(), (QStringList{"5000 3000 가람상사", "5000 3200 하나", "6000 3200 1", "5000 3350 둘"}))
      << "the third line has no room";
  pc::drawPaper(*job, form, {}, 1, texts, std::span(lines).first(1));
  EXPECT_EQ(places().mid(4), (QStringList{"5000 0 가람상사", "5000 200 하나", "6000 200 1"}));
}

TEST_F(PaperFormTest, ListsGoOverSheetsAndPlacesOverPages) {
  const auto sheets = [](int lines) {
    QStringList all;
    for (const pc::PaperSheet& sheet : pc::sheetsOf(lines, 14))
      all << u"%1: %2+%3%4"_s.arg(sheet.number).arg(sheet.first).arg(sheet.count).arg(sheet.last ? "." : "");
    return all.join(' ');
  };
  EXPECT_EQ(sheets(0), "1: 0+0.");
  EXPECT_EQ(sheets(14), "1: 0+14.");
  EXPECT_EQ(sheets(15), "1: 0+14 2: 14+1.");

  pc::PaperPlaces places(*job, 2);
  const auto next = [&] {
    const int place = places.next();
    return u"%1/%2"_s.arg(record().pages).arg(place);
  };
  for (const char* place : {"1/0", "1/1", "2/0"}) EXPECT_EQ(next(), place);
  places.newSheet();
  EXPECT_EQ(record().pages, 2) << "thrown only when something follows";
  EXPECT_EQ(next(), "3/0");
}

}  // namespace
