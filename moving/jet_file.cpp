#include "moving/jet_file.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QProcess>
#include <QStandardPaths>

#include "pc/cp949.h"
#include "store/jet/error_texts.h"

using namespace Qt::StringLiterals;

namespace moving {

namespace {

constexpr int patience = 60'000;  // milliseconds for a reading program that says nothing any more

[[noreturn]] void failTorn(const QString& path, const QString& why) {
  throw jet::Error(3049, QFileInfo(path).fileName() + u" 파일이 손상되었거나 잘려서 읽을 수 없습니다. ("_s +
                             why.trimmed() + u')');
}

QString numberText(double value) {
  return QString::number(value, 'g', QLocale::FloatingPointShortest).toUpper();
}

/** The shortest decimal that is the same single-precision number: what somebody typed. */
QString singleText(const QString& printed) {
  const float value = printed.toFloat();
  for (int digits = 1; digits <= 9; ++digits) {
    const QString text = QString::number(double(value), 'g', digits);
    if (text.toFloat() == value) return text.toUpper();
  }
  return numberText(value);
}

OldValue fieldOf(OldType type, const QString& text) {
  switch (type) {
    case OldType::YesNo:
      return text == "0"_L1 ? u"0"_s : u"-1"_s;
    case OldType::Single:
      return singleText(text);
    case OldType::Real: {
      bool isNumber = false;
      const double value = text.toDouble(&isNumber);
      return isNumber ? numberText(value) : text;
    }
    case OldType::Moment:
      return text.endsWith(u" 00:00:00"_s) ? text.chopped(9) : text;
    default:
      return text;
  }
}

/** By the format's own numbers. */
OldType typeOf(int number) {
  switch (number) {
    case 1:
      return OldType::YesNo;
    case 2:
    case 3:
    case 4:
      return OldType::Whole;
    case 6:
      return OldType::Single;
    case 5:  // currency
    case 7:
    case 16:  // decimal
      return OldType::Real;
    case 8:
      return OldType::Moment;
    case 10:
    case 12:  // memo
    case 15:  // a replication's number
      return OldType::Text;
    default:
      return OldType::Object;
  }
}

/** The reading program lies where this one is installed, or above it where this is a test. */
QString readingProgram() {
  const QString name = u"haeon-jet-rows"_s, here = QFileInfo(u"/proc/self/exe"_s).canonicalPath();
  for (const QString& folder : {here, here + u"/.."_s})
    if (QFileInfo::exists(folder + u'/' + name)) return folder + u'/' + name;
  return QStandardPaths::findExecutable(name);
}

}  // namespace

bool isOldFormat(const QString& nativePath) {
  QFile file(nativePath);
  if (!file.open(QIODevice::ReadOnly)) return false;
  return file.read(20) == QByteArray("\0\1\0\0Standard Jet DB\0", 20);
}

bool canReadOldFormat() {
  return !readingProgram().isEmpty();
}

JetFile::JetFile(const QString& nativePath) : path_(nativePath) {
  if (!isOldFormat(path_)) throw jet::errorOf(3343, QFileInfo(path_).fileName());
  if (!canReadOldFormat())
    throw jet::Error(53, u"이전 형식의 파일을 읽는 프로그램(haeon-jet-rows)이 설치되어 있지 않습니다."_s);
  QFile file(path_);
  constexpr qint64 versionAt = 0x14;
  char version = 0;
  if (!file.open(QIODevice::ReadOnly) || !file.seek(versionAt) || !file.getChar(&version))
    failTorn(path_, u"첫 쪽"_s);
  if (version != 0 && version != 1)
    throw jet::Error(
        3343, QFileInfo(path_).fileName() + u" 파일은 지원하지 않는 형식입니다. (Jet 3과 4만 가져옵니다)"_s);
  version_ = version == 0 ? 3 : 4;
  const qint64 page = version_ == 3 ? 2048 : 4096;
  if (file.size() % page != 0) failTorn(path_, u"파일의 크기가 맞지 않음"_s);
}

QByteArray JetFile::run(const QStringList& arguments) const {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  // Jet 4 holds Unicode. A Jet 3 text is handed over byte by byte: the library's own way through code page 949 makes a
  // question mark of whatever it does not know, in silence.
  environment.insert(u"MDB_JET3_CHARSET"_s, u"ISO-8859-1"_s);
  environment.insert(u"MDBICONV"_s, u"UTF-8"_s);
  environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
  process.setProcessEnvironment(environment);
  process.start(readingProgram(), arguments);
  QByteArray out;
  while (process.state() != QProcess::NotRunning || process.bytesAvailable() > 0) {
    if (process.bytesAvailable() == 0 && !process.waitForReadyRead(patience) &&
        process.state() != QProcess::NotRunning) {
      process.kill();
      process.waitForFinished();
      failTorn(path_, u"응답 없음"_s);
    }
    out += process.readAllStandardOutput();
  }
  const QString said = QString::fromUtf8(process.readAllStandardError());
  if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) failTorn(path_, said);
  // The library goes on behind a page that it cannot read.
  for (const auto sign :
       {"beyond EOF"_L1, "error"_L1, "Error"_L1, "Unable"_L1, "not a valid"_L1, "invalid"_L1})
    if (said.contains(sign)) failTorn(path_, said);
  return out;
}

