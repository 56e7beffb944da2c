#include "giro/giro_paper.h"

namespace {

namespace ocr {
using enum SlipText;
using pc::at, pc::PaperItem;

constexpr double rowsOfSlip = 28;  // from one slip to the next, on both papers
constexpr int noteLines = 8;
constexpr int continuousNote = 66, a4Note = 44;  // half-width characters

enum Fonts { letters, notes, scanned };
constexpr pc::PaperFont fonts[] = {{u"굴림체"}, {u"굴림체", 8}, {u"OCR-B-1", 12}};

// The pre-printed continuous paper, one slip a page.
constexpr PaperItem continuousPlaces[] = {
    {0, 33, IssueYear},
    {0, 44, IssueMonth},
    {1, 37, UsePeriod},
    {2, 41, AfterDueCharge},
    {3, 41, AfterDueAmount},
    {3, 9, Total},
    {4, 73, AmountToPay},
    {5, 4, DueYear},
    {5, 12, DueMonth},
    {5, 19, DueDay},
    {5, 93, DueYear},
    {5, 100, DueMonth},
    {5, 105, DueDay},
    {6, 10, Reading},
    {7, 10, PrevReading},
    {7, 67, Code},
    at(7, 118, ScanLine).in(scanned),
    {8, 10, Use},
    {9, 10, Amount},
    {10, 10, Manage},
    {11, 126, Code},
    {11, 164, Name},
    {12, 10, Arrears},
    {13, 10, Late},
    {13, 127, Address},
    {14, 10, Total},
    {16, 7, Code},
    {16, 43, Name},
    {16, 126, DueYear},
    {16, 136, DueMonth},
    {16, 146, DueDay},
    {18, 7, AddressLine},
    {2, 174, AmountToPay},
};

// An A4 sheet lying on its side, two slips. Three parts side by side: the customer's receipt up to column 46, the
// notice up to column 86, the bank's part from column 90 on with nothing above or below its scan line.
constexpr PaperItem a4Places[] = {
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
    // bank
    {4.0, 146, AmountToPay},
    at(6.9, 90, ScanLine).in(scanned),
    {10.9, 98, Code},
    {10.9, 136, Name, 34},
    {12.9, 99, Address, 64},
    {15.9, 98, DueYear},
    {15.9, 108, DueMonth},
    {15.9, 118, DueDay},
};

// The notes, a line each.
constexpr PaperItem continuousNotes[] = {at(10, 62, NoteText::Note).in(notes).cut(continuousNote)};
constexpr PaperItem a4Notes[] = {at(10.3, 50, NoteText::Note).in(notes).cut(a4Note)};

constexpr pc::PaperForm continuous{.paper = {14, rowsOfSlip / 8},
                                   .rowsPerInch = 8,
                                   .columnsPerInch = 15,
                                   .fonts = fonts,
                                   .items = continuousPlaces,
                                   .line = continuousNotes,
                                   .lines = noteLines};
constexpr pc::PaperForm a4{.paper = {11.69, 8.27},
                           .rowsPerInch = 8,
                           .columnsPerInch = 15,
                           .fonts = fonts,
                           .items = a4Places,
                           .copies = 2,
                           .copyRows = rowsOfSlip,
                           .line = a4Notes,
                           .lines = noteLines};

}  // namespace ocr

}  // namespace

const pc::PaperForm& ocrContinuousForm() {
  return ocr::continuous;
}

const pc::PaperForm& ocrA4Form() {
  return ocr::a4;
}

int noteWidth(GiroPaper paper) {
  return paper == GiroPaper::OcrContinuous ? ocr::continuousNote
         : paper == GiroPaper::OcrA4       ? ocr::a4Note
                                           : 0;
}
