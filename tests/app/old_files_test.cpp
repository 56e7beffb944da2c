// One fixture an upgrade step: books of today that lack exactly what the step adds. A start brings them up to date, a
// second one changes nothing.
#include "app/start_up.h"
#include "store/year_file.h"
#include "tests/store/old_books.h"

namespace {

using namespace tests;
using namespace Qt::StringLiterals;

struct OldStep {
  const char* name;
  schema::File kind;
  const char* table;
  QStringList missing;  ///< columns; none: the whole table
  friend void PrintTo(const OldStep& of, std::ostream* out) { *out << of.name; }
};

const OldStep oldSteps[] = {
    {"LateCharge", schema::File::Basic, "APT", {u"delaypay"_s}},
    {"PaidLate", schema::File::Year, "Evaporation", {u"paydelayed"_s}},
    {"DealMarks", schema::File::Year, "Sale", {u"DealList"_s, u"SaleList"_s}},
    {"TaxFields", schema::File::Basic, "Client", {u"Serial"_s, u"Status"_s, u"Item"_s, u"Uname"_s}},
    {"Telephones", schema::File::Basic, "Client", {u"Tel1"_s, u"Tel2"_s}},
    {"Options", schema::File::Basic, "Options", {}},
};

struct OldBooks : testing::Test {
  TestPc here;
  Session& session = here.session;

  bool start() {
    StartUp startUp(session);
    const bool started = startUp.SubMain([&] { startUp.load(); });
    startUp.shutDown();
    return started;
  }
  QString fileOf(schema::File kind) {
    return kind == schema::File::Basic ? session.DbPath + u"Basic.mdb"_s
                                       : yearFile(session, session.WorkYear);
  }
  /** The table as it was before the step; its rows are one customer or one line. */
  void age(const OldStep& step) {
    const jet::Workspace workspace = openWorkspace(session, session.DbPath);
    const jet::Database file = workspace.OpenDatabase(fileOf(step.kind));
    const QString name = QString::fromLatin1(step.table);
    file.deleteTable(name);
    if (step.missing.isEmpty()) return;
    jet::TableDef old = without(schema::table(step.kind, name), step.missing);
    std::erase_if(old.indexes,
                  [&](const jet::Index& index) { return step.missing.contains(index.fields.first()); });
    file.createTable(old);
    if (name == u"Client") file.Execute(u"Insert Into Client(Code, Name) Values(1, '김가네')"_s);
    if (name == u"Sale") file.Execute(u"Insert Into Sale(SaleDate, ClientCode) Values('2026-03-02', 1)"_s);
  }
  QString dumps() {
    const jet::Workspace workspace = openWorkspace(session, session.DbPath);
    QString all;
    for (const QString& name : here.pc.paths.list(session.DbPath, u"*.mdb"_s))
      all += name + u'\n' + dumpOf(workspace.OpenDatabase(session.DbPath + name));
    return all;
  }
};
struct OldFiles : OldBooks, testing::WithParamInterface<OldStep> {};

TEST_P(OldFiles, AreBroughtUpToDateOnce) {
  here.pc.clock.set(QDateTime(QDate(2026, 3, 2), QTime(9, 0)));
  ASSERT_TRUE(start());
  {
    const jet::Workspace workspace = openWorkspace(session, session.DbPath);
    workspace.OpenDatabase(session.DbPath + u"Basic.mdb"_s)
        .Execute(u"Insert Into Client(Code, Name) Values(1, '김가네')"_s);
  }
  const OldStep& step = GetParam();
  age(step);
  ASSERT_TRUE(start());
  {
    const jet::Workspace workspace = openWorkspace(session, session.DbPath);
    const jet::Database file = workspace.OpenDatabase(fileOf(step.kind));
    for (const jet::Field& field : schema::table(step.kind, QString::fromLatin1(step.table)).fields)
      EXPECT_TRUE(hasField(file, QString::fromLatin1(step.table), field.name)) << field.name.toStdString();
    EXPECT_EQ(
        firstOf(workspace.OpenDatabase(yearFile(session, session.WorkYear)), u"Select Name From Client"_s),
        "김가네");
  }
  const QString once = dumps();
  ASSERT_TRUE(start());
  EXPECT_EQ(dumps(), once);
}

TEST_F(OldBooks, TheTaxFileTakesTheNumberAfter999AndFractions) {
  here.pc.clock.set(QDateTime(QDate(2026, 3, 2), QTime(9, 0)));
  ASSERT_TRUE(start());
  {
    const jet::Workspace workspace = openWorkspace(session, session.DbPath);
    const jet::Database tax = workspace.OpenDatabase(session.DbPath + u"dbTax.mdb"_s);
    for (jet::TableDef old : schema::tablesOf(schema::File::Tax)) {
      tax.deleteTable(old.name);
      for (jet::Field& field : old.fields) {
        if (field.name == u"Serial" || field.name == u"TaxCode") field.size = 7;
        if (field.name == u"Quantity" || field.name.endsWith(u"Kum")) field.type = jet::Type::Long;
      }
      std::erase_if(old.fields, [](const jet::Field& field) {
        return field.name == u"Code" || field.name == u"Station";
      });
      tax.createTable(old);
    }
    tax.Execute(u"Insert Into TaxAcount(Serial, List) Values('2603999', 'LPG 20')"_s);
    tax.Execute(u"Insert Into NewAcount(TaxCode, Quantity, UnitCost) Values('2603999', 7, 1.5)"_s);
  }
  ASSERT_TRUE(start());
  const QString once = dumps();
  ASSERT_TRUE(start());
  EXPECT_EQ(dumps(), once);
  const jet::Workspace workspace = openWorkspace(session, session.DbPath);
  const jet::Database tax = workspace.OpenDatabase(session.DbPath + u"dbTax.mdb"_s);
  EXPECT_EQ(firstOf(tax, u"Select List & Serial From TaxAcount"_s), "LPG 202603999");
  tax.Execute(u"Insert Into TaxAcount(Serial) Values('26031000')"_s);
  tax.Execute(
      u"INSERT INTO NewAcount VALUES ('26031000', '1', 'c', '0', 'p', 'n', 2.25, 4, 99999999999, 1, 10, '', "
      u"'', 0, "
      u"'000001', 's')"_s);
  EXPECT_EQ(firstOf(tax, u"Select TradeKum From NewAcount Where Station = 's'"_s), "99999999999");
  EXPECT_EQ(firstOf(tax, u"Select Sum(Quantity * UnitCost) From NewAcount"_s), "19.5");  // 7 x 1.5 + 2.25 x 4
  EXPECT_EQ(firstOf(tax, u"SELECT Serial FROM TaxAcount WHERE Serial LIKE '2603*' ORDER BY Serial Desc;"_s),
            "2603999");
}

INSTANTIATE_TEST_SUITE_P(Steps, OldFiles, testing::ValuesIn(oldSteps),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
