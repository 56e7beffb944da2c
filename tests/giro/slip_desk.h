#pragma once
// What the tests of slips work on, and how they look at the paper.
#include "giro/giro_slips.h"
#include "tests/giro/reading_rows.h"
#include "tests/recorded_print.h"
#include "tests/support.h"

namespace tests {

using namespace Qt::StringLiterals;

inline QString places13(const QString& text) {
  return QString(13 - text.size(), u' ') + text;
}

/** A company, its rates, its giro number and a printer. */
struct GiroBooks : TestPc {
  RecordedPrinters printers;

  GiroBooks() {
    openBooks(QDate(2026, 3, 16));
    session.printers = &printers;
    session.dbBasic.Execute("Insert Into User(Company, Tel, PayState) Values('해온가스', '053-700-0000', 1)");
    session.rates.books = {{{2, 0}, {3, 0}, {1, 0}}};
    set("DEVICENAME", "지로프린터");
    pc.settings.SaveSetting("해온판매", "Registration", "Ocr", "1234567");
  }
  void set(const QString& key, const QString& value) {
    pc.settings.SaveSetting("해온판매", "프린터설정", key, value);
  }
  QString setting(const char* section, const char* key) {
    return pc.settings.GetSetting("해온판매", QString::fromUtf8(section), QString::fromUtf8(key));
  }
  /** Households of block 101, charged delayPay percent a month by their building. */
  void addBuilding(std::initializer_list<int> codes, int delayPay) {
    for (const int code : codes)
      session.dbBasic.Execute("Insert Into Client(Code, Name, BDName, Dong, HouseStyle) Values(" +
                              QString::number(code) + ", '홍길동', '행복아파트', '101', 1)");
    session.dbBasic.Execute("Insert Into apt(Name, Dong, delaypay) Values('행복아파트', '101', " +
                            QString::number(delayPay) + ')');
  }
  const RecordedJob& job() { return *printers.jobs.back(); }
};

/** The slips of a reading screen that stands in front, and the look at their paper. */
struct SlipDesk : GiroBooks {
  ReadingRows screen;
  GiroSlips giro{session, [this] { return open ? &screen : nullptr; }};
  bool open = true;
  GiroInput input{"2026", "03", "31", "2026.02.01", "2026.02.28", {}};

  /** A page's text at a row and column, without the blanks around it. */
  QString at(double row, double column, int page = 1) {
    const auto* item = job().at(page, column / 15, row / 8);
    return item ? item->text.trimmed() : u"nothing"_s;
  }
  /** Every text of a page at its place and in its letters, and no other. slips: those of the sheet, one below the other;
   *  a line is a row of the paper, "5.4 | 9 #60,590 | 76 0001234": a column and what begins there. # is a figure in 13
   *  places, * a note, = the scan line. */
  void expectPage(int page, const QStringList& slips, const pc::PaperShift& shift = {},
                  const QString& letters = "굴림체") {
    int all = 0;
    for (qsizetype slip = 0; slip < slips.size(); ++slip)
      for (const QString& line : slips[slip].split('\n', Qt::SkipEmptyParts)) {
        const QStringList parts = line.split(" | ");
        for (const QString& part : parts.mid(1)) {
          const double row = parts[0].toDouble() + double(slip) * 28 + shift.rows;
          expectText(page, row, part.section(' ', 0, 0).toDouble() + shift.columns, part.section(' ', 1),
                     letters);
          ++all;
        }
      }
    EXPECT_EQ(job().texts(page).size(), all);
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

 private:
  void expectText(int page, double row, double column, const QString& marked, const QString& letters) {
    pc::PrintFont font{letters, 10, false};
    QString text = marked;
    const QChar mark = text.front();
    if (u"#*="_s.contains(mark)) text.remove(0, 1);
    if (mark == u'=') font = {"OCR-B-1", 12, false};
    if (mark == u'*') font.points = 8;
    // Letters of one width are filled up with blanks, others end at the same edge by measure.
    if (mark == u'#' && letters == "굴림체") text = places13(text);
    if (mark == u'#' && letters != "굴림체") column += double(13 - widthOf(text)) * 10 / 144 * 15;
    const auto* item = job().at(page, column / 15, row / 8);
    ASSERT_TRUE(item) << "nothing at " << row << ", " << column << ": " << text.toStdString();
    EXPECT_EQ(item->text, text) << row << ", " << column;
    EXPECT_EQ(item->font.family + ' ' + QString::number(item->font.points),
              font.family + ' ' + QString::number(font.points))
        << text.toStdString();
  }
};

}  // namespace tests
