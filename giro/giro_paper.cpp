#include "giro/giro_paper.h"

namespace {

constexpr char16_t wide[] = u"  ~  ", dash[] = u" - ";

constexpr SlipRules micr{
    .afterDueByMethod = true, .labelsBank = true, .buildingByList = true, .periodBetween = wide};
constexpr SlipRules general{.roundsAnew = true, .buildingByList = true, .periodBetween = dash};

constexpr SlipRules micrInWords() {
  SlipRules rules = micr;
  rules.dueDate = u"%1년 %2월 %3일 ";
  return rules;
}

constexpr SlipRules generalContinuous() {
  SlipRules rules = general;
  rules.buildingsRate = rules.padsFigures = false;
  return rules;
}

// Kept: the continuous OCR paper asks no building for its rate, and the general giros read the rounding at each figure.
const GiroPaperKind kinds[] = {{u"OCR 지로", ocrContinuousForm, {.buildingsRate = false}},
                               {u"OCR-A4 지로", ocrA4Form, {}},
                               {u"MICR 지로", jiroForm, micr},
                               {u"MICR 지로", jiroMicrForm, micrInWords()},
                               {u"일반지로", jiroOrgForm, generalContinuous()},
                               {u"일반지로(A4)", jiroOrgA4Form, general},
                               {u"MICR-A4 지로", micrA4Form, micr}};

}  // namespace

const GiroPaperKind& giroPaper(GiroPaper paper) {
  return kinds[size_t(paper)];
}
