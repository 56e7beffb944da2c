// Every statement the forms run, run on real data files with the tables of this system.
#include <QFile>
#include <QTemporaryDir>

#include "store/jet/database.h"
#include "store/schema.h"

using namespace Qt::StringLiterals;

namespace {

schema::File fileNamed(const QString& name) {
  static const QStringList names{"Basic", "Year",    "Tax",       "Detail",   "Post",
                                 "Print", "AptBaln", "InOutCash", "Cashbook", "Ledger"};
  EXPECT_TRUE(names.contains(name)) << name.toStdString();
  return schema::File(names.indexOf(name));
}

/** One kind of data file; a year file with its links into Basic.mdb. */
class SampleFile {
 public:
  explicit SampleFile(schema::File kind)
      : workspace_({.mainFile = "C:\\RWGas\\Dbs\\Basic.mdb", .resolvePath = [this](const QString& path) {
                      return folder_.filePath(path.section(u'\\', -1));
                    }}) {
    if (kind == schema::File::Year) basic_ = made("Basic.mdb", schema::File::Basic);
    db_ = made(kind == schema::File::Year ? "2026Foundation.mdb" : "Basic.mdb", kind);
    if (kind != schema::File::Year) return;
    for (const QString& name : schema::linkedTables())
      db_.createTable({name, {}, {}, ";DATABASE=C:\\RWGas\\Dbs\\Basic.mdb", name});
  }

  void run(const QString& sql) const {
    if (sql.startsWith("select"_L1, Qt::CaseInsensitive))
      db_.OpenRecordset(sql);
    else
      db_.Execute(sql);
  }

 private:
  jet::Database made(const QString& name, schema::File kind) const {
    jet::Database db = workspace_.CreateDatabase("C:\\RWGas\\Dbs\\" + name);
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
    const int expected = parts.size() > 1 ? QString(parts[1]).remove("! ").toInt() : 0;
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
