#pragma once
// A meter book to work on: a company with its billing figures, customers with their thirteen rows, the sheet.
#include "billing/reading_load.h"
#include "billing/reading_sheet.h"
#include "store/rate_book.h"
#include "tests/answers.h"
#include "tests/support.h"

namespace tests {

using namespace Qt::StringLiterals;

/** The clock stands on 2026-03-05 unless a test says otherwise; sums are cut to ten won (rule 1). */
struct MeterDesk {
  TestPc pc;
  Session& session = pc.session;
  ReadingSheet sheet{session};

  explicit MeterDesk(const QDate& today = {2026, 3, 5}) {
    pc.openBooks(today);
    sheet.readingDay = sheet.today();
    session.DelayCalcFlag = "0";
    session.dbBasic.Execute(
        "Insert Into User(Company, PayState, Rate, Security, AptRate, AptSecurity, ManyRate, ManySecurity) "
        "Values('해온가스', 1, 2, 1000, 1.5, 800, 3, 700)");
    EXPECT_TRUE(readRateBook(session));
  }

  void run(const QString& sql) { session.dbYear.Execute(sql); }
  void basic(const QString& sql) { session.dbBasic.Execute(sql); }
  /** Fields parted by "|", rows by ";". */
  QString rows(const QString& sql) { return rowsOf(session.dbYear, sql); }
  QString field(const QString& column, int code, int month) {
    return rows(u"Select %1 From Evaporation Where ClientCode = %2 And Mon = %3"_s.arg(
        column, QString::number(code), QString::number(month)));
  }
  void payState(int rule) { basic("Update User Set PayState = " + QString::number(rule)); }

  /** A customer with rows 0 to 12; style 0, 1 or 2. His code. */
  int customer(const QString& name, int price, int style = 0, const QString& building = {},
               const QString& dong = {}, const QString& ho = {}) {
    const auto quoted = [](const QString& text) { return text.isNull() ? u"Null"_s : "'" + text + "'"; };
    basic(
        u"Insert Into Client(Name, HouseStyle, VolumeYesNo, VolumeUnit, BDName, Dong, Ho, Tel, Address) "
        "Values('%1', %2, True, %3, %4, %5, %6, '053-1', '대구')"_s.arg(
            name, QString::number(style), QString::number(price), quoted(building), quoted(dong),
            quoted(ho)));
    const int code = int(session.dbBasic.OpenRecordset("Select Max(Code) As C From Client")[0].toLong());
    session.wsMain.Together([&] {
      for (int month = 0; month <= 12; ++month)
        run(u"Insert Into Evaporation(ClientCode, Mon) Values(%1, %2)"_s.arg(code).arg(month));
    });
    return code;
  }
  void set(int code, int month, const QString& columns) {
    run(u"Update Evaporation Set %1 Where ClientCode = %2 And Mon = %3"_s.arg(columns).arg(code).arg(month));
  }

  void show(HouseStyle book, int month, int building = 0) {
    sheet.book = book;
    sheet.month = month;
    fillBuildings(sheet);
    sheet.building = sheet.buildings.isEmpty() ? -1 : building;
    if (month == 0) pc.prompts.expect("체적기초 입력시 주의사항!");
    showReadings(sheet);
  }
  QString cell(int row, int col) { return sheet.grid.text(row, col); }
  /** Cells of a row, parted by "|". */
  QString cells(int row, std::initializer_list<int> columns) {
    QStringList texts;
    for (const int col : columns) texts << cell(row, col);
    return texts.join('|');
  }
  /** Use, amount, arrears, late charge, fee, total. */
  QString bill(int row) {
    return cells(
        row, {EvaCol::UseMuch, EvaCol::UsePay, EvaCol::Trust, EvaCol::Delay, EvaCol::Manage, EvaCol::Total});
  }
};

}  // namespace tests
