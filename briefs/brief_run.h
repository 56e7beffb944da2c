#pragma once
// What a report form does without a window: checks the answers, reads and folds the rows, sums them up, stages them and
// hands them to the report.
#include <memory>
#include <optional>

#include "briefs/brief.h"
#include "store/jet/database.h"
#include "store/year_file.h"

class BriefRun {
 public:
  BriefRun(Session& session, Brief brief);

  const Brief& brief() const { return brief_; }
  const BriefPage& page(int page) const { return brief_.pages.at(size_t(page)); }
  int pageOf(const QString& key) const;  ///< -1 when there is none
  SpreadModel& grid(int page) { return *shown_.at(size_t(page)).grid; }
  /** What the page shows, without its sum. */
  const BriefRows& rows(int page) const { return shown_.at(size_t(page)).rows; }
  /** The answers it was read by. */
  const BriefAsk& ask(int page) const { return shown_.at(size_t(page)).ask; }
  /** The cells of a grid's row; empty for the sum and beyond. */
  BriefCells cells(int page, int row) const;

  /** Whether the question is put on the page, as the checks stand. */
  bool isAsked(const BriefQuestion& question, const BriefAsk& ask) const;
  /** The name of the box to go to after a wrong answer has been told; nothing when all are right. Days come out as
   *  "yyyy-MM-dd". */
  std::optional<QString> check(BriefAsk& ask) const;
  /** Checks and shows. False after telling why nothing is there; the grid is then empty. */
  bool load(BriefAsk ask, const BriefTeller& tell = {});
  void clear(int page);
  /** Checks and shows the report of a page without a grid; the note of its rows says what years are left out. False
   *  after telling what is wrong. */
  bool printLive(BriefAsk ask);
  /** What a page that shows nothing is printed with. */
  void answer(const BriefAsk& ask) { shown_.at(size_t(ask.page)).ask = ask; }
  /** Stages the page and shows its report; chart: a picture below the rows. Throws jet::Error. */
  void print(int page, const QByteArray& chart = {});

 private:
  struct Shown {
    std::unique_ptr<SpreadModel> grid;
    BriefAsk ask;
    BriefRows rows;
  };
  Session& session_;
  Brief brief_;
  std::vector<Shown> shown_;
};

/** The files of some years one after the other, only one of them open at a time beside the open year's, each with the days
 *  whose lines it is read for. Work returns False to end the walk. missing: the asked years without a file. */
void walkBriefYears(Session& session, int first, int last, QStringList& missing,
                    const std::function<bool(const jet::Database&, const LineDays&)>& work);
/** The answers as a file's statement takes them: the page's period within the file's days. */
BriefAsk askWithin(const BriefPage& page, BriefAsk ask, const LineDays& days);

/** What the operator is told of years without a file; '' for none. */
QString missingYearsNote(const QStringList& missing);

/** Runs a page's statement over the files it reaches and folds what comes. */
BriefRows readBriefRows(Session& session, const BriefPage& page, const BriefAsk& ask);

/** Stages rows by their columns' places, whole or not at all, and shows the report. A text longer than a staged column
 *  is cut. Throws jet::Error. */
struct BriefPaper {
  QString report = {};
  QStringList formulas = {};
  bool blankRow = true;
  QByteArray chart = {};
};
void printBriefRows(Session& session, const std::vector<BriefColumn>& columns,
                    const std::vector<BriefCells>& rows, const BriefPaper& paper);
