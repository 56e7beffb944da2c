// What neither a statement's text nor a data file made by somebody else can bring the engine to do.
#include <sqlite3.h>

#include <QFile>

#include "tests/jet/engine_fixture.h"

namespace jet_tests {
namespace {

class ClosedDoors : public Engine {
 protected:
  void SetUp() override {
    Engine::SetUp();
    basic.Execute(u"Insert Into Client(Name, GasInit) Values('a', 7)"_s);
    year.Execute(u"Insert Into Sale(SaleNum) Values(1)"_s);
  }
  /** Somebody else's hand on a file, with every protection of the format off. */
  void tamper(const QString& name, const char* sql) const {
    sqlite3* foreign = nullptr;
    ASSERT_EQ(sqlite3_open(path(name).toUtf8().constData(), &foreign), SQLITE_OK);
    sqlite3_db_config(foreign, SQLITE_DBCONFIG_DEFENSIVE, 0, nullptr);
    sqlite3_create_collation(foreign, "JET", SQLITE_UTF8, nullptr,
                             [](void*, int, const void*, int, const void*) { return 0; });
    sqlite3_create_function(
        foreign, "jet_like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
        [](sqlite3_context*, int, sqlite3_value**) {}, nullptr, nullptr);
    char* message = nullptr;
    ASSERT_EQ(sqlite3_exec(foreign, sql, nullptr, nullptr, &message), SQLITE_OK) << message;
    sqlite3_close(foreign);
  }
  /** The data folder after somebody tampered with a file of it, opened anew. */
  void reopen() {
    basic.Close();
    year.Close();
    workspace = open();
    basic = workspace.OpenDatabase(path(u"Basic.mdb"_s));
    year = workspace.OpenDatabase(path(u"2026Foundation.mdb"_s));
  }
  std::string state() const { return rows(basic, u"Select Name, GasInit From Client"_s); }
};

TEST_F(ClosedDoors, ATextNeverRunsASecondStatement) {
  const QString second = u"Delete From Client"_s;
  for (const QString& first :
       {u"Select 1"_s, u"Update Sale Set SaleNum = 2"_s, u"Insert Into Sale(SaleNum) Values(3)"_s,
        u"Delete From Sale Where SaleNum = 9"_s, u"Create Table t(x Long)"_s, u"Drop Table Sale"_s,
        u"Select Name From Client Where Name = 'x'"_s, u"Select Top 1 Name From Client Order By 1"_s,
        QString()})
    for (const QString& between :
         {u";"_s, u" ; "_s, u";\n"_s, u";;"_s, u"; --x\n"_s, u"; /* */ "_s, u" "_s, u"\n"_s, u")"_s, u"';"_s,
          u"\";"_s, u"];"_s, QString(QChar(0)), QString(QChar(0)) + u';', u";"_s + QChar(0)}) {
      if (first.isEmpty() && between.trimmed().isEmpty()) continue;
      const QString text = first + between + second;
      EXPECT_NE(failureOf([&] { basic.Execute(text); }), 0) << text.toStdString();
      EXPECT_NE(failureOf([&] { year.Execute(text); }), 0) << text.toStdString();
      EXPECT_NE(failureOf([&] { year.OpenRecordset(text); }), 0) << text.toStdString();
      ASSERT_EQ(state(), "a|7") << text.toStdString();
    }
}

TEST_F(ClosedDoors, NamesAndTextsStayNamesAndTexts) {
  for (const char* text :
       {"Select * From [Client\"; Delete From Client; --]", "Select [Name\" From Client; --] From Client",
        "Select * From [Client] As [x\"; Drop Table Client; --], nothing",
        "Insert Into [Client\"(Name) Values('z'); --](Name) Values('q')",
        "Update [Client\" Set Name = 'z' --] Set Name = 'q'",
        "Select Name From Client Order By [1; Drop Table Client]"})
    EXPECT_NE(failureOf([&] { basic.Execute(QString::fromLatin1(text)); }), 0) << text;
  // What an operator types between quotes is a text, however it looks, when its quotes are doubled.
  basic.Execute(u"Update Client Set Ho = '''; Delete From Client; --'"_s);
  EXPECT_EQ(rows(basic, u"Select Ho From Client"_s), "'; Delete From Client; --");
  const QString odd = u"x\"]; --"_s;
  EXPECT_EQ(failureOf([&] { basic.createTable(table(odd, {number(u"a"_s)})); }), 3125);
  basic.createTable(
      table(u"odd\"; Drop Table Client; --"_s, {text(u"a\" Text); Drop Table Client; --"_s)},
            {{u"i\"; Drop Table Client; --"_s, {u"a\" Text); Drop Table Client; --"_s}, false, false}}));
  EXPECT_EQ(state(), "a|7");
}

TEST_F(ClosedDoors, SQLitesOwnFunctionsTablesAndCommandsAreNotReached) {
  for (const char* call : {"load_extension('x')", "readfile('x')", "writefile('x', 'y')",
                           "fts3_tokenizer('simple')", "randomblob(10)", "zeroblob(1000000000)",
                           "sqlite_version()", "edit('x')", "jet_put_long(1)", "hex('x')", "changes()"})
    EXPECT_EQ(failureOf([&] { basic.OpenRecordset(u"Select %1 From Client"_s.arg(QLatin1String(call))); }),
              3085)
        << call;
  for (const char* name : {"sqlite_master", "sqlite_schema", "jet_fields", "jet_links",
                           "pragma_database_list", "dbstat", "sqlite_sequence", "main.Client"})
    EXPECT_NE(failureOf([&] { basic.OpenRecordset(u"Select * From [%1]"_s.arg(QLatin1String(name))); }), 0)
        << name;
  for (const char* text :
       {"Attach 'x.db' As x", "Detach main", "Pragma writable_schema = 1", "Vacuum Into 'copy.db'", "Begin",
        "Commit", "Create Trigger t After Insert On Client Begin Select 1; End", "Create View v As Select 1",
        "Create Virtual Table v Using fts5(x)", "Replace Into Client(Name) Values('x')",
        "With x As (Select 1) Select * From x"})
    EXPECT_NE(failureOf([&] { basic.Execute(QString::fromLatin1(text)); }), 0) << text;
  EXPECT_EQ(state(), "a|7");
  EXPECT_FALSE(QFile::exists(u"copy.db"_s) || QFile::exists(u"x.db"_s));
}

TEST_F(ClosedDoors, ATriggerInAFileChangesNothing) {
  tamper(
      u"Basic.mdb"_s,
      "CREATE TRIGGER \"Client.Name required INSERT\" BEFORE INSERT ON Client BEGIN DELETE FROM Client; END;"
      "CREATE TRIGGER spread AFTER UPDATE ON Client BEGIN INSERT INTO jet_links VALUES('x', ';DATABASE=/x', "
      "'x'); END;");
  reopen();
  EXPECT_NE(failureOf([&] { basic.Execute(u"Insert Into Client(Name) Values('b')"_s); }), 0);
  EXPECT_NE(failureOf([&] { year.Execute(u"Update Client Set GasInit = 8"_s); }), 0);
  EXPECT_EQ(state(), "a|7") << "reading goes on";
  EXPECT_FALSE(basic.hasTable(u"x"_s));
}

TEST_F(ClosedDoors, AViewOrAVirtualTableIsNoTable) {
  tamper(u"Basic.mdb"_s,
         "ALTER TABLE Client RENAME TO Hidden; CREATE VIEW Client AS SELECT * FROM Hidden;"
         "CREATE VIRTUAL TABLE Words USING fts5(x); INSERT INTO Words VALUES('y');"
         "INSERT INTO jet_fields VALUES('Words', 0, 'x', 10, 50, 0, 1, 0, NULL)");
  reopen();
  EXPECT_NE(failureOf([&] { state(); }), 0);
  EXPECT_NE(failureOf([&] { basic.Execute(u"Update Client Set GasInit = 8"_s); }), 0);
  EXPECT_NE(failureOf([&] { rows(basic, u"Select x From Words"_s); }), 0);
  EXPECT_EQ(rows(year, u"Select SaleNum From Sale"_s), "1");
}

TEST_F(ClosedDoors, AComputedColumnCallsNothingOfOurs) {
  workspace.CreateDatabase(path(u"Trap.mdb"_s)).createTable(table(u"Plain"_s, {text(u"a"_s)}));
  tamper(u"Trap.mdb"_s, "CREATE TABLE Trap(a TEXT, c AS (jet_like(a, '*')))");
  EXPECT_EQ(failureOf([&] { rows(workspace.OpenDatabase(path(u"Trap.mdb"_s)), u"Select * From Plain"_s); }),
            3049);
  EXPECT_EQ(state(), "a|7");
}

TEST_F(ClosedDoors, ALinkNamesAFileAndNothingElse) {
  int at = 0;
  for (const QString& target :
       {u"file:%1?mode=memory"_s.arg(path(u"Basic.mdb"_s)), u":memory:"_s, u"file::memory:?cache=shared"_s,
        u"|cat"_s, path(u"no\" AS x; DROP TABLE Client; --"_s), u"/dev/zero"_s, u"/dev/stdin"_s,
        folder.path()}) {
    const QString name = u"Link%1"_s.arg(at++);
    year.createTable(link(name, target));
    EXPECT_NE(failureOf([&] { rows(year, u"Select * From "_s + name); }), 0) << target.toStdString();
  }
  reopen();
  EXPECT_EQ(state(), "a|7");
}

TEST_F(ClosedDoors, AFileInAnotherJournalModeIsWorkedOnSafely) {
  tamper(u"2026Foundation.mdb"_s, "PRAGMA journal_mode = WAL");
  reopen();
  workspace.Together([&] {
    basic.Execute(u"Update Client Set GasInit = 9"_s);
    year.Execute(u"Update Sale Set SaleNum = 9"_s);
  });
  EXPECT_FALSE(QFile::exists(path(u"2026Foundation.mdb-wal"_s)))
      << "a group over two files would not be whole";
  EXPECT_EQ(rows(year, u"Select SaleNum From Sale"_s), "9");
}

}  // namespace
}  // namespace jet_tests
