#pragma once
// The sample retailer's two years read line by line, for tests that recompute what the program shows in plain loops.
#include <QMap>

#include "samples/sample_books.h"
#include "store/year_file.h"
#include "tests/briefs/brief_desk.h"

namespace tests {

/** A line of sale or purchase. */
struct Line {
  QString day = {}, person = {}, item = {}, size = {};
  qint64 client = 0, pieces = 0, income = 0, discount = 0, trust = 0;
  int kind = 0;
  bool metered = false, sale = true;

  bool isGas() const { return kind <= 3 || kind == 5 || kind == 6; }
  /** Of a sale. */
  bool isCollection() const { return kind == 4 || kind == 8; }
  bool isIn(const BriefAnswer& period) const { return day >= period.text && day <= period.to; }
};

/** A row's figures in the order of the compared columns, and rows by what names them. */
using Figures = std::vector<qint64>;
using Table = QMap<QString, Figures>;

inline void add(Table& to, const QStringList& key, const Figures& what) {
  Figures& into = to[key.join('|')];
  into.resize(what.size());
  for (size_t at = 0; at < what.size(); ++at) into[at] += what[at];
}
inline void dropSilent(Table& of) {
  of.removeIf([](const auto& each) {
    return std::ranges::all_of(each.value(), [](qint64 won) { return won == 0; });
  });
}
inline Figures sold(const Line& line) {
  return {line.pieces, line.income + line.trust, line.discount, line.income, line.trust};
}

inline constexpr int sampleYear = 2026;

/** The books, read once; no test writes into them. */
struct Shop : TestPc {
  std::vector<Line> sales, purchases;
  QMap<qint64, qint64> gasOwed, utilOwed;
  ShownReports reports;

  Shop() {
    pc.clock.set(QDate(sampleYear, 3, 16).startOfDay().addSecs(9 * 3600));
    samples::makeBooks(pc, prompts);
    session.DbPath = installedDataFolder();
    session.WorkYear = QString::number(sampleYear);
    session.reports = &reports;
    session.wsMain = openWorkspace(session, session.DbPath);
    session.dbBasic = session.wsMain.OpenDatabase(session.DbPath + "Basic.mdb");
    session.dbYear = openYear(session, sampleYear);
    for (const int each : {sampleYear - 1, sampleYear}) readLines(openYear(session, each));
    leaveCopies();
    for (auto rs = session.dbBasic.OpenRecordset(u"Select * From Client"); !rs.atEnd(); rs.MoveNext()) {
      gasOwed[rs["Code"].toLong()] = rs["GasInit"].toLong();
      utilOwed[rs["Code"].toLong()] = rs["UtilInit"].toLong();
    }
  }
  void readLines(const jet::Database& file) {
    read(sales, true,
         file.OpenRecordset(
             u"Select SaleDate, Response, SaleName, SaleThing, ClientCode, SaleNum, Income, DC, "
             u"Trust, SaleGubun, Gubun From Sale"));
    read(purchases, false,
         file.OpenRecordset(u"Select BuyDate, Response, BuyName, BuyThing, 0, PurchaseNum, Pay, DC, Trust, "
                            u"PurchaseGubun, False From Buy"));
  }

 private:
  /** What a closing leaves in the new year's file. */
  void leaveCopies() {
    const QString before = "[" + yearFile(session, sampleYear - 1) + "].";
    const QString sale =
        "SaleDate, Response, SaleName, SaleThing, ClientCode, SaleNum, SaleUnit, Income, DC, Trust, "
        "SaleGubun, Gubun";
    const QString buy =
        "BuyDate, Response, BuyName, BuyThing, BuyCompany, PurchaseNum, PurchaseUnit, Pay, DC, Trust, "
        "PurchaseGubun";
    session.dbYear.Execute("Insert Into Sale(" + sale + ") Select " + sale + " From " + before + "Sale");
    session.dbYear.Execute("Insert Into Buy(" + buy + ") Select " + buy + " From " + before + "Buy");
  }
  static void read(std::vector<Line>& to, bool sale, jet::Recordset rs) {
    for (; !rs.atEnd(); rs.MoveNext())
      to.push_back({.day = rs[0].toText(),
                    .person = rs[1].toText(),
                    .item = rs[2].toText(),
                    .size = rs[3].toText(),
                    .client = rs[4].toLong(),
                    .pieces = rs[5].toLong(),
                    .income = rs[6].toLong(),
                    .discount = rs[7].toLong(),
                    .trust = rs[8].toLong(),
                    .kind = int(rs[9].toLong()),
                    .metered = rs[10].toBool(),
                    .sale = sale});
  }
};

inline const BriefAnswer overNewYear = days("2025-11-20", "2026-02-10");

/** The shop is made once for all tests of one such suite. */
struct OnSampleShop : testing::Test {
  static void SetUpTestSuite() { shop_ = new Shop; }
  static void TearDownTestSuite() { delete std::exchange(shop_, nullptr); }
  Shop& shop() { return *shop_; }

 private:
  inline static Shop* shop_ = nullptr;
};

}  // namespace tests
