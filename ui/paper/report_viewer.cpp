#include "ui/paper/report_viewer.h"

#include <QApplication>

#include "store/report_source.h"
#include "store/session.h"
#include "ui/forms/guard.h"

using namespace Qt::StringLiterals;

void ReportViewer::show(const pc::ReportRequest& request) {
  const QString title = QString(request.file).remove(u".rpt"_s, Qt::CaseInsensitive);
  guarded(session_.prompts, [&] {
    try {
      auto report = makeReport(session_, request);
      delete window_;
      window_ = new frmReport(session_, std::move(report), title, QApplication::activeWindow());
      if (QApplication::activeModalWidget()) window_->setWindowModality(Qt::ApplicationModal);
      window_->resize(window_->sizeHint());
      window_->show();
      window_->activateWindow();
    } catch (const pc::ReportError& error) {
      session_.prompts.MsgInfo(error.text, title);
    }
  });
}
