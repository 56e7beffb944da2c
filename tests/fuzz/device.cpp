#include <algorithm>

#include "links/see_id_lines.h"
#include "tests/fuzz/targets.h"

namespace fuzz {

void runDevice(const QByteArray& input) {
  const std::vector<SeeIdEvent> whole = SeeIdLines().feed(input);
  std::vector<SeeIdEvent> pieces;
  SeeIdLines lines;
  for (qsizetype at = 0, size = 1; at < input.size(); at += size, size = size % 7 + 1)
    for (const SeeIdEvent& event : lines.feed(input.mid(at, size))) pieces.push_back(event);
  const auto same = [](const SeeIdEvent& a, const SeeIdEvent& b) {
    return a.state == b.state && a.number == b.number;
  };
  if (!std::equal(whole.begin(), whole.end(), pieces.begin(), pieces.end(), same))
    broken(input, "it does not matter how the bytes arrive");
  for (const SeeIdEvent& event : whole) {
    const bool digits =
        std::all_of(event.number.begin(), event.number.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    const bool fits =
        event.state == 0 ? event.number.isEmpty() : event.number.size() >= 3 && event.number.size() <= 20;
    if (!digits || !fits) broken(input, "a number is digits, from an extension to an international one");
  }
}

}  // namespace fuzz
