// The lines of sale_cases.txt, each on books as they were at first.
#include <QRegularExpression>
#include <QTextStream>

#include "tests/trade/sale_desk.h"

namespace {

using tests::SaleDesk;

struct SaleCase {
  QStringList parts;
  int number = 0;
  QString part(int at) const { return parts.value(at); }
};

std::vector<SaleCase> saleCases() {
  QFile file(HAEON_TEST_DATA "/trade/sale_cases.txt");
  std::vector<SaleCase> cases;
  if (!file.open(QIODevice::ReadOnly)) return cases;
  QTextStream lines(&file);
  for (int number = 1; !lines.atEnd(); ++number) {
    const QString line = lines.readLine();
    if (!line.trimmed().isEmpty() && !line.startsWith(u'#')) cases.push_back({line.split(u'\t'), number});
  }
  return cases;
}

/** One case's hand on the desk. */
struct SaleHand {
  explicit SaleHand(SaleDesk& at) : desk(at) {}

  SaleDesk& desk;
  SalePosting posting{desk.pc.session};
  SaleEntry entry{posting, desk.pickers, desk.calls};
  int row = 0;
  SaleStep last;

  SpreadModel& cells() { return posting.grid(posting.sheet()); }
  QString key() { return cells().text(row, SaleCol::Key); }

  void begin(const QString& sheet, const QString& kind) {
    const bool volume = sheet == "volume";
    posting.FillSaleGrid(volume                ? SaleSheet::Volume
                         : sheet == "material" ? SaleSheet::Material
                                               : SaleSheet::General,
                         true);
    desk.pickers.clients.push_back(volume ? ClientChoice{SaleDesk::Metered, "별빛 3동"}
                                          : ClientChoice{SaleDesk::Plain, "산골식당"});
    row = entry.enterKey(1, SaleCol::Client, {}).row;
    entry.enteredRow(row);
    last = cells().text(row, SaleCol::Kind) == kind ? entry.enterKey(row, SaleCol::Kind, kind)
                                                    : entry.finishCell(row, SaleCol::Kind, kind);
  }
  void pick(const QString& item) {
    desk.pickers.items.push_back(ItemChoice{item.section(u'/', 0, 0),
                                            item.section(u'/', 1).section(u'@', 0, 0),
                                            item.section(u'@', 1).toDouble(), 0});
    last = entry.enterKey(row, SaleCol::Item, {});
  }
  void type(const QString& step, QChar sign) {
    const int col = step.section(sign, 0, 0).toInt();
    const QString typed = step.section(sign, 1);
    desk.pc.prompts.expect("선택된 자료를 변경하시겠습니까?", sign != u'~');
    const bool tooMuch = sign == u'>' || (typed.size() > 4 && col == SaleCol::Number);
    if (tooMuch) desk.pc.prompts.expect("입력제한");
    last = entry.finishCell(row, col, typed);
    EXPECT_EQ(last.end == SaleStep::Done, !tooMuch && sign != u'~') << step.toStdString();
  }
  void play(const QStringList& steps) {
    for (qsizetype at = 0; at < steps.size(); ++at) {
      const QString& step = steps[at];
      if (step == "item") {
        pick(steps.value(++at));
      } else if (step == "enter") {
        const int col = steps.value(++at).toInt();
        last = entry.enterKey(row, col, cells().text(row, col));
      } else if (step == "credit") {
        last = entry.onCredit(row);
      } else if (step == "delete") {
        desk.pc.prompts.expect("선택한 자료를 삭제하시겠습니까?");
        EXPECT_TRUE(posting.deleteRow(row));
        last = {};
      } else if (step == "reload") {
        posting.refill();
        last = {};
      } else {
        const QRegularExpressionMatch sign = QRegularExpression("[=~>]").match(step);
        ASSERT_TRUE(sign.hasMatch()) << step.toStdString();
        type(step, sign.captured().at(0));
      }
    }
  }
  QString cursor() const {
    if (last.end != SaleStep::Done || last.row == 0) return "-";
    return (last.row > row ? "+" : "") + QString::number(last.col);
  }
  QString figures() {
    QStringList texts;
    for (int col = SaleCol::Number; col <= SaleCol::Trust && !key().isEmpty(); ++col)
      texts << cells().text(row, col);
    return texts.join(u'|');
  }
};

/** Stock and balances as the desk begins with them, and no line. */
void clearBooks(SaleDesk& desk) {
  for (const char* const sql :
       {"Delete * From Sale",
        "Update Client Set GasInit = 100000, UtilInit = 5000, LastDate = Null Where Code = 1",
        "Update Client Set GasInit = 30000, UtilInit = 0, LastDate = Null Where Code = 3",
        "Update LPG Set LPGStock = 1000, CANTotalHold = 100, CANLoan = 10, CANEmpty = 40, CANFull = 50",
        "Update Util Set UtilStock = 30"})
    desk.run(sql);
}

TEST(SaleCases, EndAsWritten) {
  const std::vector<SaleCase> cases = saleCases();
  ASSERT_GT(cases.size(), 60u);
  SaleDesk desk;
  for (const SaleCase& of : cases) {
    SCOPED_TRACE("line " + std::to_string(of.number) + ": " + of.parts.join(u' ').toStdString());
    ASSERT_EQ(of.parts.size(), 11);
    clearBooks(desk);
    QStringList steps = of.part(2).split(u' ', Qt::SkipEmptyParts);
    desk.pc.session.StockEnabled = steps.value(0) != "nostock";
    if (!desk.pc.session.StockEnabled) steps.removeFirst();
    SaleHand hand(desk);
    hand.begin(of.part(0), of.part(1));
    hand.play(steps);
    const QString client = of.part(0) == "volume" ? "3" : "1";
    EXPECT_EQ(hand.cursor(), of.part(3));
    EXPECT_EQ(hand.figures(), of.part(4));
    EXPECT_EQ(desk.rows("Select SaleGubun, Gubun, SaleName, SaleThing, SaleNum, SaleUnit, DC, Income, Trust, "
                        "Response From Sale"),
              of.part(5));
    EXPECT_EQ(desk.balance(client.toInt()), of.part(6));
    EXPECT_EQ(desk.rows("Select LastDate From Client Where Code = " + client), of.part(7));
    EXPECT_EQ(desk.stock("20"), of.part(8));
    EXPECT_EQ(desk.stock("50"), of.part(9));
    EXPECT_EQ(desk.rows("Select UtilStock From Util"), of.part(10));
  }
}

}  // namespace
