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
      for (const QString name : {"a", "b", "c"})
        basic.Execute(u"Insert Into Client(Name) Values('%1')"_s.arg(name));
    });
  }
  jet::Recordset dynaset(const QString& sql) const {
    return basic.OpenRecordset(sql, jet::RecordsetType::Dynaset);
  }
};

TEST_F(Recordsets, WalksBothWaysAndCountsWhatItReached) {
  jet::Recordset rs = basic.OpenRecordset("Select Code, Name From Client Order By Code");
  EXPECT_EQ(rs.RecordCount(), 1);
  rs.MoveLast();
  EXPECT_EQ(rs.RecordCount(), 3);
  EXPECT_EQ(rs["name"].toText(), "c");
  rs.MoveFirst();
  const int first = rs.Bookmark();
  rs.MovePrevious();
  EXPECT_TRUE(rs.atStart());
  EXPECT_EQ(failureOf([&] { rs.MovePrevious(); }), 3021);
  EXPECT_EQ(failureOf([&] { (void)rs[0]; }), 3021);
  for (int i = 0; i < 4; ++i) rs.MoveNext();
  EXPECT_TRUE(rs.atEnd());
  EXPECT_EQ(failureOf([&] { rs.MoveNext(); }), 3021);
  EXPECT_EQ(failureOf([&] { (void)rs.Bookmark(); }), 3021);
  rs.setBookmark(first);
  EXPECT_EQ(rs["CODE"].toLong(), 1);
  for (const int nowhere : {-1, 3}) EXPECT_EQ(failureOf([&] { rs.setBookmark(nowhere); }), 3021) << nowhere;
  for (const int nowhere : {-1, 2}) EXPECT_EQ(failureOf([&] { (void)rs[nowhere]; }), 3265) << nowhere;
  rs.MovePrevious();
  EXPECT_EQ(failureOf([&] { (void)rs.Bookmark(); }), 3021);
  rs.MoveNext();
  EXPECT_EQ(rs.fieldIndex("NAME"), 1);
  EXPECT_EQ(rs.fieldIndex("Ho"), -1);
  QString walked;
  for (; !rs.atEnd(); rs.MoveNext()) walked += rs["Name"].toText() + rs["Code"].toText();
  EXPECT_EQ(walked, "a1b2c3");
  EXPECT_EQ(failureOf([&] { (void)rs["Nothing"]; }), 3265);
}

TEST_F(Recordsets, AnEmptyOneStandsAtBothEnds) {
  jet::Recordset rs = basic.OpenRecordset("Select * From Client Where False");
  EXPECT_TRUE(rs.atStart() && rs.atEnd());
  EXPECT_EQ(rs.RecordCount(), 0);
  EXPECT_EQ(failureOf([&] { rs.MoveFirst(); }), 3021);
  EXPECT_EQ(failureOf([&] { rs.MoveLast(); }), 3021);
  EXPECT_EQ(rs.fieldNames().size(), 6);
}

TEST_F(Recordsets, ANameThatStandsTwiceMeansTheFirst) {
  year.Execute("Insert Into Sale(ClientCode, SaleNum) Values(2, 7)");
  jet::Recordset rs = year.OpenRecordset(
      "Select Client.Code, Sale.SaleID, Client.Name As SaleNum, Sale.SaleNum From Sale Left Join Client On "
      "Sale.ClientCode = Client.Code");
  EXPECT_EQ(rs["SaleNum"].toText(), "b");
  EXPECT_EQ(rs[3].toLong(), 7);
}

TEST_F(Recordsets, EditWritesTheRowAndShowsWhatIsStored) {
  jet::Recordset rs = dynaset("Select * From Client Order By Code");
  rs.MoveNext();
  EXPECT_EQ(failureOf([&] { rs.set("Name", "x"); }), 3020);
  rs.Edit();
  rs.set("Name", "B");
  rs.set("GasInit", "12");
  rs.set("Rate", 3);
  EXPECT_EQ(rs["Name"].toText(), "B");
  rs.Update();
  EXPECT_TRUE(rs["GasInit"].isWhole());
  EXPECT_EQ(rows(basic, "Select Name, GasInit, Rate From Client Order By Code"), "a|0|- B|12|3 c|0|-");
  EXPECT_EQ(failureOf([&] { rs.Update(); }), 3020);
  rs.Edit();
  rs.set("Name", "gone");
  rs.MoveNext();  // gives the edit up
  rs.MovePrevious();
  EXPECT_EQ(rs["Name"].toText(), "B");
}

