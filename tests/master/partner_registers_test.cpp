// Suppliers, staff and postcodes: doubles, deletes by name, the company's own area.
#include "master/partners/post_code_search.h"

#include <QFile>

#include "master/partners/refill_register.h"
#include "master/partners/response_register.h"
#include "master/registers/register_search.h"
#include "store/year_file.h"
#include "tests/cells.h"
#include "tests/support.h"

using namespace Qt::StringLiterals;

namespace {

struct PartnerRegistersTest : testing::Test {
  void SetUp() override { pc.openBooks(); }
  jet::Recordset rows(const QString& sql) { return pc.session.dbBasic.OpenRecordset(sql); }

  tests::TestPc pc;
};

struct PostCodeTest : PartnerRegistersTest {
  void SetUp() override {
    PartnerRegistersTest::SetUp();
    const jet::Database post = pc.session.wsMain.OpenDatabase(pc.session.DbPath + u"dbPost.mdb"_s);
    for (const QString& row :
         {u"'402-010', '인천', '남구', '도화동', Null"_s, u"'403-010', '인천', '부평구', '부평동', '1~99'"_s,
          u"'412-020', '경기', '고양시', '화정동', '산1'"_s, u"'100-011', '서울', '중구', '충무로', Null"_s})
      post.Execute(u"Insert Into Post(ZIPCODE, SIDO, GUGUN, DONG, BUNJI) Values("_s + row + u")"_s);
    list.setColumns(PostCodeSearch::columns());
    ASSERT_TRUE(search.open());
  }
  void area(const QString& from, const QString& to) {
    pc.session.dbBasic.Execute(u"Delete * From User"_s);
    pc.session.dbBasic.Execute(u"Insert Into User(Company, Post1, Post2) Values('가게', "_s + from + u", "_s +
                               to + u")"_s);
  }
  QString found(const QString& text) {
    const bool any = search.find(list, text, PostCodeSearch::Asked::ByButton);
    return any ? tests::columnOf(list, 1).join(u' ') : QString();
  }
  SpreadModel list;
  PostCodeSearch search{pc.session};
};

TEST_F(PartnerRegistersTest, LinesOfPurchaseFollowTheirStationsNewName) {
  makeYearFile(pc.session, u"2025"_s);
  const auto lastYear = [&] { return openYear(pc.session, u"2025"_s); };
  const QString line = u"Insert Into Buy(BuyDate, BuyCompany, PurchaseGubun) Values('2026-01-02', '"_s;
  pc.session.dbYear.Execute(line + u"한강', 1)"_s);
  pc.session.dbYear.Execute(line + u"낙동', 1)"_s);
  lastYear().Execute(line + u"한강', 1)"_s);
  for (const QString& station : {u"'한강', '0001'"_s, u"'낙동', '0002'"_s, u"'낙동', '0003'"_s})
    pc.session.dbBasic.Execute(u"Insert Into RefillState(Company, Code) Values("_s + station + u')');
  RefillRegister refills(pc.session);
  ASSERT_TRUE(refills.load());
  const auto rename = [&](int row, const QString& to) {
    RegisterFields boxes = refills.select(row);
    boxes[u"Company"_s] = to;
    return refills.save(boxes).done;
  };
  const auto stations = [](const jet::Database& year) {
    QStringList names;
    for (auto buy = year.OpenRecordset(u"Select BuyCompany From Buy Order By BuyID"_s); !buy.atEnd();
         buy.MoveNext())
      names << buy[0].toText();
    return names;
  };
  ASSERT_TRUE(rename(1, u"새한강"_s));
  EXPECT_EQ(stations(pc.session.dbYear), QStringList({u"새한강"_s, u"낙동"_s}));
  EXPECT_EQ(stations(lastYear()), QStringList({u"새한강"_s}));
  const QString lastFile = yearFile(pc.session, u"2025"_s);
  ASSERT_TRUE(QFile::remove(pc.pc.paths.native(lastFile)));
  QFile broken(pc.pc.paths.native(lastFile));
  ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
  broken.write("no data file");
  broken.close();
  pc.prompts.expect(lastFile + u"\n파일을 열 수 없어 이 해의 구매자료는 예전 상호로 남았습니다!"_s);
  ASSERT_TRUE(rename(1, u"한강"_s));
  EXPECT_EQ(stations(pc.session.dbYear), QStringList({u"한강"_s, u"낙동"_s}));
  ASSERT_TRUE(broken.remove());
  ASSERT_TRUE(rename(1, u"새한강"_s));
  ASSERT_TRUE(rename(2, u"영남"_s));
  EXPECT_EQ(stations(pc.session.dbYear), QStringList({u"새한강"_s, u"낙동"_s}))
      << "another station of the old name keeps the lines";
}

TEST_F(PartnerRegistersTest, SuppliersOfOneNameAskFirstAndGoTogether) {
  RefillRegister refills(pc.session);
  ASSERT_TRUE(refills.load());
  pc.prompts.expect(u"신규등록은"_s);
  EXPECT_FALSE(refills.save({{u"Company"_s, u"한강충전소"_s}}).done);
  refills.beginNew();
  pc.prompts.expect(u"상호는 필수입력사항입니다!"_s);
  EXPECT_EQ(refills.save({}).focus, u"Company"_s);
  ASSERT_TRUE(refills.save({{u"Company"_s, u"한강충전소"_s}, {u"GasInit"_s, u"1,000,000"_s}}).done);
  refills.beginNew();
  pc.prompts.expect(u"등록을 계속하시겠습니까?"_s, false);
  EXPECT_FALSE(refills.save({{u"Company"_s, u"한강충전소"_s}}).done);
  pc.prompts.expect(u"등록을 계속하시겠습니까?"_s);
  ASSERT_TRUE(refills.save({{u"Company"_s, u"한강충전소"_s}}).done);
  refills.beginNew();
  ASSERT_TRUE(refills.save({{u"Company"_s, u"북한산충전소"_s}}).done);

  const jet::Recordset rs = rows(u"Select * From RefillState Order By Code"_s);
  EXPECT_EQ(rs[u"Code"_s].toText(), u"0001"_s);
  EXPECT_EQ(rs[u"GasInit"_s].toLong(), 1000000);
  EXPECT_EQ(refills.list().text(1, 6), u"1000000"_s);

  // A change asks only when another row has the name.
  RegisterFields boxes = refills.select(3);
  boxes[u"Tel"_s] = u"031-234-5678"_s;
  ASSERT_TRUE(refills.save(boxes).done);
  boxes[u"Company"_s] = u"한강충전소"_s;
  pc.prompts.expect(u"수정을 계속하시겠습니까?"_s, false);
  EXPECT_FALSE(refills.save(boxes).done);

  refills.select(2);
  pc.prompts.expect(u"한강충전소 인 거래처에 대한 자료를 삭제하시겠습니까?"_s);
  ASSERT_TRUE(refills.remove().done);
  ASSERT_EQ(refills.list().MaxRows(), 1);
  EXPECT_EQ(refills.list().text(1, 1), u"북한산충전소"_s);
  SpreadModel list;
  ASSERT_TRUE(RegisterSearch::refills().load(pc.session, list));
  EXPECT_EQ(list.text(1, 1), u"북한산충전소"_s);
  EXPECT_EQ(list.text(1, 3), u"031-234-5678"_s);
}

TEST_F(PartnerRegistersTest, RenamedStaffLeavesPostedLinesAlone) {
  ResponseRegister staff(pc.session);
  RegisterFields boxes = staff.beginNew();
  EXPECT_EQ(boxes[u"AppDate"_s], pc.pc.clock.dateText());
  pc.prompts.expect(u"담당자명은 필수입력사항입니다!"_s);
  EXPECT_EQ(staff.save(boxes).focus, u"Name"_s);
  boxes[u"Name"_s] = u"김배달"_s;
  boxes[u"AppDate"_s] = u"2026-02-30"_s;
  pc.prompts.expect(u"날짜 입력이 올바르지 않습니다!"_s);
  EXPECT_EQ(staff.save(boxes).focus, u"AppDate"_s);
  boxes[u"AppDate"_s].clear();
  ASSERT_TRUE(staff.save(boxes).done);
  pc.session.dbYear.Execute(
      u"Insert Into Sale(SaleDate, ClientCode, Response) Values('2026-01-02', 1, '김배달')"_s);

  boxes = staff.select(1);
  boxes[u"Name"_s] = u"김기사"_s;
  pc.prompts.expect(u"선택된 자료를 위와 같이 변경하시겠습니까?"_s);
  ASSERT_TRUE(staff.save(boxes).done);
  EXPECT_EQ(staff.list().text(1, 1), u"김기사"_s);
  EXPECT_EQ(pc.session.dbYear.OpenRecordset(u"Select Response From Sale"_s)[0].toText(), u"김배달"_s);
  pc.prompts.expect(u"선택된 담당자에 대한 자료를 삭제하시겠습니까?"_s, false);
  EXPECT_FALSE(staff.remove().done);
  pc.prompts.expect(u"선택된 담당자에 대한 자료를 삭제하시겠습니까?"_s);
  EXPECT_TRUE(staff.remove().done);
  EXPECT_EQ(rows(u"Select * From Response"_s).RecordCount(), 0);
}

TEST_F(PartnerRegistersTest, ApostropheIsRefusedByTheStoreAndNothingIsLost) {
  RefillRegister refills(pc.session);
  ASSERT_TRUE(refills.load());
  refills.beginNew();
  ASSERT_TRUE(refills.save({{u"Company"_s, u"가"_s}}).done);
  RegisterFields boxes = refills.select(1);
  boxes[u"User"_s] = u"O'Neil"_s;
  EXPECT_THROW(refills.save(boxes), jet::Error);
  boxes[u"Company"_s] = u"O'Neil"_s;  // the look for a twin fails first: told once, and the save is dropped
  pc.prompts.expect(u"ERROR"_s);
  EXPECT_FALSE(refills.save(boxes).done);
  EXPECT_EQ(refills.list().text(1, 1), u"가"_s);
  EXPECT_EQ(refills.selectedRow(), 1);
}

TEST_F(PostCodeTest, FirstCharacterDecidesTheColumnAndTheAreaNarrows) {
  EXPECT_EQ(found(u""_s), u"100-011 402-010 403-010 412-020"_s);
  EXPECT_EQ(found(u"평"_s), u"403-010"_s);
  EXPECT_EQ(found(u"010"_s), u"402-010 403-010"_s);
  EXPECT_EQ(list.text(1, 2), u"인천 남구 도화동"_s);
  EXPECT_EQ(list.text(1, 3), u""_s);
  area(u"402"_s, u"412"_s);
  EXPECT_EQ(found(u""_s), u"402-010 403-010"_s);  // text order: 412-020 lies behind 412
  area(u"403"_s, u"999"_s);
  EXPECT_EQ(found(u"010"_s), u"403-010"_s);
  area(u"Null"_s, u"402"_s);
  EXPECT_EQ(found(u""_s), u"100-011"_s);
  area(u"0"_s, u"0"_s);  // never entered: the whole country
  EXPECT_EQ(found(u"동"_s), u"402-010 403-010 412-020"_s);
}

TEST_F(PostCodeTest, NothingFoundIsWordedByWhoAsked) {
  pc.prompts.expect(u"찾고자 하는 읍면동이 없습니다!"_s);
  EXPECT_EQ(found(u"없는동"_s), u""_s);
  pc.prompts.expect(u"찾고자 하는 우편번호나 읍/면/동이 없습니다!"_s);
  EXPECT_FALSE(search.find(list, u"777"_s, PostCodeSearch::Asked::ByCaller));
  EXPECT_EQ(pc.prompts.seen, (QStringList{u"자료없슴|찾고자 하는 읍면동이 없습니다!"_s,
                                          u"주소 관리자|찾고자 하는 우편번호나 읍/면/동이 없습니다!"_s}));
  pc.prompts.expect(u"ERROR"_s);
  EXPECT_FALSE(search.find(list, u"'"_s, PostCodeSearch::Asked::ByButton));  // told, and still up
  EXPECT_EQ(found(u"충무"_s), u"100-011"_s);
  EXPECT_FALSE(PostCodeSearch::choice(list, 2));
  EXPECT_EQ(PostCodeSearch::choice(list, 1)->address, u"서울 중구 충무로"_s);
}

TEST_F(PartnerRegistersTest, MissingPostcodeFileIsTold) {
  QFile::remove(pc.pc.paths.native(pc.session.DbPath + u"dbPost.mdb"_s));
  pc.prompts.expect(u"우편번호 파일을 찾을 수 없습니다."_s);
  EXPECT_FALSE(PostCodeSearch(pc.session).open());
}

}  // namespace
