#include "trade/line_book.h"

#include "store/data_access.h"
#include "store/date_text.h"
#include "store/jet/error.h"
#include "store/jet/sql.h"
#include "store/text_width.h"
#include "ui/model/column.h"

using namespace Qt::StringLiterals;

std::vector<SpreadColumn> lineColumns(const LineKinds& kinds, const QStringList& headers) {
  constexpr int digits = 12;  // of an amount
  const auto header = [&headers](int col) { return headers.value(col - 1); };
  const auto money = [&header](int col, double width) {
    return column::limited(digits, column::money(header(col), width));
  };
  return {column::limited(10, column::monthDay(header(LineCol::Date), 6)),
          column::text(header(LineCol::Partner), 22),
          column::choice(header(LineCol::Kind), 7, labelsOf(kinds)),
          column::text(header(LineCol::Item), 18),
          column::limited(6, column::integer(header(LineCol::Number), 5)),
          money(LineCol::Unit, 10),
          money(LineCol::Discount, 9),
          money(LineCol::Amount, 10),
          money(LineCol::Paid, 10),
          column::locked(money(LineCol::Trust, 10)),
          column::limited(20, column::centred(header(LineCol::Person), 9)),
          column::hidden(header(LineCol::Key)),
          column::hidden(header(LineCol::Code))};
}

LineBook::LineBook(Session& session, LineTable table)
    : session_(session),
      table_(std::move(table)),
      writtenColumns_(table_.written()),
      date_(session.pc.clock.dateText().right(5)) {}

void LineBook::setSheet(SpreadModel& grid, const LineKinds& kinds) {
  grid_ = &grid;
  kinds_ = &kinds;
}

// --- the day -------------------------------------------------------------------------------------------------

QString LineBook::checkedDate(const QString& typed) {
  const QDate today = session_.pc.clock.today();
  QString found = checkedMonthDay(typed, QString::number(today.year()), session_.pc.clock).right(5);
  if (found.isEmpty())
    session_.prompts.MsgWarn("날짜 입력이 올바르지 않습니다!\n입력예) " + today.toString("MM.dd"),
                             "날짜입력 에러");
  return found;
}

bool LineBook::setDate(const QString& typed) {
  date_ = checkedDate(typed);
  return !date_.isEmpty();
}

// --- reading -------------------------------------------------------------------------------------------------

bool LineBook::load(SpreadModel& grid, const LineKinds& kinds, const QString& statement) {
  grid_->dropEdit();  // the sheet that is left
  grid.dropEdit();
  jet::Recordset lines;
  if (!OpenSnapshot(session_.prompts, db(), lines, statement)) return false;
  std::vector<std::vector<QString>> rows;
  QHash<QString, QString> known;
  for (; !lines.atEnd(); lines.MoveNext()) {
    const QString key = lines[table_.key].toText();
    if (known.contains(key)) continue;  // two partners of one name
    known[key] = written(lines);
    rows.push_back(rowOf(lines, kinds));
  }
  rows.emplace_back();
  grid.setRows(std::move(rows));
  for (int row = 1; row < grid.MaxRows(); ++row) lockForKind(grid, row, kinds);
  known_.swap(known);
  setSheet(grid, kinds);
  return true;
}

std::vector<QString> LineBook::rowOf(const jet::Recordset& line, const LineKinds& kinds) const {
  const int code = int(line[table_.kind].toLong());
  const LineKind& kind = table_.kindOf(code);
  const double paid = line[table_.paid].toDouble(), trust = line["Trust"].toDouble();
  const auto unlessPayment = [&line, &kind](const QString& column) {
    return kind.isPayment() ? QString() : figureText(line[column].toDouble());
  };
  return {
      line[table_.date].toText().right(5), partnerName(line), kinds[size_t(positionOf(kinds, code))].label,
      kind.isPayment() ? kind.paymentText
                       : joinItem({line[table_.name].toText(), line[table_.size].toText()}),
      unlessPayment(table_.number), unlessPayment(table_.unit), unlessPayment("DC"),
      // What was paid and what was left together are the amount; of a payment, the balance at that moment.
      figureText(paid + trust), figureText(paid), figureText(trust), line["Response"].toText(),
      line[table_.key].toText(), line[table_.partner].toText()};
}

