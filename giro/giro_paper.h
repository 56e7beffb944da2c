#pragma once
// The papers of the meter book's bills: each has a table of its own in its file, and here what its texts are like.
#include "giro/slip.h"
#include "pc/paper_form.h"

enum class GiroPaper { OcrContinuous, OcrA4, Jiro, JiroMicr, JiroOrg, JiroOrgA4, MicrA4 };

// Rows of 1/8 inch, columns of 1/15 inch. The lines of the OCR papers are the notes.
const pc::PaperForm& ocrContinuousForm();
const pc::PaperForm& ocrA4Form();
const pc::PaperForm& jiroForm();
const pc::PaperForm& jiroMicrForm();
const pc::PaperForm& jiroOrgForm();
const pc::PaperForm& jiroOrgA4Form();
const pc::PaperForm& micrA4Form();
/** Half-width characters of a note's line that the paper has room for; 0 where there is none. */
int noteWidth(GiroPaper paper);

struct GiroPaperKind {
  const char16_t* title;  ///< of the job
  const pc::PaperForm& (*form)();
  SlipRules rules;
};
const GiroPaperKind& giroPaper(GiroPaper paper);
