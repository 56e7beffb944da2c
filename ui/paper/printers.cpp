#include "ui/paper/printers.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <filesystem>

#include "pc/file_name.h"
#include "store/settings_table.h"
#include "ui/paper/page_job.h"
#include "ui/paper/print_queue.h"

using namespace Qt::StringLiterals;

namespace {

QString pdfNameOf(const QString& title) {
  return pc::fileNameOf(title, u"출력"_s) + u".pdf"_s;
}

/** What the operator typed in the box, with its ending. */
QString withEnding(const QString& file) {
  return file.isEmpty() || file.endsWith(u".pdf"_s, Qt::CaseInsensitive) ? file : file + u".pdf"_s;
}

std::unique_ptr<QPrinter> pdfPrinter(const QString& file) {
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer->setOutputFormat(QPrinter::PdfFormat);
  printer->setOutputFileName(file);
  printer->setFontEmbeddingEnabled(true);
  return printer;
}

/** The writer tells of no full disk: a whole file has its end mark. */
bool isWholePdf(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly) || file.size() < 32) return false;
  file.seek(file.size() - 32);
  return file.readAll().contains("%%EOF");
}

/** Puts the written file in the place of an older one. */
void takeName(const QString& written, const QString& file) {
  if (!isWholePdf(written))
    throw pc::PrintError{u"PDF 파일을 끝까지 쓰지 못했습니다. 디스크의 남은 공간을 확인하십시오.\n"_s + file};
  std::error_code failed;
  std::filesystem::rename(written.toStdU16String(), file.toStdU16String(), failed);
  if (failed)
    throw pc::PrintError{u"PDF 파일을 저장할 수 없습니다. 다른 프로그램에서 열려 있는지 확인하십시오.\n"_s +
                         file};
}

}  // namespace

QString pdfPrinterName() {
  return u"PDF 파일"_s;
}

QString pdfPlace(pc::Pc& pc) {
  QString file = qEnvironmentVariable("HAEON_PDF");
  if (file.isEmpty()) file = pc.settings.read(setting::PdfFile);
  return file.isEmpty() ? QString() : pc.paths.native(file);
}

PcPrinters::PcPrinters(pc::Pc& pc) : pc_(pc) {
  askFile = [](const QString& title) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileDialog::getSaveFileName(nullptr, u"PDF 파일로 저장"_s, folder + u'/' + pdfNameOf(title),
                                        u"PDF 파일 (*.pdf)"_s);
  };
}

QStringList PcPrinters::names() const {
  return QPrinterInfo::availablePrinterNames() << pdfPrinterName();
}

QString PcPrinters::defaultName() const {
  return QPrinterInfo::defaultPrinterName();
}

std::unique_ptr<pc::PrintJob> PcPrinters::open(const QString& printer, const QString& title,
                                               const pc::PaperSize& paper) {
  if (printer != pdfPrinterName()) return openQueue(printer, title, paper);
  const QString file = pdfFile(title);
  if (file.isEmpty()) throw pc::PrintError{};
  return openFile(file, title, paper);
}

QString PcPrinters::pdfFile(const QString& title) const {
  const QString file = pdfPlace(pc_);
  if (file.isEmpty()) return withEnding(askFile(title));
  return QFileInfo(file).isDir() ? QDir(file).filePath(pdfNameOf(title)) : file;
}

std::unique_ptr<pc::PrintJob> PcPrinters::openFile(const QString& file, const QString& title,
                                                   const pc::PaperSize& paper) {
  // Written under another name: a run that breaks off leaves the older file as it was.
  const QString begun = file + u".part"_s;
  return std::make_unique<PageJob>(
      pdfPrinter(begun), title, paper, [begun, file] { takeName(begun, file); },
      [begun] { QFile::remove(begun); });
}

std::unique_ptr<pc::PrintJob> PcPrinters::openQueue(const QString& printer, const QString& title,
                                                    const pc::PaperSize& paper) {
  const QPrinterInfo info = QPrinterInfo::printerInfo(printer);
  if (info.isNull()) {
    throw pc::PrintError{u"프린터를 찾을 수 없습니다: "_s +
                         (printer.isEmpty() ? u"(설정 안 됨)"_s : printer)};
  }
#ifdef Q_OS_UNIX
  const QString spooled = newSpoolFile();
  return std::make_unique<PageJob>(
      pdfPrinter(spooled), title, paper,
      [=] {
        if (!isWholePdf(spooled)) throw pc::PrintError{u"인쇄할 내용을 임시 폴더에 쓰지 못했습니다."_s};
        sendToQueue(printer, title, spooled, paper);
        QFile::remove(spooled);
      },
      [spooled] { QFile::remove(spooled); });
#else
  return std::make_unique<PageJob>(
      std::make_unique<QPrinter>(info, QPrinter::HighResolution), title, paper, [] {}, [] {});
#endif
}
