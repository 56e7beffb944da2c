// Registers on two PCs of one folder: what one writes while the other has the row on the screen is neither written over
// nor written twice.
#include "master/buildings/building_register.h"
#include "master/catalogue/gas_catalogue.h"
#include "master/catalogue/util_catalogue.h"
#include "master/catalogue/volume_register.h"
#include "master/customers/client_register.h"
#include "master/partners/bank_register.h"
#include "master/partners/refill_register.h"
#include "master/partners/response_register.h"
#include "tests/answers.h"
#include "tests/master/other_pc.h"

using namespace Qt::StringLiterals;

namespace {

struct RegistersOnTwoPcs : testing::Test {
  RegistersOnTwoPcs() {
    here.openBooks(QDate(2026, 6, 15));
    there = std::make_unique<tests::OtherPc>(here);
    const auto fill = [this](const QString& into, const QString& row) {
      tests::insertRows(here.session.dbBasic, into, {row});
    };
    fill("LPG(LPGName, Size, LPGPurchase, LPGSelling, LPGStock, CANTotalHold, CANLoan, CANFull, CANEmpty)",
         "'LPG', '20', 30000, 38000, 600, 45, 5, 30, 10");
    fill("Util(Name, Size, SizeSize, UtilPurchase, UtilSelling, UtilStock)",
         "'밸브', '15A', '개', 1200, 2000, 48");
    fill("RefillState(Company, User, Tel, GasInit, UtilInit, Code)",
         "'한강충전소', '이한강', '02-345-6789', 1000000, 0, '0001'");
    fill("Response(Name, Tel)", "'김배달', '031-234-5678'");
    fill("Bank(BName, BNumber, BUser)", "'국민은행', '001-01', '김해온'");
    fill("APT(Name, Dong, PostCode, Address, Structure, Height, Width, Gubun)",
         "'한빛', '101', '700-010', '동인동 1', True, 5, 2, True");
    fill("Client(Name, Tel, Address, GasInit, UtilInit, HouseStyle, PayWay)",
         "'김철수', '053-123-4567', '중앙로 1', 12500, 0, 0, 1");
  }
  void run(const QString& sql) { here.session.dbBasic.Execute(sql); }
  QString stored(const QString& what) { return tests::rowsOf(here.session.dbBasic, "Select " + what); }

