#pragma once
// What the tests of giro windows work on.
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "tests/giro/slip_desk.h"
#include "tests/idle_context.h"
#include "tests/ui/grab.h"

namespace tests {

inline QString box(QWidget& form, const char* name) {
  return part<QLineEdit>(form, name)->text();
}
inline void click(QWidget& form, const char* name) {
  QTest::mouseClick(part<QPushButton>(form, name), Qt::LeftButton);
}

/** The texts of a PDF's pages, laid out as they stand. */
inline QStringList pdfPages(const QString& file) {
  QProcess reader;
  reader.start("pdftotext", {"-layout", file, "-"});
  reader.waitForFinished();
  return QString::fromUtf8(reader.readAllStandardOutput()).split('\f', Qt::SkipEmptyParts);
}

/** Stands for the window of the meter book. */
struct ReadingWindow : QWidget, ReadingRows {};

/** The reading screen in front of the giro forms. */
struct GiroWindows : GiroBooks {
  struct Front : IdleCommands {
    ReadingWindow window;
    QWidget* activeForm() const override { return const_cast<ReadingWindow*>(&window); }
  };
  Front front;
  IdlePickers pickers;
  IdleCalls calls;
  FormContext context{session, pickers, front, calls};

  /** Prints all slips into a PDF and reads it back; the pages as giro-NAME-1.png ... where HAEON_PICTURES names a
   *  folder. */
  QStringList allAsPdf(QWidget& form, const QString& name) {
    const QString file = folder.filePath(name + ".pdf");
    qputenv("HAEON_PDF", file.toUtf8());
    show(form);
    part<QRadioButton>(form, "Opt4")->click();
    click(form, "BtnJiro");
    qunsetenv("HAEON_PDF");
    if (const QString pictures = qEnvironmentVariable("HAEON_PICTURES"); !pictures.isEmpty())
      QProcess::execute("pdftoppm", {"-png", "-r", "110", file, pictures + "/giro-" + name});
    return pdfPages(file);
  }
};

}  // namespace tests
