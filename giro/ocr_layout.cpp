#include "giro/ocr_layout.h"

#include "store/text_width.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int rowsOfSlip = 28;  ///< from one slip to the next, on both papers
constexpr qsizetype noteLines = 8;
constexpr double notePoints = 8, scanPoints = 12;

namespace ocr_places {
using enum SlipText;

// The pre-printed continuous paper, one slip a page.
constexpr SlipPlace continuousPlaces[] = {
    {0, 33, IssueYear},      {0, 44, IssueMonth},   {1, 37, UsePeriod},   {2, 41, AfterDueCharge},
    {3, 41, AfterDueAmount}, {3, 9, Total},         {4, 73, AmountToPay}, {5, 4, DueYear},
    {5, 12, DueMonth},       {5, 19, DueDay},       {5, 93, DueYear},     {5, 100, DueMonth},
    {5, 105, DueDay},        {6, 10, Reading},      {7, 10, PrevReading}, {7, 67, Code},
    {7, 118, ScanLine},      {8, 10, Use},          {9, 10, Amount},      {10, 10, Manage},
    {10, 62, Notes},         {11, 126, Code},       {11, 164, Name},      {12, 10, Arrears},
    {13, 10, Late},          {13, 127, Address},    {14, 10, Total},      {16, 7, Code},
    {16, 43, Name},          {16, 126, DueYear},    {16, 136, DueMonth},  {16, 146, DueDay},
    {18, 7, AddressLine},    {2, 174, AmountToPay},
};

// An A4 sheet lying on its side, two slips. Three parts side by side: the customer's receipt up to column 46, the
// notice up to column 86, the bank's part from column 90 on with nothing above or below its scan line.
constexpr SlipPlace a4Places[] = {
    // receipt
    {1.6, 22, IssueYear},
    {1.6, 30, IssueMonth},
    {2.8, 22, UsePeriod},
    {4.0, 31, AfterDueCharge},
    {5.2, 31, AfterDueAmount},
    {5.2, 9, Total},
    {6.4, 6, DueYear},
    {6.4, 13, DueMonth},
    {6.4, 18, DueDay},
    {7.9, 10, Reading},
    {9.1, 10, PrevReading},
    {10.3, 10, Use},
    {11.5, 10, Amount},
    {12.7, 10, Manage},
    {13.9, 10, Arrears},
    {15.1, 10, Late},
    {16.3, 10, Total},
    {18.3, 6, Code},
    {18.3, 17, Name, 28},
    {19.6, 6, AddressLine, 40},
    // notice
    {5.2, 60, AmountToPay},
    {6.4, 60, DueYear},
    {6.4, 67, DueMonth},
    {6.4, 72, DueDay},
    {7.9, 60, Code},
    {10.3, 50, Notes},
    // bank
    {4.0, 146, AmountToPay},
    {6.9, 90, ScanLine},
    {10.9, 98, Code},
    {10.9, 136, Name, 34},
    {12.9, 99, Address, 64},
    {15.9, 98, DueYear},
    {15.9, 108, DueMonth},
    {15.9, 118, DueDay},
};

}  // namespace ocr_places

const OcrLayout continuousLayout{{14, rowsOfSlip / 8.0}, 1, 66, ocr_places::continuousPlaces};
const OcrLayout a4Layout{{11.69, 8.27}, 2, 44, ocr_places::a4Places};

}  // namespace

const OcrLayout& ocrLayout(OcrPaper paper) {
  return paper == OcrPaper::Continuous ? continuousLayout : a4Layout;
}

void printOcrSlip(pc::PrintJob& job, const GiroSetup& setup, OcrPaper paper, int place,
                  const SlipTexts& texts, const QStringList& notes) {
  const OcrLayout& layout = ocrLayout(paper);
  const pc::PrintFont before = job.font();
  const pc::PrintFont letters{u"굴림체"_s, before.points, false}, small{u"굴림체"_s, notePoints, false},
      scanned{u"OCR-B-1"_s, scanPoints, false};
  for (const SlipPlace& item : layout.places) {
    const double row = item.row + place * rowsOfSlip;
    if (item.what == SlipText::Notes) {
      job.setFont(small);
      for (qsizetype line = 0; line < qMin(notes.size(), noteLines); ++line)
        if (!notes[line].isEmpty())
          job.text(setup.x(item.column), setup.y(row + double(line)),
                   CutByWidth(notes[line], layout.noteWidth));
      continue;
    }
    const QString& text = texts[size_t(item.what)];
    if (text.isEmpty()) continue;
    job.setFont(item.what == SlipText::ScanLine ? scanned : letters);
    job.text(setup.x(item.column), setup.y(row), item.width > 0 ? CutByWidth(text, item.width) : text);
  }
  job.setFont(before);
}
