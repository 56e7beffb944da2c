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
    for (const auto& name : {u"가"_s, u"나"_s})
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
  for (const QString& text :
       {u"O'Neil"_s, u"x' Or '1'='1"_s, u"'"_s, u"''"_s, u"x'';"_s, u"' Or Name Like '*"_s, u"a' And [b"_s,
        u"x', GasInit = '9"_s, u"'; Delete * From Client Where '1'='1"_s, u"a' & 'b"_s, u"x' Or \"a'\"='a"_s})
    for (const QString& sql :
         {u"Select * From Client Where Name = '"_s + jet::plainText(text) + u"'"_s,
          u"Select * From Client Where Name Like '*"_s + jet::plainText(text) + u"*' And Code = 1"_s,
          u"Delete * From Client Where Name = '"_s + jet::plainText(text) + u"'"_s,
          u"Update Client Set Name = '"_s + jet::plainText(text) + u"' Where Code = 1"_s,
          u"Insert Into Client(Name, Ho) Values('"_s + jet::plainText(text) + u"', '"_s +
              jet::plainText(text) + u"')"_s,
          QStringView(jet::Sql() << u"Update Client Set GasInit = 9 Where Name = '" << jet::plainText(text)
                                 << u"'")
              .toString()}) {
      const QString asTyped = jet::shownSql(sql);
      EXPECT_TRUE(asTyped.contains(text));
      EXPECT_TRUE(told(sql).endsWith(u'\r' + asTyped)) << asTyped.toStdString();
    }
  EXPECT_EQ(rows(basic, u"Select Name, GasInit From Client Order By Code"_s), "가|0 나|0");
  EXPECT_TRUE(told(u"Delete * From Client Where Name = '"_s + jet::plainText(u"O'Neil"_s) + u"'"_s)
                  .contains(u"작은따옴표가 있습니다 (37번째 글자 ''Neil'')"_s));
}

TEST_F(Plain, EveryOtherTextIsStoredAsItIs) {
  for (const QString& text :
       {u"a\"b"_s, u"[a]"_s, u"a;--"_s, u"#1#"_s, u"`"_s, u"%*?"_s, u"’"_s, u"\\"_s, u""_s}) {
    EXPECT_EQ(told(u"Update Client Set Ho = '"_s + jet::plainText(text) + u"' Where Code = 1"_s), u""_s);
    EXPECT_EQ(basic.OpenRecordset(u"Select Ho From Client Where Code = 1"_s)[0].toText(), text);
  }
  basic.Execute(u"Update Client Set Ho = '"_s + jet::copiedText(u"x' Or '1'='1"_s) + u"' Where Code = 1"_s);
  EXPECT_EQ(rows(basic, u"Select Ho From Client Order By Code"_s), "x' Or '1'='1 -");
}

TEST_F(Plain, ABareNumberIsOneNumber) {
  for (const QString& number : {u"2"_s, u"-1"_s, u"+2.50"_s, u".5"_s, u"5."_s, u"1E+15"_s, u"1.5E-05"_s})
    EXPECT_EQ(told(u"Select * From Client Where Code = "_s + jet::plainNumber(number)), u""_s);
  for (const QString& other :
       {u""_s, u" "_s, u"0 Or 1=1"_s, u"1;"_s, u"1,2"_s, u"Code"_s, u"."_s, u"-"_s, u"1E"_s, u"1E+"_s,
        u"1.2.3"_s, u"--1"_s, u"２"_s, u"(1)"_s, u"1-1"_s, u"#1#"_s, u"0x1"_s})
    EXPECT_TRUE(told(u"Delete * From Client Where Code >= "_s + jet::plainNumber(other)).contains(u"숫자"_s))
        << other.toStdString();
  EXPECT_EQ(rows(basic, u"Select Count(*) From Client"_s), "2");
}

TEST_F(Plain, APathStaysBetweenItsBrackets) {
  const QString from = u"Select Count(*) From ["_s;
  EXPECT_EQ(told(from + jet::plainPath(path(u"Basic.mdb"_s)) + u"].Client"_s), u""_s);
  EXPECT_TRUE(told(from + jet::plainPath(path(u"Basic.mdb].Client, [Basic.mdb"_s)) + u"].Client"_s)
                  .contains(u"경로"_s));
}

}  // namespace
}  // namespace jet_tests
