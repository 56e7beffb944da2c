#include "samples/sample_books.h"

#include "samples/sample_town.h"
#include "store/data_files.h"
#include "store/settings_table.h"
#include "store/upgrades.h"
#include "store/year_file.h"

namespace samples {

void makeBooks(pc::Pc& pc, Prompts& prompts) {
  Session session(pc, prompts);
  session.DbPath = installedDataFolder();
  session.WorkYear = number(pc.clock.today().year());
  if (!prepareDataFolder(session)) throw jet::Error(76, text("자료 폴더를 만들 수 없습니다."));
  for (const QString& year : {number(session.WorkYear.toInt() - 1), session.WorkYear})
    makeYearFile(session, year);
  session.wsMain = openWorkspace(session, session.DbPath);
  session.dbBasic = session.wsMain.OpenDatabase(session.DbPath + "Basic.mdb");
  upgrades::relink(session);
  session.dbYear = session.wsMain.OpenDatabase(yearFile(session, session.WorkYear));
  pc.settings.write(setting::SeeIdUse, true);
  pc.settings.write(setting::SeeIdPorts[0], "1");
  pc.settings.write(setting::SeeIdPorts[1], "0");

  Town town(session);
  session.wsMain.Together([&] {
    writeShop(town);
    makeCustomers(town);
    writeCustomers(town);
  });
  session.wsMain.Together([&] { writeTrade(town); });
  session.wsMain.Together([&] { writeRunningFigures(town); });
  writeReadings(town);
}

}  // namespace samples
