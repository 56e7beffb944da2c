// Slips through a real print server: its own CUPS with one queue, in the test's folder.
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTest>

#include <cups/cups.h>

#include "giro/giro_slips.h"
#include "tests/giro/reading_rows.h"
#include "tests/support.h"
#include "ui/paper/printers.h"

namespace {

const QString queue = "giro-test";

struct PrintQueue : testing::Test, tests::TestPc {
  const QString server = folder.path() + "/cups", socket = server + "/sock", out = server + "/out";
  QProcess cups;
  PcPrinters printers{pc};
  tests::ReadingRows screen;
  GiroSlips giro{session, [this] { return &screen; }};

  void SetUp() override {
    qputenv("PATH", qgetenv("PATH") + ":/usr/sbin");  // where lpadmin is; not every account looks there
    cups.start("bash", {HAEON_TEST_DATA "/giro/cups_queue.sh", server});
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(socket) || cups.state() == QProcess::NotRunning; },
                                120'000));  // it may have to be installed first
    ASSERT_EQ(cups.state(), QProcess::Running) << log().toStdString();
    useServer(socket);
    ASSERT_TRUE(QTest::qWaitFor([&] { return run("lpstat", {"-r"}); }, 10'000)) << log().toStdString();
    ASSERT_TRUE(run("lpadmin", {"-p", queue, "-E", "-v", "slips:" + out, "-m", "raw"}))
        << log().toStdString();

    openBooks(QDate(2026, 3, 16));
    session.printers = &printers;
    session.dbBasic.Execute("Insert Into User(Company, PayState) Values('해온가스', 1)");
    pc.settings.SaveSetting("해온판매", "프린터설정", "DEVICENAME", queue);
    for (const char* code : {"1234", "5", "70123"}) screen.add("달빛식당", code, "15000");
  }
  void TearDown() override {
    cups.terminate();
    cups.waitForFinished(5'000);
    useServer({});
  }

  static void useServer(const QString& socket) {
    if (socket.isEmpty())
      qunsetenv("CUPS_SERVER");
    else
      qputenv("CUPS_SERVER", socket.toUtf8());
    cupsSetServer(socket.isEmpty() ? nullptr : socket.toUtf8().constData());
  }
  static bool run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished() && process.exitCode() == 0;
  }
  QString log() {
    QFile errors(server + "/log/error");
    return QString::fromUtf8(cups.readAllStandardError()) +
           (errors.open(QIODevice::ReadOnly) ? QString::fromUtf8(errors.readAll()) : QString());
  }
  QStringList printed() const { return QDir(out).entryList({"*.pdf"}, QDir::Files, QDir::Name); }
  /** Text of the only job, which is then taken out. */
  QString take(QString* options) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return printed().size() == 1; }, 10'000)) << log().toStdString();
    const QString file = out + '/' + printed().value(0);
    QFile about(QString(file).replace(".pdf", ".txt"));
    if (about.open(QIODevice::ReadOnly)) *options = QString::fromUtf8(about.readAll());
    QProcess reader;
    reader.start("pdftotext", {"-layout", file, "-"});
    reader.waitForFinished();
    QFile::remove(file);
    return QString::fromUtf8(reader.readAllStandardOutput());
  }
};

TEST_F(PrintQueue, SlipsReachTheQueueWholeOrNotAtAll) {
  EXPECT_EQ(printers.names(), (QStringList{queue, pdfPrinterName()}));
  QString options;
  GiroInput input{"2026", "03", "31", "2026.02.01", "2026.02.28", {"감사합니다"}};
  giro.setPaper(GiroPaper::OcrA4);
  EXPECT_EQ(giro.print(input, GiroSelection::All), 3);
  QStringList pages = take(&options).split('\f', Qt::SkipEmptyParts);
  ASSERT_EQ(pages.size(), 2);
  EXPECT_TRUE(pages[0].simplified().contains("<0000000+ +12344+ +150002< <11<")) << pages[0].toStdString();
  EXPECT_TRUE(options.startsWith("OCR-A4 지로\n") && options.contains("print-scaling=none") &&
              options.contains("media=A4"))
      << options.toStdString();
  giro.setPaper(GiroPaper::OcrContinuous);
  EXPECT_EQ(giro.print(input, GiroSelection::Active), 1);
  EXPECT_TRUE(take(&options).contains("감사합니다"));
  EXPECT_TRUE(options.contains("media=Custom.14x3.5in")) << "the continuous paper is named to the printer";

  // A run that breaks off prints nothing, a queue that refuses is told.
  {
    auto job = printers.open(queue, "중단", {});
    job->text(1, 1, "중단");
  }
  ASSERT_TRUE(run("cupsreject", {queue}));
  try {
    giro.print(input, GiroSelection::All);
    ADD_FAILURE() << "the queue refuses jobs";
  } catch (const pc::PrintError& error) {
    EXPECT_TRUE(error.text.contains(queue)) << error.text.toStdString();
  }
  ASSERT_TRUE(run("cupsaccept", {queue}));
  giro.print(input, GiroSelection::Active);
  EXPECT_TRUE(take(&options).contains("<0000000+"));
  EXPECT_TRUE(options.startsWith("OCR 지로\n")) << "no other job was before it";

  cups.terminate();
  ASSERT_TRUE(cups.waitForFinished(5'000));
  EXPECT_EQ(printers.names(), QStringList{pdfPrinterName()});
  EXPECT_THROW(giro.print(input, GiroSelection::All), pc::PrintError);
}

}  // namespace
