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
    basic.Execute("Insert Into Client(Name, GasInit) Values('a', 7)");
    year.Execute("Insert Into Sale(SaleNum) Values(1)");
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
    basic = workspace.OpenDatabase(path("Basic.mdb"));
    year = workspace.OpenDatabase(path("2026Foundation.mdb"));
  }
  std::string state() const { return rows(basic, "Select Name, GasInit From Client"); }
};

TEST_F(ClosedDoors, ATextNeverRunsASecondStatement) {
  const QString second = "Delete From Client";
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
  basic.Execute("Update Client Set Ho = '''; Delete From Client; --'");
  EXPECT_EQ(rows(basic, "Select Ho From Client"), "'; Delete From Client; --");
  const QString odd = "x\"]; --";
  EXPECT_EQ(failureOf([&] { basic.createTable(table(odd, {number("a")})); }), 3125);
  basic.createTable(
      table("odd\"; Drop Table Client; --", {text("a\" Text); Drop Table Client; --")},
            {{"i\"; Drop Table Client; --", {"a\" Text); Drop Table Client; --"}, false, false}}));
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
  EXPECT_FALSE(QFile::exists("copy.db") || QFile::exists("x.db"));
}

TEST_F(ClosedDoors, ATriggerInAFileChangesNothing) {
  tamper(
      "Basic.mdb",
      "CREATE TRIGGER \"Client.Name required INSERT\" BEFORE INSERT ON Client BEGIN DELETE FROM Client; END;"
      "CREATE TRIGGER drops BEFORE UPDATE ON Client BEGIN SELECT RAISE(IGNORE); END;"
      "CREATE TRIGGER keeps BEFORE DELETE ON Client BEGIN SELECT RAISE(IGNORE); END;"
      "CREATE TRIGGER spread AFTER UPDATE ON Client BEGIN INSERT INTO jet_links VALUES('x', ';DATABASE=/x', "
      "'x'); END;");
  reopen();
  EXPECT_EQ(basic.Execute("Insert Into Client(Name) Values('b')"), 1);
  EXPECT_EQ(year.Execute("Update Client Set GasInit = GasInit + 1 Where Name = 'a'"), 1);
  EXPECT_EQ(state(), "a|8 b|0");
  EXPECT_EQ(basic.Execute("Delete From Client Where Name = 'b'"), 1);
  EXPECT_EQ(state(), "a|8");
  EXPECT_FALSE(basic.hasTable("x"));
}

TEST_F(ClosedDoors, WhatATableSaysOfConflictsAndOtherTablesIsNotDone) {
  tamper("Basic.mdb",
         "CREATE TABLE Odd(Code INTEGER PRIMARY KEY ON CONFLICT REPLACE, Name TEXT UNIQUE ON CONFLICT "
         "IGNORE, GasInit INTEGER NOT NULL ON CONFLICT IGNORE CHECK(GasInit < 100)) STRICT;"
         "INSERT INTO Odd VALUES(1, 'a', 7); INSERT INTO Odd VALUES(2, 'b', 8);"
         "CREATE TABLE Follows(a INTEGER REFERENCES Odd(Code) ON DELETE CASCADE) STRICT;"
         "INSERT INTO Follows VALUES(2);"
         "INSERT INTO jet_fields VALUES('Odd', 0, 'Code', 4, 0, 0, 1, 0, NULL);"
         "INSERT INTO jet_fields VALUES('Odd', 1, 'Name', 10, 9, 0, 1, 0, NULL);"
         "INSERT INTO jet_fields VALUES('Odd', 2, 'GasInit', 4, 0, 0, 1, 0, NULL);"
         "INSERT INTO jet_fields VALUES('Follows', 0, 'a', 4, 0, 0, 1, 0, NULL)");
  reopen();
  const auto all = [&] { return rows(basic, "Select Code, Name, GasInit From Odd Order By Code"); };
  EXPECT_EQ(refusal(basic, "Update Odd Set GasInit = 500 Where Code = 1"), 3421);
  EXPECT_EQ(refusal(basic, "Update Odd Set GasInit = Null Where Code = 1"), 3314);
  EXPECT_EQ(refusal(basic, "Insert Into Odd Values(3, 'a', 9)"), 3022);
  EXPECT_EQ(refusal(basic, "Insert Into Odd Values(1, 'c', 9)"), 3022);
  jet::Recordset rs = basic.OpenRecordset("Select * From Odd Where Code = 1", jet::RecordsetType::Dynaset);
  rs.Edit();
  rs.set("Name", "b");
  EXPECT_EQ(failureOf([&] { rs.Update(); }), 3022);
  EXPECT_EQ(all(), "1|a|7 2|b|8");
  EXPECT_EQ(basic.Execute("Delete From Odd Where Code = 2"), 1);
  EXPECT_EQ(rows(basic, "Select a From Follows"), "2");
}

