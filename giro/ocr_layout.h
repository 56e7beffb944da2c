#pragma once
// Where everything stands on the two OCR papers, in rows of 1/8 inch and columns of 1/15 inch.
#include "giro/slip.h"
#include "pc/paper_form.h"

/** Its lines are the notes. */
const pc::PaperForm& ocrForm(OcrPaper paper);
/** Half-width characters of a note's line that the paper has room for. */
int ocrNoteWidth(OcrPaper paper);
