#include "samples/day.h"

#include "samples/entrance.h"
#include "samples/sample_books.h"
#include "store/year_file.h"

using namespace Qt::StringLiterals;

namespace samples {
namespace {

/** A line just begun: it carries its customer and waits for the rest. */
const QString emptyLine = u"1\t0\t0\t0\t"_s;
const QString basicFile = u"Basic.mdb"_s;

class Day {
 public:
  Day(Stage& stage, const std::function<void(const QString&)>& tell)
      : stage_(stage),
        tell_(tell),
        date_(QString::fromLatin1(dayClock).left(10)),
        yearFile_(yearFileName(date_.left(4))) {
    client_ =
        stage_.query(basicFile, "Select Code From Client Where Tel = '" + QString::fromUtf8(callerTel) + "'")
            .value(0);
    const QString yearBefore = QString::number(date_.left(4).toInt() - 1);
    lastPerson_ =
        stage_
            .query(yearFileName(yearBefore), "Select Top 1 Response From Sale Where ClientCode = " + client_ +
                                                 " Order By SaleDate Desc, SaleID Desc")
            .value(0);
  }

  DayReport play() {
    DayReport report;
    report.before = figures();
    openSales();
    call();
    gasLine();
    collection();
    loan();
    change();
    deletion();
    purchase();
    stockInOut();
    report.after = figures();
    report.lines = stage_.query(yearFile_,
                                "Select SaleGubun, SaleName, SaleThing, SaleNum, Income, Trust From Sale "
                                "Where SaleDate = '" +
                                    date_ + "' Order By SaleID");
    report.purchases =
        stage_.query(yearFile_,
                     "Select BuyCompany, PurchaseGubun, BuyName, BuyThing, PurchaseNum, Pay, Trust From Buy "
                     "Where BuyDate = '" +
                         date_ + "' Order By BuyID");
    report.stock = stage_
                       .query(yearFile_,
                              "Select LPGPreStock, LPGBuy, LPGSale, LPGStock From TmpLPGCANStock Where "
                              "Name = 'LPG' And Size = '20'")
                       .value(0);
    leave(stage_);
    tell_(u"the program was closed"_s);
    return report;
  }

 private:
  Figures figures() const {
    const QStringList owed =
        stage_.query(basicFile, "Select GasInit, UtilInit, LastDate From Client Where Code = " + client_)
            .value(0)
            .split(u'\t');
    const QStringList stock =
        stage_
            .query(basicFile,
                   "Select LPGStock, CANFull, CANEmpty, CANLoan, CANTotalHold From LPG Where "
                   "LPGName = 'LPG' And Size = '20'")
            .value(0)
            .split(u'\t');
    auto whole = [](const QStringList& row, int at) { return row.value(at).toLongLong(); };
    return {whole(owed, 0),  whole(owed, 1),  whole(stock, 0), whole(stock, 1),
            whole(stock, 2), whole(stock, 3), whole(stock, 4), owed.value(2)};
  }

  void awaitBalance(qint64 won) {
    stage_.awaitRow(basicFile, "Select GasInit From Client Where Code = " + client_, QString::number(won));
  }
  void awaitLine(const QString& values) {
    stage_.awaitRow(yearFile_,
                    "Select Top 1 SaleGubun, SaleNum, Income, Trust, Response From Sale Where SaleDate = '" +
                        date_ + "' And ClientCode = " + client_ + " Order By SaleID Desc",
                    values);
  }

  void openSales() {
    signIn(stage_, u"day-1-sign-in"_s);
    stage_.keys({"alt+l", "s"});
    tell_(u"signed in and opened the sale screen"_s);
  }

  void call() {
    stage_.picture(u"day-2-sale-screen"_s);
    stage_.callerUnitSends("RING\r\nNMBR=0531234567\r\n");
    stage_.picture(u"day-3-caller-came-up"_s);
    tell_(u"a call came in from 0531234567"_s);
  }

  void gasLine() {
    stage_.keys({"Return"});  // 가스, as the line stands: it is made
    awaitLine(emptyLine);
    stage_.keys({"F12"});  // Enter would take the item that he had last
    stage_.awaitWindow(u"판매상품조회"_s);
    stage_.picture(u"day-4-item-search"_s);
    stage_.keys({"Return"});
    awaitLine(u"1\t1\t27000\t0\t"_s);
    takePerson();
    awaitLine(u"1\t1\t27000\t0\t"_s + lastPerson_);
    tell_(u"a 20 kg gas delivery was posted, 27,000 won paid"_s);
  }

  /** From the amount on: the line is right as it stands, with the person it offers. */
  void takePerson() {
    stage_.awaitWindow(u"LP가스 판매관리"_s);
    stage_.keys({"Return"});
  }

  void findCustomer() {
    stage_.type(QString::fromLatin1(callerTel).right(4));
    stage_.keys({"Return"});
  }

