#include "store/jet/put_call.h"

namespace jet {

PutCall putCall(const Field& field) {
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

}  // namespace jet
