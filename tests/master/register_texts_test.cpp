// A text with an apostrophe in any box of any small register: told, and every row stays as it was.
#include "master/catalogue/gas_catalogue.h"
#include "master/catalogue/util_catalogue.h"
#include "master/catalogue/volume_register.h"
#include "master/partners/bank_register.h"
#include "master/partners/refill_register.h"
#include "master/partners/response_register.h"
#include "tests/answers.h"
#include "tests/support.h"

using namespace Qt::StringLiterals;

namespace {

/** Goes on whatever is asked. */
struct YesToAll : Prompts {
  void MsgInfo(const QString& text, const QString&) override { last = text; }
  void MsgWarn(const QString& text, const QString&) override { last = text; }
  bool MsgAsk(const QString&, const QString&, bool) override { return true; }
  void ErrorBox(const QString& text, int, const QString&) override { last = text; }
  std::optional<QString> InputBox(const QString&, const QString&, const QString&) override { return {}; }
  QString last;
};

class RegisterTexts : public testing::Test {
 protected:
  void SetUp() override {
    at.openBooks({2026, 3, 5});
    session.wsMain = at.session.wsMain;
    session.dbBasic = at.session.dbBasic;
    session.dbYear = at.session.dbYear;
  }
  QString stored(const QString& table) { return tests::rowsOf(session.dbBasic, u"Select * From "_s + table); }
  /** Every text box in turn, for a new row and for the first one. */
  void tryTexts(RegisterRules& rules, const QString& table, const RegisterFields& good,
                const QStringList& texts) {
    ASSERT_TRUE(rules.load());
    rules.beginNew();
    ASSERT_TRUE(rules.save(good).done);
    const QString before = stored(table);
    for (const QString& box : texts)
      for (const QString& text : {u"x' Or '1'='1"_s, u"', '', '', '"_s})
        for (const bool anew : {true, false}) {
          RegisterFields boxes = good;
          if (anew)
            rules.beginNew();
          else
            boxes = rules.select(rules.list().MaxRows());
          boxes[box] = text;
          int failure = 0;
          try {
            EXPECT_FALSE(rules.save(boxes).done) << box.toStdString();
            EXPECT_TRUE(anew || prompts.last.contains(u"작은따옴표"_s)) << prompts.last.toStdString();
          } catch (const jet::Error& error) {
            failure = error.number();
          }
          EXPECT_TRUE(failure == 0 || failure == 3075) << box.toStdString() << failure;
          EXPECT_EQ(stored(table), before) << box.toStdString();
        }
  }

  tests::TestPc at;
  YesToAll prompts;
  Session session{at.pc, prompts};
};

TEST_F(RegisterTexts, EveryBoxOfEveryRegisterHoldsItsText) {
  BankRegister banks(session);
  tryTexts(banks, u"Bank"_s, {{u"BName"_s, u"국민"_s}, {u"BNumber"_s, u"1"_s}, {u"BUser"_s, u"김"_s}},
           {u"BName"_s, u"BNumber"_s, u"BUser"_s});
  RefillRegister refills(session);
  tryTexts(refills, u"RefillState"_s, {{u"Company"_s, u"충전소"_s}},
           {u"Company"_s, u"User"_s, u"BusCode"_s, u"Tel"_s, u"Fax"_s, u"Address"_s, u"PostCode"_s});
  ResponseRegister staff(session);
  tryTexts(staff, u"Response"_s, {{u"Name"_s, u"김"_s}},
           {u"Name"_s, u"Tel"_s, u"HP"_s, u"IdentyNo"_s, u"PostCode"_s, u"Address"_s, u"Memo"_s});
  GasCatalogue gas(session);
  tryTexts(gas, u"LPG"_s, {{u"LPGName"_s, u"LPG"_s}, {u"Size"_s, u"20"_s}}, {u"LPGName"_s});
  UtilCatalogue goods(session);
  tryTexts(goods, u"Util"_s, {{u"Name"_s, u"밸브"_s}, {u"Size"_s, u"15A"_s}},
           {u"Name"_s, u"Size"_s, u"SizeSize"_s});
  VolumeRegister regulators(session);
  tryTexts(regulators, u"Volume"_s, {{u"Size"_s, u"99"_s}, {u"Unit"_s, u"1"_s}}, {u"Size"_s, u"Name"_s});
}

TEST_F(RegisterTexts, ABankThatAnotherToolNamedSoTakesNoOtherAlong) {
  session.dbBasic.Execute(u"Insert Into Bank(BName, BNumber) Values('국민', '1')"_s);
  session.dbBasic.Execute(u"Insert Into Bank(BName, BNumber) Values('x'' Or ''1''=''1', '2')"_s);
  BankRegister banks(session);
  ASSERT_TRUE(banks.load());
  banks.select(2);
  EXPECT_THROW(banks.remove(), jet::Error);
  EXPECT_EQ(stored(u"Bank"_s), u"국민|1|;x' Or '1'='1|2|"_s);
}

}  // namespace
