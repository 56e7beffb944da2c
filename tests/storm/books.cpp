#include "tests/storm/books.h"

#include <algorithm>
#include <map>

#include "store/data_files.h"
#include "store/jet/connection.h"
#include "store/upgrades.h"
#include "store/year_file.h"
#include "trade/line_kinds.h"

using namespace Qt::StringLiterals;

namespace storm {
namespace {

constexpr qint64 startStock = 1'000'000;  // of everything that is counted
const QStringList gasSizes{"20", "50"};

using Figures = std::map<QString, qint64>;  // what is counted, by a name of its own

qint64 wholeOf(const jet::Recordset& rows, const QString& field) {
  return rows[field].toLong();
}

/** A line's effect by the law of the sale screen, written out once more on purpose. */
void addLine(Figures& figures, const jet::Recordset& line) {
  const int kind = int(wholeOf(line, "SaleGubun"));
  const qint64 pieces = wholeOf(line, "SaleNum"), trust = wholeOf(line, "Trust"),
               income = wholeOf(line, "Income");
  const QString client = line["ClientCode"].toText(), size = line["SaleThing"].toText();
  const QString gas = "gas " + client, material = "material " + client;
  const auto move = [&](const char* what, qint64 by) { figures[QLatin1String(what) + u' ' + size] += by; };
  switch (kind) {
    case SaleCollection:
      figures[gas] -= income;
      return;
    case SaleMaterialCollection:
      figures[material] -= income;
      return;
    case SaleMaterial:
      figures[material] += trust;
      if (pieces) move("fitting", -pieces);
      return;
    default:
      figures[gas] += trust;
  }
  if (pieces == 0) return;  // begun, but not yet of anything
  const qint64 kilograms = pieces * size.toLongLong();
  switch (kind) {
    case SaleGas:
      move("kg", -kilograms);
      move("full", -pieces);
      move("empty", +pieces);
      break;
    case SaleCylinder:
      move("empty", -pieces);
      move("held", -pieces);
      break;
    case SaleFullCylinder:
      move("kg", -kilograms);
      move("held", -pieces);
      move("full", -pieces);
      break;
    case SaleLoan:
      move("empty", -pieces);
      move("lent", +pieces);
      break;
    case SaleReturn:
      move("empty", +pieces);
      move("lent", -pieces);
      break;
    default:
      figures["a kind that nobody posts"] += 1;
  }
}

Figures startFigures() {
  Figures figures;
  for (int code = 1; code <= clientCount; ++code)
    for (const QString what : {"gas ", "material "}) figures[what + QString::number(code)] = startBalance;
  for (const QString& size : gasSizes)
    for (const char* what : {"kg ", "held ", "lent ", "empty ", "full "})
      figures[QLatin1String(what) + size] = startStock;
  figures["fitting 15A"] = startStock;
  return figures;
}

Figures storedFigures(const Session& session) {
  Figures figures;
  for (auto rs = session.dbYear.OpenRecordset("Select Code, GasInit, UtilInit From Client"); !rs.atEnd();
       rs.MoveNext()) {
    figures["gas " + rs[0].toText()] = rs[1].toLong();
    figures["material " + rs[0].toText()] = rs[2].toLong();
  }
  for (auto rs = session.dbYear.OpenRecordset(
           "Select Size, LPGStock, CANTotalHold, CANLoan, CANEmpty, CANFull From LPG");
       !rs.atEnd(); rs.MoveNext()) {
    int column = 1;
    for (const char* what : {"kg ", "held ", "lent ", "empty ", "full "})
      figures[QLatin1String(what) + rs[0].toText()] = rs[column++].toLong();
  }
  for (auto rs = session.dbYear.OpenRecordset("Select Size, UtilStock From Util"); !rs.atEnd(); rs.MoveNext())
    figures["fitting " + rs[0].toText()] = rs[1].toLong();
  return figures;
}

void checkCarry(const Session& session, QStringList& faults) {
  const auto rs = [&](int month, const QString& field) {
    return session.dbYear.OpenRecordset(
        u"Select ClientCode, %1 From Evaporation Where Mon = %2 Order By ClientCode"_s.arg(field).arg(month));
  };
  jet::Recordset bill = rs(readMonth, "Total"), arrears = rs(readMonth + 1, "Trust");
  for (; !bill.atEnd() && !arrears.atEnd(); bill.MoveNext(), arrears.MoveNext())
    if (bill[1].toDouble() != arrears[1].toDouble())
      faults << u"bill %1 of customer %2 went on as %3"_s.arg(bill[1].toText(), bill[0].toText(),
                                                              arrears[1].toText());
}

void checkFile(const QString& path, QStringList& faults) {
  try {
    jet::Connection connection(path, 4000);
    jet::SqliteStatement check(connection, "PRAGMA integrity_check");
    while (check.step(path))
      if (check.text(0) != u"ok") faults << path + ": " + check.text(0);
  } catch (const jet::Error& error) {
    faults << path + ": " + error.description();
  }
}

}  // namespace

bool isKorean(const QString& text) {
  return std::ranges::any_of(text, [](QChar c) { return c.script() == QChar::Script_Hangul; });
}

Pc::Pc(const QString& root) : pc(root) {
  pc.clock.set(QDateTime(QDate(2026, 3, 5), QTime(9, 0)));
  session.AppTitle = "해온판매";
  session.DbPath = installedDataFolder();
  session.WorkYear = "2026";
  session.StockEnabled = true;
}

void Pc::makeBooks() {
  if (!prepareDataFolder(session)) return;
  makeYearFile(session, session.WorkYear);
  open();
  const auto run = [this](const QString& sql) { session.dbBasic.Execute(sql); };
  session.wsMain.Together([&] {
    for (int code = 1; code <= clientCount; ++code)
      run(u"Insert Into Client(Code, Name, HouseStyle, GasInit, UtilInit, VolumeYesNo) "
          "Values(%1, '손님%1', 0, %2, %2, False)"_s.arg(code)
              .arg(startBalance));
    for (int code = clientCount + 1; code <= clientCount + meteredCount; ++code) {
      run(u"Insert Into Client(Code, Name, HouseStyle, VolumeYesNo, VolumeUnit) Values(%1, '체적%1', 0, True, 1500)"_s
              .arg(code));
      for (int month = 0; month <= 12; ++month)
        session.dbYear.Execute(
            u"Insert Into Evaporation(ClientCode, Mon) Values(%1, %2)"_s.arg(code).arg(month));
    }
    run("Insert Into User(Company, PayState, Rate, Security) Values('해온가스', 1, 2, 1000)");
    for (const QString& size : gasSizes)
      run(u"Insert Into LPG(LPGName, Size, LPGStock, CANTotalHold, CANLoan, CANEmpty, CANFull) "
          "Values('LPG', '%1', %2, %2, %2, %2, %2)"_s.arg(size)
              .arg(startStock));
    run(u"Insert Into Util(Name, Size, UtilStock) Values('밸브', '15A', %1)"_s.arg(startStock));
  });
}

void Pc::open() {
  session.wsMain = openWorkspace(session, session.DbPath);
  session.dbBasic = session.wsMain.OpenDatabase(session.DbPath + "Basic.mdb");
  upgrades::relink(session);
  session.dbYear = session.wsMain.OpenDatabase(yearFile(session, session.WorkYear));
  session.dbTax = session.wsMain.OpenDatabase(session.DbPath + "dbTax.mdb");
  session.dbCommon = session.dbBasic;
}

void Pc::close() {
  for (jet::Database* handle : {&session.dbBasic, &session.dbYear, &session.dbTax, &session.dbCommon})
    handle->Close();
  session.wsMain.Close();
}

QString Line::text() const {
  return u"client %1 kind %2 pieces %3 income %4 credit %5"_s.arg(client)
      .arg(kind)
      .arg(number)
      .arg(income)
      .arg(trust);
}

Lines storedLines(const Session& session) {
  Lines lines;
  for (auto rs = session.dbYear.OpenRecordset(
           "Select SaleID, ClientCode, SaleGubun, SaleNum, Income, Trust From Sale");
       !rs.atEnd(); rs.MoveNext())
    lines[rs[0].toLong()] = {int(rs[2].toLong()), rs[1].toLong(), rs[3].toLong(), rs[4].toLong(),
                             rs[5].toLong()};
  return lines;
}

Readings storedReadings(const Session& session) {
  Readings readings;
  for (auto rs = session.dbYear.OpenRecordset(
           "Select ClientCode, UseGage, Total From Evaporation Where Mon = " + QString::number(readMonth));
       !rs.atEnd(); rs.MoveNext())
    readings[rs[0].toLong()] = {rs[1].toLong(), rs[2].toLong()};
  return readings;
}

QStringList faultsOf(const QString& root) {
  QStringList faults;
  try {
    Pc here(root);
    const QString folder = here.pc.paths.native(here.session.DbPath);
    for (const QString& name : here.pc.paths.list(here.session.DbPath, "*.mdb"))
      checkFile(folder + u'/' + name, faults);
    here.open();
    Figures due = startFigures();
    for (auto rs = here.session.dbYear.OpenRecordset("Select * From Sale"); !rs.atEnd(); rs.MoveNext())
      addLine(due, rs);
    checkCarry(here.session, faults);
    const Figures stored = storedFigures(here.session);
    for (const auto& [what, figure] : due)
      if (const auto at = stored.find(what); at == stored.end() || at->second != figure)
        faults << u"%1 is %2, by the lines %3"_s.arg(what)
                      .arg(at == stored.end() ? "missing" : QString::number(at->second))
                      .arg(figure);
  } catch (const jet::Error& error) {
    faults << error.description();
  }
  return faults;
}

}  // namespace storm
