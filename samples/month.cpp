#include "samples/month.h"

#include <QDir>
#include <QFile>
#include <memory>

#include "pc/paths.h"
#include "samples/entrance.h"
#include "store/year_file.h"

namespace samples {
namespace {

const QString yearFile = yearFileName(QStringLiteral("2026"));
constexpr int month = 3;

/** The block's households in the screen's order, and the individual book's. */
const QString blockOnly =
    QStringLiteral("Client.BDName = '달빛아파트' And Client.Dong = '101' And isnull(Client.Ho) = False ");
const QString shopsOnly = QStringLiteral("Client.HouseStyle = 0 ");

QString meterRows(const QString& columns, int ofMonth, const QString& whose, const QString& order) {
  return "Select " + columns +
         " From Evaporation LEFT JOIN Client ON Evaporation.ClientCode = Client.Code Where " + whose +
         "And Evaporation.Mon = " + QString::number(ofMonth) + " ORDER BY Client." + order;
}

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
    Stage stage(options_(QString::fromLatin1(collectingClock)));
    stage_ = &stage;
    collect();
    return report_;
  }

 private:
  // ---- March

  void readAndPrint() {
    stage_->startProgram();
    signIn(*stage_);
    openBlock(1);
    enterReadings(blockOnly, QStringLiteral("Code"), usedByHousehold);
    stage_->picture(QStringLiteral("month-1-readings"));
    tell_(QStringLiteral("the readings of 30 households were typed"));
    recalculate();
    tell_(QStringLiteral("the block was computed once more"));
    stage_->keys({"alt+v", "1"});
    enterReadings(shopsOnly, QStringLiteral("Name"), usedByShop);
    stage_->picture(QStringLiteral("month-2-shops"));
    tell_(QStringLiteral("the individual book was read"));
    report_.block = bills(blockOnly, QStringLiteral("Code"));
    report_.shops = bills(shopsOnly, QStringLiteral("Name"));
    printSlips();
    leave(*stage_);
  }

  /** The book of apartments by its menu entry, shown by block, one block chosen. */
  void openBlock(int placeInList) {
    stage_->keys({"alt+v", "2"});
    if (!blocksShown_) {
      // From the buildings over the button and the day to the second check box, and back.
      stage_->keys({"Tab", "Tab", "Tab", "Tab", "space", "shift+Tab", "shift+Tab", "shift+Tab", "shift+Tab"});
      blocksShown_ = true;
    }
    for (int step = 0; step <= placeInList; ++step) stage_->keys({"Down"});  // the first stands for all
    stage_->keys({"Return"});
  }

  void enterReadings(const QString& whose, const QString& order, int (*used)(int)) {
    const QStringList before = stage_->query(yearFile, meterRows("UseGage", month - 1, whose, order));
    for (int place = 1; place <= before.size(); ++place) {
      stage_->type(QString::number(before[place - 1].toLongLong() + used(place)));
      stage_->keys({"Return"});
      stage_->awaitWindow(QStringLiteral("체적 관리자"));  // whether the cell shall be changed
      stage_->keys({"Return"});
    }
    stage_->awaitRow(
        yearFile,
        "Select Count(Evaporation.Mon) From Evaporation LEFT JOIN Client ON Evaporation.ClientCode = "
        "Client.Code Where " +
            whose + "And Evaporation.Mon = 3 And UseGage <> 0",
        QString::number(before.size()));
  }

  void recalculate() {
    stage_->keys({"Menu", "Down", "Down"});
    stage_->picture(QStringLiteral("month-3-popup"));
    stage_->keys({"Return"});
    stage_->awaitWindow(QStringLiteral("해온판매"));
    stage_->keys({"Return"});
    stage_->awaitWindow(QStringLiteral("LP가스 판매관리"));
  }

  QList<MonthBill> bills(const QString& whose, const QString& order) const {
    QList<MonthBill> list;
    const QStringList rows = stage_->query(
        yearFile,
        meterRows(
            "Client.Code, Client.Name, UseGage, UseMuch, UsePay, Evaporation.Trust, Delay, Manage, Total",
            month, whose, order));
    for (const QString& row : rows) {
      const QStringList cells = row.split(u'\t');
      const auto whole = [&](int at) { return cells.value(at).toLongLong(); };
      list.push_back(
          {whole(0), cells.value(1), whole(2), whole(3), whole(4), whole(5), whole(6), whole(7), whole(8)});
    }
    return list;
  }

  void printSlips() {
    openBlock(1);
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
    openBlock(1);
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

  const std::function<Stage::Options(const QString&)>& options_;
  const std::function<void(const QString&)>& tell_;
  Stage* stage_ = nullptr;
  bool blocksShown_ = false;
  MonthReport report_;
};

}  // namespace

MonthReport playMonth(const std::function<Stage::Options(const QString& clock)>& options,
                      const std::function<void(const QString&)>& tell) {
  return Month(options, tell).play();
}

}  // namespace samples
