// Archives of real books: made, read back, kept, refused when torn, and put in the books' place.
#include <archive.h>
#include <archive_entry.h>
#include <gmock/gmock.h>
#include <sys/resource.h>

#include <QCryptographicHash>
#include <csignal>
#include <numeric>

#include "backup/data_folder_alone.h"
#include "backup/make_backup.h"
#include "backup/restore.h"
#include "store/data_access.h"
#include "store/folder_swap.h"
#include "store/jet/presence.h"
#include "tests/answers.h"
#include "tests/support.h"

using namespace Qt::StringLiterals;

namespace {

using namespace Qt::StringLiterals;
using namespace tests;
using backup::Series;

const backup::Tell nobody;

struct BackupTest : testing::Test, TestPc {
  QString dataFolder = installedDataFolder();
  backup::Settings settings{"C:\\RWGas\\BackUp\\", 3, {}, {}, true};

  void SetUp() override {
    pc.clock.set(QDateTime(QDate(2026, 3, 16), QTime(9, 0)));
    openBooks(QDate(2026, 3, 16));
    session.dbBasic.Execute("Insert Into Client(Code, Name, GasInit) Values(1, '김가네', 41000)");
    write(dataFolder + "메모.txt", "손으로 적은 것");
    closeBooks();
  }
  QString native(const QString& written) const { return pc.paths.native(written); }
  void write(const QString& path, const QByteArray& text) { writeFile(native(path), text); }
  QMap<QString, QByteArray> books() const { return contentsOf(native(dataFolder)); }
  std::unique_ptr<backup::DataFolderAlone> hold() {
    auto held = std::make_unique<backup::DataFolderAlone>(pc.paths, dataFolder);
    EXPECT_EQ(held->take(), QStringList());
    return held;
  }
  backup::BackupDone make(Series series = Series::Books, const backup::Tell& tell = nobody) {
    return backup::makeBackup(pc, dataFolder, settings, series, hold(), tell);
  }
  QString restore(const QString& archive) {
    const backup::ArchiveFacts facts = backup::verify(native(archive), nobody);
    auto held = hold();
    backup::prepareRestore(pc, dataFolder, archive, facts, nobody);
    return backup::finishRestore(pc, dataFolder, std::move(held));
  }
  void changeBooks(const QString& name) {
    openData(session, "Basic.mdb").Execute("Update Client Set Name = '" + plainText(name) + "'");
  }
  QString clientName() { return rowsOf(openData(session, "Basic.mdb"), "Select Name From Client"); }
  static QString nameOf(const backup::BackupDone& done) { return done.archive.section(u'\\', -1); }
  QStringList shelf() const {
    return QDir(native(settings.folder)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
  }
};

/** The failure's number and text; 0 when there was none. */
template <class Work>
std::pair<int, QString> failureOf(Work work) {
  try {
    work();
  } catch (const jet::Error& error) {
    return {error.number(), error.description()};
  }
  return {0, {}};
}

TEST_F(BackupTest, WhatIsPackedComesBackByteByByteAndTheOldBooksStay) {
  QDir().mkpath(native(dataFolder + "지도\\동네"));
  write(dataFolder + "지도\\동네\\1.bmp", QByteArray(3 << 20, 'm'));
  const auto before = books();
  write(dataFolder + "Basic.LDB", "who is in");  // these two are nobody's books
  write(dataFolder + "dbTax.mdb.new", "half");
  const backup::BackupDone done = make();
  QFile::remove(native(dataFolder + "Basic.LDB"));
  QFile::remove(native(dataFolder + "dbTax.mdb.new"));
  EXPECT_EQ(books(), before);
  EXPECT_EQ(done.bytes, QFileInfo(native(done.archive)).size());
  const backup::ArchiveFacts read = backup::verify(native(done.archive), nobody);
  EXPECT_EQ(read.made.toSecsSinceEpoch(), done.facts.made.toSecsSinceEpoch());
  EXPECT_EQ(read.folder, dataFolder);
  EXPECT_EQ(read.program, HAEON_VERSION);
  EXPECT_EQ(read.bytes(),
            std::accumulate(before.begin(), before.end(), qint64(0),
                            [](qint64 sum, const QByteArray& file) { return sum + file.size(); }));
  EXPECT_EQ(done.archive, settings.folder + backup::archiveName(Series::Books, done.facts.made));
  EXPECT_EQ(shelf(), QStringList{nameOf(done)});
  EXPECT_TRUE(nameOf(done).startsWith("해온판매-20260316-09")) << "the program's clock";
  EXPECT_EQ(done.facts.files.size(), before.size());
  changeBooks("박가네");
  const auto changed = books();
  const QString kept = restore(done.archive);
  EXPECT_TRUE(kept.startsWith("C:\\RWGas\\Dbs-이전-20260316-09")) << kept.toStdString();
  EXPECT_EQ(books(), before);
  EXPECT_EQ(clientName(), "김가네");
  EXPECT_EQ(contentsOf(native(kept)), changed);
  EXPECT_FALSE(QFileInfo::exists(native(preparedFolder(dataFolder))));
}

TEST_F(BackupTest, OnlySoManyOfASeriesStayAndTwoOfOneSecondAreTwo) {
  QStringList made;
  for (int minute = 0; minute < 4; ++minute) {
    pc.clock.set(QDateTime(QDate(2026, 3, 16), QTime(10, minute)));
    made << nameOf(make());
  }
  write(settings.folder + "해온판매-내것.zip", "mine");
  const backup::ArchiveFacts last = backup::verify(native(settings.folder + made.last()), nobody);
  pc.clock.set(last.made);
  const backup::BackupDone second = make();
  EXPECT_GT(second.facts.made, last.made);
  made << nameOf(second);
  const QString support = nameOf(make(Series::Support));
  EXPECT_TRUE(support.startsWith("해온판매-AS-20260316-10")) << support.toStdString();
  EXPECT_EQ(shelf(), (QStringList{made[2], made[3], made[4], support, "해온판매-내것.zip"}));
  const auto listed = backup::archivesOf(pc.paths, settings);
  ASSERT_EQ(listed.size(), 3);
  EXPECT_EQ(listed.first().path, second.archive);

  // The PC's battery is empty: what was just made bears the oldest date, and stays.
  pc.clock.set(QDateTime(QDate(2002, 1, 1), QTime(0, 5)));
  settings.serverFolder = "Z:\\백업\\";
  QDir().mkpath(native(settings.serverFolder));
  for (const QString& name : {made[2], made[3], made[4]}) write(settings.serverFolder + name, "older");
  const backup::BackupDone lost = make();
  backup::sendToServer(pc, lost.archive, settings, nobody);
  EXPECT_EQ(shelf(), (QStringList{nameOf(lost), made[3], made[4], support, "해온판매-내것.zip"}));
  EXPECT_EQ(QDir(native(settings.serverFolder)).entryList(QDir::Files, QDir::Name),
            (QStringList{nameOf(lost), made[3], made[4]}));
  backup::keepNewest(pc.paths, settings.folder, Series::Books, 0);
  EXPECT_EQ(shelf(), (QStringList{made[4], support, "해온판매-내것.zip"})) << "the newest never goes";
  const auto both = [&] {
    QStringList all;
    for (const auto& each : backup::archivesOf(pc.paths, settings))
      all << (each.onServer ? "server " : "here ") + each.made.toString("yyyy HH:mm ") +
                 QString::number(each.bytes == 5);
    return all;
  };
  EXPECT_EQ(both(), (QStringList{"here 2026 10:03 0", "server 2026 10:03 1", "server 2026 10:03 1",
                                 "server 2002 00:05 0"}));
  // Wherever it lies the newest stands first; of one second this PC's.
  const QString named = "해온판매-20260316-1%1.zip";
  for (const char* made : {"10000", "30000"}) write(settings.serverFolder + named.arg(made), "older");
  for (const char* made : {"05959", "20000", "30000"}) write(settings.folder + named.arg(made), "newer");
  EXPECT_EQ(both().mid(0, 6), (QStringList{"here 2026 13:00 1", "server 2026 13:00 1", "here 2026 12:00 1",
                                           "server 2026 11:00 1", "here 2026 10:59 1", "here 2026 10:03 0"}));
  settings.serverFolder = settings.folder;
  EXPECT_EQ(backup::archivesOf(pc.paths, settings).size(), 4);
}

TEST_F(BackupTest, WhatAKilledRunLeftLocksNobodyOutAndGoes) {
  ASSERT_TRUE(pc.paths.makeFolder(settings.folder + ".packing"));
  for (const char* left : {"packing.ldb", ".packing.zip", ".packing/Basic.mdb"})
    write(settings.folder + QString::fromLatin1(left), "half");
  const QString made = nameOf(make());
  EXPECT_EQ(QDir(native(settings.folder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList{made});
  const jet::AloneWith another(native(settings.folder) + "/packing", 0);
  EXPECT_EQ(failureOf([&] { make(); }).first, 3045) << "two at once would share the place they work in";
  settings.folder = dataFolder + "백업\\";
  const qsizetype files = make().facts.files.size();
  EXPECT_EQ(make().facts.files.size(), files) << "a shelf within the data folder is none of the books";
}

TEST_F(BackupTest, FilesInUseAreNamedAndHeldFilesLetNobodyIn) {
  auto workspace = std::make_unique<jet::Workspace>(openWorkspace(session, dataFolder));
  auto year = std::make_unique<jet::Database>(workspace->OpenDatabase(dataFolder + "2026Foundation.mdb"));
  backup::DataFolderAlone held(pc.paths, dataFolder);
  EXPECT_EQ(held.take(), QStringList{"Basic.mdb"}) << "its holder may be making the others";
  year.reset();
  workspace.reset();
  {
    const jet::Workspace one{jet::Workspace::Options{}};
    const jet::Database open = one.OpenDatabase(native(dataFolder + "2026Foundation.mdb"));
    write(dataFolder + "other.mdb", "another program's");
    const jet::AloneWith other(native(dataFolder + "other.mdb"), 0);
    EXPECT_EQ(held.take(), (QStringList{"2026Foundation.mdb", "other.mdb"}));
  }
  EXPECT_EQ(held.take(), QStringList());
  jet::Workspace::Options impatient;
  impatient.busyMilliseconds = 1;
  const auto refused =
      failureOf([&] { jet::Workspace(impatient).OpenDatabase(native(dataFolder + "Basic.mdb")); });
  EXPECT_EQ(refused.first, 3356);
}

TEST_F(BackupTest, ADamagedDataFileEndsTheBackupButNotTheOneForSupport) {
  const QString good = nameOf(make());
  QFile file(native(dataFolder + "dbTax.mdb"));
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  file.seek(4096);
  file.write(QByteArray(4096, '\xff'));
  file.close();
  write(dataFolder + "InOutCash.mdb", "another program's");
  // A file put back alone, beside the journal of a later one: a header, and the first page at another change.
  QByteArray journal = QByteArray::fromHex(
      "d9d505f920a163d7"
      "00000001"
      "00000000"
      "00000001"
      "00000200"
      "00001000");
  QByteArray page = bytesOf(native(dataFolder + "dbPost.mdb")).first(4096);
  page[26] = char(page[26] + 1);
  journal = journal.leftJustified(512, '\0') + QByteArray::fromHex("00000001") + page + QByteArray(4, '\0');
  write(dataFolder + "dbPost.mdb-journal", journal);
  const auto before = books();
  const auto [number, text] = failureOf([&] { make(); });
  EXPECT_EQ(number, 3049);
  EXPECT_TRUE(text.contains(": dbPost.mdb, dbTax.mdb\n")) << text.toStdString();
  EXPECT_EQ(shelf(), QStringList{good});
  const backup::BackupDone support = make(Series::Support);
  EXPECT_THAT(support.damaged, testing::ElementsAre("dbPost.mdb", "dbTax.mdb"));
  EXPECT_EQ(support.strange, QStringList{"InOutCash.mdb"});
  EXPECT_EQ(books(), before);
  const auto [again, why] = failureOf([&] { restore(support.archive); });
  EXPECT_EQ(again, 3049) << why.toStdString();
  EXPECT_EQ(books(), before);
}

/** A zip as any other program makes it. */
void makeZip(const QString& path, const QList<std::pair<QByteArray, QByteArray>>& entries) {
  archive* zip = archive_write_new();
  archive_write_set_format_zip(zip);
  ASSERT_EQ(archive_write_open_filename(zip, QFile::encodeName(path).constData()), ARCHIVE_OK);
  for (const auto& [name, bytes] : entries) {
    archive_entry* entry = archive_entry_new();
    archive_entry_set_pathname_utf8(entry, name.constData());
    archive_entry_set_size(entry, bytes.size());
    archive_entry_set_filetype(entry, AE_IFREG);
    archive_write_header(zip, entry);
    archive_write_data(zip, bytes.constData(), size_t(bytes.size()));
    archive_entry_free(entry);
  }
  archive_write_free(zip);
}

TEST_F(BackupTest, AWrongArchiveIsRefusedAndTheBooksStay) {
  const QString good = native(make().archive);
  const QByteArray whole = bytesOf(good);
  const auto before = books();
  const QString wrong = native("C:\\RWGas\\wrong.zip");
  const auto refused = [&] {
    const auto [number, text] = failureOf([&] { restore("C:\\RWGas\\wrong.zip"); });
    EXPECT_TRUE(text.contains("올바른 백업 파일이 아닙니다")) << text.toStdString();
    EXPECT_EQ(books(), before);
    EXPECT_FALSE(QFileInfo::exists(native(preparedFolder(dataFolder))));
    EXPECT_EQ(failureOf([&] { backup::verify(wrong, nobody); }).first, 321)
        << "seen before the other PCs are asked to leave";
    return number;
  };
  for (const qsizetype length : {qsizetype(0), qsizetype(100), whole.size() / 2, whole.size() - 30}) {
    write("C:\\RWGas\\wrong.zip", whole.first(length));
    EXPECT_EQ(refused(), 321) << "cut to " << length;
  }
  for (qsizetype at = 200; at < whole.size() / 2; at += whole.size() / 7) {
    QByteArray changed = whole;
    changed[at] = char(changed[at] ^ 0x55);
    write("C:\\RWGas\\wrong.zip", changed);
    EXPECT_EQ(refused(), 321) << "changed at " << at;
  }
  makeZip(wrong, {{"Basic.mdb", "no list"}});
  EXPECT_EQ(refused(), 321);
  // A list that fits, and a name that would leave the folder.
  const QByteArray sum = QCryptographicHash::hash("x", QCryptographicHash::Sha256).toHex();
  for (const char* name : {"../Basic.mdb", "/tmp/Basic.mdb", "a/../../Basic.mdb", "C:Basic.mdb",
                           "./Basic.mdb", "a//Basic.mdb", "a\\Basic.mdb", "a/./Basic.mdb"}) {
    makeZip(wrong, {{name, "x"}, {"haeon-backup.txt", "haeon backup 1\nfile " + sum + " 1 " + name + '\n'}});
    EXPECT_EQ(refused(), 321) << name;
  }
  // A list that tells of other bytes, of more, of fewer files.
  const QByteArray other = QCryptographicHash::hash("y", QCryptographicHash::Sha256).toHex();
  const auto listed = [](const QByteArray& hash, const char* size) {
    return "haeon backup 1\nfile " + hash + ' ' + size + " Basic.mdb\n";
  };
  makeZip(wrong, {{"Basic.mdb", "x"}, {"haeon-backup.txt", listed(other, "1")}});
  EXPECT_EQ(refused(), 321);
  makeZip(wrong, {{"Basic.mdb", "x"}, {"haeon-backup.txt", listed(sum, "2")}});
  EXPECT_EQ(refused(), 321);
  makeZip(wrong, {{"Basic.mdb", "x"}, {"more.mdb", "y"}, {"haeon-backup.txt", listed(sum, "1")}});
  EXPECT_EQ(refused(), 321);
  makeZip(wrong, {{"haeon-backup.txt", listed(sum, "1")}});
  EXPECT_EQ(refused(), 321);
  // A list of another kind, an empty one, one that is not the last, one without end, a name twice.
  makeZip(wrong,
          {{"Basic.mdb", "x"}, {"haeon-backup.txt", listed(sum, "1").replace("backup 1", "backup 2")}});
  EXPECT_EQ(refused(), 321);
  makeZip(wrong, {{"haeon-backup.txt", "haeon backup 1\n"}});
  EXPECT_EQ(refused(), 321);
  makeZip(wrong, {{"haeon-backup.txt", listed(sum, "1")}, {"Basic.mdb", "x"}});
  EXPECT_EQ(refused(), 321);
  makeZip(wrong, {{"Basic.mdb", "x"}, {"haeon-backup.txt", listed(sum, "1") + QByteArray(4 << 20, '\n')}});
  EXPECT_EQ(refused(), 321);
  makeZip(wrong, {{"Basic.mdb", "x"}, {"BASIC.mdb", "x"}, {"haeon-backup.txt", listed(sum, "1")}});
  EXPECT_EQ(refused(), 321);
  makeZip(wrong,
          {{"dbTax.mdb", "x"}, {"haeon-backup.txt", "haeon backup 1\nfile " + sum + " 1 dbTax.mdb\n"}});
  const auto [number, text] = failureOf([&] { restore("C:\\RWGas\\wrong.zip"); });
  EXPECT_EQ(number, 321);
  EXPECT_TRUE(text.contains("Basic.mdb 가 들어 있지 않아"));
  EXPECT_EQ(books(), before);
}

/** No file of this process grows beyond so many bytes: what a full disk does to a write. */
struct SmallFiles {
  explicit SmallFiles(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &before);
    rlimit less = before;
    less.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &less);
  }
  ~SmallFiles() { ::setrlimit(RLIMIT_FSIZE, &before); }
  rlimit before;
};

TEST_F(BackupTest, AFullDiskAndAStopLeaveBooksAndArchivesAsTheyWere) {
  for (const int full : {ENOSPC, EDQUOT, EFBIG})
    EXPECT_EQ(failureOf([&] { backup::failWriting("x", full); }).second,
              "x\n디스크 공간이 부족하여 쓸 수 없습니다.");
  EXPECT_EQ(failureOf([&] { backup::failWriting("x", EACCES); }),
            std::pair(75, u"x\n파일이나 폴더를 쓸 수 없습니다. 경로와 쓰기 권한을 확인하십시오."_s));
  EXPECT_TRUE(backup::flushToDisk(native(dataFolder)));
  EXPECT_FALSE(backup::flushToDisk(native(dataFolder + "nowhere")));
  const QString archive = make().archive;
  pc.clock.set(QDateTime(QDate(2026, 3, 16), QTime(11, 0)));
  const auto before = books(), shelved = contentsOf(native(settings.folder));
  for (const rlim_t room : {rlim_t(1000), rlim_t(20'000)}) {
    const SmallFiles full(room);
    EXPECT_EQ(failureOf([&] { make(); }).first, 61);
    EXPECT_EQ(failureOf([&] { restore(archive); }).first, 61);
    EXPECT_FALSE(QFileInfo::exists(native(preparedFolder(dataFolder))));
  }
  int told = 0;
  const int steps = [&] {
    make(Series::Support, [&](const QString&, qint64, qint64) { return ++told > 0; });
    return told;
  }();
  ASSERT_GT(steps, 20);
  for (const QString& name : shelf().filter("-AS-")) QFile::remove(native(settings.folder) + u'/' + name);
  for (int stop = 1; stop <= steps; stop += 5) {
    told = 0;
    EXPECT_THROW(make(Series::Books, [&](const QString&, qint64, qint64) { return ++told < stop; }),
                 backup::Stopped)
        << stop;
    ASSERT_EQ(contentsOf(native(settings.folder)), shelved) << "stopped at " << stop;
  }
  EXPECT_EQ(books(), before);
}

TEST_F(BackupTest, EveryStepIsDoneBeforeTheArchiveHasItsNameAndTheFilesAreFreeAfterTheCopy) {
  QStringList steps;
  qint64 last = 0, all = 0, sizes = 0;
  for (const QByteArray& file : books()) sizes += file.size();
  const qint64 count = books().size();
  const auto wasFull = [&] {
    if (steps.isEmpty()) return;
    EXPECT_EQ(last, steps.last() == "자료 검사" ? all - 1 : all) << steps.last().toStdString();
  };
  make(Series::Books, [&](const QString& what, qint64 done, qint64 total) {
    const QString step = what.section(u':', 0, 0);
    if (steps.isEmpty() || steps.last() != step) {
      wasFull();
      steps << step;
      last = 0;
    }
    EXPECT_GE(done, last) << what.toStdString();
    EXPECT_EQ(total, step == "자료 검사" ? count : sizes) << what.toStdString();
    last = done;
    all = total;
    EXPECT_TRUE(shelf().filter("해온판매").isEmpty()) << what.toStdString();
    jet::Workspace::Options impatient;
    impatient.busyMilliseconds = 1;
    const int failure =
        failureOf([&] { jet::Workspace(impatient).OpenDatabase(native(dataFolder + "Basic.mdb")); }).first;
    EXPECT_EQ(failure == 0, step != u"복사")
        << what.toStdString() << ": other PCs wait for the copy, and for it alone";
    return true;
  });
  wasFull();
  EXPECT_EQ(steps, (QStringList{"복사", "자료 검사", "압축", "확인"}));
}

TEST_F(BackupTest, AnArchiveThatChangedSinceItWasLookedAtIsNotPutBack) {
  const QString archive = native(make().archive);
  backup::ArchiveFacts facts = backup::verify(archive, nobody);
  facts.files.first().sum = QByteArray(64, '0');
  const QString place = folder.path() + "/fresh";
  EXPECT_EQ(failureOf([&] { backup::unpack(archive, facts, place, nobody); }).first, 321);
}

TEST_F(BackupTest, TheServersCopyIsReadBackAndItsCommandMustEndWell) {
  settings.serverFolder = "Z:\\백업\\";
  QDir().mkpath(folder.path() + "/z");
  const backup::BackupDone done = make();
  const QString archive = done.archive, copy = settings.serverFolder + nameOf(done),
                sent = folder.path() + "/sent.zip";
  settings.serverCommand = "cp %1 " + sent;
  backup::sendToServer(pc, archive, settings, nobody);
  EXPECT_EQ(bytesOf(native(copy)), bytesOf(native(archive)));
  EXPECT_EQ(bytesOf(sent), bytesOf(native(archive)));
  settings.serverCommand = "sh -c \"cp '%1' '" + sent + "-2' && cp '%1' '" + sent + "-3'\"";
  settings.serverFolder.clear();
  backup::sendToServer(pc, archive, settings, nobody);
  EXPECT_EQ(bytesOf(sent + "-2") + bytesOf(sent + "-3"), bytesOf(native(archive)) + bytesOf(native(archive)))
      << "within a word, and as often as it stands there";
  settings.serverFolder = "Z:\\백업\\";
  settings.serverCommand = "sh -c \"echo 연결 실패; exit 3\" %1";
  QFile::remove(native(copy));
  const auto [number, text] = failureOf([&] { backup::sendToServer(pc, archive, settings, nobody); });
  EXPECT_EQ(number, 75);
  EXPECT_TRUE(text.contains("연결 실패")) << text.toStdString();
  settings.serverFolder.clear();
  settings.serverCommand = "no-such-program %1";
  EXPECT_EQ(failureOf([&] { backup::sendToServer(pc, archive, settings, nobody); }).first, 75);
  settings.serverCommand = "sleep 600";
  EXPECT_THROW(
      backup::sendToServer(pc, archive, settings, [](const QString&, qint64, qint64) { return false; }),
      backup::Stopped);
  settings = {"C:\\RWGas\\BackUp\\", 3, dataFolder + "메모.txt\\", {}, true};
  EXPECT_EQ(failureOf([&] { backup::sendToServer(pc, archive, settings, nobody); }).first, 75)
      << "a file stands there";
}

TEST_F(BackupTest, SettingsComeBackAndNonsenseIsHeldWithinBounds) {
  EXPECT_EQ(backup::readSettings(pc), (backup::Settings{"C:\\RWGas\\BackUp\\", 10, {}, {}, true}));
  const backup::Settings chosen{"D:\\보관\\", 7, "Z:\\s\\", "scp %1 a:b", false};
  EXPECT_TRUE(backup::writeSettings(pc, {" D:\\보관", 7, "Z:\\s", "scp %1 a:b ", false}));
  EXPECT_EQ(backup::readSettings(pc), chosen);
  EXPECT_EQ(pc.settings.GetSetting("Backup", "설정", "서버명령"), "scp %1 a:b");
  for (const auto& [written, keep] : {std::pair("0", 1), {"1", 1}, {"99", 99}, {"100", 99}, {"x", 10}}) {
    pc.settings.SaveSetting("Backup", "설정", "보관개수", written);
    EXPECT_EQ(backup::readSettings(pc).keep, keep) << written;
  }
  EXPECT_TRUE(backup::writeSettings(pc, {"/mnt/보관", 7, "D:\\a/", " ", false}));
  EXPECT_EQ(backup::readSettings(pc), (backup::Settings{"/mnt/보관/", 7, "D:\\a/", {}, false}));
  EXPECT_EQ(backup::dataFolderToPack(pc), installedDataFolder());
  pc.settings.SaveSetting("Backup", "DB경로", "경로", "D:\\DBS");
  EXPECT_EQ(backup::dataFolderToPack(pc), "D:\\DBS\\");
}

TEST_F(BackupTest, ABrokenOffSwapIsFinishedAndNeverThrowsBooksAway) {
  const pc::Paths& paths = pc.paths;
  const auto before = books();
  // Killed while it was filled: rubbish.
  beginPreparing(paths, dataFolder, pc.clock.now());
  write(preparedFolder(dataFolder) + "\\Basic.mdb", "half");
  beginPreparing(paths, dataFolder, pc.clock.now());
  EXPECT_EQ(contentsOf(native(preparedFolder(dataFolder))).keys(), QStringList{".unfinished"});
  dropPrepared(paths, dataFolder);
  // Killed right after the exchange, before the old books had their dated name.
  QDir().mkdir(native(preparedFolder(dataFolder)));
  write(preparedFolder(dataFolder) + "\\Basic.mdb", "old books");
  EXPECT_FALSE(finishSwap(paths, dataFolder)) << "the books are there";
  beginPreparing(paths, dataFolder, pc.clock.now());
  const QStringList kept = QDir(native("C:\\RWGas")).entryList({"Dbs-이전-20260316-*"}, QDir::Dirs);
  ASSERT_EQ(kept.size(), 1);
  EXPECT_EQ(bytesOf(native("C:\\RWGas\\" + kept.first()) + "/Basic.mdb"), "old books");
  dropPrepared(paths, dataFolder);
  // Three put aside within one second.
  for (const char* const name : {"", "-2", "-3"}) {
    beginPreparing(paths, dataFolder, pc.clock.now());
    for (const auto& [file, bytes] : before.asKeyValueRange())
      write(preparedFolder(dataFolder) + u'\\' + file, bytes);
    EXPECT_EQ(swapIn(paths, dataFolder, QDateTime(QDate(2026, 3, 16), QTime(18, 5, 7))),
              "C:\\RWGas\\Dbs-이전-20260316-180507" + QString::fromLatin1(name));
  }
  // Killed between two renamings.
  QDir().rename(native(dataFolder), native(preparedFolder(dataFolder)));
  ASSERT_FALSE(QFileInfo::exists(native(dataFolder)));
  session.DbPath = dataFolder;
  EXPECT_TRUE(prepareDataFolder(session)) << "the next start";
  EXPECT_EQ(books(), before);
}

}  // namespace
