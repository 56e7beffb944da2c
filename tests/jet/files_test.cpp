// Opening and closing of real files, links between them, files that are none, files that other programs hold.
#include <sqlite3.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <thread>

#include "tests/jet/engine_fixture.h"

namespace jet_tests {
namespace {

class Files : public Engine {
 protected:
  void write(const QString& name, const QByteArray& bytes) const {
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  void addClients(int count) const {
    workspace.Together([&] {
      for (int i = 0; i < count; ++i) basic.Execute(u"Insert Into Client(Name) Values('n%1')"_s.arg(i));
    });
  }
};

TEST_F(Files, WhatIsNoDataFileIsTold) {
  write(u"garbage.mdb"_s, QByteArray(5000, 'x'));
  write(u"empty.mdb"_s, {});
  sqlite3* foreign = nullptr;
  ASSERT_EQ(sqlite3_open(path(u"foreign.mdb"_s).toUtf8().constData(), &foreign), SQLITE_OK);
  sqlite3_exec(foreign, "CREATE TABLE t(x)", nullptr, nullptr, nullptr);
  sqlite3_close(foreign);
  const auto opening = [&](const QString& file) { return failureOf([&] { workspace.OpenDatabase(file); }); };
  EXPECT_EQ(opening(path(u"garbage.mdb"_s)), 3343);
  EXPECT_EQ(opening(path(u"empty.mdb"_s)), 3343);
  EXPECT_EQ(opening(path(u"foreign.mdb"_s)), 3343);
  EXPECT_EQ(opening(path(u"missing.mdb"_s)), 3024);
  EXPECT_EQ(opening(path(u"nowhere/missing.mdb"_s)), 3044);
  EXPECT_EQ(opening(folder.path()), 3044);
  EXPECT_EQ(opening(u" "_s), 3044);
  EXPECT_FALSE(QFile::exists(path(u"missing.mdb"_s)));
  EXPECT_EQ(failureOf([&] { workspace.CreateDatabase(path(u"Basic.mdb"_s)); }), 3204);
  EXPECT_EQ(rows(year, u"Select Count(*) From Client"_s), "0");  // the open ones go on
}

TEST_F(Files, ABrokenMainFileDoesNotKeepTheOthersFromOpening) {
  basic.Close();
  year.Close();
  write(u"Basic.mdb"_s, QByteArray(5000, 'x'));
  year = workspace.OpenDatabase(path(u"2026Foundation.mdb"_s));
  EXPECT_EQ(rows(year, u"Select Count(*) From Sale"_s), "0");
  EXPECT_EQ(failureOf([&] { rows(year, u"Select * From Client"_s); }), 3343);
  EXPECT_EQ(failureOf([&] { workspace.OpenDatabase(path(u"Basic.mdb"_s)); }), 3343);
}

TEST_F(Files, AMainFileMadeLaterTakesItsPlace) {
  basic.Close();
  year.Close();
  ASSERT_TRUE(QFile::remove(path(u"Basic.mdb"_s)));
  year = workspace.OpenDatabase(path(u"2026Foundation.mdb"_s));
  basic = workspace.CreateDatabase(path(u"Basic.mdb"_s));
  basic.createTable(table(u"Client"_s, {counter(u"Code"_s), text(u"Name"_s)}));
  year.Execute(u"Insert Into Sale(SaleNum) Values(1)"_s);
  year.Execute(u"Insert Into Client(Name) Values('a')"_s);
  EXPECT_EQ(rows(basic, u"Select Name From Client"_s), "a");
  year.Close();
  EXPECT_EQ(rows(basic, u"Select Name From Client"_s), "a");
}

TEST_F(Files, ATornFileIsTold) {
  addClients(2000);
  basic.Close();
  year.Close();
  QFile file(path(u"Basic.mdb"_s));
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  ASSERT_TRUE(file.resize(file.size() / 2 / 4096 * 4096));
  file.close();
  year = workspace.OpenDatabase(path(u"2026Foundation.mdb"_s));
  EXPECT_EQ(failureOf([&] { rows(year, u"Select Name From Client Order By Rate"_s); }), 3049);
  EXPECT_EQ(rows(year, u"Select Count(*) From Sale"_s), "0");
}

TEST_F(Files, LinksLeadToTheOtherFileForReadingAndWriting) {
  basic.Execute(u"Insert Into Client(Name) Values('김씨')"_s);
  year.Execute(u"Insert Into Sale(SaleDate, ClientCode, SaleNum) Values('2026-01-02', 1, 3)"_s);
  EXPECT_EQ(
      rows(year,
           u"Select Client.Name, Sale.SaleNum From Sale Left Join Client On Sale.ClientCode = Client.Code"_s),
      "김씨|3");
  year.Execute(u"Update Client Set GasInit = GasInit + 500 Where Code = 1"_s);
  EXPECT_EQ(rows(basic, u"Select GasInit From Client"_s), "500");
  EXPECT_TRUE(year.tableDef(u"CLIENT"_s).isLink());
  year.deleteTable(u"Client"_s);
  EXPECT_EQ(failureOf([&] { rows(year, u"Select * From Client"_s); }), 3078);
  EXPECT_EQ(rows(basic, u"Select Count(*) From Client"_s), "1");
  year.createTable(link(u"Client"_s, path(u"Basic.mdb"_s)));
  EXPECT_EQ(rows(year, u"Select Name From Client"_s), "김씨");
}

TEST_F(Files, ALinkFailsWhenItIsUsedNotWhenItsFileIsOpened) {
  year.createTable(link(u"Lost"_s, path(u"lost.mdb"_s)));
  year.createTable(link(u"NoTable"_s, path(u"Basic.mdb"_s), u"Nothing"_s));
  year.createTable(link(u"Ring"_s, path(u"2026Foundation.mdb"_s), u"Ring"_s));
  year.Close();
  year = workspace.OpenDatabase(path(u"2026Foundation.mdb"_s));
  EXPECT_EQ(failureOf([&] { rows(year, u"Select * From Lost"_s); }), 3024);
  EXPECT_EQ(failureOf([&] { rows(year, u"Select * From NoTable"_s); }), 3011);
  EXPECT_EQ(failureOf([&] { rows(year, u"Select * From Ring"_s); }), 3151);
  EXPECT_EQ(failureOf([&] { year.appendField(u"Client"_s, text(u"More"_s)); }), 3057);
}

TEST_F(Files, APathInAStatementReachesAFileThatIsNotOpen) {
  basic.Execute(u"Insert Into Client(Name) Values('a')"_s);
  year.Execute(u"Insert Into Sale(ClientCode) Values(1)"_s);
  year.Execute(u"Insert Into Sale(ClientCode) Values(7)"_s);
  year.deleteTable(u"Client"_s);
  basic.Close();
  const QString orphans =
      u"Select sale.clientcode From sale Left Join [%1].client on sale.clientcode = client.code where client.code is null"_s
          .arg(path(u"Basic.mdb"_s));
  EXPECT_EQ(rows(year, orphans), "7");
  workspace.Together([&] { EXPECT_EQ(rows(year, orphans), "7"); });
}

TEST_F(Files, AClosedFileIsLetGoAndANewOneInItsPlaceIsSeen) {
  basic.Execute(u"Insert Into Client(Name) Values('old')"_s);
  auto other = workspace.CreateDatabase(path(u"other.mdb"_s));
  other.createTable(basic.tableDef(u"Client"_s));
  other.Execute(u"Insert Into Client(Name) Values('new')"_s);
  other.Close();
  EXPECT_EQ(rows(year, u"Select Name From Client"_s), "old");
  basic.Close();
  // The year file's link has kept Basic.mdb attached all the while.
  ASSERT_TRUE(QFile::remove(path(u"Basic.mdb"_s)));
  ASSERT_TRUE(QFile::copy(path(u"other.mdb"_s), path(u"Basic.mdb"_s)));
  basic = workspace.OpenDatabase(path(u"Basic.mdb"_s));
  EXPECT_EQ(rows(basic, u"Select Name From Client"_s), "new");
  EXPECT_EQ(rows(year, u"Select Name From Client"_s), "new");
}

TEST_F(Files, AnOpenFileThatWasDeletedFailsAndTheOthersGoOn) {
  auto other = workspace.CreateDatabase(path(u"other.mdb"_s));
  ASSERT_TRUE(QFile::remove(path(u"other.mdb"_s)));
  EXPECT_EQ(failureOf([&] { workspace.OpenDatabase(path(u"other.mdb"_s)); }), 3024);
  EXPECT_EQ(failureOf([&] { rows(other, u"Select * From Nothing"_s); }), 3024);
  EXPECT_EQ(rows(year, u"Select Count(*) From Client"_s), "0");
}

TEST_F(Files, ElevenFilesAreTheLimitAndItIsTold) {
  std::vector<jet::Database> open;
  for (int i = 0; i < 9; ++i) open.push_back(workspace.CreateDatabase(path(u"f%1.mdb"_s.arg(i))));
  EXPECT_EQ(failureOf([&] { workspace.CreateDatabase(path(u"last.mdb"_s)); }), 3048);
  open.pop_back();
  EXPECT_EQ(failureOf([&] { open.push_back(workspace.OpenDatabase(path(u"last.mdb"_s))); }), 0);
  EXPECT_EQ(rows(year, u"Select Count(*) From Client"_s), "0");
}

/** Whether this process has the file open. */
bool hasOpen(const QString& path) {
  const QFileInfoList open = QDir(u"/proc/self/fd"_s).entryInfoList(QDir::Files | QDir::System);
  return std::ranges::any_of(open, [&](const QFileInfo& one) { return one.symLinkTarget() == path; });
}

TEST_F(Files, KeptFilesStayUntilTheEndOrUntilTheirPlaceIsNeeded) {
  const auto file = [&](int i) { return path(u"f%1.mdb"_s.arg(i)); };
  workspace.KeepingFiles([&] {
    for (int i = 0; i < 14; ++i) workspace.CreateDatabase(file(i));
    EXPECT_TRUE(hasOpen(file(0)) && hasOpen(file(13)));
    EXPECT_FALSE(hasOpen(file(12))) << "the last used made room";
    ASSERT_TRUE(QFile::remove(file(13)) && QFile::copy(path(u"Basic.mdb"_s), file(13)));
    EXPECT_EQ(rows(workspace.OpenDatabase(file(13)), u"Select Count(*) From Client"_s),
              rows(year, u"Select Count(*) From Client"_s))
        << "replaced on the disk, read anew";
    workspace.KeepingFiles([] {});
    EXPECT_TRUE(hasOpen(file(13)));
  });
  EXPECT_FALSE(hasOpen(file(13)));
  EXPECT_EQ(failureOf([&] {
              workspace.KeepingFiles([&] {
                workspace.OpenDatabase(file(13));
                workspace.OpenDatabase(path(u"none.mdb"_s));
              });
            }),
            3024);
  EXPECT_FALSE(hasOpen(file(13))) << "a failure ends it too";
}

TEST_F(Files, AnUnsetHandleAnswersWith91) {
  const jet::Database none;
  EXPECT_EQ(failureOf([&] { none.Execute(u"Delete From Sale"_s); }), 91);
  EXPECT_EQ(failureOf([&] { none.OpenRecordset(u"Select 1"_s); }), 91);
  EXPECT_EQ(failureOf([&] { (void)none.TableDefs(); }), 91);
  EXPECT_EQ(failureOf([&] { jet::Workspace().OpenDatabase(path(u"Basic.mdb"_s)); }), 91);
  jet::Recordset rs;
  EXPECT_EQ(failureOf([&] { rs.MoveNext(); }), 91);
}

TEST_F(Files, AReadOnlyFolderRefusesWritesAndAllowsReading) {
  basic.Execute(u"Insert Into Client(Name) Values('a')"_s);
  basic.Close();
  year.Close();
  const auto all = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
  const auto enter = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
  ASSERT_TRUE(QFile::setPermissions(path(u"Basic.mdb"_s), all));
  ASSERT_TRUE(QFile::setPermissions(folder.path(), all | enter));
  const bool root = geteuid() == 0;  // whom no permission binds
  ASSERT_EQ(root ? seteuid(65534) : 0, 0);
  const jet::Workspace reader = open();
  auto readOnly = reader.OpenDatabase(path(u"Basic.mdb"_s));
  EXPECT_EQ(rows(readOnly, u"Select Name From Client"_s), "a");
  EXPECT_EQ(failureOf([&] { readOnly.Execute(u"Update Client Set Name = 'b'"_s); }), 3027);
  EXPECT_EQ(failureOf([&] {
              reader.Together(
                  [&] { EXPECT_EQ(failureOf([&] { readOnly.Execute(u"Delete From Client"_s); }), 3027); });
            }),
            3027);
  EXPECT_EQ(failureOf([&] { reader.CreateDatabase(path(u"new.mdb"_s)); }), 3051);
  EXPECT_EQ(rows(readOnly, u"Select Name From Client"_s), "a");
  ASSERT_EQ(root ? seteuid(0) : 0, 0);
  QFile::setPermissions(folder.path(), all | enter | QFile::WriteOwner);
}

// ---- two PCs on one folder

class TwoPcs : public Engine {
 protected:
  void SetUp() override {
    Engine::SetUp();
    otherPc = open();
    otherBasic = otherPc.OpenDatabase(path(u"Basic.mdb"_s));
    otherYear = otherPc.OpenDatabase(path(u"2026Foundation.mdb"_s));
  }
  jet::Workspace otherPc;
  jet::Database otherBasic, otherYear;
};

TEST_F(TwoPcs, AnOpenRecordsetHoldsNoLock) {
  basic.Execute(u"Insert Into Client(Name) Values('a')"_s);
  const auto open = basic.OpenRecordset(u"Select * From Client"_s, jet::RecordsetType::Dynaset);
  EXPECT_EQ(otherYear.Execute(u"Update Client Set Name = 'b'"_s), 1);
  EXPECT_EQ(open[u"Name"_s].toText(), u"a"_s);
}

TEST_F(TwoPcs, AGroupKeepsOthersFromWritingThoseFilesAndNoOthers) {
  int other = 0, elsewhere = 0;
  std::string seen;
  workspace.Together([&] {
    basic.Execute(u"Insert Into Client(Name) Values('a')"_s);
    other = failureOf([&] { otherBasic.Execute(u"Insert Into Client(Name) Values('b')"_s); });
    elsewhere = failureOf([&] { otherYear.Execute(u"Insert Into Sale(SaleNum) Values(1)"_s); });
    seen = rows(otherYear, u"Select Count(*) From Client"_s);
  });
  EXPECT_EQ(other, 3261);
  EXPECT_EQ(elsewhere, 0);
  EXPECT_EQ(seen, "0");
  EXPECT_EQ(otherBasic.Execute(u"Insert Into Client(Name) Values('b')"_s), 1);
  EXPECT_EQ(rows(basic, u"Select Name From Client Order By Code"_s), "a b");
}

TEST_F(TwoPcs, ReadingAndThenWritingInGroupsNeverFailsNorLosesACount) {
  basic.Execute(u"Insert Into Client(Name, GasInit) Values('a', 0)"_s);
  const auto count = [this] {
    const jet::Workspace own = open(20000);
    const auto db = own.OpenDatabase(path(u"2026Foundation.mdb"_s));
    for (int i = 0; i < 15; ++i) {
      own.Together([&] {
        const int now = int(db.OpenRecordset(u"Select GasInit From Client"_s)[0].toLong());
        db.Execute(u"Update Client Set GasInit = %1"_s.arg(now + 1));
        db.Execute(u"Insert Into Sale(SaleNum) Values(1)"_s);
      });
    }
  };
  std::thread one(count), two(count);
  one.join();
  two.join();
  EXPECT_EQ(rows(basic, u"Select GasInit From Client"_s), "30");
  EXPECT_EQ(rows(year, u"Select Count(*) From Sale"_s), "30");
}

TEST_F(TwoPcs, AnExclusiveOpeningShutsTheOthersOut) {
  otherBasic.Close();
  otherYear.Close();
  auto alone = workspace.OpenDatabase(path(u"Basic.mdb"_s), true);
  EXPECT_EQ(failureOf([&] { otherPc.OpenDatabase(path(u"Basic.mdb"_s)); }), 3356);
  alone.Close();
  EXPECT_EQ(failureOf([&] { otherBasic = otherPc.OpenDatabase(path(u"Basic.mdb"_s)); }), 0);
  int exclusive = 0;
  workspace.Together([&] {
    basic.Execute(u"Insert Into Client(Name) Values('a')"_s);
    exclusive = failureOf([&] { otherPc.OpenDatabase(path(u"Basic.mdb"_s), true); });
  });
  EXPECT_EQ(exclusive, 3045);
}

TEST_F(TwoPcs, ChangesOfTablesAndLinksAreSeen) {
  EXPECT_EQ(rows(year, u"Select Count(*) From Sale"_s), "0");
  otherYear.appendField(u"Sale"_s, number(u"DealList"_s));
  otherYear.Execute(u"Insert Into Sale(DealList) Values(2)"_s);
  EXPECT_EQ(rows(year, u"Select DealList From Sale"_s), "2");
  otherYear.deleteTable(u"Client"_s);
  otherYear.createTable(link(u"Customer"_s, path(u"Basic.mdb"_s), u"Client"_s));
  EXPECT_TRUE(year.hasTable(u"customer"_s));
  EXPECT_FALSE(year.hasTable(u"Client"_s));
  EXPECT_EQ(rows(year, u"Select Count(*) From Customer"_s), "0");
  otherBasic.appendField(u"Client"_s, text(u"Tel1"_s));
  EXPECT_EQ(rows(year, u"Select Tel1 From Customer"_s), "");
}

}  // namespace
}  // namespace jet_tests
