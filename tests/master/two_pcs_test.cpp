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
#include "tests/master/other_pc.h"

using namespace Qt::StringLiterals;

namespace {

struct RegistersOnTwoPcs : testing::Test {
  RegistersOnTwoPcs() {
    here.openBooks(QDate(2026, 6, 15));
    there = std::make_unique<tests::OtherPc>(here);
    run(u"Insert Into LPG(LPGName, Size, LPGPurchase, LPGSelling, LPGStock, CANTotalHold, CANLoan, CANFull, "
        u"CANEmpty) "
        u"Values('LPG', '20', 30000, 38000, 600, 45, 5, 30, 10)"_s);
    run(u"Insert into Util(Name, Size, SizeSize, UtilPurchase, UtilSelling, UtilStock) Values('밸브', '15A', "
        u"'개', 1200, "
        u"2000, 48)"_s);
    run(u"Insert into RefillState(Company, User, Tel, GasInit, UtilInit, Code) Values('한강충전소', "
        u"'이한강', "
        u"'02-345-6789', 1000000, 0, '0001')"_s);
    run(u"Insert Into Response(Name, Tel) Values('김배달', '031-234-5678')"_s);
    run(u"Insert Into Bank(BName, BNumber, BUser) Values('국민은행', '001-01', '김해온')"_s);
    run(u"Insert Into APT(Name, Dong, PostCode, Address, Structure, Height, Width, Gubun) Values('한빛', "
        u"'101', "
        u"'700-010', '동인동 1', True, 5, 2, True)"_s);
    run(u"Insert into Client(Name, Tel, Address, GasInit, UtilInit, HouseStyle, PayWay) Values('김철수', "
        u"'053-123-4567', "
        u"'중앙로 1', 12500, 0, 0, 1)"_s);
  }
  void run(const QString& sql) { here.session.dbBasic.Execute(sql); }
  QString stored(const QString& what) {
    return here.session.dbBasic.OpenRecordset(u"Select "_s + what)[0].toText();
  }

  tests::TestPc here;
  std::unique_ptr<tests::OtherPc> there;
};

/** One register with one row, a column that anybody changes and, where it has one, a running figure. */
struct Register {
  std::function<std::unique_ptr<RegisterRules>(Session&)> make;
  QString table, column, typed, elsewhere, question;
  QString figure = {};
};

std::vector<Register> registers() {
  const auto of = [](auto make) { return make; };
  return {
      {of([](Session& s) -> std::unique_ptr<RegisterRules> { return std::make_unique<GasCatalogue>(s); }),
       u"LPG"_s, u"LPGSelling"_s, u"39000"_s, u"40000"_s, u"위와 같이 변경"_s, u"CANFull"_s},
      {of([](Session& s) -> std::unique_ptr<RegisterRules> { return std::make_unique<UtilCatalogue>(s); }),
       u"Util"_s, u"SizeSize"_s, u"통"_s, u"box"_s, u"위와 같이 변경"_s, u"UtilStock"_s},
      {of([](Session& s) -> std::unique_ptr<RegisterRules> { return std::make_unique<RefillRegister>(s); }),
       u"RefillState"_s,
       u"Tel"_s,
       u"02-111-1111"_s,
       u"02-222-2222"_s,
       {},
       u"GasInit"_s},
      {of([](Session& s) -> std::unique_ptr<RegisterRules> { return std::make_unique<ResponseRegister>(s); }),
       u"Response"_s, u"Tel"_s, u"02-111-1111"_s, u"02-222-2222"_s, u"위와 같이 변경"_s},
      {of([](Session& s) -> std::unique_ptr<RegisterRules> { return std::make_unique<VolumeRegister>(s); }),
       u"Volume"_s,
       u"Name"_s,
       u"이름"_s,
       u"다른이름"_s,
       {}},
      {of([](Session& s) -> std::unique_ptr<RegisterRules> { return std::make_unique<BankRegister>(s); }),
       u"Bank"_s,
       u"BUser"_s,
       u"박해온"_s,
       u"이해온"_s,
       {}},
      {of([](Session& s) -> std::unique_ptr<RegisterRules> {
         return std::make_unique<BuildingRegister>(s, HouseStyle::Apartment);
       }),
       u"APT"_s, u"Address"_s, u"동인동 2"_s, u"동인동 3"_s, u"모든 가구"_s},
  };
}

/** The boxes of a form: no key, no figure that is only shown. */
RegisterFields boxesOf(RegisterFields record) {
  for (const QString& without : {u"Code"_s, u"CANTotalHold"_s, u"Gubun"_s}) record.remove(without);
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
      const QString figure = is.figure + u" From "_s + is.table;
      const int before = stored(figure).toInt();
      there->run(u"Update "_s + is.table + u" Set "_s + is.figure + u" = "_s + is.figure + u" - 7"_s);
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
      EXPECT_EQ(stored(is.column + u" From "_s + is.table), is.typed);
    }
  }
}

