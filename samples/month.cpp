#include "samples/month.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <memory>

#include "pc/paths.h"
#include "samples/entrance.h"
#include "samples/meter_keys.h"
#include "store/year_file.h"

namespace samples {
namespace {

constexpr int year = 2026, month = 3;
const QString yearFile = yearFileName(QString::number(year));

class Month {
 public:
  Month(const std::function<Stage::Options(const QString&)>& options,
        const std::function<void(const QString&)>& tell)
      : options_(options), tell_(tell) {}

  MonthReport play() {
    {
      Stage stage(options_(QString::fromLatin1(readingClock)));
      stage_ = &stage;
      readAndPrint();
    }
    {
      Stage stage(options_(QString::fromLatin1(collectingClock)));
      stage_ = &stage;
      collect();
    }
    Stage::Options atMonthsEnd = options_(QString::fromLatin1(documentClock));
    atMonthsEnd.pdf = QFileInfo(atMonthsEnd.pdf).absolutePath();  // a file a job, named by what it holds
    Stage stage(atMonthsEnd);
    stage_ = &stage;
    issueDocuments(atMonthsEnd.pdf);
    return report_;
  }

 private:
  // ---- March

  void readAndPrint() {
    stage_->startProgram();
    signIn(*stage_);
    MeterKeys keys(*stage_, year, month);
    keys.openBlock(1, true);
    keys.enterReadings(sampleBlock(), usedByHousehold);
    stage_->picture(QStringLiteral("month-1-readings"));
    tell_(QStringLiteral("the readings of 30 households were typed"));
    recalculate();
    tell_(QStringLiteral("the block was computed once more"));
    keys.openShops();
    keys.enterReadings(sampleShops(), usedByShop);
    stage_->picture(QStringLiteral("month-2-shops"));
    tell_(QStringLiteral("the individual book was read"));
    report_.block = keys.bills(sampleBlock());
    report_.shops = keys.bills(sampleShops());
    printSlips();
    leave(*stage_);
  }

  void recalculate() {
    stage_->keys({"Menu", "Down", "Down"});
    stage_->picture(QStringLiteral("month-3-popup"));
    stage_->keys({"Return"});
    stage_->awaitWindow(QStringLiteral("해온판매"));
    stage_->keys({"Return"});
    stage_->awaitWindow(QStringLiteral("LP가스 판매관리"));
  }

  void printSlips() {
    MeterKeys(*stage_, year, month).openBlock(1);
    stage_->keys({"ctrl+2"});
    stage_->awaitWindow(QStringLiteral("OCR-A4"));
    stage_->keys({"alt+g"});
    stage_->awaitWindow(QStringLiteral("프린터 설정"));
    stage_->keys({"End", "space", "alt+s"});  // the PDF writer is the last of the names
    stage_->awaitWindow(QStringLiteral("해온판매"));
    stage_->keys({"Return", "alt+x"});
    stage_->awaitWindow(QStringLiteral("OCR-A4"));
    stage_->picture(QStringLiteral("month-4-slips"));
    // From the due date over month, period and default to the options, and to the last of them.
    stage_->keys({"Tab", "Tab", "Tab", "Tab", "Tab", "Tab", "Tab", "Down", "Down", "Down", "alt+p"});
    stage_->awaitFile(options_(QString()).pdf);
    stage_->awaitWindow(QStringLiteral("OCR-A4"));
    stage_->keys({"alt+x"});
    tell_(QStringLiteral("30 slips were printed on 15 sheets"));
  }

  // ---- April

  /** What the bank sends for the slips paid in the first days of April: header, one record a payment, trailer. */
  void writeBankFile() {
    QByteArray lines = QByteArray("11").leftJustified(120) + "\r\n";
    for (MonthBill& bill : report_.block) {
      if (!paysAtTheBank(bill.code) || bill.issued <= 0) continue;
      bill.paid = bill.issued;
      ++report_.paidSlips;
      QByteArray record = QByteArray("22").leftJustified(13) + "0406";
      record = record.leftJustified(49) + QByteArray::number(bill.code).rightJustified(19, '0');
      record = record.leftJustified(69) + QByteArray::number(bill.paid).rightJustified(13, '0');
      lines += record.leftJustified(120) + "\r\n";
    }
    lines += QByteArray("33").leftJustified(120) + "\r\n";
    const pc::Paths paths(options_(QString()).pcRoot);
    QFile file(paths.native(paths.programFolder() + QStringLiteral("\\202603.txt")));
    if (!file.open(QIODevice::WriteOnly) || file.write(lines) != lines.size())
      stage_->stop(QStringLiteral("the bank's file cannot be written"));
  }

