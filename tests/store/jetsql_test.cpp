// The command-line tool, run as a program.
#include <QFileInfo>
#include <QProcess>

#include "tests/jet/engine_fixture.h"

namespace jet_tests {
namespace {

class JetSql : public Engine {
 protected:
  struct Outcome {
    int code = -1;
    QString out, err;
  };
  Outcome call(const QStringList& arguments, const QByteArray& input = {}) const {
    QProcess process;
    process.start(QFileInfo(u"/proc/self/exe"_s).canonicalPath() + u"/../jetsql"_s, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(60000)) return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
  }
};

TEST_F(JetSql, PrintsRowsOfAFileWithItsLinks) {
  basic.Execute(u"Insert Into Client(Name, Ho) Values('김씨', 'a' & '\t' & 'b')"_s);
  const QString file = path(u"2026Foundation.mdb"_s);
  const Outcome plain = call({file, u"Select Code, Name, Ho, Rate From Client"_s});
  EXPECT_EQ(plain.code, 0) << plain.err.toStdString();
  EXPECT_EQ(plain.out, u"1\t김씨\ta\\tb\t\n"_s);
  EXPECT_EQ(call({u"-h"_s, file, u"Select Code, Name As 이름 From Client"_s}).out,
            u"Code\t이름\n1\t김씨\n"_s);
  EXPECT_EQ(call({file, u"Update Client Set GasInit = 5"_s}).out, QString());
  EXPECT_EQ(rows(basic, u"Select GasInit From Client"_s), "5");
}

TEST_F(JetSql, ReadsManyStatementsAndStopsAtTheFirstFailure) {
  const Outcome many =
      call({path(u"Basic.mdb"_s)},
           "Insert Into Client(Name) Values('a')\n\nSelect Name From Client\nSelect x From Client\n"
           "Delete From Client\n");
  EXPECT_EQ(many.code, 1);
  EXPECT_EQ(many.out, u"a\n"_s);
  EXPECT_TRUE(many.err.startsWith(u"4: 3061 "_s)) << many.err.toStdString();
  EXPECT_EQ(rows(basic, u"Select Count(*) From Client"_s), "1");
  EXPECT_EQ(call({path(u"none.mdb"_s), u"Select 1"_s}).err.left(5), u"3024 "_s);
  EXPECT_EQ(call({}).code, 2);
}

}  // namespace
}  // namespace jet_tests
