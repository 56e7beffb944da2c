#pragma once
// The printers of the PC and the PDF writer, as the forms ask for them.
#include <functional>

#include "pc/pc.h"
#include "pc/print_job.h"

/** The PDF writer's place among the names; it is always there. */
QString pdfPrinterName();

/** The native path that HAEON_PDF or the setting "PDF파일" of section "프린터설정" names, a file or a folder; ''. */
QString pdfPlace(pc::Pc& pc);

class PcPrinters : public pc::Printers {
 public:
  explicit PcPrinters(pc::Pc& pc);

  QStringList names() const override;
  QString defaultName() const override;
  std::unique_ptr<pc::PrintJob> open(const QString& printer, const QString& title,
                                     const pc::PaperSize& paper) override;
  std::unique_ptr<pc::PrintJob> openFile(const QString& file, const QString& title,
                                         const pc::PaperSize& paper) override;

  /** Where the PDF goes when neither HAEON_PDF nor the setting "PDF파일" of section "프린터설정" names a file; a
   *  folder named there takes one file a title. '' when the operator leaves. A test puts its own in its place. */
  std::function<QString(const QString& title)> askFile;

 private:
  std::unique_ptr<pc::PrintJob> openQueue(const QString& printer, const QString& title,
                                          const pc::PaperSize& paper);
  QString pdfFile(const QString& title) const;

  pc::Pc& pc_;
};