TEST_F(EachRegister, ACorrectedFigureIsMovedByTheDifferenceAndTold) {
  eachPosted(
      [this](const Register& is, RegisterFields& boxes, int figure) {
        boxes[is.figure] = QString::number(figure + 2);
        here.prompts.expect(u"고친 차이 +2만 더하여"_s);
      },
      2);
  // 10 empty, 25 full after all, 5 lent.
  EXPECT_EQ(stored(u"CANTotalHold From LPG"_s), u"40"_s);
  EXPECT_EQ(stored(u"LPGStock From LPG"_s), u"600"_s);
}

TEST_F(EachRegister, WhatAnotherPcWroteIsKeptOrAskedAbout) {
  each([this](const Register& is, RegisterRules& rules, RegisterFields& boxes) {
    const QString clause =
        u" From "_s + is.table + (is.table == u"Volume" ? u" Where Code = 1"_s : QString());
    const QString update =
        u"Update "_s + is.table + u" Set "_s + is.column + u" = '"_s + is.elsewhere + u"'"_s;
    there->run(is.table == u"Volume" ? update + u" Where Code = 1"_s : update);

    // Left alone here: what the other wrote stays.
    asks(is);
    here.prompts.expect(u"바뀐 대로 두고 저장했습니다"_s);
    EXPECT_TRUE(rules.save(boxes).done);
    EXPECT_EQ(stored(is.column + clause), is.elsewhere);

    // Changed here too: asked, and no is no.
    boxes = boxesOf(rules.select(1));
    boxes[is.column] = is.typed;
    const QString third = is.table == u"LPG" ? u"41000"_s : u"third"_s;
    there->run(QString(update).replace(is.elsewhere, third) +
               (is.table == u"Volume" ? u" Where Code = 1"_s : QString()));
    asks(is);
    here.prompts.expect(u"같은 칸을 먼저 바꾸었습니다"_s, false);
    const auto refused = rules.save(boxes);
    EXPECT_FALSE(refused.done);
    EXPECT_EQ(refused.focus, is.column);
    EXPECT_EQ(stored(is.column + clause), third);
    asks(is);
    here.prompts.expect(u"같은 칸을 먼저 바꾸었습니다"_s);
    EXPECT_TRUE(rules.save(boxes).done);
    EXPECT_EQ(stored(is.column + clause), is.typed);
  });
}

TEST_F(RegistersOnTwoPcs, ADeletionLooksAgainAtARowThatMovedAndARowThatIsGoneIsTold) {
  for (const Register& is : registers()) {
    SCOPED_TRACE(is.table.toStdString());
    const bool regulators = is.table == u"Volume";
    if (regulators) run(u"Insert Into Volume(Size, Name, Unit) Values('R8', '특수', 1500)"_s);
    const int row = regulators ? 8 : 1;
    const auto rules = is.make(here.session);
    rules->load();
    const RegisterFields shown = boxesOf(rules->select(row));
    const QString where = regulators ? u" Where Code = 8"_s : QString();
    there->run(u"Update "_s + is.table + u" Set "_s + is.column + u" = '"_s + is.elsewhere + u"'"_s + where);
    const auto ask = [&] {
      here.prompts.expect(is.table == u"RefillState" ? u"삭제하시겠습니까?"_s
                          : is.table == u"APT"
                              ? u"모두 지우시겠습니까?"_s
                              : u"자료를 삭제하시겠습니까?"_s.mid(is.table == u"Bank" ? 0 : 4));
      if (is.table == u"APT") here.prompts.expect(u"모든 메뉴에서의 자료를 삭제합니다!"_s);
    };
    ask();
    here.prompts.expect(u"바뀐 자료이므로 삭제하지 않았습니다!"_s);
    EXPECT_FALSE(rules->remove().done);
    EXPECT_EQ(rules->selectedRow(), row) << "the row as it is now, still chosen";
    EXPECT_EQ(rules->select(row)[is.column], is.elsewhere);

    there->run(u"Delete * From "_s + is.table + where);
    ask();
    here.prompts.expect(u"이미 삭제된 자료입니다!"_s);
    EXPECT_EQ(rules->remove().end, RowEnd::Gone);
    EXPECT_EQ(rules->list().MaxRows(), row - 1);
  }
}

