#pragma once
// The ticks of a list whose ticked lines become papers. A line without a code is no line and is never ticked.
#include <QSet>

#include <vector>

#include "ui/model/spread_model.h"

class TickColumn {
 public:
  /** codeCol: the column that only a real line fills. */
  TickColumn(SpreadModel& list, int tickCol, int codeCol)
      : list_(list), tickCol_(tickCol), codeCol_(codeCol) {}

  bool isTicked(int row) const { return list_.text(row, tickCol_) == "1"; }
  void set(int row, bool on);
  void toggle(int row) { set(row, !isTicked(row)); }
  void setAll(bool on) { setBlock(1, list_.MaxRows(), on); }
  void setBlock(int from, int to, bool on);
  std::vector<int> ticked() const;
  /** The codes of what is ticked, and the ticks put back by them on a list that was filled anew. */
  QSet<QString> codes() const;
  void tick(const QSet<QString>& codes);

 private:
  SpreadModel& list_;
  const int tickCol_, codeCol_;
};
