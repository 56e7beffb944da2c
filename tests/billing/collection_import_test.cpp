// The bank's file: what of it counts, what it posts, and the list it leaves.
#include "billing/collection_import.h"

#include <QScopedValueRollback>

#include "pc/cp949.h"
#include "store/jet/error.h"
#include "store/long_work.h"
#include "store/year_file.h"
#include "tests/answers.h"
#include "tests/support.h"

using namespace Qt::StringLiterals;

namespace {

/** A payment as the institution writes it: other fields are digits. */
QByteArray payment(const QByteArray& monthDay, qint64 code, const QByteArray& amount,
                   const QByteArray& type = "22") {
  return type + QByteArray(11, '7') + monthDay + QByteArray(32, '5') +
         QByteArray::number(code).rightJustified(19, '0') + '9' + amount.rightJustified(13, '0') +
         QByteArray(10, '3');
}

TEST(CollectionFile, LinesEndAtCarriageReturnsAndPartAtLineFeeds) {
  const auto shape = [](const QByteArray& file) {
    QByteArray text;
    const CollectionLines lines = splitCollection(file);
    for (const CollectionPiece& piece : lines.pieces)
      text += piece.bytes.toByteArray() + (piece.endsLine ? "|" : "+");
    return text + (lines.blankLine ? "!" : "");
  };
  EXPECT_EQ(shape("a\r\nb\r\n"), "a|b|");
  EXPECT_EQ(shape("a\rb"), "a|b|") << "the last line may stand without an end";
  EXPECT_EQ(shape("a\nb\nc\n"), "a+b+c+|") << "one long line";
  EXPECT_EQ(shape("a\r\n   \r\nb\r\n"), "a|!") << "nothing behind a blank line is read";
  EXPECT_EQ(shape("a\r\n\r\n"), "a|!");
  EXPECT_EQ(shape("a\r\n\n\r\n"), "a|+|") << "a line feed is no blank";
  EXPECT_EQ(shape(""), "");
}

TEST(CollectionFile, FieldsStandInTheirColumns) {
  QByteArray line = payment("0316", 123, "45670");
  CollectionRecord record = readCollectionRecord(line);
  EXPECT_EQ(record.monthDay, "0316");
  EXPECT_EQ(record.clientCode, 123);
  EXPECT_EQ(record.amount, 45670);
  // A payer's name in a column nobody reads: six bytes for three syllables.
  line.replace(20, 6, pc::toCp949("홍길동"));
  EXPECT_EQ(readCollectionRecord(line).clientCode, 123);
  // The number at the left of the key, its fraction rounded with ties to the even one.
  for (const auto& [key, code] : std::initializer_list<std::pair<QByteArray, int>>{
           {"12.5", 12}, {"13.5", 14}, {"  77 원", 77}, {"A1", 0}, {"", 0}}) {
    line.replace(49, 19, pc::toCp949(QString::fromUtf8(key)).leftJustified(19, ' '));
    EXPECT_EQ(readCollectionRecord(line).clientCode, code) << key.toStdString();
  }
  line.replace(69, 13, "     -1,200.5");
  EXPECT_EQ(readCollectionRecord(line).amount, -1200.5);
  line.replace(69, 13, "0000000O45670");
  EXPECT_THROW(readCollectionRecord(line), jet::Error);
  EXPECT_THROW(readCollectionRecord(payment("0316", 1, "1").first(60)), jet::Error)
      << "a cut line has no amount";
  EXPECT_THROW(readCollectionRecord(payment("0316", 3'000'000'000, "1")), jet::Error);
}

struct CollectionImportTest : testing::Test, tests::TestPc {
  CollectionImportTest() {
    openBooks({2026, 4, 2});
    session.BasicPath = session.DbPath + "Basic.mdb";
    session.wsMain.Together([this] { fill(); });
  }
  void fill() {
    tests::insertRows(session.dbBasic, "Client(Name, Tel)",
                      {"'김철수', '053-123-4567'", "'달빛아파트 101동 101호', Null", "'박', '1'"});
    for (int code = 1; code <= 3; ++code)
      for (int month = 0; month <= 12; ++month)
        session.dbYear.Execute(
            u"Insert Into Evaporation(ClientCode, Mon) Values(%1, %2)"_s.arg(code).arg(month));
    // 12,250 for gas, 5,000 brought in, 100 late, 1,000 for safety: 18,350 issued.
    for (int month : {3, 12})
      session.dbYear.Execute(
          u"Update Evaporation Set UsePay = 12250, Trust = 5000, Delay = 100, Manage = 1000, Total = 18350, Pay = 77 Where Mon = %1"_s
              .arg(month));
  }
  QString path(const QString& name) { return pc.paths.native(pc.paths.programFolder()) + '/' + name; }
  void give(const QByteArray& bytes, const QString& name = "202603.txt") {
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  QByteArray list(const QString& name = "202603Out.txt") {
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "none";
  }
  /** Pay, TrustDay, Total of the month and Trust of the next. */
  QString posted(int code, int month = 3) {
    QStringList all;
    auto rs = session.dbYear.OpenRecordset(
        u"Select Pay, TrustDay, Total From Evaporation Where ClientCode = %1 And Mon = %2"_s.arg(code).arg(
            month));
    all << rs[0].toText() << rs[1].toText() << rs[2].toText();
    rs = session.dbYear.OpenRecordset(
        u"Select Trust From Evaporation Where ClientCode = %1 And Mon = %2"_s.arg(code).arg(month + 1));
    return (all << (rs.atEnd() ? "-" : rs[0].toText())).join(' ');
  }
  /** "payments/won", or "-" for a run that ended early. */
  QString run(const QString& year = "2026", const QString& month = "03") {
    const auto collected = import.run(year, month);
    return collected ? u"%1/%2"_s.arg(collected->count).arg(collected->sum) : "-";
  }
  CollectionImport import{session};
};

TEST_F(CollectionImportTest, PostsReplacesCarriesAndLists) {
  session.AfterDueMethod = 1;  // the carry takes the whole total all the same
  give("11header\r\n" + payment("0331", 1, "18350") + "\r\n" + payment("0401", 2, "10000.5") + "\r\n" +
       payment("0401", 999, "500") + "\r\n" + payment("0402", 1, "350") + "\r\n33trailer");
  // 18,350 - 350 = 18,000: of two payments the last one stands. 18,350 - 10,000.5 = 8,349.5, not rounded.
  const QByteArray day = "2026-04-02";
  const QByteArray kim = pc::toCp949("김철수") + QByteArray(14, ' ') + "053-123-4567        " + day;
  const QByteArray house = pc::toCp949("달빛아파트 101동 101호") + QByteArray(20, ' ') + day;
  const QByteArray nobody = QByteArray(40, ' ') + day;
  for (int again = 0; again < 2; ++again) {
    EXPECT_EQ(run(), "4/29200.5");
    EXPECT_EQ(posted(1), "350 04-02 18000 18000");
    EXPECT_EQ(posted(2), "10000.5 04-01 8349.5 8349.5");
    EXPECT_EQ(posted(3), "77  18350 0") << "nobody paid for this one";
    EXPECT_EQ(list(), nobody + " 0 \r\n" + kim + " 18350 \r\n" + house + " 10000.5 \r\n" + nobody +
                          " 500 \r\n" + kim + " 350 \r\n" + kim + " 350 \r\n");
  }
}

TEST_F(CollectionImportTest, BareLineFeedsAreOneLineOfTheList) {
  give("11\n" + payment("0331", 1, "1000") + "\n" + payment("0331", 3, "2000") + "\n33\n");
  EXPECT_EQ(run(), "2/3000");
  EXPECT_EQ(posted(1), "1000 03-31 17350 17350");
  EXPECT_EQ(posted(3), "2000 03-31 16350 16350");
  EXPECT_EQ(list(),
            pc::toCp949("박") + QByteArray(18, ' ') + "1" + QByteArray(19, ' ') + "2026-04-02 2000 \r\n");
}

TEST_F(CollectionImportTest, DecemberCarriesNothingAndAnotherYearIsItsOwnFile) {
  session.dbYear.Execute("Update Evaporation Set UsePay = 900, Total = 900 Where Mon = 11");
  give(payment("1130", 2, "350"), "202611.txt");
  EXPECT_EQ(run("2026", "11"), "1/350");
  EXPECT_EQ(posted(2, 11), "350 11-30 550 550") << "November still carries";
  give(payment("1231", 1, "350"), "202612.txt");
  EXPECT_EQ(run("2026", "12"), "1/350");
  EXPECT_EQ(posted(1, 12), "350 12-31 18000 -");
  // No file of the year: the run ends without a word, and the files are let go.
  give(payment("0331", 1, "350"), "202503.txt");
  EXPECT_EQ(run("2025"), "-");
  EXPECT_EQ(run("2025"), "-");
  makeYearFile(session, "2025");
  const jet::Database last = session.wsMain.OpenDatabase(session.DbPath + "2025Foundation.mdb");
  last.Execute("Insert Into Evaporation(ClientCode, Mon, UsePay) Values(1, 3, 900)");
  last.Execute("Insert Into Evaporation(ClientCode, Mon) Values(1, 4)");
  EXPECT_EQ(run("2025"), "1/350");
  EXPECT_EQ(last.OpenRecordset("Select Trust From Evaporation Where Mon = 4")[0].toLong(), 550);
  EXPECT_EQ(posted(1), "77  18350 0") << "this year's file is left alone";
}

TEST_F(CollectionImportTest, ABlankLineEndsTheRunAndTheNextFindsTheFilesOpen) {
  // Kept.
  give(payment("0331", 1, "350") + "\r\n  \r\n" + payment("0331", 2, "350") + "\r\n");
  EXPECT_EQ(run(), "-");
  EXPECT_EQ(posted(1), "350 03-31 18000 18000");
  EXPECT_EQ(posted(2), "77  18350 0");
  EXPECT_TRUE(list().endsWith("053-123-4567        2026-04-02 350 \r\n")) << "what was listed can be read";
  const QByteArray before = list();
  give(payment("0331", 2, "350") + "\r\n");
  prompts.expect(
      "해당년월 파일이 존재하지 않거나 잘못된 파일입니다.\n\n파일의 존재여부와 파일이름을 확인하시기 "
      "바랍니다.");
  EXPECT_EQ(run(), "-");
  EXPECT_EQ(posted(2), "77  18350 0");
  EXPECT_EQ(list(), before);
  EXPECT_TRUE(CollectionImport(session).run("2026", "03")) << "a form opened anew works again";
}

TEST_F(CollectionImportTest, WhatIsNoFileOfTheBankIsToldAndWhatWasPostedStays) {
  prompts.expect("수납파일을 찾을 수 없습니다.\n파일명:C:\\RWGas\\202603.txt");
  prompts.expect("파일의 존재여부와 파일이름을 확인하시기 바랍니다.");
  EXPECT_EQ(run(), "-");
  EXPECT_EQ(list(), "") << "the list has been begun by then";

  for (const QByteArray& amount : {QByteArray("0000000001O0"), QByteArray("2,3원")}) {
    give(payment("0331", 1, "350") + "\r\n" + payment("0331", 2, amount) + "\r\n" +
         payment("0331", 3, "350"));
    prompts.expect("해당년월 파일이 존재하지 않거나 잘못된 파일입니다.");
    EXPECT_EQ(run(), "-");
    EXPECT_EQ(posted(1), "350 03-31 18000 18000");
    EXPECT_EQ(posted(2), "77  18350 0");
    EXPECT_EQ(posted(3), "77  18350 0");
  }
  give(payment("0331", 1, "350") + "\r\n" + payment("0331", 2, "350").first(50));
  prompts.expect("해당년월 파일이 존재하지 않거나 잘못된 파일입니다.");
  EXPECT_EQ(run(), "-");

  // No payment in it: an empty file, other records, a file in two bytes a character.
  QByteArray wide;
  for (const char c : payment("0331", 2, "350") + "\r\n") wide += QByteArray(1, c) + '\0';
  for (const QByteArray& file :
       {QByteArray(), payment("0331", 2, "350", "11") + "\r\n" + payment("0331", 2, "350", "33"),
        "\xFF\xFE" + wide}) {
    give(file);
    prompts.expect("수금파일이 없거나 수금내역이 없습니다");
    EXPECT_EQ(run(), "0/0");
    EXPECT_EQ(posted(2), "77  18350 0");
  }
}

TEST_F(CollectionImportTest, ManyRecordsAreToldOnTheWayAndOthersGetIn) {
  constexpr int records = 30;
  const QScopedValueRollback shortGroups(longWorkGroup, 0);
  QByteArray file;
  for (int at = 0; at < records; ++at) file += payment("0331", 1 + at % 3, QByteArray::number(at)) + "\r\n";
  give(file);
  pc::Paths& paths = pc.paths;
  jet::Workspace other({.mainFile = session.DbPath + "Basic.mdb",
                        .resolvePath = [&](const QString& written) { return paths.native(written); },
                        .busyMilliseconds = 100});
  const jet::Database theirs = other.OpenDatabase(session.DbPath + "2026Foundation.mdb");
  int groups = 0, told = 0;
  const auto collected = import.run("2026", "03", [&](int count) {
    EXPECT_EQ(count, records);
    return [&](int done) {
      ++groups;
      told = done;
      theirs.Execute("Insert Into Sale(SaleDate) Values('2026-04-02')");
      return true;
    };
  });
  ASSERT_TRUE(collected);
  EXPECT_EQ(told, records);
  EXPECT_EQ(groups, records);
  EXPECT_EQ(collected->sum, double(records) * (records - 1) / 2);
  EXPECT_EQ(posted(1), "27 03-31 18323 18323");  // 18,350 - 27
  EXPECT_EQ(list().count('\n'), records);
}

TEST_F(CollectionImportTest, TheListIsShownByThePcsOwnProgram) {
  QString shown;
  pc.process.setStarter([&](const QString& program, const QStringList& arguments, const QString&) {
    shown = program + ' ' + arguments.join(' ');
    return true;
  });
  prompts.expect("수납목록을 열 수 없습니다.\n파일명:C:\\RWGas\\202603Out.txt");
  import.showList("2026", "03");
  give("x", "202603Out.txt");
  import.showList("2026", "03");
  EXPECT_TRUE(shown.endsWith("202603Out.txt")) << shown.toStdString();
}

}  // namespace
