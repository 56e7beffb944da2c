// Walking over rows, writing them back, and what they cost in memory.
#include <random>

#include "store/jet/row_store.h"
#include "tests/jet/engine_fixture.h"

namespace jet_tests {
namespace {

class Recordsets : public Engine {
 protected:
  void SetUp() override {
    Engine::SetUp();
    workspace.Together([&] {
      for (const auto& name : {u"a"_s, u"b"_s, u"c"_s})
        basic.Execute(u"Insert Into Client(Name) Values('%1')"_s.arg(name));
    });
  }
  jet::Recordset dynaset(const QString& sql) const {
    return basic.OpenRecordset(sql, jet::RecordsetType::Dynaset);
  }
};

TEST_F(Recordsets, WalksBothWaysAndCountsWhatItReached) {
  jet::Recordset rs = basic.OpenRecordset(u"Select Code, Name From Client Order By Code"_s);
  EXPECT_EQ(rs.RecordCount(), 1);
  rs.MoveLast();
  EXPECT_EQ(rs.RecordCount(), 3);
  EXPECT_EQ(rs[u"name"_s].toText(), u"c"_s);
  rs.MoveFirst();
  const int first = rs.Bookmark();
  rs.MovePrevious();
  EXPECT_TRUE(rs.atStart());
  EXPECT_EQ(failureOf([&] { rs.MovePrevious(); }), 3021);
  EXPECT_EQ(failureOf([&] { (void)rs[0]; }), 3021);
  for (int i = 0; i < 4; ++i) rs.MoveNext();
  EXPECT_TRUE(rs.atEnd());
  EXPECT_EQ(failureOf([&] { rs.MoveNext(); }), 3021);
  rs.setBookmark(first);
  EXPECT_EQ(rs[u"CODE"_s].toLong(), 1);
  EXPECT_EQ(failureOf([&] { (void)rs[u"Nothing"_s]; }), 3265);
}

TEST_F(Recordsets, AnEmptyOneStandsAtBothEnds) {
  jet::Recordset rs = basic.OpenRecordset(u"Select * From Client Where False"_s);
  EXPECT_TRUE(rs.atStart() && rs.atEnd());
  EXPECT_EQ(rs.RecordCount(), 0);
  EXPECT_EQ(failureOf([&] { rs.MoveFirst(); }), 3021);
  EXPECT_EQ(failureOf([&] { rs.MoveLast(); }), 3021);
  EXPECT_EQ(rs.fieldNames().size(), 6);
}

TEST_F(Recordsets, ANameThatStandsTwiceMeansTheFirst) {
  year.Execute(u"Insert Into Sale(ClientCode, SaleNum) Values(2, 7)"_s);
  jet::Recordset rs = year.OpenRecordset(
      u"Select Client.Code, Sale.SaleID, Client.Name As SaleNum, Sale.SaleNum From Sale Left Join Client On Sale.ClientCode = Client.Code"_s);
  EXPECT_EQ(rs[u"SaleNum"_s].toText(), u"b"_s);
  EXPECT_EQ(rs[3].toLong(), 7);
}

TEST_F(Recordsets, EditWritesTheRowAndShowsWhatIsStored) {
  jet::Recordset rs = dynaset(u"Select * From Client Order By Code"_s);
  rs.MoveNext();
  EXPECT_EQ(failureOf([&] { rs.set(u"Name"_s, u"x"_s); }), 3020);
  rs.Edit();
  rs.set(u"Name"_s, u"B"_s);
  rs.set(u"GasInit"_s, u"12"_s);
  rs.set(u"Rate"_s, 3);
  EXPECT_EQ(rs[u"Name"_s].toText(), u"B"_s);
  rs.Update();
  EXPECT_TRUE(rs[u"GasInit"_s].isWhole());
  EXPECT_EQ(rows(basic, u"Select Name, GasInit, Rate From Client Order By Code"_s), "a|0|- B|12|3 c|0|-");
  EXPECT_EQ(failureOf([&] { rs.Update(); }), 3020);
  rs.Edit();
  rs.set(u"Name"_s, u"gone"_s);
  rs.MoveNext();  // gives the edit up
  rs.MovePrevious();
  EXPECT_EQ(rs[u"Name"_s].toText(), u"B"_s);
}

TEST_F(Recordsets, ARefusedUpdateCanBeMended) {
  jet::Recordset rs = dynaset(u"Select * From Client Order By Code"_s);
  rs.Edit();
  rs.set(u"GasInit"_s, 4);
  rs.set(u"Name"_s, u"longer than ten"_s);
  EXPECT_EQ(failureOf([&] { rs.Update(); }), 3163);
  rs.set(u"Name"_s, u"short"_s);
  rs.Update();
  EXPECT_EQ(rows(basic, u"Select Name, GasInit From Client Where Code = 1"_s), "short|4");
}

TEST_F(Recordsets, AddNewAppendsWithItsNumberAndDefaults) {
  jet::Recordset rs = dynaset(u"Select * From Client Order By Code"_s);
  rs.AddNew();
  rs.set(u"Name"_s, u"d"_s);
  rs.Update();
  EXPECT_EQ(rs[u"Name"_s].toText(), u"a"_s);  // the position stays
  rs.MoveLast();
  EXPECT_EQ(rs[u"Code"_s].toLong(), 4);
  EXPECT_EQ(rs[u"GasInit"_s].toLong(), 0);
  EXPECT_EQ(rs.RecordCount(), 4);
  jet::Recordset empty = dynaset(u"Select * From Client Where False"_s);
  empty.AddNew();
  empty.Update();
  EXPECT_EQ(empty.RecordCount(), 1);
  EXPECT_EQ(rows(basic, u"Select Max(Code) From Client"_s), "5");
}

TEST_F(Recordsets, DeletedRowsAreSteppedOver) {
  jet::Recordset rs = dynaset(u"Select * From Client Order By Code"_s);
  rs.MoveNext();
  rs.Delete();
  EXPECT_EQ(failureOf([&] { (void)rs[u"Name"_s]; }), 3167);
  rs.MovePrevious();
  EXPECT_EQ(rs[u"Name"_s].toText(), u"a"_s);
  rs.MoveNext();
  EXPECT_EQ(rs[u"Name"_s].toText(), u"c"_s);
  rs.MoveLast();
  EXPECT_EQ(rs.RecordCount(), 2);
  EXPECT_EQ(rows(basic, u"Select Name From Client Order By Code"_s), "a c");
  basic.Execute(u"Delete From Client Where Code = 3"_s);
  rs.Edit();
  rs.set(u"Name"_s, u"x"_s);
  EXPECT_EQ(failureOf([&] { rs.Update(); }), 3167);
}

TEST_F(Recordsets, OfAJoinEachTableGetsItsOwnFields) {
  year.Execute(u"Insert Into Sale(ClientCode, SaleNum) Values(2, 7)"_s);
  year.Execute(u"Insert Into Sale(ClientCode, SaleNum) Values(9, 1)"_s);
  jet::Recordset rs = year.OpenRecordset(
      u"Select Sale.SaleNum, Client.Name, Sale.SaleNum + 1 As More From Sale Left Join Client On Sale.ClientCode = Client.Code Order By SaleID"_s,
      jet::RecordsetType::Dynaset);
  rs.Edit();
  rs.set(u"SaleNum"_s, 8);
  rs.set(u"Name"_s, u"bb"_s);
  EXPECT_EQ(failureOf([&] { rs.set(u"More"_s, 1); }), 3164);
  rs.Update();
  EXPECT_EQ(rows(year, u"Select SaleNum From Sale Order By SaleID"_s), "8 1");
  EXPECT_EQ(rows(basic, u"Select Name From Client Where Code = 2"_s), "bb");
  rs.MoveNext();
  rs.Edit();
  rs.set(u"Name"_s, u"nobody"_s);
  EXPECT_EQ(failureOf([&] { rs.Update(); }), 3164);
}

TEST_F(Recordsets, WhatIsNoTablesRowIsReadOnly) {
  jet::Recordset snapshot = basic.OpenRecordset(u"Select * From Client"_s);
  EXPECT_EQ(failureOf([&] { snapshot.Edit(); }), 3027);
  for (const auto& sql : {u"Select Count(*) From Client"_s, u"Select Distinct Name From Client"_s}) {
    jet::Recordset rs = dynaset(sql);
    EXPECT_EQ(failureOf([&] { rs.Edit(); }), 3027) << sql.toStdString();
    EXPECT_EQ(failureOf([&] { rs.AddNew(); }), 3027) << sql.toStdString();
  }
  jet::Recordset rs = dynaset(u"Select * From Client"_s);
  basic.Close();
  EXPECT_EQ(rs[u"Name"_s].toText(), u"a"_s);  // the rows outlive the handle
  EXPECT_EQ(failureOf([&] { rs.Edit(); }), 3420);
}

// ---- the packed rows

TEST(RowStore, AColumnWidensWithoutLosingAValue) {
  const std::vector<jet::Value> values{{}, 1, qint64(5000000000), {}, 2.5, u"글"_s, 7, u""_s, -1};
  jet::RowStore store(1);
  for (size_t count = 1; count <= values.size(); ++count) {
    store.appendRow({values[count - 1]});
    for (size_t row = 0; row < count; ++row) {
      EXPECT_EQ(store.at(int(row), 0).isNull(), values[row].isNull());
      EXPECT_EQ(store.at(int(row), 0).toText(), values[row].toText());
    }
  }
  store.stopFilling();
  store.set(1, 0, u"neu"_s);
  store.set(2, 0, {});
  EXPECT_EQ(store.at(1, 0).toText(), u"neu"_s);
  EXPECT_TRUE(store.at(2, 0).isNull());
  EXPECT_EQ(store.at(5, 0).toText(), u"글"_s);
}

TEST(RowStore, RowsCostLittleMoreThanTheirValues) {
  constexpr int kRows = 20000;
  jet::RowStore store(13);
  size_t plain = 0;
  std::mt19937 random(7);
  for (int i = 0; i < kRows; ++i) {
    std::vector<jet::Value> row;
    for (int column = 0; column < 6; ++column) row.emplace_back(int(random() % 1000000));
    row.emplace_back(double(random()) / 7);
    row.emplace_back(u"2026-%1-%2"_s.arg(random() % 12 + 10).arg(random() % 28 + 10));
    row.emplace_back(u"프로판 %1kg"_s.arg(random() % 5));
    for (int column = 0; column < 4; ++column) row.emplace_back(u"경기도 성남시 %1"_s.arg(random()));
    for (const jet::Value& value : row) plain += value.isText() ? size_t(value.toText().toUtf8().size()) : 8;
    store.appendRow(row);
  }
  store.stopFilling();
  EXPECT_LT(double(store.bytes()), 1.5 * double(plain));
  EXPECT_EQ(store.at(kRows - 1, 12).toText().left(7), u"경기도 성남시"_s);
}

}  // namespace
}  // namespace jet_tests
