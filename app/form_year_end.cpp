#include "app/form_year_end.h"

#include <memory>

#include "app/FrmYearEnd.h"
#include "app/frmNextYear.h"
#include "store/closing/recarry.h"
#include "ui/forms/form.h"

using namespace Qt::StringLiterals;

namespace {

/** The progress window from the first word to the end of the command. */
class Progress {
 public:
  Progress(const QString& caption, QWidget* over) : caption_(caption), over_(over) {}
  /** The last box stood over a window that goes: the hand comes back to the main window. */
  ~Progress() {
    window_.reset();
    over_->activateWindow();
  }

  void tell(const QString& text, int done, int total) {
    if (!window_) window_ = std::make_unique<frmNextYear>(caption_, over_);
    window_->tell(text, done, total);
  }
  QWidget* front() const { return window_ ? window_.get() : over_; }

 private:
  const QString caption_;
  QWidget* const over_;
  std::unique_ptr<frmNextYear> window_;
};

}  // namespace

void runYearClose(Session& session, QWidget* over) {
  Progress progress(u"년도마감작업"_s, over);
  closeYear(session,
            {.forecast =
                 [&](const ClosingForecast& forecast) {
                   YearEndPage page;
                   fillForecast(page, forecast);
                   return FrmYearEnd(u"년도마감 미리보기"_s, session, page, u"마감 진행(&G)"_s,
                                     u"그만두기(&X)"_s, over)
                              .exec() == QDialog::Accepted;
                 },
             .progress = [&](const QString& text, int done, int total) { progress.tell(text, done, total); },
             .differs =
                 [&](const CarryCheck& check, const QString& kept) {
                   YearEndPage page;
                   fillDifferences(page, check, session.WorkYear.toInt(), kept);
                   return FrmYearEnd(u"마감 대조"_s, session, page,
                                     kept.isEmpty() ? QString() : u"되돌리기(&B)"_s, u"그대로 두기(&X)"_s,
                                     progress.front())
                              .exec() == QDialog::Accepted;
                 }});
}

void runRecarry(Session& session, QWidget* over) {
  Progress progress(u"체적검침 재이월"_s, over);
  std::unique_ptr<BusyPointer> busy;
  recarry(session, [&](const QString& text, int done, int total) {
    if (!busy) busy = std::make_unique<BusyPointer>();
    progress.tell(text, done, total);
    if (total > 0 && done == total) busy.reset();
  });
}
