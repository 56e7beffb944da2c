#pragma once
// Where everything stands on the two OCR papers, in rows of 1/8 inch and columns of 1/15 inch.
#include <span>

#include "giro/giro_setup.h"
#include "giro/slip.h"
#include "pc/print_job.h"

struct SlipPlace {
  double row, column;
  SlipText what;
  int width = 0;  ///< half-width characters the text is cut to; 0 as long as it is
};

struct OcrLayout {
  pc::PaperSize paper;
  int slipsOnPage;
  int noteWidth;  ///< half-width characters of a note's line that have room
  std::span<const SlipPlace> places;
};

const OcrLayout& ocrLayout(OcrPaper paper);

/** place: 0 for the sheet's first slip. The printer's current size serves for all but the notes and the scan line and
 *  is the current one again afterwards. */
void printOcrSlip(pc::PrintJob& job, const GiroSetup& setup, OcrPaper paper, int place,
                  const SlipTexts& texts, const QStringList& notes);
