// Cylinders by delivery person: person, item and size are the key, and counts are kept by hand.
#include "trade/can_book.h"

#include "tests/answers.h"
#include "tests/cells.h"
#include "tests/support.h"

using namespace Qt::StringLiterals;

namespace {

struct CanBookTest : testing::Test {
  void SetUp() override {
    pc.openBooks();
    tests::insertRows(
        pc.session.dbBasic, "ResCAN(ResName, LPGName, CANSize, CANFull, CANEmpty, CANTotal)",
        {"'홍길동', 'LPG', 20, 5, 3, 8", "'홍길동', 'LPG', 50, 1, 1, 2", "'김배달', 'LPG', 20, 2, 2, 4"});
    ASSERT_TRUE(book.load());
  }
  QString rows() { return tests::rowsOf(book.list(), " ").join(u';'); }
  RegisterFields counted(const QString& person, const QString& size, int empty, int full) {
    return {{"ResName", person},
            {"LPGName", "LPG"},
            {"CANSize", size},
            {"CANEmpty", QString::number(empty)},
            {"CANFull", QString::number(full)},
            {"CANTotal", QString::number(empty + full)}};
  }

  tests::TestPc pc;
  CanBook book{pc.session};
};

TEST_F(CanBookTest, TheKeyDecidesWhatASaveDoes) {
  EXPECT_EQ(rows(), "김배달 LPG 20 2 2 4;홍길동 LPG 20 3 5 8;홍길동 LPG 50 1 1 2");
  book.select(3);
  pc.prompts.expect("홍길동 의 내역을 변경하시겠습니까?");
  EXPECT_TRUE(book.save(counted("홍길동", "50", 4, 6)).done);
  EXPECT_EQ(rows(), "김배달 LPG 20 2 2 4;홍길동 LPG 20 3 5 8;홍길동 LPG 50 4 6 10");
  EXPECT_EQ(book.selectedRow(), 3) << "of two rows of one person the changed one stays chosen";
  book.select(1);
  EXPECT_TRUE(book.save(counted("김배달", "13", 1, 1)).done) << "another size is another row";
  EXPECT_EQ(rows().section(u';', 0, 1), "김배달 LPG 13 1 1 2;김배달 LPG 20 2 2 4");
  book.beginNew();
  pc.prompts.expect("김배달 의 내역을 변경하시겠습니까?", false);
  EXPECT_FALSE(book.save(counted("김배달", "20", 9, 9)).done);
  EXPECT_EQ(rows().section(u';', 1, 1), "김배달 LPG 20 2 2 4");
}

TEST_F(CanBookTest, ADeletionTakesOneRow) {
  book.select(2);
  pc.prompts.expect("선택한 자료를 삭제하시겠습니까?");
  EXPECT_TRUE(book.remove().done);
  EXPECT_EQ(rows(), "김배달 LPG 20 2 2 4;홍길동 LPG 50 1 1 2");
}

TEST_F(CanBookTest, MissingFieldsAreToldInOrder) {
  book.beginNew();
  RegisterFields boxes;
  const std::pair<QString, QString> order[] = {
      {"ResName", "담당자명을 입력하십시오"},  {"LPGName", "용기명을 입력하십시오"},
      {"CANSize", "용량을 입력하십시오"},      {"CANEmpty", "빈용기 수량을 입력하십시오"},
      {"CANFull", "실병 수량을 입력하십시오"}, {"CANTotal", "총용기수량이 정해지지 않았습니다!"}};
  for (const auto& [column, message] : order) {
    pc.prompts.expect(message);
    EXPECT_EQ(book.save(boxes).focus, column);
    boxes[column] = "7";
  }
  boxes["CANSize"] = "큰것";
  pc.prompts.expect("용량은 숫자로 입력하십시오");
  EXPECT_EQ(book.save(boxes).focus, "CANSize");
}

}  // namespace
