#include "pc/file_name.h"

namespace {

TEST(FileName, OfAnyTextIsTakenByEveryFileSystem) {
  struct Case {
    const char *text, *name;
  };
  for (const Case& each : std::initializer_list<Case>{{"3/4월 지로", "3_4월 지로"},
                                                      {"a\\b:c*d?e\"f<g>h|i", "a_b_c_d_e_f_g_h_i"},
                                                      {" 한빛(주)\n검침. . ", "한빛(주) 검침"},
                                                      {"...", "출력"},
                                                      {"", "출력"},
                                                      {".숨김", "_.숨김"},
                                                      {"con", "_con"},
                                                      {"LPT1.2026", "_LPT1.2026"},
                                                      {"CONTI", "CONTI"},
                                                      {"a\x01z\x7f\x1f", "a_z__"},
                                                      {"가\t\t나  다", "가 나 다"},
                                                      {"Aux .나", "_Aux .나"},
                                                      {"NUL. ", "_NUL"},
                                                      {"..prn", "_..prn"},
                                                      {"com0", "_com0"},
                                                      {"COM10", "COM10"},
                                                      {"lpt", "lpt"},
                                                      {"a.con", "a.con"}})
    EXPECT_EQ(pc::fileNameOf(QString::fromUtf8(each.text), "출력"), QString::fromUtf8(each.name))
        << each.text;
}

TEST(FileName, IsCutBetweenLettersAndNotInOne) {
  EXPECT_EQ(pc::fileNameOf(QString(300, QChar(u'가')), "x"), QString(60, QChar(u'가')));
  const QString smile = QString::fromUcs4(U"\U0001F600");
  const QString cut = pc::fileNameOf("a" + smile.repeated(60), "x");
  EXPECT_EQ(cut, "a" + smile.repeated(44)) << "1 + 44 * 4 bytes";
  EXPECT_EQ(pc::fileNameOf(QString(180, u'a'), "x").size(), 180);
  EXPECT_EQ(pc::fileNameOf(QString(179, u'a') + ".b", "x"), QString(179, u'a'))
      << "the cut leaves no dot at the end";
}

}  // namespace
