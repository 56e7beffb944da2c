// Statements on real files: what is written, what is refused, what a reader gets.
#include "tests/jet/engine_fixture.h"

namespace jet_tests {

namespace {

class Statements : public Engine {};

TEST_F(Statements, InsertedRowsGetNumbersDefaultsAndTheirOwnTypes) {
  EXPECT_EQ(basic.Execute("Insert Into Client(Name, VolumeYesNo, Rate) Values('김씨', True, '1.5')"), 1);
  EXPECT_EQ(basic.Execute("Insert Into client (name, ho) values ('이씨', 101)"), 1);
  EXPECT_EQ(rows(basic, "Select * From Client Order By Code"), "1|김씨|-|0|-1|1.5 2|이씨|101|0|0|-");
  EXPECT_EQ(rows(basic, "Select Max(Code) As MCode From Client"), "2");
  jet::Recordset rs = basic.OpenRecordset("Select Ho, GasInit, Rate From Client Where Code = 2");
  EXPECT_TRUE(rs[0].isText());
  EXPECT_TRUE(rs[1].isWhole());
  EXPECT_TRUE(rs.isNull("RATE"));
}

TEST_F(Statements, ADeletedHighestNumberIsNotGivenAgain) {
  basic.Execute("Insert Into Client(Name) Values('a')");
  basic.Execute("Insert Into Client(Name) Values('b')");
  basic.Execute("Delete * From Client Where Code = 2");
  basic.Execute("Insert Into Client(Name) Values('c')");
  EXPECT_EQ(rows(basic, "Select Code From Client Order By Code"), "1 3");
}

TEST_F(Statements, WritesConvertBetweenTextsAndNumbers) {
  basic.Execute("Insert Into Client(Name) Values('a')");
  basic.Execute("Update Client Set GasInit = '12', Ho = 3, Rate = '1,234.5'");
  EXPECT_EQ(rows(basic, "Select GasInit, Ho, Rate From Client"), "12|3|1234.5");
  basic.Execute("Update Client Set GasInit = 2.5");
  EXPECT_EQ(rows(basic, "Select GasInit From Client"), "2");
  basic.Execute("Update Client Set GasInit = 3.5, VolumeYesNo = 7, Ho = 1.50");
  EXPECT_EQ(rows(basic, "Select GasInit, VolumeYesNo, Ho From Client"), "4|-1|1.5");
  basic.Execute("Update Client Set VolumeYesNo = Null, Rate = Null");
  EXPECT_EQ(rows(basic, "Select VolumeYesNo, Rate From Client"), "0|-");
}

TEST_F(Statements, WhatAColumnCannotHoldIsRefusedAndNothingChanges) {
  basic.Execute("Insert Into Client(Name, GasInit) Values('a', 5)");
  const auto update = [&](const QString& set) { return refusal(basic, "Update Client Set " + set); };
  EXPECT_EQ(update("GasInit = 'abc'"), 3464);
  EXPECT_EQ(update("GasInit = 3000000000"), 6);
  EXPECT_EQ(update("Name = '12345678901'"), 3163);
  EXPECT_EQ(update("Name = '가나다라마바사아자차'"), 0);  // ten characters, whatever their bytes
  EXPECT_EQ(update("Code = 7"), 3113);
  EXPECT_EQ(rows(basic, "Select Code, GasInit From Client"), "1|5");
}

TEST_F(Statements, KeysRequiredFieldsAndEmptyTextsAreChecked) {
  auto required = text("Name", 20);
  required.required = true;
  auto filled = text("Filled", 20);
  filled.allowZeroLength = false;
  basic.createTable(table("Options", {text("OPTName", 20), required, filled, number("Two")},
                          {{"Options_PK", {"OPTName"}, true, true}}));
  const auto insert = [&](const QString& values) {
    return failureOf(
        [&] { basic.Execute("Insert Into Options(OPTName, Name, Filled) Values(" + values + ")"); });
  };
  EXPECT_EQ(insert("'a', 'b', 'c'"), 0);
  EXPECT_EQ(insert("'A ', 'b', 'c'"), 3022);  // the key, too, knows neither case nor trailing blanks
  EXPECT_EQ(insert("'d', Null, 'c'"), 3314);
  EXPECT_EQ(insert("'d', '', 'c'"), 0);
  EXPECT_EQ(insert("'e', 'b', ''"), 3315);
  EXPECT_EQ(insert("Null, 'b', 'c'"), 3058);
  EXPECT_EQ(refusal(basic, "Insert Into Options(OPTName) Values('z')"), 3314);
}

TEST_F(Statements, TextsMeetWithoutCaseAndTrailingBlanks) {
  for (const QString name : {"Kim", "kim ", "lee", "김"})
    basic.Execute(u"Insert Into Client(Name) Values('%1')"_s.arg(name));
  EXPECT_EQ(rows(basic, "Select Code From Client Where Name = 'KIM' Order By Code"), "1 2");
  EXPECT_EQ(rows(basic, "Select Count(*) From Client Where Name <> 'kim'"), "2");
  EXPECT_EQ(rows(basic, "Select Distinct Name From Client Order By Name Desc").substr(0, 7), "김 lee");
  EXPECT_EQ(rows(basic, "Select Count(*) From Client Group By Name Order By Name"), "2 1 1");
  EXPECT_EQ(rows(basic, "Select Code From Client Where Name Like 'k*' Order By Code"), "1 2");
}

TEST_F(Statements, AnApostropheBreaksTheStatementAndNothingElse) {
  const QString name = "O'Neil";
  EXPECT_EQ(refusal(basic, "Insert Into Client(Name) Values('" + name + "')"), 3075);
  EXPECT_EQ(refusal(basic, "Update Client Set Name = '" + name + "' Where Code = 1"), 3075);
  EXPECT_EQ(rows(basic, "Select Count(*) From Client"), "0");
  basic.Execute("Insert Into Client(Name) Values('O''Neil')");
  EXPECT_EQ(rows(basic, "Select Name From Client"), "O'Neil");
}

TEST_F(Statements, ASecondStatementNeverRuns) {
  basic.Execute("Insert Into Client(Name) Values('a');");
  EXPECT_EQ(failureOf([&] { basic.Execute("Select 1; Delete From Client"); }), 3142);
  EXPECT_EQ(refusal(basic, "Update Client Set Name = 'b'; Delete From Client"), 3142);
  EXPECT_EQ(rows(basic, "Select Name From Client"), "a");
}

TEST_F(Statements, NamesThatAreNotThereHaveTheirNumbers) {
  EXPECT_EQ(refusal(basic, "Select Nothing From Client"), 3061);
  EXPECT_EQ(refusal(basic, "Select * From Nothing"), 3078);
  EXPECT_EQ(refusal(basic, u"Select * From [%1].Client"_s.arg(path(u"none.mdb"_s))), 3024);
  EXPECT_EQ(failureOf([&] { basic.Execute("Select * From Client"); }), 3065);
  EXPECT_EQ(refusal(basic, "ATTACH 'x' AS y"), 3075);
  EXPECT_EQ(refusal(basic, "Select * From sqlite_schema"), 3078);
  EXPECT_EQ(refusal(basic, "Select * From jet_fields"), 3078);
}

TEST_F(Statements, OneShapeServesAllItsLiterals) {
  for (int i = 1; i <= 3; ++i) basic.Execute(u"Insert Into Client(Name, GasInit) Values('n%1', %1)"_s.arg(i));
  EXPECT_EQ(rows(basic, "Select Name From Client Where GasInit = 1"), "n1");
  EXPECT_EQ(rows(basic, "Select Name From Client Where GasInit = 3"), "n3");
  EXPECT_EQ(rows(basic, "Select Top 1 Name From Client Order By GasInit Desc"), "n3");
  EXPECT_EQ(rows(basic, "Select Top 2 Name From Client Order By GasInit Desc"), "n3 n2");
}

TEST_F(Statements, TablesCanBeMadeAndChangedByText) {
  basic.Execute(
      "Create Table Trader (Code Counter Constraint PK Primary Key, U_Name Text(20), Total Double)");
  basic.Execute("Insert Into Trader(U_Name) Values('가게')");
  basic.Execute("ALTER TABLE Trader ADD COLUMN HPhone Text(14)");
  EXPECT_EQ(rows(basic, "Select * From Trader"), "1|가게|-|-");
  EXPECT_EQ(refusal(basic, "ALTER TABLE Trader ADD COLUMN hphone Text(14)"), 3380);
  basic.Execute("drop table trader");
  EXPECT_EQ(refusal(basic, "Select * From Trader"), 3078);
  EXPECT_NE(refusal(basic, "drop table trader"), 0);
}

}  // namespace
}  // namespace jet_tests
