#pragma once
// The rules of the giro forms: what their boxes begin with, and the run. They read the reading screen at every call.
#include <QDate>
#include <functional>
#include <utility>

#include "giro/giro_paper.h"
#include "giro/giro_run.h"
#include "giro/slip.h"
#include "pc/settings.h"

class GiroSlips {
 public:
  /** screen: the open reading screen, or null. */
  GiroSlips(Session& session, std::function<const ReadingScreen*()> screen)
      : session_(session), screen_(std::move(screen)) {}

  void setPaper(GiroPaper paper) { paper_ = paper; }
  GiroPaper paper() const { return paper_; }

  QDate dueDate() const;  ///< today
  /** Whether the use month begins with the shown month; else with the one before it. */
  bool startsWithThisMonth() const;
  void setStartsWithThisMonth(bool on);
  int firstUseMonth() const;  ///< 1 to 12
  /** First and last day of a use month, "yyyy.MM.dd": the last such month that is not behind the shown one. */
  std::pair<QString, QString> usePeriod(int useMonth) const;
  /** The same of the month before today's. */
  std::pair<QString, QString> lastMonth() const;

  /** The slips of the chosen rows, wherever they go; nothing after telling why none can be made. It reads the reading
   *  screen: it must end before that is closed or loaded anew. */
  std::optional<DocumentRun> run(const GiroInput& input, GiroSelection selection);
  /** BtnJiro: slips that went to the printer; 0 after telling why none could. */
  int print(const GiroInput& input, GiroSelection selection, const TellDocument& tell = {});

 private:
  /** First day of the shown month in the present calendar year. */
  QDate shownMonth() const;
  const pc::Setting& thisMonth() const;

  Session& session_;
  std::function<const ReadingScreen*()> screen_;
  GiroPaper paper_ = GiroPaper::OcrContinuous;
};

/** Whether the typed due date is a day of the calendar. */
bool isDay(const GiroInput& due);

/** The eight lines of notes that the OCR slips had last. */
QStringList ocrNotes(const Session& session);
void keepOcrNotes(Session& session, const QStringList& notes);

/** What frmPrtJiroOrgA4 remembers in section "환경설정". */
struct OrgA4Memory {
  bool newPaper = false;    ///< chkNewPaper
  bool preprinted = false;  ///< chkPaperType
  QString useFrom, useTo;   ///< '' until it was printed once
};
OrgA4Memory orgA4Memory(const Session& session);
void keepOrgA4Memory(Session& session, const OrgA4Memory& memory);

/** Which of frmPrtJiro's two papers the shop uses: the option "MICR용지" that all PCs share. */
GiroPaper jiroPaper(Session& session);
void setJiroPaper(Session& session, GiroPaper paper);
/** The bank that a form begins with: the registered one where there is no choice. */
std::optional<SlipBank> onlyBank(Session& session);
