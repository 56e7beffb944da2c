#include "ui/paper/printers.h"

#include <QProcess>
#include <QRegularExpression>

#include "tests/support.h"
#include "ui/paper/print_fonts.h"

using namespace Qt::StringLiterals;

namespace {

struct PrintersTest : testing::Test {
  tests::TestPc pc;
  PcPrinters printers{pc.pc};
  const QString folder = pc.folder.path();
  const QString file = folder + "/slip.pdf";

  void SetUp() override { qputenv("HAEON_PDF", file.toUtf8()); }
  void TearDown() override { qunsetenv("HAEON_PDF"); }
  std::unique_ptr<pc::PrintJob> open(const pc::PaperSize& paper = {}) {
    return printers.open(pdfPrinterName(), "시험", paper);
  }
  static QString output(const QString& program, const QStringList& arguments) {
    QProcess run;
    run.start(program, arguments);
    run.waitForFinished();
    return QString::fromUtf8(run.readAllStandardOutput());
  }
};

/** Left edge and top of every word, in points from the sheet's corner. */
struct Word {
  double left, top, right;
};
QMap<QString, Word> wordsOf(const QString& boxes) {
  QMap<QString, Word> found;
  static const QRegularExpression word(
      R"re(<word xMin="([\d.-]+)" yMin="([\d.-]+)" xMax="([\d.-]+)" yMax="[\d.-]+">([^<]*)</word>)re");
  for (auto hits = word.globalMatch(boxes); hits.hasNext();) {
    const auto hit = hits.next();
    found[hit.captured(4)] = {hit.captured(1).toDouble(), hit.captured(2).toDouble(),
                              hit.captured(3).toDouble()};
  }
  return found;
}

TEST_F(PrintersTest, TextStandsAtItsInchesAndAmountsLineUp) {
  auto job = open({11.69, 8.27});
  job->setFont({"굴림체", 10, false});
  job->text(1, 2, "검침");
  job->text(3, 3, u"1,234,560"_s.rightJustified(13));
  job->text(3, 4, u"7"_s.rightJustified(13));
  EXPECT_NEAR(job->textWidth("         7890"), 13 * 5.0 / 72, 0.003) << "blanks are as wide as digits";
  EXPECT_NEAR(job->textWidth("동호"), 4 * 5.0 / 72, 0.003);
  job->setFont({"OCR-B-1", 12, false});
  EXPECT_NEAR(job->textWidth("<0123456+"), 0.9, 0.002) << "ten characters an inch";
  job->text(1, 5, "<0123456+   +12");
  job->end();
  const QString boxes = output("pdftotext", {"-bbox", file, "-"});
  EXPECT_TRUE(boxes.contains("width=\"842.") || boxes.contains("width=\"841.")) << "landscape";
  const auto words = wordsOf(boxes);
  ASSERT_TRUE(words.contains("검침") && words.contains("7") && words.contains("1,234,560"))
      << boxes.toStdString();
  EXPECT_NEAR(words["검침"].left, 72, 1);
  EXPECT_NEAR(words["검침"].top, 144, 3);
  EXPECT_NEAR(words["7"].right, words["1,234,560"].right, 0.3);
  EXPECT_NEAR(words["1,234,560"].right, 3 * 72 + 13 * 5, 0.5);
  EXPECT_NEAR(words["+12"].left, 72 + 12 * 7.2, 0.3) << boxes.toStdString();
  const QString fonts = output("pdffonts", {file});
  for (const char* name : {"OCRB", "NanumGothicCoding"}) {
    const QStringList lines = fonts.split('\n').filter(QString::fromLatin1(name));
    ASSERT_FALSE(lines.isEmpty()) << name << '\n' << fonts.toStdString();
    EXPECT_TRUE(lines.first().contains(QRegularExpression("Identity-H +yes"))) << fonts.toStdString();
  }
}

TEST_F(PrintersTest, PapersOfOtherMeasuresKeepTheirSides) {
  open({14, 3.5})->end();
  EXPECT_TRUE(output("pdfinfo", {file}).contains(QRegularExpression("Page size: +1008 x 252 pts")));
  auto job = open();
  job->newPage();
  job->end();
  const QString info = output("pdfinfo", {file});
  EXPECT_TRUE(info.contains(QRegularExpression("Pages: +2\\n")) && info.contains("A4")) << info.toStdString();
}

TEST_F(PrintersTest, OnlyAWholeFileTakesItsName) {
  QFile older(file);
  ASSERT_TRUE(older.open(QIODevice::WriteOnly));
  older.write("older");
  older.close();
  {
    auto job = open();
    job->text(1, 1, "1");
    job->abandon();
  }
  {
    auto job = open();  // forgotten
    job->text(1, 1, "1");
  }
  ASSERT_TRUE(older.open(QIODevice::ReadOnly));
  EXPECT_EQ(older.readAll(), "older");
  older.close();
  EXPECT_EQ(QDir(folder).entryList({"slip*"}), QStringList{"slip.pdf"}) << "nothing is left lying about";
  open()->end();
  ASSERT_TRUE(older.open(QIODevice::ReadOnly));
  EXPECT_TRUE(older.readAll().startsWith("%PDF"));
}

TEST_F(PrintersTest, TheFileIsNamedByEnvironmentSettingOrOperator) {
  EXPECT_TRUE(printers.names().contains("PDF 파일"));
  pc.pc.settings.SaveSetting("해온판매", "프린터설정", "PDF파일", folder + "/other.pdf");
  open()->end();
  EXPECT_FALSE(QFile::exists(folder + "/other.pdf")) << "the environment goes first";
  qunsetenv("HAEON_PDF");
  open()->end();
  EXPECT_TRUE(QFile::exists(folder + "/other.pdf"));
  pc.pc.settings.SaveSetting("해온판매", "프린터설정", "PDF파일", folder);
  printers.open(pdfPrinterName(), "3/4월 지로", {})->end();
  EXPECT_TRUE(QFile::exists(folder + "/3_4월 지로.pdf"));

  pc.pc.settings.SaveSetting("해온판매", "프린터설정", "PDF파일", "");
  printers.askFile = [this](const QString&) { return folder + "/자유"; };
  open()->end();
  EXPECT_TRUE(QFile::exists(folder + "/자유.pdf")) << "typed without its ending";
  printers.askFile = [](const QString&) { return QString(); };
  try {
    open();
    FAIL() << "the operator left";
  } catch (const pc::PrintError& error) {
    EXPECT_TRUE(error.text.isEmpty()) << "nothing to tell";
  }
}

TEST_F(PrintersTest, WhatCannotBePrintedSaysSo) {
  qputenv("HAEON_PDF", (folder + "/no such folder/slip.pdf").toUtf8());
  const auto told = [](const std::function<void()>& work) {
    try {
      work();
    } catch (const pc::PrintError& error) {
      return error.text;
    }
    return u"nothing"_s;
  };
  EXPECT_EQ(told([this] { open(); }), "인쇄를 시작할 수 없습니다. 프린터나 저장할 폴더를 확인하십시오.");
  for (const QString name : {"없는 프린터", ""})
    EXPECT_EQ(told([&] { printers.open(name, "시험", {}); }),
              "프린터를 찾을 수 없습니다: " + (name.isEmpty() ? u"(설정 안 됨)"_s : name));
  EXPECT_EQ(missingPrintFonts(), QStringList()) << "the forms' fonts, or their stand-ins, are installed";
}

}  // namespace
