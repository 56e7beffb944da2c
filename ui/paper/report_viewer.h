#pragma once
// The reports of the PC: a report is made from its staged rows and shown in a preview window.
#include <QPointer>

#include "pc/reports.h"
#include "ui/paper/frmReport.h"

/** One preview at a time: a new report takes the place of the one before. */
class ReportViewer : public pc::Reports {
 public:
  explicit ReportViewer(Session& session) : session_(session) {}
  void show(const pc::ReportRequest& request) override;
  frmReport* window() const { return window_; }  ///< null when none is open

 private:
  Session& session_;
  QPointer<frmReport> window_;
};
