// One fixture an upgrade step: books of today that lack exactly what the step adds. A start brings them up to date, a
// second one changes nothing.
#include "app/start_up.h"
#include "store/year_file.h"
#include "tests/store/old_books.h"

namespace {

using namespace tests;

struct OldStep {
  const char* name;
  schema::File kind;
  const char* table;
  QStringList missing;  ///< columns; none: the whole table
  friend void PrintTo(const OldStep& of, std::ostream* out) { *out << of.name; }
};

const OldStep oldSteps[] = {
    {"LateCharge", schema::File::Basic, "APT", {"delaypay"}},
    {"PaidLate", schema::File::Year, "Evaporation", {"paydelayed"}},
    {"DealMarks", schema::File::Year, "Sale", {"DealList", "SaleList"}},
    {"TaxFields", schema::File::Basic, "Client", {"Serial", "Status", "Item", "Uname"}},
    {"Telephones", schema::File::Basic, "Client", {"Tel1", "Tel2"}},
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
  jet::Database fileOf(schema::File kind) {
    return openData(session, kind == schema::File::Basic ? "Basic.mdb" : yearFileName(session.WorkYear));
  }
  /** The table as it was before the step; its rows are one customer or one line. */
  void age(const OldStep& step) {
    const jet::Database file = fileOf(step.kind);
    const QString name = QString::fromLatin1(step.table);
    file.deleteTable(name);
    if (step.missing.isEmpty()) return;
    jet::TableDef old = without(schema::table(step.kind, name), step.missing);
    std::erase_if(old.indexes,
                  [&](const jet::Index& index) { return step.missing.contains(index.fields.first()); });
    file.createTable(old);
    if (name == u"Client") file.Execute("Insert Into Client(Code, Name) Values(1, '김가네')");
    if (name == u"Sale") file.Execute("Insert Into Sale(SaleDate, ClientCode) Values('2026-03-02', 1)");
  }
};

/** Columns with type and room, in whatever order. */
QString shapeOf(const jet::TableDef& table) {
  QStringList columns;
  for (const jet::Field& field : table.fields)
    columns << field.name + u' ' + QString::number(int(field.type)) + u' ' + QString::number(field.size);
  columns.sort();
  return columns.join(", ");
}

struct OldFiles : OldBooks, testing::WithParamInterface<OldStep> {};

TEST_P(OldFiles, AreBroughtUpToDateOnce) {
  here.pc.clock.set(QDateTime(QDate(2026, 3, 2), QTime(9, 0)));
  ASSERT_TRUE(start());
  fileOf(schema::File::Basic).Execute("Insert Into Client(Code, Name) Values(1, '김가네')");
  const OldStep& step = GetParam();
  age(step);
  ASSERT_TRUE(start());
  EXPECT_EQ(shapeOf(fileOf(step.kind).tableDef(step.table)), shapeOf(schema::table(step.kind, step.table)));
  EXPECT_EQ(firstOf(fileOf(schema::File::Year), "Select Name From Client"), "김가네");
  const QString once = dumpsOf(session);
  ASSERT_TRUE(start());
  EXPECT_EQ(dumpsOf(session), once);
}

TEST_F(OldBooks, TheTaxFileTakesTheNumberAfter999AndFractions) {
  here.pc.clock.set(QDateTime(QDate(2026, 3, 2), QTime(9, 0)));
  ASSERT_TRUE(start());
  {
    const jet::Database tax = openData(session, "dbTax.mdb");
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
    tax.Execute("Insert Into TaxAcount(Serial, List) Values('2603999', 'LPG 20')");
    tax.Execute("Insert Into NewAcount(TaxCode, Quantity, UnitCost) Values('2603999', 7, 1.5)");
  }
  ASSERT_TRUE(start());
  const QString once = dumpsOf(session);
  ASSERT_TRUE(start());
  EXPECT_EQ(dumpsOf(session), once);
  const jet::Database tax = openData(session, "dbTax.mdb");
  for (const jet::TableDef& wanted : schema::tablesOf(schema::File::Tax))
    EXPECT_EQ(shapeOf(tax.tableDef(wanted.name)), shapeOf(wanted));
  EXPECT_EQ(firstOf(tax, "Select List & Serial From TaxAcount"), "LPG 202603999");
  tax.Execute("Insert Into TaxAcount(Serial) Values('26031000')");
  tax.Execute(
      "INSERT INTO NewAcount VALUES ('26031000', '1', 'c', '0', 'p', 'n', 2.25, 4, 99999999999, 1, 10, '', "
      "'', 0, '000001', 's')");
  EXPECT_EQ(firstOf(tax, "Select TradeKum From NewAcount Where Station = 's'"), "99999999999");
  EXPECT_EQ(firstOf(tax, "Select Sum(Quantity * UnitCost) From NewAcount"), "19.5");  // 7 x 1.5 + 2.25 x 4
  EXPECT_EQ(firstOf(tax, "SELECT Serial FROM TaxAcount WHERE Serial LIKE '2603*' ORDER BY Serial Desc;"),
            "2603999");
}

INSTANTIATE_TEST_SUITE_P(Steps, OldFiles, testing::ValuesIn(oldSteps),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
