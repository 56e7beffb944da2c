#pragma once
// From a statement in the Jet dialect to SQLite text: lexer, parser, tree, names resolved, writer. Opens no file.
#include <QByteArray>
#include <QString>
#include <optional>
#include <vector>

#include "store/jet/database.h"

namespace jet {

/** A table as the writer names it: SQLite schema alias, its true name there and its fields. */
struct TableInfo {
  QString schema;
  QString name;
  std::vector<Field> fields;
};

/** Where a handle's names are found; linked tables are followed. */
class Catalogue {
 public:
  virtual ~Catalogue() = default;
  virtual std::optional<TableInfo> table(const QString& name) = 0;
  /** [path].table; throws 3024 when there is no such file, 3044 for a bad path. */
  virtual std::optional<TableInfo> tableIn(const QString& path, const QString& name) = 0;
};

/** A statement cut into its shape (the cache's key: the text without its literals) and the literals. Literals that
 *  decide the statement's form (Top n, order by position) stay in the shape. */
struct Shape {
  QString key;
  std::vector<Value> literals;
};
/** Throws 3075 with the place for a text that no token fits. */
Shape shapeOf(const QString& sql);

/** One column of a result; source names are set when it is a plain column of a table. */
struct ResultColumn {
  QString name;
  Type type = Type::Text;
  QString schema, table, column;
};

struct Compiled {
  enum class Kind { Select, Insert, Update, Delete, CreateTable, DropTable, AddColumn, CreateIndex, DropIndex };
  Kind kind = Kind::Select;
  QByteArray sql;  ///< SQLite text, one statement, ?1 ?2 ... for Shape::literals in order
  std::vector<ResultColumn> columns;  ///< Select
  TableInfo target;                   ///< the table written, for the checks before the write (and for DDL)
  TableDef definition;                ///< CreateTable: the table; AddColumn: its one field; indexes: the index
};

/** Compiles one statement. Errors: 3061 unknown name, 3075 syntax with its place, 3078 missing table, 3142 something
 *  behind the statement's end. */
Compiled compile(const QString& sql, const Shape& shape, Catalogue& catalogue);

}  // namespace jet
