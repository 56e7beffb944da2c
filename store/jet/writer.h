#pragma once
// A resolved statement as SQLite text. Everything that is SQLite's own way stands here and nowhere before.
#include <QByteArray>
#include <functional>

#include "store/jet/tree.h"

namespace jet {

class Writer {
 public:
  /** The text of a select, insert, update or delete; empty for definitions, which the runtime carries out. */
  QByteArray write(const Statement& statement, Keys keys);
  /** The tables whose rowids stand behind the columns of the select just written: those it can reach, which leaves
   *  out the tables of a join in brackets on the right. */
  const std::vector<TableInfo>& keys() const { return keys_; }
  /** Compiled::ties of the select just written. */
  const std::vector<int>& ties() const { return ties_; }

 private:
  void writeInsert(const Statement& statement);
  void writeUpdate(const Statement& statement);
  void writeDelete(const Statement& statement);

  /** Rowids are asked of the outermost query only. */
  size_t keyCount() const { return around_.empty() ? keySources_.size() : 0; }
  /** The whole of a query; named gives its columns the names c1, c2, ... for a statement around it. */
  void writeQuery(const Select& select, bool named);
  void writeOrdered(const Select& select);
  void writeTop(const Select& select, bool named);
  void writeBody(const Select& select, bool named);
  void writeUnionPart(const Select& select, bool named);
  void writeCore(const Select& select, bool named);
  void writeItems(const Select& select, bool named);
  void writeOrderOf(const Select& select);
  void writeOrder(const std::vector<OrderItem>& order);
  void writeItemOrder(const Select& select);
  /** What rows are ordered or grouped by. */
  void writeKey(const Expr& expr);
  bool breaksTies(const Select& select) const;
  void writeEntryOrder(const Select& select);
  void writeFromList(const std::vector<From>& from);
  void writeFrom(const From& from);
  void writeTable(const TableInfo& table, const QString& alias);
  void collectKeys(const Select& select);

  // writer_expr.cpp
  void writeValue(const Expr& expr);
  void writeCondition(const Expr& expr);
  void writeNumber(const Expr& expr);
  void writeBound(const char* which, const Expr& between);
  void writeOnlyValue(const Select& query);
  void writeJoinedText(const Expr& expr);
  void writeNullableJoin(const std::vector<const Expr*>& operands);
  void writeLiteral(const Expr& expr);
  void writeArithmetic(const Expr& expr);
  void writeChain(const Expr& expr);
  void writeLogicalValue(const Expr& expr);
  void writeLogicalCondition(const Expr& expr);
  void writeLogicalSides(const Expr& expr);
  void writeCompare(const Expr& expr);
  void writeIn(const Expr& expr);
  void writeCase(const Expr& expr);
  void writeCall(const Expr& expr);
  void writeAggregate(const Expr& expr);
  /** Texts are compared, grouped and ordered by the engine's collation. */
  void collate(const Expr& expr);
  /** A value on its way into a column. */
  void writePut(const Field& field, const Expr& value);

  Writer& operator<<(const char* text);
  Writer& operator<<(const QString& text);
  Writer& operator<<(int number);
  void quote(const QString& name);
  void list(size_t count, const std::function<void(size_t)>& each);

  QString out_;
  std::vector<const Select*>
      around_;  ///< the query being written, innermost last: its first table orders First
  std::vector<TableInfo> keys_;
  std::vector<int> ties_;
  std::vector<QString> keySources_;
};

}  // namespace jet
