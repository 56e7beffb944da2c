#pragma once
// A data folder with real files for the engine's tests.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "tests/answers.h"

namespace jet_tests {

using namespace Qt::StringLiterals;

inline jet::Field text(const QString& name, int size = 0) {
  return {name, jet::Type::Text, size, false, true, false, {}};
}
inline jet::Field number(const QString& name, jet::Value defaultValue = {}) {
  return {name, jet::Type::Long, 0, false, true, false, defaultValue};
}
inline jet::Field real(const QString& name) {
  return {name, jet::Type::Double, 0, false, true, false, {}};
}
inline jet::Field yesNo(const QString& name) {
  return {name, jet::Type::Boolean, 0, false, true, false, {}};
}
inline jet::Field counter(const QString& name) {
  return {name, jet::Type::Long, 0, true, true, false, {}};
}
inline jet::TableDef table(const QString& name, std::vector<jet::Field> fields,
                           std::vector<jet::Index> indexes = {}) {
  return {name, std::move(fields), std::move(indexes), {}, {}};
}
inline jet::TableDef link(const QString& name, const QString& path, const QString& source = {}) {
  return {name, {}, {}, u";DATABASE="_s + path, source.isEmpty() ? name : source};
}

using tests::failureOf;

/** The rows of a query: fields joined by "|", rows by a blank, Null as "-". */
inline std::string rows(const jet::Database& db, const QString& sql) {
  return tests::linesOf(db, sql, u"-"_s).join(u' ').toStdString();
}

/** Number of the error that a statement ends with, 0 when it runs. */
inline int refusal(const jet::Database& db, const QString& sql) {
  return failureOf([&] {
    if (sql.startsWith("select", Qt::CaseInsensitive))
      rows(db, sql);
    else
      db.Execute(sql);
  });
}

/** Basic.mdb with customers and a year file that is linked to it. */
class Engine : public testing::Test {
 protected:
  QString path(const QString& name) const { return folder.filePath(name); }
  jet::Workspace open(int busyMilliseconds = 200) const {
    return jet::Workspace(
        {.mainFile = path(u"Basic.mdb"_s), .resolvePath = {}, .busyMilliseconds = busyMilliseconds});
  }
  void SetUp() override {
    workspace = open();
    basic = workspace.CreateDatabase(path(u"Basic.mdb"_s));
    basic.createTable(table(u"Client"_s,
                            {counter(u"Code"_s), text(u"Name"_s, 10), text(u"Ho"_s), number(u"GasInit"_s, 0),
                             yesNo(u"VolumeYesNo"_s), real(u"Rate"_s)},
                            {{u"PK"_s, {u"Code"_s}, true, true}, {u"Name"_s, {u"Name"_s}, false, false}}));
    year = workspace.CreateDatabase(path(u"2026Foundation.mdb"_s));
    year.createTable(table(u"Sale"_s, {counter(u"SaleID"_s), text(u"SaleDate"_s), number(u"ClientCode"_s),
                                       number(u"SaleNum"_s)}));
    year.createTable(link(u"Client"_s, path(u"Basic.mdb"_s)));
  }

  void closeFiles() {
    basic.Close();
    year.Close();
  }

  QTemporaryDir folder;
  jet::Workspace workspace;
  jet::Database basic, year;
};

}  // namespace jet_tests
