// The object model: what a file remembers of its tables, and that others can read it.
#include <sqlite3.h>

#include "tests/jet/engine_fixture.h"

namespace jet_tests {
namespace {

class CatalogueOnDisk : public Engine {};

TEST_F(CatalogueOnDisk, DefinitionsSurviveClosing) {
  jet::TableDef made =
      table("Options", {text("OPTName", 20), text("OPTValue", 20), number("옵션", 7)},
            {{"Options_PK", {"OPTName"}, true, true}, {"Two", {"옵션", "OPTValue"}, false, false}});
  made.fields[1].allowZeroLength = false;
  made.fields[0].required = true;
  basic.createTable(made);
  closeFiles();
  basic = workspace.OpenDatabase(path("Basic.mdb"));
  const jet::TableDef read = basic.tableDef("OPTIONS");
  EXPECT_EQ(read.name, "Options");
  ASSERT_EQ(read.fields.size(), 3u);
  EXPECT_EQ(read.fields[0].size, 20);
  EXPECT_TRUE(read.fields[0].required);
  EXPECT_FALSE(read.fields[1].allowZeroLength);
  EXPECT_EQ(read.fields[2].name, "옵션");
  EXPECT_EQ(read.fields[2].defaultValue.toLong(), 7);
  ASSERT_EQ(read.indexes.size(), 2u);
  EXPECT_TRUE(read.indexes[0].primary);
  EXPECT_EQ(read.indexes[1].fields, (QStringList{"옵션", "OPTValue"}));
  EXPECT_TRUE(basic.tableDef("Client").fields[0].autonumber);
  EXPECT_EQ(basic.TableDefs().size(), 2u);
}

TEST_F(CatalogueOnDisk, ANewFieldLeavesOldRowsNullAndServesNewOnes) {
  basic.Execute("Insert Into Client(Name) Values('old')");
  jet::Field field = text("Tel1", 14);
  field.defaultValue = "";
  field.required = true;
  basic.appendField("client", field);
  basic.appendField("Client", yesNo("Flag"));
  EXPECT_EQ(rows(basic, "Select Tel1, Flag From Client"), "-|0");
  basic.Execute("Insert Into Client(Name) Values('new')");
  EXPECT_EQ(rows(basic, "Select Tel1 Is Null From Client Order By Code"), "-1 0");
  EXPECT_EQ(refusal(basic, "Update Client Set Tel1 = Null"), 3314);
  EXPECT_EQ(failureOf([&] { basic.appendField("Client", text("TEL1")); }), 3380);
  EXPECT_EQ(failureOf([&] { basic.appendField("Nothing", text("x")); }), 3265);
}

TEST_F(CatalogueOnDisk, ALaterRequirementHoldsForWhatIsWritten) {
  basic.Execute("Insert Into Client(Name) Values('old')");
  basic.Execute("Alter Table Client Add Column [It's] Text(5) Not Null");
  basic.Execute("Alter Table Client Add Column Size Double Not Null");
  const auto refused = [&](const QString& sql) { return failureOf([&] { basic.Execute(sql); }); };
  EXPECT_EQ(refused("Update Client Set Name = 'older'"), 0) << "the old row keeps its Null";
  EXPECT_EQ(refused("Insert Into Client(Name) Values('new')"), 3314);
  EXPECT_EQ(refused("Insert Into Client(Name, [It's], Size) Values('new', 'x', Null)"), 3314);
  EXPECT_EQ(refused("Insert Into Client(Name, [It's], Size) Select Name, Ho, 1 From Client"), 3314);
  EXPECT_EQ(refused("Update Client Set [It's] = Ho"), 3314);
  EXPECT_EQ(refused("Insert Into Client(Name, [It's], Size) Values('new', 'x', 1.5)"), 0);
  jet::Recordset rs = basic.OpenRecordset("Select * From Client", jet::RecordsetType::Dynaset);
  rs.AddNew();
  rs.set("Name", "third");
  EXPECT_EQ(failureOf([&] { rs.Update(); }), 3314);
  rs.set("It's", "y");
  rs.set("Size", jet::Value());
  EXPECT_EQ(failureOf([&] { rs.Update(); }), 3314);
  rs.set("Size", 2);
  rs.Update();
  EXPECT_EQ(rows(basic, "Select Name, [It's], Size From Client Order By Code"),
            "older|-|- new|x|1.5 third|y|2");
}

TEST_F(CatalogueOnDisk, TheOrdinalDecidesWhereAFieldStands) {
  year.createTable(table("Tmp", {text("a"), text("c")}));
  year.Execute("Insert Into Tmp Values('1', '3')");
  year.appendField("Tmp", text("b"), 1);
  EXPECT_EQ(rows(year, "Select * From Tmp"), "1|-|3");
  year.Execute("Insert Into Tmp Values('4', '5', '6')");
  EXPECT_EQ(rows(year, "Select c, * From Tmp Where a = '4'"), "6|4|5|6");
}

TEST_F(CatalogueOnDisk, AWidenedFieldKeepsItsRowsAndItsHabits) {
  jet::Field count = number("Count", 3);
  count.required = true;
  year.createTable(table("Tax", {text("Serial", 7), count, number("Item"), text("Name", 4)},
                         {{"PK", {"Serial"}, true, true}, {"Item", {"Item"}, false, false}}));
  year.Execute("Insert Into Tax(Serial, Item) Values('2601999', 5)");
  year.Execute("ALTER TABLE tax ALTER COLUMN serial Text(20)");
  year.Execute("Alter Table Tax Alter Count Double");
  year.Execute("Alter Table Tax Alter Column Count Double");  // is so already
  year.Execute("Alter Table Tax Alter Column Name Text(2)");  // holds that already
  year.Execute("Insert Into Tax Values('26011000', 2.5, 6, '네글자다')");
  year.Execute("Insert Into Tax(Serial) Values('26011001')");
  EXPECT_EQ(rows(year, "Select * From Tax Order By Serial"),
            "26011000|2.5|6|네글자다 26011001|3|-|- 2601999|3|5|-");
  EXPECT_EQ(refusal(year, "Update Tax Set Count = Null"), 3314);
  EXPECT_EQ(refusal(year, "Insert Into Tax(Serial) Values('26011000')"), 3022);
  EXPECT_EQ(refusal(year, "Alter Table Tax Alter Column Item Double"), 3219);
  EXPECT_EQ(refusal(year, "Alter Table Tax Alter Column Serial Long"), 3219);
  EXPECT_EQ(refusal(year, "Alter Table Tax Alter Column Nope Text(9)"), 3061);
  const jet::Database again = open().OpenDatabase(path("2026Foundation.mdb"));
  EXPECT_EQ(again.tableDef("Tax").fields[0].size, 20);
  EXPECT_EQ(again.tableDef("Tax").fields[1].type, jet::Type::Double);
  EXPECT_EQ(again.tableDef("Tax").fields[1].defaultValue.toLong(), 3);
}

TEST_F(CatalogueOnDisk, BadDefinitionsLeaveNothingBehind) {
  const auto making = [&](const jet::TableDef& made) { return failureOf([&] { basic.createTable(made); }); };
  EXPECT_EQ(making(table("client", {text("x")})), 3010);
  EXPECT_EQ(making(table("T", {})), 3264);
  EXPECT_EQ(making(table("T", {text("x"), text("X")})), 3191);
  EXPECT_EQ(making(table("a.b", {text("x")})), 3125);
  EXPECT_EQ(making(table("T", {text("x")}, {{"i", {"y"}, false, false}})), 3409);
  const auto running = [&](const QString& sql) { return failureOf([&] { basic.Execute(sql); }); };
  EXPECT_EQ(running("Create Table T (x Counter, y Counter)"), 3219);
  EXPECT_EQ(running("Create Table T (x Long Primary Key, y Long Primary Key)"), 3283);
  EXPECT_EQ(running("Create Index K On Client (Name) With Primary"), 3283);
  EXPECT_FALSE(basic.hasTable("T"));
  basic.Execute("Insert Into Client(Name) Values('a')");
  basic.Execute("Insert Into Client(Name) Values('A')");
  EXPECT_EQ(failureOf([&] { basic.createIndex("Client", {"U", {"Name"}, false, true}); }), 3022);
  EXPECT_EQ(failureOf([&] { basic.createIndex("Client", {"name", {"Name"}, false, false}); }), 3284);
  EXPECT_EQ(basic.tableDef("Client").indexes.size(), 2u);
  EXPECT_EQ(failureOf([&] { basic.deleteTable("Nothing"); }), 3265);
  EXPECT_EQ(making(table("T", {text("x")})), 0);
}

TEST_F(CatalogueOnDisk, AnyToolCanReadTheRows) {
  basic.Execute("Insert Into Client(Name, VolumeYesNo) Values('김씨', True)");
  closeFiles();
  sqlite3* tool = nullptr;
  ASSERT_EQ(sqlite3_open(path("Basic.mdb").toUtf8().constData(), &tool), SQLITE_OK);
  sqlite3_stmt* query = nullptr;
  const char* sql = "SELECT Code, VolumeYesNo FROM Client WHERE Name = '김씨' ORDER BY Name";
  ASSERT_EQ(sqlite3_prepare_v2(tool, sql, -1, &query, nullptr), SQLITE_OK) << sqlite3_errmsg(tool);
  EXPECT_EQ(sqlite3_step(query), SQLITE_ROW);
  EXPECT_EQ(sqlite3_column_int(query, 1), -1);
  sqlite3_finalize(query);
  EXPECT_NE(sqlite3_exec(tool, "UPDATE Client SET Name = 'x'", nullptr, nullptr, nullptr), SQLITE_OK);
  sqlite3_close(tool);
}

}  // namespace
}  // namespace jet_tests
