#include "giro/giro_paper.h"

namespace {

constexpr char16_t wide[] = u"  ~  ", dash[] = u" - ";

// Kept: the continuous OCR paper asks no building for its rate, and the plain papers read the rounding at each figure.
const GiroPaperKind kinds[] = {
    {u"OCR 지로", ocrContinuousForm, {.buildingsRate = false}},
    {u"OCR-A4 지로", ocrA4Form, {}},
    {u"MICR 지로", jiroForm, {.afterDueByMethod = true, .labelsBank = true, .periodBetween = wide}},
    {u"MICR 지로",
     jiroMicrForm,
     {.afterDueByMethod = true, .labelsBank = true, .periodBetween = wide, .dueDate = u"%1년 %2월 %3일 "}},
    {u"일반지로",
     jiroOrgForm,
     {.buildingsRate = false, .roundsAnew = true, .padsFigures = false, .periodBetween = dash}},
    {u"일반지로(A4)", jiroOrgA4Form, {.roundsAnew = true, .periodBetween = dash}},
    {u"MICR-A4 지로", micrA4Form, {.afterDueByMethod = true, .labelsBank = true, .periodBetween = wide}},
};

}  // namespace

const GiroPaperKind& giroPaper(GiroPaper paper) {
  return kinds[size_t(paper)];
}
