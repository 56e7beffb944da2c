#pragma once
// The preview of a report, and the ways out of it: printer, PDF, spreadsheet.
#include "pc/report.h"
#include "ui/paper/pages_window.h"

class frmReport : public PagesWindow {
 public:
  /** title: the report's name, without its ending. */
  frmReport(Session& session, std::shared_ptr<const pc::Report> report, const QString& title,
            QWidget* parent);

 private:
  const std::shared_ptr<const pc::Report> report_;
};