TEST_F(EachRegister, ASaveOfADeletedRowWritesNothingAndSaysSo) {
  each([this](const Register& is, RegisterRules& rules, RegisterFields& boxes) {
    there->run(u"Delete * From "_s + is.table);
    boxes[is.column] = is.typed;
    asks(is);
    here.prompts.expect(u"입력한 내용은 칸에 남아 있습니다."_s);
    EXPECT_EQ(rules.save(boxes).end, RowEnd::Gone);
    EXPECT_EQ(rules.list().MaxRows(), 0);
    EXPECT_EQ(stored(u"Count(*) From "_s + is.table), u"0"_s);
  });
}

TEST_F(RegistersOnTwoPcs, TheChosenRowStaysChosenWhenTheListGrowsBeforeIt) {
  run(u"Insert into Util(Name, Size) Values('호스', '3m')"_s);
  UtilCatalogue util(here.session);
  util.load();
  RegisterFields boxes = boxesOf(util.select(2));
  there->run(u"Delete * From Util Where Name = '밸브'"_s);
  boxes[u"SizeSize"_s] = u"m"_s;
  here.prompts.expect(u"위와 같이 변경"_s);
  EXPECT_TRUE(util.save(boxes).done);
  EXPECT_EQ(util.selectedRow(), 1);
  EXPECT_EQ(util.list().text(1, 1), u"호스"_s);
}

TEST_F(RegistersOnTwoPcs, ATextThatItsBoxShowsOtherwiseStaysAsItIs) {
  RefillRegister refills(here.session);
  refills.load();
  RegisterFields shown = boxesOf(refills.select(1));
  shown[u"Tel"_s] = u"02 345 6789"_s;
  RegisterFields boxes = shown;
  boxes[u"Fax"_s] = u"02-345-6780"_s;
  EXPECT_TRUE(refills.save(boxes, shown).done);
  EXPECT_EQ(stored(u"Tel & Fax From RefillState"_s), u"02-345-678902-345-6780"_s);
}

TEST_F(RegistersOnTwoPcs, SuppliersOfTwoPcsGetCodesOfTheirOwn) {
  RefillRegister first(here.session), second(there->session);
  first.load();
  second.load();
  first.beginNew();
  second.beginNew();
  EXPECT_TRUE(first.save({{u"Company"_s, u"가"_s}}).done);
  EXPECT_TRUE(second.save({{u"Company"_s, u"나"_s}}).done);
  EXPECT_EQ(stored(u"Code From RefillState Where Company = '나'"_s), u"0003"_s);
}

/** An operator who thinks: while he is asked about a column, something happens elsewhere. */
struct SlowHand : tests::ScriptedPrompts {
  std::function<void()> meanwhile;
  bool MsgAsk(const QString& text, const QString& title, bool yesFirst) override {
    const bool answer = ScriptedPrompts::MsgAsk(text, title, yesFirst);
    if (meanwhile && text.contains(u"같은 칸을"_s)) std::exchange(meanwhile, {})();
    return answer;
  }
};

