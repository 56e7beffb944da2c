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
  EXPECT_TRUE(OpenDB(workspace, db, path(u"Basic.mdb"_s)));
  EXPECT_FALSE(OpenDB(workspace, db, path(u"none.mdb"_s)));
  EXPECT_FALSE(db.isOpen());
  EXPECT_FALSE(OpenDB(jet::Workspace(), db, path(u"Basic.mdb"_s)));
  CloseDB(db);
}

TEST_F(DataAccess, AFailedQueryIsToldWithItsStatement) {
  jet::Recordset rs;
  EXPECT_TRUE(OpenSnapshot(prompts, basic, rs, u"Select * From Client"_s));
  prompts.expect(u"\rSelect * From Nothing"_s);
  EXPECT_FALSE(OpenSnapshot(prompts, basic, rs, u"Select * From Nothing"_s));
  EXPECT_FALSE(rs.isOpen());
  EXPECT_TRUE(prompts.seen.last().startsWith(u"ERROR|"_s));
  prompts.expect(u"MDB 오류"_s);
  EXPECT_FALSE(OpenDynaset(prompts, jet::Database(), rs, u"Select 1"_s));
  EXPECT_EQ(prompts.seen.last(), u"MDB 오류|Data Base MDB가 선언되지 않았습니다.\rSelect 1"_s);
  year.createTable(link(u"Broken"_s, path(u"Basic.mdb"_s), u"Nothing"_s));
  prompts.expect(u"Query"_s);
  EXPECT_FALSE(OpenSnapshot(prompts, year, rs, u"Select * From Broken"_s));
  EXPECT_EQ(prompts.seen.last(), u"Query|Jet Data Base Engine의 식을 확인하세요.\rSelect * From Broken"_s);
  prompts.expect(u"O'Neil"_s);
  EXPECT_FALSE(OpenSnapshot(prompts, basic, rs, u"Select * From Client Where Name = 'O'Neil'"_s));
  CloseDB(rs);
  CloseDB(rs);
}

TEST_F(DataAccess, ALockedTableIsToldInItsOwnWords) {
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(path(u"Basic.mdb"_s).toUtf8().constData(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  jet::Recordset rs;
  prompts.expect(u"잠겨 있습니다"_s);
  EXPECT_FALSE(OpenSnapshot(prompts, basic, rs, u"Select * From Client"_s));
  sqlite3_close(other);
  EXPECT_TRUE(prompts.seen.last().startsWith(u"MDB 오류|"_s));
}

TEST_F(DataAccess, GetValueGivesTheFirstFieldOrNull) {
  basic.Execute(u"Insert Into Client(Name) Values('a')"_s);
  EXPECT_EQ(DAO_GetValue(prompts, basic, u"Name", u"Client", u"Where Code = 1").toText(), u"a"_s);
  EXPECT_TRUE(DAO_GetValue(prompts, basic, u"Name", u"Client", u"Where Code = 2").isNull());
  EXPECT_TRUE(DAO_GetValue(prompts, basic, u"Rate", u"Client", {}).isNull());
  prompts.expect(u"SELECT Nothing FROM Client "_s);
  EXPECT_TRUE(DAO_GetValue(prompts, basic, u"Nothing", u"Client", {}).isNull());
}

TEST_F(DataAccess, AddFieldRunsItsStatementOnceOnly) {
  basic.Execute(u"Insert Into Client(Name) Values('a')"_s);
  const auto add = [&](const QString& field) {
    return DAO_AddField(prompts, basic, u"client"_s, field, jet::Type::Text, 14, true,
                        u"Update client set Tel1 = Tel1 & 'x'"_s, jet::Value(u""_s));
  };
  EXPECT_TRUE(add(u"Tel1"_s));
  EXPECT_FALSE(add(u"TEL1"_s));
  EXPECT_EQ(rows(basic, u"Select Tel1 From Client"_s), "x");
  EXPECT_EQ(basic.tableDef(u"Client"_s).fields.back().size, 14);
  basic.Execute(u"Insert Into Client(Name) Values('b')"_s);
  EXPECT_EQ(rows(basic, u"Select Tel1 Is Null From Client Where Code = 2"_s), "0");
  EXPECT_TRUE(DAO_AddField(prompts, basic, u"Client"_s, u"First"_s, jet::Type::Long, 0, false, {}, {}, 0));
  EXPECT_EQ(basic.tableDef(u"Client"_s).fields.front().name, u"First"_s);
  prompts.expect(u"[TABLE]: Nothing,    [FIELD]: x"_s);
  EXPECT_FALSE(DAO_AddField(prompts, basic, u"Nothing"_s, u"x"_s, jet::Type::Long, 0, false));
  EXPECT_TRUE(prompts.seen.last().contains(u") in procedure DAO_AddField of Module mdlCommonRW"_s));
}

TEST_F(DataAccess, ExistTableLooksWithoutCase) {
  EXPECT_TRUE(DAO_ExistTable(prompts, year, u"SALE"_s));
  EXPECT_TRUE(DAO_ExistTable(prompts, year, u"client"_s));
  EXPECT_FALSE(DAO_ExistTable(prompts, year, u"Buy"_s));
  prompts.expect(u") in procedure DAO_ExistTable of Module mdlCommonRW"_s);
  EXPECT_FALSE(DAO_ExistTable(prompts, jet::Database(), u"Sale"_s));
}

}  // namespace
}  // namespace jet_tests