/** The file's own bytes of a text that the reading program has told as UTF-8. */
QByteArray JetFile::bytesOf(const QByteArray& told) const {
  return version_ == 3 ? QString::fromUtf8(told).toLatin1() : told;
}

QString JetFile::textOf(const QByteArray& told) const {
  return version_ == 3 ? pc::fromCp949(bytesOf(told)) : QString::fromUtf8(told);
}

std::vector<OldTable> JetFile::tables() const {
  std::vector<OldTable> tables;
  for (const QByteArray& line : run({path_}).split('\n')) {
    const QList<QByteArray> parts = line.split('\t');
    if (parts.size() < 3) continue;
    const QByteArray key = line.sliced(parts[0].size() + parts[1].size() + 2);
    const QString name = textOf(key);
    const qint64 number = parts[1].toLongLong();
    if (line.startsWith('T'))
      tables.push_back({name, {}, number, QString::fromUtf8(key)});
    else if (!tables.empty())
      tables.back().columns.push_back({name, typeOf(int(number))});
  }
  return tables;
}

std::vector<OldRow> JetFile::rows(const OldTable& table, QStringList& broken) const {
  const QByteArray told = run({path_, table.key});
  std::vector<OldRow> rows;
  OldRow row;
  for (qsizetype at = 0; at < told.size();) {
    const qsizetype colon = told.indexOf(':', at);
    if (colon < 0) failTorn(path_, table.name);
    const QByteArray length = told.sliced(at, colon - at);
    const qsizetype size = length.toLongLong();
    at = colon + 1;
    if (at + size > told.size()) failTorn(path_, table.name);
    const OldColumn& column = table.columns[row.size()];
    const QByteArray field = told.sliced(at, size);
    const QString text = textOf(field);
    if (text.contains(QChar::ReplacementCharacter))
      broken << column.name + u": "_s + text + u" ("_s + QString::fromLatin1(bytesOf(field).toHex(' ')) +
                    u')';
    row.push_back(length == "-" ? std::nullopt : fieldOf(column.type, text));
    at += size;
    if (row.size() < table.columns.size()) continue;
    rows.push_back(std::move(row));
    row.clear();
  }
  if (!row.empty()) failTorn(path_, table.name);
  if (qint64(rows.size()) < table.rows)
    failTorn(path_, u"%1: %2줄 중 %3줄만 읽음"_s.arg(table.name).arg(table.rows).arg(rows.size()));
  return rows;
}

}  // namespace moving
