#include "master/partners/post_code_search.h"

#include "store/data_access.h"
#include "ui/model/column.h"

using namespace Qt::StringLiterals;

namespace {

/** Every character the PC's code page keeps in two bytes counts as Hangul here; ASCII is what a postcode is of. */
bool beginsInHangul(const QString& text) {
  return text.front().unicode() > 0x7F;
}

/** A bound of the company's area as text; '' when it is not set. An area that was never entered reads 0. */
QString areaBound(const jet::Value& bound) {
  const QString text = bound.toText();
  return text == u"0" ? QString() : text;
}

}  // namespace

bool PostCodeSearch::open() {
  if (OpenDB(session_.wsMain, dbPost_, session_.DbPath + u"dbPost.mdb"_s)) return true;
  session_.prompts.MsgInfo(u"\n우편번호 파일을 찾을 수 없습니다."_s);
  return false;
}

std::vector<SpreadColumn> PostCodeSearch::columns() {
  return column::shown(
      {column::centred(u"우편번호"_s, 10), column::text(u"주소"_s, 36), column::text(u"번지"_s, 14)});
}

// The upper bound is three digits and a postcode has more, so text order leaves the bound's own district out; kept.
QString PostCodeSearch::statement(const QString& text, Area area) const {
  QString from, to;
  jet::Recordset rs;
  if (area == Area::Own && OpenSnapshot(session_.prompts, session_.dbBasic, rs, u"Select * From User"_s) &&
      !rs.atEnd()) {
    from = areaBound(rs[u"Post1"_s]);
    to = areaBound(rs[u"Post2"_s]);
  }
  QString sql = u"SELECT ZIPCODE, SIDO, GUGUN, DONG, BUNJI FROM Post "_s;
  if (!text.isEmpty()) {
    sql += beginsInHangul(text) ? u"WHERE DONG LIKE '*"_s + plainText(text) + u"*' "_s
                                : u"WHERE ZIPCODE LIKE '*"_s + plainText(text) + u"*' "_s;
    if (!from.isEmpty()) sql += u"AND ZIPCODE >= '"_s + plainText(from) + u"' "_s;
    if (!to.isEmpty()) sql += u"AND ZIPCODE <= '"_s + plainText(to) + u"' "_s;
  } else if (!from.isEmpty()) {
    sql += u"WHERE ZIPCODE >= '"_s + plainText(from) + u"' "_s;
    if (!to.isEmpty()) sql += u"AND ZIPCODE <= '"_s + plainText(to) + u"' "_s;
  } else if (!to.isEmpty()) {
    sql += u"WHERE ZIPCODE <= '"_s + plainText(to) + u"' "_s;
  }
  return sql + u"ORDER BY ZIPCODE;"_s;
}

bool PostCodeSearch::find(SpreadModel& list, const QString& text, Asked asked) const {
  list.clear();
  jet::Recordset rs;
  if (!OpenSnapshot(session_.prompts, dbPost_, rs, statement(text))) return false;
  if (rs.RecordCount() == 0) {
    if (asked == Asked::ByButton)
      session_.prompts.MsgInfo(u"찾고자 하는 읍면동이 없습니다!"_s, u"자료없슴"_s);
    else
      session_.prompts.MsgInfo(u"찾고자 하는 우편번호나 읍/면/동이 없습니다!"_s, u"주소 관리자"_s);
    return false;
  }
  std::vector<std::vector<QString>> rows;
  for (; !rs.atEnd(); rs.MoveNext())
    rows.push_back({rs[u"ZIPCODE"_s].toText(),
                    rs[u"SIDO"_s].toText() + u' ' + rs[u"GUGUN"_s].toText() + u' ' + rs[u"DONG"_s].toText(),
                    rs[u"BUNJI"_s].toText()});
  list.setRows(std::move(rows));
  return true;
}

std::optional<PostCodeChoice> PostCodeSearch::choice(const SpreadModel& list, int row) {
  if (list.text(row, 1).isEmpty()) return {};
  return PostCodeChoice{list.text(row, 1), list.text(row, 2), list.text(row, 3)};
}
