// Statements on real files: what is written, what is refused, what a reader gets.
#include "tests/jet/engine_fixture.h"

namespace jet_tests {

namespace {

class Statements : public Engine {};

TEST_F(Statements, InsertedRowsGetNumbersDefaultsAndTheirOwnTypes) {
  EXPECT_EQ(basic.Execute(u"Insert Into Client(Name, VolumeYesNo, Rate) Values('김씨', True, '1.5')"_s), 1);
  EXPECT_EQ(basic.Execute(u"Insert Into client (name, ho) values ('이씨', 101)"_s), 1);
  EXPECT_EQ(rows(basic, u"Select * From Client Order By Code"_s), "1|김씨|-|0|-1|1.5 2|이씨|101|0|0|-");
  EXPECT_EQ(rows(basic, u"Select Max(Code) As MCode From Client"_s), "2");
  jet::Recordset rs = basic.OpenRecordset(u"Select Ho, GasInit, Rate From Client Where Code = 2"_s);
  EXPECT_TRUE(rs[0].isText());
  EXPECT_TRUE(rs[1].isWhole());
  EXPECT_TRUE(rs.isNull(u"RATE"_s));
}

TEST_F(Statements, ADeletedHighestNumberIsNotGivenAgain) {
  basic.Execute(u"Insert Into Client(Name) Values('a')"_s);
  basic.Execute(u"Insert Into Client(Name) Values('b')"_s);
  basic.Execute(u"Delete * From Client Where Code = 2"_s);
  basic.Execute(u"Insert Into Client(Name) Values('c')"_s);
  EXPECT_EQ(rows(basic, u"Select Code From Client Order By Code"_s), "1 3");
}

TEST_F(Statements, WritesConvertBetweenTextsAndNumbers) {
  basic.Execute(u"Insert Into Client(Name) Values('a')"_s);
  basic.Execute(u"Update Client Set GasInit = '12', Ho = 3, Rate = '1,234.5'"_s);
  EXPECT_EQ(rows(basic, u"Select GasInit, Ho, Rate From Client"_s), "12|3|1234.5");
  basic.Execute(u"Update Client Set GasInit = 2.5"_s);
  EXPECT_EQ(rows(basic, u"Select GasInit From Client"_s), "2");
  basic.Execute(u"Update Client Set GasInit = 3.5, VolumeYesNo = 7, Ho = 1.50"_s);
  EXPECT_EQ(rows(basic, u"Select GasInit, VolumeYesNo, Ho From Client"_s), "4|-1|1.5");
  basic.Execute(u"Update Client Set VolumeYesNo = Null, Rate = Null"_s);
  EXPECT_EQ(rows(basic, u"Select VolumeYesNo, Rate From Client"_s), "0|-");
}

TEST_F(Statements, WhatAColumnCannotHoldIsRefusedAndNothingChanges) {
  basic.Execute(u"Insert Into Client(Name, GasInit) Values('a', 5)"_s);
  const auto update = [&](const QString& set) {
    return failureOf([&] { basic.Execute(u"Update Client Set "_s + set); });
  };
  EXPECT_EQ(update(u"GasInit = 'abc'"_s), 3464);
  EXPECT_EQ(update(u"GasInit = 3000000000"_s), 6);
  EXPECT_EQ(update(u"Name = '12345678901'"_s), 3163);
  EXPECT_EQ(update(u"Name = '가나다라마바사아자차'"_s), 0);  // ten characters, whatever their bytes
  EXPECT_EQ(update(u"Code = 7"_s), 3113);
  EXPECT_EQ(rows(basic, u"Select Code, GasInit From Client"_s), "1|5");
}

TEST_F(Statements, KeysRequiredFieldsAndEmptyTextsAreChecked) {
  auto required = text(u"Name"_s, 20);
  required.required = true;
  auto filled = text(u"Filled"_s, 20);
  filled.allowZeroLength = false;
  basic.createTable(table(u"Options"_s, {text(u"OPTName"_s, 20), required, filled, number(u"Two"_s)},
                          {{u"Options_PK"_s, {u"OPTName"_s}, true, true}}));
  const auto insert = [&](const QString& values) {
    return failureOf(
        [&] { basic.Execute(u"Insert Into Options(OPTName, Name, Filled) Values("_s + values + u")"_s); });
  };
  EXPECT_EQ(insert(u"'a', 'b', 'c'"_s), 0);
  EXPECT_EQ(insert(u"'A ', 'b', 'c'"_s), 3022);  // the key, too, knows neither case nor trailing blanks
  EXPECT_EQ(insert(u"'d', Null, 'c'"_s), 3314);
  EXPECT_EQ(insert(u"'d', '', 'c'"_s), 0);
  EXPECT_EQ(insert(u"'e', 'b', ''"_s), 3315);
  EXPECT_EQ(insert(u"Null, 'b', 'c'"_s), 3058);
  EXPECT_EQ(failureOf([&] { basic.Execute(u"Insert Into Options(OPTName) Values('z')"_s); }), 3314);
}

TEST_F(Statements, TextsMeetWithoutCaseAndTrailingBlanks) {
  for (const auto& name : {u"Kim"_s, u"kim "_s, u"lee"_s, u"김"_s})
    basic.Execute(u"Insert Into Client(Name) Values('%1')"_s.arg(name));
  EXPECT_EQ(rows(basic, u"Select Code From Client Where Name = 'KIM' Order By Code"_s), "1 2");
  EXPECT_EQ(rows(basic, u"Select Count(*) From Client Where Name <> 'kim'"_s), "2");
  EXPECT_EQ(rows(basic, u"Select Distinct Name From Client Order By Name Desc"_s).substr(0, 7), "김 lee");
  EXPECT_EQ(rows(basic, u"Select Count(*) From Client Group By Name Order By Name"_s), "2 1 1");
  EXPECT_EQ(rows(basic, u"Select Code From Client Where Name Like 'k*' Order By Code"_s), "1 2");
}

TEST_F(Statements, AnApostropheBreaksTheStatementAndNothingElse) {
  const QString name = u"O'Neil"_s;
  EXPECT_EQ(failureOf([&] { basic.Execute(u"Insert Into Client(Name) Values('"_s + name + u"')"_s); }), 3075);
  EXPECT_EQ(failureOf([&] { basic.Execute(u"Update Client Set Name = '"_s + name + u"' Where Code = 1"_s); }),
            3075);
  EXPECT_EQ(rows(basic, u"Select Count(*) From Client"_s), "0");
  basic.Execute(u"Insert Into Client(Name) Values('O''Neil')"_s);
  EXPECT_EQ(rows(basic, u"Select Name From Client"_s), "O'Neil");
}

TEST_F(Statements, ASecondStatementNeverRuns) {
  basic.Execute(u"Insert Into Client(Name) Values('a');"_s);
  EXPECT_EQ(failureOf([&] { basic.Execute(u"Select 1; Delete From Client"_s); }), 3142);
  EXPECT_EQ(failureOf([&] { basic.Execute(u"Update Client Set Name = 'b'; Delete From Client"_s); }), 3142);
  EXPECT_EQ(rows(basic, u"Select Name From Client"_s), "a");
}

TEST_F(Statements, NamesThatAreNotThereHaveTheirNumbers) {
  EXPECT_EQ(failureOf([&] { rows(basic, u"Select Nothing From Client"_s); }), 3061);
  EXPECT_EQ(failureOf([&] { rows(basic, u"Select * From Nothing"_s); }), 3078);
  EXPECT_EQ(failureOf([&] { rows(basic, u"Select * From [%1].Client"_s.arg(path(u"none.mdb"_s))); }), 3024);
  EXPECT_EQ(failureOf([&] { basic.Execute(u"Select * From Client"_s); }), 3065);
  EXPECT_EQ(failureOf([&] { basic.Execute(u"ATTACH 'x' AS y"_s); }), 3075);
  EXPECT_EQ(failureOf([&] { rows(basic, u"Select * From sqlite_schema"_s); }), 3078);
  EXPECT_EQ(failureOf([&] { rows(basic, u"Select * From jet_fields"_s); }), 3078);
}

TEST_F(Statements, OneShapeServesAllItsLiterals) {
  for (int i = 1; i <= 3; ++i) basic.Execute(u"Insert Into Client(Name, GasInit) Values('n%1', %1)"_s.arg(i));
  EXPECT_EQ(rows(basic, u"Select Name From Client Where GasInit = 1"_s), "n1");
  EXPECT_EQ(rows(basic, u"Select Name From Client Where GasInit = 3"_s), "n3");
  EXPECT_EQ(rows(basic, u"Select Top 1 Name From Client Order By GasInit Desc"_s), "n3");
  EXPECT_EQ(rows(basic, u"Select Top 2 Name From Client Order By GasInit Desc"_s), "n3 n2");
}

TEST_F(Statements, TablesCanBeMadeAndChangedByText) {
  basic.Execute(
      u"Create Table Trader (Code Counter Constraint PK Primary Key, U_Name Text(20), Total Double)"_s);
  basic.Execute(u"Insert Into Trader(U_Name) Values('가게')"_s);
  basic.Execute(u"ALTER TABLE Trader ADD COLUMN HPhone Text(14)"_s);
  EXPECT_EQ(rows(basic, u"Select * From Trader"_s), "1|가게|-|-");
  EXPECT_EQ(failureOf([&] { basic.Execute(u"ALTER TABLE Trader ADD COLUMN hphone Text(14)"_s); }), 3380);
  basic.Execute(u"drop table trader"_s);
  EXPECT_EQ(failureOf([&] { rows(basic, u"Select * From Trader"_s); }), 3078);
  EXPECT_NE(failureOf([&] { basic.Execute(u"drop table trader"_s); }), 0);
}

}  // namespace
}  // namespace jet_tests
