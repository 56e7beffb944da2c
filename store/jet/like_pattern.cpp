#include "store/jet/like_pattern.h"

#include <algorithm>
#include <cstring>

#include "store/jet/text_rules.h"

namespace jet {
namespace {

/** Stands for itself alone: no sign of a pattern, no letter that has a case (or that another folds to). */
bool isPlain(QChar c) {
  if (c < u'\x80') return !QStringView(u"*?#[]").contains(c) && !c.isLetter();
  return c >= u'\xAC00' && c <= u'\xD7A3';
}

}  // namespace

LikePattern::LikePattern(const QString& pattern) : pattern_(pattern) {
  QStringView rest = pattern;
  const bool before = rest.startsWith(u'*');
  if (before) rest = rest.sliced(1);
  const bool behind = rest.endsWith(u'*');
  if (behind) rest.chop(1);
  if (!std::all_of(rest.begin(), rest.end(), isPlain)) return;
  plain_ = rest.toUtf8().toStdString();
  kind_ = before ? (behind ? Kind::Contains : Kind::Ends) : (behind ? Kind::Starts : Kind::Whole);
}

bool LikePattern::matches(std::string_view utf8) const {
  switch (kind_) {
    case Kind::Rule:
      return like(QString::fromUtf8(utf8.data(), qsizetype(utf8.size())), pattern_);
    case Kind::Whole:
      return utf8 == plain_;
    case Kind::Starts:
      return utf8.starts_with(plain_);
    case Kind::Ends:
      return utf8.ends_with(plain_);
    case Kind::Contains:
      break;
  }
  // A column's texts are short: a look at the first byte beats a search that prepares itself.
  if (plain_.empty()) return true;
  if (utf8.size() < plain_.size()) return false;
  const char* const last = utf8.data() + utf8.size() - plain_.size();
  for (const char* at = utf8.data();; ++at) {
    at = static_cast<const char*>(std::memchr(at, plain_.front(), size_t(last - at) + 1));
    if (!at) return false;
    if (std::memcmp(at, plain_.data(), plain_.size()) == 0) return true;
    if (at == last) return false;
  }
}

}  // namespace jet
