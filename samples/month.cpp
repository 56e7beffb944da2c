#include "samples/month.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <memory>

#include "pc/paths.h"
#include "samples/entrance.h"
#include "samples/meter_keys.h"
#include "store/year_file.h"

using namespace Qt::StringLiterals;

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
    stage_->picture(u"month-1-readings"_s);
    tell_(u"the readings of 30 households were typed"_s);
    recalculate();
    tell_(u"the block was computed once more"_s);
    keys.openShops();
    keys.enterReadings(sampleShops(), usedByShop);
    stage_->picture(u"month-2-shops"_s);
    tell_(u"the individual book was read"_s);
    report_.block = keys.bills(sampleBlock());
    report_.shops = keys.bills(sampleShops());
    printSlips();
    leave(*stage_);
  }

  void recalculate() {
    stage_->keys({"Menu", "Down", "Down"});
    stage_->picture(u"month-3-popup"_s);
    stage_->keys({"Return"});
    stage_->awaitWindow(u"해온판매"_s);
    stage_->keys({"Return"});
    stage_->awaitWindow(u"LP가스 판매관리"_s);
  }

  void printSlips() {
    MeterKeys(*stage_, year, month).openBlock(1);
    stage_->keys({"ctrl+2"});
    stage_->awaitWindow(u"OCR-A4"_s);
    stage_->keys({"alt+g"});
    stage_->awaitWindow(u"프린터 설정"_s);
    stage_->keys({"End", "space", "alt+s"});  // the PDF writer is the last of the names
    stage_->awaitWindow(u"해온판매"_s);
    stage_->keys({"Return", "alt+x"});
    stage_->awaitWindow(u"OCR-A4"_s);
    stage_->picture(u"month-4-slips"_s);
    // From the due date over month, period and default to the options, and to the last of them.
    stage_->keys({"Tab", "Tab", "Tab", "Tab", "Tab", "Tab", "Tab", "Down", "Down", "Down", "alt+p"});
    stage_->awaitFile(options_(QString()).pdf);
    stage_->awaitWindow(u"OCR-A4"_s);
    stage_->keys({"alt+x"});
    tell_(u"30 slips were printed on 15 sheets"_s);
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
    QFile file(paths.native(paths.programFolder() + u"\\202603.txt"_s));
    if (!file.open(QIODevice::WriteOnly) || file.write(lines) != lines.size())
      stage_->stop(u"the bank's file cannot be written"_s);
  }

  void collect() {
    writeBankFile();
    stage_->startProgram();
    signIn(*stage_);
    stage_->keys({"alt+a", "k"});
    stage_->keys({"Return", "Up", "Return"});  // year, then the month before, then the button
    stage_->picture(u"month-5-bank-file"_s);
    stage_->keys({"space"});
    for (const MonthBill& bill : report_.block)
      if (bill.paid > 0)
        stage_->awaitRow(yearFile,
                         "Select Pay, TrustDay, Total From Evaporation Where Mon = 3 And ClientCode = " +
                             QString::number(bill.code),
                         QString::number(bill.paid) + "\t04-06\t0");
    stage_->picture(u"month-6-collected"_s);
    tell_(QString::number(report_.paidSlips) + u" payments came back from the bank and were posted"_s);
    MeterKeys(*stage_, year, month).openBlock(1);
    stage_->picture(u"month-7-april"_s);
    for (MonthBill& bill : report_.block)
      bill.nextArrears =
          stage_
              ->query(yearFile, "Select Trust From Evaporation Where Mon = 4 And ClientCode = " +
                                    QString::number(bill.code))
              .value(0)
              .toLongLong();
    leave(*stage_);
    tell_(u"April opens with what is still owed"_s);
  }

  // ---- the month's papers

  /** The PDF writer for the kind of document whose form is open; key opens its printers. */
  void choosePdf(const QStringList& keys) {
    stage_->keys(keys);
    stage_->awaitWindow(u"프린트 드라이버 설정"_s);
    stage_->keys({"alt+s", "alt+x"});  // where there is no other printer it is chosen already
    stage_->awaitWindow(u"LP가스 판매관리"_s);
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
    stage_->type(u"20260301"_s);
    stage_->keys({"Return"});
    stage_->type(u"20260331"_s);
    stage_->keys({"Return"});
    const QStringList clients =
        stage_->query(yearFile,
                      u"Select ClientCode From Sale Where SaleDate Between '2026-03-01' And '2026-03-31' And "
                      u"DealList = 0 And SaleGubun <> 7 Order By SaleDate, SaleID"_s);
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
    stage_->picture(u"month-8-statements"_s);
    stage_->keys({"alt+p", "Down", "Return"});
    chooseDrawnForm(u"거래명세표 발행"_s);
    stage_->awaitFile(folder + u"/거래명세표.pdf"_s);
    stage_->awaitRow(yearFile, u"Select Count(*) From Sale Where DealList = 1"_s,
                     QString::number(statementsIssued));
    tell_(u"three statements were issued"_s);
    stage_->keys({"Escape", "alt+l", "t"});
    stage_->awaitWindow(u"세금계산서 집계"_s);
    stage_->keys({"Return"});
    stage_->awaitWindow(u"LP가스 판매관리"_s);
    choosePdf({"alt+i"});
    stage_->keys({"ctrl+Home", "ctrl+shift+End", "space"});
    stage_->picture(u"month-9-invoices"_s);
    stage_->keys({"alt+p"});
    chooseDrawnForm(u"세금계산서 발행"_s);
    stage_->awaitFile(folder + u"/세금계산서.pdf"_s);
    report_.invoices = int(stage_->query(u"dbTax.mdb"_s, u"Select Serial From TaxAcount"_s).size());
    stage_->keys({"Escape"});
    leave(*stage_);
    tell_(QString::number(report_.invoices) + u" invoices of the month were issued"_s);
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
