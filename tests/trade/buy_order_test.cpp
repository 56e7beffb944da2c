// Purchases entered, changed, moved and deleted on two PCs in any order, while stations get other names: what is owed and
// what lies in stock is at every moment what the lines add up to.
#include <QHash>

#include <random>

#include "master/partners/refill_register.h"
#include "tests/trade/buy_desk.h"

using namespace Qt::StringLiterals;

namespace {

using tests::BuyDesk;

/** One PC's screen, and each line as it was when it was last read or written here. */
struct Buyer {
  tests::ScriptedPrompts& prompts;
  Session& session;
  tests::TradePickers pickers;
  BuyBook book{session};
  BuyEntry entry{book, pickers};
  QHash<QString, QString> knows;

  Buyer(tests::ScriptedPrompts& boxes, Session& on) : prompts(boxes), session(on) { read(); }
  void read() {
    book.FillBuyGrid(true);
    knows.clear();
    for (int row = 1; row < cells().MaxRows(); ++row) learn(cells().text(row, LineCol::Key));
  }
  SpreadModel& cells() { return book.grid(); }
  /** All that a screen writes of a line; '' of one that is gone. */
  QString stored(const QString& key) const {
    const auto line = session.dbYear.OpenRecordset("Select * From Buy Where BuyID = " + key);
    QStringList texts;
    for (int at = 0; at < line.fieldNames().size() && !line.atEnd(); ++at) texts << line[at].toText();
    return texts.join('|');
  }
  void learn(const QString& key) { knows[key] = stored(key); }
  bool isBehind(const QString& key) const { return knows.value(key) != stored(key); }
};

class AnyOrder : public testing::Test {
 protected:
  AnyOrder()
      : there_(desk_.pc), here{desk_.pc.prompts, desk_.pc.session}, there{there_.prompts, there_.session} {
    there_.pc.clock.set(desk_.pc.pc.clock.now());
    there_.session.StockEnabled = true;
  }

  int roll(int below) { return int(dice_() % quint32(below)); }
  QString won() { return QString::number(roll(200) * 500); }

  /** A row that holds a line; 0 when there is none. */
  int someRow(Buyer& of) { return of.cells().MaxRows() > 1 ? 1 + roll(of.cells().MaxRows() - 1) : 0; }

  void begin(Buyer& of) {
    of.read();
    of.pickers.refills.push_back(names_[roll(2)]);
    const int row = of.entry.enterKey(of.cells().MaxRows(), LineCol::Partner, {}).row;
    of.entry.enteredRow(row);
    const LineKind& kind = buyKinds()[size_t(roll(int(buyKinds().size())))];
    of.cells().text(row, LineCol::Kind) == kind.label ? of.entry.enterKey(row, LineCol::Kind, kind.label)
                                                      : of.entry.finishCell(row, LineCol::Kind, kind.label);
    if (kind.isPayment()) {
      of.prompts.expect("선택된 자료를 변경하시겠습니까?");
      of.entry.finishCell(row, LineCol::Paid, won());
    } else {
      const bool fitting = kind.code == BuyMaterial;
      of.pickers.items.push_back(ItemChoice{fitting ? "밸브" : "LPG",
                                            fitting   ? "15A"
                                            : roll(2) ? "20"
                                                      : "50",
                                            double(roll(50) * 1000), 0});
      of.entry.search(row, LineCol::Item, {});
    }
    of.read();
  }