/** A payment has no item, quantity, price or discount to type; other kinds have. */
void LineBook::lockForKind(SpreadModel& grid, int row, const LineKinds& kinds) const {
  const bool payment = kindAt(kinds, grid.comboPosition(row, LineCol::Kind)).isPayment();
  for (const int col : {LineCol::Item, LineCol::Number, LineCol::Unit, LineCol::Discount})
    grid.setLocked(row, col, payment);
}

std::vector<LastLine> LineBook::lastLines(int row) {
  constexpr int shown = 5;
  const QString partner = grid().text(row, LineCol::Code);
  return partner.isEmpty() ? std::vector<LastLine>() : lastLinesOf(session_, table_, partner, shown);
}

LineOffer LineBook::offer(int row, TradeSide side) {
  return lastOffer(session_, table_, side, kindOf(row), grid().text(row, LineCol::Code), offeredFrom());
}

// --- what another PC did -------------------------------------------------------------------------------------

/** All that this screen may write, joined into one text: two of one line compare. */
QString LineBook::written(const jet::Recordset& line) const {
  QStringList texts;
  for (const QString& column : writtenColumns_) texts << line[column].toText();
  return texts.join(u'\n');
}

jet::Recordset LineBook::requireUnmoved(const QString& key) {
  jet::Recordset line = db().OpenRecordset(lineStatement(key));
  if (line.atEnd()) throw LineMoved{LineMoved::Deleted};
  const auto known = known_.constFind(key);
  if (known != known_.constEnd() && *known != written(line)) throw LineMoved{LineMoved::Changed};
  return line;
}

/** A line of nobody would move no balance, and a customer's would stand on no sheet. */
void LineBook::requirePartner(const QString& partner) {
  if (db().OpenRecordset(balanceStatement(LineBalance::Gas, partner)).atEnd())
    throw LineMoved{LineMoved::PartnerGone};
}

void LineBook::learn(const QString& key) {
  known_[key] = written(db().OpenRecordset(lineStatement(key)));
}

void LineBook::tellMoved(const LineMoved& moved) {
  const QString told[] = {
      "다른 PC에서 이미 삭제한 자료입니다!\n화면을 다시 읽습니다.",
      "다른 PC에서 먼저 변경한 자료입니다!\n화면을 다시 읽습니다. 확인 후 다시 입력하세요.",
      table_.partnerGone + "\n화면을 다시 읽습니다. 다시 검색하세요."};
  session_.prompts.MsgWarn(told[moved.how], "자료수정");
  refill();
}

std::optional<bool> LineBook::isStored(int row) {
  const QString key = keyOf(row);
  if (key.isEmpty()) return false;
  try {
    return !db().OpenRecordset(lineStatement(key)).atEnd();
  } catch (const jet::Error&) {
    return {};
  }
}

// --- writing -------------------------------------------------------------------------------------------------

void LineBook::postRow(int row) {
  TradeLine line = lineOf(row);
  if (line.partner.isEmpty()) return;
  session_.wsMain.Together([&] {
    if (line.key.isEmpty()) {
      requirePartner(line.partner);
      const QString key = db().OpenRecordset(insertSkeleton(line))[0].toText();
      grid().setText(row, LineCol::Key, key);
      learn(key);
      return;
    }
    const jet::Recordset stored = requireUnmoved(line.key);
    // The cell shows no year: a line of last December that is corrected in January stays where it is.
    if (const QString day = stored[table_.date].toText(); day.right(5) == line.date.right(5)) line.date = day;
    moveByDifference(line, stored[table_.partner].toText());
    applyStock(line, StockMode::Change);
    if (line.item.isEmpty() && !writesWithoutItem()) return;
    updateLine(line);
    learn(line.key);
  });
}

