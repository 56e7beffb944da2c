#pragma once
// What the tests of slips work on, and how they look at the paper.
#include "giro/giro_slips.h"
#include "tests/giro/reading_rows.h"
#include "tests/recorded_print.h"
#include "tests/support.h"

namespace tests {

inline QString places13(const QString& text) {
  return QString(13 - text.size(), u' ') + text;
}

/** A company, its rates and a printer around the slips of a reading screen. */
struct SlipDesk : TestPc {
  tests::ReadingRows screen;
  tests::RecordedPrinters printers;
  GiroSlips giro{session, [this] { return open ? &screen : nullptr; }};
  bool open = true;
  GiroInput input{"2026", "03", "31", "2026.02.01", "2026.02.28", {}};

  SlipDesk() {
    openBooks(QDate(2026, 3, 16));
    session.printers = &printers;
    session.dbBasic.Execute("Insert Into User(Company, PayState) Values('해온가스', 1)");
    session.rates.books = {{{2, 0}, {3, 0}, {1, 0}}};
    set("DEVICENAME", "지로프린터");
    pc.settings.SaveSetting("해온판매", "Registration", "Ocr", "1234567");
  }
  void set(const QString& key, const QString& value) {
    pc.settings.SaveSetting("해온판매", "프린터설정", key, value);
  }
  const tests::RecordedJob& job() { return *printers.jobs.back(); }

  struct Expected {
    double row, column;
    QString text;
    QString family = "굴림체";
    double points = 10;
  };
  /** Every text of a page at its place in rows and columns, and no other. */
  void expectPage(int page, const std::vector<Expected>& all, double top = 0, double left = 0) {
    for (const Expected& one : all) {
      const auto* item = job().at(page, (one.column + left) / 15, (one.row + top) / 8);
      ASSERT_TRUE(item) << "nothing at " << one.row << ", " << one.column << ": " << one.text.toStdString();
      EXPECT_EQ(item->text, one.text) << one.row << ", " << one.column;
      EXPECT_EQ(item->font.family, one.family) << one.text.toStdString();
      EXPECT_EQ(item->font.points, one.points) << one.text.toStdString();
    }
    EXPECT_EQ(size_t(job().texts(page).size()), all.size());
  }
  /** No text leaves its sheet or stands on another one. */
  void expectNothingMeets() {
    struct Box {
      int page;
      double left, top, right, bottom;
      QString text;
    };
    std::vector<Box> boxes;
    for (const auto& item : job().items) {
      const double cell = item.font.family == "OCR-B-1" ? 0.1 : item.font.points / 144;
      const QString bare = item.text.trimmed();
      const double right = item.x + widthOf(item.text) * cell;
      boxes.push_back(
          {item.page, right - widthOf(bare) * cell, item.y, right, item.y + item.font.points / 72, bare});
    }
    for (size_t i = 0; i < boxes.size(); ++i) {
      const Box& one = boxes[i];
      EXPECT_TRUE(one.left > 0.2 && one.top > 0.17 && one.right < job().paper.width - 0.2 &&
                  one.bottom < job().paper.height - 0.2)
          << one.text.toStdString();
      for (size_t j = 0; j < i; ++j) {
        const Box& other = boxes[j];
        EXPECT_FALSE(one.page == other.page && one.left < other.right && other.left < one.right &&
                     one.top + 0.001 < other.bottom && other.top + 0.001 < one.bottom)
            << one.text.toStdString() << " meets " << other.text.toStdString();
      }
    }
  }
};

}  // namespace tests
