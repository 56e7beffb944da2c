#pragma once
// What the tests of giro windows work on.
#include <QProcess>
#include <QPushButton>
#include <QTest>

#include "tests/giro/slip_desk.h"
#include "tests/idle_context.h"
#include "tests/ui/grab.h"

namespace tests {

template <class W>
W* part(QWidget& form, const char* name) {
  W* found = form.findChild<W*>(QString::fromUtf8(name));
  EXPECT_TRUE(found) << name;
  return found;
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

/** The PDF's pages as NAME-1.png ... in the folder that HAEON_PICTURES names. */
inline void pictureOf(const QString& file, const QString& name) {
  if (const QString pictures = qEnvironmentVariable("HAEON_PICTURES"); !pictures.isEmpty())
    QProcess::execute("pdftoppm", {"-png", "-r", "110", file, pictures + '/' + name});
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
};

}  // namespace tests
