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

/** How many values a column holds. */
QString heldIn(const std::vector<OldRow>& rows, int column) {
  const auto values = std::ranges::count_if(rows, [column](const OldRow& row) {
    const OldValue& value = row[size_t(column)];
    return value && !value->isEmpty();
  });
  return u" (값 %1개)"_s.arg(values);
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

/** The first text of a row, by which the operator knows it. */
QString nameOf(const FittedTable& fitted, const std::vector<jet::Value>& row) {
  for (size_t at = 0; at < row.size(); ++at)
    if (fitted.table.fields[at].type == jet::Type::Text && !row[at].toText().isEmpty())
      return row[at].toText();
  return {};
}

/** A number that the store itself hands out names one row: one that is missing or stood before gets the next free. */
void renumber(FittedTable& fitted) {
  for (size_t at = 0; at < fitted.table.fields.size(); ++at) {
    if (!fitted.table.fields[at].autonumber || fitted.from[at] < 0) continue;
    QSet<qint64> all, seen;
    for (const auto& row : fitted.rows) all << row[at].toLong();
    qint64 next = 1;
    for (auto& row : fitted.rows) {
      const jet::Value old = row[at];
      if (!old.isNull() && !seen.contains(old.toLong())) {
        seen << old.toLong();
        continue;
      }
      while (all.contains(next)) ++next;
      all << next;
      row[at] = jet::Value(next);
      fitted.renumbered << u"%1 %2 → %3 (%4)"_s.arg(fitted.table.fields[at].name,
                                                    old.isNull() ? u"없음"_s : old.toText(),
                                                    QString::number(next), nameOf(fitted, row));
    }
  }
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
    for (const auto& row : fitted.rows) {
      QStringList key;
      bool isNull = false;
      for (const size_t place : places) {
        isNull |= row[place].isNull();
        key << keyText(row[place]);
      }
      twice += seen.contains(key) || (isNull && index.primary);
      seen.insert(key);
    }
    if (twice == 0) continue;
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
  FittedTable fitted{.table = ours};
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
    if (old.columns[size_t(column)].type == OldType::Object) {
      fitted.from.back() = -1;
      fitted.notes << field.name + u": 그림이나 개체의 칸이라 가져오지 않음"_s + heldIn(rows, column);
      continue;
    }
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
      fitted.notes << u"%1: 숫자가 아니어서 비워 둔 값 %2개 (%3)"_s.arg(fitted.table.fields[at].name)
                          .arg(misfits[at].size())
                          .arg(misfits[at].join(u", "_s));
  renumber(fitted);
  loosenKeys(fitted);
  for (size_t at = 0; at < old.columns.size(); ++at) {
    if (known.contains(int(at))) continue;
    const bool isObject = old.columns[at].type == OldType::Object;
    fitted.unknownColumns << old.columns[at].name + (isObject ? u", 그림이나 개체"_s : QString()) +
                                 heldIn(rows, int(at));
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
