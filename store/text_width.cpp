#include "store/text_width.h"

#include <cmath>

#include "store/vb.h"

using namespace Qt::StringLiterals;

QString StripNumber(const QString& text) {
  QString rest = text;
  rest.remove(u'.').remove(u'-');
  return vb::IsNumeric(rest) ? rest : QString();
}

QString moneyText(double won) {
  // A sum of fractions may be next to a whole number: the point is not shown without a digit behind it.
  if (won != std::trunc(won)) won = std::round(won * 100) / 100;
  const bool whole = won == std::trunc(won);
  constexpr double exact = 9007199254740992.0;  // 2^53
  if (!whole || std::fabs(won) >= exact) {
    const QString text = vb::Format(won, whole ? u"###,###,###"_s : u"###,###,###.##"_s);
    return text.isEmpty() ? u"0"_s : text;
  }
  QString text = QString::number(qint64(won));
  for (qsizetype at = text.size() - 3; at > (won < 0 ? 1 : 0); at -= 3) text.insert(at, u',');
  return text;
}
