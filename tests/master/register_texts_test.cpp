// A text with an apostrophe in any box of any small register: told, and every row stays as it was.
#include "master/catalogue/gas_catalogue.h"
#include "master/catalogue/util_catalogue.h"
#include "master/catalogue/volume_register.h"
#include "master/partners/bank_register.h"
#include "master/partners/refill_register.h"
#include "master/partners/response_register.h"
#include "tests/answers.h"
#include "tests/support.h"

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
  QString stored(const QString& table) { return tests::rowsOf(session.dbBasic, "Select * From " + table); }
  /** Every text box in turn, for a new row and for the first one. */
  void tryTexts(RegisterRules& rules, const QString& table, const RegisterFields& good,
                const QStringList& texts) {
    ASSERT_TRUE(rules.load());
    rules.beginNew();
    ASSERT_TRUE(rules.save(good).done);
    const QString before = stored(table);
    for (const QString& box : texts)
      for (const QString text : {"x' Or '1'='1", "', '', '', '"})
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
            EXPECT_TRUE(anew || prompts.last.contains("작은따옴표")) << prompts.last.toStdString();
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
  tryTexts(banks, "Bank", {{"BName", "국민"}, {"BNumber", "1"}, {"BUser", "김"}},
           {"BName", "BNumber", "BUser"});
  RefillRegister refills(session);
  tryTexts(refills, "RefillState", {{"Company", "충전소"}},
           {"Company", "User", "BusCode", "Tel", "Fax", "Address", "PostCode"});
  ResponseRegister staff(session);
  tryTexts(staff, "Response", {{"Name", "김"}},
           {"Name", "Tel", "HP", "IdentyNo", "PostCode", "Address", "Memo"});
  GasCatalogue gas(session);
  tryTexts(gas, "LPG", {{"LPGName", "LPG"}, {"Size", "20"}}, {"LPGName"});
  UtilCatalogue goods(session);
  tryTexts(goods, "Util", {{"Name", "밸브"}, {"Size", "15A"}}, {"Name", "Size", "SizeSize"});
  VolumeRegister regulators(session);
  tryTexts(regulators, "Volume", {{"Size", "99"}, {"Unit", "1"}}, {"Size", "Name"});
}

TEST_F(RegisterTexts, ABankThatAnotherToolNamedSoTakesNoOtherAlong) {
  session.dbBasic.Execute("Insert Into Bank(BName, BNumber) Values('국민', '1')");
  session.dbBasic.Execute("Insert Into Bank(BName, BNumber) Values('x'' Or ''1''=''1', '2')");
  BankRegister banks(session);
  ASSERT_TRUE(banks.load());
  banks.select(2);
  EXPECT_THROW(banks.remove(), jet::Error);
  EXPECT_EQ(stored("Bank"), "국민|1|;x' Or '1'='1|2|");
}

}  // namespace
