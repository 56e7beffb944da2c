#include "master/customers/caller_search.h"

#include <algorithm>

#include "master/customers/client_entry.h"
#include "master/customers/tel_format.h"
#include "store/data_access.h"

namespace {

constexpr int tailLength = 4;  // a stored number's last block, which no dash parts

QString digitsOnly(const QString& text) {
  QString digits;
  for (const QChar sign : text)
    if (sign >= u'0' && sign <= u'9') digits += sign;
  return digits;
}

bool isSameNumber(const QString& stored, const QString& number) {
  const bool telephone = std::all_of(stored.begin(), stored.end(), [](QChar sign) {
    return (sign >= u'0' && sign <= u'9') || QStringView(u" -()").contains(sign);
  });
  return telephone && !stored.isEmpty() && digitsOnly(stored) == digitsOnly(number);
}

}  // namespace

bool hasNumber(const jet::Recordset& client, const QString& number) {
  for (const char* const column : {"Tel", "Tel1", "Tel2", "UName"})
    if (isSameNumber(client[QString(column)].toText(), number)) return true;
  return false;
}

std::vector<CallingClient> clientsCalling(Session& session, const QString& number) {
  const QString tail = digitsOnly(number).right(tailLength);
  if (tail.isEmpty()) return {};
  jet::Recordset found = session.dbYear.OpenRecordset(
      "Select * From Client Where Tel Like '*" + plainText(tail) + "' OR Tel1 Like '*" + plainText(tail) +
      "' OR Tel2 Like '*" + plainText(tail) + "' OR UName Like '*" + plainText(tail) + "'");
  std::vector<CallingClient> calling;
  for (; !found.atEnd(); found.MoveNext())
    if (hasNumber(found, number))
      calling.push_back({{found["Code"].toLong(), DisplayName(found)}, found["VolumeYesNo"].toBool()});
  return calling;
}
