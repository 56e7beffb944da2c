// The selection formula: what is understood, what is refused, and the condition it becomes.
#include "pc/selection_formula.h"

#include "store/report_source.h"
#include "store/report_staging.h"
#include "store/year_file.h"
#include "tests/answers.h"
#include "tests/pc/layout_refusal.h"
#include "tests/support.h"

using namespace Qt::StringLiterals;

namespace {

pc::ReportTables saleTables() {
  return {.first = "Sale", .joins = {{"Client", "Sale.ClientCode", "Client.Code"}}};
}

QString condition(const QString& formula) {
  try {
    return selectionCondition(formula, saleTables());
  } catch (const pc::ReportError& error) {
    return "!" + error.text.section('\n', 0, 0);
  }
}

TEST(SelectionFormula, BecomesACondition) {
  const struct {
    const char *formula, *condition;
  } cases[] = {
      {"", ""},
      {"   ", ""},
      {"{Sale.SaleDate} >= '2026-01-01' And {Sale.SaleDate} <= '2026-03-31'",
       "(Sale.SaleDate >= '2026-01-01' And Sale.SaleDate <= '2026-03-31')"},
      {"{Sale.SaleGubun} <> 7 and {Sale.SaleGubun} <> 8 ", "(Sale.SaleGubun <> 7 And Sale.SaleGubun <> 8)"},
      {"{Sale.A}=1 or {Sale.B}=2 and {Sale.C}=3", "(Sale.A = 1 Or (Sale.B = 2 And Sale.C = 3))"},
      {"({Sale.A}=1 OR {Sale.B}=2) AND NOT {Sale.C}<3.5",
       "((Sale.A = 1 Or Sale.B = 2) And Not (Sale.C < 3.5))"},
      {"Not Not ({Client.VolumeYesNo} = TRUE)", "Not (Not (Client.VolumeYesNo = True))"},
      {"Not {Sale.A} = 1 And {Sale.B} = 2", "(Not (Sale.A = 1) And Sale.B = 2)"},
      {"{Sale.Income} > -5", "Sale.Income > -5"},
      {"{Client.Name} = 'O''Neil'' Or 1=1 --'", "Client.Name = 'O''Neil'' Or 1=1 --'"},
      {"{Client.이름} = '가' And{Sale.A}=1", "(Client.이름 = '가' And Sale.A = 1)"}};
  for (const auto& each : cases) EXPECT_EQ(condition(each.formula), QString(each.condition)) << each.formula;
}

TEST(SelectionFormula, AnythingElseIsRefused) {
  const QString wrong =
      "{Sale.A} | {Sale.A} = | {Sale.A} = 'x | {Sale.A} = x | {Sale} = 1 | {.A} = 1 | Sale.A = 1 | "
      "{Sale.A} = 1 And | And {Sale.A} = 1 | ({Sale.A} = 1 | {Sale.A} = 1) | "
      "{Sale.A} = 1 {Sale.B} = 2 | {Sale.A} = 1; Delete * From Sale | {Sale.A; Drop} = 1 | "
      "{Sale.A]} = 1 | {Sale.A} == 1 | {Sale.A} Like '*' | {Sale.A} = 1a | {Sale.A} = 1. | "
      "{Sale.A} = --1 | {Sale.A} = {Sale.B} | Not | () | {Sale.A} = '1' 'x' | {Buy.A} = 1 | "
      "{Sale.A} = 1 Andnot {Sale.A} = 2";
  for (const QString& formula : wrong.split(" | "))
    EXPECT_TRUE(condition(formula).startsWith("!선택 조건"))
        << formula.toStdString() << " -> " << condition(formula).toStdString();
  const QString deep = u"("_s.repeated(30) + "{Sale.A} = 1" + u")"_s.repeated(30);
  EXPECT_EQ(condition(deep), "!선택 조건이 잘못되었습니다: 괄호가 너무 깊습니다");
  EXPECT_TRUE(condition(u"("_s.repeated(1000000)).startsWith("!"));
  EXPECT_TRUE(condition(u"Not "_s.repeated(1000000)).startsWith("!"));
}

struct LiveReport : testing::Test, tests::TestPc {
  LiveReport() { openBooks(QDate(2026, 3, 31)); }
  pc::ReportTable read(const QString& layout, const QString& selection, const QStringList& files = {}) {
    return readLiveRows(session, pc::parseReportLayout(layout),
                        {.file = {},
                         .selection = selection,
                         .liveFiles = files.isEmpty() ? QStringList{session.dbYear.path()} : files});
  }
  const QString layout =
      "table Sale\njoin Client Sale.ClientCode Client.Code\norder Sale.SaleDate\nvalue 금액 Sale.Income "
      "Sale.Trust\nlabel Sale.SaleGubun 1 \"가스\"\ncolumn no \"번호\" 5\ncolumn Sale.SaleDate \"일자\" 10\n"
      "column Client.Name \"고객\" 10\ncolumn Sale.SaleGubun \"구분\" 5\ncolumn 금액 \"금액\" 10 right "
      "\"#,##0\" sum\n";
};

TEST_F(LiveReport, RowsComeFromTheTablesTheLayoutNames) {
  session.dbYear.Execute(u"Insert Into Client(Code, Name, HouseStyle) Values(1, '김하나', 0)");
  tests::insertRows(session.dbYear, "Sale(SaleDate, ClientCode, SaleGubun, Income, Trust)",
                    {"'2026-03-02', 1, 1, 100, 20", "'2026-03-01', 1, 7, 5, 0", "'2026-03-03', 9, 2, 1, 1"});
  const auto texts = [](const pc::ReportTable& table) {
    QStringList rows;
    for (const auto& row : table.rows) {
      QStringList cells;
      for (const auto& value : row) cells << pc::plainText(value);
      rows << cells.join('|');
    }
    return rows;
  };
  EXPECT_EQ(texts(read(layout, {})),
            QStringList({"2026-03-01|김하나|7|5", "2026-03-02|김하나|가스|120", "2026-03-03||2|2"}));
  EXPECT_EQ(texts(read(layout, "{Client.HouseStyle} = 0 And Not ({Sale.SaleGubun} = 7)")),
            QStringList({"2026-03-02|김하나|가스|120"}));
  const QString except = QString(layout).replace("Sale.Trust\n", "Sale.Trust except Sale.SaleGubun 2 7\n");
  EXPECT_EQ(texts(read(except, {})),
            QStringList({"2026-03-01|김하나|7|", "2026-03-02|김하나|가스|120", "2026-03-03||2|"}))
      << "nothing where a kind is left out";
  EXPECT_THROW(read(layout, "{Sale.Nothing} = 1"), jet::Error);
  EXPECT_THROW(read(layout, "{Sale.SaleDate} = 1"), jet::Error) << "a text against a number";
  makeYearFile(session, "2025");
  openYear(session, "2025")
      .Execute(u"Insert Into Sale(SaleDate, ClientCode, SaleGubun) Values('2025-12-31', 1, 1)");
  const QStringList both{openYear(session, "2025").path(), session.dbYear.path()};
  EXPECT_EQ(texts(read(layout, {}, both)).size(), 4);
  const QString on = "{Sale.SaleDate} = '%1'";
  EXPECT_EQ(texts(readLiveRows(session, pc::parseReportLayout(layout),
                               {.file = {},
                                .selection = on.arg("2026-03-02"),
                                .liveFiles = both + both.mid(1),
                                .liveSelections = {on.arg("2025-12-31"), on.arg("2026-03-03")}})),
            QStringList({"2025-12-31|김하나|가스|0", "2026-03-03||2|2", "2026-03-02|김하나|가스|120"}))
      << "each file by its own, what has none by the common one";
}

TEST_F(LiveReport, ALayoutNamesWhatItReads) {
  EXPECT_EQ(tests::refusalOf(layout), "");
  const struct {
    const char *line, *why;
  } wrong[] = {{"join Client Sale.ClientCode Client.Code\n", "table이 앞에 없습니다"},
               {"table Sa;le\n", "쓸 수 없는 이름"},
               {"table Sale\ntable Buy\n", "한 번만"},
               {"table Sale\njoin Client Sale.ClientCode\n", "이을 칸이 빠졌습니다"},
               {"table Sale\njoin Client Buy.ClientCode Client.Code\n", "'Buy' 테이블이 앞에 없습니다"},
               {"table Sale\norder Sale.Sale Date\n", "모르는 낱말"},
               {"table Sale\ncolumn Str01 \"이름\" 10\n", "쓸 수 없는 이름"},
               {"table Sale\ncolumn Client.Name \"이름\" 10\n", "'Client' 테이블이 앞에 없습니다"},
               {"table Sale\nvalue 합\n", "더할 칸이 빠졌습니다"},
               {"table Sale\nvalue 합 except Sale.SaleGubun 4\n", "쓸 수 없는 이름"},
               {"table Sale\nvalue 합 Sale.DC except\n", "가릴 칸이 빠졌습니다"},
               {"table Sale\nvalue 합 Sale.DC except Sale.SaleGubun\n", "가릴 값이 빠졌습니다"},
               {"table Sale\nvalue 합 Sale.DC except Sale.SaleGubun 4 x\n", "정수가 아닙니다"},
               {"table Sale\nlabel Sale.SaleGubun 1 가스\n", "따옴표 안의 글이 빠졌습니다"},
               {"column Sale.SaleDate \"일자\" 10\n", "칸은 없습니다"}};
  for (const auto& each : wrong)
    EXPECT_TRUE(tests::refusalOf(each.line).contains(each.why))
        << each.line << tests::refusalOf(each.line).toStdString();
}

}  // namespace
