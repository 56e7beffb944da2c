#include "store/upgrades.h"

#include <algorithm>
#include <optional>

#include "store/data_access.h"
#include "store/data_files.h"
#include "store/jet/error_texts.h"
#include "store/schema.h"
#include "store/session.h"
#include "store/settings_table.h"
#include "store/year_file.h"

using namespace Qt::StringLiterals;

namespace upgrades {

namespace {

const jet::Field* fieldOf(const jet::TableDef& table, const QString& name) {
  const auto at = std::find_if(table.fields.begin(), table.fields.end(), [&](const jet::Field& field) {
    return field.name.compare(name, Qt::CaseInsensitive) == 0;
  });
  return at == table.fields.end() ? nullptr : &*at;
}

bool hasField(const jet::Database& db, const QString& table, const QString& field) {
  return fieldOf(db.tableDef(table), field) != nullptr;
}

jet::Field newField(const QString& name, jet::Type type, int size = 0) {
  jet::Field field;
  field.name = name;
  field.type = type;
  field.size = size;
  return field;
}

/** By its exact name. */
std::optional<jet::TableDef> tableOf(const std::vector<jet::TableDef>& tables, const QString& name) {
  const auto at = std::find_if(tables.begin(), tables.end(),
                               [&](const jet::TableDef& table) { return table.name == name; });
  return at == tables.end() ? std::nullopt : std::optional(*at);
}

jet::TableDef linkTo(const QString& basic, const QString& name) {
  jet::TableDef link;
  link.name = name;
  link.connect = u";DATABASE="_s + basic;
  link.sourceTableName = name;
  return link;
}

/** Whether the links would be made anew as they are. */
bool isLinked(const jet::Database& year, const QString& basic) {
  const std::vector<jet::TableDef> tables = year.TableDefs();
  const QStringList& names = schema::linkedTables();
  return std::all_of(names.begin(), names.end(), [&](const QString& name) {
    const std::optional<jet::TableDef> known = tableOf(tables, name);
    const jet::TableDef wanted = linkTo(basic, name);
    return known && known->connect == wanted.connect && known->sourceTableName == wanted.sourceTableName;
  });
}

/** A link is never repaired: it is deleted and made anew, so that a moved Basic.mdb is followed. */
void linkAnew(const jet::Database& year, const QString& basic) {
  for (const QString& name : schema::linkedTables()) {
    if (tableOf(year.TableDefs(), name)) year.deleteTable(name);
    year.createTable(linkTo(basic, name));
  }
}

}  // namespace

void addLateCharges(Session& session) {
  const QString folder = u"C:\\rwgas\\dbs\\"_s;
  if (!isThere(session.pc.paths, folder + u"basic.mdb"_s)) return;
  const jet::Workspace workspace = openWorkspace(session, folder);
  jet::Database basic;
  if (!openWhereThere(session, workspace, basic, folder + u"basic.mdb"_s)) return;
  DAO_AddField(session.prompts, basic, u"apt"_s, u"delaypay"_s, jet::Type::Double, 0, false,
               u"UPDATE apt SET delaypay = 0"_s);
  workspace.KeepingFiles([&] {
    jet::Database year;
    for (const QString& file : yearFiles(session, workspace, folder)) {
      if (!openWhereThere(session, workspace, year, file)) return;
      DAO_AddField(session.prompts, year, u"Evaporation"_s, u"paydelayed"_s, jet::Type::Boolean, 0, false,
                   u"UPDATE Evaporation SET paydelayed = false"_s);
    }
  });
}

void makeDealList(Session& session) {
  const QString file = session.DbPath + u"dbDetail.mdb"_s;
  if (!isThere(session.pc.paths, file)) makeDataFile(session, file, schema::File::Detail);
}

void rebuildPostCodes(Session& session, const jet::Database& basic, const jet::Database& post) {
  const auto isRebuilt = [&] {
    const jet::TableDef old = basic.tableDef(u"PostCode"_s);
    const jet::Field* ddd = fieldOf(old, u"DDD"_s);
    return !ddd || ddd->size == 60;
  };
  if (isRebuilt()) return;
  if (!session.pc.settings.read(setting::PostCodesRebuilt).isEmpty()) return;
  session.prompts.MsgInfo(
      u"잠시만 기다려 주십시오."_s + u"\n\n"_s + u"우편번호를 개정판으로 업그레이드 합니다."_s,
      u"우편번호 업그레이드"_s);
  jet::Recordset rs = post.OpenRecordset(u"Select * from post order by zipcode"_s);
  session.wsMain.Together([&] {
    if (isRebuilt()) return;  // by another PC meanwhile
    basic.Execute(u"drop table postcode"_s);
    basic.createTable(schema::table(schema::File::Basic, u"PostCode"_s));
    for (; !rs.atEnd(); rs.MoveNext()) {
      const QString code = rs[u"zipcode"_s].toText().remove(u'-');
      const QString city = rs[u"sido"_s].toText() + u' ' + rs[u"gugun"_s].toText();
      const QString lots = rs.isNull(u"bunji"_s) ? u" "_s : rs[u"bunji"_s].toText();
      basic.Execute(u"insert into postcode values('"_s + copiedText(code) + u"' , '"_s + copiedText(city) +
                    u"', '"_s + copiedText(rs[u"dong"_s].toText()) + u"', '"_s + copiedText(lots) + u"')"_s);
    }
  });
  session.pc.settings.write(setting::PostCodesRebuilt, u"ok"_s);
}

void addDealMarks(Session& session) {
  walkYears(session, [&](const QString& file) {
    const jet::Database year = session.wsMain.OpenDatabase(file);
    const auto isMarked = [&] { return hasField(year, u"Sale"_s, u"DealList"_s); };
    if (isMarked()) return;
    year.Together([&] {
      if (isMarked()) return;  // by another PC meanwhile
      year.appendField(u"Sale"_s, newField(u"DealList"_s, jet::Type::Long));
      year.appendField(u"Sale"_s, newField(u"SaleList"_s, jet::Type::Long));
      year.Execute(u"UPDATE sale SET DealList = 0, SaleList = 0"_s);
    });
  });
}

void addClientTaxFields(const jet::Database& basic) {
  // Kept: Serial alone is looked at.
  const auto isThere = [&] { return hasField(basic, u"Client"_s, u"Serial"_s); };
  if (isThere()) return;
  basic.Together([&] {  // all or none: a part of them would never be looked at again
    if (isThere()) return;
    basic.appendField(u"Client"_s, newField(u"Serial"_s, jet::Type::Text, 12));
    basic.appendField(u"Client"_s, newField(u"Status"_s, jet::Type::Text, 10));
    basic.appendField(u"Client"_s, newField(u"Item"_s, jet::Type::Text, 20));
    basic.appendField(u"Client"_s, newField(u"Uname"_s, jet::Type::Text, 10));
  });
}

void removeOrphans(Session& session) {
  walkYears(session, [&](const QString& file) {
    const jet::Database year = session.wsMain.OpenDatabase(file);
    jet::Recordset rs = year.OpenRecordset(
        u"Select sale.clientcode From sale Left Join ["_s + plainPath(session.DbPath) + u"Basic.mdb"_s +
        u"].client on sale.clientcode = client.code where client.code is null"_s);
    if (rs.RecordCount() == 0) return;
    year.Together([&] {
      for (; !rs.atEnd(); rs.MoveNext()) {
        if (rs.isNull(u"clientcode"_s)) continue;  // names no customer; the statement could not be written
        year.Execute(u"delete * from sale where clientcode = "_s + plainNumber(rs[u"clientcode"_s].toText()));
      }
    });
  });
}

bool relink(Session& session) {
  const QString chosen = session.pc.settings.read(setting::DataFolder);
  session.BasicPath =
      chosen.isEmpty() ? u"C:\\rwgas\\dbs\\basic.mdb"_s : dataFolder(session) + u"Basic.mdb"_s;
  bool all = true;
  session.wsMain.KeepingFiles([&] {
    jet::Database year;
    for (const QString& file : yearFiles(session, session.wsMain, session.DbPath)) {
      all = openWhereThere(session, session.wsMain, year, file);
      if (!all) return;
      if (isLinked(year, session.BasicPath)) continue;  // at most starts; a write would hold up the other PCs
      year.Together([&] { linkAnew(year, session.BasicPath); });
    }
  });
  return all;
}

void widenTaxFields(const jet::Database& tax) {
  const auto isNarrow = [](const jet::Field& known, const jet::Field& wanted) {
    return wanted.type == jet::Type::Text ? known.size < wanted.size
                                          : known.type == jet::Type::Long && wanted.type == jet::Type::Double;
  };
  for (const jet::TableDef& wanted : schema::tablesOf(schema::File::Tax)) {
    if (!tax.hasTable(wanted.name)) {
      tax.Together([&] {
        if (!tax.hasTable(wanted.name)) tax.createTable(wanted);
      });
      continue;
    }
    const auto lacks = [&](const jet::TableDef& stored) {
      return std::ranges::any_of(wanted.fields, [&](const jet::Field& field) {
        const jet::Field* const known = fieldOf(stored, field.name);
        return !known || isNarrow(*known, field);
      });
    };
    if (!lacks(tax.tableDef(wanted.name))) continue;
    tax.Together([&] {
      const jet::TableDef stored = tax.tableDef(wanted.name);  // another PC may have been here meanwhile
      for (const jet::Field& field : wanted.fields) {
        const jet::Field* const known = fieldOf(stored, field.name);
        if (!known)
          tax.appendField(wanted.name, field);
        else if (isNarrow(*known, field))
          tax.Execute(u"Alter Table %1 Alter Column %2 %3"_s.arg(
              wanted.name, field.name,
              field.type == jet::Type::Double ? u"Double"_s : u"Text(%1)"_s.arg(field.size)));
      }
    });
  }
}

void addMoreTelephones(Session& session) {
  jet::Database basic;
  if (!openWhereThere(session, session.wsMain, basic, session.BasicPath)) return;
  // Kept: when Tel1 is there, Tel2 is not looked at. So a failure in between leaves neither.
  if (hasField(basic, u"Client"_s, u"Tel1"_s)) return;
  basic.Together([&] {
    if (DAO_AddField(session.prompts, basic, u"Client"_s, u"Tel1"_s, jet::Type::Text, 14, true,
                     u"Update client set Tel1 = ''"_s)) {
      DAO_AddField(session.prompts, basic, u"Client"_s, u"Tel2"_s, jet::Type::Text, 14, true,
                   u"Update client set Tel2 = ''"_s);
    }
  });
}

void makeOptions(Session& session) {
  if (!openWhereThere(session, session.wsMain, session.dbCommon, u"C:\\rwgas\\dbs\\basic.mdb"_s)) return;
  if (DAO_ExistTable(session.prompts, session.dbCommon, u"Options"_s)) return;
  session.dbCommon.Together([&] {
    if (session.dbCommon.hasTable(u"Options"_s)) return;  // made by another PC meanwhile
    session.dbCommon.createTable(schema::table(schema::File::Basic, u"Options"_s));
    session.dbCommon.Execute(u"INSERT INTO Options (OPTName, OPTValue) VALUES ('MICR용지','0')"_s);
  });
}

}  // namespace upgrades
