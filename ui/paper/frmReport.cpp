#include "ui/paper/frmReport.h"

#include "ui/grid/excel_export.h"
#include "ui/paper/print_report.h"
#include "ui/paper/printers.h"
#include "ui/paper/report_sheet.h"

using namespace Qt::StringLiterals;

frmReport::frmReport(Session& onSession, std::shared_ptr<const pc::Report> report, const QString& title,
                     QWidget* parent)
    : PagesWindow(u"frmReport"_s, title, onSession, report, parent), report_(std::move(report)) {
  addPrint([this] { askAndPrint(session(), *report_, windowTitle(), this); });
  addTool("BtnPdf", u"PDF"_s,
          [this] { printTo(session(), *report_, windowTitle(), pdfPrinterName(), {}, this); });
  addTool("BtnExcel", u"엑셀"_s,
          [this] { ExportToExcelFile(session(), reportSheet(*report_), windowTitle()); });
  addTool("BtnExit", u"닫기"_s, [this] { close(); });
}
