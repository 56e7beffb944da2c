#pragma once
// The parts that the windows of the documents are put together from.
#include <initializer_list>

#include "documents/vat_split.h"

class QHBoxLayout;
class QLabel;
class QTabBar;
class QVBoxLayout;
class QWidget;

/** What is still to be issued and what was; the keys turn them, so they take no focus. */
QTabBar* sectionTabs(QWidget* parent);
/** Rows below each other without a gap. */
QVBoxLayout* stackedRows(std::initializer_list<QWidget*> rows);
/** The row of a panel's boxes. margin: above and below, in pixels; 0 lets them reach its edges. */
QHBoxLayout* panelRow(QWidget* panel, int margin, int spacing);
/** A figure at the right of its box, so many digits wide. */
QLabel* figure(QWidget* parent, const char* name, int digits);

/** The three panels pnlSum(0) to pnlSum(2) behind their captions. */
class SplitSums {
 public:
  void addTo(QHBoxLayout* row, QWidget* parent);
  void show(const VatSplit& sums);

 private:
  QLabel* shown_[3] = {};
};
