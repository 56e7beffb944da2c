#include "store/business_number.h"

bool mayBeBusinessNumber(const QString& typed) {
  QString digits;
  for (const QChar each : typed) {
    if (each.isDigit())
      digits += each;
    else if (each != '-' && each != ' ')
      return true;
  }
  if (digits.size() != 10) return true;
  static constexpr int weights[] = {1, 3, 7, 1, 3, 7, 1, 3, 5};
  int sum = digits[8].digitValue() * 5 / 10;  // the last product counts with its tens once more
  for (int place = 0; place < 9; ++place) sum += digits[place].digitValue() * weights[place];
  return (10 - sum % 10) % 10 == digits[9].digitValue();
}

void tellBusinessNumber(Prompts& prompts, const QString& typed) {
  if (!mayBeBusinessNumber(typed))
    prompts.MsgWarn(typed + "\n사업자등록번호의 검증번호가 맞지 않습니다. 번호를 확인하세요.",
                    "사업자등록번호");
}
