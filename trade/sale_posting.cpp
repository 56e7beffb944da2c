#include "trade/sale_posting.h"

#include "store/data_access.h"
#include "store/date_text.h"
#include "store/jet/sql.h"
#include "store/text_width.h"

SalePosting::SalePosting(Session& session) : session_(session), date_(session.pc.clock.dateText().right(5)) {
  for (const SaleSheet sheet : {SaleSheet::General, SaleSheet::Volume, SaleSheet::Material})
    grid(sheet).setColumns(saleColumns(sheet));
}

QString SalePosting::checkedDate(const QString& typed) {
  const QDate today = session_.pc.clock.today();
  const QString found = checkedMonthDay(typed, QString::number(today.year()), session_.pc.clock).right(5);
  if (found.isEmpty())
    session_.prompts.MsgWarn("날짜 입력이 올바르지 않습니다!\n입력예) " + today.toString("MM.dd"),
                             "날짜입력 에러");
  return found;
}

bool SalePosting::setDate(const QString& typed) {
  date_ = checkedDate(typed);
  return !date_.isEmpty();
}

bool SalePosting::FillSaleGrid(SaleSheet sheet, bool showDay) {
  if (beforeFill) beforeFill();
  KnownLines known;
  if (!loadSaleSheet(session_, grid(sheet), sheet, {showDay, date_, client_}, known)) return false;
  known_.swap(known);
  sheet_ = sheet;
  showDay_ = showDay;
  return true;
}

void SalePosting::PostSaleRow(int row, SaleSheet sheet) {
  const SaleLine line = lineOf(row, sheet);
  if (line.code.isEmpty()) return;
  session_.wsMain.Together([&] {
    if (line.key.isEmpty()) {
      insertSkeleton(row, sheet, line);
      return;
    }
    requireUnmoved(line.key);
    const jet::Recordset before = session_.dbYear.OpenRecordset(
        "Select Trust, Income From Sale Where SaleID = " + plainNumber(line.key));
    moveBalance(sheet, line, before["Trust"].toLong(), before["Income"].toLong());
    ::ApplySaleStock(session_, line, StockMode::Change);
    if (line.item.isEmpty()) return;
    updateLine(sheet, line);
    // Kept: an older day takes the last date back.
    session_.dbYear.Execute("Update Client Set LastDate = '" + plainText(line.date) +
                            "' Where Code = " + plainNumber(line.code));
    learn(line.key);
  });
}

void SalePosting::requireUnmoved(const QString& key) {
  const jet::Recordset line =
      session_.dbYear.OpenRecordset("Select * From Sale Where SaleID = " + plainNumber(key));
  if (line.atEnd()) throw SaleLineMoved{SaleLineMoved::Deleted};
  const auto known = known_.constFind(key);
  if (known != known_.constEnd() && *known != storedSaleLine(line))
    throw SaleLineMoved{SaleLineMoved::Changed};
}

void SalePosting::learn(const QString& key) {
  known_[key] =
      storedSaleLine(session_.dbYear.OpenRecordset("Select * From Sale Where SaleID = " + plainNumber(key)));
}

void SalePosting::tellMoved(const SaleLineMoved& moved) {
  session_.prompts.MsgWarn(
      moved.how == SaleLineMoved::Deleted
          ? "다른 PC에서 이미 삭제한 자료입니다!\n화면을 다시 읽습니다."
          : "다른 PC에서 먼저 변경한 자료입니다!\n화면을 다시 읽습니다. 확인 후 다시 입력하세요.",
      "자료수정");
  refill();
}

void SalePosting::insertSkeleton(int row, SaleSheet sheet, const SaleLine& line) {
  const char* tail = sheet == SaleSheet::Material ? ", 7, False, '0')"
                     : sheet == SaleSheet::Volume ? ", 1, True, '0')"
                                                  : ", 1, False, '0')";
  session_.dbYear.Execute(
      "Insert Into Sale(salelist, deallist, SaleDate, ClientCode, SaleGubun, Gubun, salething) "
      "Values(0,0, '" +
      plainText(line.date) + "', " + plainNumber(line.code) + tail);
  const jet::Recordset key = session_.dbYear.OpenRecordset("Select Max(SaleID) As Saler from Sale");
  grid(sheet).setText(row, SaleCol::Key, key["Saler"].toText());
  learn(key["Saler"].toText());
}

