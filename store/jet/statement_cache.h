#pragma once
// The prepared statements of a connection, found by the shape of their text.
#include <memory>
#include <unordered_map>
#include <vector>

#include "store/jet/compile.h"
#include "store/jet/connection.h"
#include "store/jet/data_file.h"

namespace jet {

using FilePtr = std::shared_ptr<DataFile>;

/** A compiled and prepared statement with the files it touches. */
struct Prepared {
  Compiled compiled;
  SqliteStatement statement;
  std::vector<FilePtr> files;
  FilePtr file;  ///< the handle's own
  /** Of a query: what its recordsets share. */
  std::shared_ptr<const std::vector<ResultColumn>> columns;
  QString about;  ///< the table's name, for a failure's text
  quint64 lastUse = 0;
};

class StatementCache {
 public:
  /** What a statement is found by: the handle's file, whether row keys are read, the shape of its text. */
  struct Key {
    const QByteArray& alias;
    Keys keys;
    QStringView shape;
  };

  /** None when it is not known. Stays where it is until it is forgotten or, unused for long, makes room. */
  Prepared* find(const Key& key);
  /** In place of an older one of the key. */
  Prepared& keep(const Key& key, Prepared made);
  /** What touches the file. */
  void forget(const FilePtr& file);
  void clear() { known_.clear(); }

 private:
  struct Own {
    QByteArray alias;
    Keys keys;
    QString shape;
    operator Key() const { return {alias, keys, shape}; }
  };
  /** By the shape alone: few statements are asked of two files. */
  struct Hash {
    using is_transparent = void;
    size_t operator()(const Key& key) const;
  };
  struct Same {
    using is_transparent = void;
    bool operator()(const Key& a, const Key& b) const {
      return a.keys == b.keys && a.shape == b.shape && a.alias == b.alias;
    }
  };

  std::unordered_map<Own, Prepared, Hash, Same> known_;
  quint64 clock_ = 0;  ///< counts uses, so that the longest unused goes first
};

}  // namespace jet
