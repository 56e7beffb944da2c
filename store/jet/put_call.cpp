#include "store/jet/put_call.h"

#include "store/jet/error_texts.h"

namespace jet {

namespace {

PutCall conversion(const Field& field) {
  switch (field.type) {
    case Type::Boolean:
      return {"jet_put_bool(", ")"};
    case Type::Long:
      return {"jet_put_long(", ")"};
    case Type::Double:
      return {"jet_put_double(", ")"};
    case Type::Text:
    case Type::Memo:
      break;
  }
  const int size = field.type == Type::Memo ? 0 : field.size > 0 ? field.size : 255;
  return {"jet_put_text(", ", " + QByteArray::number(size) + (field.allowZeroLength ? ", 1)" : ", 0)")};
}

}  // namespace

PutCall putCall(const Field& field) {
  PutCall call = conversion(field);
  if (!field.required) return call;
  return {"jet_required(" + call.before,
          call.behind + ", '" + field.name.toUtf8().replace('\'', "''") + "')"};
}

void requireGiven(const std::vector<Field>& fields, const std::function<bool(const Field&)>& given) {
  for (const Field& field : fields)
    if (field.required && field.defaultValue.isNull() && field.type != Type::Boolean && !field.autonumber &&
        !given(field))
      fail(3314, field.name);
}

}  // namespace jet
