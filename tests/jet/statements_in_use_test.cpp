// Every statement the forms run, compiled against the tables of the data files.
#include <gtest/gtest.h>

#include <QFile>

#include "store/jet/compile.h"
#include "store/schema.h"

using namespace Qt::StringLiterals;

namespace {

/** A data file's own tables and, in a year file, those of Basic.mdb behind their links. */
class SchemaCatalogue : public jet::Catalogue {
 public:
  explicit SchemaCatalogue(schema::File file) : file_(file) {}

  std::optional<jet::TableInfo> table(const QString& name) override {
    const auto own = find(file_, name);
    if (own || file_ != schema::File::Year || !schema::linkedTables().contains(name, Qt::CaseInsensitive))
      return own;
    return find(schema::File::Basic, name);
  }
  std::optional<jet::TableInfo> tableIn(const QString&, const QString& name) override {
    return find(schema::File::Basic, name);
  }

 private:
  static std::optional<jet::TableInfo> find(schema::File file, const QString& name) {
    for (const jet::TableDef& table : schema::tablesOf(file))
      if (table.name.compare(name, Qt::CaseInsensitive) == 0)
        return jet::TableInfo{u"f"_s, table.name, table.fields};
    return {};
  }
  schema::File file_;
};

schema::File fileNamed(const QString& name) {
  static const QStringList names{u"Basic"_s, u"Year"_s,    u"Tax"_s,       u"Detail"_s,   u"Post"_s,
                                 u"Print"_s, u"AptBaln"_s, u"InOutCash"_s, u"Cashbook"_s, u"Ledger"_s};
  EXPECT_TRUE(names.contains(name)) << name.toStdString();
  return schema::File(names.indexOf(name));
}

TEST(StatementsInUse, CompileAgainstTheTables) {
  QFile file(QStringLiteral(HAEON_TEST_DATA "/jet/statements_in_use.txt"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  std::optional<SchemaCatalogue> catalogue;
  int count = 0;
  for (int number = 1; !file.atEnd(); ++number) {
    const QString line = QString::fromUtf8(file.readLine()).remove(u'\n');
    if (line.isEmpty() || line.startsWith(u'#')) continue;
    if (line.startsWith(u'@')) {
      catalogue.emplace(fileNamed(line.mid(1).trimmed()));
      continue;
    }
    const QStringList parts = line.split(u'\t');
    int expected = parts.size() > 1 ? QString(parts[1]).remove(u"! "_s).toInt() : 0;
    int refused = 0;
    QString told;
    try {
      jet::compile(parts[0], catalogue.value());
    } catch (const jet::Error& error) {
      refused = error.number();
      told = error.description();
    }
    EXPECT_EQ(refused, expected) << "line " << number << ": " << parts[0].toStdString() << "\n"
                                 << told.toStdString();
    ++count;
  }
  EXPECT_GT(count, 200);
}

}  // namespace
