#include <QFile>
#include <QTemporaryDir>
#include <memory>
#include <optional>
#include <vector>

#include "store/jet/database.h"
#include "store/jet/error.h"
#include "store/jet/shape.h"
#include "tests/fuzz/targets.h"

using namespace Qt::StringLiterals;

namespace fuzz {
namespace {

jet::Field field(const QString& name, jet::Type type, bool autonumber = false) {
  jet::Field made;
  made.name = name;
  made.type = type;
  made.autonumber = autonumber;
  return made;
}

/** Basic.mdb with customers and a year file that is linked to it, a few rows each. */
class Books {
 public:
  Books() {
    using jet::Type;
    workspace_ =
        jet::Workspace({.mainFile = path("Basic.mdb"), .resolvePath = [this](const QString& written) {
                          // Whatever a statement names lies in this folder.
                          return path(written.section(u'\\', -1).section(u'/', -1));
                        }});
    const jet::Database basic = workspace_.CreateDatabase("Basic.mdb");
    basic.createTable({"Client",
                       {field("Code", Type::Long, true), field("Name", Type::Text), field("Tel", Type::Text),
                        field("Memo", Type::Memo), field("GasInit", Type::Long),
                        field("VolumeYesNo", Type::Boolean), field("Rate", Type::Double)},
                       {{"PK", {"Code"}, true, true}, {"Name", {"Name"}, false, false}},
                       {},
                       {}});
    db = workspace_.CreateDatabase("2026Foundation.mdb");
    db.createTable(
        {"Sale",
         {field("SaleID", Type::Long, true), field("SaleDate", Type::Text), field("ClientCode", Type::Long),
          field("SaleNum", Type::Long), field("Trust", Type::Double), field("Gubun", Type::Boolean)},
         {{"PK", {"SaleID"}, true, true}},
         {},
         {}});
    db.createTable({"Client", {}, {}, ";DATABASE=Basic.mdb", "Client"});
    workspace_.Together([&] {
      for (const char* row : {"'홍길동', '053-123-4567', 'a', 100, True, 1.5",
                              "'lpg ', '', Null, -5, False, 0", "'LPG', Null, '', 0, False, 1E300"})
        db.Execute(u"Insert Into Client(Name, Tel, Memo, GasInit, VolumeYesNo, Rate) Values(%1)"_s.arg(
            QString::fromUtf8(row)));
      for (const char* row : {"'2026-01-02', 1, 3, 0.5, True", "'2026-02-03', 2, 2147483647, 0, False",
                              "Null, 9, 0, -1, False"})
        db.Execute(u"Insert Into Sale(SaleDate, ClientCode, SaleNum, Trust, Gubun) Values(%1)"_s.arg(
            QString::fromUtf8(row)));
    });
  }
  std::string clients() const {
    std::string all;
    for (auto rs = db.OpenRecordset("Select * From Client Order By Code"); !rs.atEnd(); rs.MoveNext())
      for (int i = 0; i < rs.fieldNames().size(); ++i) all += rs[i].toText().toStdString() + '|';
    return all;
  }

  jet::Database db;

 private:
  QString path(const QString& name) const { return folder_.filePath(name); }
  QTemporaryDir folder_;
  jet::Workspace workspace_;
};

/** Where the literals begin and end, as the parser's tokens count them. */
std::vector<qsizetype> literalsOfTokens(const QString& sql) {
  std::vector<qsizetype> places;
  jet::Lexer lexer(sql);
  for (jet::Token token = lexer.next(); token.kind != jet::Token::Kind::End; token = lexer.next())
    if (token.parameter > 0) places.insert(places.end(), {token.place, token.end});
  return places;
}

/** The quick reading for the shape finds the same literals, or fails as well. */
void compareReadings(const QByteArray& input, const QString& sql) {
  std::optional<std::vector<qsizetype>> quick, whole;
  try {
    whole = literalsOfTokens(sql);
  } catch (const jet::Error&) {
  }
  try {
    quick.emplace();
    for (const jet::Token& literal : jet::shapeOf(sql).literals)
      quick->insert(quick->end(), {literal.place, literal.end});
  } catch (const jet::Error&) {
    quick.reset();
  }
  if (quick != whole) broken(input, "the shape has other literals than the statement");
}

}  // namespace

QByteArrayList statementSeeds() {
  QByteArrayList seeds = corpusOf("statement");
  for (const char* name : {"cases.txt", "rows.txt", "statements_in_use.txt"}) {
    QFile file(QString(HAEON_TEST_DATA "/jet/") + QLatin1StringView(name));
    if (!file.open(QIODevice::ReadOnly)) continue;
    for (const QByteArray& line : file.readAll().split('\n'))
      if (!line.isEmpty() && line[0] != '#' && line[0] != '@') seeds << line.split('\t').first();
  }
  return seeds;
}

void runStatement(const QByteArray& input) {
  static std::unique_ptr<Books> books;
  static int left = 0;
  if (left-- == 0) {
    books = std::make_unique<Books>();
    left = 500;
  }
  const QString sql = QString::fromUtf8(input);
  compareReadings(input, sql);
  const bool asks = sql.trimmed().startsWith("select", Qt::CaseInsensitive);
  try {
    if (asks) {
      const std::string before = left % 8 == 0 ? books->clients() : std::string();
      for (auto rs = books->db.OpenRecordset(
               sql, left % 2 ? jet::RecordsetType::Dynaset : jet::RecordsetType::Snapshot);
           !rs.atEnd(); rs.MoveNext())
        for (int i = 0; i < rs.fieldNames().size(); ++i) (void)rs[i].toText();
      if (!before.empty() && before != books->clients()) broken(input, "a query changes nothing");
    } else {
      books->db.Execute(sql);
      left = std::min(left, 60);  // the books are others now
    }
  } catch (const jet::Error& error) {
    // SQLite never sees a text that it cannot read: whatever the dialect does not allow was refused before.
    if (error.number() == 3146) broken(input, error.description());
    if (!asks) left = std::min(left, 60);
  }
}

}  // namespace fuzz
