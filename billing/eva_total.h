#pragma once
// "검침현황 조회": the readings or the collections of one book over a period, a line for each customer and month.
#include <QString>
#include <QStringList>

#include <vector>

#include "store/rate_book.h"
#include "ui/model/spread_model.h"

struct Session;

/** Columns of SpEvaTotal. Amounts in whole won. */
namespace TotalCol {
enum : int { Name = 1, Building, Month, Trust, UsePay, Delay, Manage, Pay, TrustDay, Remain, Last = Remain };
}

/** What is asked for. */
struct EvaTotalAsk {
  MeterBook book = MeterBook::Individual;
  bool byCollection = false;         ///< chkSuKum: the days of collection count, not the months
  int fromMonth = 1, toMonth = 1;    ///< 1 to 12
  QString fromDay = {}, toDay = {};  ///< as typed, "03-16"
  QString building = {};             ///< '' for all
  QString dong = {}, ho = {};        ///< '' for any
};

class EvaTotal {
 public:
  explicit EvaTotal(Session& session);

  SpreadModel& grid() { return grid_; }

  /** Entries of CboGubun: "전체", then the book's buildings; empty for the individual book. */
  QStringList buildings(MeterBook book) const;
  /** The state in which chkSuKum was left. */
  bool byCollection() const;
  void rememberByCollection(bool on);

  /** BtnRefresh. False after telling that the period is no period or that nothing was found; the grid is then empty. */
  bool refresh(const EvaTotalAsk& ask);
  void clear();

  // The panels, of what the grid shows; in won.
  /** What was open before the period. Kept: of the whole book or building, whichever dong and room are asked for. */
  qint64 prev() const { return prev_; }
  qint64 income() const { return income_; }  ///< collected
  /** Still open: what the last month of each customer's lines leaves. */
  qint64 remain() const { return remain_; }
  QString period() const { return period_; }  ///< "03월 ~ 05월", "03/01 ~ 03/16"

  /** BtnPrt: stages the lines and shows "체적검침조회.rpt". Throws jet::Error. */
  void print();

 private:
  struct Line {
    QString who;  ///< what tells one customer's lines from the next one's
    int month = 0;
    qint64 remain = 0;
  };
  bool readPeriod(const EvaTotalAsk& ask);
  QString periodWhere(const EvaTotalAsk& ask) const;
  bool readLines(const EvaTotalAsk& ask);
  bool readPrev(const EvaTotalAsk& ask);
  void sumUp(const std::vector<Line>& lines);

  Session& session_;
  SpreadModel grid_;
  EvaTotalAsk shown_;
  QString fromDay_, toDay_;  ///< "MM/DD"
  qint64 prev_ = 0, income_ = 0, remain_ = 0;
  QString period_;
  int lines_ = 0;  ///< rows of the grid without the sum
};