TEST_F(Recordsets, ARefusedUpdateCanBeMended) {
  jet::Recordset rs = dynaset("Select * From Client Order By Code");
  rs.Edit();
  rs.set("GasInit", 4);
  rs.set("Name", "longer than ten");
  EXPECT_EQ(failureOf([&] { rs.Update(); }), 3163);
  rs.set("Name", "short");
  rs.Update();
  EXPECT_EQ(rows(basic, "Select Name, GasInit From Client Where Code = 1"), "short|4");
}

TEST_F(Recordsets, AddNewAppendsWithItsNumberAndDefaults) {
  jet::Recordset rs = dynaset("Select * From Client Order By Code");
  rs.AddNew();
  rs.set("Name", "d");
  EXPECT_EQ(rs["Name"].toText(), "d");
  EXPECT_TRUE(rs.isNull("Code")) << "no row stands behind it yet";
  rs.CancelUpdate();
  EXPECT_EQ(rs["Name"].toText(), "a");
  rs.AddNew();
  rs.set("Name", "d");
  rs.Update();
  EXPECT_EQ(rs["Name"].toText(), "a");  // the position stays
  rs.MoveLast();
  EXPECT_EQ(rs["Code"].toLong(), 4);
  EXPECT_EQ(rs["GasInit"].toLong(), 0);
  EXPECT_EQ(rs.RecordCount(), 4);
  jet::Recordset empty = dynaset("Select * From Client Where False");
  empty.AddNew();
  empty.Update();
  EXPECT_EQ(empty.RecordCount(), 1);
  EXPECT_TRUE(empty.atEnd()) << "behind the last row it stays";
  EXPECT_EQ(rows(basic, "Select Max(Code) From Client"), "5");
  rs.MoveNext();
  rs.AddNew();
  rs.set("Name", "e");
  rs.Update();
  EXPECT_TRUE(rs.atEnd());
  rs.MovePrevious();
  EXPECT_EQ(rs["Name"].toText() + rs["Code"].toText(), "e6");
}

TEST_F(Recordsets, DeletedRowsAreSteppedOver) {
  jet::Recordset rs = dynaset("Select * From Client Order By Code");
  rs.MoveNext();
  rs.Delete();
  EXPECT_EQ(failureOf([&] { (void)rs["Name"]; }), 3167);
  rs.MovePrevious();
  EXPECT_EQ(rs["Name"].toText(), "a");
  rs.MoveNext();
  EXPECT_EQ(rs["Name"].toText(), "c");
  EXPECT_EQ(failureOf([&] { rs.setBookmark(1); }), 3167);
  EXPECT_EQ(rs["Name"].toText(), "c");
  rs.MoveLast();
  EXPECT_EQ(rs.RecordCount(), 2);
  EXPECT_EQ(rows(basic, "Select Name From Client Order By Code"), "a c");
  jet::Recordset all = dynaset("Select * From Client Where Code = 1");
  all.Delete();
  EXPECT_EQ(failureOf([&] { all.Delete(); }), 3167);
  EXPECT_EQ(failureOf([&] { all.MoveFirst(); }), 3021);
  EXPECT_EQ(failureOf([&] { all.MoveLast(); }), 3021);
  EXPECT_EQ(failureOf([&] { all.Edit(); }), 3021);
  EXPECT_EQ(all.RecordCount(), 0);
  EXPECT_TRUE(all.atEnd());
  basic.Execute("Delete From Client Where Code = 3");
  rs.Edit();
  rs.set("Name", "x");
  EXPECT_EQ(failureOf([&] { rs.Update(); }), 3167);
}

