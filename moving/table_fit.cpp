#include "moving/table_fit.h"

#include <QSet>
#include <cmath>
#include <limits>

#include "store/data_access.h"
#include "store/jet/error_texts.h"

using namespace Qt::StringLiterals;

namespace moving {

namespace {

constexpr int longestText = 255;
constexpr int shownValues = 20;  // of a column's values that have no place in it

bool isWholeNumber(double value) {
  return value == std::floor(value) && value >= std::numeric_limits<qint32>::min() &&
         value <= std::numeric_limits<qint32>::max();
}

std::optional<double> numberOf(const QString& text) {
  bool isNumber = false;
  const double value = text.trimmed().remove(u',').toDouble(&isNumber);
  if (!isNumber || !std::isfinite(value)) return std::nullopt;
  return value;
}

bool isTrue(const QString& text) {
  const auto number = numberOf(text);
  return number ? *number != 0 : text.compare(u"true"_s, Qt::CaseInsensitive) == 0;
}

/** A column of ours made wide enough for the old values. */
void widen(jet::Field& field, const std::vector<OldRow>& rows, int column, QStringList& notes) {
  const jet::Field usual = field;
  int longest = 0;
  bool isWhole = true, isEmpty = false, isNull = false;
  for (const OldRow& row : rows) {
    const OldValue& value = row[size_t(column)];
    isNull |= !value;
    if (!value) continue;
    longest = std::max(longest, int(value->size()));
    isEmpty |= value->isEmpty();
    if (const auto number = numberOf(*value)) isWhole &= isWholeNumber(*number);
  }
  if (field.type == jet::Type::Text) {
    if (longest > longestText)
      field.type = jet::Type::Memo;
    else if (longest > field.size)
      field.size = longest;
    if (field.type != usual.type || field.size != usual.size)
      notes << u"%1: %2자에서 %3자로 넓힘"_s.arg(field.name).arg(usual.size).arg(longest);
    if (isEmpty) field.allowZeroLength = true;
  }
  if (field.type == jet::Type::Long && !isWhole) {
    field.type = jet::Type::Double;
    notes << u"%1: 소수나 큰 수가 있어 소수 칸으로 바꿈"_s.arg(field.name);
  }
  if (isNull) field.required = false;
}

jet::Value valueOf(const jet::Field& field, const QString& text, QStringList& misfits) {
  switch (field.type) {
    case jet::Type::Text:
    case jet::Type::Memo:
      return jet::Value(text);
    case jet::Type::Boolean:
      return jet::Value(isTrue(text));
    default:
      break;
  }
  if (text.trimmed().isEmpty()) return {};
  const auto number = numberOf(text);
  if (!number) {
    misfits << text;
    return {};
  }
  return field.type == jet::Type::Long ? jet::Value(qint64(*number)) : jet::Value(*number);
}

/** As the engine compares keys. */
QString keyText(const jet::Value& value) {
  QString text = value.toText().toCaseFolded();
  while (text.endsWith(u' ')) text.chop(1);
  return text;
}

/** An old table need not have kept the keys of ours: one that does not fit becomes a plain index. */
void loosenKeys(FittedTable& fitted) {
  const auto fieldAt = [&](const QString& name) {
    const auto& fields = fitted.table.fields;
    return size_t(std::ranges::find_if(fields, [&](const jet::Field& field) { return field.name == name; }) -
                  fields.begin());
  };
  for (jet::Index& index : fitted.table.indexes) {
    if (!index.primary && !index.unique) continue;
    std::vector<size_t> places;
    for (const QString& name : index.fields) places.push_back(fieldAt(name));
    QSet<QStringList> seen;
    qint64 twice = 0;
    QStringList which;
    for (const auto& row : fitted.rows) {
      QStringList key;
      bool isNull = false;
      for (const size_t place : places) {
        isNull |= row[place].isNull();
        key << keyText(row[place]);
      }
      if (seen.contains(key) || (isNull && index.primary)) {
        ++twice;
        which = key;
      }
      seen.insert(key);
    }
    if (twice == 0) continue;
    // A number the store itself hands out: which of two rows the other tables mean, nobody can tell.
    if (fitted.table.fields[places.front()].autonumber)
      throw jet::Error(
          3022,
          u"%1의 자동번호 %2이(가) 겹치거나 비어 있어 가져올 수 없습니다. (%3)\n이전 프로그램에서 그 줄을 "
          u"바로잡은 뒤 다시 하십시오."_s.arg(fitted.table.name, index.fields.first(), which.join(u", "_s)));
    index.primary = index.unique = false;
    fitted.notes << u"열쇠(%1)가 겹치거나 빈 줄 %2개: 모두 가져왔으나 겹침을 막지 않는 칸이 됨"_s
                        .arg(index.fields.join(u", "_s))
                        .arg(twice);
  }
}

/** What a column holds, in one figure each. */
struct Figures {
  qint64 values = 0;
  double sum = 0, weight = 0;  ///< of numbers, and of what they are without their signs
  qint64 letters = 0;
};

bool agree(const Figures& read, const Figures& stored) {
  constexpr double slack = 1e-9;
  return read.values == stored.values && read.letters == stored.letters &&
         std::abs(read.sum - stored.sum) <= slack * std::max(1.0, read.weight);
}

void compare(const jet::Database& file, const FittedTable& fitted) {
  const QString table = u'[' + plainPath(fitted.table.name) + u']';
  const qint64 stored = file.OpenRecordset(u"Select Count(*) From "_s + table)[0].toLong();
  if (stored != qint64(fitted.rows.size()))
    jet::fail(3146, u"%1: %2줄 중 %3줄"_s.arg(fitted.table.name).arg(fitted.rows.size()).arg(stored));
  for (size_t at = 0; at < fitted.table.fields.size(); ++at) {
    if (fitted.from[at] < 0) continue;
    const jet::Field& field = fitted.table.fields[at];
    const bool isText = field.type == jet::Type::Text || field.type == jet::Type::Memo;
    Figures read, there;
    for (const auto& row : fitted.rows) {
      const jet::Value& value = row[at];
      read.values += !value.isNull();
      if (isText) {
        read.letters += value.toText().size();
        continue;
      }
      read.sum += value.toDouble();
      read.weight += std::abs(value.toDouble());
    }
    const QString name = u'[' + plainPath(field.name) + u']';
    const jet::Recordset sums = file.OpenRecordset(
        u"Select Count("_s + name + u"), "_s +
        (isText ? u"Sum(Len("_s + name + u"))"_s : u"Sum("_s + name + u')') + u" From "_s + table);
    there.values = sums[0].toLong();
    if (isText)
      there.letters = sums[1].toLong();
    else
      there.sum = sums[1].toDouble();
    if (!agree(read, there))
      jet::fail(3146, fitted.table.name + u'.' + field.name + u": 읽은 값과 저장된 값이 다름"_s);
  }
}

}  // namespace

FittedTable fit(const jet::TableDef& ours, const OldTable& old, const std::vector<OldRow>& rows) {
  FittedTable fitted{ours, {}, {}, {}, {}};
  QSet<int> known;
  QStringList missing;
  for (jet::Field& field : fitted.table.fields) {
    int column = -1;
    for (size_t at = 0; at < old.columns.size(); ++at)
      if (old.columns[at].name.compare(field.name, Qt::CaseInsensitive) == 0) column = int(at);
    fitted.from.push_back(column);
    if (column < 0) {
      missing << field.name;
      continue;
    }
    known << column;
    widen(field, rows, column, fitted.notes);
  }
  if (!missing.isEmpty()) fitted.notes << u"이전 파일에 없어 처음 값으로 둔 칸: "_s + missing.join(u", "_s);
  std::vector<QStringList> misfits(fitted.table.fields.size());
  for (const OldRow& row : rows) {
    std::vector<jet::Value> values(fitted.table.fields.size());
    for (size_t at = 0; at < values.size(); ++at)
      if (fitted.from[at] >= 0)
        if (const OldValue& value = row[size_t(fitted.from[at])])
          values[at] = valueOf(fitted.table.fields[at], *value, misfits[at]);
    fitted.rows.push_back(std::move(values));
  }
  for (size_t at = 0; at < misfits.size(); ++at)
    if (!misfits[at].isEmpty())
      fitted.notes
          << u"%1: 숫자가 아니어서 비워 둔 값 %2개 (%3)"_s.arg(fitted.table.fields[at].name)
                 .arg(misfits[at].size())
                 .arg(misfits[at].first(std::min<qsizetype>(shownValues, misfits[at].size())).join(u", "_s));
  loosenKeys(fitted);
  for (size_t at = 0; at < old.columns.size(); ++at) {
    if (known.contains(int(at))) continue;
    qint64 values = 0;
    for (const OldRow& row : rows) values += row[at] && !row[at]->isEmpty();
    fitted.unknownColumns << u"%1 (값 %2개)"_s.arg(old.columns[at].name).arg(values);
  }
  return fitted;
}

void store(const jet::Database& file, const FittedTable& fitted) {
  file.Together([&] {
    file.createTable(fitted.table);
    jet::Recordset into =
        file.OpenRecordset(u"Select * From ["_s + plainPath(fitted.table.name) + u"] Where False"_s,
                           jet::RecordsetType::Dynaset);
    for (const auto& row : fitted.rows) {
      into.AddNew();
      for (size_t at = 0; at < row.size(); ++at)
        if (fitted.from[at] >= 0) into.set(fitted.table.fields[at].name, row[at]);
      into.Update();
    }
  });
  compare(file, fitted);
}

}  // namespace moving