  void collect() {
    writeBankFile();
    stage_->startProgram();
    signIn(*stage_);
    stage_->keys({"alt+a", "k"});
    stage_->keys({"Return", "Up", "Return"});  // year, then the month before, then the button
    stage_->picture(QStringLiteral("month-5-bank-file"));
    stage_->keys({"space"});
    for (const MonthBill& bill : report_.block)
      if (bill.paid > 0)
        stage_->awaitRow(yearFile,
                         "Select Pay, TrustDay, Total From Evaporation Where Mon = 3 And ClientCode = " +
                             QString::number(bill.code),
                         QString::number(bill.paid) + "\t04-06\t0");
    stage_->picture(QStringLiteral("month-6-collected"));
    tell_(QString::number(report_.paidSlips) +
          QStringLiteral(" payments came back from the bank and were posted"));
    MeterKeys(*stage_, year, month).openBlock(1);
    stage_->picture(QStringLiteral("month-7-april"));
    for (MonthBill& bill : report_.block)
      bill.nextArrears =
          stage_
              ->query(yearFile, "Select Trust From Evaporation Where Mon = 4 And ClientCode = " +
                                    QString::number(bill.code))
              .value(0)
              .toLongLong();
    leave(*stage_);
    tell_(QStringLiteral("April opens with what is still owed"));
  }

  // ---- the month's papers

  /** The PDF writer for the kind of document whose form is open; key opens its printers. */
  void choosePdf(const QStringList& keys) {
    stage_->keys(keys);
    stage_->awaitWindow(QStringLiteral("프린트 드라이버 설정"));
    stage_->keys({"alt+s", "alt+x"});  // where there is no other printer it is chosen already
    stage_->awaitWindow(QStringLiteral("LP가스 판매관리"));
  }

  /** Answers FrmMsg with the whole sheet and the ink-jet, from its first button. */
  void chooseDrawnForm(const QString& title) {
    stage_->awaitWindow(title);
    stage_->keys({"shift+Tab", "Down", "Tab", "Return"});
  }

  void issueDocuments(const QString& folder) {
    stage_->startProgram();
    signIn(*stage_);
    stage_->keys({"alt+l", "d"});
    choosePdf({"alt+t"});
    // From the dates to the list; then the first line of each of three customers.
    stage_->type(QStringLiteral("20260301"));
    stage_->keys({"Return"});
    stage_->type(QStringLiteral("20260331"));
    stage_->keys({"Return"});
    const QStringList clients = stage_->query(
        yearFile,
        QStringLiteral("Select ClientCode From Sale Where SaleDate Between '2026-03-01' And '2026-03-31' And "
                       "DealList = 0 And SaleGubun <> 7 Order By SaleDate, SaleID"));
    qsizetype line = 0;
    for (int statement = 0; statement < statementsIssued; ++statement) {
      if (statement > 0) {
        const QString last = clients.value(line);
        while (clients.value(line) == last && line < clients.size()) {
          stage_->keys({"Down"});
          ++line;
        }
      }
      stage_->keys({"space"});
    }
    stage_->picture(QStringLiteral("month-8-statements"));
    stage_->keys({"alt+p", "Down", "Return"});
    chooseDrawnForm(QStringLiteral("거래명세표 발행"));
    stage_->awaitFile(folder + QStringLiteral("/거래명세표.pdf"));
    stage_->awaitRow(yearFile, QStringLiteral("Select Count(*) From Sale Where DealList = 1"),
                     QString::number(statementsIssued));
    tell_(QStringLiteral("three statements were issued"));
    stage_->keys({"Escape", "alt+l", "t"});
    stage_->awaitWindow(QStringLiteral("세금계산서 집계"));
    stage_->keys({"Return"});
    stage_->awaitWindow(QStringLiteral("LP가스 판매관리"));
    choosePdf({"alt+i"});
    stage_->keys({"ctrl+Home", "ctrl+shift+End", "space"});
    stage_->picture(QStringLiteral("month-9-invoices"));
    stage_->keys({"alt+p"});
    chooseDrawnForm(QStringLiteral("세금계산서 발행"));
    stage_->awaitFile(folder + QStringLiteral("/세금계산서.pdf"));
    report_.invoices = int(
        stage_->query(QStringLiteral("dbTax.mdb"), QStringLiteral("Select Serial From TaxAcount")).size());
    stage_->keys({"Escape"});
    leave(*stage_);
    tell_(QString::number(report_.invoices) + QStringLiteral(" invoices of the month were issued"));
  }

  const std::function<Stage::Options(const QString&)>& options_;
  const std::function<void(const QString&)>& tell_;
  Stage* stage_ = nullptr;
  MonthReport report_;
};

}  // namespace

MonthReport playMonth(const std::function<Stage::Options(const QString& clock)>& options,
                      const std::function<void(const QString&)>& tell) {
  return Month(options, tell).play();
}

}  // namespace samples