TEST_F(Recordsets, OfAJoinEachTableGetsItsOwnFields) {
  year.Execute("Insert Into Sale(ClientCode, SaleNum) Values(2, 7)");
  year.Execute("Insert Into Sale(ClientCode, SaleNum) Values(9, 1)");
  jet::Recordset rs = year.OpenRecordset(
      "Select Sale.SaleNum, Client.Name, Sale.SaleNum + 1 As More From Sale Left Join Client On "
      "Sale.ClientCode = Client.Code Order By SaleID",
      jet::RecordsetType::Dynaset);
  rs.Edit();
  rs.set("SaleNum", 8);
  rs.set("Name", "bb");
  EXPECT_EQ(failureOf([&] { rs.set("More", 1); }), 3164);
  rs.Update();
  EXPECT_EQ(rows(year, "Select SaleNum From Sale Order By SaleID"), "8 1");
  EXPECT_EQ(rows(basic, "Select Name From Client Where Code = 2"), "bb");
  rs.MoveNext();
  rs.Edit();
  rs.set("Name", "nobody");
  EXPECT_EQ(failureOf([&] { rs.Update(); }), 3164);
  rs.AddNew();
  rs.set("SaleNum", 3);
  rs.set("Name", "new");
  EXPECT_EQ(failureOf([&] { rs.Update(); }), 3219) << "one table at a time";
  rs.CancelUpdate();
  rs.AddNew();
  rs.set("Name", "new");
  rs.Update();
  EXPECT_EQ(rows(basic, "Select Name From Client Where Code > 3"), "new");
  jet::Recordset turned = year.OpenRecordset(
      "Select Client.Name, Sale.SaleNum From Client Left Join Sale On Sale.ClientCode = Client.Code Where "
      "Client.Code = 1",
      jet::RecordsetType::Dynaset);
  turned.Delete();
  EXPECT_EQ(rows(basic, "Select Name From Client Order By Code"), "bb c new") << "the first table's row";
  jet::Recordset right = year.OpenRecordset(
      "Select Sale.SaleNum, Client.Name From Sale Right Join Client On Sale.ClientCode = Client.Code Where "
      "Client.Code = 3",
      jet::RecordsetType::Dynaset);
  EXPECT_EQ(failureOf([&] { right.Delete(); }), 3164) << "it has none";
}

TEST_F(Recordsets, WhatIsNoTablesRowIsReadOnly) {
  jet::Recordset snapshot = basic.OpenRecordset("Select * From Client");
  EXPECT_EQ(failureOf([&] { snapshot.Edit(); }), 3027);
  for (const QString sql : {"Select Count(*) From Client", "Select Distinct Name From Client"}) {
    jet::Recordset rs = dynaset(sql);
    EXPECT_EQ(failureOf([&] { rs.Edit(); }), 3027) << sql.toStdString();
    EXPECT_EQ(failureOf([&] { rs.AddNew(); }), 3027) << sql.toStdString();
  }
  jet::Recordset rs = dynaset("Select * From Client");
  basic.Close();
  EXPECT_EQ(rs["Name"].toText(), "a");  // the rows outlive the handle
  EXPECT_EQ(failureOf([&] { rs.Edit(); }), 3420);
}

// ---- the packed rows

TEST(RowStore, AColumnWidensWithoutLosingAValue) {
  const qint64 narrow = 2147483647, exact = 9007199254740992;
  const std::vector<jet::Value> plain{{}, 1, qint64(5000000000), {}, 2.5, "글", 7, "", -1};
  for (const std::vector<jet::Value>& values : {plain,
                                                {1, 2.5},
                                                {1, "x", {}},
                                                {{}, 0.5, 1},
                                                {2.5, narrow, exact, exact + 1},
                                                {narrow, narrow + 1, -narrow - 1, -narrow - 2, 0.5},
                                                {exact + 1, 0.5},
                                                {exact, 0.5, -exact},
                                                {"글", "글", {}, 1, 2.5},
                                                {{}, {}, 2.5, "x"},
                                                {0.5, {}, "x"},
                                                {narrow + 1, {}, "x"}}) {
    jet::RowStore store(1);
    for (size_t count = 1; count <= values.size(); ++count) {
      store.appendRow({values[count - 1]});
      for (size_t row = 0; row < count; ++row) {
        EXPECT_EQ(store.at(int(row), 0).isNull(), values[row].isNull());
        EXPECT_EQ(store.at(int(row), 0).toText(), values[row].toText());
      }
    }
  }
  jet::RowStore store(1);
  for (const jet::Value& value : plain) store.appendRow({value});
  store.stopFilling();
  store.set(1, 0, "neu");
  store.set(2, 0, {});
  EXPECT_EQ(store.at(1, 0).toText(), "neu");
  EXPECT_TRUE(store.at(2, 0).isNull());
  EXPECT_EQ(store.at(5, 0).toText(), "글");
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
  EXPECT_EQ(store.at(kRows - 1, 12).toText().left(7), "경기도 성남시");
}

}  // namespace
}  // namespace jet_tests
