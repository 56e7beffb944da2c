// A month of the meter book: computed and carried for every customer; a building made with all its households.
#include <memory>

#include "bench/books.h"
#include "bench/pairs.h"
#include "billing/reading_commands.h"
#include "billing/reading_load.h"
#include "billing/reading_sheet.h"
#include "master/buildings/building_households.h"
#include "store/rate_book.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int price = 2450, fee = 1000;

/** Metered shops 1 to size, read in February and in March. */
void makeMeterBook(bench::Books& books, int size) {
  books.addClients(size);
  Session& session = books.session;
  session.dbBasic.Execute("Update Client Set VolumeYesNo = True, VolumeUnit = " + QString::number(price));
  session.wsMain.Together([&] {
    for (int code = 1; code <= size; ++code)
      for (int month = 0; month <= 12; ++month) {
        const bool read = month == 2 || month == 3;
        session.dbYear.Execute(
            "Insert Into Evaporation(ClientCode, Mon, UseGage, UsePay, Trust, Total, PrntDay) Values(" +
            QString::number(code) + ", " + QString::number(month) + ", " +
            QString::number(read ? month * 10 : 0) + ", " + (month == 2 ? "24500" : "0") + ", " +
            (month == 3 ? "10000" : "0") + ", 0, '03/02')");
      }
  });
  session.DelayCalcFlag = "0";
  bench::require(readRateBook(session), "rates");
}

/** One row by hand: the mark of the month before, use, money, charge, total, the row and the next month's arrears. */
struct PlainBill {
  explicit PlainBill(bench::Plain& plain)
      : db(plain.db()),
        rule(plain.prepare("SELECT PayState FROM User")),
        mark(plain.prepare("SELECT paydelayed FROM y.Evaporation WHERE ClientCode = ?1 AND Mon = ?2")),
        day(plain.prepare(
            "SELECT PrntDay, ChkMan, CashMan FROM y.Evaporation WHERE ClientCode = ?1 AND Mon = ?2")),
        save(plain.prepare(
            "UPDATE y.Evaporation SET UseGage = ?1, UseMuch = ?2, UsePay = ?3, Trust = ?4, Delay = ?5, "
            "Manage = ?6, Total = ?7, Pay = ?8, Prnt = 0, paydelayed = 0, PrntDay = ?9, TrustDay = '' "
            "WHERE ClientCode = ?10 AND Mon = ?11")),
        carry(plain.prepare("UPDATE y.Evaporation SET Trust = ?1 WHERE ClientCode = ?2 AND Mon = ?3")) {}

  sqlite3_int64 first(sqlite3_stmt* statement) {
    const sqlite3_int64 value =
        sqlite3_step(statement) == SQLITE_ROW ? sqlite3_column_int64(statement, 0) : 0;
    return value;
  }

  /** The company's rule of rounding may change while another PC works: it is read for every sum, as the program does. */
  double tens(double won) {
    const sqlite3_int64 payState = first(rule);
    sqlite3_reset(rule);
    bench::require(payState == 1, "the rule");
    return double(sqlite3_int64(won) / 10 * 10);
  }

  void bill(int code, double before, double now, double arrears) {
    constexpr int month = 3;
    sqlite3_bind_int(day, 1, code);
    sqlite3_bind_int(day, 2, month);
    first(day);
    const std::string readingDay(reinterpret_cast<const char*>(sqlite3_column_text(day, 0)));
    sqlite3_reset(day);
    sqlite3_bind_int(mark, 1, code);
    sqlite3_bind_int(mark, 2, month - 1);
    bench::require(first(mark) == 0, "no mark");
    sqlite3_reset(mark);
    const double use = now - before, amount = price * use, late = tens(2.0 * arrears / 100);
    const double total = tens(amount + arrears + late + fee);
    const double values[] = {now, use, amount, arrears, late, fee, total, 0};
    for (int at = 0; at < 8; ++at) sqlite3_bind_double(save, at + 1, values[at]);
    sqlite3_bind_text(save, 9, readingDay.c_str(), -1, SQLITE_TRANSIENT);
    sqlite3_bind_int(save, 10, code);
    sqlite3_bind_int(save, 11, month);
    bench::step(save);
    sqlite3_bind_double(carry, 1, total);
    sqlite3_bind_int(carry, 2, code);
    sqlite3_bind_int(carry, 3, month + 1);
    bench::step(carry);
  }

  sqlite3* db;
  sqlite3_stmt *rule, *mark, *day, *save, *carry;
};

const char* const billColumns = "ClientCode, Mon, UseGage, UseMuch, UsePay, Trust, Delay, Manage, Total, Pay";

