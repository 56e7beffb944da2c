#pragma once
// A retailer's desk for the sale tests: books of their own, scripted searches, a queue of calls.
#include <deque>

#include "tests/answers.h"
#include "tests/idle_context.h"
#include "tests/master/other_pc.h"
#include "tests/support.h"
#include "trade/sale_entry.h"

namespace tests {

using namespace Qt::StringLiterals;

/** Answers the searches from a queue and notes in asked: "client TEXT mode whole", "item KIND" or "purchase KIND",
 *  "person", "station". */
class TradePickers : public IdlePickers {
 public:
  std::deque<std::optional<ClientChoice>> clients;
  std::deque<std::optional<ItemChoice>> items;
  std::deque<std::optional<QString>> persons, refills;
  std::function<void()> during;

  std::optional<ClientChoice> searchClient(const QString& text, ClientSearchMode mode, bool whole) override {
    asked << u"client %1 %2 %3"_s.arg(text).arg(int(mode)).arg(int(whole));
    return take(clients);
  }
  std::optional<ItemChoice> searchSize(const QString& kind, TradeSide side) override {
    asked << (side == TradeSide::Sale ? "item " : "purchase ") + kind;
    return take(items);
  }
  std::optional<QString> searchResponse() override {
    asked << "person";
    return take(persons);
  }
  std::optional<QString> searchRefill() override {
    asked << "station";
    return take(refills);
  }

 private:
  template <typename Answer>
  std::optional<Answer> take(std::deque<std::optional<Answer>>& answers) {
    if (during) during();
    if (answers.empty()) return {};
    auto now = answers.front();
    answers.pop_front();
    return now;
  }
};

struct CallQueue : WaitingCalls {
  QStringList numbers;
  QString OldestStanbyNumber() const override { return numbers.value(0); }
  QString TakeStanbyNumber() override { return numbers.isEmpty() ? QString() : numbers.takeFirst(); }
};

/** 5 March 2026, stock management on, one gas, one fitting and three customers. */
struct SaleDesk {
  enum { Plain = 1, Household = 2, Metered = 3 };

  TestPc pc;
  TradePickers pickers;
  CallQueue calls;

  SaleDesk() {
    pc.openBooks({2026, 3, 5});
    pc.session.StockEnabled = true;
    run("Insert Into Client(Code, Name, Tel, PostCode, Address, HouseStyle, GasInit, UtilInit, VolumeYesNo, "
        "Memo) Values(1, '산골식당', '053-123-4567', '706-010', '대구 수성구 1', 0, 100000, 5000, False, "
        "'뒷문')");
    run("Insert Into Client(Code, Name, Tel1, BDName, Dong, Ho, HouseStyle, GasInit, UtilInit, VolumeYesNo) "
        "Values(2, '김', '234-5678', '한빛', '101', '202', 1, 0, 0, False)");
    run("Insert Into Client(Code, Name, UName, BDName, Dong, HouseStyle, GasInit, UtilInit, VolumeYesNo) "
        "Values(3, '박', '345-6789', '별빛', '3', 2, 0, 0, True)");
    insertRows(pc.session.dbBasic, "LPG(LPGName, Size, LPGStock, CANTotalHold, CANLoan, CANEmpty, CANFull)",
               {"'LPG', '20', 1000, 100, 10, 40, 50", "'LPG', '50', 1000, 100, 10, 40, 50"});
    run("Insert Into Util(Name, Size, UtilStock) Values('밸브', '15A', 30)");
  }

  void run(const QString& sql) { pc.session.dbYear.Execute(sql); }
  /** A sale line of these values, in the order of the columns; what is left out is as in a new row. */
  void sold(const QString& values) { sold(values, pc.session.dbYear); }
  static void sold(const QString& values, const jet::Database& file) {
    static const QStringList columns{"SaleDate", "ClientCode", "SaleGubun", "Gubun",  "SaleName", "SaleThing",
                                     "SaleNum",  "SaleUnit",   "DC",        "Income", "Trust",    "Response"};
    file.Execute("Insert Into Sale(" + columns.first(values.count(',') + 1).join(", ") + ") Values(" +
                 values + ")");
  }
  /** Rows as texts, cells with "|" and rows with ";" between them. */
  QString rows(const QString& sql) { return rowsOf(pc.session.dbYear, sql); }
  /** Kilograms, held, lent, empty, full. */
  QString stock(const QString& size = "20") {
    return rows("Select LPGStock, CANTotalHold, CANLoan, CANEmpty, CANFull From LPG Where Size = '" + size +
                "'");
  }
  /** Receivables for gas and for materials. */
  QString balance(int client = Plain) {
    return rows("Select GasInit, UtilInit From Client Where Code = " + QString::number(client));
  }
};

/** The desk with the sale screen's rules, the general sheet of the day open. */
struct OpenSale : testing::Test, SaleDesk {
  SaleBook posting{pc.session};
  SaleEntry entry{posting, pickers, calls};

  OpenSale() { posting.FillSaleGrid(SaleSheet::General, true); }
};

/** A second PC on the desk's folder, with the sale screen's rules. */
struct OtherDesk {
  OtherPc at;
  ScriptedPrompts& prompts = at.prompts;
  TradePickers pickers;
  CallQueue calls;
  SaleBook posting{at.session};
  SaleEntry entry{posting, pickers, calls};

  explicit OtherDesk(SaleDesk& desk) : at(desk.pc) {
    at.pc.clock.set(desk.pc.pc.clock.now());
    at.session.StockEnabled = true;
    posting.setDate(at.pc.clock.dateText().right(5));
    posting.FillSaleGrid(SaleSheet::General, true);
  }
};

}  // namespace tests
