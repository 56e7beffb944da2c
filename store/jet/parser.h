#pragma once
// Tokens to tree. Knows the dialect's grammar and nothing of tables.
#include <QString>

#include <vector>

#include "store/jet/lexer.h"
#include "store/jet/tree.h"

namespace jet {

class Parser {
 public:
  /** Throws 3075 for a text that no token fits. */
  explicit Parser(const QString& sql);
  /** The one statement; 3075 for what fits nowhere, 3142 for anything behind its end. */
  Statement statement();

 private:
  // parser.cpp: statements
  Statement insert();
  Assignment assignedColumn();
  Statement update();
  Statement erase();
  Select query();
  Select select();
  void selectItems(Select& select);
  std::vector<From> fromList();
  From joined();
  From joinedTo(From left);
  From table();
  void tableName(From& table);
  void orderBy(Select& select);

  // parser_ddl.cpp: definitions of tables and indexes
  Statement create();
  Statement createTable();
  Statement createIndex(bool unique);
  Statement alter();
  Statement drop();
  Field fieldDefinition(TableDef& table);
  void fieldType(Field& field);
  void constraint(TableDef& table);
  QStringList namesInBrackets();

  // parser_expr.cpp: expressions, one function a level of precedence
  Expr expression();
  Expr equivalence();
  Expr disjunction();
  Expr conjunction();
  Expr negation();
  Expr comparison();
  Expr concatenation();
  Expr sum();
  Expr modulus();
  Expr wholeQuotient();
  Expr product();
  Expr sign();
  Expr power();
  Expr primary();
  Expr nameOrCall();
  Expr call(const Token& name);
  Expr tested(Expr left, bool negated);
  std::vector<Expr> expressionList();
  using Level = Expr (Parser::*)();
  /** Goes down one level of brackets or signs; 3360 where no reasonable statement goes. */
  class Deeper {
   public:
    explicit Deeper(Parser& parser);
    ~Deeper() { --parser_.depth_; }

   private:
    Parser& parser_;
  };
  Expr leftToRight(Level operand, Expr::Kind kind, std::initializer_list<QLatin1StringView> ops);

  const Token& now() const { return tokens_[at_]; }
  const Token& ahead(qsizetype n = 1) const {
    return tokens_[std::min(at_ + n, qsizetype(tokens_.size()) - 1)];
  }
  const Token& take() { return tokens_[at_ + 1 < qsizetype(tokens_.size()) ? at_++ : at_]; }
  bool isWord(QLatin1StringView word) const { return now().isWord(word); }
  bool isSymbol(QLatin1StringView symbol) const { return now().isSymbol(symbol); }
  bool takeWord(QLatin1StringView word);
  bool takeSymbol(QLatin1StringView symbol);
  void expectWord(QLatin1StringView word);
  void expectSymbol(QLatin1StringView symbol);
  QString name();
  int wholeNumber();
  [[noreturn]] void fail(const QString& what) const;
  [[noreturn]] void failAt(const Token& token, const QString& what) const;

  QString sql_;
  std::vector<Token> tokens_;
  qsizetype at_ = 0;
  int depth_ = 0;
};

}  // namespace jet
