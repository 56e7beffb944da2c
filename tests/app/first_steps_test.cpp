// A new shop's road: what counts as done, when it comes by itself, the postcode file.
#include "app/first_steps.h"

#include "tests/support.h"

namespace {

struct FirstStepsTest : testing::Test, tests::TestPc {
  FirstSteps road{session};
  FirstStepsTest() { openBooks(); }
  QString done() {
    QString marks;
    for (const FirstStep& step : road.steps()) marks += step.done() ? u'x' : u'-';
    return marks;
  }
  QString postFile(const QString& name) { return folder.filePath(name); }
};

TEST_F(FirstStepsTest, EachRegisterTicksItsOwnStep) {
  EXPECT_EQ(done(), "-----");
  EXPECT_TRUE(road.booksAreEmpty());
  const auto step = [this](const char* sql) {
    session.dbBasic.Execute(QString::fromUtf8(sql));
    return done();
  };
  EXPECT_EQ(step("Insert Into Client(Name) Values('가')"), "---x-");
  EXPECT_FALSE(road.booksAreEmpty());
  EXPECT_EQ(step("Insert Into User(Company) Values('해온가스')"), "x--x-");
  EXPECT_EQ(step("Insert Into LPG(LPGName, Size) Values('LPG', '20')"), "xx-x-");
  EXPECT_EQ(step("Insert Into Response(Name) Values('홍길수')"), "xxxx-");
  EXPECT_EQ(road.steps()[3].count, 1);
}

TEST_F(FirstStepsTest, APostcodeFileIsTakenWholeOrNotAtAll) {
  const QString own = pc.paths.native(session.DbPath) + "/dbPost.mdb";
  makeDataFile(session, postFile("full.mdb"), schema::File::Post);
  makeDataFile(session, postFile("empty.mdb"), schema::File::Post);
  {
    const jet::Workspace workspace{jet::Workspace::Options{}};
    workspace.OpenDatabase(postFile("full.mdb"))
        .Execute("Insert Into Post(ZIPCODE, DONG) Values('702-701', '장터동')");
  }
  tests::writeFile(postFile("text.mdb"), "702-701;장터동");
  for (const char* wrong : {"empty.mdb", "text.mdb", "missing.mdb"})
    EXPECT_EQ(road.takePostCodes(postFile(wrong)),
              "우편번호가 들어 있는 파일이 아닙니다. 다른 프로그램의 파일은 쓸 수 없습니다.")
        << wrong;
  EXPECT_EQ(done(), "-----");
  EXPECT_EQ(road.takePostCodes(postFile("full.mdb")), "");
  EXPECT_EQ(done(), "----x");
  EXPECT_TRUE(road.booksAreEmpty()) << "postcodes may come with the program";
  EXPECT_TRUE(QFile::exists(postFile("full.mdb")));
  EXPECT_FALSE(QFile::exists(own + ".new"));

  // Where the file cannot be replaced the old one stays.
  ASSERT_TRUE(QFile::remove(own) && QDir().mkpath(own + "/in use"));
  EXPECT_EQ(road.takePostCodes(postFile("full.mdb")),
            "우편번호 파일을 자료 폴더에 넣지 못했습니다. 쓰기 권한과 디스크의 남은 공간을 확인하십시오.");
  EXPECT_FALSE(QFile::exists(own + ".new"));
}

}  // namespace
