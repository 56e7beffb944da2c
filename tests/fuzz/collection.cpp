#include <cmath>

#include "billing/collection_file.h"
#include "store/jet/error.h"
#include "tests/fuzz/targets.h"

namespace fuzz {

void runCollection(const QByteArray& input) {
  const CollectionLines lines = splitCollection(input);
  const char* behind = input.constData();
  for (const CollectionPiece& piece : lines.pieces) {
    if (piece.bytes.data() < behind ||
        piece.bytes.data() + piece.bytes.size() > input.constData() + input.size())
      broken(input, "pieces follow each other within the file");
    if (piece.bytes.contains('\r') || piece.bytes.contains('\n')) broken(input, "a piece holds no line end");
    behind = piece.bytes.data() + piece.bytes.size();
    if (!piece.isPayment()) continue;
    try {
      const CollectionRecord record = readCollectionRecord(piece.bytes);
      if (!std::isfinite(record.amount)) broken(input, "an amount is a number");
      if (std::abs(record.clientCode) > 2147483648) broken(input, "a customer's code fits");
    } catch (const jet::Error& error) {
      if (error.number() != 13 && error.number() != 6) broken(input, error.description());
    }
  }
}

}  // namespace fuzz
