#include "documents/pickers/post_list.h"

#include <algorithm>

#include "store/data_access.h"

namespace {

enum : int { Zip = 1, Place, Lots, Dong };

/** "135-080" of a postcode with or without its dash. */
QString dashed(const QString& zip) {
  const QString digits = QString(zip).remove('-');
  return digits.size() == 6 ? digits.left(3) + '-' + digits.mid(3) : zip;
}

/** A postcode typed whole is found whether the file has dashes or not. */
QString patternOf(const QString& text) {
  const QString zip = dashed(text);
  const bool whole = zip.size() == 7 && zip[3] == '-' && std::all_of(zip.begin(), zip.end(), [](QChar each) {
                       return each == '-' || each.isDigit();
                     });
  return whole ? zip.left(3) + '*' + zip.mid(4) : text;
}

}  // namespace

PostList::PostList(Session& session) : session_(session), posts_(session) {
  std::vector<SpreadColumn> columns = PostCodeSearch::columns();
  columns.push_back({.header = "동", .locked = true, .hidden = true});
  list_.setColumns(std::move(columns));
}

bool PostList::search(const QString& text) {
  list_.clear();
  jet::Recordset found;
  if (!OpenSnapshot(session_.prompts, posts_.file(), found,
                    posts_.statement(patternOf(text), PostCodeSearch::Area::Whole)))
    return false;
  std::vector<std::vector<QString>> rows;
  for (; !found.atEnd(); found.MoveNext()) {
    const QString dong = found["DONG"].toText();
    rows.push_back({dashed(found["ZIPCODE"].toText()),
                    found["SIDO"].toText() + ' ' + found["GUGUN"].toText() + ' ' + dong,
                    found["BUNJI"].toText(), dong});
  }
  list_.setRows(std::move(rows));
  return isLoaded();
}

int PostList::find(const QString& text) const {
  for (int row = 1; row <= list_.MaxRows(); ++row)
    if (list_.text(row, Dong) == text ||
        QString(list_.text(row, Zip)).remove('-') == QString(text).remove('-'))
      return row;
  return 0;
}

std::optional<PostCodeChoice> PostList::choice(int row) const {
  return PostCodeSearch::choice(list_, row);
}
