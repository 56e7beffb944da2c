#pragma once
// A second program on the data folder of a test's PC.
#include "store/year_file.h"
#include "tests/support.h"

namespace tests {

struct OtherPc {
  explicit OtherPc(TestPc& first) : pc(first.folder.path()), session(pc, prompts) {
    session.AppTitle = first.session.AppTitle;
    session.DbPath = first.session.DbPath;
    session.WorkYear = first.session.WorkYear;
    session.wsMain = openWorkspace(session, session.DbPath);
    session.dbBasic = session.wsMain.OpenDatabase(session.DbPath + "Basic.mdb");
    session.dbYear = session.wsMain.OpenDatabase(yearFile(session, session.WorkYear));
  }
  int run(const QString& sql) { return session.dbBasic.Execute(sql); }

  pc::Pc pc;
  ScriptedPrompts prompts;
  Session session;
};

}  // namespace tests
