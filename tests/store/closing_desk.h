#pragma once
// The last evening of 2026 in a meter book worked by hand, and the closing as somebody sits in front of it.
#include "store/closing/recarry.h"
#include "store/closing/year_close.h"
#include "store/year_file.h"
#include "tests/billing/meter_desk.h"

namespace tests {

using namespace Qt::StringLiterals;

struct ClosingDesk : MeterDesk {
  int owes = 0, paid = 0, over = 0, late = 0;  ///< customers, by how December left them

  std::optional<ClosingForecast> shown;  ///< before the question
  std::optional<CarryCheck> differed;    ///< after the closing
  QString keptThen;
  bool goesOn = true, putsBack = false;
  QStringList progressed;
  std::function<void(const QString& text, int done)> meanwhile;  ///< in front of what is told of the progress

  ClosingDesk() : MeterDesk({2026, 12, 31}) {
    owes = customer("한빛식당", 2450);
    paid = customer("가람상회", 2450);
    over = customer("새봄이발", 2450);
    late = customer("해오름", 2450);
    // 12 m3 x 2450 = 29,400; + 5,000 + 100 late + 1,000 fee = 35,500.
    set(owes, 12,
        "UseGage = 1234, UseMuch = 12, UsePay = 29400, Trust = 5000, Delay = 100, Manage = 1000, Total = "
        "35500");
    set(paid, 12,
        "UseGage = 640.5, UseMuch = 4, UsePay = 9800, Manage = 1000, Pay = 10800, Total = 0, paydelayed = "
        "True");
    set(over, 12,
        "UseGage = 88, UseMuch = 2, UsePay = 4900, Trust = 2000, Pay = 10900, Manage = 1000, Total = -3000");
    // Nothing but the month's gas, 4 m3 x 2450 = 9,800.
    set(late, 12, "UseGage = 310, UseMuch = 4, UsePay = 9800, Total = 9800");
    set(owes, 3, "UseGage = 1000, UseMuch = 40, Total = 98000, Pay = 98000");
    run("Insert Into Sale(SaleDate, ClientCode, SaleGubun, SaleNum, Trust) Values('2026-05-05', 1, 1, 1, "
        "20000)");
  }

  ClosingScreen screen() {
    return {.forecast =
                [this](const ClosingForecast& forecast) {
                  shown = forecast;
                  return goesOn;
                },
            .progress =
                [this](const QString& text, int done, int total) {
                  progressed << text + u" %1/%2"_s.arg(done).arg(total);
                  if (meanwhile) meanwhile(text, done);
                },
            .differs =
                [this](const CarryCheck& check, const QString& kept) {
                  differed = check;
                  keptThen = kept;
                  return putsBack;
                }};
  }
  void close() { closeYear(session, screen()); }
  void closeWell() {
    pc.prompts.expect("2026년도의 자료를 마감해서 2027년도의 기초자료로 넘기시겠습니까?");
    pc.prompts.expect(
        "2026년도의 자료마감이 완료되었습니다. \n한해 동안 수고하셨습니다. 좋은 한해 되십시오.");
    close();
  }
  /** The closing ends in the two boxes of an error; afterwards the year's file is open again. */
  void closeFails(int number) {
    pc.prompts.expect("2027년도의 자료는 모두 초기화됩니다!");
    pc.prompts.expect("마감작업을 하던중 에러가 발생했습니다!\n구입업체로 연락하시기 바랍니다.");
    pc.prompts.expect(u"에러번호 : %1\n에러내용 : "_s.arg(number));
    close();
    EXPECT_EQ(rows("Select Count(Mon) From Evaporation"), "52") << "dbYear is open on the working year";
    EXPECT_FALSE(session.dbYear.hasTable("TmpTbl"));
  }

  jet::Database year(int number) { return session.wsMain.OpenDatabase(yearFile(session, number)); }
  /** Of a year's file; fields parted by "|", rows by ";". */
  QString rowsIn(int number, const QString& sql) {
    const jet::Database now = session.dbYear;
    session.dbYear = year(number);
    const QString all = rows(sql);
    session.dbYear = now;
    return all;
  }
  /** The data folder's files, without the small ones of those who have them open. */
  QStringList files(const QString& pattern = "*") {
    QStringList names = pc.pc.paths.list(session.DbPath, pattern);
    names.removeIf([](const QString& name) { return name.endsWith(".ldb"); });
    return names;
  }
};

}  // namespace tests
