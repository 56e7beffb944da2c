// Opening and closing of real files, links between them, files that are none, files that other programs hold.
#include <sqlite3.h>
#include <unistd.h>

#include <algorithm>
#include <thread>

#include "tests/files.h"
#include "tests/jet/engine_fixture.h"

namespace jet_tests {
namespace {

class Files : public Engine {
 protected:
  void write(const QString& name, const QByteArray& bytes) const { tests::writeFile(path(name), bytes); }
  void addClients(int count) const {
    workspace.Together([&] {
      for (int i = 0; i < count; ++i) basic.Execute(u"Insert Into Client(Name) Values('n%1')"_s.arg(i));
    });
  }
};

TEST_F(Files, WhatIsNoDataFileIsTold) {
  write("garbage.mdb", QByteArray(5000, 'x'));
  write("empty.mdb", {});
  sqlite3* foreign = nullptr;
  ASSERT_EQ(sqlite3_open(path("foreign.mdb").toUtf8().constData(), &foreign), SQLITE_OK);
  sqlite3_exec(foreign, "CREATE TABLE t(x)", nullptr, nullptr, nullptr);
  sqlite3_close(foreign);
  const auto opening = [&](const QString& file) { return failureOf([&] { workspace.OpenDatabase(file); }); };
  EXPECT_EQ(opening(path("garbage.mdb")), 3343);
  EXPECT_EQ(opening(path("empty.mdb")), 3343);
  EXPECT_EQ(opening(path("foreign.mdb")), 3343);
  EXPECT_EQ(opening(path("missing.mdb")), 3024);
  EXPECT_EQ(opening(path("nowhere/missing.mdb")), 3044);
  EXPECT_EQ(opening(folder.path()), 3044);
  EXPECT_EQ(opening(" "), 3044);
  EXPECT_FALSE(QFile::exists(path("missing.mdb")));
  EXPECT_EQ(failureOf([&] { workspace.CreateDatabase(path("Basic.mdb")); }), 3204);
  EXPECT_EQ(rows(year, "Select Count(*) From Client"), "0");  // the open ones go on
}

TEST_F(Files, ABrokenMainFileDoesNotKeepTheOthersFromOpening) {
  closeFiles();
  write("Basic.mdb", QByteArray(5000, 'x'));
  year = workspace.OpenDatabase(path("2026Foundation.mdb"));
  EXPECT_EQ(rows(year, "Select Count(*) From Sale"), "0");
  EXPECT_EQ(refusal(year, "Select * From Client"), 3343);
  EXPECT_EQ(failureOf([&] { workspace.OpenDatabase(path("Basic.mdb")); }), 3343);
}

TEST_F(Files, AMainFileMadeLaterTakesItsPlace) {
  closeFiles();
  ASSERT_TRUE(QFile::remove(path("Basic.mdb")));
  year = workspace.OpenDatabase(path("2026Foundation.mdb"));
  basic = workspace.CreateDatabase(path("Basic.mdb"));
  basic.createTable(table("Client", {counter("Code"), text("Name")}));
  year.Execute("Insert Into Sale(SaleNum) Values(1)");
  year.Execute("Insert Into Client(Name) Values('a')");
  EXPECT_EQ(rows(basic, "Select Name From Client"), "a");
  year.Close();
  EXPECT_EQ(rows(basic, "Select Name From Client"), "a");
}

TEST_F(Files, ATornFileIsTold) {
  addClients(2000);
  closeFiles();
  const QByteArray whole = tests::bytesOf(path("Basic.mdb"));
  write("Basic.mdb", whole.first(whole.size() / 2 / 4096 * 4096));
  year = workspace.OpenDatabase(path("2026Foundation.mdb"));
  EXPECT_EQ(refusal(year, "Select Name From Client Order By Rate"), 3049);
  EXPECT_EQ(rows(year, "Select Count(*) From Sale"), "0");
}

TEST_F(Files, LinksLeadToTheOtherFileForReadingAndWriting) {
  basic.Execute("Insert Into Client(Name) Values('김씨')");
  year.Execute("Insert Into Sale(SaleDate, ClientCode, SaleNum) Values('2026-01-02', 1, 3)");
  EXPECT_EQ(
      rows(year,
           "Select Client.Name, Sale.SaleNum From Sale Left Join Client On Sale.ClientCode = Client.Code"),
      "김씨|3");
  year.Execute("Update Client Set GasInit = GasInit + 500 Where Code = 1");
  EXPECT_EQ(rows(basic, "Select GasInit From Client"), "500");
  EXPECT_TRUE(year.tableDef("CLIENT").isLink());
  year.deleteTable("Client");
  EXPECT_EQ(refusal(year, "Select * From Client"), 3078);
  EXPECT_EQ(rows(basic, "Select Count(*) From Client"), "1");
  year.createTable(link("Client", path("Basic.mdb")));
  EXPECT_EQ(rows(year, "Select Name From Client"), "김씨");
}

TEST_F(Files, ALinkFailsWhenItIsUsedNotWhenItsFileIsOpened) {
  year.createTable(link("Lost", path("lost.mdb")));
  year.createTable(link("NoTable", path("Basic.mdb"), "Nothing"));
  year.createTable(link("Ring", path("2026Foundation.mdb"), "Ring"));
  year.Close();
  year = workspace.OpenDatabase(path("2026Foundation.mdb"));
  EXPECT_EQ(refusal(year, "Select * From Lost"), 3024);
  EXPECT_EQ(refusal(year, "Select * From NoTable"), 3011);
  EXPECT_EQ(refusal(year, "Select * From Ring"), 3151);
  EXPECT_EQ(failureOf([&] { year.appendField("Client", text("More")); }), 3057);
}

TEST_F(Files, APathInAStatementReachesAFileThatIsNotOpen) {
  basic.Execute("Insert Into Client(Name) Values('a')");
  year.Execute("Insert Into Sale(ClientCode) Values(1)");
  year.Execute("Insert Into Sale(ClientCode) Values(7)");
  year.deleteTable("Client");
  basic.Close();
  const QString orphans =
      u"Select sale.clientcode From sale Left Join [%1].client on sale.clientcode = client.code where client.code is null"_s
          .arg(path(u"Basic.mdb"_s));
  EXPECT_EQ(rows(year, orphans), "7");
  workspace.Together([&] { EXPECT_EQ(rows(year, orphans), "7"); });
}

TEST_F(Files, AClosedFileIsLetGoAndANewOneInItsPlaceIsSeen) {
  basic.Execute("Insert Into Client(Name) Values('old')");
  auto other = workspace.CreateDatabase(path("other.mdb"));
  other.createTable(basic.tableDef("Client"));
  other.Execute("Insert Into Client(Name) Values('new')");
  other.Close();
  EXPECT_EQ(rows(year, "Select Name From Client"), "old");
  basic.Close();
  // The year file's link has kept Basic.mdb attached all the while.
  ASSERT_TRUE(QFile::remove(path("Basic.mdb")));
  ASSERT_TRUE(QFile::copy(path("other.mdb"), path("Basic.mdb")));
  basic = workspace.OpenDatabase(path("Basic.mdb"));
  EXPECT_EQ(rows(basic, "Select Name From Client"), "new");
  EXPECT_EQ(rows(year, "Select Name From Client"), "new");
}

TEST_F(Files, AnOpenFileThatWasDeletedFailsAndTheOthersGoOn) {
  auto other = workspace.CreateDatabase(path("other.mdb"));
  ASSERT_TRUE(QFile::remove(path("other.mdb")));
  EXPECT_EQ(failureOf([&] { workspace.OpenDatabase(path("other.mdb")); }), 3024);
  EXPECT_EQ(refusal(other, "Select * From Nothing"), 3024);
  EXPECT_EQ(rows(year, "Select Count(*) From Client"), "0");
}

TEST_F(Files, ElevenFilesAreTheLimitAndItIsTold) {
  std::vector<jet::Database> open;
  for (int i = 0; i < 9; ++i) open.push_back(workspace.CreateDatabase(path(u"f%1.mdb"_s.arg(i))));
  EXPECT_EQ(failureOf([&] { workspace.CreateDatabase(path("last.mdb")); }), 3048);
  open.pop_back();
  EXPECT_EQ(failureOf([&] { open.push_back(workspace.OpenDatabase(path("last.mdb"))); }), 0);
  EXPECT_EQ(rows(year, "Select Count(*) From Client"), "0");
}

/** Whether this process has the file open. */
bool hasOpen(const QString& path) {
  const QFileInfoList open = QDir("/proc/self/fd").entryInfoList(QDir::Files | QDir::System);
  return std::ranges::any_of(open, [&](const QFileInfo& one) { return one.symLinkTarget() == path; });
}

TEST_F(Files, KeptFilesStayUntilTheEndOrUntilTheirPlaceIsNeeded) {
  const auto file = [&](int i) { return path(u"f%1.mdb"_s.arg(i)); };
  workspace.KeepingFiles([&] {
    for (int i = 0; i < 14; ++i) workspace.CreateDatabase(file(i));
    EXPECT_TRUE(hasOpen(file(0)) && hasOpen(file(13)));
    EXPECT_FALSE(hasOpen(file(12))) << "the last used made room";
    ASSERT_TRUE(QFile::remove(file(13)) && QFile::copy(path("Basic.mdb"), file(13)));
    EXPECT_EQ(rows(workspace.OpenDatabase(file(13)), "Select Count(*) From Client"),
              rows(year, "Select Count(*) From Client"))
        << "replaced on the disk, read anew";
    workspace.KeepingFiles([] {});
    EXPECT_TRUE(hasOpen(file(13)));
  });
  EXPECT_FALSE(hasOpen(file(13)));
  EXPECT_EQ(failureOf([&] {
              workspace.KeepingFiles([&] {
                workspace.OpenDatabase(file(13));
                workspace.OpenDatabase(path("none.mdb"));
              });
            }),
            3024);
  EXPECT_FALSE(hasOpen(file(13))) << "a failure ends it too";
}

TEST_F(Files, AnUnsetHandleAnswersWith91) {
  const jet::Database none;
  EXPECT_EQ(refusal(none, "Delete From Sale"), 91);
  EXPECT_EQ(failureOf([&] { none.OpenRecordset("Select 1"); }), 91);
  EXPECT_EQ(failureOf([&] { (void)none.TableDefs(); }), 91);
  EXPECT_EQ(failureOf([&] { jet::Workspace().OpenDatabase(path("Basic.mdb")); }), 91);
  jet::Recordset rs;
  EXPECT_EQ(failureOf([&] { rs.MoveNext(); }), 91);
}

TEST_F(Files, AReadOnlyFolderRefusesWritesAndAllowsReading) {
  basic.Execute("Insert Into Client(Name) Values('a')");
  closeFiles();
  const auto all = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
  const auto enter = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
  ASSERT_TRUE(QFile::setPermissions(path("Basic.mdb"), all));
  ASSERT_TRUE(QFile::setPermissions(folder.path(), all | enter));
  const bool root = geteuid() == 0;  // whom no permission binds
  ASSERT_EQ(root ? seteuid(65534) : 0, 0);
  const jet::Workspace reader = open();
  auto readOnly = reader.OpenDatabase(path("Basic.mdb"));
  EXPECT_EQ(rows(readOnly, "Select Name From Client"), "a");
  EXPECT_EQ(refusal(readOnly, "Update Client Set Name = 'b'"), 3027);
  EXPECT_EQ(
      failureOf([&] { reader.Together([&] { EXPECT_EQ(refusal(readOnly, "Delete From Client"), 3027); }); }),
      3027);
  EXPECT_EQ(failureOf([&] { reader.CreateDatabase(path("new.mdb")); }), 3051);
  EXPECT_EQ(rows(readOnly, "Select Name From Client"), "a");
  ASSERT_EQ(root ? seteuid(0) : 0, 0);
  QFile::setPermissions(folder.path(), all | enter | QFile::WriteOwner);
}

// ---- two PCs on one folder

class TwoPcs : public Engine {
 protected:
  void SetUp() override {
    Engine::SetUp();
    otherPc = open();
    otherBasic = otherPc.OpenDatabase(path("Basic.mdb"));
    otherYear = otherPc.OpenDatabase(path("2026Foundation.mdb"));
  }
  jet::Workspace otherPc;
  jet::Database otherBasic, otherYear;
};

TEST_F(TwoPcs, AnOpenRecordsetHoldsNoLock) {
  basic.Execute("Insert Into Client(Name) Values('a')");
  const auto open = basic.OpenRecordset("Select * From Client", jet::RecordsetType::Dynaset);
  EXPECT_EQ(otherYear.Execute("Update Client Set Name = 'b'"), 1);
  EXPECT_EQ(open["Name"].toText(), "a");
}

TEST_F(TwoPcs, AGroupKeepsOthersFromWritingThoseFilesAndNoOthers) {
  int other = 0, elsewhere = 0;
  std::string seen;
  workspace.Together([&] {
    basic.Execute("Insert Into Client(Name) Values('a')");
    other = refusal(otherBasic, "Insert Into Client(Name) Values('b')");
    elsewhere = refusal(otherYear, "Insert Into Sale(SaleNum) Values(1)");
    seen = rows(otherYear, "Select Count(*) From Client");
  });
  EXPECT_EQ(other, 3261);
  EXPECT_EQ(elsewhere, 0);
  EXPECT_EQ(seen, "0");
  EXPECT_EQ(otherBasic.Execute("Insert Into Client(Name) Values('b')"), 1);
  EXPECT_EQ(rows(basic, "Select Name From Client Order By Code"), "a b");
}

TEST_F(TwoPcs, ReadingAndThenWritingInGroupsNeverFailsNorLosesACount) {
  basic.Execute("Insert Into Client(Name, GasInit) Values('a', 0)");
  const auto count = [this] {
    const jet::Workspace own = open(20000);
    const auto db = own.OpenDatabase(path("2026Foundation.mdb"));
    for (int i = 0; i < 15; ++i) {
      own.Together([&] {
        const int now = int(db.OpenRecordset("Select GasInit From Client")[0].toLong());
        db.Execute(u"Update Client Set GasInit = %1"_s.arg(now + 1));
        db.Execute("Insert Into Sale(SaleNum) Values(1)");
      });
    }
  };
  std::thread one(count), two(count);
  one.join();
  two.join();
  EXPECT_EQ(rows(basic, "Select GasInit From Client"), "30");
  EXPECT_EQ(rows(year, "Select Count(*) From Sale"), "30");
}

TEST_F(TwoPcs, AnExclusiveOpeningShutsTheOthersOut) {
  otherBasic.Close();
  otherYear.Close();
  auto alone = workspace.OpenDatabase(path("Basic.mdb"), true);
  EXPECT_EQ(failureOf([&] { otherPc.OpenDatabase(path("Basic.mdb")); }), 3356);
  alone.Close();
  EXPECT_EQ(failureOf([&] { otherBasic = otherPc.OpenDatabase(path("Basic.mdb")); }), 0);
  int exclusive = 0;
  workspace.Together([&] {
    basic.Execute("Insert Into Client(Name) Values('a')");
    exclusive = failureOf([&] { otherPc.OpenDatabase(path("Basic.mdb"), true); });
  });
  EXPECT_EQ(exclusive, 3045);
}

TEST_F(TwoPcs, ChangesOfTablesAndLinksAreSeen) {
  EXPECT_EQ(rows(year, "Select Count(*) From Sale"), "0");
  otherYear.appendField("Sale", number("DealList"));
  otherYear.Execute("Insert Into Sale(DealList) Values(2)");
  EXPECT_EQ(rows(year, "Select DealList From Sale"), "2");
  otherYear.deleteTable("Client");
  otherYear.createTable(link("Customer", path("Basic.mdb"), "Client"));
  EXPECT_TRUE(year.hasTable("customer"));
  EXPECT_FALSE(year.hasTable("Client"));
  EXPECT_EQ(rows(year, "Select Count(*) From Customer"), "0");
  otherBasic.appendField("Client", text("Tel1"));
  EXPECT_EQ(rows(year, "Select Tel1 From Customer"), "");
}

}  // namespace
}  // namespace jet_tests
