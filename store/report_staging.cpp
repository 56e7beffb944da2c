#include "store/report_staging.h"

#include "store/data_files.h"
#include "store/long_work.h"
#include "store/session.h"

using namespace Qt::StringLiterals;

QString printFile() {
  return installedDataFolder() + u"Print.mdb"_s;
}

void stageReport(Session& session, int rows, const std::function<QString(int row)>& insert) {
  if (!session.pc.paths.exists(printFile())) {
    makeDataFolder(session.pc.paths, installedDataFolder());
    makeDataFile(session, printFile(), schema::File::Print);
  }
  const jet::Database print = session.wsMain.OpenDatabase(printFile());
  print.Execute(u"Delete * From Print"_s);
  try {
    run(session.wsMain, {.count = rows, .step = [&](int at) { print.Execute(insert(at + 1)); }});
  } catch (const jet::Error&) {
    print.Execute(u"Delete * From Print"_s);  // half a report would look like a whole one
    throw;
  }
}
