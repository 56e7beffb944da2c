#include "app/company_profile.h"

#include "tests/support.h"

namespace {

struct CompanyProfileTest : testing::Test, tests::TestPc {
  CompanyProfile rules{session};
  CompanyData data;
  CompanyProfileTest() {
    openBooks();
    data.Company = "대한가스";
    data.User = "김대표";
    data.BusCode = "123-45-67890";
    data.Ocr = "1234567";
  }
  bool savePassword(const QString& first, const QString& second = {}) {
    BillingSettings page;
    page.password = first;
    page.passwordAgain = second;
    return rules.saveSettings(page);
  }

  QString column(const QString& name) {
    return session.dbBasic.OpenRecordset("Select * From User")[name].toText();
  }
  void saveFirst() {
    prompts.expect("사용자 등록이 완료되었습니다\n뒷면의 환경설정을 입력해주십시오");
    ASSERT_EQ(rules.saveProfile(data), ProfileSaved::Yes);
  }
};

TEST_F(CompanyProfileTest, FirstSaveInsertsTheRowAndTheSecondChangesIt) {
  EXPECT_EQ(rules.companyName(), "라온웨어");
  prompts.expect("먼저 사용자 등록을 해주십시오");
  EXPECT_FALSE(rules.maySeeSettings());
  saveFirst();
  EXPECT_TRUE(rules.maySeeSettings());
  data.Company = "민국가스";
  data.Fax = "053-1";
  prompts.expect("사용자 정보 수정이 완료되었습니다");
  EXPECT_EQ(rules.saveProfile(data), ProfileSaved::Yes);
  EXPECT_EQ(session.dbBasic.OpenRecordset("Select Count(*) As N From User")["N"].toLong(), 1);
  EXPECT_EQ(column("Company"), "민국가스");
  EXPECT_EQ(column("fax"), "053-1");
  EXPECT_EQ(pc.settings.GetSetting("해온판매", "Registration", "UserName"), "민국가스");
  EXPECT_EQ(rules.profile().Ocr, "1234567");
}

TEST_F(CompanyProfileTest, MissingFieldsStopTheSaveAndAnApostropheBreaksTheStatement) {
  data.Company.clear();
  prompts.expect("상호를 입력하십시오");
  EXPECT_EQ(rules.saveProfile(data), ProfileSaved::CompanyMissing);
  data.Company = "대한가스";
  data.User.clear();
  prompts.expect("대표자명을 입력하십시오");
  EXPECT_EQ(rules.saveProfile(data), ProfileSaved::UserMissing);
  data.User = "김'대표";
  EXPECT_THROW(rules.saveProfile(data), jet::Error);
  EXPECT_FALSE(rules.exists());
}

TEST_F(CompanyProfileTest, RatesKeepTheirFractionsSafetyFeesLoseThem) {
  saveFirst();
  BillingSettings page = rules.settings();
  EXPECT_EQ(page.Post1, "000");
  EXPECT_EQ(page.Post2, "999");
  page.PayState = 3;
  page.Rate = "2.1";
  page.AptRate = "어림";
  page.Security = "1500.5";
  page.AptSecurity = "999.4";
  page.ManySecurity = "300";
  page.Post1 = "700";
  page.oneMonthOnly = page.withoutDelay = page.Stock = true;
  page.password = "Abc";
  prompts.expect("귀하의 패스워드는 Abc 입니다");
  ASSERT_TRUE(rules.saveSettings(page));
  EXPECT_EQ(column("Rate"), "2.1");
  EXPECT_EQ(column("AptRate"), "0") << "a bad number counts as 0";
  EXPECT_EQ(column("Security"), "1501");
  EXPECT_EQ(column("AptSecurity"), "999");
  EXPECT_EQ(column("ManySecurity"), "300");
  EXPECT_EQ(column("PayState"), "3");
  EXPECT_EQ(rules.settings().Post1, "700");
  EXPECT_TRUE(session.StockEnabled);
  EXPECT_EQ(session.DelayCalcFlag, "1");
  EXPECT_EQ(session.AfterDueMethod, 1);
  EXPECT_TRUE(rules.settings().oneMonthOnly);
  EXPECT_TRUE(rules.settings().withoutDelay);
  EXPECT_EQ(session.rates.of(HouseStyle::Individual).rate, double(2.1f)) << "single precision, widened";
  EXPECT_EQ(session.rates.of(HouseStyle::Apartment).security, 999);

  page.oneMonthOnly = page.withoutDelay = false;
  page.password = "it's";
  EXPECT_THROW(rules.saveSettings(page), jet::Error);
  EXPECT_TRUE(rules.settings().oneMonthOnly) << "all of the page or nothing";
  EXPECT_EQ(session.DelayCalcFlag, "1");
  EXPECT_EQ(session.AfterDueMethod, 1);
}

TEST_F(CompanyProfileTest, PasswordIsComparedByCaseAndAnEmptyBoxDeletesIt) {
  saveFirst();
  EXPECT_TRUE(rules.checkPassword("")) << "none set: Enter passes";
  prompts.expect("귀하의 패스워드는 Abc 입니다");
  savePassword("Abc");
  prompts.expect("패스워드가 잘못되었습니다. 다시 시도하십시오");
  EXPECT_FALSE(rules.checkPassword("abc"));
  EXPECT_TRUE(rules.checkPassword("Abc"));
  prompts.expect("두 패스워드가 서로 다릅니다.");
  EXPECT_FALSE(savePassword("Abd", "Abc"));
  EXPECT_TRUE(rules.checkPassword("Abc"));
  prompts.expect("귀하의 패스워드가 현재 삭제된 상태입니다.");
  savePassword({});
  EXPECT_TRUE(rules.checkPassword(""));
}

}  // namespace
