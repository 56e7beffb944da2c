#pragma once
// A parsed statement. The parser fills it, the resolver adds where names lead and what expressions hold, the writer
// reads it.
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

#include "store/jet/compile.h"

namespace jet {

struct Select;

/** What an expression yields, as far as it is known before the rows. */
enum class Holds { Nothing, YesNo, Whole, Floating, Text, Any };
inline bool holdsNoText(Holds holds) {
  return holds != Holds::Text && holds != Holds::Any;
}

struct Expr {
  enum class Kind {
    Literal,
    Null,
    Constant,  ///< True or False, in value
    Column,
    Negate,
    Not,
    Arithmetic,  ///< op: + - * / \ ^ & MOD
    Compare,     ///< op: = <> < <= > >=
    Logical,     ///< op: AND OR XOR EQV IMP
    Like,
    Between,  ///< operands: tested, low, high
    In,       ///< operands: tested, the list; or tested and a query
    IsNull,
    Iif,        ///< operands: condition, then, else
    Call,       ///< name: the function the writer writes
    Aggregate,  ///< name: COUNT, SUM, ...; without operand it is Count(*)
    Query,      ///< a query's only value
    Exists,
  };
  Kind kind = Kind::Null;
  qsizetype place = 0;
  QString name;       ///< column, function
  QString qualifier;  ///< the table before the point
  QString op;
  Value value;           ///< constant, or a literal that stays in the text
  int parameter = 0;     ///< literal that becomes a parameter, from 1
  bool negated = false;  ///< Not Like, Not Between, Not In, Is Not Null
  std::vector<Expr> operands;
  std::vector<Select> query;  ///< none or one

  // By the resolver:
  Holds holds = Holds::Any;
  QString source;  ///< column: the table's name within the written statement
  QString column;  ///< column: its true name
};

/** A table or query in FROM, or two joined. */
struct From {
  enum class Kind { Table, Query, Inner, Left, Cross };
  Kind kind = Kind::Table;
  qsizetype place = 0;
  QString path;  ///< [path].table
  QString table;
  QString alias;  ///< the name it goes by in the statement: as written, else the table's
  std::vector<Select> query;
  std::vector<From>
      sides;  ///< of a join: left and right. A right join is kept as the left join the other way round
  std::vector<Expr> on;  ///< none or one

  TableInfo info;  ///< by the resolver; of a query its columns as fields
};

/** The tables and queries that a join joins. */
std::vector<const From*> sourcesOf(const From& from);
/** Those of a whole FROM in the order of the text, which a right join turns round. */
std::vector<const From*> sourcesAsWritten(const std::vector<From>& from);

struct SelectItem {
  Expr expr;
  QString alias;
  bool star = false;
  QString starTable;  ///< table.*, empty for *
  qsizetype place = 0;
};

struct OrderItem {
  Expr expr;
  bool descending = false;
  int position = 0;  ///< from 1, 0 when it is an expression
};

struct Select {
  bool distinct = false;
  int top = 0;  ///< 0: all
  std::vector<SelectItem> items;
  std::vector<From> from;  ///< separated by commas
  std::optional<Expr> where;
  std::vector<Expr> groupBy;
  std::optional<Expr> having;
  std::vector<OrderItem> orderBy;
  /** UNION: what follows; its own orderBy is empty, the first select's holds for the whole. */
  std::vector<Select> unions;
  bool unionAll = false;  ///< how this select joins the ones before it

  bool grouped = false;               ///< by the resolver: groups, or an aggregate makes one of all rows
  std::vector<ResultColumn> columns;  ///< by the resolver, items without stars
};

struct Assignment {
  QString qualifier, name;
  qsizetype place = 0;
  Expr value;
  Field field;  ///< by the resolver
};

struct Statement {
  Compiled::Kind kind = Compiled::Kind::Select;
  Select select;                    ///< Select, and what an Insert takes its rows from
  std::vector<From> from;           ///< Insert: the target; Update, Delete: the tables
  std::vector<Assignment> assigns;  ///< Insert, Update
  bool columnsNamed = true;         ///< Insert: a list of columns stands behind the table
  bool fromSelect = false;          ///< Insert: rows come from select
  QString deleteTable;              ///< Delete table.*
  std::optional<Expr> where;
  TableDef definition;

  TableInfo target;      ///< by the resolver
  QString targetSource;  ///< the target's name within the statement
};

}  // namespace jet
