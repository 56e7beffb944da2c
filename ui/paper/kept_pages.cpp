#include "ui/paper/kept_pages.h"

#include <QPixmap>

#include <algorithm>

#include "ui/paper/painted_job.h"

void KeptPages::draw(pc::PrintJob& job, int page) const {
  for (const Item& item : pages_[size_t(page)]) {
    job.setInk(item.ink);
    switch (item.kind) {
      case Item::Text:
        job.setFont(fonts_[item.font]);
        job.text(double(item.x), double(item.y), item.text);
        break;
      case Item::Fill:
        job.fill(double(item.x), double(item.y), double(item.x2), double(item.y2), double(item.weight));
        break;
      case Item::Picture:
        job.picture(double(item.x), double(item.y), double(item.x2 - item.x), double(item.y2 - item.y),
                    pictures_[size_t(item.weight)]);
        break;
      default:
        job.line(double(item.x), double(item.y), double(item.x2), double(item.y2), double(item.weight),
                 item.kind == Item::Dashed);
    }
  }
}

class KeepingJob : public pc::PrintJob {
 public:
  KeepingJob(std::shared_ptr<KeptPages> pages, const pc::PaperSize& paper)
      : kept_(std::move(pages)), measure_(dot_, paper, 72) {
    kept_->paper_ = paper;
    kept_->pages_.emplace_back();
    setFont(measure_.font());
  }
  pc::PaperSize paper() const override { return kept_->paper_; }
  void setFont(const pc::PrintFont& font) override {
    measure_.setFont(font);
    auto& fonts = kept_->fonts_;
    const auto same = [&](const pc::PrintFont& one) {
      return one.family == font.family && one.points == font.points && one.bold == font.bold;
    };
    const auto at = std::ranges::find_if(fonts, same);
    font_ = quint8(at - fonts.begin());
    if (at == fonts.end()) fonts.push_back(font);
  }
  pc::PrintFont font() const override { return kept_->fonts_[font_]; }
  double textWidth(const QString& text) const override { return measure_.textWidth(text); }
  double lineHeight() const override { return measure_.lineHeight(); }
  void text(double x, double y, const QString& text) override {
    put(KeptPages::Item::Text, x, y, 0, 0, 0, text);
  }
  void setInk(const pc::PrintInk& ink) override { ink_ = ink; }
  void line(double x1, double y1, double x2, double y2, double width, bool dashed) override {
    put(dashed ? KeptPages::Item::Dashed : KeptPages::Item::Line, x1, y1, x2, y2, width);
  }
  void fill(double x, double y, double width, double height, double grey) override {
    put(KeptPages::Item::Fill, x, y, width, height, grey);
  }
  void picture(double x, double y, double width, double height, const QByteArray& file) override {
    put(KeptPages::Item::Picture, x, y, x + width, y + height, double(kept_->pictures_.size()));
    kept_->pictures_.push_back(file);
  }
  void newPage() override { kept_->pages_.emplace_back(); }
  void end() override {}
  void abandon() override { kept_->pages_.clear(); }

 private:
  void put(KeptPages::Item::Kind kind, double x, double y, double x2, double y2, double weight,
           const QString& text = {}) {
    kept_->pages_.back().push_back(
        {kind, font_, ink_, float(x), float(y), float(x2), float(y2), float(weight), text});
  }

  const std::shared_ptr<KeptPages> kept_;
  QPixmap dot_{1, 1};
  ScreenPage measure_;
  pc::PrintInk ink_;
  quint8 font_ = 0;
};

std::unique_ptr<pc::PrintJob> keepPages(std::shared_ptr<KeptPages> pages, const pc::PaperSize& paper) {
  return std::make_unique<KeepingJob>(std::move(pages), paper);
}
