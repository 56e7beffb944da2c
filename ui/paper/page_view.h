#pragma once
// One page of a report or of a run of papers on the screen. Only the page that is shown is painted, once for its size.
#include <QAbstractScrollArea>
#include <QPixmap>

#include <functional>

namespace pc {
class Pages;
}

class PageView : public QAbstractScrollArea {
 public:
  enum class Fit { Width, Page, Free };

  /** The pages must outlive the view. */
  explicit PageView(const pc::Pages& pages, QWidget* parent = nullptr);

  int page() const { return page_; }  ///< from 0
  void setPage(int page);             ///< the nearest there is, at its top
  Fit fit() const { return fit_; }
  void setFit(Fit fit);
  double zoom() const { return zoom_; }  ///< 1: as large as on paper
  /** The next larger or smaller of the usual sizes. */
  void zoomIn();
  void zoomOut();

  /** The page or the size is another one. */
  std::function<void()> changed;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  double dotsPerInch() const;
  QSize pageSize() const;
  void setZoom(double zoom);
  void measure();
  void renderPage();

  const pc::Pages& pages_;
  int page_ = 0;
  Fit fit_ = Fit::Width;
  double zoom_ = 1;
  QPixmap painted_;
  int paintedPage_ = -1;
};
