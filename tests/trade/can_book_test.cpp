// Cylinders by delivery person: person, item and size are the key, and counts are kept by hand.
#include "trade/can_book.h"

#include "tests/cells.h"
#include "tests/support.h"

using namespace Qt::StringLiterals;

namespace {

struct CanBookTest : testing::Test {
  void SetUp() override {
    pc.openBooks();
    for (const char* const row :
         {"'홍길동', 'LPG', 20, 5, 3, 8", "'홍길동', 'LPG', 50, 1, 1, 2", "'김배달', 'LPG', 20, 2, 2, 4"})
      pc.session.dbBasic.Execute(
          u"Insert Into ResCAN(ResName, LPGName, CANSize, CANFull, CANEmpty, CANTotal) Values(%1)"_s.arg(
              row));
    ASSERT_TRUE(book.load());
  }
  QString rows() { return tests::rowsOf(book.list(), u" "_s).join(u';'); }
  RegisterFields counted(const QString& person, const QString& size, int empty, int full) {
    return {{u"ResName"_s, person},
            {u"LPGName"_s, u"LPG"_s},
            {u"CANSize"_s, size},
            {u"CANEmpty"_s, QString::number(empty)},
            {u"CANFull"_s, QString::number(full)},
            {u"CANTotal"_s, QString::number(empty + full)}};
  }

  tests::TestPc pc;
  CanBook book{pc.session};
};

TEST_F(CanBookTest, TheKeyDecidesWhatASaveDoes) {
  EXPECT_EQ(rows(), u"김배달 LPG 20 2 2 4;홍길동 LPG 20 3 5 8;홍길동 LPG 50 1 1 2"_s);
  book.select(3);
  pc.prompts.expect(u"홍길동 의 내역을 변경하시겠습니까?"_s);
  EXPECT_TRUE(book.save(counted(u"홍길동"_s, u"50"_s, 4, 6)).done);
  EXPECT_EQ(rows(), u"김배달 LPG 20 2 2 4;홍길동 LPG 20 3 5 8;홍길동 LPG 50 4 6 10"_s);
  EXPECT_EQ(book.selectedRow(), 3) << "of two rows of one person the changed one stays chosen";
  book.select(1);
  EXPECT_TRUE(book.save(counted(u"김배달"_s, u"13"_s, 1, 1)).done) << "another size is another row";
  EXPECT_EQ(rows().section(u';', 0, 1), u"김배달 LPG 13 1 1 2;김배달 LPG 20 2 2 4"_s);
  book.beginNew();
  pc.prompts.expect(u"김배달 의 내역을 변경하시겠습니까?"_s, false);
  EXPECT_FALSE(book.save(counted(u"김배달"_s, u"20"_s, 9, 9)).done);
  EXPECT_EQ(rows().section(u';', 1, 1), u"김배달 LPG 20 2 2 4"_s);
}

TEST_F(CanBookTest, ADeletionTakesOneRow) {
  book.select(2);
  pc.prompts.expect(u"선택한 자료를 삭제하시겠습니까?"_s);
  EXPECT_TRUE(book.remove().done);
  EXPECT_EQ(rows(), u"김배달 LPG 20 2 2 4;홍길동 LPG 50 1 1 2"_s);
}

TEST_F(CanBookTest, MissingFieldsAreToldInOrder) {
  book.beginNew();
  RegisterFields boxes;
  const std::pair<QString, QString> order[] = {
      {u"ResName"_s, u"담당자명을 입력하십시오"_s},  {u"LPGName"_s, u"용기명을 입력하십시오"_s},
      {u"CANSize"_s, u"용량을 입력하십시오"_s},      {u"CANEmpty"_s, u"빈용기 수량을 입력하십시오"_s},
      {u"CANFull"_s, u"실병 수량을 입력하십시오"_s}, {u"CANTotal"_s, u"총용기수량이 정해지지 않았습니다!"_s}};
  for (const auto& [column, message] : order) {
    pc.prompts.expect(message);
    EXPECT_EQ(book.save(boxes).focus, column);
    boxes[column] = u"7"_s;
  }
  boxes[u"CANSize"_s] = u"큰것"_s;
  pc.prompts.expect(u"용량은 숫자로 입력하십시오"_s);
  EXPECT_EQ(book.save(boxes).focus, u"CANSize"_s);
}

}  // namespace