/** Whole won. A line taken to another partner leaves the balance of the one it was booked on. */
void LineBook::moveByDifference(const TradeLine& line, const QString& storedPartner) {
  const jet::Recordset stored = db().OpenRecordset(moneyStatement(line.key));
  const bool payment = line.kind->isPayment();
  const qint64 now = jet::Value(payment ? line.paid : line.trust).toLong();
  const qint64 before = stored[payment ? table_.paid : u"Trust"_s].toLong();
  const auto move = [&](const QString& partner, qint64 to, qint64 from) {
    jet::Sql by;
    by << to << (payment ? u" + " : u" - ") << from;
    moveBalance({line.kind->balance, !payment, QStringView(by).toString()}, partner);
  };
  if (storedPartner == line.partner) return move(line.partner, now, before);
  move(storedPartner, 0, before);
  move(line.partner, now, 0);
}

void LineBook::applyStock(const TradeLine& line, StockMode mode) {
  if (!movesStock(session_, line)) return;
  const jet::Recordset stored = db().OpenRecordset(lineStatement(line.key));
  StoredPieces pieces;
  if (stored.RecordCount() > 0) pieces = {stored[table_.number].toDouble(), stored[table_.size].toDouble()};
  ApplyLineStock(session_, line, pieces, mode);
}

void LineBook::recalcRow(int row) {
  SpreadModel& cells = grid();
  if (metered()) {
    cells.setText(row, LineCol::Amount, "0");
    cells.setText(row, LineCol::Trust, "0");
    return;
  }
  const TradeLine line = lineOf(row);
  double amount = lineFigure(cells.text(row, LineCol::Amount));
  if (!line.kind->isPayment()) {
    for (int col = LineCol::Number; col <= LineCol::Trust; ++col)
      if (cells.text(row, col).isEmpty()) return;
    amount = double(line.number) * line.unit - line.discount;
    cells.setText(row, LineCol::Amount, figureText(amount));
  }
  cells.setText(row, LineCol::Trust, figureText(amount - line.paid));
}

void LineBook::resetRow(int row) {
  SpreadModel& cells = grid();
  for (int col = LineCol::Number; col <= LineCol::Trust; ++col) cells.setText(row, col, "0");
  cells.setText(row, LineCol::Person, {});
  lockForKind(cells, row, kinds());
  const LineKind& kind = kindOf(row);
  const QString partner = cells.text(row, LineCol::Code);
  jet::Recordset balance;
  if (!kind.isPayment() || partner.isEmpty() ||
      !OpenSnapshot(session_.prompts, db(), balance, balanceStatement(kind.balance, partner)) ||
      balance.atEnd())
    return;
  for (const int col : {LineCol::Amount, LineCol::Trust})
    cells.setText(row, col, figureText(balance[0].toDouble()));
}

void LineBook::reverseBalance(int row) {
  const LineKind& kind = kindOf(row);
  const QString figure = grid().text(row, kind.isPayment() ? LineCol::Paid : LineCol::Trust);
  moveBalance({kind.givenBack, kind.isPayment(), figureText(lineFigure(figure))},
              grid().text(row, LineCol::Code));
}

bool LineBook::deleteRow(int row) {
  const SpreadModel& cells = grid();
  const QString key = keyOf(row);
  if (key.isEmpty()) return false;
  // The line is named, and a hasty Enter leaves it where it is.
  const QString question = cells.text(row, LineCol::Partner) + "   " + cells.text(row, LineCol::Item) +
                           "   " + moneyText(lineFigure(cells.text(row, LineCol::Number))) + "개   " +
                           moneyText(lineFigure(cells.text(row, LineCol::Amount))) +
                           "원\n선택한 자료를 삭제하시겠습니까?";
  if (!session_.prompts.MsgAsk(question, "자료삭제", false)) return false;
  try {
    session_.wsMain.Together([&] {
      requireUnmoved(key);
      reverseBalance(row);
      applyStock(lineOf(row), StockMode::Delete);
      deleteLine(key);
    });
    refill();
  } catch (const LineMoved& moved) {
    tellMoved(moved);
  }
  return true;
}

void LineBook::postPerson(int row) {
  const QString person = grid().text(row, LineCol::Person);
  const QString key = keyOf(row);
  if (person.isEmpty() || key.isEmpty()) return;
  session_.wsMain.Together([&] {
    requireUnmoved(key);
    updatePerson(key, person);
    learn(key);
  });
}
