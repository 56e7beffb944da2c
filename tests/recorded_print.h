#pragma once
// Printers that keep what is put on paper, item by item, so that a test asserts the paper itself.
#include <QStringList>

#include <memory>
#include <vector>

#include "pc/print_job.h"
#include "store/text_width.h"

namespace tests {

/** One thing on paper; places in inches from the sheet's left upper corner. */
struct PrintedItem {
  enum Kind { Text, Line, Fill, Picture };
  Kind kind = Text;
  int page = 1;
  double x = 0, y = 0;
  QString text;
  pc::PrintFont font;
  double x2 = 0, y2 = 0;  ///< a line's end, a box's right lower corner
  double weight = 0;      ///< a line's width in points, a box's grey
  pc::PrintInk ink;
  bool dashed = false;
};

/** What became of one job. */
struct RecordedJob {
  QString printer, title;
  pc::PaperSize paper;
  std::vector<PrintedItem> items;
  int pages = 1;
  bool ended = false, abandoned = false;

  /** The texts of a page in the order they were put there. */
  QStringList texts(int page = 1) const {
    QStringList found;
    for (const auto& item : items)
      if (item.kind == PrintedItem::Text && item.page == page) found << item.text;
    return found;
  }
  /** The first text at a place, to a thousandth of an inch; null when there is none. */
  const PrintedItem* at(int page, double x, double y) const {
    for (const auto& item : items)
      if (item.kind == PrintedItem::Text && item.page == page && qAbs(item.x - x) < 0.001 &&
          qAbs(item.y - y) < 0.001)
        return &item;
    return nullptr;
  }
};

class RecordedPrinters : public pc::Printers {
 public:
  QStringList installed{"지로프린터", "PDF 파일"};
  QString refusal;          ///< when set, a job that begins is refused with it
  int refusesFromPage = 0;  ///< the printer fails when this page begins; 0 never
  std::vector<std::shared_ptr<RecordedJob>> jobs;

  QStringList names() const override { return installed; }
  QString defaultName() const override { return installed.value(0); }
  std::unique_ptr<pc::PrintJob> open(const QString& printer, const QString& title,
                                     const pc::PaperSize& paper) override {
    if (!installed.contains(printer)) throw pc::PrintError{"없는 프린터: " + printer};
    if (!refusal.isEmpty()) throw pc::PrintError{refusal};
    auto job = std::make_shared<RecordedJob>();
    job->printer = printer;
    job->title = title;
    job->paper = paper;
    jobs.push_back(job);
    return std::make_unique<Job>(job, refusesFromPage);
  }
  /** The file stands where a printer's name would. */
  std::unique_ptr<pc::PrintJob> openFile(const QString& file, const QString& title,
                                         const pc::PaperSize& paper) override {
    auto job = open(installed.front(), title, paper);
    jobs.back()->printer = file;
    return job;
  }

 private:
  class Job : public pc::PrintJob {
   public:
    Job(std::shared_ptr<RecordedJob> record, int refusesFromPage)
        : record_(std::move(record)), refusesFromPage_(refusesFromPage) {}
    ~Job() override {
      if (!record_->ended) record_->abandoned = true;
    }
    pc::PaperSize paper() const override { return record_->paper; }
    void setFont(const pc::PrintFont& font) override { font_ = font; }
    pc::PrintFont font() const override { return font_; }
    /** Every half-width character half as wide as the font is high. */
    double textWidth(const QString& text) const override { return widthOf(text) * font_.points / 144; }
    double lineHeight() const override { return font_.points / 72; }
    void text(double x, double y, const QString& text) override {
      record_->items.push_back({PrintedItem::Text, record_->pages, x, y, text, font_, 0, 0, 0, ink_, false});
    }
    void setInk(const pc::PrintInk& ink) override { ink_ = ink; }
    void line(double x1, double y1, double x2, double y2, double width, bool dashed) override {
      record_->items.push_back(
          {PrintedItem::Line, record_->pages, x1, y1, {}, font_, x2, y2, width, ink_, dashed});
    }
    void fill(double x, double y, double width, double height, double grey) override {
      record_->items.push_back(
          {PrintedItem::Fill, record_->pages, x, y, {}, font_, x + width, y + height, grey, ink_, false});
    }
    void picture(double x, double y, double width, double height, const QByteArray& file) override {
      record_->items.push_back({PrintedItem::Picture, record_->pages, x, y, QString::number(file.size()),
                                font_, x + width, y + height, 0, ink_, false});
    }
    void newPage() override {
      if (refusesFromPage_ && record_->pages + 1 >= refusesFromPage_)
        throw pc::PrintError{"용지가 없습니다."};
      ++record_->pages;
    }
    void end() override { record_->ended = true; }
    void abandon() override { record_->abandoned = true; }

   private:
    std::shared_ptr<RecordedJob> record_;
    int refusesFromPage_;
    pc::PrintFont font_;
    pc::PrintInk ink_;
  };
};

}  // namespace tests
