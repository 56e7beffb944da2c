#include "pc/settings.h"

#include <QTemporaryDir>

#include "pc/clock.h"
#include "pc/cp949.h"
#include "tests/files.h"

using namespace Qt::StringLiterals;

namespace {

TEST(Settings, KeepsTextsByApplicationSectionAndKeyInAnyCase) {
  QTemporaryDir folder;
  pc::Settings settings(folder.path());
  EXPECT_EQ(settings.GetSetting("해온판매", "환경설정", "NoMsg", "0"), "0");
  EXPECT_TRUE(settings.SaveSetting("해온판매", "환경설정", "NoMsg", "1"));
  EXPECT_TRUE(settings.SaveSetting("해온판매", "Registration", "NoMsg", ""));
  EXPECT_TRUE(settings.SaveSetting("Backup", "DB경로", "경로", "C:\\RWGas\\Dbs\\"));
  EXPECT_EQ(settings.GetSetting("해온판매", "환경설정", "nomsg", "0"), "1");
  EXPECT_EQ(settings.GetSetting("해온판매", "REGISTRATION", "NoMsg", "x"), "") << "an empty value is a value";
  EXPECT_EQ(settings.GetSetting("backup", "db경로", "경로"), "C:\\RWGas\\Dbs\\");
  EXPECT_TRUE(settings.SaveSetting("해온판매", "환경설정", "NOMSG", "2"));
  EXPECT_EQ(settings.GetSetting("해온판매", "환경설정", "NoMsg"), "2");
}

TEST(Settings, WhatCannotBeReadIsNotWrittenOver) {
  QTemporaryDir folder;
  pc::Settings settings(folder.path());
  EXPECT_TRUE(settings.canBeRead("A")) << "there is none";
  ASSERT_TRUE(settings.SaveSetting("A", "s", "k", "1"));
  const QString file = folder.filePath("settings/a.ini"), aside = file + ".aside";
  ASSERT_TRUE(QFile::rename(file, aside) && QDir().mkdir(file)) << "there, and cannot be read";
  pc::Settings next(folder.path());
  EXPECT_FALSE(next.canBeRead("A"));
  EXPECT_FALSE(next.SaveSetting("A", "s", "other", "2"));
  ASSERT_TRUE(QDir().rmdir(file) && QFile::rename(aside, file));
  EXPECT_TRUE(next.canBeRead("A"));
  EXPECT_TRUE(next.SaveSetting("A", "s", "other", "2"));
  EXPECT_EQ(next.GetSetting("A", "s", "k"), "1") << "what it held besides";
}

TEST(Settings, HoldsAnyTextAndIsSeenByTheNextProgram) {
  QTemporaryDir folder;
  const QStringList odd{" blanks ", "a=b;c", "줄\r\n바꿈\\n", "[x]", "똠방각하 \"따옴\"", "\\", "끝\r"};
  pc::Settings here(folder.path()), there(folder.path());
  for (const QString& text : odd) {
    EXPECT_TRUE(here.SaveSetting("A/B", "[s=1]\n", "=k;" + text, text));
    EXPECT_EQ(there.GetSetting("a/b", "[s=1]\n", "=k;" + text), text);
    EXPECT_TRUE(there.SaveSetting("A/B", "[s=1]\n", "back", text));
    for (const char* begin : {";", "[", "\\", ""}) {
      EXPECT_TRUE(here.SaveSetting("A/B", "s]", begin + text + ']', text));
      EXPECT_EQ(there.GetSetting("A/B", "s]", begin + text + ']'), text) << begin << text.toStdString();
    }
    EXPECT_EQ(here.GetSetting("A/B", "[S=1]\n", "BACK"), text);
  }
  EXPECT_TRUE(here.SaveSetting("Ä\\b:c*d?e\"f<g>h|i/j", "s", "k", "1"));
  EXPECT_TRUE(QFileInfo::exists(folder.path() + "/settings/ä_b_c_d_e_f_g_h_i_j.ini"));
  EXPECT_EQ(here.GetSetting("A/B", "[s=1]\n", "=k;" + odd[0]), odd[0]) << "nothing written before was lost";
}

TEST(Settings, AFileThatSomebodyWroteByHandIsReadAsItStands) {
  QTemporaryDir folder;
  tests::writeFile(folder.path() + "/settings/a.ini",
                   "early=0\r\n;k=remark\r\n[S]\r\nk=1\r\nk=2\r\n= none\r\nno sign\r\n\r\n"
                   "[t]\n x = y = z \n;x=remark\nb\\=c=\\d\\\ne\\\\=\\n\\r\n[open\n[s]\nlast=9");
  pc::Settings settings(folder.path());
  const auto values = [&] {
    QStringList all;
    for (const auto& [section, key] : {std::pair{"", "early"},
                                       {"s", "K"},
                                       {"s", ""},
                                       {"s", "no sign"},
                                       {"t", " x "},
                                       {"t", "x"},
                                       {"t", "b=c"},
                                       {"t", "e\\"},
                                       {"t", "last"},
                                       {"s", "last"},
                                       {"", "k"},
                                       {"s", "x"},
                                       {"t", ";x"}})
      all << settings.GetSetting("A", section, key, "-");
    return all;
  };
  const QStringList told{"0", "1", " none", "-", " y = z ", "-", "d\\", "\n\r", "-", "9", "-", "-", "-"};
  EXPECT_EQ(values(), told);
  EXPECT_TRUE(settings.SaveSetting("A", "T", "more", "1"));
  EXPECT_EQ(values(), told) << "after it was written anew";
}

TEST(Settings, HoldsForThisRunWhenTheFileCannotBeWritten) {
  QTemporaryDir folder;
  tests::writeFile(folder.path() + "/settings");  // a file where the folder of the settings should be
  pc::Settings settings(folder.path());
  EXPECT_FALSE(settings.SaveSetting("해온판매", "환경설정", "db경로", "D:\\"));
  EXPECT_EQ(settings.GetSetting("해온판매", "환경설정", "db경로"), "D:\\");
}

TEST(Clock, MovesForTheProgramAloneAndGoesOn) {
  pc::Clock clock;
  EXPECT_EQ(clock.today(), QDate::currentDate());
  clock.set(QDateTime(QDate(2024, 2, 29), QTime(23, 59, 30)));
  EXPECT_EQ(clock.dateText(), "2024-02-29");
  EXPECT_LE(qAbs(clock.now().secsTo(QDateTime(QDate(2024, 2, 29), QTime(23, 59, 30)))), 5);

  qputenv("HAEON_CLOCK", "2026-03-02 09:00:00");
  EXPECT_EQ(pc::Clock().dateText(), "2026-03-02");
  EXPECT_EQ(pc::Clock().now().time().hour(), 9);
  qputenv("HAEON_CLOCK", "soon");
  EXPECT_EQ(pc::Clock().today(), QDate::currentDate());
  qunsetenv("HAEON_CLOCK");
}

TEST(CodePage949, HoldsAllSyllablesAndMarksWhatIsBroken) {
  const QByteArray ddom("\x8c\x63"), ga("\xb0\xa1");
  EXPECT_EQ(pc::toCp949("똠가A"), ddom + ga + "A");
  EXPECT_EQ(pc::fromCp949(ddom + ga + "A\\~"), "똠가A\\~");
  EXPECT_EQ(pc::toCp949("힣"), QByteArray("\xc6\x52"));
  EXPECT_EQ(pc::toCp949("😀é"), "??") << "not in the code page";
  EXPECT_EQ(pc::fromCp949(ga + "\xb0"), u"가"_s + QChar(QChar::ReplacementCharacter));
  EXPECT_EQ(pc::fromCp949(QByteArray("\xff") + "A"), QString(QChar(QChar::ReplacementCharacter)) + "A");
  QString every;
  for (int code = 0xac00; code <= 0xd7a3; ++code) every += QChar(code);
  EXPECT_EQ(pc::fromCp949(pc::toCp949(every)), every);
}

}  // namespace
