#pragma once
// Lines of a table of cases, each a hand's steps on a new line and what is then in the books.
#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

#include "tests/cells.h"
#include "tests/trade/sale_desk.h"

namespace tests {

struct LineCase {
  QStringList parts;
  int number = 0;
  QString part(int at) const { return parts.value(at); }
  /** Takes "nostock" off the steps and switches the stock management. */
  QStringList steps(int at, Session& session) const {
    QStringList steps = part(at).split(u' ', Qt::SkipEmptyParts);
    session.StockEnabled = steps.value(0) != "nostock";
    if (!session.StockEnabled) steps.removeFirst();
    return steps;
  }
  std::string name() const {
    return "line " + std::to_string(number) + ": " + parts.join(u' ').toStdString();
  }
};

inline std::vector<LineCase> lineCases(const QString& name) {
  QFile file(QString(HAEON_TEST_DATA "/trade/") + name);
  std::vector<LineCase> cases;
  if (!file.open(QIODevice::ReadOnly)) return cases;
  QTextStream lines(&file);
  for (int number = 1; !lines.atEnd(); ++number) {
    const QString line = lines.readLine();
    if (!line.trimmed().isEmpty() && !line.startsWith(u'#')) cases.push_back({line.split(u'\t'), number});
  }
  return cases;
}

/** Plays each case of a table of so many columns, at least so many of them, on one desk. */
template <class Desk, class Play>
void eachCase(const QString& table, size_t least, qsizetype columns, const Play& play) {
  const std::vector<LineCase> cases = lineCases(table);
  ASSERT_GE(cases.size(), least);
  Desk desk;
  for (const LineCase& of : cases) {
    SCOPED_TRACE(of.name());
    ASSERT_EQ(of.parts.size(), columns);
    play(desk, of);
  }
}

/** One case's hand on the bottom row. */
class CaseHand {
 public:
  CaseHand(SaleDesk& on, LineBook& writes, LineEntry& works) : desk(on), book(writes), entry(works) {}

  /** The partner's search has its answer; the kind is taken or chosen. */
  void begin(const QString& kind) {
    row = entry.enterKey(book.grid().MaxRows(), LineCol::Partner, {}).row;
    entry.enteredRow(row);
    last = book.grid().text(row, LineCol::Kind) == kind ? entry.enterKey(row, LineCol::Kind, kind)
                                                        : entry.finishCell(row, LineCol::Kind, kind);
  }
  void play(const QStringList& steps) {
    for (qsizetype at = 0; at < steps.size(); ++at) {
      const QString& step = steps[at];
      if (step == "item") {
        pick(steps.value(++at));
      } else if (step == "enter") {
        const int col = steps.value(++at).toInt();
        last = entry.enterKey(row, col, book.grid().text(row, col));
      } else if (step == "credit") {
        last = entry.onCredit(row);
      } else if (step == "to" || step == "not") {
        desk.pickers.refills.push_back(steps.value(++at));
        desk.pc.prompts.expect("선택된 구매처를 수정하시겠습니까?", step == "to");
        last = entry.search(row, LineCol::Partner, book.grid().text(row, LineCol::Partner));
      } else if (step == "delete") {
        desk.pc.prompts.expect("선택한 자료를 삭제하시겠습니까?");
        EXPECT_TRUE(book.deleteRow(row));
        last = {};
      } else if (step == "reload") {
        book.refill();
        last = {};
      } else {
        const QRegularExpressionMatch sign = QRegularExpression("[=~>]").match(step);
        ASSERT_TRUE(sign.hasMatch()) << step.toStdString();
        type(step, sign.captured().at(0));
      }
    }
  }
  QString cursor() const {
    if (last.end != LineStep::Done || last.row == 0) return "-";
    return (last.row > row ? "+" : "") + QString::number(last.col);
  }
  QString figures() {
    if (book.grid().text(row, LineCol::Key).isEmpty()) return {};
    return cellsOf(book.grid(), row, LineCol::Number, LineCol::Trust).join(u'|');
  }

 private:
  void pick(const QString& item) {
    desk.pickers.items.push_back(ItemChoice{item.section(u'/', 0, 0),
                                            item.section(u'/', 1).section(u'@', 0, 0),
                                            item.section(u'@', 1).toDouble(), 0});
    last = entry.enterKey(row, LineCol::Item, {});
  }
  void type(const QString& step, QChar sign) {
    const int col = step.section(sign, 0, 0).toInt();
    const QString typed = step.section(sign, 1);
    desk.pc.prompts.expect("선택된 자료를 변경하시겠습니까?", sign != u'~');
    const bool tooMuch = sign == u'>' || (typed.size() > 4 && col == LineCol::Number);
    if (tooMuch) desk.pc.prompts.expect("입력제한");
    last = entry.finishCell(row, col, typed);
    EXPECT_EQ(last.end == LineStep::Done, !tooMuch && sign != u'~') << step.toStdString();
  }

  SaleDesk& desk;
  LineBook& book;
  LineEntry& entry;
  int row = 0;
  LineStep last;
};

}  // namespace tests
