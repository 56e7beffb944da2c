// What is joined into a statement stays in its place, or the statement does not run.
#include "store/jet/plain.h"

#include "store/jet/sql.h"
#include "tests/jet/engine_fixture.h"

namespace jet_tests {
namespace {

class Plain : public Engine {
 protected:
  void SetUp() override {
    Engine::SetUp();
    for (const QString name : {"가", "나"})
      basic.Execute(u"Insert Into Client(Name) Values('%1')"_s.arg(name));
  }
  /** The failure's whole text; '' when the statement ran. */
  QString told(const QString& sql) const {
    try {
      sql.startsWith(u"Select") ? void(basic.OpenRecordset(sql)) : void(basic.Execute(sql));
    } catch (const jet::Error& error) {
      EXPECT_EQ(error.number(), 3075) << error.description().toStdString();
      return error.description();
    }
    return {};
  }
};

TEST_F(Plain, ATextWithAnApostropheNeverRunsWhateverItSays) {
  for (const QString text :
       {"O'Neil", "x' Or '1'='1", "'", "''", "x'';", "' Or Name Like '*", "a' And [b", "x', GasInit = '9",
        "'; Delete * From Client Where '1'='1", "a' & 'b", "x' Or \"a'\"='a"})
    for (const QString& sql :
         {"Select * From Client Where Name = '" + jet::plainText(text) + "'",
          "Select * From Client Where Name Like '*" + jet::plainText(text) + "*' And Code = 1",
          "Delete * From Client Where Name = '" + jet::plainText(text) + "'",
          "Update Client Set Name = '" + jet::plainText(text) + "' Where Code = 1",
          "Insert Into Client(Name, Ho) Values('" + jet::plainText(text) + "', '" + jet::plainText(text) +
              "')",
          QStringView(jet::Sql() << u"Update Client Set GasInit = 9 Where Name = '" << jet::plainText(text)
                                 << u"'")
              .toString()}) {
      const QString asTyped = jet::shownSql(sql);
      EXPECT_TRUE(asTyped.contains(text));
      EXPECT_TRUE(told(sql).endsWith(u'\r' + asTyped)) << asTyped.toStdString();
    }
  EXPECT_EQ(rows(basic, "Select Name, GasInit From Client Order By Code"), "가|0 나|0");
  EXPECT_TRUE(told("Delete * From Client Where Name = '" + jet::plainText("O'Neil") + "'")
                  .contains("작은따옴표가 있습니다 (37번째 글자 ''Neil'')"));
}

TEST_F(Plain, EveryOtherTextIsStoredAsItIs) {
  for (const QString text : {"a\"b", "[a]", "a;--", "#1#", "`", "%*?", "’", "\\", ""}) {
    EXPECT_EQ(told("Update Client Set Ho = '" + jet::plainText(text) + "' Where Code = 1"), "");
    EXPECT_EQ(basic.OpenRecordset("Select Ho From Client Where Code = 1")[0].toText(), text);
  }
  basic.Execute("Update Client Set Ho = '" + jet::copiedText("x' Or '1'='1") + "' Where Code = 1");
  EXPECT_EQ(rows(basic, "Select Ho From Client Order By Code"), "x' Or '1'='1 -");
}

TEST_F(Plain, ABareNumberIsOneNumber) {
  for (const QString number : {"2", "-1", "+2.50", ".5", "5.", "1E+15", "1.5E-05"})
    EXPECT_EQ(told("Select * From Client Where Code = " + jet::plainNumber(number)), "");
  for (const QString other : {"", " ", "0 Or 1=1", "1;", "1,2", "Code", ".", "-", "1E", "1E+", "1.2.3", "--1",
                              "２", "(1)", "1-1", "#1#", "0x1"})
    EXPECT_TRUE(
        told("Delete * From Client Where Code >= " + jet::plainNumber(other)).contains("숫자가 아닙니다"))
        << other.toStdString();
  EXPECT_EQ(rows(basic, "Select Count(*) From Client"), "2");
}

TEST_F(Plain, APathStaysBetweenItsBrackets) {
  const QString from = "Select Count(*) From [";
  EXPECT_EQ(told(from + jet::plainPath(path("Basic.mdb")) + "].Client"), "");
  EXPECT_TRUE(
      told(from + jet::plainPath(path("Basic.mdb].Client, [Basic.mdb")) + "].Client").contains("경로"));
}

}  // namespace
}  // namespace jet_tests
