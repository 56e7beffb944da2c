#pragma once
// Texts, lines and boxes of a print job painted by QPainter: the paper, the PDF and the page on the screen come from
// the same lines of code and lie on the same places.
#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <memory>

#include "pc/print_job.h"

class QPaintDevice;

class PaintedJob : public pc::PrintJob {
 public:
  pc::PaperSize paper() const override { return paper_; }
  void setFont(const pc::PrintFont& font) override;
  pc::PrintFont font() const override { return font_; }
  double textWidth(const QString& text) const override;
  double lineHeight() const override;
  void text(double x, double y, const QString& text) override;
  void setInk(const pc::PrintInk& ink) override;
  void line(double x1, double y1, double x2, double y2, double width, bool dashed) override;
  void fill(double x, double y, double width, double height, double grey) override;
  void picture(double x, double y, double width, double height, const QByteArray& file) override;

 protected:
  explicit PaintedJob(const pc::PaperSize& paper) : paper_(paper) {}
  /** False when the device takes no painter. The dots are those of the painter, once it is scaled. */
  bool begin(QPaintDevice& device, double dotsPerInch);
  QPainter& painter() { return painter_; }

 private:
  struct Face {
    QFont font;
    QFontMetricsF metrics;
    double ascent, blank;             ///< dots
    QHash<QString, double> advances;  ///< dots; of words that others follow
  };
  /** How far a word moves what follows it. The same words stand on page after page: each is measured once. */
  double advanceOf(const QString& word);
  double dots(double inches) const { return inches * dotsPerInch_; }

  QPainter painter_;
  const pc::PaperSize paper_;
  double dotsPerInch_ = 72;
  QColor ink_ = Qt::black;
  pc::PrintFont font_;
  QHash<QString, std::shared_ptr<Face>> faces_;  ///< each font is measured once a job
  std::shared_ptr<Face> face_;
};

/** One page on a picture or a window's pixmap; further pages are not taken. */
class ScreenPage : public PaintedJob {
 public:
  /** dotsPerInch: of the picture. Texts are measured as finely as on paper and then made smaller. */
  ScreenPage(QPaintDevice& picture, const pc::PaperSize& paper, double dotsPerInch);
  void newPage() override {}
  void end() override { painter().end(); }
  void abandon() override { painter().end(); }
};
