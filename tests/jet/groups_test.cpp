// Together: one flush, no undo.
#include <stdexcept>

#include "tests/jet/engine_fixture.h"

namespace jet_tests {
namespace {

class Groups : public Engine {};

TEST_F(Groups, WhatRanBeforeAFailureStays) {
  const int failure = failureOf([&] {
    workspace.Together([&] {
      basic.Execute(u"Insert Into Client(Name) Values('a')"_s);
      year.Execute(u"Insert Into Sale(SaleNum) Values(1)"_s);
      basic.Execute(u"Update Client Set GasInit = 'x'"_s);
      basic.Execute(u"Insert Into Client(Name) Values('never')"_s);
    });
  });
  EXPECT_EQ(failure, 3464);
  const jet::Database other = open().OpenDatabase(path(u"2026Foundation.mdb"_s));
  EXPECT_EQ(rows(other, u"Select Name From Client"_s), "a");
  EXPECT_EQ(rows(other, u"Select SaleNum From Sale"_s), "1");
}

TEST_F(Groups, AForeignExceptionKeepsTheRowsToo) {
  EXPECT_THROW(workspace.Together([&] {
    basic.Execute(u"Insert Into Client(Name) Values('a')"_s);
    throw std::runtime_error("stop");
  }),
               std::runtime_error);
  EXPECT_EQ(rows(basic, u"Select Name From Client"_s), "a");
  EXPECT_EQ(basic.Execute(u"Delete From Client"_s), 1);
}

TEST_F(Groups, AnInnerGroupBelongsToTheOuterOne) {
  const jet::Workspace otherPc = open();
  const jet::Database other = otherPc.OpenDatabase(path(u"Basic.mdb"_s));
  workspace.Together([&] {
    workspace.Together([&] { basic.Execute(u"Insert Into Client(Name) Values('a')"_s); });
    EXPECT_EQ(rows(other, u"Select Count(*) From Client"_s), "0");
    EXPECT_EQ(rows(basic, u"Select Count(*) From Client"_s), "1");
    EXPECT_EQ(failureOf([&] { workspace.Together([&] { basic.Execute(u"Update Client Set Code = 9"_s); }); }),
              3113);
    basic.Execute(u"Insert Into Client(Name) Values('b')"_s);
  });
  EXPECT_EQ(rows(other, u"Select Count(*) From Client"_s), "2");
}

TEST_F(Groups, TablesAndFilesCanComeAndGoWithin) {
  jet::Database print;
  workspace.Together([&] {
    year.Execute(u"Insert Into Sale(SaleNum) Values(1)"_s);
    year.deleteTable(u"Client"_s);
    year.createTable(link(u"Client"_s, path(u"Basic.mdb"_s)));
    print = workspace.CreateDatabase(path(u"Print.mdb"_s));
    print.createTable(table(u"Print"_s, {text(u"Str01"_s)}));
    print.Execute(u"Insert Into Print Values('x')"_s);
    EXPECT_EQ(rows(year, u"Select Str01 From [%1].Print"_s.arg(path(u"Print.mdb"_s))), "x");
    print.Close();
    EXPECT_EQ(rows(year, u"Select Count(*) From Client"_s), "0");
    EXPECT_EQ(failureOf([&] { year.createTable(table(u"Sale"_s, {number(u"x"_s)})); }), 3010);
  });
  EXPECT_EQ(rows(year, u"Select SaleNum From Sale"_s), "1");
  EXPECT_EQ(rows(workspace.OpenDatabase(path(u"Print.mdb"_s)), u"Select * From Print"_s), "x");
}

TEST_F(Groups, AStatementOverTwoFilesIsWholeOrNot) {
  basic.Execute(u"Insert Into Client(Name) Values('a')"_s);
  basic.createIndex(u"Client"_s, {u"OnlyOne"_s, {u"GasInit"_s}, false, true});
  year.Execute(u"Insert Into Sale(SaleNum) Values(1)"_s);
  year.Execute(u"Insert Into Sale(SaleNum) Values(1)"_s);
  EXPECT_EQ(failureOf([&] { year.Execute(u"Insert Into Client(GasInit) Select SaleNum From Sale"_s); }),
            3022);
  EXPECT_EQ(rows(basic, u"Select Count(*) From Client"_s), "1");
}

}  // namespace
}  // namespace jet_tests
