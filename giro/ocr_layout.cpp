#include "giro/slip_layout.h"

namespace {

namespace ocr {
using namespace slip_layout;

constexpr int noteLines = 8;
constexpr int continuousNote = 66, a4Note = 44;  // half-width characters

enum Fonts { letters, notes, scanned };
constexpr pc::PaperFont fonts[] = {{u"굴림체"}, {u"굴림체", 8}, {u"OCR-B-1", 12}};

constexpr pc::PaperForm withNotes(pc::PaperForm form, std::span<const pc::PaperItem> line) {
  form.line = line;
  form.lines = noteLines;
  return form;
}

// The pre-printed continuous paper, one slip a page.
constexpr PaperRow continuousRows[] = {
    {0, {{33, IssueYear}, {44, IssueMonth}}},
    {1, {{37, UsePeriod}}},
    {2, {{41, AfterDueCharge}, {174, AmountToPay}}},
    {3, {{9, Total}, {41, AfterDueAmount}}},
    {4, {{73, AmountToPay}}},
    {5, {{4, DueYear}, {12, DueMonth}, {19, DueDay}, {93, DueYear}, {100, DueMonth}, {105, DueDay}}},
    {6, {{10, Reading}}},
    {7, {{10, PrevReading}, {67, Code}, at(118, ScanLine).in(scanned)}},
    {8, {{10, Use}}},
    {9, {{10, Amount}}},
    {10, {{10, Manage}}},
    {11, {{126, Code}, {164, Name}}},
    {12, {{10, Arrears}}},
    {13, {{10, Late}, {127, Address}}},
    {14, {{10, Total}}},
    {16, {{7, Code}, {43, Name}, {126, DueYear}, {136, DueMonth}, {146, DueDay}}},
    {18, {{7, AddressLine}}},
};
constexpr pc::PaperItem continuousNotes[] = {at(10, 62, NoteText::Note).in(notes).cut(continuousNote)};
constexpr pc::PaperForm continuous =
    withNotes(onePage({14, lowerSlip / 8}, continuousRows, fonts), continuousNotes);

// Two slips on A4, three parts side by side: the customer's receipt up to column 46, the notice up to column 86, the
// bank's part from column 90 on with nothing above or below its scan line.
constexpr PaperRow a4Rows[] = {
    {1.6, {{22, IssueYear}, {30, IssueMonth}}},
    {2.8, {{22, UsePeriod}}},
    {4.0, {{31, AfterDueCharge}, {146, AmountToPay}}},
    {5.2, {{9, Total}, {31, AfterDueAmount}, {60, AmountToPay}}},
    {6.4, {{6, DueYear}, {13, DueMonth}, {18, DueDay}, {60, DueYear}, {67, DueMonth}, {72, DueDay}}},
    {6.9, {at(90, ScanLine).in(scanned)}},
    {7.9, {{10, Reading}, {60, Code}}},
    {9.1, {{10, PrevReading}}},
    {10.3, {{10, Use}}},
    {10.9, {{98, Code}, {136, Name, 34}}},
    {11.5, {{10, Amount}}},
    {12.7, {{10, Manage}}},
    {12.9, {{98, Address, 64}}},
    {13.9, {{10, Arrears}}},
    {15.1, {{10, Late}}},
    {15.9, {{98, DueYear}, {108, DueMonth}, {118, DueDay}}},
    {16.3, {{10, Total}}},
    {18.3, {{6, Code}, {17, Name, 28}}},
    {19.6, {{6, AddressLine, 40}}},
};
constexpr pc::PaperItem a4Notes[] = {at(10.3, 50, NoteText::Note).in(notes).cut(a4Note)};
constexpr pc::PaperForm a4 = withNotes(twoOnA4(a4Rows, fonts), a4Notes);

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
