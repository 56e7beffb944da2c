#pragma once
// Which sale lines still want a statement, and which have one: the list of FrmDealList.
#include <QDate>
#include <QSet>
#include <optional>

#include "documents/statements/deal_sheet.h"
#include "store/session.h"

struct DealAsk {
  QDate from, to;
  QString clientCode = {};  ///< '' all customers
  bool facility = false;    ///< material lines too
  DealTab tab = DealTab::Pending;
};

class DealSearch {
 public:
  /** history: the handle on dbDetail.mdb, which the form opens and closes. */
  DealSearch(Session& session, const jet::Database& history);

  SpreadModel& grid() { return grid_; }
  /** Won; of the whole list. */
  qint64 sum() const { return sum_; }
  /** "1,234 " as pnlSum shows it; '' for 0. */
  QString sumText() const;

  /** Takes the collections of these years out for good and fills the list; one blank row when it is empty. False after
   *  telling that the dates are no range; the list is empty then. */
  bool search(const DealAsk& ask);

  /** The newest date of a sale in a year's file; '' when there is none or no file. */
  QString newestSaleDate(const QString& year) const;

 private:
  void leaveCollectionsOut(const QDate& from, const QDate& to);
  void readHistory(const QDate& from, const QDate& to);
  void list(const jet::Database& year, const QString& from, const QString& to, const DealAsk& ask);
  jet::Database openYear(const QString& year);
  void tellMissingYears();

  Session& session_;
  const jet::Database& history_;
  SpreadModel grid_;
  std::vector<std::vector<QString>> rows_;
  std::vector<int> dateRows_;  ///< from 1; those that begin a date
  QString lastDate_, lastClient_;
  QSet<QString> written_;     ///< lines in the history that the pending list leaves out
  QStringList missingYears_;  ///< of this search
  qint64 sum_ = 0;
};
