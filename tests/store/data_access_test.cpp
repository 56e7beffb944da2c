#include "store/data_access.h"

#include <sqlite3.h>

#include "tests/jet/engine_fixture.h"
#include "tests/support.h"

namespace jet_tests {
namespace {

class DataAccess : public Engine {
 protected:
  tests::ScriptedPrompts prompts;
};

TEST_F(DataAccess, OpenDBSwallowsEveryFailure) {
  jet::Database db;
  EXPECT_TRUE(OpenDB(workspace, db, path("Basic.mdb")));
  EXPECT_FALSE(OpenDB(workspace, db, path("none.mdb")));
  EXPECT_FALSE(db.isOpen());
  EXPECT_FALSE(OpenDB(jet::Workspace(), db, path("Basic.mdb")));
  CloseDB(db);
}

TEST_F(DataAccess, AFailedQueryIsToldWithItsStatement) {
  jet::Recordset rs;
  EXPECT_TRUE(OpenSnapshot(prompts, basic, rs, "Select * From Client"));
  prompts.expect("\rSelect * From Nothing");
  EXPECT_FALSE(OpenSnapshot(prompts, basic, rs, "Select * From Nothing"));
  EXPECT_FALSE(rs.isOpen());
  EXPECT_TRUE(prompts.seen.last().startsWith("ERROR|"));
  prompts.expect("MDB 오류");
  EXPECT_FALSE(OpenDynaset(prompts, jet::Database(), rs, "Select 1"));
  EXPECT_EQ(prompts.seen.last(), "MDB 오류|Data Base MDB가 선언되지 않았습니다.\rSelect 1");
  year.createTable(link("Broken", path("Basic.mdb"), "Nothing"));
  prompts.expect("Query");
  EXPECT_FALSE(OpenSnapshot(prompts, year, rs, "Select * From Broken"));
  EXPECT_EQ(prompts.seen.last(), "Query|Jet Data Base Engine의 식을 확인하세요.\rSelect * From Broken");
  prompts.expect("O'Neil");
  EXPECT_FALSE(OpenSnapshot(prompts, basic, rs, "Select * From Client Where Name = 'O'Neil'"));
  CloseDB(rs);
  CloseDB(rs);
}

TEST_F(DataAccess, ALockedTableIsToldInItsOwnWords) {
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(path("Basic.mdb").toUtf8().constData(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  jet::Recordset rs;
  prompts.expect("잠겨 있습니다");
  EXPECT_FALSE(OpenSnapshot(prompts, basic, rs, "Select * From Client"));
  sqlite3_close(other);
  EXPECT_TRUE(prompts.seen.last().startsWith("MDB 오류|"));
}

TEST_F(DataAccess, GetValueGivesTheFirstFieldOrNull) {
  basic.Execute("Insert Into Client(Name) Values('a')");
  EXPECT_EQ(DAO_GetValue(prompts, basic, u"Name", u"Client", u"Where Code = 1").toText(), "a");
  EXPECT_TRUE(DAO_GetValue(prompts, basic, u"Name", u"Client", u"Where Code = 2").isNull());
  EXPECT_TRUE(DAO_GetValue(prompts, basic, u"Rate", u"Client", {}).isNull());
  prompts.expect("SELECT Nothing FROM Client ");
  EXPECT_TRUE(DAO_GetValue(prompts, basic, u"Nothing", u"Client", {}).isNull());
}

TEST_F(DataAccess, AddFieldRunsItsStatementOnceOnly) {
  basic.Execute("Insert Into Client(Name) Values('a')");
  const auto add = [&](const QString& field) {
    return DAO_AddField(prompts, basic, "client", field, jet::Type::Text, 14, true,
                        "Update client set Tel1 = Tel1 & 'x'", jet::Value(""));
  };
  EXPECT_TRUE(add("Tel1"));
  EXPECT_FALSE(add("TEL1"));
  EXPECT_EQ(rows(basic, "Select Tel1 From Client"), "x");
  EXPECT_EQ(basic.tableDef("Client").fields.back().size, 14);
  basic.Execute("Insert Into Client(Name) Values('b')");
  EXPECT_EQ(rows(basic, "Select Tel1 Is Null From Client Where Code = 2"), "0");
  EXPECT_TRUE(DAO_AddField(prompts, basic, "Client", "First", jet::Type::Long, 0, false, {}, {}, 0));
  EXPECT_EQ(basic.tableDef("Client").fields.front().name, "First");
  const auto made = [&](const QString& name, jet::Type type, bool empty,
                        const std::optional<jet::Value>& standard) {
    EXPECT_TRUE(DAO_AddField(prompts, basic, "Client", name, type, -1, empty, {}, standard, -1, true));
    const jet::Field field = basic.tableDef("Client").fields.back();
    return field.name + u" %1 %2 %3"_s.arg(field.size).arg(field.allowZeroLength).arg(field.required) +
           field.defaultValue.toText();
  };
  EXPECT_EQ(made("T", jet::Type::Text, true, {}), "T 0 1 0");
  const jet::Value null = DAO_GetValue(prompts, basic, u"Rate", u"Client", {});
  EXPECT_EQ(made("U", jet::Type::Text, false, null), "U 0 0 0");
  EXPECT_EQ(made("V", jet::Type::Long, true, jet::Value(7)), "V 0 0 17")
      << "requires what it knows a value for";
  prompts.expect("[TABLE]: Nothing,    [FIELD]: x");
  EXPECT_FALSE(DAO_AddField(prompts, basic, "Nothing", "x", jet::Type::Long, 0, false));
  EXPECT_TRUE(prompts.seen.last().contains(") in procedure DAO_AddField of Module mdlCommonRW"));
}

TEST_F(DataAccess, ExistTableLooksWithoutCase) {
  EXPECT_TRUE(DAO_ExistTable(prompts, year, "SALE"));
  EXPECT_TRUE(DAO_ExistTable(prompts, year, "client"));
  EXPECT_FALSE(DAO_ExistTable(prompts, year, "Buy"));
  prompts.expect(") in procedure DAO_ExistTable of Module mdlCommonRW");
  EXPECT_FALSE(DAO_ExistTable(prompts, jet::Database(), "Sale"));
}

}  // namespace
}  // namespace jet_tests
