#include "billing/collection_file.h"

#include <algorithm>

#include "store/vb.h"

namespace {

/** Columns from 1; a short line gives what there is. */
QByteArray columns(QByteArrayView bytes, qsizetype from, qsizetype count) {
  const qsizetype start = std::min(from - 1, bytes.size());
  return bytes.sliced(start, std::min(count, bytes.size() - start)).toByteArray();
}

bool isBlank(QByteArrayView line) {
  return std::all_of(line.begin(), line.end(), [](char c) { return c == ' '; });
}

void takePieces(QByteArrayView line, std::vector<CollectionPiece>& pieces) {
  for (qsizetype start = 0;;) {
    const qsizetype feed = line.indexOf('\n', start);
    if (feed < 0) return pieces.push_back({line.sliced(start), true});
    pieces.push_back({line.sliced(start, feed - start), false});
    start = feed + 1;
  }
}

}  // namespace

CollectionLines splitCollection(const QByteArray& file) {
  CollectionLines found;
  const QByteArrayView all(file);
  for (qsizetype start = 0; start < all.size();) {
    qsizetype end = all.indexOf('\r', start);
    if (end < 0) end = all.size();
    const QByteArrayView line = all.sliced(start, end - start);
    if (isBlank(line)) {
      found.blankLine = true;
      break;
    }
    takePieces(line, found.pieces);
    start = end + 1;
    if (start < all.size() && all[start] == '\n') ++start;
  }
  return found;
}

CollectionRecord readCollectionRecord(QByteArrayView bytes) {
  return {.monthDay = columns(bytes, 14, 4),
          .clientCode = vb::CLng(vb::Val(QString::fromLatin1(columns(bytes, 50, 19)))),
          .amount = vb::CDbl(QString::fromLatin1(columns(bytes, 70, 13)))};
}