  tests::TestPc here;
  std::unique_ptr<tests::OtherPc> there;
};

/** One register with one row, a column that anybody changes and, where it has one, a running figure. */
struct Register {
  std::unique_ptr<RegisterRules> (*make)(Session&);
  QString table, column, typed, elsewhere, question;
  QString figure = {};
  /** Of the regulators there are more than one. */
  QString from() const { return " From " + table + (table == "Volume" ? " Where Code = 1" : ""); }
  QString update(const QString& to) const {
    return "Update " + table + " Set " + column + " = '" + to +
           (table == "Volume" ? "' Where Code = 1" : "'");
  }
};

template <class Rules, auto... More>
std::unique_ptr<RegisterRules> made(Session& session) {
  return std::make_unique<Rules>(session, More...);
}

std::vector<Register> registers() {
  const QString asks = "위와 같이 변경";
  return {
      {made<GasCatalogue>, "LPG", "LPGSelling", "39000", "40000", asks, "CANFull"},
      {made<UtilCatalogue>, "Util", "SizeSize", "통", "box", asks, "UtilStock"},
      {made<RefillRegister>, "RefillState", "Tel", "02-111-1111", "02-222-2222", {}, "GasInit"},
      {made<ResponseRegister>, "Response", "Tel", "02-111-1111", "02-222-2222", asks},
      {made<VolumeRegister>, "Volume", "Name", "이름", "다른이름", {}},
      {made<BankRegister>, "Bank", "BUser", "박해온", "이해온", {}},
      {made<BuildingRegister, HouseStyle::Apartment>, "APT", "Address", "동인동 2", "동인동 3", "모든 가구"}};
}

/** The boxes of a form: no key, no figure that is only shown. */
RegisterFields boxesOf(RegisterFields record) {
  for (const QString without : {"Code", "CANTotalHold", "Gubun"}) record.remove(without);
  return record;
}

/** The registers one after the other, the first row on the screen. */
struct EachRegister : RegistersOnTwoPcs {
  using Work = std::function<void(const Register& is, RegisterRules& rules, RegisterFields& boxes)>;
  void each(const Work& work) {
    for (const Register& is : registers()) {
      SCOPED_TRACE(is.table.toStdString());
      const auto rules = is.make(here.session);
      rules->load();
      RegisterFields boxes = boxesOf(rules->select(1));
      work(is, *rules, boxes);
    }
  }
  /** Those with a running figure, of which 7 are taken off elsewhere; figure: as it was on the screen. */
  void eachPosted(const std::function<void(const Register& is, RegisterFields& boxes, int figure)>& typed,
                  int moved) {
    each([&](const Register& is, RegisterRules& rules, RegisterFields& boxes) {
      if (is.figure.isEmpty()) return;
      const QString figure = is.figure + " From " + is.table;
      const int before = stored(figure).toInt();
      there->run("Update " + is.table + " Set " + is.figure + " = " + is.figure + " - 7");
      asks(is);
      typed(is, boxes, before);
      EXPECT_TRUE(rules.save(boxes).done);
      EXPECT_EQ(stored(figure).toInt(), before - 7 + moved);
    });
  }
  void asks(const Register& is) {
    if (!is.question.isEmpty()) here.prompts.expect(is.question);
  }
};

TEST_F(EachRegister, AFigureThatWasLeftAloneFollowsThePostingsElsewhere) {
  eachPosted([](const Register& is, RegisterFields& boxes, int) { boxes[is.column] = is.typed; }, 0);
  for (const Register& is : registers()) {
    if (!is.figure.isEmpty()) {
      EXPECT_EQ(stored(is.column + " From " + is.table), is.typed);
    }
  }
}

TEST_F(EachRegister, ACorrectedFigureIsMovedByTheDifferenceAndTold) {
  eachPosted(
      [this](const Register& is, RegisterFields& boxes, int figure) {
        boxes[is.figure] = QString::number(figure + 2);
        here.prompts.expect("고친 차이 +2만 더하여");
      },
      2);
  EXPECT_EQ(stored("CANTotalHold, LPGStock From LPG"), "40|600") << "10 empty, 25 full after all, 5 lent";
}

TEST_F(EachRegister, WhatAnotherPcWroteIsKeptOrAskedAbout) {
  each([this](const Register& is, RegisterRules& rules, RegisterFields& boxes) {
    there->run(is.update(is.elsewhere));

    // Left alone here: what the other wrote stays.
    asks(is);
    here.prompts.expect("바뀐 대로 두고 저장했습니다");
    EXPECT_TRUE(rules.save(boxes).done);
    EXPECT_EQ(stored(is.column + is.from()), is.elsewhere);

    // Changed here too: asked, and no is no.
    boxes = boxesOf(rules.select(1));
    boxes[is.column] = is.typed;
    const QString third = is.table == "LPG" ? "41000" : "third";
    there->run(is.update(third));
    asks(is);
    here.prompts.expect("같은 칸을 먼저 바꾸었습니다", false);
    const auto refused = rules.save(boxes);
    EXPECT_FALSE(refused.done);
    EXPECT_EQ(refused.focus, is.column);
    EXPECT_EQ(stored(is.column + is.from()), third);
    asks(is);
    here.prompts.expect("같은 칸을 먼저 바꾸었습니다");
    EXPECT_TRUE(rules.save(boxes).done);
    EXPECT_EQ(stored(is.column + is.from()), is.typed);
  });
}

TEST_F(RegistersOnTwoPcs, ADeletionLooksAgainAtARowThatMovedAndARowThatIsGoneIsTold) {
  for (const Register& is : registers()) {
    SCOPED_TRACE(is.table.toStdString());
    const bool regulators = is.table == u"Volume";
    if (regulators) run("Insert Into Volume(Size, Name, Unit) Values('R8', '특수', 1500)");
    const int row = regulators ? 8 : 1;
    const auto rules = is.make(here.session);
    rules->load();
    const RegisterFields shown = boxesOf(rules->select(row));
    const QString where = regulators ? " Where Code = 8" : QString();
    there->run("Update " + is.table + " Set " + is.column + " = '" + is.elsewhere + "'" + where);
    const auto ask = [&] {
      here.prompts.expect(is.table == "APT" ? "모두 지우시겠습니까?" : "삭제하시겠습니까?");
      if (is.table == u"APT") here.prompts.expect("모든 메뉴에서의 자료를 삭제합니다!");
    };
    ask();
    here.prompts.expect("바뀐 자료이므로 삭제하지 않았습니다!");
    EXPECT_FALSE(rules->remove().done);
    EXPECT_EQ(rules->selectedRow(), row) << "the row as it is now, still chosen";
    EXPECT_EQ(rules->select(row)[is.column], is.elsewhere);

    there->run("Delete * From " + is.table + where);
    ask();
    here.prompts.expect("이미 삭제된 자료입니다!");
    EXPECT_EQ(rules->remove().end, RowEnd::Gone);
    EXPECT_EQ(rules->list().MaxRows(), row - 1);
  }
}

TEST_F(EachRegister, ASaveOfADeletedRowWritesNothingAndSaysSo) {
  each([this](const Register& is, RegisterRules& rules, RegisterFields& boxes) {
    there->run("Delete * From " + is.table);
    boxes[is.column] = is.typed;
    asks(is);
    here.prompts.expect("입력한 내용은 칸에 남아 있습니다.");
    EXPECT_EQ(rules.save(boxes).end, RowEnd::Gone);
    EXPECT_EQ(rules.list().MaxRows(), 0);
    EXPECT_EQ(stored("Count(*) From " + is.table), "0");
  });
}

TEST_F(RegistersOnTwoPcs, TheChosenRowStaysChosenWhenTheListGrowsBeforeIt) {
  run("Insert into Util(Name, Size) Values('호스', '3m')");
  UtilCatalogue util(here.session);
  util.load();
  RegisterFields boxes = boxesOf(util.select(2));
  there->run("Delete * From Util Where Name = '밸브'");
  boxes["SizeSize"] = "m";
  here.prompts.expect("위와 같이 변경");
  EXPECT_TRUE(util.save(boxes).done);
  EXPECT_EQ(util.selectedRow(), 1);
  EXPECT_EQ(util.list().text(1, 1), "호스");
}

TEST_F(RegistersOnTwoPcs, ATextThatItsBoxShowsOtherwiseStaysAsItIs) {
  RefillRegister refills(here.session);
  refills.load();
  RegisterFields shown = boxesOf(refills.select(1));
  shown["Tel"] = "02 345 6789";
  RegisterFields boxes = shown;
  boxes["Fax"] = "02-345-6780";
  EXPECT_TRUE(refills.save(boxes, shown).done);
  EXPECT_EQ(stored("Tel & Fax From RefillState"), "02-345-678902-345-6780");
}

TEST_F(RegistersOnTwoPcs, SuppliersOfTwoPcsGetCodesOfTheirOwn) {
  RefillRegister first(here.session), second(there->session);
  first.load();
  second.load();
  first.beginNew();
  second.beginNew();
  EXPECT_TRUE(first.save({{"Company", "가"}}).done);
  EXPECT_TRUE(second.save({{"Company", "나"}}).done);
  EXPECT_EQ(stored("Code From RefillState Where Company = '나'"), "0003");
}

/** An operator who thinks: while he is asked about a column, something happens elsewhere. */
struct SlowHand : tests::ScriptedPrompts {
  std::function<void()> meanwhile;
  bool MsgAsk(const QString& text, const QString& title, bool yesFirst) override {
    const bool answer = ScriptedPrompts::MsgAsk(text, title, yesFirst);
    if (meanwhile && text.contains("같은 칸을")) std::exchange(meanwhile, {})();
    return answer;
  }
};

TEST_F(RegistersOnTwoPcs, WhatHappensWhileTheOperatorIsAskedCountsToo) {
  SlowHand hand;
  Session slow(here.pc, hand);
  slow.DbPath = here.session.DbPath;
  slow.wsMain = openWorkspace(slow, slow.DbPath);
  slow.dbBasic = slow.wsMain.OpenDatabase(slow.DbPath + "Basic.mdb");
  RefillRegister refills(slow);
  refills.load();
  RegisterFields boxes = boxesOf(refills.select(1));
  boxes["Tel"] = "02-111-1111";
  there->run("Update RefillState Set Tel = '02-222-2222'");
  hand.meanwhile = [this] {
    there->run("Update RefillState Set Fax = '02-333-3333', GasInit = GasInit - 7");
  };
  hand.expect("같은 칸을 먼저");
  hand.expect("같은 칸을 먼저");  // about the row as it stands by then
  hand.expect("바뀐 대로 두고 저장했습니다.\n");
  EXPECT_TRUE(refills.save(boxes).done);
  EXPECT_EQ(stored("Tel & Fax From RefillState"), "02-111-111102-333-3333");
  EXPECT_EQ(stored("GasInit From RefillState"), "999993");

  boxes = boxesOf(refills.select(1));
  boxes["Tel"] = "02-444-4444";
  there->run("Update RefillState Set Tel = '02-555-5555'");
  hand.meanwhile = [this] { there->run("Delete * From RefillState"); };
  hand.expect("같은 칸을 먼저");
  hand.expect("이미 삭제된 자료입니다!");
  EXPECT_EQ(refills.save(boxes).end, RowEnd::Gone);
}

// --- customers ------------------------------------------------------------------------------------------------

struct CustomersOnTwoPcs : RegistersOnTwoPcs {
  ClientRegister clients{here.session};
  ClientEntry boxes;

