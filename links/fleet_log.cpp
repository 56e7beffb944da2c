#include "links/fleet_log.h"

#include "store/data_access.h"
#include "store/date_text.h"
#include "store/vb.h"
#include "ui/model/column.h"

using namespace Qt::StringLiterals;

namespace {

const QString carTitle = u"차량 정비 등록"_s;
/** Behind the grid's columns, in their order. */
const QString carFields[] = {u"RDate"_s, u"RCarNo"_s, u"RContent"_s, u"RMoney"_s, u"RResName"_s, u"RCode"_s};
const RegisterFields carLabels{{u"RDate"_s, u"일자"_s},
                               {u"RCarNo"_s, u"차량번호"_s},
                               {u"RContent"_s, u"정비내역/부품"_s},
                               {u"RMoney"_s, u"금액"_s},
                               {u"RResName"_s, u"담당자"_s}};

const QString& fieldAt(int col) {
  return carFields[col - 1];
}

QString carWhere(const CarAsk& ask) {
  QStringList conditions;
  if (!ask.from.isEmpty()) conditions << u"RDate >= '"_s + plainText(ask.from) + u"'"_s;
  if (!ask.to.isEmpty()) conditions << u"RDate <= '"_s + plainText(ask.to) + u"'"_s;
  if (!ask.carNo.isEmpty()) conditions << u"RCarNo = '"_s + plainText(ask.carNo) + u"'"_s;
  return conditions.isEmpty() ? QString() : u" Where "_s + conditions.join(u" And "_s);
}

}  // namespace

FleetLog::FleetLog(Session& session) : session_(session) {
  grid_.setColumns({column::limited(10, column::date(u"일자"_s, 12)),
                    column::limited(20, column::centred(u"차량번호"_s, 14)),
                    column::limited(100, column::text(u"정비내역/부품"_s, 40)),
                    column::limited(9, column::money(u"금액"_s, 13)),
                    column::limited(20, column::centred(u"담당자"_s, 14)), column::hidden(u"코드"_s)});
}

bool FleetLog::showAll() {
  if (!read({})) return false;
  asks_ = false;
  addNewLine();
  return true;
}

bool FleetLog::showAsked(const CarAsk& typed) {
  CarAsk ask = typed;
  ask.carNo = typed.carNo.trimmed();
  for (QString* day : {&ask.from, &ask.to}) {
    if (day->isEmpty()) continue;
    *day = checkedDate(*day, session_.pc.clock);
    if (!day->isEmpty()) continue;
    session_.prompts.MsgWarn(u"날짜입력이 잘못되었습니다"_s, carTitle);
    return false;
  }
  if (!read(carWhere(ask))) return false;
  asks_ = true;
  return true;
}

/** A query that fails leaves what is shown. */
bool FleetLog::read(const QString& where) {
  jet::Recordset rs;
  if (!OpenSnapshot(session_.prompts, session_.dbBasic, rs,
                    u"Select * From Car"_s + where + u" Order By RDate, RCode"_s))
    return false;
  where_ = where;
  stored_.clear();
  std::vector<std::vector<QString>> rows;
  for (; !rs.atEnd(); rs.MoveNext()) {
    RegisterFields fields = fieldsOf(rs);
    std::vector<QString>& row = rows.emplace_back();
    for (const QString& field : carFields) row.push_back(fields[field]);
    stored_.insert(fields[u"RCode"_s], fields);
  }
  grid_.setRows(std::move(rows));
  return true;
}

/** What is shown, as it is stored meanwhile; a new line that was begun stays as it is. */
void FleetLog::readAgain() {
  std::vector<QString> begun;
  if (!asks_ && isBegun(grid_.MaxRows()))
    for (int col = CarCol::Day; col <= CarCol::Person; ++col)
      begun.push_back(grid_.text(grid_.MaxRows(), col));
  if (!read(QString(where_)) || asks_) return;
  addNewLine();
  for (size_t at = 0; at < begun.size(); ++at) grid_.setText(grid_.MaxRows(), int(at) + 1, begun[at]);
}

QString FleetLog::summary() const {
  jet::Recordset sums;
  const QString statement =
      where_.isEmpty() ? u"SELECT Count(Car.RMoney) AS RCount, Sum(Car.RMoney) AS RMoney FROM Car"_s
                       : u"Select Count(Car.RMoney) AS RCount, Sum(Car.RMoney) AS RMoney From Car"_s + where_;
  if (!OpenSnapshot(session_.prompts, session_.dbBasic, sums, statement) || sums.atEnd()) return {};
  return u"건수  %1건     금액  %2원"_s.arg(vb::Format(sums[u"RCount"_s].toDouble(), u"#,##0"_s),
                                            vb::Format(sums[u"RMoney"_s].toDouble(), u"#,##0"_s));
}

void FleetLog::addNewLine() {
  grid_.setMaxRows(grid_.MaxRows() + 1);
  grid_.setText(grid_.MaxRows(), CarCol::Day, session_.pc.clock.dateText());
}

void FleetLog::showRow(int row, const RegisterFields& fields) {
  for (int col = CarCol::Day; col <= CarCol::Code; ++col) grid_.setText(row, col, fields[fieldAt(col)]);
}

QString FleetLog::driverOf(const QString& carNo) const {
  jet::Recordset vehicle;
  if (!OpenSnapshot(session_.prompts, session_.dbBasic, vehicle,
                    u"Select * From CaRes Where CarNo = '"_s + plainText(carNo) + u"'"_s) ||
      vehicle.atEnd())
    return {};
  return vehicle[u"ResName"_s].toText();
}

