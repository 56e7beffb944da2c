#include "ui/paper/print_queue.h"

#include <QTemporaryFile>
#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <QDir>

#include <cups/cups.h>

#include "ui/paper/page_job.h"

using namespace Qt::StringLiterals;

QString newSpoolFile() {
  QTemporaryFile file(QDir::tempPath() + u"/haeon-XXXXXX.pdf"_s);
  file.setAutoRemove(false);
  if (!file.open()) throw pc::PrintError{u"임시 폴더에 쓸 수 없습니다: "_s + QDir::tempPath()};
  return file.fileName();
}

void sendToQueue(const QString& printer, const QString& title, const QString& file,
                 const pc::PaperSize& paper) {
  cups_option_t* options = nullptr;
  int count = 0;
  count = cupsAddOption("print-scaling", "none", count, &options);
  const QPageSize::PageSizeId sheet = sheetOf(paper);
  const QString media = sheet == QPageSize::Custom ? u"Custom.%1x%2in"_s.arg(paper.width).arg(paper.height)
                                                   : QPageSize::key(sheet);
  count = cupsAddOption("media", media.toLatin1().constData(), count, &options);
  const int job = cupsPrintFile(printer.toUtf8().constData(), file.toLocal8Bit().constData(),
                                title.toUtf8().constData(), count, options);
  cupsFreeOptions(count, options);
  if (job == 0) {
    throw pc::PrintError{u"프린터가 인쇄를 받지 않습니다: "_s + printer + u'\n' +
                         QString::fromUtf8(cupsLastErrorString())};
  }
}
#endif
