// One fixture an upgrade step: books of today that lack exactly what the step adds. A start brings them up to date, a
// second one changes nothing.
#include "app/start_up.h"
#include "tests/store/old_books.h"

namespace {

using namespace tests;
using namespace Qt::StringLiterals;

struct OldStep {
  const char* name;
  schema::File kind;
  const char* table;
  QStringList missing;  ///< columns; none: the whole table
};

const OldStep oldSteps[] = {
    {"LateCharge", schema::File::Basic, "APT", {u"delaypay"_s}},
    {"PaidLate", schema::File::Year, "Evaporation", {u"paydelayed"_s}},
    {"DealMarks", schema::File::Year, "Sale", {u"DealList"_s, u"SaleList"_s}},
    {"TaxFields", schema::File::Basic, "Client", {u"Serial"_s, u"Status"_s, u"Item"_s, u"Uname"_s}},
    {"Telephones", schema::File::Basic, "Client", {u"Tel1"_s, u"Tel2"_s}},
    {"Options", schema::File::Basic, "Options", {}},
};

struct OldFiles : testing::TestWithParam<OldStep> {
  TestPc here;
  Session& session = here.session;

  bool start() {
    StartUp startUp(session);
    const bool started = startUp.SubMain([&] { startUp.load(); });
    startUp.shutDown();
    return started;
  }
  QString fileOf(schema::File kind) {
    return kind == schema::File::Basic ? session.DbPath + u"Basic.mdb"_s
                                       : yearFile(session, session.WorkYear);
  }
  /** The table as it was before the step; its rows are one customer or one line. */
  void age(const OldStep& step) {
    const jet::Workspace workspace = openWorkspace(session, session.DbPath);
    const jet::Database file = workspace.OpenDatabase(fileOf(step.kind));
    const QString name = QString::fromLatin1(step.table);
    file.deleteTable(name);
    if (step.missing.isEmpty()) return;
    jet::TableDef old = without(schema::table(step.kind, name), step.missing);
    std::erase_if(old.indexes,
                  [&](const jet::Index& index) { return step.missing.contains(index.fields.first()); });
    file.createTable(old);
    if (name == u"Client") file.Execute(u"Insert Into Client(Code, Name) Values(1, '김가네')"_s);
    if (name == u"Sale") file.Execute(u"Insert Into Sale(SaleDate, ClientCode) Values('2026-03-02', 1)"_s);
  }
  QString dumps() {
    const jet::Workspace workspace = openWorkspace(session, session.DbPath);
    QString all;
    for (const QString& name : here.pc.paths.list(session.DbPath, u"*.mdb"_s))
      all += name + u'\n' + dumpOf(workspace.OpenDatabase(session.DbPath + name));
    return all;
  }
};

TEST_P(OldFiles, AreBroughtUpToDateOnce) {
  here.pc.clock.set(QDateTime(QDate(2026, 3, 2), QTime(9, 0)));
  ASSERT_TRUE(start());
  {
    const jet::Workspace workspace = openWorkspace(session, session.DbPath);
    workspace.OpenDatabase(session.DbPath + u"Basic.mdb"_s)
        .Execute(u"Insert Into Client(Code, Name) Values(1, '김가네')"_s);
  }
  const OldStep& step = GetParam();
  age(step);
  ASSERT_TRUE(start());
  {
    const jet::Workspace workspace = openWorkspace(session, session.DbPath);
    const jet::Database file = workspace.OpenDatabase(fileOf(step.kind));
    for (const jet::Field& field : schema::table(step.kind, QString::fromLatin1(step.table)).fields)
      EXPECT_TRUE(hasField(file, QString::fromLatin1(step.table), field.name)) << field.name.toStdString();
    EXPECT_EQ(
        firstOf(workspace.OpenDatabase(yearFile(session, session.WorkYear)), u"Select Name From Client"_s),
        "김가네");
  }
  const QString once = dumps();
  ASSERT_TRUE(start());
  EXPECT_EQ(dumps(), once);
}

INSTANTIATE_TEST_SUITE_P(Steps, OldFiles, testing::ValuesIn(oldSteps),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
