// Deliveries posted by the rules, each line flushed to the disk before the next.
#include <memory>

#include "bench/books.h"
#include "bench/pairs.h"
#include "trade/sale_book.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int customers = 1000;

/** The same delivery as ours below: the line begun, then filled, balance and stock moved; two flushes. */
struct PlainDelivery {
  explicit PlainDelivery(bench::Plain& plain)
      : db(plain.db()),
        begin(plain.prepare("BEGIN IMMEDIATE")),
        commit(plain.prepare("COMMIT")),
        insert(plain.prepare(
            "INSERT INTO y.Sale(SaleList, DealList, SaleDate, ClientCode, SaleGubun, Gubun, SaleThing) "
            "VALUES(0, 0, ?1, ?2, 1, 0, '0')")),
        newest(plain.prepare("SELECT MAX(SaleID) FROM y.Sale")),
        before(plain.prepare("SELECT Trust, Income FROM y.Sale WHERE SaleID = ?1")),
        balance(plain.prepare("UPDATE Client SET GasInit = GasInit + ?1 - ?2 WHERE Code = ?3")),
        stored(plain.prepare("SELECT * FROM y.Sale WHERE SaleID = ?1")),
        stock(plain.prepare(
            "UPDATE LPG SET LPGStock = LPGStock + ?1, CANFull = CANFull + ?2, CANEmpty = CANEmpty + ?3 "
            "WHERE Size = ?4 AND LPGName = ?5")),
        fill(plain.prepare(
            "UPDATE y.Sale SET SaleDate = ?1, ClientCode = ?2, Response = ?3, SaleName = ?4, SaleThing = "
            "?5, SaleUnit = ?6, SaleNum = ?7, SaleGubun = 1, Gubun = 0, Income = ?8, DC = ?9, Trust = ?10 "
            "WHERE SaleID = ?11")),
        lastDate(plain.prepare("UPDATE Client SET LastDate = ?1 WHERE Code = ?2")) {}

  static void text(sqlite3_stmt* statement, int at, const char* value) {
    sqlite3_bind_text(statement, at, value, -1, SQLITE_STATIC);
  }
  static void whole(sqlite3_stmt* statement, int at, sqlite3_int64 value) {
    sqlite3_bind_int64(statement, at, value);
  }
  sqlite3_int64 first(sqlite3_stmt* statement) {
    bench::require(sqlite3_step(statement) == SQLITE_ROW, "a row");
    const sqlite3_int64 value = sqlite3_column_int64(statement, 0);
    sqlite3_reset(statement);
    return value;
  }

  void post(int client) {
    bench::step(begin);
    text(insert, 1, "2026-03-16");
    whole(insert, 2, client);
    bench::step(insert);
    const sqlite3_int64 key = first(newest);
    bench::step(commit);

    bench::step(begin);
    whole(before, 1, key);
    const sqlite3_int64 oldTrust = first(before);
    whole(balance, 1, 7000);
    whole(balance, 2, oldTrust);
    whole(balance, 3, client);
    bench::step(balance);
    whole(stored, 1, key);
    first(stored);
    whole(stock, 1, -20);
    whole(stock, 2, -1);
    whole(stock, 3, 1);
    text(stock, 4, "20");
    text(stock, 5, "LPG");
    bench::step(stock);
    text(fill, 1, "2026-03-16");
    whole(fill, 2, client);
    text(fill, 3, "홍길수");
    text(fill, 4, "LPG");
    text(fill, 5, "20");
    whole(fill, 6, 27000);
    whole(fill, 7, 1);
    whole(fill, 8, 20000);
    whole(fill, 9, 0);
    whole(fill, 10, 7000);
    whole(fill, 11, key);
    bench::step(fill);
    text(lastDate, 1, "2026-03-16");
    whole(lastDate, 2, client);
    bench::step(lastDate);
    bench::step(commit);
  }

  sqlite3* db;
  sqlite3_stmt *begin, *commit, *insert, *newest, *before, *balance, *stored, *stock, *fill, *lastDate;
};

void postByTheRules(SaleBook& posting, int client) {
  SpreadModel& grid = posting.grid();
  grid.setMaxRows(0);
  grid.setMaxRows(1);
  const auto set = [&](int col, const QString& text) { grid.setText(1, col, text); };
  set(LineCol::Date, u"03-16"_s);
  set(LineCol::Code, QString::number(client));
  grid.setComboPosition(1, LineCol::Kind, 0);
  posting.postRow(1);
  set(LineCol::Item, joinItem({u"LPG"_s, u"20"_s}));
  set(LineCol::Number, u"1"_s);
  set(LineCol::Unit, u"27000"_s);
  set(LineCol::Discount, u"0"_s);
  set(LineCol::Amount, u"27000"_s);
  set(LineCol::Paid, u"20000"_s);
  set(LineCol::Trust, u"7000"_s);
  set(LineCol::Person, u"홍길수"_s);
  posting.postRow(1);
}

const char* const postedColumns =
    "SaleDate, ClientCode, SaleName, SaleThing, SaleUnit, SaleNum, SaleGubun, Gubun, Income, DC, Trust";

void postingPair(int size, bench::Side& ours, bench::Side& plain) {
  auto books = std::make_shared<bench::Books>(customers);
  auto beside = std::make_shared<bench::Plain>(*books);
  auto posting = std::make_shared<SaleBook>(books->session);
  auto delivery = std::make_shared<PlainDelivery>(*beside);
  ours.run = [books, posting, size] {
    for (int at = 0; at < size; ++at) postByTheRules(*posting, 1 + at % customers);
  };
  ours.outcome = [books] {
    return bench::rowsOf(books->session.dbYear, u"Select "_s + postedColumns + u" From Sale"_s);
  };
  plain.run = [beside, delivery, size] {
    for (int at = 0; at < size; ++at) delivery->post(1 + at % customers);
  };
  plain.outcome = [beside] {
    return bench::rowsOf(beside->prepare((std::string("SELECT ") + postedColumns + " FROM y.Sale").c_str()));
  };
}

const int deliveries = bench::addPair(
    {"posting sale lines by the rules, every step flushed", 1.2, {100, 1000, 10000}, postingPair, 3});

}  // namespace
