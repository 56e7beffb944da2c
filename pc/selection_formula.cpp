#include "pc/selection_formula.h"

#include <QRegularExpression>

#include "pc/report_layout.h"

using namespace Qt::StringLiterals;

namespace pc {
namespace {

constexpr int deepest = 24;  ///< brackets and Nots within each other
constexpr QChar apostrophe{0x27};

class SelectionParser {
 public:
  explicit SelectionParser(const QString& text) : text_(text) {}

  Selection whole() {
    skip();
    if (at_ == text_.size()) return {};
    Selection all = anyOf(0);
    if (at_ != text_.size()) refuse(u"여기서 끝나야 합니다"_s);
    return all;
  }

 private:
  using Reader = Selection (SelectionParser::*)(int);

  Selection anyOf(int depth) { return chain(Selection::Kind::Or, u"or", &SelectionParser::allOf, depth); }
  Selection allOf(int depth) { return chain(Selection::Kind::And, u"and", &SelectionParser::single, depth); }

  Selection chain(Selection::Kind kind, QStringView word, Reader next, int depth) {
    std::vector<Selection> parts{(this->*next)(depth)};
    while (takeWord(word)) parts.push_back((this->*next)(depth));
    if (parts.size() == 1) return std::move(parts.front());
    return {.kind = kind, .parts = std::move(parts)};
  }

  Selection single(int depth) {
    if (depth > deepest) refuse(u"괄호가 너무 깊습니다"_s);
    if (takeWord(u"not")) return {.kind = Selection::Kind::Not, .parts = {single(depth + 1)}};
    if (take(u'(')) {
      Selection inner = anyOf(depth + 1);
      if (!take(u')')) refuse(u"괄호가 닫히지 않았습니다"_s);
      return inner;
    }
    return compared();
  }

  Selection compared() {
    Selection made{.kind = Selection::Kind::Compare};
    static const QRegularExpression field(u"\\{([\\p{L}\\p{N}_]+)\\.([\\p{L}\\p{N}_]+)\\}"_s);
    static const QRegularExpression op(u"<=|>=|<>|=|<|>"_s);
    const QRegularExpressionMatch name = match(field);
    if (!name.hasMatch()) refuse(u"{테이블.칸}이 있어야 합니다"_s);
    made.table = name.captured(1);
    made.field = name.captured(2);
    const QRegularExpressionMatch sign = match(op);
    if (!sign.hasMatch()) refuse(u"비교하는 기호가 있어야 합니다"_s);
    made.op = sign.captured();
    readValue(made);
    return made;
  }

  void readValue(Selection& into) {
    static const QRegularExpression number(u"-?[0-9]+(\\.[0-9]+)?(?![\\p{L}\\p{N}_.])"_s);
    if (at_ < text_.size() && text_[at_] == apostrophe) {
      into.type = Selection::Value::Text;
      into.value = quoted();
    } else if (const QRegularExpressionMatch digits = match(number); digits.hasMatch()) {
      into.value = digits.captured();
    } else if (takeWord(u"true")) {
      into.type = Selection::Value::YesNo;
      into.value = u"True"_s;
    } else if (takeWord(u"false")) {
      into.type = Selection::Value::YesNo;
      into.value = u"False"_s;
    } else {
      refuse(u"값이 있어야 합니다"_s);
    }
  }

  QString quoted() {
    QString value;
    for (++at_; at_ < text_.size(); ++at_) {
      if (text_[at_] != apostrophe) {
        value += text_[at_];
      } else if (at_ + 1 < text_.size() && text_[at_ + 1] == apostrophe) {
        value += text_[at_++];
      } else {
        ++at_;
        skip();
        return value;
      }
    }
    refuse(u"따옴표가 닫히지 않았습니다"_s);
  }

  QRegularExpressionMatch match(const QRegularExpression& what) {
    QRegularExpressionMatch found = what.match(text_, at_, QRegularExpression::NormalMatch,
                                               QRegularExpression::AnchorAtOffsetMatchOption);
    if (found.hasMatch()) {
      at_ = found.capturedEnd();
      skip();
    }
    return found;
  }
  bool take(QChar mark) {
    if (at_ == text_.size() || text_[at_] != mark) return false;
    ++at_;
    skip();
    return true;
  }
  bool takeWord(QStringView word) {
    if (QStringView(text_).sliced(at_).left(word.size()).compare(word, Qt::CaseInsensitive) != 0)
      return false;
    const qsizetype behind = at_ + word.size();
    if (behind < text_.size() && (text_[behind].isLetterOrNumber() || text_[behind] == u'_')) return false;
    at_ = behind;
    skip();
    return true;
  }
  void skip() {
    while (at_ < text_.size() && text_[at_].isSpace()) ++at_;
  }
  [[noreturn]] void refuse(const QString& why) const {
    throw ReportError{u"선택 조건이 잘못되었습니다: "_s + why + u"\n"_s + text_.left(at_) + u" ▶ "_s +
                      text_.mid(at_)};
  }

  const QString& text_;
  qsizetype at_ = 0;
};

}  // namespace

Selection parseSelection(const QString& formula) {
  return SelectionParser(formula).whole();
}

}  // namespace pc
