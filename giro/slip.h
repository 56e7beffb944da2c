#pragma once
// The figures and texts of one OCR slip, from a row of the reading screen.
#include <QString>
#include <QStringList>

#include <array>

class ReadingScreen;
struct Session;

enum class OcrPaper { Continuous, A4 };

/** What a layout can place. Amounts, readings and use stand right-aligned in 13 places with separators. */
enum class SlipText {
  IssueYear,   ///< of the month before the shown one
  IssueMonth,  ///< "MM"
  UsePeriod,
  AfterDueCharge,
  AfterDueAmount,
  Total,
  AmountToPay,  ///< the total, or that the bank collects it
  DueYear,
  DueMonth,
  DueDay,
  Reading,
  PrevReading,
  Use,
  Amount,
  Manage,
  Arrears,
  Late,  ///< as the slip shows it, not as it stands in the row
  Code,  ///< seven places
  Name,  ///< the grid's first column
  Address,
  AddressLine,  ///< the receipt's, with the building's label
  ScanLine,
  Notes,  ///< a line each, in small print
  Count
};

/** What the operator typed for the whole run. */
struct GiroInput {
  QString year, month, day;  ///< due date
  QString useFrom, useTo;
  QStringList notes;  ///< up to eight lines
};

using SlipTexts = std::array<QString, size_t(SlipText::Count)>;

/** Notes are left to the layout. The rate of the late charge is the book's; on A4 an apartment's building goes before
 *  it, on continuous paper not (kept). Neither the late line nor the after-due figures are stored. */
SlipTexts slipTexts(Session& session, const ReadingScreen& screen, int row, OcrPaper paper,
                    const GiroInput& input);
