#include "links/tel_tidy.h"

#include <QRegularExpression>

#include "master/customers/tel_format.h"
#include "store/data_access.h"
#include "ui/model/column.h"

using namespace Qt::StringLiterals;

namespace {

const QString telManager = u"전화번호 형식"_s;

struct TelField {
  const char16_t* column;
  const char16_t* caption;
  int width;  ///< characters
};
constexpr TelField telFields[] = {
    {u"Tel", u"전화번호", 20}, {u"Tel1", u"전화번호 2", 14}, {u"Tel2", u"전화번호 3", 14}};

const TelField& fieldOf(const QString& caption) {
  return *std::ranges::find_if(telFields,
                               [&](const TelField& field) { return caption == QStringView(field.caption); });
}

/** One number; as it is where it is none, or none that has the shape. */
QString tidyNumber(const QString& stored) {
  const QString number = stored.trimmed();
  static const QRegularExpression written(u"^[0-9 ().-]+$"_s),
      shape(u"^(0[0-9]{1,2}-)?[0-9]{2,4}-[0-9]{4}$"_s);
  if (!written.match(number).hasMatch()) return stored;
  const QString tidy = FormatTel(number).text;
  return shape.match(tidy).hasMatch() ? tidy : stored;
}

}  // namespace

std::optional<QString> tidyTel(const QString& stored) {
  QStringList numbers = stored.split(u',');
  for (QString& number : numbers) number = tidyNumber(number);
  const QString tidy = numbers.join(u',');
  if (tidy == stored) return {};
  return tidy;
}

TelTidy::TelTidy(Session& session) : session_(session) {
  list_.setColumns({column::tick(u"선택"_s), column::locked(column::text(u"고객명"_s, 28)),
                    column::locked(column::text(u"칸"_s, 12)),
                    column::locked(column::text(u"지금 번호"_s, 22)),
                    column::locked(column::text(u"바꿀 번호"_s, 22)), column::hidden(u"코드"_s)});
}

bool TelTidy::load() {
  list_.clear();
  jet::Recordset clients;
  if (!OpenSnapshot(session_.prompts, session_.dbBasic, clients,
                    u"Select Code, Name, Tel, Tel1, Tel2 From Client Order By Name, Code"_s))
    return false;
  std::vector<std::vector<QString>> rows;
  for (; !clients.atEnd(); clients.MoveNext()) {
    for (const TelField& field : telFields) {
      const QString stored = clients[QString::fromUtf16(field.column)].toText();
      const std::optional<QString> tidy = tidyTel(stored);
      if (tidy && tidy->size() <= field.width)
        rows.push_back({u"1"_s, clients[u"Name"_s].toText(), QString::fromUtf16(field.caption), stored, *tidy,
                        clients[u"Code"_s].toText()});
    }
  }
  list_.setRows(std::move(rows));
  return true;
}

bool TelTidy::save() {
  if (ticked() == 0) {
    session_.prompts.MsgInfo(u"바꿀 전화번호를 선택하십시오!"_s, telManager);
    return false;
  }
  if (!session_.prompts.MsgAsk(u"선택한 전화번호 %1개를 바꾸시겠습니까?"_s.arg(ticked()), telManager))
    return false;
  int written = 0;
  session_.wsMain.Together({session_.dbBasic}, [&] {
    written = 0;
    for (int row = 1; row <= list_.MaxRows(); ++row) {
      if (!isTicked(row)) continue;
      const QString column = QString::fromUtf16(fieldOf(list_.text(row, TidyCol::Field)).column);
      written += session_.dbBasic.Execute(u"Update Client Set "_s + column + u" = '"_s +
                                          copiedText(list_.text(row, TidyCol::Tidy)) + u"' Where Code = "_s +
                                          plainNumber(list_.text(row, TidyCol::Code)) + u" And "_s + column +
                                          u" = '"_s + copiedText(list_.text(row, TidyCol::Stored)) + u'\'');
    }
  });
  QString told = u"전화번호 %1개를 바꾸었습니다."_s.arg(written);
  if (const int left = ticked() - written; left > 0)
    told += u"\n%1개는 그 사이에 다른 PC에서 바뀌어 그대로 두었습니다."_s.arg(left);
  session_.prompts.MsgInfo(told, telManager);
  return true;
}