  void change(Buyer& of) {
    const int row = someRow(of);
    if (row == 0) return;
    const QString key = of.cells().text(row, LineCol::Key);
    const bool moved = of.isBehind(key), payment = of.book.kindOf(row).isPayment();
    const int what = roll(5);
    if (what == 0) {
      of.prompts.expect("선택한 자료를 삭제하시겠습니까?");
    } else if (what == 1) {
      of.prompts.expect("선택된 구매처를 수정하시겠습니까?");
      of.pickers.refills.push_back(names_[of.cells().text(row, LineCol::Code) == names_[0] ? 1 : 0]);
    } else {
      of.prompts.expect("선택된 자료를 변경하시겠습니까?");
    }
    if (moved) of.prompts.expect("다른 PC에서");
    if (what == 0)
      of.book.deleteRow(row);
    else if (what == 1)
      of.entry.search(row, LineCol::Partner, of.cells().text(row, LineCol::Partner));
    else if (what == 2 && !payment)
      of.entry.finishCell(row, LineCol::Number, QString::number(roll(30)));
    else if (what == 3 && !payment)
      of.entry.finishCell(row, LineCol::Amount, won());
    else
      of.entry.finishCell(row, LineCol::Paid, won());
    if (moved || what == 0)
      of.read();  // as the screen has done
    else
      of.learn(key);
  }

  void rename(Buyer& of) {
    const int station = roll(2);
    RefillRegister stations(of.session);
    ASSERT_TRUE(stations.load());
    RegisterFields boxes = stations.select(station + 1);
    names_[station] = u"%1 %2"_s.arg(station ? "낙동" : "한강").arg(++renamed_);
    boxes["Company"] = names_[station];
    ASSERT_TRUE(stations.save(boxes).done);
  }

  QString sum(const QString& what, const QString& where) {
    return QString::number(desk_.rows("Select Sum(" + what + ") From Buy Where " + where).toLongLong());
  }
  void expectEverythingRight() {
    QStringList owed;
    for (const auto& [station, gas, fittings] :
         {std::tuple(names_[0], 200000, 7000), std::tuple(names_[1], 0, 0)}) {
      const QString of = u"BuyCompany = '%1' And "_s.arg(station);
      const qint64 onGas = sum("Trust", of + "PurchaseGubun In (1, 2, 3, 5, 6)").toLongLong() -
                           sum("Pay", of + "PurchaseGubun = 7").toLongLong();
      const qint64 onFittings = sum("Trust", of + "PurchaseGubun = 4").toLongLong() -
                                sum("Pay", of + "PurchaseGubun = 8").toLongLong();
      owed << QString::number(gas + onGas) + '|' + QString::number(fittings + onFittings);
    }
    EXPECT_EQ(desk_.owed(), owed.join(';'));
    for (const char* const size : {"20", "50"}) {
      const auto pieces = [&](int kind) {
        return sum("PurchaseNum", u"BuyThing = '%1' And PurchaseGubun = %2"_s.arg(size).arg(kind))
            .toLongLong();
      };
      const qint64 gas = pieces(1), empty = pieces(2), full = pieces(3), left = pieces(5), back = pieces(6);
      QStringList stock;
      for (const qint64 count : {1000 + (gas + full) * QString(size).toLongLong(), 100 + empty + full,
                                 10 + left - back, 40 - gas + empty - left + back, 50 + gas + full})
        stock << QString::number(count);
      EXPECT_EQ(desk_.stock(size), stock.join('|')) << size;
    }
    EXPECT_EQ(desk_.rows("Select UtilStock From Util").toLongLong(),
              30 + sum("PurchaseNum", "PurchaseGubun = 4").toLongLong());
  }

  BuyDesk desk_;
  tests::OtherPc there_;
  Buyer here, there;
  QString names_[2] = {"한강", "낙동"};
  int renamed_ = 0;
  std::mt19937 dice_{20260305};
};

TEST_F(AnyOrder, OfPurchasesOnTwoPcs) {
  for (int step = 0; step < 250 && !HasFailure(); ++step) {
    SCOPED_TRACE("step " + std::to_string(step));
    Buyer& of = roll(2) ? here : there;
    if (roll(3) == 0) of.read();
    if (roll(10) == 0)
      rename(of);
    else
      roll(4) == 0 ? begin(of) : change(of);
    expectEverythingRight();
  }
  EXPECT_GT(desk_.rows("Select Count(*) From Buy").toInt(), 5);
  EXPECT_GT(renamed_, 10);
}

}  // namespace