  CustomersOnTwoPcs() {
    clients.loadPage(HouseStyle::Individual);
    boxes = clients.selectRow(1);
  }
  void saved(const QString& told) {
    here.prompts.expect("위와 같이");
    here.prompts.expect(told);
    EXPECT_TRUE(clients.save(boxes).done);
  }
};

TEST_F(CustomersOnTwoPcs, ABalancePostedMeanwhileSurvivesTheSaveOfACustomer) {
  there->run("Update Client Set GasInit = GasInit + 38000, LastDate = '2026-06-15', Address = '중앙로 9'");
  boxes.memo = "계단";
  saved("바뀐 대로 두고 저장했습니다.\n주소");
  EXPECT_EQ(stored("GasInit, Address, Memo From Client"), "50500|중앙로 9|계단");
  EXPECT_EQ(clients.list(HouseStyle::Individual).text(1, 3), "50500");

  boxes = clients.selectRow(1);
  there->run("Update Client Set GasInit = GasInit - 500");
  boxes.gasInit = "50,000";
  saved("고친 차이 -500만 더하여 49,500(으)로 저장했습니다.");
  EXPECT_EQ(stored("GasInit From Client"), "49500");

  boxes = clients.selectRow(1);
  boxes.gasInit.clear();
  here.prompts.expect("가스미수 칸은 비워 둘 수 없습니다!");
  EXPECT_EQ(clients.save(boxes).focus, ClientBox::GasInit);
}

TEST_F(CustomersOnTwoPcs, ACustomerDeletedElsewhereBecomesANewEntryAndAMovedOneIsNotDeleted) {
  there->run("Update Client Set GasInit = GasInit + 38000");
  here.prompts.expect("선택된 고객자료를 삭제하시겠습니까?");
  here.prompts.expect("바뀐 자료이므로 삭제하지 않았습니다!");
  EXPECT_EQ(clients.removeChosen(), RowEnd::Changed);
  EXPECT_EQ(stored("Count(*) From Client"), "1");

  there->run("Delete * From Client");
  boxes.memo = "계단";
  here.prompts.expect("위와 같이");
  here.prompts.expect("입력한 내용은 칸에 남아 있습니다.");
  EXPECT_FALSE(clients.save(boxes).done);
  EXPECT_TRUE(clients.isNew());
  EXPECT_EQ(clients.list(HouseStyle::Individual).MaxRows(), 0);
  EXPECT_TRUE(clients.save(boxes).done);
  EXPECT_EQ(stored("Memo From Client"), "계단");
}

}  // namespace
