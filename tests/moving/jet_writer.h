#pragma once
// Small files of the older format (Jet 3 and Jet 4), written page by page for the tests that read them.
#include <QByteArray>
#include <QFile>
#include <QString>
#include <QVariant>
#include <QtEndian>

#include <vector>

#include "pc/cp949.h"

namespace tests {

using namespace Qt::StringLiterals;

enum class JetType {
  YesNo = 1,
  Byte = 2,
  Integer = 3,
  Long = 4,
  Money = 5,
  Single = 6,
  Double = 7,
  Moment = 8,  ///< days since 1899-12-30
  Binary = 9,
  Text = 10,
  Ole = 11,
  Guid = 15  ///< 16 bytes
};

struct JetColumn {
  QString name;
  JetType type = JetType::Text;
  int size = 50;  ///< characters of a text
};

/** Values by column; an invalid one is Null, a byte array stands for a text as it is. */
struct JetTable {
  QString name;
  std::vector<JetColumn> columns;
  std::vector<std::vector<QVariant>> rows;
};

class JetWriter {
 public:
  /** version 3 or 4; key: encrypts every page but the first. */
  explicit JetWriter(int version, quint32 key = 0) : version_(version), key_(key) {}

  /** The whole file. */
  QByteArray bytes(const std::vector<JetTable>& tables) {
    pages_.assign(3, QByteArray(pageSize(), '\0'));
    pages_[0] = header();
    JetTable catalogue{u"MSysObjects"_s,
                       {{u"Id"_s, JetType::Long},
                        {u"ParentId"_s, JetType::Long},
                        {u"Name"_s, JetType::Text, 64},
                        {u"Type"_s, JetType::Integer},
                        {u"Flags"_s, JetType::Long},
                        {u"LvProp"_s, JetType::Ole}},
                       {}};
    for (const JetTable& table : tables) catalogue.rows.push_back({addTable(table), 0, table.name, 1, 0, {}});
    addTable(catalogue, 2);
    QByteArray all;
    for (size_t at = 0; at < pages_.size(); ++at)
      all += at && key_ ? coded(pages_[at], key_ ^ quint32(at)) : pages_[at];
    return all;
  }
  void write(const QString& path, const std::vector<JetTable>& tables) {
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) file.write(bytes(tables));
  }

 private:
  bool isOld() const { return version_ == 3; }
  int pageSize() const { return isOld() ? 2048 : 4096; }