  void collection() {
    findCustomer();
    stage_.keys({"Down", "Down", "Return"});  // the list of kinds: 수금
    awaitLine(emptyLine);
    stage_.type(u"30000"_s);
    stage_.keys({"Return"});
    stage_.awaitWindow(u"자료수정"_s);  // the line stands already, so a changed cell asks
    stage_.keys({"Return"});
    awaitLine(u"4\t0\t30000\t20000\t"_s);
    stage_.keys({"F12"});  // somebody else than who came last
    stage_.awaitWindow(u"담당"_s);
    stage_.keys({"Down", "Return"});
    awaitLine(u"4\t0\t30000\t20000\t나대로"_s);
    awaitBalance(callerOwes - 30000);
    stage_.picture(u"day-5-collection"_s);
    tell_(u"30,000 won were collected"_s);
  }

  void loan() {
    stage_.awaitWindow(u"LP가스 판매관리"_s);
    findCustomer();
    stage_.keys({"Down", "Down", "Down", "Return"});  // 용대
    awaitLine(emptyLine);
    stage_.keys({"Return"});
    stage_.awaitWindow(u"판매상품조회"_s);
    stage_.keys({"Return"});
    awaitLine(u"5\t1\t0\t0\t"_s);
    takePerson();
    awaitLine(u"5\t1\t0\t0\t나대로"_s);
    tell_(u"a cylinder was lent"_s);
  }

  /** The delivery was not wholly paid after all: 20,000 of 27,000. */
  void change() {
    stage_.keys({"Escape", "Up", "Up", "Up"});
    for (int step = 0; step < 7; ++step) stage_.keys({"Right"});
    stage_.type(u"20000"_s);
    stage_.keys({"Return"});
    stage_.awaitWindow(u"자료수정"_s);
    stage_.picture(u"day-6-change"_s);
    stage_.keys({"Return"});
    awaitBalance(callerOwes - 30000 + 7000);
    tell_(u"the delivery was changed: 20,000 won paid, 7,000 on credit"_s);
  }

  void deletion() {
    stage_.keys({"Escape", "Up", "Delete"});
    stage_.awaitWindow(u"자료삭제"_s);
    stage_.keys({"alt+y"});  // the question stands on 아니오
    stage_.awaitRow(yearFile_, "Select Count(SaleID) From Sale Where SaleDate = '" + date_ + "'", u"2"_s);
    tell_(u"the loan was deleted again"_s);
    stage_.keys({"F5"});
    stage_.picture(u"day-7-figures-of-the-day"_s);
    stage_.keys({"Escape"});
  }

  /** Ten cylinders filled at the station that is found by its telephone number, a part of them on credit. */
  void purchase() {
    const auto awaitPurchase = [this](const QString& values) {
      stage_.awaitRow(yearFile_,
                      "Select Top 1 PurchaseGubun, PurchaseNum, Pay, Trust From Buy Where BuyDate = '" +
                          date_ + "' Order By BuyID Desc",
                      values);
    };
    const QString station =
        stage_.query(basicFile, u"Select Tel From RefillState Where Code = '0001'"_s).value(0);
    stage_.keys({"alt+l", "b"});
    stage_.type(station);
    stage_.keys({"Return", "Return"});  // 가스
    awaitPurchase(u"1\t0\t0\t0"_s);
    stage_.keys({"F12"});
    stage_.awaitWindow(u"구매상품 조회"_s);
    stage_.keys({"Return"});
    awaitPurchase(u"1\t1\t18000\t0"_s);
    changeCell(u"10"_s);
    awaitPurchase(u"1\t10\t180000\t0"_s);
    stage_.keys({"Return"});  // the amount is right
    changeCell(u"100000"_s);
    awaitPurchase(u"1\t10\t100000\t80000"_s);
    stage_.picture(u"day-8-purchase"_s);
    tell_(u"ten cylinders were filled at the station: 100,000 won paid, 80,000 on credit"_s);
  }

  void changeCell(const QString& text) {
    stage_.type(text);
    stage_.keys({"Return"});
    stage_.awaitWindow(u"자료수정"_s);
    stage_.keys({"Return"});
  }

  /** Of the month so far; its last figure is what the catalogue holds. */
  void stockInOut() {
    const QString full = QString::number(figures().full);
    stage_.keys({"alt+l", "k", "F5"});
    stage_.awaitRow(yearFile_, u"Select LPGStock From TmpLPGCANStock Where Name = 'LPG' And Size = '20'"_s,
                    full);
    stage_.picture(u"day-9-stock-in-out"_s);
    tell_(u"the month's stock in and out was shown"_s);
  }

  Stage& stage_;
  const std::function<void(const QString&)>& tell_;
  const QString date_, yearFile_;
  QString client_, lastPerson_;
};

}  // namespace

DayReport playDay(Stage& stage, const std::function<void(const QString&)>& tell) {
  Day day(stage, tell);
  stage.startProgram();
  return day.play();
}

}  // namespace samples
