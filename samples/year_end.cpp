#include "samples/year_end.h"

#include "pc/paths.h"
#include "samples/entrance.h"
#include "samples/meter_keys.h"
#include "store/data_files.h"
#include "store/year_file.h"

using namespace Qt::StringLiterals;

namespace samples {
namespace {

constexpr int closedYear = 2026;

int carriedRows(Stage& stage) {
  return stage
      .query(yearFileName(QString::number(closedYear + 1)),
             "Select Count(Mon) From Evaporation Where Mon = 1 And Trust <> 0")
      .value(0)
      .toInt();
}

void closeBooks(Stage& stage, const QString& newFile) {
  stage.keys({"alt+a", "y"});
  stage.awaitWindow(u"년도마감 미리보기"_s);
  stage.picture(u"year-1-forecast"_s);
  stage.keys({"Return"});
  stage.awaitWindow(u"자료 관리자"_s);
  stage.picture(u"year-2-question"_s);
  stage.keys({"alt+y"});
  stage.awaitFile(newFile);
  stage.awaitWindow(u"자료 관리자"_s);
  stage.picture(u"year-3-closed"_s);
  stage.keys({"Return"});
}

}  // namespace

YearEndReport playYearEnd(const std::function<Stage::Options(const QString& clock)>& options,
                          const std::function<void(const QString&)>& tell) {
  YearEndReport report;
  {
    Stage stage(options(QString::fromLatin1(closingClock)));
    stage.startProgram();
    signIn(stage);
    MeterKeys keys(stage, closedYear, 12);
    keys.openBlock(1, true);
    keys.enterReadings(sampleBlock(), usedByHousehold);
    report.december = keys.bills(sampleBlock());
    tell(u"December's readings of 30 households were typed"_s);
    const pc::Paths paths(options(QString()).pcRoot);
    closeBooks(stage, paths.native(installedDataFolder() + yearFileName(QString::number(closedYear + 1))));
    report.carried = carriedRows(stage);
    tell(u"the year was closed"_s);
    leave(stage);
  }
  Stage stage(options(QString::fromLatin1(newYearClock)));
  stage.startProgram();
  signIn(stage);
  MeterKeys keys(stage, closedYear + 1, 1);
  keys.openBlock(1);
  stage.picture(u"year-4-january"_s);
  keys.enterReadings(sampleBlock(), usedByHousehold);
  report.january = keys.bills(sampleBlock());
  stage.picture(u"year-5-read"_s);
  tell(u"January bills carry what December left"_s);
  leave(stage);
  return report;
}

}  // namespace samples