TEST_F(RegistersOnTwoPcs, WhatHappensWhileTheOperatorIsAskedCountsToo) {
  SlowHand hand;
  Session slow(here.pc, hand);
  slow.DbPath = here.session.DbPath;
  slow.wsMain = openWorkspace(slow, slow.DbPath);
  slow.dbBasic = slow.wsMain.OpenDatabase(slow.DbPath + u"Basic.mdb"_s);
  RefillRegister refills(slow);
  refills.load();
  RegisterFields boxes = boxesOf(refills.select(1));
  boxes[u"Tel"_s] = u"02-111-1111"_s;
  there->run(u"Update RefillState Set Tel = '02-222-2222'"_s);
  hand.meanwhile = [this] {
    there->run(u"Update RefillState Set Fax = '02-333-3333', GasInit = GasInit - 7"_s);
  };
  hand.expect(u"같은 칸을 먼저"_s);
  hand.expect(u"같은 칸을 먼저"_s);  // about the row as it stands by then
  hand.expect(u"바뀐 대로 두고 저장했습니다.\n"_s);
  EXPECT_TRUE(refills.save(boxes).done);
  EXPECT_EQ(stored(u"Tel & Fax From RefillState"_s), u"02-111-111102-333-3333"_s);
  EXPECT_EQ(stored(u"GasInit From RefillState"_s), u"999993"_s);

  boxes = boxesOf(refills.select(1));
  boxes[u"Tel"_s] = u"02-444-4444"_s;
  there->run(u"Update RefillState Set Tel = '02-555-5555'"_s);
  hand.meanwhile = [this] { there->run(u"Delete * From RefillState"_s); };
  hand.expect(u"같은 칸을 먼저"_s);
  hand.expect(u"이미 삭제된 자료입니다!"_s);
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
    here.prompts.expect(u"위와 같이"_s);
    here.prompts.expect(told);
    EXPECT_TRUE(clients.save(boxes).done);
  }
};

TEST_F(CustomersOnTwoPcs, ABalancePostedMeanwhileSurvivesTheSaveOfACustomer) {
  there->run(u"Update Client Set GasInit = GasInit + 38000, LastDate = '2026-06-15', Address = '중앙로 9'"_s);
  boxes.memo = u"계단"_s;
  saved(u"바뀐 대로 두고 저장했습니다.\n주소"_s);
  EXPECT_EQ(stored(u"GasInit From Client"_s), u"50500"_s);
  EXPECT_EQ(stored(u"Address From Client"_s), u"중앙로 9"_s);
  EXPECT_EQ(stored(u"Memo From Client"_s), u"계단"_s);
  EXPECT_EQ(clients.list(HouseStyle::Individual).text(1, 3), u"50500"_s);

  boxes = clients.selectRow(1);
  there->run(u"Update Client Set GasInit = GasInit - 500"_s);
  boxes.gasInit = u"50,000"_s;
  saved(u"고친 차이 -500만 더하여 49,500(으)로 저장했습니다."_s);
  EXPECT_EQ(stored(u"GasInit From Client"_s), u"49500"_s);

  boxes = clients.selectRow(1);
  boxes.gasInit.clear();
  here.prompts.expect(u"가스미수 칸은 비워 둘 수 없습니다!"_s);
  EXPECT_EQ(clients.save(boxes).focus, ClientBox::GasInit);
}

TEST_F(CustomersOnTwoPcs, ACustomerDeletedElsewhereBecomesANewEntryAndAMovedOneIsNotDeleted) {
  there->run(u"Update Client Set GasInit = GasInit + 38000"_s);
  here.prompts.expect(u"선택된 고객자료를 삭제하시겠습니까?"_s);
  here.prompts.expect(u"바뀐 자료이므로 삭제하지 않았습니다!"_s);
  EXPECT_EQ(clients.removeChosen(), RowEnd::Changed);
  EXPECT_EQ(stored(u"Count(*) From Client"_s), u"1"_s);

  there->run(u"Delete * From Client"_s);
  boxes.memo = u"계단"_s;
  here.prompts.expect(u"위와 같이"_s);
  here.prompts.expect(u"입력한 내용은 칸에 남아 있습니다."_s);
  EXPECT_FALSE(clients.save(boxes).done);
  EXPECT_TRUE(clients.isNew());
  EXPECT_EQ(clients.list(HouseStyle::Individual).MaxRows(), 0);
  EXPECT_TRUE(clients.save(boxes).done);
  EXPECT_EQ(stored(u"Memo From Client"_s), u"계단"_s);
}

}  // namespace