void monthPair(int size, bench::Side& ours, bench::Side& plain) {
  auto books = std::make_shared<bench::Books>();
  makeMeterBook(*books, size);
  auto beside = std::make_shared<bench::Plain>(*books);
  auto byHand = std::make_shared<PlainBill>(*beside);
  auto sheet = std::make_shared<ReadingSheet>(books->session);
  sheet->book = HouseStyle::Individual;
  sheet->month = 3;
  showReadings(*sheet);
  bench::require(sheet->grid.MaxRows() == size, "rows");
  ours.run = [books, sheet] { recalculate(*sheet, {}); };
  ours.outcome = [books] {
    return bench::rowsOf(books->session.dbYear,
                         u"Select %1 From Evaporation Where Mon > 2"_s.arg(billColumns));
  };
  plain.run = [beside, byHand, size] {
    bench::exec(beside->db(), "BEGIN IMMEDIATE");
    for (int code = 1; code <= size; ++code) byHand->bill(code, 20, 30, 10000);
    bench::exec(beside->db(), "COMMIT");
  };
  plain.outcome = [beside] {
    const std::string sql = std::string("SELECT ") + billColumns + " FROM y.Evaporation WHERE Mon > 2";
    return bench::rowsOf(beside->prepare(sql.c_str()));
  };
}

const int recalculation = bench::addPair(
    {"recalculating and carrying a month, a household each", 1.5, {100, 1000, 10000}, monthPair});

// ---- a building

void buildingPair(int size, bench::Side& ours, bench::Side& plain) {
  auto books = std::make_shared<bench::Books>();
  auto beside = std::make_shared<bench::Plain>(*books);
  auto turn = std::make_shared<int>(0);
  QStringList units;
  for (int unit = 0; unit < size; ++unit) units << QString::number(100 + unit);
  ours.run = [books, units, turn] {
    Building block;
    block.name = "달빛아파트";
    block.dong = QString::number(++*turn);
    block.postCode = "712-010";
    block.address = "경북 달빛시 장터동 1";
    block.metered = true;
    block.pressure = "4";
    block.unitPrice = QString::number(price);
    block.lateRate = "2";
    makeBuilding(books->session, block, units, {});
  };
  sqlite3_stmt* client = beside->prepare(
      "INSERT INTO Client(Name, HouseStyle, BDName, Dong, Ho, PostCode, Address, VolumeYesNo, Volume, "
      "VolumeUnit, "
      "PayWay, AppDate) VALUES(?1, 1, ?2, '1', ?3, '712-010', '경북 달빛시 장터동 1', -1, '4', 2450, 2, "
      "'2026-03-16')");
  sqlite3_stmt* newest = beside->prepare("SELECT MAX(Code) FROM Client");
  sqlite3_stmt* meter = beside->prepare("INSERT INTO y.Evaporation(ClientCode, Mon) VALUES(?1, ?2)");
  plain.run = [beside, client, newest, meter, size] {
    bench::exec(beside->db(), "BEGIN IMMEDIATE");
    bench::exec(beside->db(), "INSERT INTO APT(Name, Dong) VALUES('달빛아파트', '1')");
    bench::exec(beside->db(),
                "INSERT INTO Client(Name, BDName, Dong) VALUES('달빛아파트 1동', '달빛아파트', '1')");
    for (int unit = 0; unit < size; ++unit) {
      const std::string number = std::to_string(100 + unit), name = "달빛아파트 1동 " + number + "호";
      sqlite3_bind_text(client, 1, name.c_str(), -1, SQLITE_TRANSIENT);
      sqlite3_bind_text(client, 2, "달빛아파트", -1, SQLITE_STATIC);
      sqlite3_bind_text(client, 3, number.c_str(), -1, SQLITE_TRANSIENT);
      bench::step(client);
      bench::require(sqlite3_step(newest) == SQLITE_ROW, "code");
      const sqlite3_int64 code = sqlite3_column_int64(newest, 0);
      sqlite3_reset(newest);
      for (int month = 0; month <= 12; ++month) {
        sqlite3_bind_int64(meter, 1, code);
        sqlite3_bind_int(meter, 2, month);
        bench::step(meter);
      }
    }
    bench::exec(beside->db(), "COMMIT");
  };
  ours.outcome = [books] {
    return bench::rowsOf(books->session.dbYear,
                         u"Select BDName, Ho, Mon From Client Inner Join Evaporation On "
                         "Client.Code = Evaporation.ClientCode"_s);
  };
  plain.outcome = [beside] {
    return bench::rowsOf(
        beside->prepare("SELECT BDName, Ho, Mon FROM Client JOIN y.Evaporation ON Client.Code = ClientCode"));
  };
}

const int building = bench::addPair(
    {"making a building: households with their thirteen meter rows", 1.2, {10, 100, 1000}, buildingPair});

}  // namespace