TEST_F(ClosedDoors, AValueAStatementAndACatalogueHaveASize) {
  // A value: nothing is cut or left out in silence.
  basic.createTable(table("Notes", {counter("Code"), {"Text", jet::Type::Memo, 0, false, true, false, {}}}));
  jet::Recordset rs = basic.OpenRecordset("Select * From Notes", jet::RecordsetType::Dynaset);
  rs.AddNew();
  rs.set("Text", QString(17 << 20, u'x'));
  EXPECT_EQ(failureOf([&] { rs.Update(); }), 3035);
  EXPECT_EQ(rows(basic, "Select Count(*) From Notes"), "0");
  tamper("Basic.mdb", "INSERT INTO Notes VALUES(1, hex(zeroblob(9000000)))");
  EXPECT_EQ(refusal(basic, "Select * From Notes"), 3035);
  EXPECT_EQ(state(), "a|7");
  basic.Execute("Update Notes Set [Text] = '" + QString(1000, u'x') + "'");
  QString doubled = "Select [Text] As a From Notes";
  for (int at = 0; at < 4; ++at)
    doubled = u"Select a"_s + u" & a"_s.repeated(19) + u" As a From ("_s + doubled + u") As t"_s;
  EXPECT_EQ(failureOf([&] { rows(basic, doubled); }), 3035);
  // A statement.
  const QString select = "Select Name From Client";
  EXPECT_EQ(failureOf([&] { rows(basic, select + QString(64001 - select.size(), u' ')); }), 3360);
  EXPECT_EQ(rows(basic, select + QString(64000 - select.size(), u' ')), "a");
  EXPECT_EQ(failureOf([&] { rows(basic, select + (" Union " + select).repeated(51)); }), 3360);
  EXPECT_EQ(refusal(basic, u"Select *"_s + u", *"_s.repeated(42) + u" From Client"_s), 3190);
  QString nested = select;
  for (int at = 0; at < 12; ++at) nested = "Select Name From (" + nested + ") As t";
  EXPECT_EQ(failureOf([&] { rows(basic, nested); }), 3360);
  QString tables = "Client As t0";
  for (int at = 1; at <= 32; ++at) tables += u", Client As t%1"_s.arg(at);
  EXPECT_EQ(refusal(basic, "Select t0.Name From " + tables), 3360);
  // A catalogue, our own hand's and a foreign one's.
  std::vector<jet::Field> fields;
  for (int at = 0; at < 256; ++at) fields.push_back(number(u"f%1"_s.arg(at)));
  EXPECT_EQ(failureOf([&] { basic.createTable(table("Wide", fields)); }), 3190);
  for (const char* sql :
       {"WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 300) INSERT INTO "
        "jet_fields SELECT 'Sale', i + 50, 'g' || i, 4, 0, 0, 1, 0, NULL FROM n",
        "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 2000) INSERT INTO "
        "jet_fields SELECT 't' || i, 0, 'a', 4, 0, 0, 1, 0, NULL FROM n",
        "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 200) INSERT INTO jet_links "
        "SELECT 'l' || i, ';DATABASE=/x', 'x' FROM n",
        "INSERT INTO jet_fields VALUES('Sale', 99, 'z', 77, 0, 0, 1, 0, NULL)"}) {
    ASSERT_TRUE(QFile::copy(path("2026Foundation.mdb"), path("Trap.mdb")));
    tamper("Trap.mdb", sql);
    EXPECT_NE(failureOf([&] { workspace.OpenDatabase(path("Trap.mdb")); }), 0) << sql;
    EXPECT_EQ(state(), "a|7");
    QFile::remove(path("Trap.mdb"));
  }
}

TEST_F(ClosedDoors, AViewOrAVirtualTableIsNoTable) {
  tamper("Basic.mdb",
         "ALTER TABLE Client RENAME TO Hidden; CREATE VIEW Client AS SELECT * FROM Hidden;"
         "CREATE VIRTUAL TABLE Words USING fts5(x); INSERT INTO Words VALUES('y');"
         "INSERT INTO jet_fields VALUES('Words', 0, 'x', 10, 50, 0, 1, 0, NULL)");
  reopen();
  EXPECT_NE(failureOf([&] { state(); }), 0);
  EXPECT_NE(refusal(basic, "Update Client Set GasInit = 8"), 0);
  EXPECT_NE(refusal(basic, "Select x From Words"), 0);
  EXPECT_EQ(rows(year, "Select SaleNum From Sale"), "1");
}

TEST_F(ClosedDoors, AComputedColumnCallsNothingOfOurs) {
  workspace.CreateDatabase(path("Trap.mdb")).createTable(table("Plain", {text("a")}));
  tamper("Trap.mdb", "CREATE TABLE Trap(a TEXT, c AS (jet_like(a, '*')))");
  EXPECT_EQ(failureOf([&] { rows(workspace.OpenDatabase(path("Trap.mdb")), "Select * From Plain"); }), 3049);
  EXPECT_EQ(state(), "a|7");
}

TEST_F(ClosedDoors, ALinkNamesAFileAndNothingElse) {
  int at = 0;
  ASSERT_TRUE(QFile::link(path("loop.mdb"), path("loop.mdb"))) << "there, and leads nowhere";
  for (const QString& target :
       {u"file:%1?mode=memory"_s.arg(path(u"Basic.mdb"_s)), u":memory:"_s, u"file::memory:?cache=shared"_s,
        u"|cat"_s, path(u"no\" AS x; DROP TABLE Client; --"_s), u"/dev/zero"_s, u"/dev/stdin"_s,
        path(u"loop.mdb"_s), folder.path()}) {
    const QString name = u"Link%1"_s.arg(at++);
    year.createTable(link(name, target));
    EXPECT_NE(refusal(year, "Select * From " + name), 0) << target.toStdString();
  }
  reopen();
  EXPECT_EQ(state(), "a|7");
}

TEST_F(ClosedDoors, AFileInAnotherJournalModeIsWorkedOnSafely) {
  tamper("2026Foundation.mdb", "PRAGMA journal_mode = WAL");
  reopen();
  workspace.Together([&] {
    basic.Execute("Update Client Set GasInit = 9");
    year.Execute("Update Sale Set SaleNum = 9");
  });
  EXPECT_FALSE(QFile::exists(path("2026Foundation.mdb-wal"))) << "a group over two files would not be whole";
  EXPECT_EQ(rows(year, "Select SaleNum From Sale"), "9");
}

}  // namespace
}  // namespace jet_tests
