// What each statement of the dialect becomes, read from tests/jet/cases.txt, and what a compiled statement tells.
#include "store/jet/compile.h"

#include <QFile>

#include "store/jet/shape.h"
#include "tests/jet/sample_catalogue.h"

using namespace jet;
using namespace Qt::StringLiterals;

namespace {

tests::SampleCatalogue sampleCatalogue;

Compiled compiled(const QString& sql, Keys keys = Keys::None) {
  return compile(sql, sampleCatalogue, keys);
}

/** The error, or one of number 0. */
Error refusalOf(const QString& sql) {
  try {
    compiled(sql);
  } catch (const Error& error) {
    return error;
  }
  return {0, {}};
}

/** What a case's second field holds: the SQLite text, or "! number text" for a refusal. */
QString outcomeOf(const QString& sql) {
  const Error refused = refusalOf(sql);
  return refused.number() ? u"! %1 %2"_s.arg(refused.number()).arg(refused.description())
                          : QString::fromUtf8(compiled(sql).sql);
}

QString columnsOf(const QString& sql) {
  QStringList names;
  for (const ResultColumn& column : compiled(sql).columns)
    names << column.name + u':' + QString::number(int(column.type)) + u':' + column.table + u'.' +
                 column.column;
  return names.join(u' ');
}

TEST(Compile, Cases) {
  QFile file(HAEON_TEST_DATA "/jet/cases.txt");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  int count = 0;
  for (int number = 1; !file.atEnd(); ++number) {
    const QString line = QString::fromUtf8(file.readLine()).trimmed();
    if (line.isEmpty() || line.startsWith(u'#')) continue;
    const QStringList parts = line.split(u'\t');
    ASSERT_GE(parts.size(), 2) << "line " << number;
    EXPECT_EQ(outcomeOf(parts[0]).toStdString(), parts[1].toStdString())
        << "line " << number << ": " << parts[0].toStdString();
    ++count;
  }
  EXPECT_GT(count, 100);
}

TEST(Compile, ColumnsKeepNameTypeAndSource) {
  EXPECT_EQ(columnsOf("Select name, [Code] As c, Memo, VolumeYesNo From client"),
            "name:10:Client.Name c:4:Client.Code Memo:12:Client.Memo VolumeYesNo:1:Client.VolumeYesNo");
  // Without AS a calculated column is numbered by its place; an aggregate keeps the type of what it takes.
  EXPECT_EQ(
      columnsOf(
          "Select Code, Code / 2, Max(Name), Sum(GasInit), Code > 1, Count(*) From Client Group By Code"),
      "Code:4:Client.Code Expr1001:7:. Expr1002:10:. Expr1003:4:. Expr1004:1:. Expr1005:4:.");
  // Both tables' columns, in the order the tables are written, a right join included.
  const std::vector<ResultColumn> both =
      compiled("Select * From User Right Join LPG On User.Tel = LPG.Size").columns;
  ASSERT_EQ(both.size(), 11u);
  EXPECT_EQ(both.front().name, "Company");
  EXPECT_EQ(both.back().name, "CANEmpty");
  EXPECT_EQ(columnsOf("Select t.n From (Select Name As n From Client) As t"), "n:10:.");
}

TEST(Compile, KeysStandBehindTheColumnsOfPlainRows) {
  const Compiled join = compiled(
      "Select Sale.SaleNum From Sale Right Join Client On Sale.ClientCode = Client.Code", Keys::With);
  ASSERT_EQ(join.keys.size(), 2u);
  EXPECT_EQ(join.keys[0].name, "Sale");
  EXPECT_EQ(join.keys[1].schema, "b");
  EXPECT_TRUE(join.sql.startsWith("SELECT \"Sale\".\"SaleNum\", \"Sale\".rowid, \"Client\".rowid FROM"))
      << join.sql.data();
  const Compiled top = compiled("Select Top 2 Name From Client Order By Tel", Keys::With);
  EXPECT_TRUE(top.sql.startsWith("SELECT \"Client\".\"Name\", \"Client\".rowid, \"Client\".\"Tel\""))
      << top.sql.data();
  EXPECT_EQ(top.top, 2);
  EXPECT_EQ(top.ties, std::vector<int>({2})) << "the column behind the key";
  for (const QString sql : {"Select Distinct Name From Client", "Select Max(Code) From Client",
                            "Select Name From Client Union Select Company From User"})
    EXPECT_TRUE(compiled(sql, Keys::With).keys.empty()) << sql.toStdString();
  // A query within the statement is asked for no keys.
  const Compiled inner =
      compiled("Select Name From Client Where Code In (Select Top 1 ClientCode From Sale Order By SaleNum)",
               Keys::With);
  EXPECT_TRUE(inner.sql.contains("IN (SELECT \"c1\" FROM")) << inner.sql.data();
}

TEST(Compile, TargetAndDefinition) {
  const Compiled update = compiled("Update client Set Tel = '1'");
  EXPECT_EQ(update.kind, Compiled::Kind::Update);
  EXPECT_EQ(update.target.schema + u'.' + update.target.name, "b.Client");

  const Compiled create = compiled(
      "Create Table Post (ID Counter Primary Key, Zip Text(60) Not Null, Note Memo, Big Double, Flag YesNo, "
      "Constraint ByZip Unique (Zip, Big))");
  EXPECT_EQ(create.kind, Compiled::Kind::CreateTable);
  EXPECT_TRUE(create.sql.isEmpty());
  const TableDef& table = create.definition;
  ASSERT_EQ(table.fields.size(), 5u);
  EXPECT_TRUE(table.fields[0].autonumber);
  EXPECT_EQ(table.fields[1].size, 60);
  EXPECT_TRUE(table.fields[1].required);
  EXPECT_EQ(table.fields[4].type, Type::Boolean);
  ASSERT_EQ(table.indexes.size(), 2u);
  EXPECT_TRUE(table.indexes[0].primary);
  EXPECT_EQ(table.indexes[1].fields, QStringList({"Zip", "Big"}));
  EXPECT_FALSE(table.indexes[1].primary);

  const Compiled add = compiled("ALTER TABLE client ADD COLUMN HPhone Text(14)");
  EXPECT_EQ(add.kind, Compiled::Kind::AddColumn);
  EXPECT_EQ(add.definition.fields.front().size, 14);
  EXPECT_EQ(compiled("Alter Table client Alter Column Tel Text(30)").kind, Compiled::Kind::AlterColumn);
  EXPECT_EQ(compiled("drop table sale").kind, Compiled::Kind::DropTable);
  const Compiled index = compiled("Create Unique Index i On Client (Tel, Name Desc) With Primary");
  EXPECT_TRUE(index.definition.indexes.front().primary);
  EXPECT_EQ(compiled("Drop Index i On Client").definition.name, "Client");
  EXPECT_EQ(refusalOf("Create Table client (a Text)").number(), 3010);
  EXPECT_EQ(refusalOf("drop table Nowhere").number(), 3376);
  EXPECT_EQ(refusalOf("Alter Table Client Add Column tel Text(3)").number(), 3380);
  EXPECT_EQ(refusalOf("Create Table t (a Nonsense)").number(), 3075);
}

TEST(Compile, ErrorsTellThePlace) {
  EXPECT_TRUE(refusalOf("Select Name From Client Where Name = 'O'Brien'").description().contains("46번째"));
  EXPECT_TRUE(
      refusalOf("Select Name From Client Orderly By Name").description().contains("33번째 글자 'By Name'"));
  EXPECT_TRUE(refusalOf("Select Name From").description().contains("문장의 끝"));
  EXPECT_TRUE(refusalOf("Select Nope From Client").description().contains("Nope"));
}

TEST(Compile, TooComplexIsRefusedNotACrash) {
  EXPECT_EQ(refusalOf("Select " + QString(10000, u'(')).number(), 3360);
  EXPECT_EQ(refusalOf(u"Select "_s + u"- "_s.repeated(10000) + u'1').number(), 3360);
  EXPECT_EQ(refusalOf("Select 1 From " + QString(10000, u'(')).number(), 3360);
  EXPECT_EQ(
      refusalOf(u"Select Code From Client Where Code = 1"_s + u" Or Code = 1"_s.repeated(10000)).number(),
      3360);
  const auto listOf = [](int count, const char* each, const char* between) {
    return QStringList(QList<QString>(count, QString::fromLatin1(each))).join(QString::fromLatin1(between));
  };
  for (const int over : {0, 1}) {
    const auto refused = [&](int number) { return over ? number : 0; };
    EXPECT_EQ(refusalOf(u"Select '"_s + QString(63991 + over, u'x') + u'\'').number(), refused(3360));
    EXPECT_EQ(refusalOf("Select " + listOf(255 + over, "Code", ", ") + " From Client").number(),
              refused(3190));
    EXPECT_EQ(refusalOf("Select Max(Code) From Client Group By " + listOf(255 + over, "Code", ", ")).number(),
              refused(3360));
    EXPECT_EQ(refusalOf("Select Code From Client Order By " + listOf(255 + over, "Code", ", ")).number(),
              refused(3360));
    EXPECT_EQ(refusalOf(listOf(51 + over, "Select Code From Client", " Union ")).number(), refused(3360));
    QStringList tables;
    for (int at = 0; at < 32 + over; ++at) tables << u"LPG As t%1"_s.arg(at);
    EXPECT_EQ(refusalOf("Select 1 From " + tables.join(", ")).number(), refused(3360));
    EXPECT_EQ(refusalOf("Select " + listOf(901 + over, "1", " + ")).number(), refused(3360));
    EXPECT_EQ(refusalOf("Select " + QString(23 + over, u'(') + '1' + QString(23 + over, u')')).number(),
              refused(3360));
    EXPECT_EQ(refusalOf("Select " + listOf(23 + over, "-", " ") + " 1").number(), refused(3360));
    EXPECT_EQ(refusalOf("Select " + listOf(23 + over, "Not", " ") + " 1").number(), refused(3360));
  }
  // A long chain keeps one pair of brackets: SQLite takes less than a hundred.
  const QByteArray chain =
      compiled(u"Select Code From Client Where Code = 1"_s + u" Or Code = 1"_s.repeated(300)).sql;
  EXPECT_FALSE(chain.contains("((("));
}

TEST(Shape, LiteralsLeaveTheKeyAndKeepTheirTypes) {
  const Shape one = shapeOf(u"Select * From Client Where Code = 5 And Name = 'a''b' And Rate < 1.5");
  const Shape two = shapeOf(u"Select * From Client Where Code = 77 And Name = '' And Rate < .25");
  EXPECT_EQ(one.key(), two.key());
  ASSERT_EQ(one.literals.size(), 3);
  EXPECT_EQ(one.literals[0].value(), Value(5));
  EXPECT_EQ(one.literals[1].value(), Value("a'b"));
  EXPECT_EQ(one.literals[2].value(), Value(1.5));
  EXPECT_EQ(shapeOf(u"Select #3/9/2024#, \"x\"").literals[0].value(), Value("2024-03-09"));
  EXPECT_EQ(shapeOf(u"x = 99999999999999999999").literals[0].value(), Value(1e20));

  EXPECT_NE(shapeOf(u"x = 5").key(), shapeOf(u"x = '5'").key());
  EXPECT_NE(shapeOf(u"x = 5").key(), shapeOf(u"x = 5.0").key());
  EXPECT_THROW(shapeOf(u"x = 'open"), Error);
}

TEST(Shape, NumbersThatDecideTheFormStayInTheKey) {
  EXPECT_NE(shapeOf(u"Select Top 8 a From b").key(), shapeOf(u"Select Top 9 a From b").key());
  EXPECT_NE(shapeOf(u"Select a, c From b Order By 1").key(), shapeOf(u"Select a, c From b Order By 2").key());
  EXPECT_NE(shapeOf(u"Alter Table t Add c Text(3)").key(), shapeOf(u"Alter Table t Add c Text(4)").key());
  // Behind an inner ORDER BY numbers are data again.
  EXPECT_EQ(shapeOf(u"Select a From (Select b From c Order By 1) As t Where a = 1").key(),
            shapeOf(u"Select a From (Select b From c Order By 1) As t Where a = 2").key());
  // The parameters of the text count the same literals.
  const QString sql = "Select Top 2 Code From Client Where Code > 7 Order By Code + 1, 1";
  ASSERT_EQ(shapeOf(sql).literals.size(), 1);
  EXPECT_TRUE(compiled(sql).sql.contains("(\"Client\".\"Code\" > ?1)"));
  EXPECT_FALSE(compiled(sql).sql.contains("?2"));
}

}  // namespace
