// The grid with a hundred thousand rows: what a key costs in frames of the screen.
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPixmap>

#include <algorithm>

#include "bench/pairs.h"
#include "ui/forms/style.h"
#include "ui/grid/spread.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int rows = 100000, columns = 13;
constexpr double frameMilliseconds = 16;

struct BigGrid {
  BigGrid() : grid(fill()) {
    look::apply(*qApp);
    grid.resize(1280, 800);
    grid.show();
    grid.setFocus();
    QApplication::processEvents();
  }
  SpreadModel& fill() {
    std::vector<SpreadColumn> shape(columns, SpreadColumn{.header = "열", .width = 10});
    shape[4].kind = CellKind::Money;
    model.setColumns(shape);
    std::vector<std::vector<QString>> cells(rows, std::vector<QString>(columns));
    for (int row = 0; row < rows; ++row)
      for (int col = 0; col < columns; ++col) cells[size_t(row)][size_t(col)] = QString::number(row * col);
    model.setRows(std::move(cells));
    return model;
  }
  /** The key handled and all that changed painted, in frames; the slowest of thirty. */
  double frames(const std::function<void()>& act) {
    double slowest = 0;
    for (int turn = 0; turn < 30; ++turn) {
      QElapsedTimer timer;
      timer.start();
      act();
      grid.grab();
      slowest = std::max(slowest, double(timer.nsecsElapsed()) / 1e6 / frameMilliseconds);
    }
    return slowest;
  }
  void press(int key, const QString& text = {}) {
    QWidget* const at = grid.focusWidget() ? grid.focusWidget() : &grid;
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(at, &event);
  }

  SpreadModel model;
  Spread grid;
};

const int pageDown = bench::addFigure({"grid of 100,000 rows: a page down, key to picture", 1, "frames", [] {
                                         BigGrid big;
                                         return big.frames([&] { big.press(Qt::Key_PageDown); });
                                       }});
const int edited = bench::addFigure({"grid of 100,000 rows: a cell edited, key to picture", 1, "frames", [] {
                                       BigGrid big;
                                       return big.frames([&] {
                                         big.press(Qt::Key_7, u"7"_s);
                                         big.press(Qt::Key_Return);
                                       });
                                     }});

}  // namespace
