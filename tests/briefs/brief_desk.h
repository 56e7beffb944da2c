#pragma once
// Books for the tests of report forms: sale lines written bare, answers as the boxes give them, rows and staged rows as
// texts.
#include "briefs/brief_run.h"
#include "store/year_file.h"
#include "tests/shown_reports.h"
#include "tests/support.h"

namespace tests {

using namespace Qt::StringLiterals;

/** 31 March 2026; customers 1 김하나 (plain), 2 한빛 101-202 (apartment), 3 박셋 (metered). */
struct BriefDesk {
  TestPc pc;
  Session& session = pc.session;
  ShownReports reports;

  BriefDesk() {
    pc.openBooks({2026, 3, 31});
    session.reports = &reports;
    run("Insert Into Client(Code, Name, Tel, HouseStyle, VolumeYesNo) Values(1, '김하나', '053-1', 0, "
        "False)");
    run("Insert Into Client(Code, Name, Tel, HouseStyle, BDName, Dong, Ho, VolumeYesNo) Values(2, '이둘', "
        "'053-2', 1, '한빛', '101', '202', False)");
    run("Insert Into Client(Code, Name, Tel, HouseStyle, VolumeYesNo) Values(3, '박셋', '053-3', 0, True)");
  }
  void run(const QString& sql) { session.dbYear.Execute(sql); }
  jet::Database year(const char* which) {
    if (!openYear(session, which).isOpen()) {
      makeYearFile(session, which);
      jet::Database file = openYear(session, which);
      EXPECT_TRUE(upgrades::relink(session));
    }
    return openYear(session, which);
  }

  struct Line {
    const char* day;
    int client = 1, kind = 1;
    qint64 pieces = 1, income = 0, trust = 0, discount = 0;
    const char *item = "LPG", *size = "20", *person = "한기사";
    qint64 unit = 0;
  };
  void sale(const Line& line) { sale(session.dbYear, line); }
  void sale(const jet::Database& file, const Line& line) {
    file.Execute(
        u"Insert Into Sale(SaleDate, ClientCode, SaleGubun, Gubun, SaleNum, Income, Trust, DC, "
        "SaleName, SaleThing, Response, SaleUnit) Values('%1', %2, %3, %4, %5, %6, %7, %8, "
        "'%9', '%10', '%11', %12)"_s.arg(line.day)
            .arg(line.client)
            .arg(line.kind)
            .arg(line.client == 3 && line.kind < 7 ? "True" : "False")
            .arg(line.pieces)
            .arg(line.income)
            .arg(line.trust)
            .arg(line.discount)
            .arg(line.item, line.size, line.person)
            .arg(line.unit));
  }

  /** Shown cells of every row with "|" between, the sum's too. */
  static QStringList shown(BriefRun& run, int page = 0) {
    QStringList rows;
    SpreadModel& grid = run.grid(page);
    for (int row = 1; row <= grid.MaxRows(); ++row) {
      QStringList cells;
      for (int col = 1; col <= grid.MaxCols(); ++col)
        if (!grid.column(col).hidden) cells << grid.text(row, col);
      rows << cells.join('|');
    }
    return rows;
  }
  /** The rows that a page shows under some answers. */
  static QStringList load(BriefRun& run, const BriefAsk& ask) {
    EXPECT_TRUE(run.load(ask));
    return shown(run, ask.page);
  }
  /** Fields of Print: "Str01, Lng01". */
  QStringList staged(const QString& fields) { return stagedRows(session, fields); }
  /** Prints a page: the report's file and one of the rows staged for it; -1 is the last. */
  QString printed(BriefRun& run, int page, const QString& fields, qsizetype row = 0) {
    run.print(page);
    const QStringList rows = staged(fields);
    return reports.asked.back().file + ' ' + rows.value(row < 0 ? rows.size() + row : row);
  }
};

/** The answers of a page, box by box. */
inline BriefAsk asks(int page, const QHash<QString, BriefAnswer>& answers = {}) {
  return {.page = page, .answers = answers};
}
inline BriefAnswer days(const QString& from, const QString& to) {
  return {.text = from, .to = to};
}

}  // namespace tests
