#include <cmath>

#include "billing/collection_file.h"
#include "store/jet/error.h"
#include "tests/fuzz/targets.h"

using namespace Qt::StringLiterals;

namespace fuzz {

void runCollection(const QByteArray& input) {
  const CollectionLines lines = splitCollection(input);
  const char* behind = input.constData();
  for (const CollectionPiece& piece : lines.pieces) {
    if (piece.bytes.data() < behind ||
        piece.bytes.data() + piece.bytes.size() > input.constData() + input.size())
      broken(input, u"pieces follow each other within the file"_s);
    if (piece.bytes.contains('\r') || piece.bytes.contains('\n'))
      broken(input, u"a piece holds no line end"_s);
    behind = piece.bytes.data() + piece.bytes.size();
    if (!piece.isPayment()) continue;
    try {
      const CollectionRecord record = readCollectionRecord(piece.bytes);
      if (!std::isfinite(record.amount)) broken(input, u"an amount is a number"_s);
      if (std::abs(record.clientCode) > 2147483648) broken(input, u"a customer's code fits"_s);
    } catch (const jet::Error& error) {
      if (error.number() != 13 && error.number() != 6) broken(input, error.description());
    }
  }
}

}  // namespace fuzz
