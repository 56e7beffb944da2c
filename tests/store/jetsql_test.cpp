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
    process.start(QFileInfo("/proc/self/exe").canonicalPath() + "/../jetsql", arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(60000)) return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
  }
};

TEST_F(JetSql, PrintsRowsOfAFileWithItsLinks) {
  basic.Execute("Insert Into Client(Name, Ho) Values('김\\\r\n씨', 'a' & '\t' & 'b')");
  const QString file = path("2026Foundation.mdb");
  const Outcome plain = call({file, "Select Code, Name, Ho, Rate From Client"});
  EXPECT_EQ(plain.code, 0) << plain.err.toStdString();
  EXPECT_EQ(plain.out, "1\t김\\\\\\r\\n씨\ta\\tb\t\n");
  EXPECT_EQ(call({"-h", file, "Select Code, Name As 이름 From Client"}).out,
            "Code\t이름\n1\t김\\\\\\r\\n씨\n");
  EXPECT_EQ(call({file, "Update Client Set GasInit = 5"}).out, QString());
  EXPECT_EQ(rows(basic, "Select GasInit From Client"), "5");
}

TEST_F(JetSql, ReadsManyStatementsAndStopsAtTheFirstFailure) {
  const Outcome many =
      call({path("Basic.mdb")},
           "Insert Into Client(Name) Values('a')\n\nSelect Name From Client\nSelect x From Client\n"
           "Delete From Client\n");
  EXPECT_EQ(many.code, 1);
  EXPECT_EQ(many.out, "a\n");
  EXPECT_TRUE(many.err.startsWith("4: 3061 ")) << many.err.toStdString();
  EXPECT_EQ(rows(basic, "Select Count(*) From Client"), "1");
  EXPECT_EQ(call({path("none.mdb"), "Select 1"}).err.left(5), "3024 ");
  const QString use = "usage: jetsql [-h] FILE [\"STATEMENT\"]\n";
  for (const QStringList& wrong : {QStringList{}, {"-h"}, {"a", "b", "c"}}) {
    const Outcome refused = call(wrong);
    EXPECT_EQ(refused.code, 2) << wrong.join(' ').toStdString();
    EXPECT_EQ(refused.err, use);
  }
  const Outcome help = call({"--help"}), version = call({"--version"});
  EXPECT_EQ(help.code, 0);
  EXPECT_TRUE(help.out.startsWith(use + "Runs statements ")) << help.out.toStdString();
  EXPECT_EQ(version.code, 0);
  EXPECT_EQ(version.out, "jetsql " HAEON_VERSION "\n");
}

}  // namespace
}  // namespace jet_tests
