// Together: one flush, no undo.
#include <stdexcept>

#include "tests/jet/engine_fixture.h"

namespace jet_tests {
namespace {

class Groups : public Engine {};

TEST_F(Groups, WhatRanBeforeAFailureStays) {
  const int failure = failureOf([&] {
    workspace.Together([&] {
      basic.Execute("Insert Into Client(Name) Values('a')");
      year.Execute("Insert Into Sale(SaleNum) Values(1)");
      basic.Execute("Update Client Set GasInit = 'x'");
      basic.Execute("Insert Into Client(Name) Values('never')");
    });
  });
  EXPECT_EQ(failure, 3464);
  const jet::Database other = open().OpenDatabase(path("2026Foundation.mdb"));
  EXPECT_EQ(rows(other, "Select Name From Client"), "a");
  EXPECT_EQ(rows(other, "Select SaleNum From Sale"), "1");
}

TEST_F(Groups, AForeignExceptionKeepsTheRowsToo) {
  EXPECT_THROW(workspace.Together([&] {
    basic.Execute("Insert Into Client(Name) Values('a')");
    throw std::runtime_error("stop");
  }),
               std::runtime_error);
  EXPECT_EQ(rows(basic, "Select Name From Client"), "a");
  EXPECT_EQ(basic.Execute("Delete From Client"), 1);
}

TEST_F(Groups, AnInnerGroupBelongsToTheOuterOne) {
  const jet::Workspace otherPc = open();
  const jet::Database other = otherPc.OpenDatabase(path("Basic.mdb"));
  workspace.Together([&] {
    workspace.Together([&] { basic.Execute("Insert Into Client(Name) Values('a')"); });
    EXPECT_EQ(rows(other, "Select Count(*) From Client"), "0");
    EXPECT_EQ(rows(basic, "Select Count(*) From Client"), "1");
    EXPECT_EQ(failureOf([&] { workspace.Together([&] { basic.Execute("Update Client Set Code = 9"); }); }),
              3113);
    basic.Execute("Insert Into Client(Name) Values('b')");
  });
  EXPECT_EQ(rows(other, "Select Count(*) From Client"), "2");
}

TEST_F(Groups, TablesAndFilesCanComeAndGoWithin) {
  jet::Database print;
  workspace.Together([&] {
    year.Execute("Insert Into Sale(SaleNum) Values(1)");
    year.deleteTable("Client");
    year.createTable(link("Client", path("Basic.mdb")));
    print = workspace.CreateDatabase(path("Print.mdb"));
    print.createTable(table("Print", {text("Str01")}));
    print.Execute("Insert Into Print Values('x')");
    EXPECT_EQ(rows(year, u"Select Str01 From [%1].Print"_s.arg(path(u"Print.mdb"_s))), "x");
    print.Close();
    EXPECT_EQ(rows(year, "Select Count(*) From Client"), "0");
    EXPECT_EQ(failureOf([&] { year.createTable(table("Sale", {number("x")})); }), 3010);
  });
  EXPECT_EQ(rows(year, "Select SaleNum From Sale"), "1");
  EXPECT_EQ(rows(workspace.OpenDatabase(path("Print.mdb")), "Select * From Print"), "x");
}

TEST_F(Groups, AStatementOverTwoFilesIsWholeOrNot) {
  basic.Execute("Insert Into Client(Name) Values('a')");
  basic.createIndex("Client", {"OnlyOne", {"GasInit"}, false, true});
  year.Execute("Insert Into Sale(SaleNum) Values(1)");
  year.Execute("Insert Into Sale(SaleNum) Values(1)");
  EXPECT_EQ(refusal(year, "Insert Into Client(GasInit) Select SaleNum From Sale"), 3022);
  EXPECT_EQ(rows(basic, "Select Count(*) From Client"), "1");
}

}  // namespace
}  // namespace jet_tests
