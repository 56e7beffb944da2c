#include "pc/ini_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace pc {

namespace {

/** A text on one line: backslash, line ends and what would end a key stand behind a backslash. */
QString iniEscaped(const QString& text, bool isKey) {
  QString out;
  out.reserve(text.size() + 4);
  for (int at = 0; at < text.size(); ++at) {
    const QChar c = text[at];
    if (c == u'\\') {
      out += u"\\\\"_s;
    } else if (c == u'\n') {
      out += u"\\n"_s;
    } else if (c == u'\r') {
      out += u"\\r"_s;
    } else if (isKey && (c == u'=' || (at == 0 && (c == u'[' || c == u';')))) {
      out += u"\\"_s + c;
    } else {
      out += c;
    }
  }
  return out;
}

QString iniPlain(QStringView text) {
  QString out;
  out.reserve(text.size());
  for (int at = 0; at < text.size(); ++at) {
    if (text[at] != u'\\' || at + 1 == text.size()) {
      out += text[at];
      continue;
    }
    const QChar next = text[++at];
    out += next == u'n' ? QChar(u'\n') : next == u'r' ? QChar(u'\r') : next;
  }
  return out;
}

/** Where a line's key ends: the first = without a backslash before it; -1 when there is none. */
qsizetype keyEnd(QStringView line) {
  for (qsizetype at = 0; at < line.size(); ++at) {
    if (line[at] == u'\\') {
      ++at;
    } else if (line[at] == u'=') {
      return at;
    }
  }
  return -1;
}

bool same(const QString& a, const QString& b) {
  return a.compare(b, Qt::CaseInsensitive) == 0;
}

}  // namespace

IniFile::Entry* IniFile::find(Entries& entries, const QString& section, const QString& key) {
  for (Entry& entry : entries) {
    if (same(entry.section, section) && same(entry.key, key)) return &entry;
  }
  return nullptr;
}

std::optional<IniFile::Entries> IniFile::read() const {
  auto entries = tryRead();
  return entries ? entries : tryRead();  // a disk or network that failed once
}

std::optional<IniFile::Entries> IniFile::tryRead() const {
  std::error_code unanswered;
  const auto found = std::filesystem::status(file_.toStdU16String(), unanswered);
  if (found.type() == std::filesystem::file_type::not_found) return Entries();
  QFile file(file_);
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QByteArray bytes = file.readAll();
  if (file.error() != QFile::NoError || bytes.size() != file.size()) return {};
  Entries entries;
  QString section;
  const QString text = QString::fromUtf8(bytes);
  for (QStringView line : QStringView(text).split(u'\n')) {
    if (line.endsWith(u'\r')) line.chop(1);
    if (line.startsWith(u'[') && line.endsWith(u']')) {
      section = iniPlain(line.sliced(1, line.size() - 2));
    } else if (const qsizetype end = keyEnd(line); end >= 0 && !line.startsWith(u';')) {
      entries.append({section, iniPlain(line.first(end)), iniPlain(line.sliced(end + 1))});
    }
  }
  return entries;
}

void IniFile::refresh() const {
  if (unsaved_) return;
  const QFileInfo info(file_);
  const QDateTime stamp = info.lastModified();
  if (readSize_ == info.size() && readAt_ == stamp) return;
  const auto entries = read();
  if (!entries) return;
  entries_ = *entries;
  readAt_ = stamp;
  readSize_ = info.size();
}

bool IniFile::canBeRead() const {
  return unsaved_ || read().has_value();
}

bool IniFile::write(const Entries& entries) const {
  // Written beside and renamed over: a power cut leaves the old file or the new one.
  QSaveFile file(file_);
  if (!file.open(QIODevice::WriteOnly)) return false;
  QStringList done;
  QString out;
  for (const Entry& first : entries) {
    if (done.contains(first.section, Qt::CaseInsensitive)) continue;
    done << first.section;
    out += u'[' + iniEscaped(first.section, false) + u"]\n"_s;
    for (const Entry& entry : entries) {
      if (!same(entry.section, first.section)) continue;
      out += iniEscaped(entry.key, true) + u'=' + iniEscaped(entry.value, false) + u'\n';
    }
  }
  file.write(out.toUtf8());
  return file.commit();
}

bool IniFile::change(const QString& section, const QString& key, const QString* value) {
  QDir().mkpath(QFileInfo(file_).path());
  // Another program may be writing the same file: what it wrote is read again under the lock.
  QLockFile lock(file_ + u".lock"_s);
  const bool locked = lock.tryLock(2000);
  if (!unsaved_) {
    const auto stored = read();
    if (!stored) return false;  // what it holds besides would be lost
    if (locked) entries_ = *stored;
  }
  if (Entry* entry = find(entries_, section, key)) {
    if (value) {
      entry->value = *value;
    } else {
      entries_.removeAt(entry - entries_.data());
    }
  } else if (value) {
    entries_.append({section, key, *value});
  }
  unsaved_ = !locked || !write(entries_);
  if (!unsaved_) {
    const QFileInfo info(file_);
    readAt_ = info.lastModified();
    readSize_ = info.size();
  }
  return !unsaved_;
}

QString IniFile::value(const QString& section, const QString& key, const QString& fallback) const {
  refresh();
  const Entry* entry = find(entries_, section, key);
  return entry ? entry->value : fallback;
}

bool IniFile::setValue(const QString& section, const QString& key, const QString& value) {
  return change(section, key, &value);
}

bool IniFile::remove(const QString& section, const QString& key) {
  return change(section, key, nullptr);
}

QStringList IniFile::keys(const QString& section) const {
  refresh();
  QStringList names;
  for (const Entry& entry : entries_) {
    if (same(entry.section, section)) names << entry.key;
  }
  return names;
}

}  // namespace pc
