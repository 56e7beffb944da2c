#pragma once
// Data files as the first version of the program left them: without the columns that the upgrades add.
#include "store/year_file.h"
#include "tests/answers.h"
#include "tests/support.h"

namespace tests {

inline jet::TableDef without(jet::TableDef table, const QStringList& names) {
  std::erase_if(table.fields, [&](const jet::Field& f) { return names.contains(f.name); });
  return table;
}

inline std::string firstOf(const jet::Database& db, const QString& sql) {
  const jet::Recordset rs = db.OpenRecordset(sql);
  return rs.atEnd() ? "none" : rs[0].isNull() ? "null" : rs[0].toText().toStdString();
}

inline bool hasField(const jet::Database& db, const QString& table, const QString& name) {
  const jet::TableDef def = db.tableDef(table);
  return std::any_of(def.fields.begin(), def.fields.end(),
                     [&](const auto& field) { return field.name == name; });
}

/** Everything a file holds, as one text: its tables with their columns, and every row. Links by name only. */
inline QString dumpOf(const jet::Database& db) {
  QString out;
  for (const jet::TableDef& table : db.TableDefs()) {
    out += table.name + u':' + table.connect + u'\n';
    if (table.isLink()) continue;
    for (const auto& field : table.fields) out += u' ' + field.name + QString::number(field.size);
    out += u'\n' + linesOf(db, "Select * From [" + table.name + ']', "-").join(u'\n') + u'\n';
  }
  return out;
}

/** The same of every file in the data folder. */
inline QString dumpsOf(const Session& session) {
  const jet::Workspace workspace = openWorkspace(session, session.DbPath);
  QString all;
  for (const QString& name : session.pc.paths.list(session.DbPath, "*.mdb"))
    all += name + '\n' + dumpOf(workspace.OpenDatabase(session.DbPath + name));
  return all;
}

inline void fillOldBasic(const jet::Database& basic) {
  for (const jet::TableDef& def : schema::tablesOf(schema::File::Basic)) {
    if (def.name == u"Options") continue;
    jet::TableDef old =
        without(def, {"delaypay", "Serial", "Status", "Item", "Uname", "Tel1", "Tel2", "DDD"});
    std::erase_if(old.indexes, [](const jet::Index& index) { return index.name.startsWith(u"Tel"); });
    if (def.name == u"PostCode") {
      jet::Field ddd;
      ddd.name = "DDD";
      ddd.size = 5;
      old.fields.push_back(ddd);
    }
    basic.createTable(old);
  }
  insertRows(basic, "Client(Name, Tel)", {"'김가네', '053-111-2222'"});
  insertRows(basic, "APT(Name, Dong)", {"'한빛', '101'"});
  insertRows(basic, "PostCode(PostCode, City)", {"'1', '옛것'"});
}

inline void fillOldYear(const jet::Database& year) {
  for (const jet::TableDef& def : schema::tablesOf(schema::File::Year)) {
    year.createTable(without(def, {"DealList", "SaleList", "paydelayed"}));
  }
  insertRows(year, "Sale(SaleDate, ClientCode, SaleGubun)",
             {"'2025-05-05', 1, 1", "'2025-05-06', 77, 1", "'2025-05-07', 77, 4"});
  year.Execute("Insert Into Evaporation(ClientCode, Mon) Values(1, 3)");
}

/** Old files in "C:\RWGas\Dbs\" for the years 2026 and 2025 (not 2024) and 2023: one customer, sale rows of that one
 *  and of a customer who is gone, one building, two postcodes. */
inline void makeOldBooks(TestPc& here) {
  Session& session = here.session;
  here.pc.clock.set(QDateTime(QDate(2026, 3, 2), QTime(9, 0)));
  session.DbPath = installedDataFolder();
  ASSERT_TRUE(here.pc.paths.makeFolder(session.DbPath));
  const jet::Workspace ws = openWorkspace(session, session.DbPath);
  const auto make = [&](const QString& name, void (*fill)(const jet::Database&)) {
    const jet::Database file = ws.CreateDatabase(session.DbPath + name);
    ws.Together([&] { fill(file); });
  };
  make("Basic.mdb", fillOldBasic);
  make("2002Foundation.mdb", fillOldYear);
  for (const char* year : {"2023", "2025", "2026"}) makeYearFile(session, QString::fromLatin1(year));
  for (const char* name : {"/dbTax.mdb", "/Print.mdb", "/dbPost.mdb"}) {
    QFile::copy(emptyDataFolder() + QLatin1String(name),
                here.pc.paths.native(session.DbPath) + QLatin1String(name));
  }
  const jet::Database post = ws.OpenDatabase(session.DbPath + "dbPost.mdb");
  post.Execute("Insert Into Post Values('702-010', '대구', '북구', '고성동', '1~99')");
  post.Execute("Insert Into Post(ZIPCODE, SIDO, GUGUN, DONG) Values('700-020', '대구', '중구', '동인''동')");
}

}  // namespace tests
