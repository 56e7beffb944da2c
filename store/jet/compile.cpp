#include "store/jet/compile.h"

#include "store/jet/parser.h"
#include "store/jet/resolver.h"
#include "store/jet/writer.h"

namespace jet {

Compiled compile(const QString& sql, Catalogue& catalogue, Keys keys) {
  Statement statement = Parser(sql).statement();
  Resolver(catalogue).resolve(statement);
  Writer writer;
  Compiled made;
  made.kind = statement.kind;
  made.sql = writer.write(statement, keys);
  if (made.kind == Compiled::Kind::Select) made.columns = std::move(statement.select.columns);
  made.keys = writer.keys();
  made.ties = writer.ties();
  if (!made.ties.empty()) made.top = statement.select.top;
  made.target = std::move(statement.target);
  made.definition = std::move(statement.definition);
  return made;
}

}  // namespace jet
