#pragma once
// A run for the screen: what a job puts on its pages is kept, and each page is drawn when it is looked at.
#include <vector>

#include "pc/pages.h"

class KeptPages : public pc::Pages {
 public:
  int count() const override { return int(pages_.size()); }
  pc::PaperSize paper() const override { return paper_; }
  void draw(pc::PrintJob& job, int page) const override;

 private:
  friend class KeepingJob;
  struct Item {
    enum Kind : quint8 { Text, Line, Dashed, Fill, Picture } kind;
    quint8 font;
    pc::PrintInk ink;
    float x, y, x2, y2, weight;  ///< inches; weight in points, a box's grey, a picture's place
    QString text;
  };
  pc::PaperSize paper_;
  std::vector<pc::PrintFont> fonts_;
  std::vector<QByteArray> pictures_;
  std::vector<std::vector<Item>> pages_;
};

/** A job whose pages are kept. Texts are as wide as on paper. */
std::unique_ptr<pc::PrintJob> keepPages(std::shared_ptr<KeptPages> pages, const pc::PaperSize& paper);
