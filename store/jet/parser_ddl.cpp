#include "store/jet/parser.h"

namespace jet {

using namespace Qt::StringLiterals;

namespace {

struct TypeWord {
  QLatin1StringView word;
  Type type;
};
constexpr TypeWord typeWords[] = {
    {"TEXT"_L1, Type::Text},       {"CHAR"_L1, Type::Text},       {"VARCHAR"_L1, Type::Text},
    {"MEMO"_L1, Type::Memo},       {"LONGTEXT"_L1, Type::Memo},   {"LONG"_L1, Type::Long},
    {"INTEGER"_L1, Type::Long},    {"INT"_L1, Type::Long},        {"SHORT"_L1, Type::Long},
    {"SMALLINT"_L1, Type::Long},   {"BYTE"_L1, Type::Long},       {"COUNTER"_L1, Type::Long},
    {"DOUBLE"_L1, Type::Double},   {"SINGLE"_L1, Type::Double},   {"FLOAT"_L1, Type::Double},
    {"NUMBER"_L1, Type::Double},   {"CURRENCY"_L1, Type::Double}, {"YESNO"_L1, Type::Boolean},
    {"BOOLEAN"_L1, Type::Boolean}, {"LOGICAL"_L1, Type::Boolean}, {"BIT"_L1, Type::Boolean},
};

}  // namespace

Statement Parser::create() {
  if (takeWord("TABLE"_L1)) return createTable();
  const bool unique = takeWord("UNIQUE"_L1);
  expectWord("INDEX"_L1);
  return createIndex(unique);
}

Statement Parser::createTable() {
  Statement made;
  made.kind = Compiled::Kind::CreateTable;
  made.definition.name = name();
  expectSymbol("("_L1);
  do {
    if (isWord("CONSTRAINT"_L1) || (isWord("PRIMARY"_L1) && ahead().isWord("KEY"_L1)))
      constraint(made.definition);
    else
      made.definition.fields.push_back(fieldDefinition(made.definition));
  } while (takeSymbol(","_L1));
  expectSymbol(")"_L1);
  return made;
}

Statement Parser::createIndex(bool unique) {
  Statement made;
  made.kind = Compiled::Kind::CreateIndex;
  Index index;
  index.unique = unique;
  index.name = name();
  expectWord("ON"_L1);
  made.definition.name = name();
  index.fields = namesInBrackets();
  if (takeWord("WITH"_L1)) {
    expectWord("PRIMARY"_L1);
    index.primary = index.unique = true;
  }
  made.definition.indexes.push_back(index);
  return made;
}

Statement Parser::alter() {
  Statement made;
  made.kind = Compiled::Kind::AddColumn;
  expectWord("TABLE"_L1);
  made.definition.name = name();
  if (takeWord("ALTER"_L1))
    made.kind = Compiled::Kind::AlterColumn;
  else
    expectWord("ADD"_L1);
  takeWord("COLUMN"_L1);
  made.definition.fields.push_back(fieldDefinition(made.definition));
  return made;
}

Statement Parser::drop() {
  Statement made;
  if (takeWord("TABLE"_L1)) {
    made.kind = Compiled::Kind::DropTable;
    made.definition.name = name();
    return made;
  }
  made.kind = Compiled::Kind::DropIndex;
  expectWord("INDEX"_L1);
  Index index;
  index.name = name();
  made.definition.indexes.push_back(index);
  expectWord("ON"_L1);
  made.definition.name = name();
  return made;
}

/** Name, type, NOT NULL, and a key of this one column, which goes to the table's indexes. */
Field Parser::fieldDefinition(TableDef& table) {
  Field field;
  field.name = name();
  fieldType(field);
  for (;;) {
    if (isWord("NOT"_L1)) {
      take();
      expectWord("NULL"_L1);
      field.required = true;
      continue;
    }
    Index index;
    if (takeWord("CONSTRAINT"_L1)) index.name = name();
    if (takeWord("PRIMARY"_L1)) {
      expectWord("KEY"_L1);
      index.primary = true;
    } else if (!takeWord("UNIQUE"_L1)) {
      if (!index.name.isEmpty()) fail(u"PRIMARY KEY나 UNIQUE가 없습니다"_s);
      return field;
    }
    index.unique = true;
    if (index.name.isEmpty()) index.name = (index.primary ? u"PrimaryKey"_s : u"Index_"_s + field.name);
    index.fields = QStringList{field.name};
    table.indexes.push_back(index);
  }
}

void Parser::fieldType(Field& field) {
  const TypeWord* found = nullptr;
  for (const auto& each : typeWords)
    if (isWord(each.word)) found = &each;
  if (!found) fail(u"필드의 형식을 알 수 없습니다"_s);
  field.autonumber = isWord("COUNTER"_L1);
  take();
  field.type = found->type;
  if (takeSymbol("("_L1)) {
    const int size = wholeNumber();
    if (field.type == Type::Text) field.size = size;
    expectSymbol(")"_L1);
  }
}

void Parser::constraint(TableDef& table) {
  Index index;
  index.name = takeWord("CONSTRAINT"_L1) ? name() : u"PrimaryKey"_s;
  index.primary = takeWord("PRIMARY"_L1);
  if (index.primary)
    expectWord("KEY"_L1);
  else
    expectWord("UNIQUE"_L1);
  index.unique = true;
  index.fields = namesInBrackets();
  table.indexes.push_back(index);
}

QStringList Parser::namesInBrackets() {
  QStringList names;
  expectSymbol("("_L1);
  do {
    names << name();
    if (!takeWord("DESC"_L1)) takeWord("ASC"_L1);
  } while (takeSymbol(","_L1));
  expectSymbol(")"_L1);
  return names;
}

}  // namespace jet
