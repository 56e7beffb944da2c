// What is kept for the screen is what would have been printed.
#include "tests/recorded_print.h"
#include "tests/support.h"
#include "ui/paper/kept_pages.h"

using namespace Qt::StringLiterals;

namespace {

void drawTwoPages(pc::PrintJob& job) {
  job.setFont({"굴림체", 10, false});
  job.text(1, 1, "첫 장");
  job.setInk({0, 0, 200});
  job.setFont({"돋움체", 8, true});
  job.text(2, 1.5, "푸른 글");
  job.line(0.5, 2, 7.5, 2, 1.5, true);
  job.setInk({});
  job.line(0.5, 3, 7.5, 3);
  job.fill(1, 4, 2, 0.25, 0.9);
  job.newPage();
  job.text(1, 1, "둘째 장");
  job.setFont({"굴림체", 10, false});
  job.text(1, 2, "다시 굴림체");
}

QStringList told(const tests::RecordedJob& job, int page) {
  QStringList all;
  for (const auto& item : job.items)
    if (item.page == page)
      all << u"%1 %2,%3 %4,%5 %6 %7 %8 %9"_s.arg(int(item.kind))
                 .arg(item.x, 0, 'f', 2)
                 .arg(item.y, 0, 'f', 2)
                 .arg(item.x2, 0, 'f', 2)
                 .arg(item.y2, 0, 'f', 2)
                 .arg(item.weight, 0, 'f', 2)
                 .arg(item.text)
                 .arg(item.kind == tests::PrintedItem::Text
                          ? item.font.family + QString::number(item.font.points) + (item.font.bold ? "b" : "")
                          : QString())
                 .arg(QString::number(item.ink.blue) + (item.dashed ? "dashed" : ""));
  return all;
}

TEST(KeptPagesTest, EachPageIsDrawnAsItWasPut) {
  tests::RecordedPrinters printers;
  const auto straight = printers.open("지로프린터", {}, {8, 6});
  drawTwoPages(*straight);
  auto pages = std::make_shared<KeptPages>();
  const auto keeping = keepPages(pages, {8, 6});
  drawTwoPages(*keeping);
  keeping->end();
  ASSERT_EQ(pages->count(), 2);
  EXPECT_EQ(pages->paper().width, 8);
  for (const int page : {1, 0}) {  // in any order
    const auto again = printers.open("지로프린터", {}, {8, 6});
    pages->draw(*again, page);
    EXPECT_EQ(told(*printers.jobs.back(), 1), told(*printers.jobs.front(), page + 1)) << page;
  }
  EXPECT_GT(keeping->textWidth("가나다"), 0.2) << "measured, for what stands at the right";
  keeping->abandon();
  EXPECT_EQ(pages->count(), 0);
}

}  // namespace
