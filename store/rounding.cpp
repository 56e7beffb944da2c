#include "store/rounding.h"

#include "store/data_access.h"
#include "store/session.h"
#include "store/vb.h"

using namespace Qt::StringLiterals;

double roundToTen(double won, std::optional<int> payState) {
  // The fraction is dropped from the text of 15 digits, not by arithmetic: 1234.9999999999999 is 1235 here.
  QString text = vb::CStr(won);
  if (const qsizetype point = text.indexOf(u'.'); point >= 0) text.truncate(point);
  const double whole = vb::CCur(vb::CDbl(text));
  const int digit = text.back().digitValue();
  if (whole == 0 || digit == 0) return whole == 0 ? 0 : whole;
  // Kept: the digit has no sign, so -123 rounds down to -126 and up to -116.
  switch (payState.value_or(3)) {
    case 1:
      return whole - digit;
    case 2:
      return whole - digit + 10;
    case 3:
      return digit < 5 ? whole - digit : whole - digit + 10;
    default:
      return 0;  // Kept: a bad setting gives no amount at all.
  }
}

std::optional<int> companyPayState(Session& session) {
  jet::Recordset rs;
  if (!OpenSnapshot(session.prompts, session.dbBasic, rs, u"Select PayState From User"_s) ||
      rs.RecordCount() == 0)
    return {};
  return int(rs["PayState"].toLong());
}

double RoundByPayState(Session& session, double won) {
  return roundToTen(won, companyPayState(session));
}
