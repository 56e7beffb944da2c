// The object model: what a file remembers of its tables, and that others can read it.
#include <sqlite3.h>

#include "tests/jet/engine_fixture.h"

namespace jet_tests {
namespace {

class CatalogueOnDisk : public Engine {};

TEST_F(CatalogueOnDisk, DefinitionsSurviveClosing) {
  jet::TableDef made = table(
      u"Options"_s, {text(u"OPTName"_s, 20), text(u"OPTValue"_s, 20), number(u"옵션"_s, 7)},
      {{u"Options_PK"_s, {u"OPTName"_s}, true, true}, {u"Two"_s, {u"옵션"_s, u"OPTValue"_s}, false, false}});
  made.fields[1].allowZeroLength = false;
  made.fields[0].required = true;
  basic.createTable(made);
  basic.Close();
  year.Close();
  basic = workspace.OpenDatabase(path(u"Basic.mdb"_s));
  const jet::TableDef read = basic.tableDef(u"OPTIONS"_s);
  EXPECT_EQ(read.name, u"Options"_s);
  ASSERT_EQ(read.fields.size(), 3u);
  EXPECT_EQ(read.fields[0].size, 20);
  EXPECT_TRUE(read.fields[0].required);
  EXPECT_FALSE(read.fields[1].allowZeroLength);
  EXPECT_EQ(read.fields[2].name, u"옵션"_s);
  EXPECT_EQ(read.fields[2].defaultValue.toLong(), 7);
  ASSERT_EQ(read.indexes.size(), 2u);
  EXPECT_TRUE(read.indexes[0].primary);
  EXPECT_EQ(read.indexes[1].fields, (QStringList{u"옵션"_s, u"OPTValue"_s}));
  EXPECT_TRUE(basic.tableDef(u"Client"_s).fields[0].autonumber);
  EXPECT_EQ(basic.TableDefs().size(), 2u);
}

TEST_F(CatalogueOnDisk, ANewFieldLeavesOldRowsNullAndServesNewOnes) {
  basic.Execute(u"Insert Into Client(Name) Values('old')"_s);
  jet::Field field = text(u"Tel1"_s, 14);
  field.defaultValue = u""_s;
  field.required = true;
  basic.appendField(u"client"_s, field);
  basic.appendField(u"Client"_s, yesNo(u"Flag"_s));
  EXPECT_EQ(rows(basic, u"Select Tel1, Flag From Client"_s), "-|0");
  basic.Execute(u"Insert Into Client(Name) Values('new')"_s);
  EXPECT_EQ(rows(basic, u"Select Tel1 Is Null From Client Order By Code"_s), "-1 0");
  EXPECT_EQ(failureOf([&] { basic.Execute(u"Update Client Set Tel1 = Null"_s); }), 3314);
  EXPECT_EQ(failureOf([&] { basic.appendField(u"Client"_s, text(u"TEL1"_s)); }), 3380);
  EXPECT_EQ(failureOf([&] { basic.appendField(u"Nothing"_s, text(u"x"_s)); }), 3265);
}

TEST_F(CatalogueOnDisk, ALaterRequirementHoldsForWhatIsWritten) {
  basic.Execute(u"Insert Into Client(Name) Values('old')"_s);
  basic.Execute(u"Alter Table Client Add Column [It's] Text(5) Not Null"_s);
  basic.Execute(u"Alter Table Client Add Column Size Double Not Null"_s);
  const auto refused = [&](const QString& sql) { return failureOf([&] { basic.Execute(sql); }); };
  EXPECT_EQ(refused(u"Update Client Set Name = 'older'"_s), 0) << "the old row keeps its Null";
  EXPECT_EQ(refused(u"Insert Into Client(Name) Values('new')"_s), 3314);
  EXPECT_EQ(refused(u"Insert Into Client(Name, [It's], Size) Values('new', 'x', Null)"_s), 3314);
  EXPECT_EQ(refused(u"Insert Into Client(Name, [It's], Size) Select Name, Ho, 1 From Client"_s), 3314);
  EXPECT_EQ(refused(u"Update Client Set [It's] = Ho"_s), 3314);
  EXPECT_EQ(refused(u"Insert Into Client(Name, [It's], Size) Values('new', 'x', 1.5)"_s), 0);
  jet::Recordset rs = basic.OpenRecordset(u"Select * From Client"_s, jet::RecordsetType::Dynaset);
  rs.AddNew();
  rs.set(u"Name"_s, u"third"_s);
  EXPECT_EQ(failureOf([&] { rs.Update(); }), 3314);
  rs.set(u"It's"_s, u"y"_s);
  rs.set(u"Size"_s, jet::Value());
  EXPECT_EQ(failureOf([&] { rs.Update(); }), 3314);
  rs.set(u"Size"_s, 2);
  rs.Update();
  EXPECT_EQ(rows(basic, u"Select Name, [It's], Size From Client Order By Code"_s),
            "older|-|- new|x|1.5 third|y|2");
}

TEST_F(CatalogueOnDisk, TheOrdinalDecidesWhereAFieldStands) {
  year.createTable(table(u"Tmp"_s, {text(u"a"_s), text(u"c"_s)}));
  year.Execute(u"Insert Into Tmp Values('1', '3')"_s);
  year.appendField(u"Tmp"_s, text(u"b"_s), 1);
  EXPECT_EQ(rows(year, u"Select * From Tmp"_s), "1|-|3");
  year.Execute(u"Insert Into Tmp Values('4', '5', '6')"_s);
  EXPECT_EQ(rows(year, u"Select c, * From Tmp Where a = '4'"_s), "6|4|5|6");
}

TEST_F(CatalogueOnDisk, AWidenedFieldKeepsItsRowsAndItsHabits) {
  jet::Field count = number(u"Count"_s, 3);
  count.required = true;
  year.createTable(table(u"Tax"_s, {text(u"Serial"_s, 7), count, number(u"Item"_s), text(u"Name"_s, 4)},
                         {{u"PK"_s, {u"Serial"_s}, true, true}, {u"Item"_s, {u"Item"_s}, false, false}}));
  year.Execute(u"Insert Into Tax(Serial, Item) Values('2601999', 5)"_s);
  year.Execute(u"ALTER TABLE tax ALTER COLUMN serial Text(20)"_s);
  year.Execute(u"Alter Table Tax Alter Count Double"_s);
  year.Execute(u"Alter Table Tax Alter Column Count Double"_s);  // is so already
  year.Execute(u"Alter Table Tax Alter Column Name Text(2)"_s);  // holds that already
  year.Execute(u"Insert Into Tax Values('26011000', 2.5, 6, '네글자다')"_s);
  year.Execute(u"Insert Into Tax(Serial) Values('26011001')"_s);
  EXPECT_EQ(rows(year, u"Select * From Tax Order By Serial"_s),
            "26011000|2.5|6|네글자다 26011001|3|-|- 2601999|3|5|-");
  EXPECT_EQ(failureOf([&] { year.Execute(u"Update Tax Set Count = Null"_s); }), 3314);
  EXPECT_EQ(failureOf([&] { year.Execute(u"Insert Into Tax(Serial) Values('26011000')"_s); }), 3022);
  EXPECT_EQ(failureOf([&] { year.Execute(u"Alter Table Tax Alter Column Item Double"_s); }), 3219);
  EXPECT_EQ(failureOf([&] { year.Execute(u"Alter Table Tax Alter Column Serial Long"_s); }), 3219);
  EXPECT_EQ(failureOf([&] { year.Execute(u"Alter Table Tax Alter Column Nope Text(9)"_s); }), 3061);
  const jet::Database again = open().OpenDatabase(path(u"2026Foundation.mdb"_s));
  EXPECT_EQ(again.tableDef(u"Tax"_s).fields[0].size, 20);
  EXPECT_EQ(again.tableDef(u"Tax"_s).fields[1].type, jet::Type::Double);
  EXPECT_EQ(again.tableDef(u"Tax"_s).fields[1].defaultValue.toLong(), 3);
}

TEST_F(CatalogueOnDisk, BadDefinitionsLeaveNothingBehind) {
  const auto making = [&](const jet::TableDef& made) { return failureOf([&] { basic.createTable(made); }); };
  EXPECT_EQ(making(table(u"client"_s, {text(u"x"_s)})), 3010);
  EXPECT_EQ(making(table(u"T"_s, {})), 3264);
  EXPECT_EQ(making(table(u"T"_s, {text(u"x"_s), text(u"X"_s)})), 3191);
  EXPECT_EQ(making(table(u"a.b"_s, {text(u"x"_s)})), 3125);
  EXPECT_EQ(making(table(u"T"_s, {text(u"x"_s)}, {{u"i"_s, {u"y"_s}, false, false}})), 3409);
  const auto running = [&](const QString& sql) { return failureOf([&] { basic.Execute(sql); }); };
  EXPECT_EQ(running(u"Create Table T (x Counter, y Counter)"_s), 3219);
  EXPECT_EQ(running(u"Create Table T (x Long Primary Key, y Long Primary Key)"_s), 3283);
  EXPECT_EQ(running(u"Create Index K On Client (Name) With Primary"_s), 3283);
  EXPECT_FALSE(basic.hasTable(u"T"_s));
  basic.Execute(u"Insert Into Client(Name) Values('a')"_s);
  basic.Execute(u"Insert Into Client(Name) Values('A')"_s);
  EXPECT_EQ(failureOf([&] { basic.createIndex(u"Client"_s, {u"U"_s, {u"Name"_s}, false, true}); }), 3022);
  EXPECT_EQ(failureOf([&] { basic.createIndex(u"Client"_s, {u"name"_s, {u"Name"_s}, false, false}); }), 3284);
  EXPECT_EQ(basic.tableDef(u"Client"_s).indexes.size(), 2u);
  EXPECT_EQ(failureOf([&] { basic.deleteTable(u"Nothing"_s); }), 3265);
  EXPECT_EQ(making(table(u"T"_s, {text(u"x"_s)})), 0);
}

TEST_F(CatalogueOnDisk, AnyToolCanReadTheRows) {
  basic.Execute(u"Insert Into Client(Name, VolumeYesNo) Values('김씨', True)"_s);
  basic.Close();
  year.Close();
  sqlite3* tool = nullptr;
  ASSERT_EQ(sqlite3_open(path(u"Basic.mdb"_s).toUtf8().constData(), &tool), SQLITE_OK);
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
