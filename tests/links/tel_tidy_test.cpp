// Stored telephone numbers brought into the shape by which a caller is found.
#include "links/tel_tidy.h"

#include "tests/answers.h"
#include "tests/support.h"

using namespace Qt::StringLiterals;

namespace {

TEST(TidyTel, NumbersAreBroughtIntoShapeAndEverythingElseStays) {
  // Stored, then in shape; nothing behind the arrow: it stays. Words would be lost, "~" makes two numbers of one, and
  // for the last ones there is no known shape.
  const QString cases =
      uR"(
0531234567 -> 053-123-4567
0212345678 -> 02-1234-5678
(053) 123.4567 -> 053-123-4567
053-1234567 -> 053-123-4567
 053-123-4567 -> 053-123-4567
1234567 -> 123-4567
123456 -> 12-3456
01012345678, 1234567 -> 010-1234-5678,123-4567
01012345678,아들 -> 010-1234-5678,아들
053-123-4567 ->
1588-1234 ->
 ->
4567 ->
모름  ->
053-123-4567 아들 ->
123-4567~8 ->
82-53-123-4567 ->
0504-1234-5678 ->
２０５３１２３４５６７ ->)"_s;
  for (const QString& line : cases.split(u'\n', Qt::SkipEmptyParts)) {
    const qsizetype arrow = line.indexOf(" ->");
    const QString stored = line.left(arrow), tidy = line.mid(arrow + 3).trimmed();
    EXPECT_EQ(tidyTel(stored).value_or(QString()), tidy) << line.toStdString();
    EXPECT_FALSE(tidyTel(tidy)) << "twice is once";
  }
}

struct TelTidyTest : testing::Test, tests::TestPc {
  TelTidyTest() {
    openBooks();
    tests::insertRows(session.dbBasic, "Client(Code, Name, Tel, Tel1, Tel2)",
                      {"1, '나래', '0531234567', '', '01012345678'",
                       "2, '가람', '053-765-4321', '7654321', ''", "3, '다온', '모름', '', ''"});
    EXPECT_TRUE(tidy.load());
  }
  QString row(int at) {
    QStringList texts;
    for (int col = TidyCol::Tick; col <= TidyCol::Tidy; ++col) texts << tidy.list().text(at, col);
    return texts.join(u'|');
  }
  QString stored() {
    return tests::rowsOf(session.dbBasic, "Select Tel, Tel1, Tel2 From Client Order By Code");
  }
  TelTidy tidy{session};
};

TEST_F(TelTidyTest, WhatIsTickedIsWrittenAndTheRestWaits) {
  ASSERT_EQ(tidy.list().MaxRows(), 3);
  EXPECT_EQ(row(1), "1|가람|전화번호 2|7654321|765-4321");
  EXPECT_EQ(row(2), "1|나래|전화번호|0531234567|053-123-4567");
  EXPECT_EQ(row(3), "1|나래|전화번호 3|01012345678|010-1234-5678");
  tidy.list().setText(3, TidyCol::Tick, "0");
  prompts.expect("선택한 전화번호 2개를 바꾸시겠습니까?", false);
  EXPECT_FALSE(tidy.save());
  prompts.expect("선택한 전화번호 2개를 바꾸시겠습니까?");
  prompts.expect("전화번호 2개를 바꾸었습니다.");
  EXPECT_TRUE(tidy.save());
  EXPECT_EQ(stored(), "053-123-4567||01012345678;053-765-4321|765-4321|;모름||");
  ASSERT_TRUE(tidy.load());
  EXPECT_EQ(tidy.list().MaxRows(), 1);
  tidy.tickAll(false);
  prompts.expect("바꿀 전화번호를 선택하십시오!");
  EXPECT_FALSE(tidy.save());
}

TEST_F(TelTidyTest, ACellThatAnotherPcChangedMeanwhileStays) {
  session.dbBasic.Execute("Update Client Set Tel = '053-999-9999' Where Code = 1");
  prompts.expect("3개를 바꾸시겠습니까?");
  prompts.expect("전화번호 2개를 바꾸었습니다.\n1개는 그 사이에 다른 PC에서 바뀌어 그대로 두었습니다.");
  EXPECT_TRUE(tidy.save());
  EXPECT_TRUE(stored().startsWith("053-999-9999||010-1234-5678"));
  prompts.expect("3개를 바꾸시겠습니까?");
  prompts.expect("전화번호 0개를 바꾸었습니다.\n3개는 그 사이에");
  EXPECT_TRUE(tidy.save()) << "the list is to be read anew then too";
}

}  // namespace
