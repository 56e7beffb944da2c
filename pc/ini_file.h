#pragma once
// A small UTF-8 ini file that several programs may share: read when it changed, replaced whole when written.
#include <QDateTime>
#include <QMap>
#include <QString>
#include <QStringList>
#include <optional>

namespace pc {

/** Sections and keys without regard to case; a value may hold any text. */
class IniFile {
 public:
  explicit IniFile(QString file) : file_(std::move(file)) {}

  QString value(const QString& section, const QString& key, const QString& fallback = {}) const;
  /** False when the file cannot be written; the value then holds for this object alone. */
  bool setValue(const QString& section, const QString& key, const QString& value);
  bool remove(const QString& section, const QString& key);
  /** False when the file is there and cannot be read: what it holds is not known, and nothing is written over it. */
  bool canBeRead() const;
  /** The keys of a section as they were written first, in the file's order. */
  QStringList keys(const QString& section) const;

 private:
  struct Entry {
    QString section, key, value;
  };
  using Entries = QList<Entry>;

  void refresh() const;
  std::optional<Entries> read() const;
  std::optional<Entries> tryRead() const;
  bool write(const Entries& entries) const;
  bool change(const QString& section, const QString& key, const QString* value);
  static Entry* find(Entries& entries, const QString& section, const QString& key);

  QString file_;
  mutable Entries entries_;
  mutable QDateTime readAt_;
  mutable qint64 readSize_ = -1;
  bool unsaved_ = false;
};

}  // namespace pc