void SalePosting::moveBalance(SaleSheet sheet, const SaleLine& line, qint64 oldTrust, qint64 oldIncome) {
  const bool material = sheet == SaleSheet::Material;
  jet::Sql sql;
  if (isCollection(line.kind))
    sql << (material ? u"Update Client Set UtilInit = UtilInit - "
                     : u"Update Client Set GasInit = GasInit - ")
        << jet::Value(line.income).toLong() << u" + " << oldIncome;
  else
    sql << (material ? u"Update Client Set UtilInit = UtilInit + "
                     : u"Update Client Set GasInit = GasInit + ")
        << jet::Value(line.trust).toLong() << u" - " << oldTrust;
  session_.dbYear.Execute(sql << u" Where Code = " << plainNumber(line.code));
}

void SalePosting::updateLine(SaleSheet sheet, const SaleLine& line) {
  session_.dbYear.Execute(
      jet::Sql() << u"Update Sale Set SaleDate = '" << plainText(line.date) << u"', ClientCode = "
                 << plainNumber(line.code) << u", Response = '" << plainText(line.person)
                 << u"', SaleName = '" << plainText(line.item.name) << u"', SaleThing = '"
                 << plainText(line.item.size) << u"', SaleUnit = " << line.unit << u", SaleNum = "
                 << line.number << u", SaleGubun = " << line.kind
                 << (sheet == SaleSheet::Volume ? u", Gubun = True, " : u", Gubun = False, ") << u"Income = "
                 << line.income << u", DC = " << line.discount << u", Trust = " << line.trust
                 << u" Where SaleID = " << plainNumber(line.key));
}

void SalePosting::ApplySaleStock(int row, StockMode mode) {
  ::ApplySaleStock(session_, lineOf(row, sheet_), mode);
}

void SalePosting::RecalcSaleRow(int row, SaleSheet sheet) {
  SpreadModel& cells = grid(sheet);
  // What a volume customer gets is billed from his meter, so the line carries no amount.
  if (sheet == SaleSheet::Volume) {
    cells.setText(row, SaleCol::Amount, "0");
    cells.setText(row, SaleCol::Trust, "0");
    return;
  }
  const auto figure = [&cells, row](int col) { return saleFigure(cells.text(row, col)); };
  if (isCollection(lineOf(row, sheet).kind)) {
    cells.setText(row, SaleCol::Trust, saleText(figure(SaleCol::Amount) - figure(SaleCol::Income)));
    return;
  }
  for (int col = SaleCol::Number; col <= SaleCol::Trust; ++col)
    if (cells.text(row, col).isEmpty()) return;
  const double amount =
      double(saleWhole(cells.text(row, SaleCol::Number))) * figure(SaleCol::Unit) - figure(SaleCol::Discount);
  cells.setText(row, SaleCol::Amount, saleText(amount));
  cells.setText(row, SaleCol::Trust, saleText(amount - figure(SaleCol::Income)));
}

void SalePosting::ResetSaleRow(int row, SaleSheet sheet) {
  SpreadModel& cells = grid(sheet);
  for (int col = SaleCol::Number; col <= SaleCol::Trust; ++col) cells.setText(row, col, "0");
  cells.setText(row, SaleCol::Person, {});
  lockForKind(cells, row, sheet);
  const SaleLine line = lineOf(row, sheet);
  if (!isCollection(line.kind) || line.code.isEmpty()) return;
  const bool gas = line.kind == SaleCollection;
  jet::Recordset client;
  if (!OpenSnapshot(
          session_.prompts, session_.dbYear, client,
          (gas ? "Select GasInit From Client Where Code = " : "Select UtilInit From Client Where Code = ") +
              line.code) ||
      client.atEnd())
    return;
  for (const int col : {SaleCol::Amount, SaleCol::Trust})
    cells.setText(row, col, saleText(client[gas ? "GasInit" : "UtilInit"].toDouble()));
}

