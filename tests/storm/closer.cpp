#include "tests/storm/closer.h"

#include "store/jet/error.h"
#include "store/year_file.h"
#include "tests/storm/poster.h"

using namespace Qt::StringLiterals;

namespace storm {

ClosingScreen loneScreen(int* differing) {
  return {.forecast = [](const ClosingForecast&) { return true; },
          .progress = [](const QString&, int, int) {},
          .differs =
              [differing](const CarryCheck&, const QString&) {
                if (differing) ++*differing;
                return false;
              }};
}

void writeDecember(Pc& here, int more) {
  here.session.wsMain.Together([&] {
    for (int code = clientCount + meteredCount + 1; code <= clientCount + meteredCount + more; ++code) {
      here.session.dbBasic.Execute(
          u"Insert Into Client(Code, Name, HouseStyle, VolumeYesNo) Values(%1, '체적%1', 0, True)"_s.arg(
              code));
      for (int month = 0; month <= 12; ++month)
        here.session.dbYear.Execute(
            u"Insert Into Evaporation(ClientCode, Mon) Values(%1, %2)"_s.arg(code).arg(month));
    }
    here.session.dbYear.Execute(
        "Update Evaporation Set UseGage = ClientCode + 0.5, Trust = 1000, Total = ClientCode * 100 Where Mon "
        "= 12");
  });
}

void workInNextYear(Pc& here, int number) {
  here.session.wsMain.OpenDatabase(yearFile(here.session, here.session.WorkYear.toInt() + 1))
      .Execute(u"Insert Into Sale(SaleDate, ClientCode, SaleGubun, Trust) Values('%1-01-02', 1, 1, %2)"_s
                   .arg(here.session.WorkYear.toInt() + 1)
                   .arg(number));
}

int runCloser(const QStringList& arguments) {
  OpenPc here(arguments.at(0));
  report(word::ready);
  for (int number = arguments.at(1).toInt() * 1000;; ++number) {
    report(word::at, number);
    workInNextYear(here, number);
    report(word::made, number);
    int differing = 0;
    closeYear(here.session, loneScreen(&differing));
    if (!here.session.dbYear.isOpen() || differing > 0 || here.prompts.told.filter("에러").size() > 0)
      return 7;
    report(word::done, number);
  }
}

}  // namespace storm
