#include "tests/storm/swept_works.h"

#include <QDir>

#include "app/start_up.h"
#include "backup/data_folder_alone.h"
#include "backup/make_backup.h"
#include "backup/restore.h"
#include "billing/collection_import.h"
#include "billing/reading_commands.h"
#include "billing/reading_edit.h"
#include "billing/reading_load.h"
#include "billing/reading_sheet.h"
#include "master/customers/client_register.h"
#include "store/folder_swap.h"
#include "store/rate_book.h"
#include "tests/store/old_books.h"
#include "tests/storm/builder.h"
#include "tests/storm/closer.h"
#include "tests/storm/packer.h"
#include "tests/storm/poster.h"
#include "tests/storm/sweep.h"
#include "trade/sale_entry.h"

namespace storm {
namespace {

constexpr int newReading = 150;

struct Posting : Work {
  explicit Posting(Pc& here) : posting(here.session) {
    posting.FillSaleGrid(SaleSheet::General, true);
    pickers.client = {7, "손님7"};
    pickers.item = {"LPG", "20", 41000, 0};
    steps_ = {[this] { chooseClient(); }, [this] { entry.finishCell(row, LineCol::Kind, "가스"); },
              [this] { entry.enterKey(row, LineCol::Item, {}); },
              [this] { entry.finishCell(row, LineCol::Number, "3"); },
              [this] { entry.finishCell(row, LineCol::Paid, "20000"); }};
  }
  /** The sheet then shows the customer's lines, with a free row. */
  void chooseClient() {
    const int last = posting.grid().MaxRows();
    if (const int chosen = entry.enterKey(last, LineCol::Partner, "손님").row) row = chosen;
  }
  ChosenPickers pickers;
  tests::IdleCalls calls;
  SaleBook posting;
  SaleEntry entry{posting, pickers, calls};
  int row = 0;
};

struct Deleting : Work {
  explicit Deleting(Pc& here) : posting(here.session) {
    posting.FillSaleGrid(SaleSheet::General, true);
    for (const QString kind : {"가스", "용대", "수금"}) steps_.push_back([this, kind] { erase(kind); });
  }
  /** The line that stands in the first row of a kind; when it is gone from the book, its deletion is done. */
  void erase(const QString& kind) {
    const SpreadModel& grid = posting.grid();
    for (int row = 1; row <= grid.MaxRows(); ++row)
      if (grid.text(row, LineCol::Kind) == kind && !grid.text(row, LineCol::Key).isEmpty()) {
        posting.deleteRow(row);
        return;
      }
  }
  SaleBook posting;
};

struct Reading : Work {
  explicit Reading(Pc& here) : sheet(here.session) {
    here.session.DelayCalcFlag = "0";
    readRateBook(here.session);
    sheet.month = readMonth;
    fillBuildings(sheet);
    showReadings(sheet);
    for (const int row : {1, 2, 3})
      steps_.push_back(
          [this, row] { finishReadingCell(sheet, row, EvaCol::UseGage, QString::number(newReading + row)); });
  }
  ReadingSheet sheet;
};

struct Recalculating : Reading {
  explicit Recalculating(Pc& here) : Reading(here) {
    steps_ = {[this] { recalculate(sheet, {}); }};
  }
  bool hasMoreStates() const override { return true; }
};

struct Building : Work {
  explicit Building(Pc& here) : builder(here) {
    builder.list();
    steps_ = {[this] { builder.make(7, 2, 3); }, [this] { builder.remove(7); }};
  }
  Builder builder;
};

struct Collecting : Work {
  explicit Collecting(Pc& here) : import(here.session) {
    steps_ = {[this] { import.run("2026", "03"); }};
  }
  bool hasMoreStates() const override { return true; }
  CollectionImport import;
};

struct Closing : Work {
  explicit Closing(Pc& on) : here(on) {
    steps_ = {[this] { closeYear(here.session, loneScreen()); }};
  }
  Pc& here;
};

void bill(ClientEntry& boxes) {
  boxes.volume = true;
  boxes.pressure = "10";
  boxes.volumeUnit = "2000";
}

struct Registering : Work {
  explicit Registering(Pc& here) : clients(here.session) {
    clients.loadPage(HouseStyle::Individual);
    steps_ = {[this] {
                ClientEntry boxes = clients.beginNew();
                boxes.name = "국밥집";
                bill(boxes);
                clients.save(boxes);
              },
              [this] {
                ClientEntry boxes = clients.select(3);
                boxes.memo = "단골";
                bill(boxes);
                clients.save(boxes);
              },
              [this] {
                clients.select(clientCount + 1);
                clients.removeChosen();
              }};
  }
  ClientRegister clients;
};

struct Starting : Work {
  explicit Starting(Pc& on) : here(on), startUp(on.session) {
    steps_ = {[this] {
      // One who did not come to the sign-in has not started, whether or not a box has told why.
      if (!startUp.SubMain([this] { startUp.load(); }) || !here.session.dbYear.isOpen())
        here.prompts.MsgWarn("not started", {});
      startUp.shutDown();
    }};
  }
  bool opensAnew() const override { return true; }
  Pc& here;
  StartUp startUp;
};

/** A backup of the folder, which no form of this PC has open. */
struct Packing : Work {
  explicit Packing(Pc& on) : here(on) {
    steps_ = {[this] {
      makeBackup(here.pc, here.session.DbPath, backup::readSettings(here.pc), backup::Series::Books,
                 hold(here), {});
    }};
  }
  Pc& here;
};

/** An archive of older books put back. */
struct Restoring : Work {
  explicit Restoring(Pc& on) : here(on) {
    steps_ = {[this] {
      const QString archive = archivesOf(here.pc.paths, backup::readSettings(here.pc)).value(0).path;
      if (archive.isEmpty()) throw jet::Error(backup::notAnArchive, "백업이 없음");
      finishSwap(here.pc.paths, here.session.DbPath);
      const backup::ArchiveFacts facts = backup::verify(here.pc.paths.native(archive), {});
      auto held = hold(here);
      prepareRestore(here.pc, here.session.DbPath, archive, facts, {});
      finishRestore(here.pc, here.session.DbPath, std::move(held));
    }};
  }
  Pc& here;
};

QByteArray payment(int client, int won) {
  return "22" + QByteArray(11, '7') + "0316" + QByteArray(32, '5') +
         QByteArray::number(client).rightJustified(19, '0') + '9' +
         QByteArray::number(won).rightJustified(13, '0') + QByteArray(10, '3') + "\r\n";
}

void copyFolder(const QString& from, const QString& to) {
  QDir().mkpath(to);
  for (const QString& name : QDir(from).entryList(QDir::Files))
    QFile::copy(from + u'/' + name, to + u'/' + name);
}

}  // namespace

const QStringList& sweptWorks() {
  static const QStringList works{"post",   "delete", "read",  "recalculate", "build",   "collect",
                                 "client", "close",  "start", "first-start", "back-up", "restore"};
  return works;
}

void makeBooksFor(const QString& work, const QString& root) {
  if (work == u"first-start") return;
  Pc here(root);
  if (work == u"start") {
    tests::TestPc old;
    tests::makeOldBooks(old);
    const QString folder = old.pc.paths.native(here.session.DbPath);
    QFile::remove(folder + "/2026Foundation.mdb");
    copyFolder(folder, here.pc.paths.native(here.session.DbPath));
    return;
  }
  here.makeBooks();
  postLines(here, 5, 60);
  if (work == u"recalculate" || work == u"collect") {
    Reading reading(here);
    for (const auto& step : reading.steps()) step();
    here.session.dbBasic.Execute("Update User Set Security = 1500");
  }
  if (work == u"close") {
    writeDecember(here, 5);
    closeYear(here.session, loneScreen());
    workInNextYear(here, 1);
  }
  here.close();
  if (work == u"restore") {
    Packing(here).steps().front()();
    here.open();
    postLines(here, 6, 10);
    here.close();
  }
  QFile file(here.pc.paths.native("C:\\RWGas\\202603.txt"));
  if (!file.open(QIODevice::WriteOnly)) return;
  for (const int client : {1, 2, 3}) file.write(payment(clientCount + client, 1000 * client));
}

QString leftBeside(const QString& work, const QString& root) {
  QString shelf;
  if (work != u"back-up") return shelf;
  const Pc here(root);
  for (const backup::ShelfArchive& archive : archivesOf(here.pc.paths, backup::readSettings(here.pc)))
    shelf += QString::number(backup::verify(here.pc.paths.native(archive.path), {}).files.size()) + u'\n';
  return shelf;
}

std::unique_ptr<Work> makeWork(const QString& work, Pc& here) {
  if (work.endsWith("start")) return std::make_unique<Starting>(here);
  if (work == u"back-up") return std::make_unique<Packing>(here);
  if (work == u"restore") return std::make_unique<Restoring>(here);
  here.open();
  if (work == u"post") return std::make_unique<Posting>(here);
  if (work == u"delete") return std::make_unique<Deleting>(here);
  if (work == u"read") return std::make_unique<Reading>(here);
  if (work == u"recalculate") return std::make_unique<Recalculating>(here);
  if (work == u"build") return std::make_unique<Building>(here);
  if (work == u"close") return std::make_unique<Closing>(here);
  if (work == u"collect") return std::make_unique<Collecting>(here);
  return std::make_unique<Registering>(here);
}

}  // namespace storm
