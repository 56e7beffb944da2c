// Suppliers, staff and postcodes: doubles, deletes by name, the company's own area.
#include "master/partners/post_code_search.h"

#include "master/partners/refill_register.h"
#include "master/partners/response_register.h"
#include "master/registers/register_search.h"
#include "store/year_file.h"
#include "tests/answers.h"
#include "tests/cells.h"
#include "tests/master/refusal.h"

namespace {

struct PartnerRegistersTest : testing::Test {
  void SetUp() override { pc.openBooks(); }
  QString refused(RegisterRules& rules, const RegisterFields& boxes, const QString& told) {
    return tests::refusedAt(pc.prompts, rules, boxes, told);
  }

  tests::TestPc pc;
};

struct PostCodeTest : PartnerRegistersTest {
  void SetUp() override {
    PartnerRegistersTest::SetUp();
    const jet::Database post = pc.session.wsMain.OpenDatabase(pc.session.DbPath + "dbPost.mdb");
    tests::insertRows(
        post, "Post(ZIPCODE, SIDO, GUGUN, DONG, BUNJI)",
        {"'402-010', '인천', '남구', '도화동', Null", "'403-010', '인천', '부평구', '부평동', '1~99'",
         "'412-020', '경기', '고양시', '화정동', '산1'", "'100-011', '서울', '중구', '충무로', Null"});
    list.setColumns(PostCodeSearch::columns());
    ASSERT_TRUE(search.open());
  }
  void area(const QString& from, const QString& to) {
    pc.session.dbBasic.Execute("Delete * From User");
    pc.session.dbBasic.Execute("Insert Into User(Company, Post1, Post2) Values('가게', " + from + ", " + to +
                               ")");
  }
  QString found(const QString& text) {
    const bool any = search.find(list, text, PostCodeSearch::Asked::ByButton);
    return any ? tests::columnOf(list, 1).join(u' ') : QString();
  }
  SpreadModel list;
  PostCodeSearch search{pc.session};
};

TEST_F(PartnerRegistersTest, LinesOfPurchaseFollowTheirStationsNewName) {
  makeYearFile(pc.session, "2025");
  const auto lastYear = [&] { return openYear(pc.session, "2025"); };
  const QString line = "Insert Into Buy(BuyDate, BuyCompany, PurchaseGubun) Values('2026-01-02', '";
  pc.session.dbYear.Execute(line + "한강', 1)");
  pc.session.dbYear.Execute(line + "낙동', 1)");
  lastYear().Execute(line + "한강', 1)");
  tests::insertRows(pc.session.dbBasic, "RefillState(Company, Code)",
                    {"'한강', '0001'", "'낙동', '0002'", "'낙동', '0003'"});
  RefillRegister refills(pc.session);
  ASSERT_TRUE(refills.load());
  const auto rename = [&](int row, const QString& to) {
    RegisterFields boxes = refills.select(row);
    boxes["Company"] = to;
    return refills.save(boxes).done;
  };
  const auto stations = [](const jet::Database& year) {
    return tests::rowsOf(year, "Select BuyCompany From Buy Order By BuyID");
  };
  ASSERT_TRUE(rename(1, "새한강"));
  EXPECT_EQ(stations(pc.session.dbYear), "새한강;낙동");
  EXPECT_EQ(stations(lastYear()), "새한강");
  const QString lastFile = yearFile(pc.session, "2025");
  const QString lastPath = pc.pc.paths.native(lastFile);
  ASSERT_TRUE(QFile::remove(lastPath));
  tests::writeFile(lastPath, "no data file");
  pc.prompts.expect(lastFile + "\n파일을 열 수 없어 이 해의 구매자료는 예전 상호로 남았습니다!");
  ASSERT_TRUE(rename(1, "한강"));
  EXPECT_EQ(stations(pc.session.dbYear), "한강;낙동");
  ASSERT_TRUE(QFile::remove(lastPath));
  ASSERT_TRUE(rename(1, "새한강"));
  ASSERT_TRUE(rename(2, "영남"));
  EXPECT_EQ(stations(pc.session.dbYear), "새한강;낙동") << "another station of the old name keeps the lines";
}

TEST_F(PartnerRegistersTest, SuppliersOfOneNameAskFirstAndGoTogether) {
  RefillRegister refills(pc.session);
  ASSERT_TRUE(refills.load());
  refused(refills, {{"Company", "한강충전소"}}, "신규등록은");
  refills.beginNew();
  EXPECT_EQ(refused(refills, {}, "상호는 필수입력사항입니다!"), "Company");
  ASSERT_TRUE(refills.save({{"Company", "한강충전소"}, {"GasInit", "1,000,000"}}).done);
  refills.beginNew();
  pc.prompts.expect("등록을 계속하시겠습니까?", false);
  EXPECT_FALSE(refills.save({{"Company", "한강충전소"}}).done);
  pc.prompts.expect("등록을 계속하시겠습니까?");
  ASSERT_TRUE(refills.save({{"Company", "한강충전소"}}).done);
  refills.beginNew();
  ASSERT_TRUE(refills.save({{"Company", "북한산충전소"}}).done);

  EXPECT_EQ(tests::linesOf(pc.session.dbBasic, "Select Code, GasInit From RefillState Order By Code")[0],
            "0001|1000000");
  EXPECT_EQ(refills.list().text(1, 6), "1000000");

  // A change asks only when another row has the name.
  RegisterFields boxes = refills.select(3);
  boxes["Tel"] = "031-234-5678";
  ASSERT_TRUE(refills.save(boxes).done);
  boxes["Company"] = "한강충전소";
  pc.prompts.expect("수정을 계속하시겠습니까?", false);
  EXPECT_FALSE(refills.save(boxes).done);

  refills.select(2);
  pc.prompts.expect("한강충전소 인 거래처에 대한 자료를 삭제하시겠습니까?");
  ASSERT_TRUE(refills.remove().done);
  ASSERT_EQ(refills.list().MaxRows(), 1);
  EXPECT_EQ(refills.list().text(1, 1), "북한산충전소");
  SpreadModel list;
  ASSERT_TRUE(RegisterSearch::refills().load(pc.session, list));
  EXPECT_EQ(list.text(1, 1), "북한산충전소");
  EXPECT_EQ(list.text(1, 3), "031-234-5678");
}

TEST_F(PartnerRegistersTest, RenamedStaffLeavesPostedLinesAlone) {
  ResponseRegister staff(pc.session);
  RegisterFields boxes = staff.beginNew();
  EXPECT_EQ(boxes["AppDate"], pc.pc.clock.dateText());
  EXPECT_EQ(refused(staff, boxes, "담당자명은 필수입력사항입니다!"), "Name");
  boxes["Name"] = "김배달";
  boxes["AppDate"] = "2026-02-30";
  EXPECT_EQ(refused(staff, boxes, "날짜 입력이 올바르지 않습니다!"), "AppDate");
  boxes["AppDate"].clear();
  ASSERT_TRUE(staff.save(boxes).done);
  pc.session.dbYear.Execute(
      "Insert Into Sale(SaleDate, ClientCode, Response) Values('2026-01-02', 1, '김배달')");

  boxes = staff.select(1);
  boxes["Name"] = "김기사";
  pc.prompts.expect("선택된 자료를 위와 같이 변경하시겠습니까?");
  ASSERT_TRUE(staff.save(boxes).done);
  EXPECT_EQ(staff.list().text(1, 1), "김기사");
  EXPECT_EQ(tests::rowsOf(pc.session.dbYear, "Select Response From Sale"), "김배달");
  pc.prompts.expect("선택된 담당자에 대한 자료를 삭제하시겠습니까?", false);
  EXPECT_FALSE(staff.remove().done);
  pc.prompts.expect("선택된 담당자에 대한 자료를 삭제하시겠습니까?");
  EXPECT_TRUE(staff.remove().done);
  EXPECT_EQ(tests::rowsOf(pc.session.dbBasic, "Select * From Response"), "");
}

TEST_F(PartnerRegistersTest, ApostropheIsRefusedByTheStoreAndNothingIsLost) {
  RefillRegister refills(pc.session);
  ASSERT_TRUE(refills.load());
  refills.beginNew();
  ASSERT_TRUE(refills.save({{"Company", "가"}}).done);
  RegisterFields boxes = refills.select(1);
  boxes["User"] = "O'Neil";
  EXPECT_THROW(refills.save(boxes), jet::Error);
  boxes["Company"] = "O'Neil";  // the look for a twin fails first: told once, and the save is dropped
  refused(refills, boxes, "ERROR");
  EXPECT_EQ(refills.list().text(1, 1), "가");
  EXPECT_EQ(refills.selectedRow(), 1);
}

TEST_F(PostCodeTest, FirstCharacterDecidesTheColumnAndTheAreaNarrows) {
  EXPECT_EQ(found(""), "100-011 402-010 403-010 412-020");
  EXPECT_EQ(found("평"), "403-010");
  EXPECT_EQ(found("010"), "402-010 403-010");
  EXPECT_EQ(list.text(1, 2), "인천 남구 도화동");
  EXPECT_EQ(list.text(1, 3), "");
  area("402", "412");
  EXPECT_EQ(found(""), "402-010 403-010");  // text order: 412-020 lies behind 412
  area("403", "999");
  EXPECT_EQ(found("010"), "403-010");
  area("Null", "402");
  EXPECT_EQ(found(""), "100-011");
  area("0", "0");  // never entered: the whole country
  EXPECT_EQ(found("동"), "402-010 403-010 412-020");
}

TEST_F(PostCodeTest, NothingFoundIsWordedByWhoAsked) {
  pc.prompts.expect("찾고자 하는 읍면동이 없습니다!");
  EXPECT_EQ(found("없는동"), "");
  pc.prompts.expect("찾고자 하는 우편번호나 읍/면/동이 없습니다!");
  EXPECT_FALSE(search.find(list, "777", PostCodeSearch::Asked::ByCaller));
  EXPECT_EQ(pc.prompts.seen, (QStringList{"자료없슴|찾고자 하는 읍면동이 없습니다!",
                                          "주소 관리자|찾고자 하는 우편번호나 읍/면/동이 없습니다!"}));
  pc.prompts.expect("ERROR");
  EXPECT_FALSE(search.find(list, "'", PostCodeSearch::Asked::ByButton));  // told, and still up
  EXPECT_EQ(found("충무"), "100-011");
  EXPECT_FALSE(PostCodeSearch::choice(list, 2));
  EXPECT_EQ(PostCodeSearch::choice(list, 1)->address, "서울 중구 충무로");
}

TEST_F(PartnerRegistersTest, MissingPostcodeFileIsTold) {
  QFile::remove(pc.pc.paths.native(pc.session.DbPath + "dbPost.mdb"));
  pc.prompts.expect("우편번호 파일을 찾을 수 없습니다.");
  EXPECT_FALSE(PostCodeSearch(pc.session).open());
}

}  // namespace