void SalePosting::ReverseSaleBalance(int row, const QString& label) {
  const SpreadModel& cells = grid(sheet_);
  const QString income = saleText(saleFigure(cells.text(row, SaleCol::Income)));
  const QString trust = saleText(saleFigure(cells.text(row, SaleCol::Trust)));
  const QString where = " Where Code = " + plainNumber(cells.text(row, SaleCol::Code));
  if (label == "수금")
    session_.dbYear.Execute("Update Client Set GasInit = GasInit + " + income + where);
  else if (label == "자수")
    session_.dbYear.Execute("Update client Set UtilInit = UtilInit + " + income + where);
  else if (label == "자재" && !session_.StockEnabled)
    session_.dbYear.Execute("Update client Set UtilInit = UtilInit - " + trust + where);
  else  // Kept: the credit of a material line ("자판") is taken off GasInit although it was booked on UtilInit.
    session_.dbYear.Execute("Update client Set GasInit = GasInit - " + trust + where);
}

bool SalePosting::deleteRow(int row) {
  const SpreadModel& cells = grid(sheet_);
  const QString key = cells.text(row, SaleCol::Key);
  if (key.isEmpty()) return false;
  // The line is named, and a hasty Enter leaves it where it is.
  const QString question = cells.text(row, SaleCol::Client) + "   " + cells.text(row, SaleCol::Item) + "   " +
                           moneyText(saleFigure(cells.text(row, SaleCol::Number))) + "개   " +
                           moneyText(saleFigure(cells.text(row, SaleCol::Amount))) +
                           "원\n선택한 자료를 삭제하시겠습니까?";
  if (!session_.prompts.MsgAsk(question, "자료삭제", false)) return false;
  const QString label = cells.text(row, SaleCol::Kind);
  try {
    session_.wsMain.Together([&] {
      requireUnmoved(key);
      ReverseSaleBalance(row, label);
      if (label != "가외" && label != "자외") ApplySaleStock(row, StockMode::Delete);
      session_.dbYear.Execute("Delete From Sale Where SaleID = " + plainNumber(key));
    });
    refill();
  } catch (const SaleLineMoved& moved) {
    tellMoved(moved);
  }
  return true;
}

std::optional<bool> SalePosting::isStored(int row) {
  const QString key = grid(sheet_).text(row, SaleCol::Key);
  if (key.isEmpty()) return false;
  try {
    return !session_.dbYear.OpenRecordset("Select SaleID From Sale Where SaleID = " + plainNumber(key))
                .atEnd();
  } catch (const jet::Error&) {
    return {};
  }
}

void SalePosting::postPerson(int row) {
  const SpreadModel& cells = grid(sheet_);
  const QString person = cells.text(row, SaleCol::Person);
  const QString key = cells.text(row, SaleCol::Key);
  if (person.isEmpty() || key.isEmpty()) return;
  session_.wsMain.Together([&] {
    requireUnmoved(key);
    session_.dbYear.Execute("Update Sale Set Response = '" + plainText(person) +
                            "' Where SaleID = " + plainNumber(key));
    learn(key);
  });
}

SaleClientPanel SalePosting::panel(int row) {
  const QString code = grid(sheet_).text(row, SaleCol::Code);
  jet::Recordset client;
  if (code.isEmpty() ||
      !OpenSnapshot(session_.prompts, session_.dbYear, client, "Select * From Client Where Code = " + code) ||
      client.atEnd())
    return {};
  return {code.toLongLong(),
          "(" + client["PostCode"].toText() + ") " + client["Address"].toText(),
          client["Tel"].toText(),
          moneyText(client["GasInit"].toDouble()),
          moneyText(client["UtilInit"].toDouble()),
          client["LastDate"].toText(),
          client["Memo"].toText(),
          client["Position"].toText().isEmpty() ? "약도없슴" : "약도있슴"};
}

std::vector<SaleLastLine> SalePosting::lastLines(int row) {
  constexpr int shown = 5;
  const QString code = grid(sheet_).text(row, SaleCol::Code);
  return code.isEmpty() ? std::vector<SaleLastLine>() : lastSaleLines(session_, code, shown);
}
