#pragma once
// A pattern of Like made ready once and held against many texts. Most are a plain run of digits or Hangul with stars
// before and behind; those are found in the bytes, the others go through the rule itself.
#include <QString>

#include <string>
#include <string_view>

namespace jet {

class LikePattern {
 public:
  /** Throws error 93 for a bracket that is not closed, at the first text. */
  explicit LikePattern(const QString& pattern);
  bool matches(std::string_view utf8) const;

 private:
  enum class Kind { Rule, Whole, Starts, Ends, Contains };
  Kind kind_ = Kind::Rule;
  QString pattern_;    ///< Rule
  std::string plain_;  ///< what stands between the stars, UTF-8
};

}  // namespace jet
