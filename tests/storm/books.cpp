#include "tests/storm/books.h"

#include <array>
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
const QStringList gasSizes{u"20"_s, u"50"_s};

using Figures = std::map<QString, qint64>;  // what is counted, by a name of its own

qint64 wholeOf(const jet::Recordset& rows, const QString& field) {
  return rows[field].toLong();
}

/** A line's effect by the law of the sale screen, written out once more on purpose. */
void addLine(Figures& figures, const jet::Recordset& line) {
  const int kind = int(wholeOf(line, u"SaleGubun"_s));
  const qint64 pieces = wholeOf(line, u"SaleNum"_s), trust = wholeOf(line, u"Trust"_s),
               income = wholeOf(line, u"Income"_s);
  const QString client = line[u"ClientCode"_s].toText(), size = line[u"SaleThing"_s].toText();
  const QString gas = u"gas "_s + client, material = u"material "_s + client;
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
      figures[u"a kind that nobody posts"_s] += 1;
  }
}

Figures startFigures() {
  Figures figures;
  for (int code = 1; code <= clientCount; ++code)
    for (const QString& what : {u"gas "_s, u"material "_s})
      figures[what + QString::number(code)] = startBalance;
  for (const QString& size : gasSizes)
    for (const char* what : {"kg ", "held ", "lent ", "empty ", "full "})
      figures[QLatin1String(what) + size] = startStock;
  figures[u"fitting 15A"_s] = startStock;
  return figures;
}

Figures storedFigures(const Session& session) {
  Figures figures;
  for (auto rs = session.dbYear.OpenRecordset(u"Select Code, GasInit, UtilInit From Client"_s); !rs.atEnd();
       rs.MoveNext()) {
    figures[u"gas "_s + rs[0].toText()] = rs[1].toLong();
    figures[u"material "_s + rs[0].toText()] = rs[2].toLong();
  }
  for (auto rs = session.dbYear.OpenRecordset(
           u"Select Size, LPGStock, CANTotalHold, CANLoan, CANEmpty, CANFull From LPG"_s);
       !rs.atEnd(); rs.MoveNext()) {
    int column = 1;
    for (const char* what : {"kg ", "held ", "lent ", "empty ", "full "})
      figures[QLatin1String(what) + rs[0].toText()] = rs[column++].toLong();
  }
  for (auto rs = session.dbYear.OpenRecordset(u"Select Size, UtilStock From Util"_s); !rs.atEnd();
       rs.MoveNext())
    figures[u"fitting "_s + rs[0].toText()] = rs[1].toLong();
  return figures;
}

void checkCarry(const Session& session, QStringList& faults) {
  const auto rs = [&](int month, const QString& field) {
    return session.dbYear.OpenRecordset(
        u"Select ClientCode, %1 From Evaporation Where Mon = %2 Order By ClientCode"_s.arg(field).arg(month));
  };
  jet::Recordset bill = rs(readMonth, u"Total"_s), arrears = rs(readMonth + 1, u"Trust"_s);
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
      if (check.text(0) != u"ok") faults << path + u": "_s + check.text(0);
  } catch (const jet::Error& error) {
    faults << path + u": "_s + error.description();
  }
}

}  // namespace

Pc::Pc(const QString& root) : pc(root) {
  pc.clock.set(QDateTime(QDate(2026, 3, 5), QTime(9, 0)));
  session.AppTitle = u"해온판매"_s;
  session.DbPath = installedDataFolder();
  session.WorkYear = u"2026"_s;
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
          u"Values(%1, '손님%1', 0, %2, %2, False)"_s.arg(code)
              .arg(startBalance));
    for (int code = clientCount + 1; code <= clientCount + meteredCount; ++code) {
      run(u"Insert Into Client(Code, Name, HouseStyle, VolumeYesNo, VolumeUnit) Values(%1, '체적%1', 0, True, 1500)"_s
              .arg(code));
      for (int month = 0; month <= 12; ++month)
        session.dbYear.Execute(
            u"Insert Into Evaporation(ClientCode, Mon) Values(%1, %2)"_s.arg(code).arg(month));
    }
    run(u"Insert Into User(Company, PayState, Rate, Security) Values('해온가스', 1, 2, 1000)"_s);
    for (const QString& size : gasSizes)
      run(u"Insert Into LPG(LPGName, Size, LPGStock, CANTotalHold, CANLoan, CANEmpty, CANFull) "
          u"Values('LPG', '%1', %2, %2, %2, %2, %2)"_s.arg(size)
              .arg(startStock));
    run(u"Insert Into Util(Name, Size, UtilStock) Values('밸브', '15A', %1)"_s.arg(startStock));
  });
}

void Pc::open() {
  session.wsMain = openWorkspace(session, session.DbPath);
  session.dbBasic = session.wsMain.OpenDatabase(session.DbPath + u"Basic.mdb"_s);
  upgrades::relink(session);
  session.dbYear = session.wsMain.OpenDatabase(yearFile(session, session.WorkYear));
  session.dbTax = session.wsMain.OpenDatabase(session.DbPath + u"dbTax.mdb"_s);
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
           u"Select SaleID, ClientCode, SaleGubun, SaleNum, Income, Trust From Sale"_s);
       !rs.atEnd(); rs.MoveNext())
    lines[rs[0].toLong()] = {int(rs[2].toLong()), rs[1].toLong(), rs[3].toLong(), rs[4].toLong(),
                             rs[5].toLong()};
  return lines;
}

Readings storedReadings(const Session& session) {
  Readings readings;
  for (auto rs = session.dbYear.OpenRecordset(
           u"Select ClientCode, UseGage, Total From Evaporation Where Mon = "_s + QString::number(readMonth));
       !rs.atEnd(); rs.MoveNext())
    readings[rs[0].toLong()] = {rs[1].toLong(), rs[2].toLong()};
  return readings;
}

QStringList faultsOf(const QString& root) {
  QStringList faults;
  try {
    Pc here(root);
    const QString folder = here.pc.paths.native(here.session.DbPath);
    for (const QString& name : here.pc.paths.list(here.session.DbPath, u"*.mdb"_s))
      checkFile(folder + u'/' + name, faults);
    here.open();
    Figures due = startFigures();
    for (auto rs = here.session.dbYear.OpenRecordset(u"Select * From Sale"_s); !rs.atEnd(); rs.MoveNext())
      addLine(due, rs);
    checkCarry(here.session, faults);
    const Figures stored = storedFigures(here.session);
    for (const auto& [what, figure] : due)
      if (const auto at = stored.find(what); at == stored.end() || at->second != figure)
        faults << u"%1 is %2, by the lines %3"_s.arg(what)
                      .arg(at == stored.end() ? u"missing"_s : QString::number(at->second))
                      .arg(figure);
  } catch (const jet::Error& error) {
    faults << error.description();
  }
  return faults;
}

}  // namespace storm
