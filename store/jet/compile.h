#pragma once
// From a statement in the Jet dialect to SQLite text: lexer, parser, tree, names resolved, writer. Opens no file.
//
// The written text relies on what the runtime registers on its connection (double-quoted strings are off there; the
// writer quotes names only). A failing function sets the error "JET <number>", e.g. "JET 3464", as its message.
//
//   Collation  JET              without case (full Unicode) and without trailing blanks; written at every comparison,
//                               grouping, DISTINCT, UNION and ORDER BY on text, so files need not declare it
//   Pattern    jet_like(text, pattern)        1 or 0; a number reads as its text; Null gives Null
//   Operators  jet_str(x)                     operand of &: text as it is, a number as its text, Null as ''
//              jet_join(x, ...)               & of operands that may all be Null, and then is
//              jet_num(x)                     operand of arithmetic: number as it is, text converted, else 3464
//              jet_add(a, b)                  + of operands whose types are not known: two texts join, else they add
//              jet_div(a, b)  jet_idiv(a, b)  jet_mod(a, b)  jet_pow(a, b)    by zero is error 11
//              jet_and(a, b)  jet_or(a, b)  jet_xor(a, b)  jet_not(a)         bit by bit, 6 beyond 32 bits
//              jet_finite(x)                  what came of + - * and sums: error 6 beyond a double's range
//   Functions  jet_val(x)  jet_clng(x)  jet_cint(x)  jet_cdbl(x)  jet_ccur(x)  jet_cstr(x)   Null in C...() is error 94
//              jet_isnumeric(x) (-1 or 0)  jet_len(x)  jet_left(x, n)  jet_right(x, n)  jet_mid(x, start[, n])
//              jet_trim(x)  jet_ltrim(x)  jet_rtrim(x)  jet_ucase(x)  jet_lcase(x)  jet_instr([start,] x, part)
//              jet_format(x[, picture])  jet_round(x[, places])  jet_int(x)  jet_fix(x)    Null gives Null
//   Aggregates jet_first(x, key)  jet_last(x, key)    x of the row with the smallest, largest key; Null keys first
//              jet_only(x)                        of a query's only row, a second one is error 3354
//   Writing    jet_put_long(x)  jet_put_double(x)  jet_put_bool(x)  jet_put_text(x, size, zeroLengthAllowed)
//                               a value on its way into a column: converted as the engine does (half to even, Null
//                               into yes/no is 0), refused with 3464 (no number), 6 (out of range), 3163 (too long;
//                               size 0 is a memo), 3315 ('' not allowed)
//              jet_required(x, name)       x, refused with 3314 when it is Null; name stands in the failure
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

/** One column of a result; source names are set when it is a plain column of a table. */
struct ResultColumn {
  QString name;
  Type type = Type::Text;
  QString schema, table, column;
};

struct Compiled {
  enum class Kind {
    Select,
    Insert,
    Update,
    Delete,
    CreateTable,
    DropTable,
    AddColumn,
    AlterColumn,
    CreateIndex,
    DropIndex
  };
  Kind kind = Kind::Select;
  QByteArray sql;  ///< SQLite text, one statement, ?1 ?2 ... for the text's literals in order
  std::vector<ResultColumn> columns;  ///< Select
  /** Select with Keys::With: one more SQLite column behind `columns` for each of these, the rowid in that table of
   *  the row's part; empty when a row is no longer a table's row (groups, DISTINCT, UNION). */
  std::vector<TableInfo> keys;
  /** Select with TOP and an order: the rows come ordered, and who reads them stops behind the top ones and those that
   *  tie with the last of these. 0: all that come are wanted. */
  int top = 0;
  std::vector<int> ties;  ///< the SQLite columns, from 0, in which rows that tie are equal
  TableInfo target;       ///< the table written, for the checks before the write (and for DDL)
  TableDef
      definition;  ///< CreateTable: the table; AddColumn, AlterColumn: its one field; indexes: the index. No sql for these
};

enum class Keys { None, With };

/** Compiles one statement. Errors: 3061 unknown name, 3075 syntax with its place, 3078 missing table, 3079 a name in
 *  two tables, 3085 unknown function, 3122 neither grouped nor summed, 3127 unknown column to write, 3142 something
 *  behind the statement's end, 3346 count of values, 3464 a text compared with a number. */
Compiled compile(const QString& sql, Catalogue& catalogue, Keys keys = Keys::None);

}  // namespace jet
