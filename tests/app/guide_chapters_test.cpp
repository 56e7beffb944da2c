// The guide's places: every chapter named is there, every link and picture leads somewhere, boxes find their line.
#include "app/guide_chapters.h"

#include <QRegularExpression>
#include <QSet>

#include "tests/files.h"

namespace {

struct Guide : testing::Test {
  QString text;
  QSet<QString> headings;
  Guide() {
    text = tests::textOf(HAEON_TEST_DATA "/../docs/guide.ko.md");
    for (const QString& line : text.split(u'\n'))
      if (line.startsWith(u'#')) headings << line.section(u' ', 1);
  }
};

TEST_F(Guide, EveryWindowsChapterLinkAndPictureIsThere) {
  for (const QString& window : guideWindows())
    EXPECT_TRUE(headings.contains(guideChapter(window))) << window.toStdString();
  EXPECT_TRUE(headings.contains(guideBoxChapter()));
  EXPECT_EQ(guideChapter("noSuchWindow"), "");
  QSet<QString> anchors;
  for (const QString& heading : headings) anchors << guideAnchor(heading);
  static const QRegularExpression target(R"(\]\(([^)]+)\))");
  for (auto each = target.globalMatch(text); each.hasNext();) {
    const QString to = each.next().captured(1);
    if (to.startsWith(u'#'))
      EXPECT_TRUE(anchors.contains(to.sliced(1))) << to.toStdString();
    else
      EXPECT_TRUE(QFile::exists(QString(HAEON_TEST_DATA) + "/../docs/" + to)) << to.toStdString();
  }
}

TEST_F(Guide, ABoxFindsTheLineThatExplainsIt) {
  const auto words = [this](const char* box) { return guideBoxWords(text, QString::fromUtf8(box)); };
  EXPECT_EQ(words("Password가 일치하지 않습니다!"), "Password가 일치하지 않습니다!");
  EXPECT_EQ(words("포트 COM3으로 SEE ID OPEN에 실패했습니다."), "포트 COM") << "any number between";
  EXPECT_EQ(words("D:\\DBS\\ 에 자료 파일이 없습니다.\n자료 파일을 새로 만드시겠습니까?"),
            "에 자료 파일이 없습니다. 자료 파일을 새로 만드시겠습니까?");
  EXPECT_EQ(words("저장하지 못했습니다.\n오류번호 : 3043\n오류내용 : 디스크 또는 네트워크 오류입니다."),
            "디스크 또는 네트워크 오류입니다")
      << "one of several of a line";
  EXPECT_EQ(words("전화번호 : 053-123-4567   이  름 : 김철수\n이미 등록되어 있습니다!"), "전화번호 :");
  EXPECT_EQ(words("    이  름 : 김철수\n이미 등록되어 있습니다!\n이름을 중복(동명이인)하시겠습니까?"),
            "이름을 중복(동명이인)하시겠습니까?")
      << "the closer line stands before the wider one";
  EXPECT_EQ(words("규격 : 4 은 이미 등록되어 있습니다!"), "이미 등록되어 있습니다!");
  EXPECT_EQ(words("신규등록은 신규버튼을 누른후 입력해 주십시오"), "신규등록은 신규버튼을");
  EXPECT_EQ(words("알림"), "") << "the table's head explains nothing";
  EXPECT_EQ(words("처음 보는 글"), "");
  EXPECT_EQ(guideBoxWords({}, "무엇이든"), "");
}

}  // namespace
