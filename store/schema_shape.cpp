#include "store/schema_shape.h"

namespace schema::shape {

namespace {

jet::Field plainField(const char* name, jet::Type type) {
  jet::Field field;
  field.name = QString::fromUtf8(name);
  field.type = type;
  return field;
}

/** Numbers start at 0: a skeleton row is inserted with its keys alone, and a Null in a running figure would swallow
 *  every "GasInit = GasInit + ..." after it. */
jet::Field startingAtZero(jet::Field field) {
  field.defaultValue = jet::Value(0);
  return field;
}

}  // namespace

jet::Field autoNumber(const char* name) {
  jet::Field field = plainField(name, jet::Type::Long);
  field.autonumber = true;
  return field;
}

jet::Field whole(const char* name) {
  return startingAtZero(plainField(name, jet::Type::Long));
}
jet::Field real(const char* name) {
  return startingAtZero(plainField(name, jet::Type::Double));
}
jet::Field yesNo(const char* name) {
  return startingAtZero(plainField(name, jet::Type::Boolean));
}

jet::Field text(const char* name, int size) {
  jet::Field field = plainField(name, jet::Type::Text);
  field.size = size;
  return field;
}

jet::Field date(const char* name) {
  return text(name, 10);
}

jet::Field withoutDefault(jet::Field field) {
  field.defaultValue = {};
  return field;
}

jet::Field notEmpty(jet::Field field) {
  field.allowZeroLength = false;
  return field;
}

jet::Index primary(const char* name, const QStringList& fields) {
  return {QString::fromUtf8(name), fields, true, true};
}

jet::Index index(const char* name, const QStringList& fields) {
  return {QString::fromUtf8(name), fields, false, false};
}

jet::TableDef make(const char* name, std::vector<jet::Field> fields, std::vector<jet::Index> indexes) {
  jet::TableDef table;
  table.name = QString::fromUtf8(name);
  table.fields = std::move(fields);
  table.indexes = std::move(indexes);
  return table;
}

}  // namespace schema::shape
