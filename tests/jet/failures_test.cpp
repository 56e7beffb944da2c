// What fails by the store and not by a statement: journals that do not fit, what is no file, damage that a second
// reading finds, and groups that lose what they need in their midst.
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <thread>

#include "store/jet/presence.h"
#include "tests/files.h"
#include "tests/jet/engine_fixture.h"

namespace jet_tests {
namespace {

const QString basicName = "Basic.mdb", yearName = "2026Foundation.mdb";

struct Failures : Engine {
  void SetUp() override {
    Engine::SetUp();
    basic.Execute("Insert Into Client(Name, GasInit) Values('a', 0)");
    year.Execute("Insert Into Sale(SaleNum) Values(0)");
  }
  QByteArray bytesOf(const QString& name) const {
    EXPECT_TRUE(QFile::exists(path(name))) << name.toStdString();
    return tests::bytesOf(path(name));
  }
  void write(const QString& name, const QByteArray& bytes) const { tests::writeFile(path(name), bytes); }
  void closeAll() {
    closeFiles();
    workspace.Close();
  }
  QString textOf(const std::function<void()>& work) const {
    try {
      work();
    } catch (const jet::Error& error) {
      return error.description();
    }
    return {};
  }
  /** As a PC leaves them that dies in a change: the file half written, and the journal that takes it back. */
  void leaveJournal(const QString& name) {
    sqlite3* dying = nullptr;
    ASSERT_EQ(sqlite3_open(path(name).toUtf8().constData(), &dying), SQLITE_OK);
    const char* const change =
        "PRAGMA cache_size = 1; BEGIN; PRAGMA user_version = 77; WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL "
        "SELECT i + 1 FROM n WHERE i < 2000) INSERT INTO jet_links SELECT 'torn' || i, 'c', 't' FROM n";
    ASSERT_EQ(sqlite3_exec(dying, change, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(dying);
    const QByteArray half = bytesOf(name), journal = bytesOf(name + "-journal");
    sqlite3_close(dying);
    write(name, half);
    write(name + "-journal", journal);
  }
};

TEST_F(Failures, AJournalIsPlayedBackIntoTheFileThatItFits) {
  closeAll();
  const QByteArray before = bytesOf(yearName);
  leaveJournal(yearName);
  ASSERT_NE(bytesOf(yearName), before);
  year = open().OpenDatabase(path(yearName));
  EXPECT_EQ(bytesOf(yearName), before);
  EXPECT_FALSE(QFile::exists(path(yearName + "-journal")));
}

TEST_F(Failures, AJournalThatDoesNotFitIsToldAndNotUsed) {
  closeAll();
  const QByteArray backup = bytesOf(yearName);
  workspace = open();
  year = workspace.OpenDatabase(path(yearName));
  for (int i = 0; i < 3; ++i) year.Execute("Insert Into Sale(SaleNum) Values(5)");
  closeAll();
  leaveJournal(yearName);
  const QByteArray journal = bytesOf(yearName + "-journal");
  write(yearName, backup);
  workspace = open();
  const QString told = textOf([&] { workspace.OpenDatabase(path(yearName)); });
  EXPECT_TRUE(told.contains("2026Foundation.mdb") && told.contains("맞지 않아")) << told.toStdString();
  EXPECT_EQ(bytesOf(yearName), backup);
  EXPECT_EQ(bytesOf(yearName + "-journal"), journal);
  EXPECT_EQ(failureOf([&] { basic = workspace.OpenDatabase(path(basicName)); }), 0) << "the others go on";
  ASSERT_TRUE(QFile::remove(path(yearName + "-journal")));
  year = workspace.OpenDatabase(path(yearName));
  EXPECT_EQ(rows(year, "Select SaleNum From Sale"), "0");
}

TEST_F(Failures, AFileThatOnlyItsJournalTellsOfIsNotMadeAnew) {
  closeAll();
  ASSERT_TRUE(QFile::remove(path(yearName)));
  write(yearName + "-journal", "left");
  workspace = open();
  for (const bool makes : {false, true}) {
    const QString told = textOf(
        [&] { makes ? workspace.CreateDatabase(path(yearName)) : workspace.OpenDatabase(path(yearName)); });
    EXPECT_TRUE(told.contains("2026Foundation.mdb-journal")) << told.toStdString();
  }
  EXPECT_FALSE(QFile::exists(path(yearName)));
}

TEST_F(Failures, APipeInPlaceOfAJournalIsToldAtOnce) {
  closeAll();
  const QByteArray pipe = path(yearName + "-journal").toUtf8();
  ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
  workspace = open();
  const QString told = textOf([&] { workspace.OpenDatabase(path(yearName)); });
  EXPECT_TRUE(told.contains("2026Foundation.mdb-journal")) << told.toStdString();
  ::unlink(pipe.constData());
  year = workspace.OpenDatabase(path(yearName));
  ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
  EXPECT_EQ(refusal(year, "Insert Into Sale(SaleNum) Values(1)"), 3051) << "while the file is open";
  ::unlink(pipe.constData());
  EXPECT_EQ(rows(year, "Select SaleNum From Sale"), "0");
}

TEST_F(Failures, AGroupThatCannotWriteItsSecondFileLeavesTheFirstAsItWas) {
  const QByteArray pipe = path(yearName + "-journal").toUtf8();
  int second = 0, later = 0;
  const int group = failureOf([&] {
    workspace.Together([&] {
      basic.Execute("Update Client Set GasInit = 500");
      ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
      second = refusal(year, "Insert Into Sale(SaleNum) Values(1)");
      ::unlink(pipe.constData());
      later = refusal(basic, "Update Client Set GasInit = 700");
    });
  });
  EXPECT_EQ(second, 3051);
  EXPECT_EQ(later, 3051) << "what the work would still add must not stand alone";
  EXPECT_EQ(group, 3051);
  EXPECT_EQ(rows(year, "Select GasInit, SaleNum From Client, Sale"), "0|0");
  workspace.Together([&] { basic.Execute("Update Client Set GasInit = 1"); });
  EXPECT_EQ(rows(basic, "Select GasInit From Client"), "1") << "the next group is a new one";
}

TEST_F(Failures, AGroupThatIsLockedOutOfItsSecondFileLeavesTheFirstAsItWas) {
  const jet::Workspace otherPc = open();
  const jet::Database other = otherPc.OpenDatabase(path(yearName));
  int group = 0;
  sqlite3* holder = nullptr;
  ASSERT_EQ(sqlite3_open(path(yearName).toUtf8().constData(), &holder), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(holder, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
  group = failureOf([&] {
    workspace.Together([&] {
      basic.Execute("Update Client Set GasInit = 500");
      year.Execute("Insert Into Sale(SaleNum) Values(1)");
    });
  });
  EXPECT_EQ(group, 3261);
  int before = -1;
  group = failureOf([&] {
    workspace.Together({basic, year}, [&] {
      before = 0;
      basic.Execute("Update Client Set GasInit = 500");
      before = 1;
    });
  });
  EXPECT_EQ(group, 3261);
  EXPECT_EQ(before, 0) << "all files of the group are had before the first is written";
  sqlite3_close(holder);
  EXPECT_EQ(rows(basic, "Select GasInit From Client"), "0");
}

TEST_F(Failures, DamageIsToldAsDamageInAGroupToo) {
  workspace.Together([&] {
    for (int i = 0; i < 2000; ++i) basic.Execute(u"Insert Into Client(Name) Values('n%1')"_s.arg(i));
  });
  closeAll();
  const QByteArray whole = bytesOf(basicName);
  write(basicName, whole.first(whole.size() / 2 / 4096 * 4096));
  workspace = open();
  year = workspace.OpenDatabase(path(yearName));
  const auto update = [&] { year.Execute("Update Client Set Rate = 1"); };
  EXPECT_EQ(failureOf(update), 3049);
  EXPECT_EQ(failureOf([&] { workspace.Together(update); }), 3049);
}

TEST_F(Failures, AFileThatSomebodyHasOpenIsNobodysAlone) {
  const jet::Workspace otherPc = open();
  auto other = otherPc.OpenDatabase(path(basicName));
  EXPECT_EQ(failureOf([&] { workspace.OpenDatabase(path(basicName), true); }), 3045)
      << "though nobody works in it";
  EXPECT_EQ(failureOf([&] { jet::AloneWith(path(basicName), 0); }), 3045)
      << "nor may it be deleted or replaced";
  other.Execute("Update Client Set GasInit = 1");
  other.Close();
  {
    auto alone = workspace.OpenDatabase(path(basicName), true);
    EXPECT_EQ(failureOf([&] { otherPc.OpenDatabase(path(basicName)); }), 3356);
  }
  EXPECT_EQ(failureOf([&] { other = otherPc.OpenDatabase(path(basicName)); }), 0);
  other.Close();
  closeAll();
  EXPECT_EQ(failureOf([&] { jet::AloneWith(path(basicName), 0); }), 0);
  EXPECT_FALSE(QFile::exists(path("Basic.ldb"))) << "the last one takes it away";
}

TEST_F(Failures, TwoThatDefineATableAtOnceLoseNoColumn) {
  constexpr int columns = 12;
  const auto add = [&](const QString& prefix) {
    const jet::Workspace own = open(20000);
    const auto db = own.OpenDatabase(path(yearName));
    for (int i = 0; i < columns; ++i) db.appendField("Sale", number(prefix + QString::number(i)));
  };
  std::thread one(add, "a"), two(add, "b");
  one.join();
  two.join();
  const jet::TableDef sale = year.tableDef("Sale");
  EXPECT_EQ(sale.fields.size(), 4 + 2 * columns);
  for (const jet::Field& field : sale.fields)
    EXPECT_EQ(refusal(year, u"Select [%1] From Sale"_s.arg(field.name)), 0) << field.name.toStdString();
}

}  // namespace
}  // namespace jet_tests
