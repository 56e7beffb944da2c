// Data files that are cut short, overwritten with noise, or none at all: an error in words, never a crash, and the
// other files stay as they are.
#include <QRandomGenerator>
#include <QTemporaryDir>

#include "store/data_access.h"
#include "store/jet/connection.h"
#include "store/jet/error.h"
#include "tests/files.h"
#include "tests/storm/child.h"
#include "tests/storm/pcs.h"
#include "tests/storm/poster.h"
#include "trade/sale_book.h"

namespace storm {
namespace {

const QStringList dataFiles{"Basic.mdb", "2026Foundation.mdb"};

struct Torn : testing::Test {
  QTemporaryDir folder;
  QString data;
  QHash<QString, QByteArray> whole;

  void SetUp() override {
    Pc(folder.path()).makeBooks();
    Child child({"post", folder.path(), "11", "120"});
    ASSERT_TRUE(child.finish(120000));
    data = Pc(folder.path()).pc.paths.native("C:\\RWGas\\Dbs");
    for (const QString& name : dataFiles) whole[name] = tests::bytesOf(data + u'/' + name);
  }
  void write(const QString& name, const QByteArray& bytes) {
    for (const char* leftover : {"", "-journal"}) QFile::remove(data + u'/' + name + leftover);
    tests::writeFile(data + u'/' + name, bytes);
  }
  void mend() {
    for (const QString& name : dataFiles) write(name, whole[name]);
  }

  /** A day's work as far as it goes; the failures it ended in. */
  QList<jet::Error> work() {
    QList<jet::Error> failures;
    Pc here(folder.path());
    Session& session = here.session;
    const auto attempt = [&](const std::function<void()>& step) {
      try {
        step();
      } catch (const jet::Error& error) {
        failures << error;
      }
    };
    attempt([&] { here.open(); });
    attempt([&] {  // what the start could not open is tried alone
      if (!session.dbYear.isOpen())
        session.dbYear = session.wsMain.OpenDatabase(session.DbPath + "2026Foundation.mdb");
    });
    if (!session.dbYear.isOpen()) return failures;
    SaleBook posting(session);
    attempt([&] { posting.FillSaleGrid(SaleSheet::General, true); });
    for (const jet::Database* file : {&session.dbBasic, &session.dbYear}) {
      if (!file->isOpen()) continue;
      QStringList names;
      attempt([&] {
        for (const jet::TableDef& table : file->TableDefs()) names << table.name;
      });
      for (const QString& name : names)
        attempt([&] { file->OpenRecordset("Select * From [" + name + u']'); });
    }
    attempt(
        [&] { session.dbYear.Execute("Insert Into Sale(SaleDate, ClientCode) Values('2026-03-05', 1)"); });
    attempt(
        [&] { session.dbYear.Execute("Update Client Set GasInit = GasInit + 1 Where Name Like '손님1*'"); });
    attempt([&] { session.dbYear.Execute("Delete From Sale Where ClientCode = 3"); });
    for (qsizetype i = 0; i < here.prompts.failures.size(); ++i)
      failures << jet::Error(here.prompts.failures.at(i), here.prompts.failureTexts.at(i));
    return failures;
  }
};

QByteArray noise(QRandomGenerator& random, qsizetype size) {
  QByteArray bytes(size, '\0');
  for (char& byte : bytes) byte = char(random.bounded(256));
  return bytes;
}

/** One of the ways in which disks and networks spoil a file. */
QByteArray spoiled(QByteArray bytes, QRandomGenerator& random) {
  const qsizetype size = bytes.size(), at = random.bounded(int(size)), page = at / 4096 * 4096;
  switch (random.bounded(8)) {
    case 0:
      return bytes.first(at);  // cut anywhere
    case 1:
      return bytes.first(page);  // cut between pages
    case 2:
      return bytes.replace(at, std::min<qsizetype>(64, size - at), noise(random, 64));
    case 3:
      return bytes.replace(page, 4096, noise(random, 4096));
    case 4:
      return bytes.replace(page, 4096, QByteArray(4096, '\0'));
    case 5:
      return bytes.replace(random.bounded(100), 1, noise(random, 1));  // in the header
    case 6:
      return bytes.replace(page, 4096,
                           bytes.mid(random.bounded(int(size / 4096)) * 4096, 4096));  // a page astray
    default:
      for (int i = 0; i < 20; ++i) bytes[random.bounded(int(size))] = char(random.bounded(256));
      return bytes;
  }
}

TEST_F(Torn, ASpoiledFileEndsInWordsAndLeavesTheOthersAlone) {
  QRandomGenerator random(1234);
  const int rounds = measure(60, 4000);
  int refused = 0;
  QMap<int, int> numbers;
  for (int round = 0; round < rounds; ++round) {
    const QString& victim = dataFiles.at(round % 2);
    const QString& other = dataFiles.at((round + 1) % 2);
    write(victim, spoiled(whole[victim], random));
    const QList<jet::Error> failures = work();
    refused += !failures.isEmpty();
    for (const jet::Error& failure : failures) {
      ++numbers[failure.number()];
      EXPECT_TRUE(isKorean(failure.description()))
          << failure.number() << ' ' << failure.description().toStdString();
    }
    jet::Connection connection(data + u'/' + other, 0);
    jet::SqliteStatement check(connection, "PRAGMA integrity_check");
    ASSERT_TRUE(check.step());
    ASSERT_EQ(check.text(0).toStdString(), "ok") << other.toStdString() << " in round " << round;
    mend();
  }
  std::printf("spoiled %d times, %d times refused:", rounds, refused);
  for (auto at = numbers.begin(); at != numbers.end(); ++at) std::printf(" %d (%d times)", at.key(), *at);
  std::printf("\n");
  EXPECT_GT(refused, rounds / 4);
  EXPECT_TRUE(work().isEmpty()) << "the mended books work";
}

TEST_F(Torn, WhatIsNoDataFileAtAllIsToldByItsNumber) {
  for (const QByteArray& bytes : {QByteArray(), QByteArray("메모장", 9), QByteArray(8192, '\0')}) {
    write(dataFiles[1], bytes);
    const QList<jet::Error> failures = work();
    ASSERT_FALSE(failures.isEmpty());
    EXPECT_EQ(failures.first().number(), 3343) << bytes.size();
    mend();
  }
}

}  // namespace
}  // namespace storm
