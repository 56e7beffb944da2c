#pragma once
// A partner's last lines beside the panel of a screen of lines: small, quiet, only to be looked at.
#include <QWidget>

#include <array>
#include <vector>

#include "trade/line_history.h"

class QLabel;

class LastLines : public QWidget {
 public:
  explicit LastLines(QWidget* parent = nullptr);
  /** What the last column is called. */
  void setOwedHeader(const QString& header);
  /** Newest first; those beyond the panel's five are left out. */
  void show(const std::vector<LastLine>& lines);

 private:
  static constexpr int rows = 5, columns = 6;
  std::array<std::array<QLabel*, columns>, rows> cells_{};
  QLabel* owedHeader_ = nullptr;
};
