#pragma once
// The collecting institution's file: lines and the records in them, by byte columns.
#include <QByteArray>

#include <vector>

/** One piece between line feeds. */
struct CollectionPiece {
  QByteArrayView bytes;
  bool endsLine = false;  ///< the last piece of its line

  /** A payment; every other record is skipped. */
  bool isPayment() const { return bytes.startsWith("22"); }
};

struct CollectionLines {
  std::vector<CollectionPiece> pieces;  ///< views into the file's bytes
  bool blankLine = false;               ///< a line of blanks came; nothing behind it is read
};

/** Splits the file. A line ends at a carriage return, with the line feed behind it, or at the file's end. Line feeds
 *  alone part the pieces of one line. */
CollectionLines splitCollection(const QByteArray& file);

/** A payment's fields. Columns are bytes, as the institution counts them: a Hangul syllable in a column that is not
 *  read takes two. */
struct CollectionRecord {
  QByteArray monthDay;    ///< MMDD
  qint64 clientCode = 0;  ///< the number at the left of the key, 0 when there is none
  double amount = 0;      ///< won
};

/** Throws jet::Error: 13 for an amount that is no number, 6 for a key beyond a customer's code. */
CollectionRecord readCollectionRecord(QByteArrayView bytes);