CarCell FleetLog::finishCell(int row, int col, const QString& typed) {
  QString text = typed.trimmed();
  if (col == CarCol::Day) {
    text = checkedDate(text, session_.pc.clock);
    if (text.isEmpty()) {
      session_.prompts.MsgWarn(u"날짜 입력이 잘못되었습니다"_s, carTitle);
      return CarCell::Refused;
    }
  }
  if (textTooLong(session_, u"Car"_s, {{fieldAt(col), text}}, carLabels, carTitle)) return CarCell::Refused;
  RegisterFields changed{{fieldAt(col), text}};
  if (col == CarCol::CarNo && !text.isEmpty())
    if (const QString driver = driverOf(text); !driver.isEmpty()) changed[fieldAt(CarCol::Person)] = driver;
  if (isStored(row)) return change(row, changed);
  for (int at = CarCol::Day; at <= CarCol::Person; ++at)
    if (changed.contains(fieldAt(at))) grid_.setText(row, at, changed[fieldAt(at)]);
  return CarCell::Taken;
}

RowSource FleetLog::source(const QString& code) const {
  return {u"Select * From Car Where RCode = "_s + plainNumber(code), fieldsOf};
}

CarCell FleetLog::change(int row, const RegisterFields& typed) {
  if (!session_.prompts.MsgAsk(u"선택된 자료의 변경사항을 저장하시겠습니까?"_s, carTitle))
    return CarCell::PutBack;
  const QString code = grid_.text(row, CarCol::Code);
  const RegisterFields read = stored_[code];
  RegisterFields written;
  const RowOutcome outcome = changeRow(
      session_, source(code), carTitle, {.read = read, .shown = read, .typed = typed, .labels = carLabels},
      [&](const RegisterFields& line, const RegisterFields&) {
        session_.dbBasic.Execute(u"Update Car Set RDate = '"_s + plainText(line[u"RDate"_s]) +
                                 u"', RContent = '"_s + plainText(line[u"RContent"_s]) + u"', RCarNo = '"_s +
                                 plainText(line[u"RCarNo"_s]) + u"', RResName = '"_s +
                                 plainText(line[u"RResName"_s]) + u"', RMoney = "_s +
                                 typedNumber(line[u"RMoney"_s]) + u" Where RCode = "_s + plainNumber(code));
        written = line;
      });
  if (outcome.end == RowEnd::Refused) return CarCell::PutBack;
  if (outcome.end != RowEnd::Done) {
    readAgain();
    return CarCell::Reread;
  }
  written[u"RMoney"_s] = typedNumber(written[u"RMoney"_s]);
  stored_[code] = written;
  showRow(row, written);
  return CarCell::Taken;
}

bool FleetLog::isBegun(int row) const {
  if (row < 1 || row > grid_.MaxRows() || isStored(row)) return false;
  for (int col = CarCol::CarNo; col <= CarCol::Person; ++col)
    if (!grid_.text(row, col).isEmpty()) return true;
  return false;
}

int FleetLog::missing(int row) const {
  for (int col : {int(CarCol::Day), int(CarCol::CarNo), int(CarCol::Content)})
    if (grid_.text(row, col).isEmpty()) return col;
  return 0;
}

bool FleetLog::store(int row) {
  if (isStored(row)) return true;
  if (const int col = missing(row)) {
    session_.prompts.MsgWarn(col == CarCol::Day     ? u"일자를 입력하십시오"_s
                             : col == CarCol::CarNo ? u"차량번호를 입력하십시오"_s
                                                    : u"정비내역/부품을 입력하십시오"_s,
                             carTitle);
    return false;
  }
  const auto text = [&](int col) { return grid_.text(row, col); };
  RegisterFields line;
  session_.dbBasic.Together([&] {
    session_.dbBasic.Execute(u"Insert Into Car(RDate, RContent, RCarNo, RResName, RMoney) Values('"_s +
                             plainText(text(CarCol::Day)) + u"', '"_s + plainText(text(CarCol::Content)) +
                             u"', '"_s + plainText(text(CarCol::CarNo)) + u"', '"_s +
                             plainText(text(CarCol::Person)) + u"', "_s +
                             typedNumber(grid_.text(row, CarCol::Money)) + u")"_s);
    // With the line itself: one that is stored and not known here would be stored once more.
    const QString code =
        session_.dbBasic.OpenRecordset(u"Select Last(RCode)As Code From Car"_s)[u"Code"_s].toText();
    line = fieldsOf(session_.dbBasic.OpenRecordset(source(code).select));
  });
  stored_[line[u"RCode"_s]] = line;
  showRow(row, line);
  addNewLine();
  return true;
}

void FleetLog::emptyNewLine(int row) {
  if (isStored(row)) return;
  for (int col = CarCol::CarNo; col <= CarCol::Person; ++col) grid_.setText(row, col, {});
  grid_.setText(row, CarCol::Day, session_.pc.clock.dateText());
}

bool FleetLog::remove(int row) {
  if (!isStored(row) && !isBegun(row)) return false;
  if (!session_.prompts.MsgAsk(u"선택된 자료를 삭제하시겠습니까?"_s, carTitle, false)) return false;
  if (!isStored(row)) {
    emptyNewLine(row);
    return true;
  }
  const QString code = grid_.text(row, CarCol::Code);
  const RowEnd end = deleteRow(session_, source(code), carTitle, stored_[code], [&] {
    session_.dbBasic.Execute(u"Delete * From Car Where Rcode = "_s + plainNumber(code));
  });
  if (end != RowEnd::Done) {
    readAgain();
    return true;
  }
  stored_.remove(code);
  grid_.deleteRow(row);
  return true;
}