  template <class Number>
  static QByteArray little(Number value) {
    QByteArray bytes(sizeof(Number), '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
  }
  static QByteArray coded(QByteArray bytes, quint32 key) { return rc4(little(key), std::move(bytes)); }
  static QByteArray rc4(const QByteArray& key, QByteArray bytes) {
    quint8 state[256], i = 0, j = 0;
    for (int at = 0; at < 256; ++at) state[at] = quint8(at);
    for (int at = 0; at < 256; ++at) {
      j = quint8(j + state[at] + quint8(key[at % key.size()]));
      std::swap(state[at], state[j]);
    }
    j = 0;
    for (char& byte : bytes) {
      j = quint8(j + state[++i]);
      std::swap(state[i], state[j]);
      byte = char(byte ^ state[quint8(state[i] + state[j])]);
    }
    return bytes;
  }

  QByteArray header() const {
    QByteArray page(pageSize(), '\0');
    page.replace(0, 20, QByteArray("\0\1\0\0Standard Jet DB\0", 20));
    page[0x14] = char(isOld() ? 0 : 1);
    page.replace(0x3c, 2, little(quint16(949)));
    page.replace(0x3e, 4, little(key_));
    const int length = isOld() ? 126 : 128;
    page.replace(0x18, length, rc4(QByteArray::fromHex("c7da396b"), page.mid(0x18, length)));
    return page;
  }

  QByteArray textBytes(const QString& text) const {
    if (isOld()) return pc::toCp949(text);
    QByteArray bytes;
    for (const QChar c : text) bytes += little(c.unicode());
    return bytes;
  }
  /** Bytes go into the file as they are. */
  static bool isRaw(const QVariant& value) { return value.typeId() == QMetaType::QByteArray; }
  static bool isVariable(JetType type) {
    return type == JetType::Text || type == JetType::Ole || type == JetType::Binary;
  }
  static int widthOf(JetType type) {
    switch (type) {
      case JetType::Byte:
        return 1;
      case JetType::Integer:
        return 2;
      case JetType::Long:
      case JetType::Single:
        return 4;
      case JetType::Money:
      case JetType::Double:
      case JetType::Moment:
        return 8;
      case JetType::Guid:
        return 16;
      default:
        return 0;
    }
  }
  static QByteArray fixedBytes(JetType type, const QVariant& value) {
    switch (type) {
      case JetType::Byte:
        return little(quint8(value.toInt()));
      case JetType::Integer:
        return little(qint16(value.toInt()));
      case JetType::Long:
        return little(qint32(value.toInt()));
      case JetType::Money:
        return little(qint64(value.toDouble() * 10000));
      case JetType::Single:
        return little(value.toFloat());
      case JetType::Double:
      case JetType::Moment:
        return little(value.toDouble());
      case JetType::Guid:
        return value.toByteArray();
      default:
        return {};
    }
  }

  QByteArray rowBytes(const JetTable& table, const std::vector<QVariant>& values) const {
    const auto count = [&](size_t number) {
      return isOld() ? little(quint8(number)) : little(quint16(number));
    };
    QByteArray row = count(table.columns.size()), mask((int(table.columns.size()) + 7) / 8, '\0');
    std::vector<QByteArray> variable;
    for (size_t at = 0; at < table.columns.size(); ++at) {
      const JetType type = table.columns[at].type;
      const QVariant value = at < values.size() ? values[at] : QVariant();
      const bool set = value.isValid() && (type != JetType::YesNo || value.toBool());
      if (set) mask[at / 8] = char(mask[at / 8] | 1 << at % 8);
      if (isVariable(type))
        variable.push_back(!set           ? QByteArray()
                           : isRaw(value) ? value.toByteArray()
                                          : textBytes(value.toString()));
      else
        row += set ? fixedBytes(type, value) : QByteArray(widthOf(type), '\0');
    }
    std::vector<qsizetype> starts;
    for (const QByteArray& bytes : variable) {
      starts.push_back(row.size());
      row += bytes;
    }
    if (variable.empty()) return row + mask;
    starts.push_back(row.size());  // where the last one ends
    for (size_t at = starts.size(); at-- > 0;) row += count(size_t(starts[at]) & (isOld() ? 0xff : 0xffff));
    if (isOld()) row += jumps(starts, row.size() + 1 + mask.size());
    return row + count(variable.size()) + mask;
  }
  /** In the old format a place is one byte: the table behind tells at which column the next 256 begin. */
  static QByteArray jumps(const std::vector<qsizetype>& starts, qsizetype length) {
    QByteArray table;
    for (qsizetype jump = 1; (length + table.size() - 1) / 256 >= jump; ++jump) {
      size_t first = 0;
      while (first < starts.size() && starts[first] < jump * 256) ++first;
      table.prepend(char(first < starts.size() ? first : 0xff));
    }
    return table;
  }

  /** Rows from the page's end upward. */
  std::vector<QByteArray> dataPages(const std::vector<QByteArray>& rows, quint32 definition) const {
    const int head = isOld() ? 8 : 12;
    std::vector<QByteArray> pages;
    int end = 0, count = 0;
    for (const QByteArray& row : rows) {
      if (pages.empty() || end - row.size() < head + 2 + 2 * (count + 1)) {
        QByteArray page(pageSize(), '\0');
        page.replace(0, 2, "\1\1");
        page.replace(4, 4, little(definition));
        pages.push_back(page);
        end = pageSize();
        count = 0;
      }
      end -= int(row.size());
      pages.back().replace(end, row.size(), row);
      pages.back().replace(head + 2 + 2 * count, 2, little(quint16(end)));
      pages.back().replace(head, 2, little(quint16(++count)));
    }
    return pages;
  }

  /** The page of its definition. */
  int addTable(const JetTable& table, int at = -1) {
    const int definition = at >= 0 ? at : int(pages_.size());
    if (at < 0) pages_.emplace_back();
    std::vector<QByteArray> rows;
    for (const auto& values : table.rows) rows.push_back(rowBytes(table, values));
    const std::vector<QByteArray> data = dataPages(rows, quint32(definition));
    const int first = int(pages_.size());
    for (const QByteArray& page : data) pages_.push_back(page);
    QByteArray used = QByteArray(1, '\0') + little(quint32(first)) + QByteArray(isOld() ? 128 : 64, '\0');
    for (size_t page = 0; page < data.size(); ++page)
      used[5 + page / 8] = char(used[5 + page / 8] | 1 << page % 8);
    const QByteArray none = QByteArray(1, '\0') + little(quint32(0)) + QByteArray(isOld() ? 128 : 64, '\0');
    const int maps = int(pages_.size());
    pages_.push_back(dataPages({used, none}, 0).front());
    pages_[definition] = definitionPage(table, maps);
    return definition;
  }

  QByteArray definitionPage(const JetTable& table, int maps) const {
    size_t variable = 0;
    for (const JetColumn& column : table.columns) variable += isVariable(column.type);
    const quint16 columns = quint16(table.columns.size());
    QByteArray page = QByteArray("\2\1VC", 4) + little(quint32(0)) + little(quint32(0));
    if (!isOld()) page += little(quint32(0));
    page += little(quint32(table.rows.size())) + little(quint32(0));
    if (!isOld()) page += QByteArray(16, '\0');
    page += 'N' + little(columns) + little(quint16(variable)) + little(columns) + little(quint32(0)) +
            little(quint32(0));
    for (const int row : {0, 1}) page += little(quint32(maps) << 8 | quint32(row));
    quint16 fixedAt = 0, variableAt = 0;
    for (quint16 number = 0; number < columns; ++number) {
      const JetColumn& column = table.columns[number];
      const bool moves = isVariable(column.type);
      const int size = moves ? column.size * (isOld() ? 1 : 2) : widthOf(column.type);
      page += char(column.type);
      if (!isOld()) page += QByteArray(4, '\0');
      page += little(number) + little(moves ? variableAt : quint16(0)) + little(number) +
              QByteArray(isOld() ? 6 : 4, '\0');
      page += char(moves ? 2 : 3);
      if (!isOld()) page += QByteArray(5, '\0');
      page += little(moves ? quint16(0) : fixedAt) + little(quint16(column.type == JetType::Ole ? 0 : size));
      moves ? ++variableAt : fixedAt = quint16(fixedAt + size);
    }
    for (const JetColumn& column : table.columns) {
      const QByteArray name = textBytes(column.name);
      page += (isOld() ? little(quint8(name.size())) : little(quint16(name.size()))) + name;
    }
    page.replace(8, 4, little(quint32(page.size())));
    return page.leftJustified(pageSize(), '\0', true);
  }

  int version_;
  quint32 key_;
  std::vector<QByteArray> pages_;
};

}  // namespace tests
