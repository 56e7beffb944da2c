#pragma once
// The rules of frmPrtJiroOCR: what its boxes begin with, and the run. It reads the reading screen at every call.
#include <QDate>
#include <functional>
#include <utility>

#include "giro/giro_run.h"
#include "giro/slip.h"

class JiroOcr {
 public:
  /** screen: the open reading screen, or null. */
  JiroOcr(Session& session, std::function<const ReadingScreen*()> screen)
      : session_(session), screen_(std::move(screen)) {}

  void setPaper(OcrPaper paper) { paper_ = paper; }
  OcrPaper paper() const { return paper_; }
  /** Half-width characters of a note's line that the paper has room for. */
  int noteWidth() const;

  QDate dueDate() const;  ///< today
  /** Whether the use month begins with the shown month; else with the one before it. */
  bool startsWithThisMonth() const;
  void setStartsWithThisMonth(bool on);
  int firstUseMonth() const;  ///< 1 to 12
  /** First and last day of a use month, "yyyy.MM.dd": the last such month that is not behind the shown one. */
  std::pair<QString, QString> usePeriod(int useMonth) const;

  /** The slips of the chosen rows, wherever they go; nothing after telling why none can be made. It reads the reading
   *  screen: it must end before that is closed or loaded anew. */
  std::optional<DocumentRun> run(const GiroInput& input, GiroSelection selection);
  /** BtnJiro: slips that went to the printer; 0 after telling why none could. */
  int print(const GiroInput& input, GiroSelection selection, const TellDocument& tell = {});

 private:
  /** First day of the shown month in the present calendar year. */
  QDate shownMonth() const;

  Session& session_;
  std::function<const ReadingScreen*()> screen_;
  OcrPaper paper_ = OcrPaper::Continuous;
};
