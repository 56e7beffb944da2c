// Every statement the forms run, run on real data files with the tables of this system.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "store/jet/database.h"
#include "store/schema.h"

using namespace Qt::StringLiterals;

namespace {

schema::File fileNamed(const QString& name) {
  static const QStringList names{u"Basic"_s, u"Year"_s,    u"Tax"_s,       u"Detail"_s,   u"Post"_s,
                                 u"Print"_s, u"AptBaln"_s, u"InOutCash"_s, u"Cashbook"_s, u"Ledger"_s};
  EXPECT_TRUE(names.contains(name)) << name.toStdString();
  return schema::File(names.indexOf(name));
}

/** One kind of data file; a year file with its links into Basic.mdb. */
class SampleFile {
 public:
  explicit SampleFile(schema::File kind)
      : workspace_({.mainFile = u"C:\\RWGas\\Dbs\\Basic.mdb"_s, .resolvePath = [this](const QString& path) {
                      return folder_.filePath(path.section(u'\\', -1));
                    }}) {
    if (kind == schema::File::Year) basic_ = made(u"Basic.mdb"_s, schema::File::Basic);
    db_ = made(kind == schema::File::Year ? u"2026Foundation.mdb"_s : u"Basic.mdb"_s, kind);
    if (kind != schema::File::Year) return;
    for (const QString& name : schema::linkedTables())
      db_.createTable({name, {}, {}, u";DATABASE=C:\\RWGas\\Dbs\\Basic.mdb"_s, name});
  }

  void run(const QString& sql) const {
    if (sql.startsWith("select"_L1, Qt::CaseInsensitive))
      db_.OpenRecordset(sql);
    else
      db_.Execute(sql);
  }

 private:
  jet::Database made(const QString& name, schema::File kind) const {
    jet::Database db = workspace_.CreateDatabase(u"C:\\RWGas\\Dbs\\"_s + name);
    workspace_.Together([&] {
      for (const jet::TableDef& table : schema::tablesOf(kind)) db.createTable(table);
    });
    return db;
  }
  QTemporaryDir folder_;
  jet::Workspace workspace_;
  jet::Database basic_, db_;
};

TEST(StatementsInUse, RunOnTheirFiles) {
  QFile file(HAEON_TEST_DATA "/jet/statements_in_use.txt");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  std::optional<SampleFile> sample;
  int count = 0;
  for (int number = 1; !file.atEnd(); ++number) {
    const QString line = QString::fromUtf8(file.readLine()).remove(u'\n');
    if (line.isEmpty() || line.startsWith(u'#')) continue;
    if (line.startsWith(u'@')) {
      sample.emplace(fileNamed(line.mid(1).trimmed()));
      continue;
    }
    const QStringList parts = line.split(u'\t');
    const int expected = parts.size() > 1 ? QString(parts[1]).remove(u"! "_s).toInt() : 0;
    int refused = 0;
    QString told;
    try {
      sample.value().run(parts[0]);
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
